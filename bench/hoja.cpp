// The sheet: what an event of a drag costs until it is painted, a full repaint, and the output's picture.

#include "dibujos.h"
#include "furnishing/dibujar_elemento.h"
#include "output/image_crop.h"
#include "puesto.h"
#include "trazos.h"
#include "ui/lienzo_qt.h"
#include "ui/pintura_hoja.h"
#include "ui/unidades.h"

#include <QMouseEvent>
#include <QPixmap>
#include <QTest>
#include <benchmark/benchmark.h>

namespace bosquel::bench {

namespace {

constexpr QSize vista{1280, 800};
constexpr int ladoSalida = 1512;
constexpr float cerca = 4000;  ///< sheet units: where the dragged thing stands

/// Keeps the movements of the pointer from whom they are meant for.
class Sordina final : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* evento) override { return evento->type() == QEvent::MouseMove; }
};

/// Moves the pointer to and fro by a few pixels, each time until all is painted.
void mover(benchmark::State& estado, QWidget& ventana, QPoint lugar) {
    int n = 0;
    for (auto _ : estado) {
        ++n;
        const int pixeles = n % 40 < 20 ? n % 20 : 20 - n % 20;
        QTest::mouseMove(ventana.windowHandle(), lugar + QPoint(pixeles, pixeles));
        pintar(ventana);
    }
}

/// The same events, dispatched to the sheet and gone there.
void sueloEvento(benchmark::State& estado) {
    Puesto puesto(0);
    Sordina sordina;
    puesto.hoja().installEventFilter(&sordina);
    mover(estado, puesto.ventana(), puesto.lugar(cerca, cerca));
}

bool seMueve(Puesto& puesto) {
    return puesto.dibujo().ObjetoEnMovimiento || !puesto.sesion().paredesEnMovimiento.empty();
}

/// Takes what stands at a place and drags it.
void arrastrar(benchmark::State& estado, Puesto& puesto, float x, float y) {
    const QPoint lugar = puesto.lugar(x, y);
    QWindow* ventana = puesto.ventana().windowHandle();
    QTest::mousePress(ventana, Qt::LeftButton, {}, lugar);
    pintar(puesto.ventana());
    mover(estado, puesto.ventana(), lugar);
    if (!seMueve(puesto)) estado.SkipWithError("nothing is being dragged");
    QTest::mouseRelease(ventana, Qt::LeftButton, {}, lugar);
}

void arrastreMueble(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    MblCama90& cama = *puesto.dibujo().MblCama90.crearSiguiente();
    cama.Left = cama.Top = cerca;
    cama.Visible = true;
    alFrente(puesto.dibujo(), cama);
    puesto.mostrarTodo();
    arrastrar(estado, puesto, cerca + 150, cerca + 150);
}

/// By the grip in the middle of the wall.
void arrastrarPared(benchmark::State& estado, Puesto& puesto, int indice) {
    Pared& pared = *puesto.dibujo().Pared.en(indice);
    for (Pinza* pinza : pared.pinzas())
        alFrente(puesto.dibujo(), *pinza);
    puesto.mostrarTodo();
    const Recuadro pinza = pared.ParedPickCentro.recuadro();
    arrastrar(estado, puesto, static_cast<float>(pinza.Left + pinza.Width / 2),
              static_cast<float>(pinza.Top + pinza.Height / 2));
}

void arrastrePared(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    arrastrarPared(estado, puesto, ponerMuroConVentanas(puesto.dibujo(), cerca, cerca, 4));
}

void arrastreGrupo(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    arrastrarPared(estado, puesto, ponerGrupo(puesto.dibujo(), cerca, cerca, 40));
}

/// The pointer over the sheet, nothing pressed.
void paso(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    mover(estado, puesto.ventana(), puesto.lugar(cerca, cerca));
}

/// The strokes of the whole drawing, worked out in pixels.
Trazos trazosDe(const Dibujo& dibujo, double escala) {
    Calcadora calcadora;
    DibujarTodo(salidaDe(dibujo, calcadora, 1), dibujo);
    return {calcadora.calco(), escala};
}

void repintado(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    QImage lienzo(vista, QImage::Format_RGB32);
    for (auto _ : estado)
        pintarQuieto(lienzo, {{}, 1.0 / unidadesPorPixel}, puesto.sesion(), QRect({}, vista));
}

void sueloRepintado(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    const Trazos trazos = trazosDe(puesto.dibujo(), 1.0 / unidadesPorPixel);
    QPixmap lienzo(vista);
    for (auto _ : estado) {
        QPainter pintor(&lienzo);
        pintor.fillRect(QRect({}, vista), Qt::white);
        trazos.pintar(pintor);
    }
    estado.SetLabel(std::to_string(trazos.cuantos()) + " strokes");
}

void salida(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    LienzoQt lienzo;
    for (auto _ : estado)
        ImageCrop(puesto.plataforma(), puesto.dibujo(), {}).cargar(lienzo);
    if (lienzo.HojaSalida().size() != QSize(ladoSalida, ladoSalida)) estado.SkipWithError("another size");
}

void sueloSalida(benchmark::State& estado) {
    Puesto puesto(static_cast<int>(estado.range(0)));
    const Trazos trazos =
        trazosDe(puesto.dibujo(), static_cast<double>(ladoSalida) / static_cast<double>(ladoHoja));
    for (auto _ : estado) {
        QImage lienzo(ladoSalida, ladoSalida, QImage::Format_RGB32);
        lienzo.fill(Qt::white);
        QPainter pintor(&lienzo);
        trazos.pintar(pintor);
    }
}

BENCHMARK(sueloEvento);
BENCHMARK(arrastreMueble)->Arg(100)->Arg(2000)->Arg(20000);
BENCHMARK(arrastrePared)->Arg(100)->Arg(2000)->Arg(20000);
BENCHMARK(arrastreGrupo)->Arg(100)->Arg(2000)->Arg(20000);
BENCHMARK(paso)->Arg(100)->Arg(2000)->Arg(20000);
BENCHMARK(sueloRepintado)->Arg(100)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(repintado)->Arg(100)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(sueloSalida)->Arg(100)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(salida)->Arg(100)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace bosquel::bench
