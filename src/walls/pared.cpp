#include "walls/pared.h"

#include "model/numeros.h"
#include "model/polar.h"

#include <cmath>

namespace bosquel {

namespace {

constexpr double ladoPinza = 180;  // mm

/// What a wall covers has to be painted again, both before and after a change.
class Cambio {
  public:
    Cambio(Dibujo& dibujo, const Pared& pared) : dibujo_(dibujo), pared_(pared) { ensuciar(dibujo_, pared_); }
    Cambio(const Cambio&) = delete;
    Cambio& operator=(const Cambio&) = delete;
    ~Cambio() { ensuciar(dibujo_, pared_); }

  private:
    Dibujo& dibujo_;
    const Pared& pared_;
};

void poner(Segmento& linea, double x1, double y1, double x2, double y2, bool visible) {
    asignar(linea.X1, x1);
    asignar(linea.Y1, y1);
    asignar(linea.X2, x2);
    asignar(linea.Y2, y2);
    linea.Visible = visible;
}

/// Line 2 between the starts of the long sides, line 4 between their ends.
void ponerTapas(Pared& pared, bool visibleInicial, bool visibleFinal) {
    const Segmento& uno = pared.lineas[0];
    const Segmento& tres = pared.lineas[2];
    poner(pared.lineas[1], uno.X1, uno.Y1, tres.X1, tres.Y1, visibleInicial);
    poner(pared.lineas[3], uno.X2, uno.Y2, tres.X2, tres.Y2, visibleFinal);
}

void centrar(Pinza& pinza, double factor, double x1, double y1, double x2, double y2) {
    const double lado = ladoPinza * factor;
    asignar(pinza.Lado, lado);
    asignar(pinza.Left, (x2 - x1) / 2 + x1 - lado / 2);
    asignar(pinza.Top, (y2 - y1) / 2 + y1 - lado / 2);
    pinza.Visible = true;
}

void ponerPinzas(Pared& pared, double factor) {
    const Segmento& inicial = pared.lineas[1];
    const Segmento& final = pared.lineas[3];
    centrar(pared.ParedPick, factor, inicial.X1, inicial.Y1, inicial.X2, inicial.Y2);
    centrar(pared.ParedPickBIS, factor, final.X1, final.Y1, final.X2, final.Y2);
    centrar(pared.ParedPickCentro, factor, pared.lineas[0].X1, pared.lineas[0].Y1, pared.lineas[2].X2,
            pared.lineas[2].Y2);
}

double ladoPorSuTramo(double x1, double x2, int angulo, double factor) {
    return std::abs(x2 - x1) / std::cos(radianes(angulo)) / factor;
}

}  // namespace

void TrazaLineasPared(Pared& pared, double factor) {
    const int angulo = pared.Angulo;
    const int absoluto = std::abs(angulo);
    const int signo = angulo >= 0 ? -1 : 1;
    const double longitud = pared.Longitud * factor;
    const double ancho = pared.ancho() * factor;

    Segmento& uno = pared.lineas[0];
    poner(uno, pared.InicialX, pared.InicialY, PolarX(pared.InicialX, angulo, longitud),
          PolarY(pared.InicialY, angulo, longitud), true);
    // The rules of sign differ for x and y on purpose: together they keep the width on the side of rising x,
    // and below the wall at 0 degrees.
    const double x = PolarX(uno.X1, 90 - absoluto, ancho);
    const double y = PolarY(uno.Y1, signo * 90 - absoluto, ancho);
    poner(pared.lineas[2], x, y, PolarX(x, angulo, longitud), PolarY(y, angulo, longitud), true);
    ponerTapas(pared, true, true);
}

void DibujaPared(Dibujo& dibujo, int indice, bool seleccionada) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    const Cambio cambio(dibujo, *pared);
    TrazaLineasPared(*pared, dibujo.FactorZoomActual);
    ponerPinzas(*pared, dibujo.FactorZoomActual);
    for (Pinza* pinza : pared->pinzas())
        alFondo(dibujo, *pinza);
    dibujo.ElementoActual = Clase::Pared;
    asignar(dibujo.IndiceActual, indice);
    if (seleccionada) PintaPinzasPared(dibujo, indice, rojo);
    GuardaLineasPared(dibujo, indice);
}

void RedibujaPared(Dibujo& dibujo, int indice, bool seleccionada) {
    DibujaPared(dibujo, indice, seleccionada);
}

int CreaParedComo(Dibujo& dibujo, const Pared& pared) {
    const int indice = dibujo.Pared.contador;
    Pared* nueva = dibujo.Pared.crearSiguiente();
    if (!nueva) return 0;
    nueva->Tipo = pared.Tipo;
    nueva->AnchoMuro = pared.AnchoMuro;
    nueva->AnchoTabique = pared.AnchoTabique;
    nueva->Longitud = pared.Longitud;
    nueva->Angulo = pared.Angulo;
    nueva->NumeroGrupo = 0;
    nueva->Estado = estadoEdicion;
    nueva->Visible1 = true;
    nueva->Visible2 = true;
    return indice;
}

void ReconstruyePared(Dibujo& dibujo, int indice) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    const Cambio cambio(dibujo, *pared);
    ponerTapas(*pared, pared->Visible1, pared->Visible2);
    ponerPinzas(*pared, dibujo.FactorZoomActual);
}

void MueveTapasPared(Pared& pared) {
    ponerTapas(pared, pared.lineas[1].Visible, pared.lineas[3].Visible);
}

void GuardaLineasPared(Dibujo& dibujo, int indice) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    const Segmento& uno = pared->lineas[0];
    const Segmento& tres = pared->lineas[2];
    pared->InicialX = uno.X1;
    pared->InicialY = uno.Y1;
    pared->Linea1X2 = uno.X2;
    pared->Linea1Y2 = uno.Y2;
    pared->Linea3X1 = tres.X1;
    pared->Linea3Y1 = tres.Y1;
    pared->Linea3X2 = tres.X2;
    pared->Linea3Y2 = tres.Y2;
}

void RecuperaLineasPared(Dibujo& dibujo, int indice) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    const Cambio cambio(dibujo, *pared);
    poner(pared->lineas[0], pared->InicialX, pared->InicialY, pared->Linea1X2, pared->Linea1Y2, true);
    poner(pared->lineas[2], pared->Linea3X1, pared->Linea3Y1, pared->Linea3X2, pared->Linea3Y2, true);
}

void DeseleccionaPared(Dibujo& dibujo, int indice) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    PintaPinzasPared(dibujo, indice, blanco);
    for (Pinza* pinza : pared->pinzas())
        alFondo(dibujo, *pinza);
}

void PintaPinzasPared(Dibujo& dibujo, int indice, Color color) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    ZonaSucia& zona = pared->EnMovimiento ? dibujo.paso : dibujo.sucia;
    for (Pinza* pinza : pared->pinzas()) {
        pinza->BackColor = color;
        if (pinza->Visible) zona.anadir(pinza->recuadro());
    }
}

void LongitudPared(const Dibujo& dibujo, Pared& VarPared) {
    const double factor = dibujo.FactorZoomActual;
    const double tramoX = std::abs(static_cast<double>(VarPared.InicialX) - VarPared.Linea1X2);
    const double tramoY = std::abs(static_cast<double>(VarPared.InicialY) - VarPared.Linea1Y2);
    switch (std::abs(VarPared.Angulo)) {
        case 0: asignar(VarPared.Longitud, tramoX / factor); break;
        case 90: asignar(VarPared.Longitud, tramoY / factor); break;
        default: {
            const double uno = ladoPorSuTramo(VarPared.InicialX, VarPared.Linea1X2, VarPared.Angulo, factor);
            const double tres = ladoPorSuTramo(VarPared.Linea3X1, VarPared.Linea3X2, VarPared.Angulo, factor);
            asignar(VarPared.Longitud, (uno + tres) / 2);
        }
    }
}

void ActualizarPuntoInicialPared(Dibujo& dibujo, int indice) {
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    pared->InicialX = pared->lineas[0].X1;
    pared->InicialY = pared->lineas[0].Y1;
}

std::optional<Recuadro> contorno(std::span<const Segmento> lineas, std::span<const Pinza* const> pinzas) {
    std::optional<Recuadro> total;
    const auto sumar = [&total](const Recuadro& parte) { total = total ? unir(*total, parte) : parte; };
    for (const Segmento& linea : lineas)
        if (linea.Visible) sumar(contorno(linea));
    for (const Pinza* pinza : pinzas)
        if (pinza->Visible) sumar(pinza->recuadro());
    return total;
}

std::optional<Recuadro> contorno(const Pared& pared) {
    const std::array pinzas = pared.pinzas();
    return contorno(pared.lineas, pinzas);
}

void ensuciar(Dibujo& dibujo, const Pared& pared) {
    if (const auto zona = contorno(pared)) (pared.EnMovimiento ? dibujo.paso : dibujo.sucia).anadir(*zona);
}

}  // namespace bosquel
