#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/uniones_de_referencia.h"
#include "apoyo/uniones_muros.h"
#include "walls/paralelas.h"

#include <cmath>
#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

/// A user who lays walls and does all that can be done to them, at random, and looks after every step.
class Usuario {
  public:
    explicit Usuario(unsigned semilla) : azar_(semilla) {
        banco_.plataforma.alAbrirParalelas = [this](Paralelas& dialogo) {
            dialogo.TxtDistancia =
                std::to_string(azar_.entre(0, 20)) + "," + std::to_string(azar_.entre(0, 9));
            if (azar_.entre(0, 1) == 1) dialogo.elegido = Paralelas::Punto::Punto2;
            dialogo.Aplicar();
        };
        banco_.plataforma.alPreguntar = [this](const Mensaje& mensaje) {
            static constexpr std::array respuestas{Respuesta::si, Respuesta::no, Respuesta::cancelar};
            respuesta_ = respuestas[indice(mensaje.botones == Botones::siNoCancelar ? 3 : 2)];
            return respuesta_;
        };
        for (int i = 0; i < 6; ++i)
            pon();
    }

    /// One command, and the name of it.
    std::string paso() {
        const int suerte = azar_.entre(0, 99);
        if (suerte < 12 || presentes().size() < 3) return pon();
        if (suerte < 34) return junta("Esquina");
        if (suerte < 60) return junta("Union");
        if (suerte < 70) return arrastra();
        if (suerte < 75) return zoom();
        if (suerte < 82) return enUna("Separar");
        if (suerte < 86) return enUna("Paralela");
        if (suerte < 92) return elimina();
        if (suerte < 95) return edita();
        if (suerte < 97) return cambiaIman();
        return guardaYAbre();
    }

    void comprueba() {
        banco_.dibujo().Pared.recorrer([&](int i, const Pared& p) {
            if (!p.lineas[0].Visible) return;  // it waits for its place
            SCOPED_TRACE("wall " + std::to_string(i));
            compruebaNumeros(p);
            compruebaTapas(p);
            EXPECT_EQ(p.InicialX, p.lineas[0].X1);
            EXPECT_EQ(p.InicialY, p.lineas[0].Y1);
            EXPECT_GE(p.NumeroGrupo, 0);
            EXPECT_LE(p.NumeroGrupo, banco_.dibujo().TotalGrupos);
            EXPECT_LT(i, banco_.dibujo().Pared.contador);
            EXPECT_FALSE(p.EnMovimiento);
        });
        EXPECT_EQ(banco_.dibujo().GrupoEnMovimiento, 0);
        EXPECT_TRUE(std::isfinite(banco_.dibujo().PuntoUnionX));
        EXPECT_TRUE(std::isfinite(banco_.dibujo().PuntoUnionY));
        EXPECT_FALSE(banco_.sesion().Ocupado);
    }

    int uniones = 0, cortes = 0;

  private:
    std::size_t indice(int de) { return static_cast<std::size_t>(azar_.entre(0, de - 1)); }

    std::vector<int> presentes() {
        std::vector<int> indices;
        banco_.dibujo().Pared.recorrer([&](int i, const Pared&) { indices.push_back(i); });
        return indices;
    }
    int una() {
        const auto todas = presentes();
        return todas[indice(static_cast<int>(todas.size()))];
    }

    std::string pon() {
        static const int angulos[]{0, 0, 90, 90, -90, 30, -30, 45, -45, 60, -75, 15, 1, -89, 120};
        static constexpr std::array<std::string_view, 3> tipos{"Muro", "Tabique", "Pilar"};
        banco_.boton("División");
        banco_.ponMuro(
            {.inicio = {static_cast<float>(100 * azar_.entre(10, 60)),
                        static_cast<float>(100 * azar_.entre(10, 60))},
             .angulo = angulos[indice(15)],
             .longitud = std::to_string(azar_.entre(1, 7)) + "," + std::to_string(azar_.entre(0, 99)),
             .boton = tipos[indice(3)]});
        return "wall";
    }

    /// A grip that no other one hides, so that the click falls on it.
    bool clicEn(int pared) {
        for (const Pinza* pinza : banco_.pared(pared).pinzas()) {
            const Punto medio = banco_.centro(*pinza);
            const auto diana = dianaBajo(banco_.sesion(), medio.x, medio.y);
            if (!diana || diana->indice != pared) continue;
            banco_.clic(medio);
            return true;
        }
        return false;
    }

    std::string junta(const char* boton) {
        const int uno = una(), dos = una();
        banco_.boton(boton);
        if (!clicEn(uno)) return std::string(boton) + " (hidden)";
        PlanoDeReferencia plano(banco_.dibujo());
        const auto mensajes = banco_.plataforma.mensajes.size();
        if (!clicEn(dos)) return std::string(boton) + " (hidden)";
        std::string hecho = "same wall";
        if (uno != dos)
            hecho = std::string(boton) == "Esquina" ? plano.esquina(uno, dos) : plano.unir(uno, dos);
        const bool avisa = hecho == "same wall" || hecho == "paralelas" || hecho == "fuera";
        EXPECT_EQ(banco_.plataforma.mensajes.size() > mensajes, avisa) << hecho;
        if (hecho == "fuera" && respuesta_ == Respuesta::si) plano.esquina(uno, dos);
        comparar(banco_.dibujo(), plano);
        if (!avisa) ++uniones;
        if (!avisa && hecho != "esquina" && !hecho.empty()) ++cortes;
        return std::string(boton) + ": " + hecho;
    }

    std::string enUna(const char* boton) {
        banco_.boton(boton);
        clicEn(una());
        return boton;
    }

    std::string arrastra() {
        const int cual = una();
        const Punto de = banco_.medio(cual);
        banco_.arrastra(de, {de.x + static_cast<float>(azar_.entre(-700, 700)) / 3,
                             de.y + static_cast<float>(azar_.entre(-700, 700)) / 3});
        return "drag";
    }

    std::string elimina() {
        banco_.boton("Definir");
        clicEn(una());
        banco_.suprimir();
        return "delete";
    }

    std::string edita() {
        const int cual = una();
        banco_.enDialogoDePared([this](ParedProp& dialogo) {
            dialogo.elegirAngulo(azar_.entre(1, 13));
            dialogo.Aplicar();
        });
        banco_.dobleClic(banco_.medio(cual));
        banco_.enDialogoDePared(nullptr);
        return "edit";
    }

    std::string zoom() {
        banco_.boton("Zoom");
        return "zoom";
    }

    std::string cambiaIman() {
        banco_.dibujo().Iman = !banco_.dibujo().Iman;
        return "snap";
    }

    std::string guardaYAbre() {
        banco_.guarda("a.bqr");
        banco_.abre("a.bqr");
        banco_.guarda("b.bqr");
        EXPECT_EQ(banco_.bytes("b.bqr"), enLineas(trasAbrir(banco_.lineas("a.bqr"))))
            << "opening and saving gives the same drawing";
        return "save and open";
    }

    static void compruebaNumeros(const Pared& p) {
        for (const Segmento& linea : p.lineas)
            for (const float valor : {linea.X1, linea.Y1, linea.X2, linea.Y2})
                EXPECT_TRUE(std::isfinite(valor));
        for (const Pinza* pinza : p.pinzas()) {
            EXPECT_TRUE(std::isfinite(pinza->Left));
            EXPECT_TRUE(std::isfinite(pinza->Top));
        }
        EXPECT_TRUE(std::isfinite(p.Longitud));
    }

    static void compruebaTapas(const Pared& p) {
        const Segmento &uno = p.lineas[0], &tres = p.lineas[2];
        EXPECT_EQ(p.lineas[1], (Segmento{uno.X1, uno.Y1, tres.X1, tres.Y1, p.lineas[1].Visible}));
        EXPECT_EQ(p.lineas[3], (Segmento{uno.X2, uno.Y2, tres.X2, tres.Y2, p.lineas[3].Visible}));
        EXPECT_EQ((Segmento{p.InicialX, p.InicialY, p.Linea1X2, p.Linea1Y2, true}), uno);
        EXPECT_EQ((Segmento{p.Linea3X1, p.Linea3Y1, p.Linea3X2, p.Linea3Y2, true}), tres);
    }

    Azar azar_;
    Banco banco_;
    Respuesta respuesta_ = Respuesta::no;  ///< to the last question
};

class UnionAlAzar : public testing::TestWithParam<unsigned> {};

}  // namespace

TEST_P(UnionAlAzar, TodoSigueEnPieTrasCadaPaso) {
    Usuario usuario(GetParam());
    std::string ultimos;
    for (int i = 0; i < 400 && !testing::Test::HasFailure(); ++i) {
        ultimos.erase(0, ultimos.size() > 300 ? ultimos.size() - 300 : 0);
        ultimos.append(" | ").append(usuario.paso());
        SCOPED_TRACE("step " + std::to_string(i) + ultimos);
        usuario.comprueba();
    }
    EXPECT_GT(usuario.uniones, 20);
    EXPECT_GT(usuario.cortes, 5);
}

INSTANTIATE_TEST_SUITE_P(Semillas, UnionAlAzar, testing::Range(1U, 13U));

}  // namespace bosquel::apoyo
