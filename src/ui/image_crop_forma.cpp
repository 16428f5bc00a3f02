#include "ui/image_crop_forma.h"

#include "output/image_crop.h"
#include "ui/hoja_salida_widget.h"
#include "ui/iconos.h"
#include "ui/rotulos.h"
#include "ui/textos.h"
#include "ui/unidades.h"
#include "ui/visor.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>
#include <array>

namespace bosquel {

namespace {

constexpr double grosorBarra = 255;  // sheet units
constexpr double anchoPanel = ImageCrop::margenAncho - grosorBarra;
constexpr double salirSobreElBorde = 80;

constexpr int anchoMinimo = 480;           // px
constexpr int margen = 4, separacion = 6;  // px
constexpr int hueco = 12;                  // px, between groups
constexpr int ladoIcono = 22;              // px
constexpr double parteDeLaPantalla = 0.92;

struct Sentido {
    const char* leido;
    const char* imagen;
};
constexpr std::array<Sentido, optSentido.size()> sentidos{
    {{"Sentido vertical", "hoja_vertical"}, {"Sentido horizontal", "hoja_horizontal"}}};

/// A little drawn image, which stands still.
class Imagen final : public QWidget {
  public:
    explicit Imagen(QString nombre) : nombre_(std::move(nombre)) { setFixedSize(ladoIcono, ladoIcono); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        icono(nombre_, palette()).paint(&pintor, rect());
    }

  private:
    QString nombre_;
};

/// The caption with one of its letters as its mnemonic.
QString conLetra(std::string_view rotulo, qsizetype letra) {
    return aQString(rotulo).insert(letra, '&');
}

QString miembro(const char* grupo, std::size_t i) {
    return QString("%1_%2").arg(grupo).arg(i);
}

/// The radio of an option. The indices of its group are those of `opciones`.
QRadioButton* radio(QButtonGroup* grupo, const char* nombre, std::size_t i, const OpcionSalida& opcion,
                    qsizetype letra) {
    auto* boton = new QRadioButton(conLetra(opcion.rotulo, letra));
    nombrar(boton, qUtf8Printable(miembro(nombre, i)));
    boton->setEnabled(opcion.disponible);
    grupo->addButton(boton, static_cast<int>(i));
    return boton;
}

/// A group of radios that keeps the index chosen in `elegido`.
QButtonGroup* grupoDe(QWidget* padre, int& elegido) {
    auto* grupo = new QButtonGroup(padre);
    QObject::connect(grupo, &QButtonGroup::idClicked, padre, [&elegido](int indice) { elegido = indice; });
    return grupo;
}

QScrollBar* crearBarra(const char* nombre, const char* leido, Qt::Orientation orientacion, int cambioChico,
                       QWidget* padre) {
    auto* barra = new QScrollBar(orientacion, padre);
    barra->setObjectName(nombre);
    barra->setAccessibleName(leido);
    barra->setRange(0, ImageCrop::Barra::maximo);
    barra->setPageStep(ImageCrop::Barra::cambioGrande);
    barra->setSingleStep(cambioChico);
    return barra;
}

/// The bar follows the window without telling it so.
void mostrarBarra(QScrollBar& barra, const ImageCrop::Barra& estado) {
    const QSignalBlocker callada(barra);
    barra.setEnabled(estado.Visible);
    barra.setVisible(estado.Visible);
    barra.setValue(estado.valor);
}

}  // namespace

ImageCropForma::ImageCropForma(ImageCrop& logica, QWidget* padre)
    : QDialog(padre), logica_(logica), reloj_(new QTimer(this)) {
    setObjectName("ImageCrop");
    setWindowTitle("Selección de Area a Exportar o Imprimir");
    setAccessibleName(windowTitle());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setModal(true);

    logica_.cargar(lienzo_);
    reloj_->setObjectName("Timer1");
    reloj_->setInterval(ImageCrop::periodoTimer1);
    ponerPanel();
    ponerVisor();
    setMinimumSize(anchoMinimo, std::max(panel_->sizeHint().height(), aPixeles(ImageCrop::altoMinimo) + 1));
    connect(reloj_, &QTimer::timeout, this, [this] {
        logica_.pasarTimer1();
        hoja_->repetirPuntero();
    });
    logica_.alCambiar = [this] { mostrar(); };
    findChild<QWidget*>("BotonEdicion_0")->setFocus();

    // Rounded up: a sheet that has room needs no bar.
    const QSize entera = lienzo_.HojaSalida().size() +
                         QSize(aPixeles(ImageCrop::margenAncho) + 1, aPixeles(ImageCrop::margenAlto) + 1);
    resize(entera.boundedTo(screen()->availableSize() * parteDeLaPantalla).expandedTo(minimumSize()));
}

void ImageCropForma::ponerVisor() {
    visor_ = new Visor(this);
    hoja_ = new HojaSalidaWidget(logica_, lienzo_.HojaSalida(), visor_);
    hScroll_ =
        crearBarra("HScroll1", "Desplazamiento horizontal", Qt::Horizontal, ImageCrop::cambioChicoH, this);
    vScroll_ = crearBarra("VScroll1", "Desplazamiento vertical", Qt::Vertical, ImageCrop::cambioChicoV, this);
    visor_->ponerHoja(hoja_);
    visor_->ponerBarras(hScroll_, vScroll_);
    connect(hScroll_, &QScrollBar::valueChanged, this, [this](int valor) { logica_.cambiarHScroll1(valor); });
    connect(vScroll_, &QScrollBar::valueChanged, this, [this](int valor) { logica_.cambiarVScroll1(valor); });
    indicacion_ =
        new QLabel("Arrastre sobre el dibujo para señalar un área, o dentro de ella para moverla.", this);
    indicacion_->setObjectName("lblEstado");
    indicacion_->setWordWrap(true);
}

void ImageCropForma::ponerPanel() {
    panel_ = new QWidget(this);
    panel_->setObjectName("Picture3");
    auto* columna = new QVBoxLayout(panel_);
    columna->setContentsMargins(margen, 2 * margen, margen, aPixeles(salirSobreElBorde));
    columna->setSpacing(separacion);
    columna->addLayout(tamanos());
    columna->addSpacing(hueco - separacion);
    columna->addLayout(sentidosDelPapel());
    columna->addSpacing(hueco - separacion);
    for (std::size_t i = 0; i < ImageCrop::BotonEdicion.size(); ++i)
        columna->addWidget(boton(i));
    columna->addStretch();
    auto* salir = nombrar(new QPushButton("&Salir"), "BttCancelar");
    connect(salir, &QPushButton::clicked, this, &QDialog::reject);
    columna->addWidget(salir);
}

QLayout* ImageCropForma::tamanos() {
    auto* columna = new QVBoxLayout;
    columna->setSpacing(margen);
    auto* grupo = grupoDe(panel_, logica_.tamano);
    for (std::size_t i = 0; i < optTamaño.size(); ++i)
        columna->addWidget(radio(grupo, "optTamaño", i, optTamaño[i], 1));
    grupo->button(logica_.tamano)->setChecked(true);
    return columna;
}

QLayout* ImageCropForma::sentidosDelPapel() {
    auto* rejilla = nuevaRejilla();
    rejilla->setVerticalSpacing(margen);
    auto* grupo = grupoDe(panel_, logica_.sentido);
    for (std::size_t i = 0; i < optSentido.size(); ++i) {
        auto* boton = radio(grupo, "optSentido", i, optSentido[i], 0);
        boton->setAccessibleName(sentidos[i].leido);
        auto* imagen = new Imagen(sentidos[i].imagen);
        imagen->setObjectName(miembro("Orientacion", i));
        rejilla->addWidget(boton, static_cast<int>(i), 0);
        rejilla->addWidget(imagen, static_cast<int>(i), 1);
    }
    grupo->button(logica_.sentido)->setChecked(true);
    return rejilla;
}

QPushButton* ImageCropForma::boton(std::size_t i) {
    const BotonSalida& datos = ImageCrop::BotonEdicion[i];
    auto* boton = new QPushButton(conLetra(datos.rotulo, 0));
    nombrar(boton, qUtf8Printable(miembro("BotonEdicion", i)));
    boton->setToolTip(aQString(datos.ayuda));
    connect(boton, &QPushButton::clicked, this,
            [this, i] { logica_.pulsarEdicion(static_cast<ImageCrop::Edicion>(i)); });
    return boton;
}

void ImageCropForma::resizeEvent(QResizeEvent*) {
    if (isMinimized()) return;
    logica_.redimensionar(width() * unidadesPorPixel, height() * unidadesPorPixel);
    const int barra = aPixeles(grosorBarra);
    visor_->setGeometry(0, 0, aPixeles(logica_.visorAncho()), aPixeles(logica_.visorAlto()));
    hScroll_->setGeometry(0, visor_->height(), visor_->width(), barra);
    vScroll_->setGeometry(visor_->width(), 0, barra, visor_->height());
    const int izquierda = width() - aPixeles(anchoPanel);
    panel_->setGeometry(izquierda, 0, width() - izquierda, height());
    const int pie = visor_->height() + barra;
    indicacion_->setGeometry(2 * margen, pie, visor_->width() - 2 * margen, height() - pie);
}

void ImageCropForma::mostrar() {
    const QRect antes = hoja_->geometry();
    hoja_->situar();
    if (hoja_->geometry() != antes) visor_->update();
    mostrarBarra(*hScroll_, logica_.HScroll1());
    mostrarBarra(*vScroll_, logica_.VScroll1());
    if (!logica_.Timer1())
        reloj_->stop();
    else if (!reloj_->isActive())
        reloj_->start();
}

}  // namespace bosquel
