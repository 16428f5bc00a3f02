#include "model/clases.h"

#include "drawing/paletas.h"
#include "model/dibujo.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace bosquel;

namespace {

struct Fila {
    Clase clase;
    std::string_view nombre, seccion, contador, rotulo, dialogo;
    DobleClic dobleClic;
};

constexpr auto enElActo = DobleClic::enElActo, diferido = DobleClic::diferido, enFlecha = DobleClic::enFlecha;

const std::vector<Fila> filas{
    {Clase::MblMesa, "MblMesa", "Mesa", "NumMesa", "Mesa", "MesaProp", diferido},
    {Clase::MblSilla, "MblSilla", "Silla", "NumSilla", "Silla", "SillaProp", diferido},
    {Clase::MblCama90, "MblCama90", "Cama90", "NumCama90", "Cama 90", "Cama90Prop", enElActo},
    {Clase::MblCama130, "MblCama130", "Cama130", "NumCama130", "Cama M", "Cama130Prop", enElActo},
    {Clase::MblArmario, "MblArmario", "Armario", "NumArmario", "Armario", "ArmarioProp", enElActo},
    {Clase::MblAsiento, "MblAsiento", "Asiento", "NumAsiento", "Asiento", "AsientoProp", diferido},
    {Clase::MblInodoro, "MblInodoro", "Inodoro", "NumInodoro", "Inodoro", "InodoroProp", enElActo},
    {Clase::MblLavabo, "MblLavabo", "Lavabo", "NumLavabo", "Lavabo", "LavaboProp", enElActo},
    {Clase::MblBidet, "MblBidet", "Bidet", "NumBidet", "Bidet", "BidetProp", enElActo},
    {Clase::MblBañera, "MblBañera", "Bañera", "NumBañera", "Bañera", "BañeraProp", enElActo},
    {Clase::MblDucha, "MblDucha", "Ducha", "NumDucha", "Ducha", "DuchaProp", enElActo},
    {Clase::MblUrinario, "MblUrinario", "Urinario", "NumUrinario", "Urinario", "UrinarioProp", enElActo},
    {Clase::MblCocina, "MblCocina", "Cocina", "NumCocina", "Cocina", "CocinaProp", enElActo},
    {Clase::MblNevera, "MblNevera", "Nevera", "NumNevera", "Nevera", "NeveraProp", enElActo},
    {Clase::MblFregadero, "MblFregadero", "Fregadero", "NumFregadero", "Fregad.", "FregaderoProp", enElActo},
    {Clase::MblLavadora, "MblLavadora", "Lavadora", "NumLavadora", "Lavado.", "LavadoraProp", enElActo},
    {Clase::MblLavadero, "MblLavadero", "Lavadero", "NumLavadero", "Lavade.", "LavaderoProp", enElActo},
    {Clase::MblVertedero, "MblVertedero", "Vertedero", "NumVertedero", "Vertede.", "VertederoProp", enElActo},
    {Clase::Pared, "Pared", "Pared", "NumPared", "Muro", "ParedProp", enFlecha},
    {Clase::Ventana, "Ventana", "Ventana", "NumVentana", "Ventana", "VentanaProp", enFlecha},
    {Clase::Puerta, "Puerta", "Puerta", "NumPuerta", "Puerta", "PuertaProp", enFlecha},
    {Clase::TextoLibre, "TextoLibre", "TextoLibre", "NumTexto", "Texto", "", DobleClic::nada},
    {Clase::Escalera, "Escalera", "Escalera", "NumEscalera", "Escalera", "EscaleraProp", enFlecha},
    {Clase::Electrico, "Electrico", "Electrico", "NumElectrico", "Luz", "ElectricoProp", diferido},
};

std::string_view rotuloDelBoton(const DatosClase& fila) {
    const auto boton = static_cast<std::size_t>(fila.boton);
    switch (fila.grupo) {
        case Grupo::BttMueble: return BttMueble.at(boton);
        case Grupo::BttBaño: return BttBaño.at(boton);
        case Grupo::BttCocina: return BttCocina.at(boton);
        case Grupo::BttUsuario: return BttUsuario.at(boton);
        case Grupo::BttElectrico: return BttElectrico.at(boton);
        case Grupo::BttTipo: return BttTipo.at(boton);
    }
    return {};
}

}  // namespace

TEST(Clases, CadaUnaTieneSuNombreSuContadorSuBotonYSuDialogo) {
    ASSERT_EQ(filas.size(), numeroDeClases);
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const Fila& fila = filas[i];
        const DatosClase& hay = datos(fila.clase);
        EXPECT_EQ(&hay, &todasLasClases()[i]) << fila.nombre;
        EXPECT_EQ(hay.clase, fila.clase) << fila.nombre;
        EXPECT_EQ(hay.nombre, fila.nombre);
        EXPECT_EQ(hay.seccion, fila.seccion) << fila.nombre;
        EXPECT_EQ(hay.contador, fila.contador) << fila.nombre;
        EXPECT_EQ(rotuloDelBoton(hay), fila.rotulo) << fila.nombre;
        EXPECT_EQ(hay.dialogo, fila.dialogo) << fila.nombre;
        EXPECT_EQ(hay.dobleClic, fila.dobleClic) << fila.nombre;
    }
}

TEST(Clases, LosPasosDelZoomEmpiezanEnElModeloSalvoEnParedesYAberturas) {
    for (const DatosClase& fila : todasLasClases()) {
        const bool enPared =
            fila.clase == Clase::Pared || fila.clase == Clase::Ventana || fila.clase == Clase::Puerta;
        EXPECT_EQ(fila.desdeZoom, enPared ? 1 : 0) << fila.nombre;
        EXPECT_EQ(fila.zoomConContador, fila.clase == Clase::Escalera) << fila.nombre;
        EXPECT_EQ(fila.dibujarConContador, fila.clase == Clase::TextoLibre || fila.clase == Clase::Escalera)
            << fila.nombre;
        EXPECT_EQ(fila.eliminarConContador, fila.clase == Clase::Escalera || fila.clase == Clase::Electrico)
            << fila.nombre;
    }
}

TEST(Clases, LasAberturasSeEliminanAntesQueSusParedes) {
    std::vector<Clase> esperado;
    for (const Fila& fila : filas)
        if (fila.clase != Clase::Pared) esperado.push_back(fila.clase);
    esperado.insert(std::find(esperado.begin(), esperado.end(), Clase::TextoLibre), Clase::Pared);
    EXPECT_EQ(std::vector(ordenDeEliminar().begin(), ordenDeEliminar().end()), esperado);
}

TEST(Clases, ElContadorDelBidetVaAntesYDespuesDelDelLavabo) {
    std::vector<std::string_view> claves;
    for (const Clase clase : ordenDeContadores())
        claves.push_back(datos(clase).contador);
    const std::vector<std::string_view> esperado{
        "NumMesa",      "NumSilla",    "NumCama90",   "NumCama130",   "NumArmario",
        "NumAsiento",   "NumInodoro",  "NumBidet",    "NumLavabo",    "NumBidet",
        "NumBañera",    "NumDucha",    "NumUrinario", "NumCocina",    "NumNevera",
        "NumFregadero", "NumLavadora", "NumLavadero", "NumVertedero", "NumPared",
        "NumVentana",   "NumPuerta",   "NumTexto",    "NumEscalera",  "NumElectrico"};
    EXPECT_EQ(claves, esperado);
}

TEST(Clases, CadaUnaTieneSuColeccionPropia) {
    Dibujo dibujo;
    std::int16_t siguiente = 10;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) { coleccion.contador = siguiente++; });
    siguiente = 10;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            EXPECT_EQ(coleccion.contador, siguiente++) << fila.nombre;
        });
    EXPECT_EQ(dibujo.MblMesa.contador, 10);
    EXPECT_EQ(dibujo.Electrico.contador, 33);
}
