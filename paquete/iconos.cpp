// Paints a drawing as a square picture: iconos DRAWING.svg SIDE PICTURE.png

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

int main(int argc, char* argv[]) {
    if (argc != 4) return EXIT_FAILURE;
    const QString destino = QString::fromLocal8Bit(argv[3]);
    const int lado = QByteArray(argv[2]).toInt();
    QSvgRenderer dibujo(QString::fromLocal8Bit(argv[1]));
    QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
    if (imagen.isNull() || !dibujo.isValid()) return EXIT_FAILURE;
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    dibujo.render(&pintor);
    pintor.end();
    QDir().mkpath(QFileInfo(destino).path());
    return imagen.save(destino) ? EXIT_SUCCESS : EXIT_FAILURE;
}
