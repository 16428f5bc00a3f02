#include "drawing/pinza_pared.h"

#include "drawing/arrastre.h"
#include "drawing/destino_pared.h"
#include "drawing/seleccion.h"
#include "drawing/vista.h"
#include "model/numeros.h"
#include "openings/aberturas_pared.h"
#include "walls/pared.h"

#include <algorithm>

namespace bosquel {

namespace {

/// The ends of the long sides in the order of their offsets: x and y of start and end of line 1, then of 3.
std::array<float*, 8> extremos(Pared& pared) {
    Segmento& uno = pared.lineas[0];
    Segmento& tres = pared.lineas[2];
    return {&uno.X1, &uno.Y1, &uno.X2, &uno.Y2, &tres.X1, &tres.Y1, &tres.X2, &tres.Y2};
}

/// Left and top of the end grip, then of the centre grip, in the order of their offsets.
std::array<float*, 4> otrasPinzas(Pared& pared) {
    return {&pared.ParedPickBIS.Left, &pared.ParedPickBIS.Top, &pared.ParedPickCentro.Left,
            &pared.ParedPickCentro.Top};
}

/// A row of x and y in turn, seen from the corner of the start grip: the coordinate less the offset.
template <std::size_t n>
void capturar(std::array<std::int32_t, n>& desfases, const std::array<float*, n>& lugares,
              const Pinza& pinza) {
    for (std::size_t i = 0; i < n; ++i)
        asignar(desfases[i], static_cast<double>(i % 2 == 0 ? pinza.Left : pinza.Top) - *lugares[i]);
}

template <std::size_t n>
void colocar(const std::array<std::int32_t, n>& desfases, const std::array<float*, n>& lugares,
             const Pinza& pinza) {
    for (std::size_t i = 0; i < n; ++i)
        asignar(*lugares[i], static_cast<double>(i % 2 == 0 ? pinza.Left : pinza.Top) - desfases[i]);
}

/// Puts the start grip where the dragged one, the end or the centre grip, wants it.
void seguirA(const Sesion& sesion, Pared& pared, PinzaDePared cual) {
    if (cual == PinzaDePared::inicial) return;
    const Pinza& arrastrada = *pared.pinzas()[static_cast<std::size_t>(cual)];
    const std::size_t desfase = cual == PinzaDePared::final ? 0 : 2;
    asignar(pared.ParedPick.Left, static_cast<double>(arrastrada.Left) + sesion.DesfaseGrips[desfase]);
    asignar(pared.ParedPick.Top, static_cast<double>(arrastrada.Top) + sesion.DesfaseGrips[desfase + 1]);
}

void ensuciarConAberturas(Dibujo& dibujo, const Pared& pared, const ParedEnMovimiento& movida) {
    ensuciar(dibujo, pared);
    ensuciarAberturas(dibujo, movida.aberturas);
}

/// From here to the release the wall is painted over what stands still, and its openings with it.
void empezarMovimiento(Sesion& sesion, int indice, Pared& pared) {
    if (pared.EnMovimiento) return;
    ParedEnMovimiento movida{static_cast<std::int16_t>(indice), aberturasDePared(sesion.dibujo, indice)};
    ensuciarConAberturas(sesion.dibujo, pared, movida);
    pared.EnMovimiento = true;
    sesion.paredesEnMovimiento.push_back(std::move(movida));
}

/// The openings of a wall that is being dragged are known; there may be thousands of others.
void moverAberturas(Sesion& sesion, int pared) {
    const auto& movidas = sesion.paredesEnMovimiento;
    const auto movida = std::find_if(movidas.begin(), movidas.end(),
                                     [&](const ParedEnMovimiento& una) { return una.indice == pared; });
    if (movida == movidas.end())
        MoverPuertasVentanasPared(sesion.dibujo, pared);
    else
        ColocarAberturas(sesion.dibujo, movida->aberturas);
}

void arrastrar(Sesion& sesion, int indice, PinzaDePared cual, float X, float Y) {
    Pared& pared = *sesion.dibujo.Pared.en(indice);
    empezarMovimiento(sesion, indice, pared);
    ensuciar(sesion.dibujo, pared);
    Pinza& pinza = *pared.pinzas()[static_cast<std::size_t>(cual)];
    Movimiento(sesion.dibujo.arrastre, pinza.Left, pinza.Top, X, Y);
    const Pinza bajoElPuntero = pinza;  // only the other two are placed by offsets, which round
    seguirA(sesion, pared, cual);
    colocar(sesion.DesfaseGrips, otrasPinzas(pared), pared.ParedPick);
    pinza = bajoElPuntero;
    MoverPared(sesion, indice);
}

/// Every wall of the group runs the step of a single wall, from the same sample of the pointer.
void arrastrarGrupo(Sesion& sesion, std::int16_t grupo, PinzaDePared cual, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    dibujo.GrupoEnMovimiento = grupo;
    dibujo.Pared.recorrer([&](int i, const Pared& pared) {
        if (pared.NumeroGrupo != grupo) return;
        CapturarMovimientoPared(sesion, i);
        moverPinzaPared(sesion, i, cual, true, X, Y);
    });
    dibujo.GrupoEnMovimiento = 0;
}

void senalar(Dibujo& dibujo, int indice) {
    const Pared* pared = dibujo.Pared.en(indice);
    if (pared->NumeroGrupo == 0)
        MostrarNodos(dibujo, indice);
    else if (pared->ParedPick.BackColor != verdeAzulado)
        PintaPinzasPared(dibujo, indice, verdeAzulado);
}

/// The pointer has come from another wall: that one's marks go, unless it is selected.
void cruzar(Dibujo& dibujo, int indice) {
    if (dibujo.ParedBajoPuntero == indice) return;
    const Pared* anterior = dibujo.Pared.en(dibujo.ParedBajoPuntero);
    if (anterior && anterior->ParedPick.BackColor != rojo) DeseleccionaPared(dibujo, dibujo.ParedBajoPuntero);
    dibujo.ParedBajoPuntero = static_cast<std::int16_t>(indice);
}

}  // namespace

void CapturarMovimientoPared(Sesion& sesion, int indice) {
    Pared* pared = sesion.dibujo.Pared.en(indice);
    if (!pared) return;
    capturar(sesion.DesfaseLineas, extremos(*pared), pared->ParedPick);
    capturar(sesion.DesfaseGrips, otrasPinzas(*pared), pared->ParedPick);
}

void MoverPared(Sesion& sesion, int indice) {
    Pared* pared = sesion.dibujo.Pared.en(indice);
    if (!pared) return;
    colocar(sesion.DesfaseLineas, extremos(*pared), pared->ParedPick);
    MueveTapasPared(*pared);
    GuardaLineasPared(sesion.dibujo, indice);
    ensuciar(sesion.dibujo, *pared);
    moverAberturas(sesion, indice);
}

void AlinearPared(Sesion& sesion, int indice) {
    Pared* pared = sesion.dibujo.Pared.en(indice);
    if (!pared) return;
    ensuciar(sesion.dibujo, *pared);
    CapturarMovimientoPared(sesion, indice);
    const Segmento& uno = pared->lineas[0];
    asignar(pared->ParedPick.Left,
            static_cast<double>(ajustarACuadricula(sesion.dibujo, uno.X1)) + sesion.DesfaseLineas[0]);
    asignar(pared->ParedPick.Top,
            static_cast<double>(ajustarACuadricula(sesion.dibujo, uno.Y1)) + sesion.DesfaseLineas[1]);
    colocar(sesion.DesfaseGrips, otrasPinzas(*pared), pared->ParedPick);
    MoverPared(sesion, indice);
}

void MostrarNodos(Dibujo& dibujo, int indice) {
    const Pared* pared = dibujo.Pared.en(indice);
    if (!pared || pared->ParedPick.BackColor == rojo || pared->ParedPick.BackColor == verdeAzulado) return;
    PintaPinzasPared(dibujo, indice, verdeAzulado);
}

void pulsarPinzaPared(Sesion& sesion, int indice, PinzaDePared, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    if (!dibujo.Pared.en(indice)) return;
    agarrar(dibujo.arrastre, X, Y);
    QuitarSeleccion(dibujo);
    dibujo.ElementoActual = Clase::Pared;
    dibujo.IndiceActual = static_cast<std::int16_t>(indice);
    PintaPinzasPared(dibujo, indice, rojo);
    CapturarMovimientoPared(sesion, indice);
}

void moverPinzaPared(Sesion& sesion, int indice, PinzaDePared cual, bool boton1, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    const Pared* pared = dibujo.Pared.en(indice);
    if (!pared || dibujo.ModoActual == Modo::Pared) return;
    cruzar(dibujo, indice);
    if (espera(dibujo.ModoActual)) {
        MostrarNodos(dibujo, indice);
        return;
    }
    sesion.plataforma.ponerCursor(Cursor::Flecha);
    ponerModo(sesion, Modo::Flecha);
    if (!boton1)
        senalar(dibujo, indice);
    else if (pared->NumeroGrupo != 0 && dibujo.GrupoEnMovimiento == 0)
        arrastrarGrupo(sesion, pared->NumeroGrupo, cual, X, Y);
    else
        arrastrar(sesion, indice, cual, X, Y);
}

void terminarMovimiento(Sesion& sesion) {
    for (const ParedEnMovimiento& movida : sesion.paredesEnMovimiento)
        if (Pared* pared = sesion.dibujo.Pared.en(movida.indice)) {
            pared->EnMovimiento = false;
            ensuciarConAberturas(sesion.dibujo, *pared, movida);
        }
    sesion.paredesEnMovimiento.clear();
}

void soltarPinzaPared(Sesion& sesion, int indice) {
    Dibujo& dibujo = sesion.dibujo;
    Pared* pared = dibujo.Pared.en(indice);
    if (!pared || elegirPared(sesion, indice)) return;
    if (pared->NumeroGrupo != 0 || !dibujo.Iman) return;
    AlinearPared(sesion, indice);
    for (Pinza* pinza : pared->pinzas())
        alFrente(dibujo, *pinza);
}

void dobleClicPinzaPared(Sesion& sesion, int indice) {
    if (sesion.dibujo.ModoActual == Modo::Flecha) AbreParedProp(sesion, indice);
}

}  // namespace bosquel
