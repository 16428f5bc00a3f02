#include "appearance/perfiles_color.h"
#include "appearance/tablas_color.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace bosquel;

TEST(ColoresTablas, LosEsquemas) {
    struct Fila {
        const char *rotulo, *nombre;
        bool perfiles, solapas, marcar;
    };
    constexpr std::array<Fila, 3> filas{
        {{"Blanco y Negro (Predeterminado)", "Blanco y Negro", false, false, true},
         {"Colores personalizados", "Colores Personalizados", false, true, false},
         {"Perfiles Guardados", "Perfil Predefinido", true, true, false}}};
    for (std::size_t i = 0; i < filas.size(); ++i) {
        EXPECT_EQ(esquemasColor[i].rotulo, filas[i].rotulo);
        EXPECT_EQ(esquemasColor[i].nombre, filas[i].nombre);
        EXPECT_EQ(esquemasColor[i].conPerfiles, filas[i].perfiles) << i;
        EXPECT_EQ(esquemasColor[i].conSolapas, filas[i].solapas) << i;
        EXPECT_EQ(esquemasColor[i].marcar, filas[i].marcar) << i;
    }
}

TEST(ColoresTablas, LasSolapasYSusNotas) {
    constexpr std::array<std::array<const char*, 2>, 4> filas{
        {{"Categoría",
          "Marque colores en esta solapa para cambiar el color de todos los elementos "
          "pertenecientes a las categorías seleccionadas"},
         {"Muebles",
          "Marque colores en esta solapa para cambiar el color de todos los muebles del mismo tipo."},
         {"Cocina",
          "Marque colores en esta solapa para cambiar el color de todos los aparatos de cocina del "
          "mismo tipo."},
         {"Sanitarios",
          "Marque colores en esta solapa para cambiar el color de todos los aparatos de baño o "
          "sanitarios del mismo tipo."}}};
    for (std::size_t i = 0; i < filas.size(); ++i) {
        EXPECT_EQ(solapasColor[i].rotulo, filas[i][0]);
        EXPECT_EQ(solapasColor[i].nota, filas[i][1]);
    }
}

TEST(ColoresTablas, LosDieciochoTipos) {
    struct Fila {
        const char *rotulo, *coleccion, *solapa;
        bool fondo;
    };
    constexpr std::array<Fila, 18> filas{{{"Mesas", "MblMesa", "Muebles", true},
                                          {"Sillas", "MblSilla", "Muebles", true},
                                          {"Asientos", "MblAsiento", "Muebles", true},
                                          {"Armarios", "MblArmario", "Muebles", true},
                                          {"Cama 90", "MblCama90", "Muebles", true},
                                          {"Cama 130", "MblCama130", "Muebles", true},
                                          {"Nevera", "MblNevera", "Cocina", true},
                                          {"Cocina", "MblCocina", "Cocina", true},
                                          {"Fregadero", "MblFregadero", "Cocina", true},
                                          {"Lavadora", "MblLavadora", "Cocina", true},
                                          {"Lavadero", "MblLavadero", "Cocina", true},
                                          {"Vertedero", "MblVertedero", "Cocina", true},
                                          {"Inodoro", "MblInodoro", "Sanitarios", false},
                                          {"Bidet", "MblBidet", "Sanitarios", false},
                                          {"Lavabo", "MblLavabo", "Sanitarios", false},
                                          {"Bañera", "MblBañera", "Sanitarios", false},
                                          {"Ducha", "MblDucha", "Sanitarios", false},
                                          {"Urinario", "MblUrinario", "Sanitarios", false}}};
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const TipoColor& tipo = tiposColor[i];
        EXPECT_EQ(tipo.rotulo, filas[i].rotulo);
        EXPECT_EQ(datos(tipo.clase).nombre, filas[i].coleccion);
        EXPECT_EQ(solapasColor[static_cast<std::size_t>(tipo.solapa)].rotulo, filas[i].solapa);
        EXPECT_EQ(tipo.conFondo, filas[i].fondo) << tipo.rotulo;
        EXPECT_EQ(tipo.conFondo, i < tiposConFondo) << tipo.rotulo;
    }
}

TEST(ColoresTablas, LasOchoCategorias) {
    struct Fila {
        const char *rotulo, *solapa;
        std::vector<std::string_view> clases;
        bool fondo;
    };
    const std::array<Fila, 8> filas{{{"Muebles", "Muebles", {}, true},
                                     {"Cocina", "Cocina", {}, true},
                                     {"Sanitarios", "Sanitarios", {}, false},
                                     {"Carpintería", "", {"Puerta", "Ventana"}, false},
                                     {"Paredes", "", {"Pared"}, false},
                                     {"Textos", "", {"TextoLibre"}, false},
                                     {"Escaleras", "", {"Escalera"}, false},
                                     {"Electricidad", "", {"Electrico"}, false}}};
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const CategoriaColor& categoria = categoriasColor[i];
        EXPECT_EQ(categoria.rotulo, filas[i].rotulo);
        EXPECT_EQ(categoria.solapa ? solapasColor[static_cast<std::size_t>(*categoria.solapa)].rotulo : "",
                  filas[i].solapa);
        std::vector<std::string_view> clases;
        for (const Clase clase : categoria.clases)
            clases.push_back(datos(clase).nombre);
        EXPECT_EQ(clases, filas[i].clases) << categoria.rotulo;
        EXPECT_EQ(categoria.conFondo, filas[i].fondo) << categoria.rotulo;
        EXPECT_EQ(categoria.conFondo, i < categoriasConFondo) << categoria.rotulo;
        EXPECT_EQ(categoria.clases.empty(), i < primeraCategoriaDelPerfil) << categoria.rotulo;
    }
}

TEST(ColoresTablas, LasConstantesDeCadaLista) {
    EXPECT_EQ(constanteDe(ListaColor::Varios), "-2147483640#-2147483640#-2147483640#-2147483640#-2147483640");
    EXPECT_EQ(constanteDe(ListaColor::Lineas),
              "-2147483640#-2147483640#-2147483640#-2147483640#-2147483640#-2147483640#-2147483640#"
              "-2147483640#-2147483640#-2147483640#-2147483640#-2147483640#-2147483640#-2147483640#"
              "-2147483640#-2147483640#-2147483640#-2147483640");
    EXPECT_EQ(constanteDe(ListaColor::Fondos),
              "-2147483643#-2147483643#-2147483643#-2147483643#-2147483643#-2147483643#-2147483643#"
              "-2147483643#-2147483643#-2147483643#-2147483643#-2147483643");
    EXPECT_EQ(datos(ListaColor::Varios).seccion, "PerfilesVarios");
    EXPECT_EQ(datos(ListaColor::Lineas).seccion, "PerfilesLineas");
    EXPECT_EQ(datos(ListaColor::Fondos).seccion, "PerfilesFondos");
}

TEST(ColoresTablas, LosDosColoresDelSistemaSonNegroYBlanco) {
    EXPECT_EQ(rgb(-2147483640), 0x000000);
    EXPECT_EQ(rgb(-2147483643), 0xFFFFFF);
    EXPECT_EQ(rgb(0x0000FF), rojo);
}

TEST(ColoresTablas, UnaListaSeParteEnSusElementos) {
    using Partes = std::vector<std::string_view>;
    EXPECT_EQ(partirColores("1#-2#3"), (Partes{"1", "-2", "3"}));
    EXPECT_EQ(partirColores("1##3#"), (Partes{"1", "", "3", ""}));
    EXPECT_EQ(partirColores("***"), (Partes{"***"}));
}
