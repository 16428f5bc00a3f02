#include "furnishing/mesa_prop.h"

#include "furnishing/calcar.h"
#include "model/metros.h"

#include <array>

namespace bosquel {

namespace {

using Colocacion = MesaProp::Colocacion;

// clang-format off
constexpr std::array<Colocacion, 1> Dist0{{
    {"0", "0", "Sin sillas"},
}};
constexpr std::array<Colocacion, 4> Dist1{{
    {"1L", "1L", "A la izquierda"},
    {"1R", "1R", "A la derecha"},
    {"1D", "1U", "Abajo"},
    {"1U", "1D", "Arriba"},
}};
constexpr std::array<Colocacion, 6> Dist2{{
    {"2UD", "2UD", "Arriba y abajo"},
    {"2RL", "2RL", "A izquierda y derecha"},
    {"2DD", "2UU", "Dos abajo"},
    {"2RR", "2DD", "Dos a la derecha"},
    {"2UU", "2LL", "Dos arriba"},
    {"2LL", "2RR", "Dos a la izquierda"},
}};
constexpr std::array<Colocacion, 4> Dist3{{
    {"3RUL", "3RUL", "En todos los lados menos abajo"},
    {"3ULD", "3ULD", "En todos los lados menos a la derecha"},
    {"3LDR", "3LDR", "En todos los lados menos arriba"},
    {"3DRU", "3DRU", "En todos los lados menos a la izquierda"},
}};
constexpr std::array<Colocacion, 3> Dist4{{
    {"4RLUD", "4RLUD", "Una en cada lado"},
    {"4RRLL", "4RRLL", "Dos a la izquierda y dos a la derecha"},
    {"4UUDD", "4UUDD", "Dos arriba y dos abajo"},
}};
constexpr std::array<Colocacion, 4> Dist5{{
    {"5URRLL", "5URRLL", "Dos a cada lado y una arriba"},
    {"5DRRLL", "5DRRLL", "Dos a cada lado y una abajo"},
    {"5LUUDD", "5LUUDD", "Dos arriba, dos abajo y una a la izquierda"},
    {"5RUUDD", "5RUUDD", "Dos arriba, dos abajo y una a la derecha"},
}};
constexpr std::array<Colocacion, 2> Dist6{{
    {"6URRLLD", "6URRLLD", "Dos a cada lado, una arriba y una abajo"},
    {"6LUUDDR", "6LUUDDR", "Dos arriba, dos abajo y una a cada lado"},
}};
// clang-format on

constexpr std::array<std::span<const Colocacion>, MesaProp::grupos> colocaciones{Dist0, Dist1, Dist2, Dist3,
                                                                                 Dist4, Dist5, Dist6};

const Colocacion* en(MesaProp::Boton boton) {
    const auto grupo = MesaProp::Dist(boton.grupo);
    const auto i = static_cast<std::size_t>(boton.indice);
    return boton.indice >= 0 && i < grupo.size() ? &grupo[i] : nullptr;
}

/// The number of chairs that a code begins with, -1 if there is no such group.
int sillasDe(std::string_view codigo) {
    const int cuantas = codigo.empty() ? -1 : codigo.front() - '0';
    return cuantas >= 0 && cuantas < MesaProp::grupos ? cuantas : -1;
}

std::optional<MesaProp::Boton> botonAlAbrir(std::string_view codigo) {
    for (int grupo = 0; grupo < MesaProp::grupos; ++grupo)
        for (int indice = 0; const Colocacion& una : MesaProp::Dist(grupo)) {
            if (una.alAbrir == codigo) return MesaProp::Boton{grupo, indice};
            ++indice;
        }
    return std::nullopt;
}

}  // namespace

/// Several fields of the table change: it is shown anew once, when this ends.
class MesaProp::Actualizando {
  public:
    explicit Actualizando(const MesaProp& dialogo) : dialogo_(dialogo) {}
    Actualizando(const Actualizando&) = delete;
    Actualizando& operator=(const Actualizando&) = delete;
    ~Actualizando() { dialogo_.escrito(); }

  private:
    const MesaProp& dialogo_;
};

MesaProp::MesaProp(Dibujo& dibujo, int indice) : DialogoMueble(dibujo, Clase::MblMesa, indice) {
    const MblMesa* mesa = this->mesa();
    if (!mesa) return;
    TxtMesaX = enMetros(mesa->MesaDimX);
    TxtMesaY = enMetros(mesa->MesaDimY);
    TxtSillaX = enMetros(mesa->AnchoSilla);
    TxtSillaY = enMetros(mesa->AltoSilla);
    sillas_ = sillasDe(mesa->ColocacionSillas);
    pulsado_ = botonAlAbrir(mesa->ColocacionSillas);
}

std::span<const Colocacion> MesaProp::Dist(int grupo) {
    return grupo >= 0 && grupo < grupos ? colocaciones[static_cast<std::size_t>(grupo)]
                                        : std::span<const Colocacion>();
}

MblMesa* MesaProp::mesa() const {
    return existe() ? dibujo().MblMesa.en(indice()) : nullptr;
}

void MesaProp::elegirSillas(int cuantas) {
    if (cuantas >= 0 && cuantas < grupos) sillas_ = cuantas;
}

void MesaProp::CambiarMedidas(MblMesa& mesa) const {
    leerMetros(mesa.MesaDimX, TxtMesaX);
    leerMetros(mesa.MesaDimY, TxtMesaY);
    leerMetros(mesa.AnchoSilla, TxtSillaX);
    leerMetros(mesa.AltoSilla, TxtSillaY);
}

void MesaProp::pulsarDist(Boton boton) {
    MblMesa* mesa = this->mesa();
    const Colocacion* colocacion = en(boton);
    if (!mesa || !colocacion) return;
    const Actualizando actualizando(*this);
    CambiarMedidas(*mesa);
    mesa->ColocacionSillas = colocacion->pone;
    pulsado_ = boton;
}

Calco MesaProp::calco(Boton boton) const {
    const Colocacion* colocacion = en(boton);
    return existe() && colocacion ? calcar(dibujo(), clase(), indice(), colocacion->pone) : Calco{};
}

void MesaProp::Aplicar() {
    MblMesa* mesa = this->mesa();
    if (!mesa) return;
    const Actualizando actualizando(*this);
    escribirColores();
    if (Check1) guardarComoModelo();
    CambiarMedidas(*mesa);
}

}  // namespace bosquel
