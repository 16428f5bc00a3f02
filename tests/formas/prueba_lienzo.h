#pragma once

#include "apoyo/carpeta_temporal.h"
#include "formas/apoyo_formas.h"
#include "output/image_crop.h"
#include "ui/lienzo_qt.h"
#include "walls/pared.h"

namespace bosquel::apoyo {

/// Says yes to everything, and names a file.
struct PlataformaDeSi : PlataformaMuda {
    CarpetaTemporal carpeta;
    std::filesystem::path ruta = carpeta / "plano.bmp";

    Respuesta mensaje(const Mensaje&) override { return Respuesta::si; }
    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo&) override { return ruta; }
};

/// The output of a drawing of one's own, without its window.
struct PruebaLienzo : testing::Test {
    PlataformaDeSi plataforma;
    Dibujo dibujo;
    LienzoQt lienzo;

    PruebaLienzo() { dibujo.Esquema = "Colores Personalizados"; }

    void pintar() { ImageCrop(plataforma, dibujo, {}).cargar(lienzo); }

    /// The bitmap file of the whole drawing.
    QImage exportado() {
        ImageCrop logica(plataforma, dibujo, {});
        logica.cargar(lienzo);
        logica.pulsarEdicion(ImageCrop::Edicion::Bitmap);
        return QImage(QString::fromStdString(plataforma.ruta.string()));
    }

    void ponMuro(double x, double y, int angulo, double longitud, const char* tipo = "Muro") {
        const int indice = dibujo.Pared.contador;
        Pared& pared = dibujo.Pared.crear(indice);
        avanzar(dibujo.Pared.contador);
        asignar(pared.InicialX, x);
        asignar(pared.InicialY, y);
        asignar(pared.Angulo, angulo);
        pared.Longitud = longitud;
        pared.Tipo = tipo;
        DibujaPared(dibujo, indice, false);
    }

    void ponTexto(const char* escrito, float puntos = 20) {
        TextoLibre& texto = dibujo.TextoLibre.crear(1);
        dibujo.TextoLibre.contador = 2;
        texto.Left = texto.Top = 3000;
        texto.FontSize = puntos;
        texto.Text = escrito;
        texto.Visible = true;
    }
};

inline bool esTinta(const QImage& imagen, int x, int y) {
    return (imagen.pixel(x, y) & 0xFFFFFFU) == 0;
}

inline bool enBlanco(const QImage& imagen) {
    QImage papel(imagen.size(), QImage::Format_RGB32);
    papel.fill(Qt::white);
    return imagen == papel;
}

}  // namespace bosquel::apoyo
