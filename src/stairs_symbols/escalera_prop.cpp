#include "stairs_symbols/escalera_prop.h"

#include "model/metros.h"
#include "model/numeros.h"
#include "model/textos_numero.h"
#include "stairs_symbols/escalera.h"
#include "surface/medidora.h"

namespace bosquel {

namespace {

constexpr int vuelta = 360;

/// All that the dialog shows of a stair: what it is, and not where it stands.
void copiar(const Escalera& de, Escalera& a) {
    a.LineColor = de.LineColor;
    a.Angle = de.Angle;
    a.Stairs = de.Stairs;
    a.StairEye = de.StairEye;
    a.WidthSteps = de.WidthSteps;
    a.WidthStair = de.WidthStair;
    a.StepsStair = de.StepsStair;
    a.RailingSide = de.RailingSide;
    a.Orientacion = de.Orientacion;
}

std::string metros(std::int32_t longitud) {
    return formatoSinGrupos(longitud / milimetrosPorMetro);
}

void leer(std::int32_t& destino, const std::string& texto, double unidad) {
    if (const auto valor = realTecleado(texto)) asignar(destino, *valor * unidad);
}

}  // namespace

EscaleraProp::EscaleraProp(Dibujo& dibujo, int IndiceEscalera, int AnguloEscalera, float Left, float Top)
    : dibujo_(dibujo), IndiceEscalera_(IndiceEscalera), Left_(Left), Top_(Top) {
    const Escalera* escalera = dibujo.Escalera.en(IndiceEscalera);
    if (!escalera) return;
    copiar(*escalera, StairPreview_);
    if (IndiceEscalera == 0 && AnguloEscalera != 0)
        asignar(StairPreview_.Angle, AnguloEscalera < 0 ? vuelta + AnguloEscalera : AnguloEscalera);
    StairPreview_.Visible = true;
    txtLineColor = StairPreview_.LineColor;
    Angulo.escribir(textoEntero(StairPreview_.Angle));
    txtAnchoOjo = metros(StairPreview_.StairEye);
    txtHuella = metros(StairPreview_.WidthSteps);
    chkOrientacion = StairPreview_.Orientacion != "D";
    elegirTramos(StairPreview_.Stairs);
}

void EscaleraProp::elegirTramos(int cuantos) {
    optTramos_ = cuantos >= 1 && cuantos <= maximoTramos ? cuantos : 0;
    tramos.clear();
    for (std::size_t i = 0; i < static_cast<std::size_t>(optTramos_); ++i)
        tramos.push_back({"Tramo " + std::to_string(i + 1), textoEntero(StairPreview_.StepsStair[i]),
                          metros(StairPreview_.WidthStair[i]), StairPreview_.RailingSide[i]});
    PreviewChanges();
}

void EscaleraProp::PreviewChanges() {
    if (optTramos_ != 0) StairPreview_.Stairs = optTramos_;
    StairPreview_.LineColor = txtLineColor;
    asignar(StairPreview_.Angle, Angulo.grados().value_or(0));
    leer(StairPreview_.StairEye, txtAnchoOjo, milimetrosPorMetro);
    leer(StairPreview_.WidthSteps, txtHuella, milimetrosPorMetro);
    for (std::size_t i = 0; i < tramos.size(); ++i) {
        leer(StairPreview_.WidthStair[i], tramos[i].txtAnchoTramo, milimetrosPorMetro);
        leer(StairPreview_.StepsStair[i], tramos[i].txtPeldaños, 1);
        StairPreview_.RailingSide[i] = tramos[i].chkBarandilla;
    }
    StairPreview_.Orientacion = chkOrientacion ? "R" : "D";
    centrar();
}

void EscaleraProp::centrar() {
    Medidora medidora;
    const double lado = PlantaEscalera({medidora, 1, dibujo_.FactorZoomActual}, StairPreview_).D;
    asignar(StairPreview_.Left, -lado / 2);
    asignar(StairPreview_.Top, -lado / 2);
}

bool EscaleraProp::crear() {
    Escalera* nueva = dibujo_.Escalera.crearTrasContador();
    if (!nueva) return false;
    nueva->Left = Left_;
    nueva->Top = Top_;
    IndiceEscalera_ = dibujo_.Escalera.contador;
    return true;
}

void EscaleraProp::Aplicar() {
    if (!dibujo_.Escalera.existe(IndiceEscalera_)) return;
    if (Check1) copiar(StairPreview_, dibujo_.Escalera.modelo());
    if (IndiceEscalera_ == 0 && !crear()) return;
    Escalera& escalera = *dibujo_.Escalera.en(IndiceEscalera_);
    copiar(StairPreview_, escalera);
    escalera.FactorZOOM = dibujo_.FactorZoomActual;
    escalera.Visible = true;
    alFrente(dibujo_, escalera);
    anunciar(dibujo_, Clase::Escalera, IndiceEscalera_);
}

}  // namespace bosquel
