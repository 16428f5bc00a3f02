#include "ui/mesa_forma.h"

#include "furnishing/mesa_prop.h"
#include "ui/botones_dist.h"
#include "ui/campo_numero.h"
#include "ui/imagen_elemento.h"
#include "ui/rotulos.h"
#include "ui/textos.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <array>

namespace bosquel {

namespace {

/// Columns "Mesa" and "Sillas", rows "Horizontal:" and "Vertical:".
struct Medida {
    const char* control;
    const char* leido;
    std::string MesaProp::*texto;
    int fila, columna;
};
constexpr std::array<Medida, 4> medidasDeMesa{{
    {"TxtMesaX", "Mesa, horizontal", &MesaProp::TxtMesaX, 1, 1},
    {"TxtMesaY", "Mesa, vertical", &MesaProp::TxtMesaY, 2, 1},
    {"TxtSillaX", "Sillas, horizontal", &MesaProp::TxtSillaX, 1, 2},
    {"TxtSillaY", "Sillas, vertical", &MesaProp::TxtSillaY, 2, 2},
}};

}  // namespace

MesaForma::MesaForma(MesaProp& logica, QWidget* padre)
    : DialogoMuebleForma("MesaProp", "Propiedades de mesa", logica, padre), logica_(logica) {
    cuerpo()->addWidget(medidas());
    cuerpo()->addWidget(numeroDeSillas());
    cuerpo()->addWidget(colocaciones());
    ponerFinal();
}

QWidget* MesaForma::medidas() {
    auto* marco = new QGroupBox("Dimensiones en metros");
    auto* rejilla = nuevaRejilla(marco);
    for (const auto& [control, leido, texto, fila, columna] : medidasDeMesa) {
        auto* uno = campo(control, logica_.*texto);
        uno->setAccessibleName(leido);
        uno->setAccessibleDescription("metros");
        rejilla->addWidget(uno, fila, columna);
    }
    rejilla->addWidget(new QLabel("Mesa"), 0, 1);
    rejilla->addWidget(new QLabel("Sillas"), 0, 2);
    const auto encabezar = [&](const QString& rotulo, int fila) {
        auto* etiqueta = new QLabel(conLetra(rotulo));
        etiqueta->setBuddy(rejilla->itemAtPosition(fila, 1)->widget());
        rejilla->addWidget(etiqueta, fila, 0);
    };
    encabezar("Horizontal:", 1);
    encabezar("Vertical:", 2);
    return marco;
}

QWidget* MesaForma::numeroDeSillas() {
    auto* marco = new QGroupBox("Número de sillas:");
    auto* fila = new QHBoxLayout(marco);
    for (int cuantas = 0; cuantas < MesaProp::grupos; ++cuantas) {
        auto* boton = radio(QString("OptSillas_%1").arg(cuantas), QString::number(cuantas),
                            cuantas == logica_.sillas(), [this, cuantas] {
                                logica_.elegirSillas(cuantas);
                                mostrarGrupo();
                            });
        boton->setAccessibleDescription("Número de sillas");
        fila->addWidget(boton);
    }
    return marco;
}

QWidget* MesaForma::colocaciones() {
    auto* marco = new QGroupBox("Colocación de las sillas");
    auto* rejilla = new QGridLayout(marco);
    for (int cual = 0; cual < MesaProp::grupos; ++cual) {
        frmDist_.push_back(grupo(cual));
        rejilla->addWidget(frmDist_.back(), 0, 0, Qt::AlignTop);
    }
    mostrarGrupo();
    mostrarDist();
    return marco;
}

BotonesDist* MesaForma::grupo(int cual) {
    std::vector<BotonesDist::Rotulo> rotulos;
    for (const MesaProp::Colocacion& una : MesaProp::Dist(cual))
        rotulos.push_back({{}, aQString(una.leido)});
    auto* botones = new BotonesDist(QString("Dist%1").arg(cual), rotulos);
    botones->setObjectName(QString("FrmDist_%1").arg(cual));
    // All in one place, which is as large as the largest of them needs.
    QSizePolicy sitio = botones->sizePolicy();
    sitio.setRetainSizeWhenHidden(true);
    botones->setSizePolicy(sitio);
    connect(botones, &BotonesDist::pulsado, this, [this, cual](int indice) {
        logica_.pulsarDist({cual, indice});
        mostrarDist();
    });
    return botones;
}

void MesaForma::mostrarGrupo() {
    for (int cual = 0; BotonesDist * botones : frmDist_)
        botones->setVisible(cual++ == logica_.sillas());
}

void MesaForma::mostrarDist() {
    std::vector<std::vector<Calco>> calcos;
    QSizeF marco(0, 0);
    for (int cual = 0; cual < MesaProp::grupos; ++cual) {
        auto& deGrupo = calcos.emplace_back();
        for (int i = 0; i < static_cast<int>(MesaProp::Dist(cual).size()); ++i)
            deGrupo.push_back(logica_.calco({cual, i}));
        marco = marco.expandedTo(marcoDe(deGrupo));
    }
    const auto pulsado = logica_.pulsado();
    for (std::size_t cual = 0; cual < frmDist_.size(); ++cual) {
        frmDist_[cual]->mostrar(calcos[cual], marco);
        frmDist_[cual]->marcar(pulsado && pulsado->grupo == static_cast<int>(cual) ? pulsado->indice : -1);
    }
}

}  // namespace bosquel
