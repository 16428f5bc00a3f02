#include "ui/pagina.h"

#include "output/escala.h"
#include "output/papel.h"

#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <cmath>

namespace bosquel {

namespace {

constexpr double twipsPorPunto = 20;

/// The part of the picture of which anything is seen in the box: what is cut off is not sent to the printer.
QImage visible(const QImage& imagen, const QSizeF& caja) {
    const QSizeF enPixeles = caja / twipsPorPixel;
    return imagen.copy(QRect(0, 0, static_cast<int>(std::ceil(enPixeles.width())),
                             static_cast<int>(std::ceil(enPixeles.height()))) &
                       imagen.rect());
}

QImage reducida(const QImage& imagen, double densidad) {
    if (densidad >= 1 || imagen.isNull()) return imagen;
    const QSize tamano = (QSizeF(imagen.size()) * densidad).toSize().expandedTo({1, 1});
    return imagen.scaled(tamano, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

void prepararPagina(QPrinter& impresora, const Papel& papel) {
    const QPageSize tamano(QSizeF(papel.ancho, papel.alto) / twipsPorPunto, QPageSize::Point);
    QPageLayout pagina(tamano, papel.apaisado ? QPageLayout::Landscape : QPageLayout::Portrait, {});
    pagina.setMode(QPageLayout::FullPageMode);
    impresora.setPageLayout(pagina);
    impresora.setFullPage(true);
}

void pintarPagina(QPrinter& impresora, const Papel& papel, const QImage& imagen, double densidad) {
    const Recuadro caja = papel.Image1();
    const QRectF enTwips(caja.Left, caja.Top, caja.Width, caja.Height);
    const QImage parte = visible(imagen, enTwips.size());
    QPainter pintor(&impresora);
    pintor.setRenderHints(QPainter::LosslessImageRendering | QPainter::SmoothPixmapTransform);
    const double escala = impresora.resolution() / twipsPorPulgada;
    pintor.scale(escala, escala);
    pintor.setClipRect(enTwips);
    pintor.drawImage(QRectF(enTwips.topLeft(), QSizeF(parte.size()) * twipsPorPixel),
                     reducida(parte, densidad));
}

}  // namespace bosquel
