#include "ui/columna.h"

#include "drawing/muestras.h"
#include "ui/boton.h"
#include "ui/imagen_elemento.h"
#include "ui/textos.h"

#include <functional>
#include <span>

namespace bosquel {

/// A group of buttons, and what a click on one of them does.
struct GrupoDeBotones {
    const char* nombre = nullptr;
    std::span<const std::string_view> botones;
    std::span<const char* const> imagenes = {};
    void (Bosquel::*pulsar)(int) = nullptr;
};

namespace {

constexpr int margen = 2;
constexpr int anchoBoton = 51;
constexpr int altoBoton = 48;
constexpr int separacion = 1;
constexpr int altoRotulo = 20;
constexpr int hueco = 8;   // between groups
constexpr int letra = 11;  // pixels
constexpr QSize tamanoMuestra{42, 25};
constexpr int ancho = 2 * margen + 2 * anchoBoton + separacion;

constexpr std::array imagenesRelacion{"paralela", "esquina", "union", "separar"};
constexpr std::array imagenesTipo{"muebles", "bano", "cocina", "division", "escalera", "electrico"};
constexpr std::array imagenesUsuario{"muro", "tabique", "pilar", "texto", "puerta", "ventana"};

constexpr GrupoDeBotones relaciones{"BttOperacion", BttOperacion, imagenesRelacion,
                                    &Bosquel::pulsarOperacion};
constexpr GrupoDeBotones selector{"BttTipo", BttTipo, imagenesTipo, &Bosquel::pulsarTipo};

struct PaletaDeBotones {
    const char* panel = nullptr;
    GrupoDeBotones grupo;
};

/// By the values of `Paleta`.
constexpr std::array<PaletaDeBotones, 5> paletas{
    {{"FrMuebles", {"BttMueble", BttMueble, {}, &Bosquel::pulsarMueble}},
     {"FrBaño", {"BttBaño", BttBaño, {}, &Bosquel::pulsarBaño}},
     {"FrCocina", {"BttCocina", BttCocina, {}, &Bosquel::pulsarCocina}},
     {"FrUsuario", {"BttUsuario", BttUsuario, imagenesUsuario, &Bosquel::pulsarUsuario}},
     {"FrElectrico", {"BttElectrico", BttElectrico, {}, &Bosquel::pulsarElectrico}}}};

/// Two abreast.
QRect sitio(std::size_t indice, int y) {
    const int columna = static_cast<int>(indice % 2);
    const int fila = static_cast<int>(indice / 2);
    return {margen + columna * (anchoBoton + separacion), y + fila * (altoBoton + separacion), anchoBoton,
            altoBoton};
}

int altoDe(std::size_t botones) {
    return static_cast<int>((botones + 1) / 2) * (altoBoton + separacion);
}

QLabel* ponerRotulo(const QString& nombre, const QString& rotulo, QWidget* padre, int y) {
    auto* etiqueta = new QLabel(rotulo, padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setAlignment(Qt::AlignCenter);
    etiqueta->setGeometry(0, y, ancho, altoRotulo);
    QFont fuente = etiqueta->font();
    fuente.setPixelSize(letra);
    fuente.setBold(true);
    etiqueta->setFont(fuente);
    return etiqueta;
}

}  // namespace

Columna::Columna(Bosquel& bosquel, QWidget* padre) : QWidget(padre), bosquel_(bosquel) {
    setMouseTracking(true);
    int y = margen;
    ponerRotulo("lblRelaciones", "Relaciones", this, y);
    y += altoRotulo;
    poner(relaciones, this, y);
    y += altoDe(relaciones.botones.size()) + hueco;
    for (const Boton* boton : poner(selector, this, y))
        connect(boton, &Boton::cruzado, this, [this] { bosquel_.cruzarVentana(); });
    y += altoDe(selector.botones.size()) + hueco;
    letrero_ = ponerRotulo("Letrero", {}, this, y);
    y += altoRotulo;
    ponerPaletas(y);
    setMinimumSize(ancho, y + altoDe(BttUsuario.size()) + margen);
    mostrarPaleta();
}

std::vector<Boton*> Columna::poner(const GrupoDeBotones& grupo, QWidget* padre, int y) {
    std::vector<Boton*> puestos;
    for (std::size_t i = 0; i < grupo.botones.size(); ++i) {
        auto* boton = new Boton(QString("%1_%2").arg(grupo.nombre).arg(i), aQString(grupo.botones[i]),
                                i < grupo.imagenes.size() ? grupo.imagenes[i] : "", padre);
        boton->setGeometry(sitio(i, y));
        if (grupo.pulsar)
            connect(boton, &Boton::clicked, this,
                    [this, pulsar = grupo.pulsar, i] { std::invoke(pulsar, bosquel_, static_cast<int>(i)); });
        puestos.push_back(boton);
    }
    return puestos;
}

void Columna::ponerPaletas(int y) {
    for (const PaletaDeBotones& paleta : paletas) {
        auto* panel = new QWidget(this);
        panel->setObjectName(paleta.panel);
        panel->setGeometry(0, y, ancho, altoDe(paleta.grupo.botones.size()));
        paneles_.push_back(panel);
        auto& puestos = puestos_.emplace_back();
        for (Boton* boton : poner(paleta.grupo, panel, 0))
            puestos.push_back({boton, {}});
    }
}

void Columna::mostrarPaleta() {
    const Sesion& sesion = bosquel_.sesion();
    letrero_->setText(aQString(sesion.Letrero));
    for (std::size_t i = 0; i < paneles_.size(); ++i)
        paneles_[i]->setVisible(i == static_cast<std::size_t>(sesion.paleta));
    mostrarMuestras();
}

void Columna::mostrarMuestras() {
    const Sesion& sesion = bosquel_.sesion();
    if (static_cast<std::size_t>(sesion.paleta) >= puestos_.size()) return;
    for (int i = 0; auto& [boton, muestra] : puestos_[static_cast<std::size_t>(sesion.paleta)]) {
        Calco nueva = muestraDe(sesion.dibujo, sesion.paleta, i++);
        if (nueva == muestra) continue;
        muestra = std::move(nueva);
        boton->setIconSize(tamanoMuestra);
        boton->ponerImagen(
            [calco = muestra](const QPalette& paleta) { return imagenElemento(calco, paleta); });
    }
}

}  // namespace bosquel
