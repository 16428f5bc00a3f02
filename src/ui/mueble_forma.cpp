#include "ui/mueble_forma.h"

#include "furnishing/mueble_prop.h"
#include "ui/botones_dist.h"
#include "ui/campo_numero.h"
#include "ui/imagen_elemento.h"
#include "ui/rotulos.h"
#include "ui/textos.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

/// Options stand in one row, or in two of the same length.
constexpr int opcionesEnUnaFila = 4;

}  // namespace

MuebleForma::MuebleForma(MuebleProp& logica, QWidget* padre)
    : DialogoMuebleForma(aQString(datos(logica.clase()).dialogo), aQString(logica.ficha().titulo), logica,
                         padre),
      logica_(logica) {
    const FichaMueble& ficha = logica.ficha();
    if (!ficha.campos.empty()) cuerpo()->addWidget(medidas());
    if (!ficha.opciones.opciones.empty()) cuerpo()->addWidget(opciones());
    if (ficha.ChkEscurridor) cuerpo()->addWidget(escurridor());
    if (!ficha.Dist.codigos.empty()) cuerpo()->addWidget(dist());
    ponerFinal();
}

QWidget* MuebleForma::medidas() {
    auto* marco = new QGroupBox("Medidas");
    auto* rejilla = nuevaRejilla(marco);
    for (int i = 0; const CampoMueble& dato : logica_.ficha().campos) {
        auto* uno = campo(aQString(dato.control), logica_.medidas[static_cast<std::size_t>(i)]);
        ponerFila(rejilla, i++, rotular(conLetra(aQString(dato.rotulo)), uno, "metros"), uno, "metros");
    }
    return marco;
}

QWidget* MuebleForma::opciones() {
    const OpcionesMueble& grupo = logica_.ficha().opciones;
    auto* marco = new QGroupBox(aQString(grupo.titulo));
    auto* rejilla = new QGridLayout(marco);
    const int cuantas = static_cast<int>(grupo.opciones.size());
    const int porFila = cuantas > opcionesEnUnaFila ? (cuantas + 1) / 2 : cuantas;
    for (int i = 0; const OpcionMueble& opcion : grupo.opciones) {
        auto* boton = radio(QString("%1_%2").arg(aQString(grupo.control)).arg(opcion.indice),
                            aQString(opcion.rotulo), i == logica_.opcion(), [this, i] {
                                logica_.elegirOpcion(i);
                                mostrarDist();
                            });
        boton->setAccessibleDescription(marco->title());
        rejilla->addWidget(boton, i / porFila, i % porFila);
        ++i;
    }
    return marco;
}

QWidget* MuebleForma::escurridor() {
    auto* casilla = nombrar(new QCheckBox(conLetra("Con Escurridor")), "ChkEscurridor");
    casilla->setChecked(logica_.escurridor());
    connect(casilla, &QCheckBox::toggled, this, [this](bool puesta) {
        logica_.ponerEscurridor(puesta);
        mostrarDist();
    });
    return casilla;
}

QWidget* MuebleForma::dist() {
    const GrupoDist& grupo = logica_.ficha().Dist;
    std::vector<BotonesDist::Rotulo> rotulos;
    for (const auto& [codigo, leido] : grupo.codigos)
        rotulos.push_back({grupo.rotulados ? aQString(codigo) : QString(), aQString(leido)});
    dist_ = new BotonesDist("Dist", rotulos);
    connect(dist_, &BotonesDist::pulsado, this, [this](int cual) {
        logica_.pulsarDist(cual);
        mostrarDist();
    });
    mostrarDist();
    auto* marco = new QGroupBox(aQString(grupo.titulo));
    auto* columna = new QVBoxLayout(marco);
    columna->addWidget(dist_);
    return marco;
}

void MuebleForma::mostrarDist() {
    if (!dist_) return;
    std::vector<Calco> calcos;
    for (std::size_t i = 0; i < logica_.ficha().Dist.codigos.size(); ++i)
        calcos.push_back(logica_.calco(static_cast<int>(i)));
    dist_->mostrar(calcos, marcoDe(calcos));
    dist_->marcar(logica_.pulsado());
}

}  // namespace bosquel
