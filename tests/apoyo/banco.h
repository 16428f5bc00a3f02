#pragma once

#include "apoyo/carpeta_temporal.h"
#include "apoyo/plataforma_falsa.h"
#include "drawing/bosquel.h"
#include "drawing/entrada.h"
#include "drawing/opciones.h"
#include "walls/pared_prop.h"

#include <string>
#include <string_view>
#include <vector>

namespace bosquel::apoyo {

struct Punto {
    float x = 0, y = 0;
};

/// What a user types to lay a wall: where it starts, and the fields of its dialog.
struct Muro {
    Punto inicio{3000, 3000};
    int angulo = 0;
    std::string longitud = "4,00";  ///< m
    std::string_view boton = "Muro";
    std::string ancho = {};  ///< m; empty leaves what the dialog shows
};

/// A program at work in a folder of its own, and a user before it. All coordinates are sheet units of the
/// sheet.
class Banco {
  public:
    static constexpr double ventanaAncho = 1000 * 15, ventanaAlto = 700 * 15;
    static constexpr double visorAncho = ventanaAncho - 1860, visorAlto = ventanaAlto - 1600;

    /// `ajustes` is what stands in Bqr.ini when the program starts; without it there is no such file.
    explicit Banco(std::string_view ajustes = {});

    CarpetaTemporal carpeta;
    PlataformaFalsa plataforma;
    Bosquel bosquel;

    Sesion& sesion() { return bosquel.sesion(); }
    Dibujo& dibujo() { return bosquel.sesion().dibujo; }
    const HojaDibujo& hoja() { return dibujo().Hoja; }
    const MarcoDeSeleccion& marco() { return sesion().RectSel; }
    Modo modo() { return dibujo().ModoActual; }
    /// A wall that is there; the test ends if it is not.
    Pared& pared(int indice);
    Color colorDe(int pared_) { return pared(pared_).ParedPick.BackColor; }

    /// Presses a button by its caption.
    void boton(std::string_view rotulo);
    /// Presses the button that makes elements of the kind; what comes into being has the kind's last index.
    int crea(Clase clase);
    void suprimir() {
        turno([&] { bosquel.suprimir(); });
    }
    void minutos(int cuantos);

    void mueve(Punto a);
    void pulsa(Punto en);
    void suelta(Punto en);
    void clic(Punto en);
    void dobleClic(Punto en);
    /// From a press to a release elsewhere, with a stop on the way.
    void arrastra(Punto de, Punto a);

    /// The middle of a grip of a wall.
    Punto centro(const Pinza& pinza) const {
        return {pinza.Left + pinza.Lado / 2, pinza.Top + pinza.Lado / 2};
    }
    Punto inicial(int indice) { return centro(pared(indice).ParedPick); }
    Punto final(int indice) { return centro(pared(indice).ParedPickBIS); }
    Punto medio(int indice) { return centro(pared(indice).ParedPickCentro); }

    /// Button, click on the sheet, dialog, "Aplicar". Gives the wall's index.
    int ponMuro(const Muro& muro = {});
    /// What is done in the next wall dialogs.
    void enDialogoDePared(std::function<void(ParedProp&)> mano) { plataforma.alAbrirPared = std::move(mano); }

    /// Saves and opens through the file dialog, under a bare name in the program's folder.
    void guarda(const std::string& nombre);
    void abre(const std::string& nombre);
    std::filesystem::path ruta(const std::string& nombre) const { return carpeta / nombre; }
    std::string bytes(const std::string& nombre) const { return bytesDe(ruta(nombre)); }
    void pon(const std::string& nombre, std::string_view contenido) const {
        ponerBytes(ruta(nombre), contenido);
    }
    /// The lines of a file, without their ends.
    std::vector<std::string> lineas(const std::string& nombre) const;

  private:
    template <class Paso>
    void turno(Paso paso) {
        plataforma.turnos = 0;
        paso();
    }

    bool boton1_ = false;
};

/// Lines as a file holds them.
std::string enLineas(const std::vector<std::string>& lineas, std::string_view fin = "\r\n");

}  // namespace bosquel::apoyo
