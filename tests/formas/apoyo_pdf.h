#pragma once

#include <QImage>
#include <QProcess>
#include <QString>
#include <gtest/gtest.h>

namespace bosquel::apoyo {

/// The one page of a PDF file as pixels, so many to an inch; empty if there is none.
inline QImage paginaDe(const QString& pdf, int porPulgada) {
    QProcess lector;
    lector.start("pdftoppm", {"-r", QString::number(porPulgada), "-png", "-singlefile", pdf, pdf});
    EXPECT_TRUE(lector.waitForFinished() && lector.exitCode() == 0) << lector.readAllStandardError().data();
    return QImage(pdf + ".png").convertToFormat(QImage::Format_RGB32);
}

/// The smallest rectangle that holds everything dark.
inline QRect tintaDe(const QImage& imagen) {
    QRect caja;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (qGray(imagen.pixel(x, y)) < 128) caja |= QRect(x, y, 1, 1);
    return caja;
}

}  // namespace bosquel::apoyo
