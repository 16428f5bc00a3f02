#include "ui/lienzo_qt.h"

#include "model/metros.h"
#include "output/escala.h"
#include "ui/superficie_imagen.h"
#include "ui/vista_previa.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QPainter>
#include <QtEndian>
#include <cmath>
#include <new>

namespace bosquel {

namespace {

/// What else an open window and its dialogs may want while a picture is there, bytes.
constexpr std::size_t reservaPorImagen = std::size_t{16} << 20U;

/// Room for so many of it is wanted to make a picture: an uncompressed form of it on the clipboard takes two
/// more while it grows, and the sheet has an area of its own size beside it.
constexpr std::size_t copiasDelRecorte = 3, copiasDeLaHoja = 4;

std::size_t bytesDe(TamanoSalida tamano) {
    return sizeof(QRgb) * static_cast<std::size_t>(tamano.ancho) * static_cast<std::size_t>(tamano.alto);
}

/// Without pixels if it has no width or no height.
QImage papelBlanco(TamanoSalida tamano) {
    QImage papel(tamano.ancho, tamano.alto, QImage::Format_RGB32);
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

bool LienzoQt::sePuedenTomar(std::size_t bytes) {
    void* const prueba = ::operator new(bytes, std::nothrow);
    ::operator delete(prueba);
    return prueba != nullptr;
}

/// Blank paper of this size, or a part of it: its longer side is halved until there is room for so many.
QImage LienzoQt::papelPara(TamanoSalida tamano, std::size_t copias) const {
    if (tamano.ancho <= 0 || tamano.alto <= 0) return {};
    while (bytesDe(tamano) > 0 && !hayMemoria_(copias * (bytesDe(tamano) + reservaPorImagen)))
        (tamano.ancho > tamano.alto ? tamano.ancho : tamano.alto) /= 2;
    return papelBlanco(tamano);
}

TamanoSalida LienzoQt::pintarHoja(TamanoSalida tamano,
                                  const std::function<void(SuperficieSalida&)>& dibujar) {
    HojaSalida_ = papelPara(tamano, copiasDeLaHoja);
    if (!HojaSalida_.isNull()) {
        SuperficieImagen superficie(HojaSalida_, 1 / twipsPorPixel, SuperficieImagen::Letras::sinSuavizar);
        dibujar(superficie);
    }
    return {HojaSalida_.width(), HojaSalida_.height()};
}

void LienzoQt::recortar(const AreaSalida& area) {
    // The old one goes first: each may be as large as the sheet.
    RecorteSalida_ = {};
    RecorteSalida_ = papelPara({area.ancho, area.alto}, copiasDelRecorte);
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
    const QImage color = vacio ? papelBlanco({1, 1}) : RecorteSalida_;
    const QImage imagen = profundidad == Profundidad::dosTonos ? enDosTonos(color) : color;
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly)) return;
    if (vacio)
        fichero.write(sinPixeles(codificar(imagen, "BMP")));
    else
        imagen.save(&fichero, "BMP");
}

}  // namespace bosquel
