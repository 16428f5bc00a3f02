#pragma once

#include <QImage>
#include <QProcess>
#include <QString>
#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>

namespace bosquel::apoyo {

/// The one page of a PDF file as pixels, so many to an inch; empty if there is none.
inline QImage paginaDe(const QString& pdf, int porPulgada) {
    QProcess lector;
    lector.start("pdftoppm", {"-r", QString::number(porPulgada), "-png", "-singlefile", pdf, pdf});
    EXPECT_TRUE(lector.waitForFinished() && lector.exitCode() == 0) << lector.readAllStandardError().data();
    return QImage(pdf + ".png").convertToFormat(QImage::Format_RGB32);
}

/// The smallest rectangle that holds everything dark of a picture of 32 bits.
inline QRect tintaDe(const QImage& imagen) {
    QRect caja;
    for (int y = 0; y < imagen.height(); ++y) {
        const auto* fila = reinterpret_cast<const QRgb*>(imagen.constScanLine(y));
        const auto* fin = fila + imagen.width();
        const auto oscuro = [](QRgb pixel) { return qGray(pixel) < 128; };
        const auto* primero = std::find_if(fila, fin, oscuro);
        if (primero == fin) continue;
        const auto* ultimo =
            std::find_if(std::reverse_iterator(fin), std::reverse_iterator(primero), oscuro).base();
        caja |= QRect(QPoint(static_cast<int>(primero - fila), y),
                      QPoint(static_cast<int>(ultimo - fila) - 1, y));
    }
    return caja;
}

}  // namespace bosquel::apoyo
