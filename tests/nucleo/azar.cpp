#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Idioma;
using apoyo::Punto;
using apoyo::trasAbrir;

namespace {

/// A user without a plan: any button, any press, any text in any dialog.
class Usuario {
  public:
    Usuario(Banco& banco, unsigned semilla) : banco_(banco), azar_(semilla) {
        banco_.plataforma.alPreguntar = [this](const Mensaje&) {
            return cualquiera(std::array{Respuesta::si, Respuesta::no, Respuesta::cancelar});
        };
        banco_.enDialogoDePared([this](ParedProp& dialogo) { conPared(dialogo); });
        banco_.plataforma.alAbrirOpciones = [this](Opciones& dialogo) { conOpciones(dialogo); };
    }

    void actua() {
        switch (entre(0, 24)) {
            case 0: return banco_.boton(cualquiera(std::array{"Muro", "Tabique", "Pilar"}));
            case 1:
                return banco_.boton(
                    cualquiera(std::array{"Muebles", "Baño", "Cocina", "División", "Eléctrico"}));
            case 2: return banco_.boton("Zoom");
            case 3: return banco_.boton(cualquiera(std::array{"Definir", "Opciones", "Salir"}));
            case 4: return entre(0, 3) == 0 ? banco_.boton("Eliminar") : banco_.suprimir();
            case 5: return entre(0, 30) == 0 ? banco_.boton("Nuevo") : banco_.minutos(entre(1, 3));
            case 6: return conBarras();
            case 7: return conRegla();
            case 8: return banco_.dobleClic(lugar());
            case 9: return agrupa();
            case 10:
            case 11: return banco_.pulsa(lugar());
            case 12:
            case 13: return banco_.suelta(lugar());
            case 14:
            case 15: return banco_.arrastra(lugar(), lugar());
            case 16:
            case 17: return banco_.clic(lugar());
            default: return banco_.mueve(lugar());
        }
    }

  private:
    int entre(int a, int b) { return std::uniform_int_distribution(a, b)(azar_); }
    float real(float a, float b) { return std::uniform_real_distribution(a, b)(azar_); }
    template <class Cosas>
    typename Cosas::value_type cualquiera(const Cosas& cosas) {
        return cosas[static_cast<std::size_t>(entre(0, static_cast<int>(cosas.size()) - 1))];
    }

    /// A grip of a wall as often as not.
    Punto lugar() {
        const int ultimo = banco_.dibujo().Pared.ultimo();
        const int indice = ultimo > 0 && entre(0, 1) == 0 ? entre(1, ultimo) : 0;
        if (indice == 0 || !banco_.dibujo().Pared.existe(indice))
            return {real(-500, 20000), real(-500, 20000)};
        const Pinza& pinza = *banco_.pared(indice).pinzas()[static_cast<std::size_t>(entre(0, 2))];
        return {pinza.Left + real(0, 90), pinza.Top + real(0, 90)};
    }

    std::string numero() {
        if (entre(0, 9) == 0) return cualquiera(std::array{"", ",", "abc", "1e999", "-3", "99999999999"});
        return std::to_string(entre(0, 20)) + cualquiera(std::array{",", "."}) + std::to_string(entre(0, 99));
    }

    void conPared(ParedProp& dialogo) {
        dialogo.txtLongitud = numero();
        dialogo.TxtAnchoMuro = numero();
        dialogo.TxtAnchoTabique = numero();
        if (entre(0, 1) == 0)
            dialogo.elegirAngulo(entre(0, 14));
        else
            dialogo.TxtAngulo = std::to_string(entre(-90, entre(0, 9) == 0 ? 999 : 90));
        if (!dialogo.esPilar()) dialogo.elegirTipo(entre(0, 1));
        dialogo.ChkPredeterminar = entre(0, 5) == 0;
        entre(0, 6) == 0 ? dialogo.Cancelar() : dialogo.Aplicar();
    }

    void conOpciones(Opciones& dialogo) {
        if (entre(0, 5) == 0) dialogo.Restablecer();
        dialogo.TxtAnchoHoja = std::to_string(entre(1, 500));
        dialogo.TxtCuadricula = numero();
        dialogo.ChkIman = entre(0, 1) == 0;
        dialogo.ChkVisible = entre(0, 1) == 0;
        dialogo.txtSalvarCadaXmin = std::to_string(entre(0, 9));
        entre(0, 3) == 0 ? dialogo.Predeterminar() : dialogo.AplicarValores();
    }

    void conBarras() {
        banco_.bosquel.cambiarHScroll1(entre(0, 100));
        banco_.bosquel.cambiarVScroll1(entre(0, 100));
        banco_.bosquel.redimensionar(real(2000, 30000), real(1700, 30000));
    }

    void conRegla() {
        banco_.bosquel.pulsarRegla(real(0, 380), real(0, 3000));
        banco_.bosquel.moverRegla(entre(0, 3) > 0, real(0, 380), real(0, 3000));
        if (entre(0, 3) == 0) banco_.bosquel.soltarRegla();
    }

    /// What the joins will do.
    void agrupa() {
        banco_.dibujo().Pared.recorrer([this](int, Pared& pared) {
            if (entre(0, 4) == 0) pared.NumeroGrupo = static_cast<std::int16_t>(entre(0, 3));
        });
    }

    Banco& banco_;
    std::mt19937 azar_;
};

bool finito(const Segmento& s) {
    return std::isfinite(s.X1) && std::isfinite(s.Y1) && std::isfinite(s.X2) && std::isfinite(s.Y2);
}

void esperarEntera(const Pared& pared) {
    const auto& [uno, dos, tres, cuatro] = pared.lineas;
    for (const Segmento& linea : pared.lineas)
        ASSERT_TRUE(finito(linea));
    for (const Pinza* pinza : pared.pinzas())
        ASSERT_TRUE(std::isfinite(pinza->Left) && std::isfinite(pinza->Top));
    ASSERT_TRUE(std::isfinite(pared.Longitud) && std::isfinite(pared.AnchoMuro) &&
                std::isfinite(pared.AnchoTabique));
    if (!uno.Visible) return;
    ASSERT_EQ(dos, (Segmento{uno.X1, uno.Y1, tres.X1, tres.Y1, dos.Visible}));
    ASSERT_EQ(cuatro, (Segmento{uno.X2, uno.Y2, tres.X2, tres.Y2, cuatro.Visible}));
    ASSERT_EQ(pared.InicialX, uno.X1);
    ASSERT_EQ(pared.InicialY, uno.Y1);
    ASSERT_EQ(pared.Linea1X2, uno.X2);
    ASSERT_EQ(pared.Linea3Y2, tres.Y2);
    ASSERT_EQ(pared.Estado, "Edicion");
}

void esperarEntero(Banco& banco) {
    const Dibujo& dibujo = banco.dibujo();
    dibujo.Pared.recorrer([](int, const Pared& pared) { esperarEntera(pared); });
    const HojaDibujo& hoja = dibujo.Hoja;
    ASSERT_TRUE(std::isfinite(hoja.Left) && std::isfinite(hoja.Top) && std::isfinite(hoja.Width) &&
                std::isfinite(hoja.Height));
    ASSERT_TRUE(std::isfinite(dibujo.Cuadricula) && std::isfinite(dibujo.FactorZoomActual));
    ASSERT_LT(dibujo.Pared.ultimo(), dibujo.Pared.contador);
    ASSERT_EQ(dibujo.GrupoEnMovimiento, 0);
    ASSERT_FALSE(dibujo.Pared.modelo().lineas[0].Visible);
    ASSERT_FALSE(banco.sesion().GuardandoAuto);
    ASSERT_FALSE(banco.sesion().EjecutandoZoom);
    for (const Barra& barra : {banco.sesion().HScroll1, banco.sesion().VScroll1})
        ASSERT_TRUE(barra.valor >= 0 && barra.valor <= 100);
}

/// A wall that never got its place comes back drawn, so it cannot come back the same.
bool hayPendientes(const Dibujo& dibujo) {
    bool hay = false;
    dibujo.Pared.recorrer([&](int, const Pared& pared) { hay = hay || !pared.lineas[0].Visible; });
    return hay;
}

/// Saved, opened and saved again, the drawing is the same text, but for what opening adds.
void esperarQueVuelva(Banco& banco) {
    banco.plataforma.archivos.clear();
    banco.guarda("plano.bqr");
    if (hayPendientes(banco.dibujo())) return;
    Banco otro;
    otro.pon("plano.bqr", banco.bytes("plano.bqr"));
    otro.abre("plano.bqr");
    otro.guarda("plano.bqr");
    ASSERT_EQ(otro.bytes("plano.bqr"), apoyo::enLineas(trasAbrir(banco.lineas("plano.bqr"))));
}

}  // namespace

class Azar : public testing::TestWithParam<unsigned> {};

TEST_P(Azar, HagaLoQueHagaElUsuarioElDibujoSigueEntero) {
    const Idioma idioma(GetParam() % 2 == 0 ? Idioma::espanol : Idioma::ingles);
    Banco banco;
    Usuario usuario(banco, GetParam());
    int muros = 0;
    for (int paso = 1; paso <= 2000; ++paso) {
        ASSERT_NO_THROW(usuario.actua()) << "step " << paso;
        ASSERT_NO_FATAL_FAILURE(esperarEntero(banco)) << "step " << paso;
        muros = std::max(muros, static_cast<int>(banco.dibujo().Pared.contador));
        if (paso % 250 == 0) {
            ASSERT_NO_FATAL_FAILURE(esperarQueVuelva(banco)) << "step " << paso;
        }
    }
    EXPECT_GT(muros, 20) << "a user who drew nothing has shown nothing";
}

INSTANTIATE_TEST_SUITE_P(Semillas, Azar, testing::Range(1U, 9U));
