#include "apoyo/invariantes.h"

#include "drawing/sesion.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "output/escala.h"
#include "surface/superficie_salida.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace bosquel::apoyo {

namespace {

void finitos(std::initializer_list<double> valores) {
    for (const double valor : valores)
        EXPECT_TRUE(std::isfinite(valor)) << valor;
}

void comprobar(const Segmento& s) {
    finitos({s.X1, s.Y1, s.X2, s.Y2});
}

void comprobar(const Recuadro& r) {
    finitos({r.Left, r.Top, r.Width, r.Height});
}

/// Whatever an element has of the fields that more than one kind has.
template <class T>
void comprobarElemento(const Dibujo& dibujo, const T& e) {
    const auto enOrden = [&](std::int32_t orden) {
        EXPECT_GE(orden, dibujo.ordenFondo);
        EXPECT_LE(orden, dibujo.ordenFrente);
    };
    if constexpr (requires { e.Left; }) finitos({e.Left, e.Top});
    if constexpr (requires { e.orden; }) enOrden(e.orden);
    if constexpr (requires { e.FactorZOOM; }) finitos({e.FactorZOOM});
    if constexpr (requires { e.Width; }) finitos({e.Width, e.Height, e.FontSize});
    if constexpr (requires { e.InicialX; })
        finitos(
            {e.InicialX, e.InicialY, e.Linea1X2, e.Linea1Y2, e.Linea3X1, e.Linea3Y1, e.Linea3X2, e.Linea3Y2});
    if constexpr (requires { e.AnchoTabique; }) finitos({e.AnchoTabique, e.AnchoMuro});
    if constexpr (requires { e.Longitud; }) finitos({e.Longitud});
    if constexpr (requires { e.Distancia; }) finitos({e.Distancia});
    if constexpr (requires { e.lineas; })
        for (const Segmento& linea : e.lineas)
            comprobar(linea);
    if constexpr (requires { e.pinzas(); })
        for (const Pinza* pinza : e.pinzas()) {
            comprobar(pinza->recuadro());
            enOrden(pinza->orden);
        }
}

/// A stair's counter is the last index given, any other's the next.
template <class T>
void comprobarContador(const DatosClase& fila, const Coleccion<T>& coleccion) {
    const int ultimo = coleccion.ultimo();
    EXPECT_TRUE(ultimo == 0 || ultimo <= coleccion.contador - (fila.clase == Clase::Escalera ? 0 : 1))
        << ultimo << ' ' << coleccion.contador;
}

bool existe(const Dibujo& dibujo, Referencia cual) {
    return conColeccion(dibujo, cual.clase, [&](const auto& coleccion) {
        return cual.indice > 0 && coleccion.existe(cual.indice);
    });
}

/// Between two events nothing is half-way.
void comprobarReposo(const Sesion& sesion) {
    const Dibujo& dibujo = sesion.dibujo;
    EXPECT_FALSE(sesion.GuardandoAuto);
    EXPECT_FALSE(sesion.EjecutandoZoom);
    EXPECT_FALSE(sesion.vistaSucia);
    EXPECT_EQ(dibujo.GrupoEnMovimiento, 0);
    EXPECT_TRUE(dibujo.cambiados.empty());
    EXPECT_FALSE(dibujo.todoCambiado);
    EXPECT_TRUE(dibujo.sucia.limpia());
    EXPECT_TRUE(dibujo.paso.limpia());
}

void comprobarReferencias(const Sesion& sesion) {
    const Dibujo& dibujo = sesion.dibujo;
    if (sesion.foco) {
        EXPECT_TRUE(existe(dibujo, *sesion.foco)) << datos(sesion.foco->clase).nombre;
        EXPECT_TRUE(sesion.RectSel.Visible) << "what has the focus shows it";
    }
    EXPECT_GE(dibujo.IndiceActual, 0);
    // What is carried is told by index: a wall that was removed on the way is passed over at the end.
    dibujo.Pared.recorrer([&](int i, const Pared& pared) {
        const auto& llevadas = sesion.paredesEnMovimiento;
        const bool llevada = std::any_of(llevadas.begin(), llevadas.end(),
                                         [i](const ParedEnMovimiento& una) { return una.indice == i; });
        EXPECT_EQ(pared.EnMovimiento, llevada) << i;
    });
}

void comprobarVista(const Sesion& sesion) {
    const Dibujo& dibujo = sesion.dibujo;
    finitos({dibujo.Hoja.Left, dibujo.Hoja.Top, dibujo.Hoja.Width, dibujo.Hoja.Height});
    finitos({dibujo.FactorZoomActual, dibujo.RelacionZoom, dibujo.Cuadricula, dibujo.DistParalela});
    finitos({dibujo.PuntoUnionX, dibujo.PuntoUnionY, sesion.regla.FactorZoom});
    finitos({sesion.regla.Left, sesion.regla.Top, sesion.regla.Width, sesion.regla.Height});
    comprobar(sesion.Vector);
    comprobar(sesion.RectSel.recuadro);
    for (const Barra* barra : {&sesion.HScroll1, &sesion.VScroll1}) {
        EXPECT_GE(barra->valor, 0);
        EXPECT_LE(barra->valor, Barra::maximo);
    }
}

/// A surface that wants finite numbers: what is drawn is drawn on paper and on a screen.
class Vigia : public SuperficieSalida {
  public:
    void FillStyle(Relleno) override {}
    void FillColor(Color) override {}
    void CurrentX(double x) override { finitos({x}); }
    void CurrentY(double y) override { finitos({y}); }
    void FontSize(float puntos) override { finitos({puntos}); }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color) override {
        finitos({x1, y1, x2, y2});
    }
    void trazarCaja(double x1, double y1, double x2, double y2, Color) override { finitos({x1, y1, x2, y2}); }
    void trazarCurva(const Curva& c, Color) override { finitos({c.x, c.y, c.radio, c.ejeX(), c.ejeY()}); }
};

std::vector<Referencia> enOrden(std::vector<Referencia> lista) {
    std::sort(lista.begin(), lista.end(), [](const Referencia& a, const Referencia& b) {
        return a.clase != b.clase ? a.clase < b.clase : a.indice < b.indice;
    });
    return lista;
}

std::vector<Referencia> enPunto(const Mapa& mapa, double x, double y) {
    std::vector<Referencia> lista;
    mapa.enPunto(x, y, [&](Referencia cual) { lista.push_back(cual); });
    return enOrden(lista);
}

}  // namespace

void comprobar(const Sesion& sesion) {
    const Dibujo& dibujo = sesion.dibujo;
    comprobarReposo(sesion);
    comprobarReferencias(sesion);
    comprobarVista(sesion);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            SCOPED_TRACE(fila.nombre);
            comprobarContador(fila, coleccion);
            coleccion.recorrer(0, coleccion.ultimo(), [&](int indice, const auto& elemento) {
                SCOPED_TRACE(indice);
                comprobarElemento(dibujo, elemento);
                if (indice == 0) return;
                if (const auto caja = recuadroDe(dibujo, fila.clase, indice)) comprobar(*caja);
                if (const auto todo = extensionDe(dibujo, fila.clase, indice)) comprobar(*todo);
            });
        });
}

void comprobarTrazos(const Sesion& sesion) {
    Vigia vigia;
    DibujarTodo(salidaDe(sesion.dibujo, vigia, EscalaSalida), sesion.dibujo);
}

void comprobarMapa(const Sesion& sesion, double x, double y) {
    Dibujo copia = sesion.dibujo;
    anunciarTodo(copia);
    Mapa nuevo;
    nuevo.ponerAlDia(copia);
    const Recuadro todo{-1e30, -1e30, 2e30, 2e30}, sitio{x - 50, y - 50, 100, 100};
    EXPECT_EQ(enOrden(sesion.mapa.enZona(todo)), enOrden(nuevo.enZona(todo)));
    EXPECT_EQ(enOrden(sesion.mapa.enZona(sitio)), enOrden(nuevo.enZona(sitio))) << x << ' ' << y;
    EXPECT_EQ(enPunto(sesion.mapa, x, y), enPunto(nuevo, x, y)) << x << ' ' << y;
}

}  // namespace bosquel::apoyo
