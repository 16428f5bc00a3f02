#pragma once

#include "output/papel.h"
#include "output/recuadro_seleccion.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

namespace bosquel {

class Plataforma;
struct Dibujo;

/// A command button of the window; without a text it shows none under the pointer.
struct BotonSalida {
    std::string_view rotulo;
    std::string_view ayuda;
};

/// What the window "Selección de Area a Exportar o Imprimir" shows and decides: the part of `HojaSalida` on
/// view, the frame over it, and the ends to which the selected area goes. Lengths are twips: those of
/// pointer, frame and sheet count from the corner of `HojaSalida`.
class ImageCrop {
  public:
    enum class Edicion : std::uint8_t { Imprimir, Clipboard, Bitmap, Reiniciar };

    static constexpr std::array<BotonSalida, 4> BotonEdicion{{
        {"Imprimir", "Elimina el rectángulo de selección"},
        {"Clipboard", {}},
        {"Bitmap", {}},
        {"Reiniciar", "Elimina el rectángulo de selección"},
    }};

    /// A scroll bar of the sheet: a percentage, 0 to 100.
    struct Barra {
        static constexpr int maximo = 100, cambioGrande = 20;
        bool Visible = false;
        int valor = 0;
    };
    static constexpr int cambioChicoH = 4, cambioChicoV = 5;

    /// What the window keeps for the controls around the viewport, and how far it lets itself be made lower.
    static constexpr double margenAncho = 1450, margenAlto = 950, altoMinimo = 5000;
    static constexpr int periodoTimer1 = 60;  ///< ms

    /// The only state of the buttons in which a move of the pointer draws or carries the frame.
    static constexpr unsigned soloIzquierdo = 1;

    /// `carpeta` is where the file dialog starts.
    ImageCrop(Plataforma& plataforma, const Dibujo& dibujo, std::filesystem::path carpeta);

    int tamano = 0, sentido = 0;  ///< the chosen indices of `optTamaño` and `optSentido`

    /// Called whenever what the window shows has changed, also in the midst of a long event.
    std::function<void()> alCambiar;

    /// Load of the window, before anything else: paints the drawing on `HojaSalida`, which is cut to what the
    /// pictures can hold. They have to outlast this.
    void cargar(LienzoSalida& lienzo);

    /// Its size, and its place in the viewport: 0 or less.
    const Recuadro& HojaSalida() const { return HojaSalida_; }
    const RecuadroSeleccion& recuadro() const { return recuadro_; }
    const Barra& HScroll1() const { return HScroll1_; }
    const Barra& VScroll1() const { return VScroll1_; }
    double visorAncho() const { return visorAncho_; }
    double visorAlto() const { return visorAlto_; }
    /// Whether the pace of the auto-scroll is being beaten.
    bool Timer1() const { return Timer1_; }

    /// The window has a new inner size. A sheet that fits stands at 0.
    void redimensionar(double ancho, double alto);
    void cambiarHScroll1(int valor);
    void cambiarVScroll1(int valor);

    void pulsar(double X, double Y);
    /// `botones` is 1 for the left one, 2 for the right, 4 for the middle, and their sums. Past the edge of
    /// the viewport a frame that is being drawn takes the sheet along, a step at a time: the event then lasts
    /// until the next step may come, and those that arrive meanwhile only tell where the pointer is.
    void mover(unsigned botones, double X, double Y);
    void soltar();
    void pasarTimer1();

    void pulsarEdicion(Edicion boton);

  private:
    void seguir(double X, double Y);
    void avanzar(Barra& barra);
    void RetardoMovimiento();
    void esperar();
    void colocar();
    void cambiar() const;
    void copiar();

    bool hayArea(std::string_view antesDe);
    void imprimir();
    void alPortapapeles();
    void mapaDeBits();
    void reiniciar();

    Plataforma& plataforma_;
    const Dibujo& dibujo_;
    std::filesystem::path carpeta_;
    LienzoSalida* lienzo_ = nullptr;

    Recuadro HojaSalida_;
    double visorAncho_ = 0, visorAlto_ = 0;
    Barra HScroll1_, VScroll1_;
    RecuadroSeleccion recuadro_;

    bool Timer1_ = false;
    bool Esperando_ = false;                  ///< the auto-scroll waits for `Timer1`
    bool enEspera_ = false;                   ///< an event lasts until that is over
    std::int32_t UltimoX_ = 0, UltimoY_ = 0;  ///< the last place told past either edge of the viewport
};

}  // namespace bosquel
