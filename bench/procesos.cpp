// What takes a process of its own: from nothing to the first window, splash excluded, against an empty window
// with sixty buttons; the memory that the largest drawing takes; and the way from a file to a bitmap, beside
// the way to a page that another program's converter goes, where it is installed. Times are the processor's.

#include "dibujos.h"
#include "dxf.h"
#include "furnishing/dibujar_elemento.h"
#include "output/image_crop.h"
#include "puesto.h"
#include "ui/aplicacion.h"
#include "ui/lienzo_qt.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QStandardPaths>
#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

namespace bosquel::bench {

namespace {

namespace fs = std::filesystem;

constexpr int botones = 60, porFila = 10;
constexpr int elementos = 20000;
constexpr const char* conversor = "librecad";

void abrirBotones() {
    QWidget ventana;
    auto* rejilla = new QGridLayout(&ventana);
    for (int i = 0; i < botones; ++i)
        rejilla->addWidget(new QPushButton(QString("Botón %1").arg(i)), i / porFila, i % porFila);
    ventana.show();
    pintar(ventana);
}

/// The program with its window, as it starts.
class Programa {
  public:
    Programa() {
        prepararAplicacion();
        plataforma_.ponerVentana(&ventana_);
        bosquel_.cargar();
        ventana_.show();
        pintar(ventana_);
    }

    void abrir(const fs::path& archivo) {
        plataforma_.archivo = archivo;
        bosquel_.pulsarPrincipal(Principal::Abrir);
        pintar(ventana_);
        if (bosquel_.sesion().dibujo.Pared.contador <= 1)
            throw std::runtime_error("nothing in " + archivo.string());
    }

    void enviar(const fs::path& imagen) {
        LienzoQt lienzo;
        ImageCrop salida(plataforma_, bosquel_.sesion().dibujo, {});
        salida.cargar(lienzo);
        lienzo.HojaSalida().save(QString::fromStdString(imagen.string()), "BMP");
    }

  private:
    QTemporaryDir carpeta_;
    PlataformaDeMedida plataforma_;
    Bosquel bosquel_{plataforma_, carpeta_.path().toStdString()};
    VentanaBosquel ventana_{bosquel_};
};

/// Leaves the largest drawing in a file, and its strokes in another for those who cannot read it.
void guardarDibujo(const fs::path& archivo, const fs::path& dxf) {
    Puesto puesto(elementos);
    puesto.plataforma().archivo = archivo;
    puesto.bosquel().pulsarPrincipal(Principal::Guardar);
    Calcadora calcadora;
    DibujarTodo(salidaDe(puesto.dibujo(), calcadora, 1), puesto.dibujo());
    escribirDxf(calcadora.calco(), dxf);
}

struct Gasto {
    double milisegundos = 0;  ///< of the processor
    double mebibytes = 0;     ///< at the most
};

double enMilisegundos(const timeval& tiempo) {
    return 1e3 * static_cast<double>(tiempo.tv_sec) + 1e-3 * static_cast<double>(tiempo.tv_usec);
}

/// What it takes to do one thing in a process of its own, which says nothing.
Gasto gastoDe(std::vector<std::string> orden) {
    std::vector<char*> palabras;
    for (std::string& palabra : orden)
        palabras.push_back(palabra.data());
    palabras.push_back(nullptr);
    posix_spawn_file_actions_t callado;
    posix_spawn_file_actions_init(&callado);
    for (const int salida : {1, 2})
        posix_spawn_file_actions_addopen(&callado, salida, "/dev/null", O_WRONLY, 0);
    pid_t hijo = 0;
    int estado = -1;
    rusage uso{};
    if (posix_spawnp(&hijo, palabras.front(), &callado, nullptr, palabras.data(), environ) == 0)
        wait4(hijo, &estado, 0, &uso);
    posix_spawn_file_actions_destroy(&callado);
    if (estado != 0) throw std::runtime_error("it failed: " + orden.at(1));
    return {enMilisegundos(uso.ru_utime) + enMilisegundos(uso.ru_stime),
            static_cast<double>(uso.ru_maxrss) / 1024};
}

/// One of the things that this program does.
std::vector<std::string> cosa(std::vector<std::string> palabras) {
    palabras.insert(palabras.begin(), "/proc/self/exe");
    return palabras;
}

/// The shortest of several times.
double tiempoDe(const std::vector<std::string>& orden, int veces) {
    double tiempo = gastoDe(orden).milisegundos;
    for (int i = 1; i < veces; ++i)
        tiempo = std::min(tiempo, gastoDe(orden).milisegundos);
    return tiempo;
}

void medir() {
    const QTemporaryDir carpeta;
    const auto ruta = [&](const char* nombre) { return carpeta.filePath(nombre).toStdString(); };
    gastoDe(cosa({"guardar", ruta("medida.bqr"), ruta("medida.dxf")}));

    const double suelo = tiempoDe(cosa({"botones"}), 21);
    const double arranque = tiempoDe(cosa({"programa"}), 21);
    std::printf("start to first window: %.1f ms, a window with sixty buttons %.1f: %.2f times (target 1.6)\n",
                arranque, suelo, arranque / suelo);

    const double vacia = gastoDe(cosa({"programa"})).mebibytes;
    const double llena = gastoDe(cosa({"programa", ruta("medida.bqr")})).mebibytes;
    std::printf("peak memory: %.0f MiB with %d elements open, %.0f with none: %.0f more (target 90)\n", llena,
                elementos, vacia, llena - vacia);

    const auto propia = cosa({"programa", ruta("medida.bqr"), ruta("medida.bmp")});
    std::printf("file to bitmap, whole process: %.0f ms", tiempoDe(propia, 5));
    if (!QStandardPaths::findExecutable(conversor).isEmpty())
        std::printf(", the same strokes by a converter of another program %.0f",
                    tiempoDe({conversor, "dxf2pdf", "-o", ruta("medida.pdf"), ruta("medida.dxf")}, 3));
    std::printf("\n");
}

}  // namespace

}  // namespace bosquel::bench

int main(int argc, char* argv[]) {
    using namespace bosquel::bench;
    const std::vector<std::string> palabras(argv + 1, argv + argc);
    if (palabras.empty()) {
        medir();
        return 0;
    }
    const QApplication aplicacion(argc, argv);
    if (palabras.front() == "botones") {
        abrirBotones();
    } else if (palabras.front() == "guardar") {
        guardarDibujo(palabras.at(1), palabras.at(2));
    } else {
        Programa programa;
        if (palabras.size() > 1) programa.abrir(palabras.at(1));
        if (palabras.size() > 2) programa.enviar(palabras.at(2));
    }
}
