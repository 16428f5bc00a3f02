#include "ui/lienzo_qt.h"

#include "output/escala.h"
#include "ui/superficie_qt.h"
#include "ui/vista_previa.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QPainter>
#include <QtEndian>
#include <cmath>

namespace bosquel {

namespace {

constexpr double milimetrosPorMetro = 1000;

QImage papelBlanco(int ancho, int alto) {
    QImage papel(std::max(ancho, 0), std::max(alto, 0), QImage::Format_RGB32);
    const int porMetro = static_cast<int>(
        std::lround(twipsPorPulgada / twipsPorPixel / milimetrosPorPulgada * milimetrosPorMetro));
    papel.setDotsPerMeterX(porMetro);
    papel.setDotsPerMeterY(porMetro);
    papel.fill(Qt::white);
    return papel;
}

/// Dark is black, light is white.
QImage enDosTonos(const QImage& imagen) {
    return imagen.convertToFormat(QImage::Format_Mono, Qt::MonoOnly | Qt::ThresholdDither | Qt::AvoidDither);
}

QByteArray codificar(const QImage& imagen, const char* formato) {
    QByteArray fichero;
    QBuffer destino(&fichero);
    destino.open(QIODevice::WriteOnly);
    imagen.save(&destino, formato);
    return fichero;
}

/// A bitmap file as it would be without its pixels: the toolkit writes none for an empty picture.
QByteArray sinPixeles(QByteArray fichero) {
    // Where the fields of its heads lie.
    constexpr qsizetype tamanoFichero = 2;
    constexpr qsizetype inicioPixeles = 10;
    constexpr qsizetype ancho = 18;
    constexpr qsizetype alto = 22;
    constexpr qsizetype tamanoPixeles = 34;
    const auto cabecera = qFromLittleEndian<quint32>(fichero.constData() + inicioPixeles);
    fichero.truncate(static_cast<qsizetype>(cabecera));
    qToLittleEndian(cabecera, fichero.data() + tamanoFichero);
    for (const qsizetype campo : {ancho, alto, tamanoPixeles})
        qToLittleEndian<quint32>(0, fichero.data() + campo);
    return fichero;
}

}  // namespace

void LienzoQt::pintarHoja(int ancho, int alto, const std::function<void(SuperficieSalida&)>& dibujar) {
    HojaSalida_ = papelBlanco(ancho, alto);
    if (HojaSalida_.isNull()) return;
    QPainter pintor(&HojaSalida_);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
    SuperficieQt superficie(pintor, 1 / twipsPorPixel, {});
    dibujar(superficie);
}

void LienzoQt::recortar(const AreaSalida& area) {
    // The old one goes first: each may be as large as the sheet.
    RecorteSalida_ = {};
    RecorteSalida_ = papelBlanco(area.ancho, area.alto);
    if (!RecorteSalida_.isNull()) QPainter(&RecorteSalida_).drawImage(-area.left, -area.top, HojaSalida_);
}

void LienzoQt::vaciarPortapapeles() {
    QGuiApplication::clipboard()->clear();
}

void LienzoQt::ponerEnPortapapeles() {
    auto* datos = new QMimeData;
    if (!RecorteSalida_.isNull()) {
        datos->setData(QStringLiteral("image/png"), codificar(RecorteSalida_, "PNG"));
        datos->setImageData(RecorteSalida_);
    }
    QGuiApplication::clipboard()->setMimeData(datos);
}

void LienzoQt::tomarDelPortapapeles() {
    Image1_ = QGuiApplication::clipboard()->image();
}

void LienzoQt::vistaPrevia(const Papel& papel) {
    VistaPrevia(Image1_, papel, QApplication::activeModalWidget()).exec();
    Image1_ = {};
}

void LienzoQt::guardar(const std::filesystem::path& ruta, Profundidad profundidad) {
    const bool vacio = RecorteSalida_.isNull();
    const QImage color = vacio ? papelBlanco(1, 1) : RecorteSalida_;
    const QImage imagen = profundidad == Profundidad::dosTonos ? enDosTonos(color) : color;
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly)) return;
    if (vacio)
        fichero.write(sinPixeles(codificar(imagen, "BMP")));
    else
        imagen.save(&fichero, "BMP");
}

}  // namespace bosquel
