#include "model/coleccion.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using bosquel::Coleccion;

namespace {

using Visitas = std::vector<std::pair<int, std::string>>;

Visitas visitas(Coleccion<std::string>& coleccion, int desde, int hasta) {
    Visitas visitas;
    coleccion.recorrer(desde, hasta,
                       [&](int i, const std::string& texto) { visitas.emplace_back(i, texto); });
    return visitas;
}

}  // namespace

TEST(Coleccion, EmpiezaConElModeloYElContadorEnUno) {
    const Coleccion<std::string> coleccion;
    EXPECT_EQ(coleccion.contador, 1);
    EXPECT_EQ(coleccion.ultimo(), 0);
    EXPECT_TRUE(coleccion.existe(0));
    EXPECT_EQ(coleccion.en(0), &coleccion.modelo());
    for (const int indice : {-32768, -1, 1, 32767})
        EXPECT_EQ(coleccion.en(indice), nullptr) << indice;
}

TEST(Coleccion, LoNuevoEsUnaCopiaDelModelo) {
    Coleccion<std::string> coleccion;
    coleccion.modelo() = "modelo";
    EXPECT_EQ(coleccion.crear(5), "modelo");
    coleccion.en(5)->append(" cambiado");
    EXPECT_EQ(coleccion.modelo(), "modelo");
    EXPECT_EQ(coleccion.ultimo(), 5);
}

TEST(Coleccion, LaSiguienteSaleDelContador) {
    Coleccion<std::string> coleccion;
    for (const int indice : {1, 2}) {
        const std::string* nueva = coleccion.crearSiguiente();
        EXPECT_EQ(nueva, coleccion.en(indice));
    }
    EXPECT_EQ(coleccion.contador, 3);
}

TEST(Coleccion, DondeElContadorEsElUltimoLaSiguienteVaDetras) {
    Coleccion<std::string> coleccion;
    for (const int indice : {2, 3}) {
        const std::string* nueva = coleccion.crearTrasContador();
        EXPECT_EQ(nueva, coleccion.en(indice));
        EXPECT_EQ(coleccion.contador, indice);
    }
    EXPECT_FALSE(coleccion.existe(1));
    for (const auto& [contador, despues] : {std::pair{-5, -4}, {-1, 0}, {32767, 32767}}) {
        coleccion.contador = static_cast<std::int16_t>(contador);
        EXPECT_EQ(coleccion.crearTrasContador(), nullptr);
        EXPECT_EQ(coleccion.contador, despues);
        EXPECT_EQ(coleccion.ultimo(), 3);
    }
}

TEST(Coleccion, UnContadorSinIndiceNoCreaNada) {
    for (const auto& [contador, despues] : {std::pair{-5, -4}, {0, 1}, {32767, 32767}}) {
        Coleccion<std::string> coleccion;
        coleccion.contador = static_cast<std::int16_t>(contador);
        EXPECT_EQ(coleccion.crearSiguiente(), nullptr);
        EXPECT_EQ(coleccion.contador, despues);
        EXPECT_EQ(coleccion.ultimo(), 0);
    }
}

TEST(Coleccion, QuitarDejaUnHuecoYNoTocaElContadorNiElModelo) {
    Coleccion<std::string> coleccion;
    coleccion.crear(1);
    coleccion.crear(2);
    coleccion.contador = 3;
    for (const int indice : {-1, 0, 2, 2, 9})
        coleccion.quitar(indice);
    EXPECT_TRUE(coleccion.existe(0));
    EXPECT_TRUE(coleccion.existe(1));
    EXPECT_FALSE(coleccion.existe(2));
    EXPECT_EQ(coleccion.ultimo(), 1);
    EXPECT_EQ(coleccion.contador, 3);
}

TEST(Coleccion, UnPasoVisitaLoQueHayEnOrdenYCallaLosHuecos) {
    Coleccion<std::string> coleccion;
    coleccion.modelo() = "m";
    for (const int i : {4, 1, 3, 2})
        coleccion.crear(i) = std::to_string(i);
    coleccion.quitar(2);
    EXPECT_EQ(visitas(coleccion, 0, 4), (Visitas{{0, "m"}, {1, "1"}, {3, "3"}, {4, "4"}}));
    EXPECT_EQ(visitas(coleccion, 1, 3), (Visitas{{1, "1"}, {3, "3"}}));
    EXPECT_EQ(visitas(coleccion, -7, 32767).size(), 4U);
    EXPECT_TRUE(visitas(coleccion, 1, -6).empty());
}

TEST(Coleccion, UnPasoPuedeQuitarLoQueVisitaYLoQueViene) {
    Coleccion<std::string> coleccion;
    for (const int i : {1, 2, 3})
        coleccion.crear(i);
    std::vector<int> visitados;
    coleccion.recorrer([&](int i, std::string&) {
        visitados.push_back(i);
        coleccion.quitar(i);
        coleccion.quitar(2);
    });
    EXPECT_EQ(visitados, (std::vector{1, 3}));
    EXPECT_EQ(coleccion.ultimo(), 0);
}

TEST(Coleccion, ElUltimoEsElMayorIndiceQueQueda) {
    Coleccion<std::string> coleccion;
    for (const int i : {2, 5, 9})
        coleccion.crear(i);
    EXPECT_EQ(coleccion.ultimo(), 9);
    coleccion.quitar(5);
    EXPECT_EQ(coleccion.ultimo(), 9);
    coleccion.quitar(9);
    EXPECT_EQ(coleccion.ultimo(), 2);
    coleccion.quitar(2);
    EXPECT_EQ(coleccion.ultimo(), 0);
    coleccion.crear(7) = "otra vez";
    EXPECT_EQ(coleccion.ultimo(), 7);
    EXPECT_FALSE(coleccion.existe(5));
}

TEST(Coleccion, ElPrimeroQueValeNoEsElModelo) {
    Coleccion<std::string> coleccion;
    for (const int i : {1, 3, 4})
        coleccion.crear(i) = std::to_string(i);
    coleccion.modelo() = "4";
    const auto es = [](const char* cual) {
        return [cual](const std::string& texto) { return texto == cual; };
    };
    EXPECT_EQ(coleccion.primero(es("4")), coleccion.en(4));
    EXPECT_EQ(coleccion.primero(es("2")), nullptr);
    coleccion.quitar(1);
    EXPECT_EQ(coleccion.primero([](const std::string&) { return true; }), coleccion.en(3));
}

TEST(Coleccion, LasReferenciasSobrevivenALoQueSeCrea) {
    Coleccion<std::string> coleccion;
    const std::string& primera = coleccion.crear(1);
    for (int i = 2; i < 2000; ++i)
        coleccion.crear(i);
    EXPECT_EQ(&primera, coleccion.en(1));
}
