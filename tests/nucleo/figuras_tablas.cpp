#include "apoyo/muestrario.h"
#include "furnishing/dibujar_elemento.h"
#include "surface/grabadora.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// A line of tests/figuras/laminas.txt: a stroke in plain words, which this file reads and draws in its own
/// way.
struct Renglon {
    std::string clase, codigo, forma;
    std::vector<std::string> cotas;
};

std::vector<Renglon> renglones() {
    std::ifstream archivo(BOSQUEL_FIGURAS "/laminas.txt");
    std::vector<Renglon> todos;
    for (std::string linea; std::getline(archivo, linea);) {
        std::istringstream texto(linea);
        Renglon renglon;
        texto >> renglon.clase >> renglon.codigo >> renglon.forma;
        for (std::string cota; texto >> cota;)
            renglon.cotas.push_back(cota);
        todos.push_back(renglon);
    }
    return todos;
}

struct Caso {
    double X, Y, escala, propia;
    bool enteros;
    Color linea;
};

/// "2000-300-450", "400+10u", "Lado-160", "Lado/2", "M": terms with their signs.
double medida(const std::string& cota, const Caso& caso) {
    double mm = 0;
    double redondas = 0;
    double unidades = 0;
    for (std::size_t i = 0; i < cota.size();) {
        const double signo = cota[i] == '-' ? -1 : 1;
        if (cota[i] == '-' || cota[i] == '+') ++i;
        const auto fin = std::min(cota.find_first_of("+-", i), cota.size());
        const std::string termino = cota.substr(i, fin - i);
        i = fin;
        if (termino.back() == 'u') {
            unidades += signo * std::stod(termino);
            continue;
        }
        double valor = 0;
        if (termino == "L" || termino == "Lado")
            valor = caso.propia;
        else if (termino == "M")
            valor = caso.propia - 350;
        else if (termino == "Lado/2")
            valor = caso.propia / 2;
        else
            valor = std::stod(termino);
        mm += signo * valor;
        redondas += signo * std::nearbyint(valor * caso.escala);
    }
    return (caso.enteros ? redondas : mm * caso.escala) + unidades;
}

void dibujar(SuperficieSalida& hoja, const Renglon& renglon, const Caso& caso) {
    const auto n = [&](std::size_t i) { return medida(renglon.cotas[i], caso); };
    const auto grados = [&](std::size_t i) { return std::stod(renglon.cotas[i]) * 3.14159265358979 / 180; };
    const double x = caso.X + n(0);
    const double y = caso.Y + n(1);
    const std::string& forma = renglon.forma;
    if (forma == "L") hoja.Line(x, y, caso.X + n(2), caso.Y + n(3), caso.linea);
    if (forma == "Stroke") hoja.Line(x, y, x + n(2), y + n(3), caso.linea);
    if (forma == "B") hoja.Caja(x, y, caso.X + n(2), caso.Y + n(3), caso.linea);
    if (forma == "Box") hoja.Caja(x, y, x + n(2), y + n(3), caso.linea);
    if (forma == "C") hoja.Circle({x, y, n(2)}, caso.linea);
    if (forma == "A") hoja.Circle({x, y, n(2), Arco{grados(3), grados(4)}}, caso.linea);
    if (forma == "E") hoja.Circle({x, y, n(2), {}, std::stod(renglon.cotas[3])}, caso.linea);
    if (forma == "EA")
        hoja.Circle({x, y, n(2), Arco{grados(3), grados(4)}, std::stod(renglon.cotas[5])}, caso.linea);
}

bool conFondo(Clase clase) {
    return clase < Clase::MblInodoro || clase > Clase::MblUrinario;
}

std::vector<std::string> esperados(const std::vector<Renglon>& tabla, const Muestra& muestra, double factor,
                                   double escala) {
    std::istringstream titulo(muestra.titulo);
    std::string codigo;
    double propia = 0;
    titulo >> codigo;
    if (muestra.clase == Clase::MblBañera) titulo >> propia;
    if (std::isdigit(codigo.front()) != 0) propia = std::stod(codigo) * 10;
    const Caso caso{std::nearbyint(static_cast<double>(1234.56F) * escala),
                    std::nearbyint(789.5 * escala),
                    escala * factor,
                    propia,
                    muestra.clase < Clase::MblInodoro,
                    0x332211};
    Grabadora hoja;
    if (conFondo(muestra.clase)) {
        hoja.FillStyle(Relleno::solido);
        hoja.FillColor(0xCCBBAA);
    }
    for (const Renglon& renglon : tabla)
        if (renglon.clase == datos(muestra.clase).nombre &&
            (renglon.codigo == codigo || renglon.codigo == "*"))
            dibujar(hoja, renglon, caso);
    if (conFondo(muestra.clase)) {
        hoja.FillStyle(Relleno::transparente);
        hoja.FillColor(0);
    }
    return hoja.trazos();
}

}  // namespace

TEST(FigurasDeTabla, CadaDisposicionEsLaDeLaTablaACualquierEscala) {
    const std::vector<Renglon> tabla = renglones();
    ASSERT_EQ(tabla.size(), 337U);
    int vistas = 0;
    for (const Muestra& muestra : muestrario()) {
        const bool enTabla = std::any_of(tabla.begin(), tabla.end(), [&](const Renglon& renglon) {
            return renglon.clase == datos(muestra.clase).nombre;
        });
        if (!enTabla) continue;
        ++vistas;
        for (const double factor : {0.5, 1.0, 1.5})
            for (const double escala : {1.0, escalaDeSalida})
                EXPECT_EQ(trazosDe(dibujoDe(muestra, factor), muestra.clase, escala),
                          esperados(tabla, muestra, factor, escala))
                    << datos(muestra.clase).nombre << " " << muestra.titulo;
    }
    EXPECT_EQ(vistas, 8 + 4 + 4 + 4 + 4 + 24 + 3 + 4 + 2 + 8 + 2 + 4 + 4);
}
