#pragma once

#include "platform/plataforma.h"

namespace bosquel::apoyo {

/// A platform to which nothing is of any interest.
class PlataformaMuda : public Plataforma {
  public:
    Respuesta mensaje(const Mensaje&) override { return Respuesta::cancelar; }
    void mostrar(Colores&) override {}
    void mostrar(ElectricoProp&) override {}
    void mostrar(Entrada&) override {}
    void mostrar(EscaleraProp&) override {}
    void mostrar(ImageCrop&) override {}
    void mostrar(MesaProp&) override {}
    void mostrar(MuebleProp&) override {}
    void mostrar(Opciones&) override {}
    void mostrar(Paralelas&) override {}
    void mostrar(ParedProp&) override {}
    void mostrar(PuertaProp&) override {}
    void mostrar(VentanaProp&) override {}
    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo&) override {
        return std::nullopt;
    }
    std::string pedirTexto(const PeticionTexto&) override { return {}; }
    Medida medirTexto(const std::string&, double) override { return {}; }
    void cederEventos(Espera) override {}
    void activar(Reloj, bool) override { ++activaciones; }
    void ponerCursor(Cursor) override {}
    void ponerRelojDeArena(bool) override {}
    void ponerTitulo(const std::string&) override {}
    void mostrarAyuda(const std::filesystem::path&) override {}
    void vistaCambiada() override {}
    void repintar(const ZonaSucia&, const ZonaSucia&) override {}
    void terminar() override {}

    int activaciones = 0;  ///< of the auto-save timer
};

}  // namespace bosquel::apoyo
