#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"
#include "persistence/campos.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace bosquel;
using apoyo::Banco;
using apoyo::bytesDe;
using apoyo::enLineas;
using apoyo::Idioma;
using apoyo::trasAbrir;

namespace {

const std::filesystem::path raiz = std::filesystem::path(BOSQUEL_SRC).parent_path();

void abrir(Banco& banco, const std::string& texto) {
    banco.pon("ejemplo.bqr", texto);
    banco.abre("ejemplo.bqr");
}

/// The one thing in the examples that is written in the words of the locale.
apoyo::Lineas conBarandasDelIdioma(apoyo::Lineas lineas) {
    for (std::string& linea : lineas)
        if (linea.starts_with("RailingSide"))
            linea.replace(linea.find('=') + 1, std::string::npos,
                          BooleanoDelIdioma::texto(linea.ends_with("Verdadero") || linea.ends_with("True")));
    return lineas;
}

template <class T>
int cuantosSeVen(const Coleccion<T>& coleccion) {
    int total = 0;
    coleccion.recorrer([&](int, const T& elemento) {
        if constexpr (requires { elemento.lineas; })
            total += elemento.lineas[0].Visible ? 1 : 0;
        else
            total += elemento.Visible ? 1 : 0;
    });
    return total;
}

}  // namespace

TEST(Ejemplos, VuelvenComoEstabanBajoCualquierIdioma) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        for (const char* ejemplo : {"piso.bqr", "piso-amueblado.bqr"}) {
            Banco banco;
            abrir(banco, bytesDe(raiz / "ejemplos" / ejemplo));
            banco.guarda("otra.bqr");
            EXPECT_EQ(banco.bytes("otra.bqr"),
                      enLineas(trasAbrir(conBarandasDelIdioma(banco.lineas("ejemplo.bqr")))))
                << ejemplo;
        }
    }
}

TEST(Ejemplos, ConHuecosYTextosDificilesVuelvenByteAByte) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        Banco banco;
        abrir(banco, bytesDe(raiz / "ejemplos" / "piso-amueblado.bqr"));
        Dibujo& dibujo = banco.dibujo();
        // Twice as many of each kind, of which the first goes; and a stretch of indices that nobody has.
        for (const DatosClase& fila : todasLasClases())
            conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
                auto copia = *coleccion.en(coleccion.ultimo());
                coleccion.quitar(1);
                avanzar(coleccion.contador);
                avanzar(coleccion.contador);
                coleccion.crear(coleccion.contador) = copia;
                avanzar(coleccion.contador);
            });
        dibujo.Electrico.en(dibujo.Electrico.ultimo())->Angle = -22.5;
        dibujo.MblMesa.modelo().MesaDimX = 1234.5;
        dibujo.MblFregadero.modelo().Escurridor = 0;
        dibujo.TextoLibre.en(dibujo.TextoLibre.ultimo())->Text = "\"entre comillas\"";
        dibujo.TextoLibre.crear(dibujo.TextoLibre.contador).Text = std::string(300, 'x');
        avanzar(dibujo.TextoLibre.contador);
        banco.guarda("uno.bqr");
        for (const auto& [antes, despues] : {std::pair{"uno.bqr", "dos.bqr"}, {"dos.bqr", "tres.bqr"}}) {
            banco.abre(antes);
            banco.guarda(despues);
            EXPECT_EQ(banco.bytes(despues), enLineas(trasAbrir(banco.lineas(antes))));
        }
        EXPECT_EQ(apoyo::cabezas(banco.lineas("tres.bqr")).size(),
                  apoyo::cabezas(banco.lineas("dos.bqr")).size() + 1)
            << "one hidden symbol more";
    }
}

TEST(Ejemplos, ElPisoAmuebladoTieneDeTodo) {
    Banco banco;
    abrir(banco, bytesDe(raiz / "ejemplos" / "piso-amueblado.bqr"));
    for (const DatosClase& fila : todasLasClases())
        EXPECT_GT(conColeccion(banco.dibujo(), fila.clase, [](const auto& una) { return cuantosSeVen(una); }),
                  0)
            << fila.nombre;
}

TEST(Ejemplos, ElDelDocumentoEsLoQueDice) {
    const std::string documento = bytesDe(raiz / "docs" / "formato-bqr.md");
    const std::string marca = "```ini\n";
    const auto desde = documento.find(marca) + marca.size();
    Banco banco;
    abrir(banco, documento.substr(desde, documento.find("```", desde) - desde));
    EXPECT_EQ(cuantosSeVen(banco.dibujo().MblMesa), 1);
    EXPECT_EQ(cuantosSeVen(banco.dibujo().Pared), 2);
    EXPECT_EQ(cuantosSeVen(banco.dibujo().Puerta), 1);
    EXPECT_EQ(banco.dibujo().Puerta.en(1)->NumeroPared, 1);
    EXPECT_EQ(banco.pared(1).esMuro(), true);
    EXPECT_EQ(banco.hoja().Width, 6000.0F);
}
