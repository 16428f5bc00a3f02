#include "apoyo/banco.h"
#include "apoyo/prueba_colores.h"
#include "appearance/colores.h"
#include "furnishing/dibujar_elemento.h"
#include "surface/grabadora.h"

#include <functional>
#include <type_traits>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

template <class T>
Color& lineaDe(T& elemento) {
    if constexpr (std::is_same_v<T, TextoLibre>)
        return elemento.ForeColor;
    else
        return elemento.LineColor;
}

/// A drawing with items 0, 1, 3 and 7 of every kind, 7 beyond the counter, and all of one colour.
void llenar(Dibujo& dibujo, Color color) {
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
            auto& modelo = coleccion.modelo();
            lineaDe(modelo) = color;
            if constexpr (requires { modelo.BackColor; }) modelo.BackColor = color;
            for (const int indice : {1, 2, 3, 7})
                coleccion.crear(indice);
            coleccion.quitar(2);
            coleccion.contador = 4;
        });
}

/// The kinds of which all items have this line colour; a kind whose items differ fails the test.
std::vector<Clase> conLinea(Dibujo& dibujo, Color color) {
    std::vector<Clase> halladas;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
            const bool modelo = lineaDe(coleccion.modelo()) == color;
            coleccion.recorrer([&](int indice, auto& elemento) {
                EXPECT_EQ(lineaDe(elemento) == color, modelo) << fila.nombre << indice;
            });
            if (modelo) halladas.push_back(fila.clase);
        });
    return halladas;
}

/// The same of fills.
std::vector<Clase> conFondo(Dibujo& dibujo, Color color) {
    std::vector<Clase> halladas;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
            if constexpr (requires { coleccion.modelo().BackColor; }) {
                const bool modelo = coleccion.modelo().BackColor == color;
                coleccion.recorrer([&](int indice, auto& elemento) {
                    EXPECT_EQ(elemento.BackColor == color, modelo) << fila.nombre << indice;
                });
                if (modelo) halladas.push_back(fila.clase);
            }
        });
    return halladas;
}

std::vector<Clase> ordenadas(std::span<const Clase> clases) {
    std::vector<Clase> copia(clases.begin(), clases.end());
    std::sort(copia.begin(), copia.end());
    return copia;
}

constexpr Color gris = 0x808080;

struct ColoresAplicar : PruebaColores {
    ColoresAplicar() {
        llenar(dibujo, gris);
        dibujo.Esquema = "Colores Personalizados";
        dibujo.sucia.vaciar();
    }
};

}  // namespace

TEST_F(ColoresAplicar, CadaTipoPintaSuColeccionConSuModelo) {
    for (std::size_t tipo = 0; tipo < 18; ++tipo) {
        llenar(dibujo, gris);
        Colores dialogo = abrir();
        dialogo.cmdLineColor(tipo, rojo);
        dialogo.AplicarColores();
        EXPECT_EQ(conLinea(dibujo, rojo), std::vector{tiposColor[tipo].clase}) << tiposColor[tipo].rotulo;
        EXPECT_EQ(conFondo(dibujo, colorFondoVentana),
                  tipo < 12 ? std::vector{tiposColor[tipo].clase} : std::vector<Clase>{});
    }
}

TEST_F(ColoresAplicar, CadaTipoConFondoPintaElSuyo) {
    for (std::size_t tipo = 0; tipo < 12; ++tipo) {
        llenar(dibujo, gris);
        Colores dialogo = abrir();
        dialogo.cmdBackColor(tipo, azul);
        dialogo.AplicarColores();
        EXPECT_EQ(conFondo(dibujo, azul), std::vector{tiposColor[tipo].clase}) << tiposColor[tipo].rotulo;
        EXPECT_EQ(conLinea(dibujo, colorTextoVentana), std::vector{tiposColor[tipo].clase});
    }
}

TEST_F(ColoresAplicar, CadaCategoriaPintaSusColeccionesConSusModelos) {
    for (std::size_t categoria = 3; categoria < 8; ++categoria) {
        llenar(dibujo, gris);
        Colores dialogo = abrir();
        dialogo.cmdLineCatColor(categoria, verde);
        dialogo.AplicarColores();
        EXPECT_EQ(conLinea(dibujo, verde), ordenadas(categoriasColor[categoria].clases))
            << categoriasColor[categoria].rotulo;
        EXPECT_EQ(conFondo(dibujo, gris).size(), 13U) << "no category of its own has a fill";
    }
}

TEST_F(ColoresAplicar, UnaCategoriaDeMueblesPintaPorSusTipos) {
    Colores dialogo = abrir();
    dialogo.cmdLineCatColor(0, rojo);
    dialogo.cmdBackCatColor(0, azul);
    dialogo.chkColores[1] = false;
    dialogo.AplicarColores();
    EXPECT_EQ(conLinea(dibujo, rojo), (std::vector{Clase::MblMesa, Clase::MblCama90, Clase::MblCama130,
                                                   Clase::MblArmario, Clase::MblAsiento}));
    EXPECT_EQ(conFondo(dibujo, azul), conLinea(dibujo, rojo));
}

TEST_F(ColoresAplicar, LaCasillaDeUnaCategoriaDeMueblesSolaNoPintaNada) {
    Colores dialogo = abrir();
    for (const std::size_t categoria : {0U, 1U, 2U})
        dialogo.chkCatColor[categoria] = true;
    dialogo.AplicarColores();
    EXPECT_EQ(conLinea(dibujo, gris).size(), numeroDeClases);
}

TEST_F(ColoresAplicar, SinCasillasNoPintaNada) {
    Colores dialogo = abrir();
    dialogo.cmdLineCatColor(1, rojo);
    dialogo.cmdLineCatColor(4, rojo);
    dialogo.chkColores.fill(false);
    dialogo.chkCatColor.fill(false);
    dialogo.AplicarColores();
    EXPECT_EQ(conLinea(dibujo, gris).size(), numeroDeClases);
    EXPECT_EQ(conFondo(dibujo, gris).size(), 13U);
}

TEST_F(ColoresAplicar, UnaCasillaMarcadaAManoPintaLaConstante) {
    Colores dialogo = abrir();
    dialogo.chkColores[0] = true;
    dialogo.chkCatColor[5] = true;
    dialogo.AplicarColores();
    EXPECT_EQ(conLinea(dibujo, colorTextoVentana), (std::vector{Clase::MblMesa, Clase::TextoLibre}));
    EXPECT_EQ(conFondo(dibujo, colorFondoVentana), std::vector{Clase::MblMesa});
}

TEST_F(ColoresAplicar, BlancoYNegroLoDevuelveTodo) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(0);
    dialogo.AplicarColores();
    EXPECT_EQ(conLinea(dibujo, colorTextoVentana).size(), numeroDeClases);
    EXPECT_EQ(conFondo(dibujo, colorFondoVentana).size(), 12U);
    EXPECT_EQ(conFondo(dibujo, gris), std::vector{Clase::Electrico}) << "a symbol's fill is of no type";
    EXPECT_EQ(dibujo.Esquema, "Blanco y Negro");
    EXPECT_EQ(dibujo.Perfil, "");
}

TEST_F(ColoresAplicar, LosHuecosSiguenSiendoHuecos) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(0);
    dialogo.AplicarColores();
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
            EXPECT_FALSE(coleccion.existe(2)) << fila.nombre;
            EXPECT_EQ(coleccion.ultimo(), 7) << fila.nombre;
            EXPECT_EQ(coleccion.contador, 4) << fila.nombre;
        });
}

TEST_F(ColoresAplicar, GuardaElEsquemaYElPerfil) {
    ponFichero("[Carga]\r\nNumeroPerfiles=1\r\nPerfil1=Playa\r\n[PerfilesVarios]\r\nPlaya=1#2#3#4#5\r\n");
    Colores dialogo = abrir();
    dialogo.AplicarColores();
    EXPECT_EQ(dibujo.Esquema, "Colores Personalizados");
    dialogo.elegirEsquema(2);
    dialogo.SeleccionarPerfil("Playa");
    EXPECT_EQ(dibujo.Esquema, "Colores Personalizados") << "nothing is kept before it is applied";
    dialogo.AplicarColores();
    EXPECT_EQ(dibujo.Esquema, "Perfil Predefinido");
    EXPECT_EQ(dibujo.Perfil, "Playa");
    EXPECT_EQ(conLinea(dibujo, 2), std::vector{Clase::Pared});
    dialogo.cmdLineColor(0, rojo);
    dialogo.AplicarColores();
    EXPECT_EQ(dibujo.Esquema, "Perfil Predefinido");
    EXPECT_EQ(dibujo.Perfil, "") << "a hand change leaves the profile";
    dialogo.escribirPerfil("de oídas");
    dialogo.AplicarColores();
    EXPECT_EQ(dibujo.Perfil, "de oídas") << "whatever the box says";
}

TEST_F(ColoresAplicar, TodaLaHojaSePintaDeNuevo) {
    Colores dialogo = abrir();
    EXPECT_TRUE(dibujo.sucia.limpia());
    dialogo.AplicarColores();
    EXPECT_TRUE(dibujo.sucia.todo());
}

TEST_F(ColoresAplicar, LosNuevosNacenConElColorDelModelo) {
    Colores dialogo = abrir();
    dialogo.cmdLineColor(0, rojo);
    dialogo.cmdBackColor(0, azul);
    dialogo.AplicarColores();
    const MblMesa& mesa = dibujo.MblMesa.crear(9);
    EXPECT_EQ(mesa.LineColor, rojo);
    EXPECT_EQ(mesa.BackColor, azul);
}
