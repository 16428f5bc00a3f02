#pragma once

#include "platform/plataforma.h"

#include <deque>
#include <functional>
#include <vector>

namespace bosquel::apoyo {

/// A platform without windows: it plays what the test has laid out for it and remembers what it was asked.
class PlataformaFalsa : public Plataforma {
  public:
    // What the user will do. A question without an answer fails the test; a dialog without a hand is closed
    // by its close box.
    std::deque<Respuesta> respuestas;
    std::function<Respuesta(const Mensaje&)> alPreguntar;  ///< answers in the place of `respuestas`
    std::deque<std::filesystem::path> archivos;            ///< an empty path, or none left, is a cancel
    std::deque<std::string>
        textos;  ///< for the boxes that ask for one; an empty one, or none left, is a cancel
    std::function<void(Colores&)> alAbrirColores;
    std::function<void(ElectricoProp&)> alAbrirElectrico;
    std::function<void(EscaleraProp&)> alAbrirEscalera;
    std::function<void(ImageCrop&)> alAbrirImageCrop;
    std::function<void(MesaProp&)> alAbrirMesa;
    std::function<void(MuebleProp&)> alAbrirMueble;
    std::function<void(Entrada&)> alAbrirEntrada;
    std::function<void(Opciones&)> alAbrirOpciones;
    std::function<void(ParedProp&)> alAbrirPared;
    std::function<void(PuertaProp&)> alAbrirPuerta;
    std::function<void(VentanaProp&)> alAbrirVentana;
    std::function<void(Paralelas&)> alAbrirParalelas;
    std::function<void()> alCederEventos, alPonerTitulo;

    // What has been asked.
    std::vector<Mensaje> mensajes;
    std::vector<PeticionArchivo> peticiones;
    std::vector<PeticionTexto> preguntasDeTexto;
    std::vector<Cursor> cursores;
    std::vector<std::string> titulos;
    std::vector<std::filesystem::path> ayudas;
    std::vector<bool> relojesDeArena;
    std::vector<bool> autoSave;  ///< what the timer was told, on or off
    std::vector<bool> timer2;
    std::vector<ZonaSucia> repintados, pasos;
    std::vector<Espera> esperas;
    int turnos = 0;  ///< of waiting, since somebody last set it back
    int dialogosDePuerta = 0, dialogosDeVentana = 0;
    int dialogosDeColores = 0, dialogosDeElectrico = 0, dialogosDeEscalera = 0, dialogosDeImageCrop = 0;
    int dialogosDeMesa = 0, dialogosDeMueble = 0;
    int entradas = 0, dialogosDePared = 0, dialogosDeOpciones = 0, dialogosDeParalelas = 0;
    int vistas = 0;
    bool terminado = false;

    Cursor cursor() const { return cursores.empty() ? Cursor::Cruz : cursores.back(); }
    std::string titulo() const { return titulos.empty() ? std::string{} : titulos.back(); }
    bool relojDeArena() const { return !relojesDeArena.empty() && relojesDeArena.back(); }
    bool autoSaveActivo() const { return !autoSave.empty() && autoSave.back(); }

    Respuesta mensaje(const Mensaje& mensaje) override;
    void mostrar(Colores& dialogo) override;
    void mostrar(ElectricoProp& dialogo) override;
    void mostrar(Entrada& dialogo) override;
    void mostrar(EscaleraProp& dialogo) override;
    void mostrar(ImageCrop& dialogo) override;
    void mostrar(MesaProp& dialogo) override;
    void mostrar(MuebleProp& dialogo) override;
    void mostrar(Opciones& dialogo) override;
    void mostrar(ParedProp& dialogo) override;
    void mostrar(PuertaProp& dialogo) override;
    void mostrar(VentanaProp& dialogo) override;
    void mostrar(Paralelas& dialogo) override;
    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo& peticion) override;
    std::string pedirTexto(const PeticionTexto& peticion) override;
    /// 100 units a letter, 10 times as high as the font's points.
    Medida medirTexto(const std::string& texto, double FontSize) override {
        return {100.0 * static_cast<double>(texto.size()), 10 * FontSize};
    }
    void cederEventos(Espera espera) override;
    void activar(Reloj reloj, bool activo) override;
    void ponerCursor(Cursor cursor) override { cursores.push_back(cursor); }
    void ponerRelojDeArena(bool puesto) override { relojesDeArena.push_back(puesto); }
    void ponerTitulo(const std::string& titulo) override {
        titulos.push_back(titulo);
        if (alPonerTitulo) alPonerTitulo();
    }
    void mostrarAyuda(const std::filesystem::path& manual) override { ayudas.push_back(manual); }
    void vistaCambiada() override { ++vistas; }
    void repintar(const ZonaSucia& zona, const ZonaSucia& paso) override;
    void terminar() override { terminado = true; }
};

}  // namespace bosquel::apoyo
