#pragma once

#include "platform/plataforma.h"

#include <QPointer>

namespace bosquel {

class AyudaForma;
class VentanaBosquel;

/// The seam to the outside, with Qt behind it.
class PlataformaQt : public Plataforma {
  public:
    PlataformaQt();
    PlataformaQt(const PlataformaQt&) = delete;
    PlataformaQt& operator=(const PlataformaQt&) = delete;
    ~PlataformaQt() override;

    /// The window that messages and dialogs belong to, and in which the view is shown; none before it exists.
    void ponerVentana(VentanaBosquel* ventana) { ventana_ = ventana; }

    Respuesta mensaje(const Mensaje& mensaje) override;
    void mostrar(Colores& dialogo) override;
    void mostrar(ElectricoProp& dialogo) override;
    void mostrar(Entrada& dialogo) override;
    void mostrar(EscaleraProp& dialogo) override;
    void mostrar(ImageCrop& dialogo) override;
    void mostrar(MesaProp& dialogo) override;
    void mostrar(MuebleProp& dialogo) override;
    void mostrar(Opciones& dialogo) override;
    void mostrar(Paralelas& dialogo) override;
    void mostrar(ParedProp& dialogo) override;
    void mostrar(PuertaProp& dialogo) override;
    void mostrar(VentanaProp& dialogo) override;
    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo& peticion) override;
    std::string pedirTexto(const PeticionTexto& peticion) override;
    Medida medirTexto(const std::string& texto, double FontSize) override;
    void cederEventos(Espera espera) override;
    void activar(Reloj reloj, bool activo) override;
    void ponerCursor(Cursor cursor) override;
    void ponerRelojDeArena(bool puesto) override;
    void ponerTitulo(const std::string& titulo) override;
    void mostrarAyuda(const std::filesystem::path& manual) override;
    void vistaCambiada() override;
    void repintar(const ZonaSucia& zona, const ZonaSucia& paso) override;
    void terminar() override;

  private:
    VentanaBosquel* ventana_ = nullptr;
    QPointer<AyudaForma> ayuda_;  ///< none while the help is closed
};

}  // namespace bosquel
