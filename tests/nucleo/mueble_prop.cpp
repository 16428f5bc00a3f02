#include "furnishing/mueble_prop.h"

#include "apoyo/banco.h"
#include "apoyo/idioma.h"
#include "furnishing/calcar.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

using namespace bosquel;
using apoyo::Idioma;
using Textos = std::vector<std::string>;

namespace {

constexpr Color verde = 0x00FF00, rosa = 0xC0C0FF;

/// A kind as its dialog tells it: title, captions of the fields, captions of the options, codes of `Dist`.
struct Fila {
    Clase clase;
    std::string titulo;
    Textos campos, opciones;
    bool escurridor;
    Textos codigos;
    bool fondo;
};

const Textos deLado{"N", "E", "S", "W"};
const Textos deMano{"NR", "NL", "WU", "WD", "SR", "SL", "EU", "ED"};

// clang-format off
const std::vector<Fila> filas{
    {Clase::MblSilla, "Propiedades de silla", {"TxtSilla Medida del lado:"}, {}, false, {"Norte", "Este", "Oeste", "Sur"}, true},
    {Clase::MblCama90, "Propiedades de cama", {}, {}, false, deMano, true},
    {Clase::MblCama130, "Propiedades de Cama", {}, {}, false, {"S", "W", "N", "E"}, true},
    {Clase::MblArmario, "Propiedades Armario", {"TxtDimX Horizontal", "TxtDimY Vertical"}, {}, false, {}, true},
    {Clase::MblAsiento, "Propiedades de asientos", {"TxtAncho Ancho", "TxtFondo Fondo"}, {"Option1_1 1", "Option1_2 2", "Option1_3 3", "Option1_4 4"}, false, deLado, true},
    {Clase::MblInodoro, "Propiedades de Inodoro", {}, {}, false, deLado, false},
    {Clase::MblLavabo, "Propiedades de Lavabo", {}, {}, false, deLado, false},
    {Clase::MblBidet, "Propiedades Bidet", {}, {}, false, deLado, false},
    {Clase::MblBañera, "Propiedades de Bañera", {}, {"Longitud_0 1,00", "Longitud_1 1,20", "Longitud_2 1,40", "Longitud_3 1,60", "Longitud_4 1,80", "Longitud_5 2,00"}, false, deLado, false},
    {Clase::MblDucha, "Propiedades Ducha", {}, {}, false, {"60", "65", "70"}, false},
    {Clase::MblUrinario, "Propiedades de Urinario", {}, {}, false, deLado, false},
    {Clase::MblCocina, "Propiedades Cocina", {}, {}, false, {"50", "60"}, true},
    {Clase::MblNevera, "Propiedades Nevera", {}, {}, false, deMano, true},
    {Clase::MblFregadero, "Propiedades de Fregadero", {}, {"OptNumSenos_1 1", "OptNumSenos_2 2", "OptNumSenos_3 3"}, true, deMano, true},
    {Clase::MblLavadora, "Propiedades Lavadora", {}, {}, false, {"50", "60"}, true},
    {Clase::MblLavadero, "Propiedades Lavadero", {}, {}, false, deLado, true},
    {Clase::MblVertedero, "Propiedades Vertedero", {}, {}, false, deLado, true},
};
// clang-format on

struct PruebaMueble : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    int escrituras = 0;

    MblSilla& silla() { return en(dibujo.MblSilla); }
    MblArmario& armario() { return en(dibujo.MblArmario); }
    MblAsiento& asiento() { return en(dibujo.MblAsiento); }
    MblBañera& bañera() { return en(dibujo.MblBañera); }
    MblFregadero& fregadero() { return en(dibujo.MblFregadero); }

    template <class T>
    static T& en(Coleccion<T>& coleccion) {
        return coleccion.existe(1) ? *coleccion.en(1) : coleccion.crear(1);
    }
    void crear(Clase clase) {
        conColeccion(dibujo, clase, [](auto& coleccion) { coleccion.crear(1); });
    }
    /// The layout of element 0 or 1 of a kind; nothing for a kind without one.
    std::optional<std::string> orientacion(Clase clase, int indice = 1) {
        std::optional<std::string> texto;
        conColeccion(dibujo, clase, [&](auto& coleccion) {
            if constexpr (requires { coleccion.modelo().Orientacion; })
                texto = coleccion.en(indice)->Orientacion;
        });
        return texto;
    }
    void escuchar(MuebleProp& dialogo) {
        dialogo.alEscribir = [this] { ++escrituras; };
    }
    bool anunciado(Clase clase) {
        return !dibujo.cambiados.empty() && dibujo.cambiados.back() == Referencia{clase, 1};
    }
};

}  // namespace

using MueblePropTabla = PruebaMueble;
using MueblePropAbrir = PruebaMueble;
using MueblePropPulsar = PruebaMueble;
using MueblePropAplicar = PruebaMueble;
using MueblePropModelo = PruebaMueble;
using MueblePropFalta = PruebaMueble;
using BañeraProp = PruebaMueble;

TEST_F(MueblePropTabla, CadaDialogoTieneSuTituloSusCamposYSusBotones) {
    EXPECT_EQ(filas.size(), 17U);
    for (const Fila& fila : filas) {
        crear(fila.clase);
        const MuebleProp dialogo(dibujo, fila.clase, 1);
        const FichaMueble& ficha = dialogo.ficha();
        EXPECT_EQ(ficha.clase, fila.clase);
        EXPECT_EQ(ficha.titulo, fila.titulo);
        Textos campos;
        for (const CampoMueble& campo : ficha.campos)
            campos.push_back(std::string(campo.control) + " " + std::string(campo.rotulo));
        EXPECT_EQ(campos, fila.campos) << fila.titulo;
        Textos opciones;
        for (const OpcionMueble& opcion : ficha.opciones.opciones)
            opciones.push_back(std::string(ficha.opciones.control) + "_" + std::to_string(opcion.indice) +
                               " " + std::string(opcion.rotulo));
        EXPECT_EQ(opciones, fila.opciones) << fila.titulo;
        Textos codigos;
        for (const CodigoDist& codigo : ficha.Dist.codigos)
            codigos.emplace_back(codigo.codigo);
        EXPECT_EQ(codigos, fila.codigos) << fila.titulo;
        EXPECT_EQ(ficha.ChkEscurridor != nullptr, fila.escurridor) << fila.titulo;
        EXPECT_EQ(dialogo.conFondo(), fila.fondo) << fila.titulo;
    }
    EXPECT_EQ(fichaDe(Clase::MblFregadero).opciones.titulo, "Número de Senos");
}

TEST_F(MueblePropAbrir, EstaPulsadoElBotonDeSuOrientacion) {
    for (const Fila& fila : filas)
        for (std::size_t i = 0; i < fila.codigos.size(); ++i) {
            crear(fila.clase);
            conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
                if constexpr (requires { coleccion.modelo().Orientacion; })
                    coleccion.en(1)->Orientacion = fila.codigos[i];
            });
            EXPECT_EQ(MuebleProp(dibujo, fila.clase, 1).pulsado(), static_cast<int>(i)) << fila.titulo;
        }
}

TEST_F(MueblePropAbrir, UnaOrientacionDesconocidaNoPulsaNinguno) {
    silla().Orientacion = "N";
    armario();
    EXPECT_EQ(MuebleProp(dibujo, Clase::MblSilla, 1).pulsado(), -1);
    EXPECT_EQ(MuebleProp(dibujo, Clase::MblArmario, 1).pulsado(), -1);
}

TEST_F(MueblePropAbrir, MuestraLasMedidasEnMetrosYLosColores) {
    asiento().AnchoAsiento = 1234565;
    asiento().FondoAsiento = 655;
    asiento().LineColor = verde;
    asiento().BackColor = rosa;
    const MuebleProp dialogo(dibujo, Clase::MblAsiento, 1);
    EXPECT_EQ(dialogo.medidas, (Textos{"1.234,57", "0,66"}));
    EXPECT_EQ(dialogo.txtLineColor, verde);
    EXPECT_EQ(dialogo.txtBackColor, rosa);
    EXPECT_FALSE(dialogo.Check1);
    armario().DimX = 1500;
    armario().DimY = 600;
    EXPECT_EQ(MuebleProp(dibujo, Clase::MblArmario, 1).medidas, (Textos{"1,50", "0,60"}));
}

TEST_F(MueblePropAbrir, ConPuntoDecimalLasMedidasLoLlevan) {
    const Idioma ingles(Idioma::ingles);
    silla().AnchoSilla = 1234565;
    EXPECT_EQ(MuebleProp(dibujo, Clase::MblSilla, 1).medidas, (Textos{"1,234.57"}));
}

TEST_F(MueblePropAbrir, EstaPuestaLaOpcionDeSuNumero) {
    for (int n = 1; n <= 4; ++n) {
        asiento().NumeroAsientos = n;
        EXPECT_EQ(MuebleProp(dibujo, Clase::MblAsiento, 1).opcion(), n - 1);
    }
    for (int n = 1; n <= 3; ++n) {
        fregadero().NumeroSenos = n;
        EXPECT_EQ(MuebleProp(dibujo, Clase::MblFregadero, 1).opcion(), n - 1);
    }
    for (const double fuera : {0.0, 5.0, 2.5}) {
        asiento().NumeroAsientos = fuera;
        EXPECT_EQ(MuebleProp(dibujo, Clase::MblAsiento, 1).opcion(), -1);
    }
    silla();
    EXPECT_EQ(MuebleProp(dibujo, Clase::MblSilla, 1).opcion(), -1);
}

TEST_F(MueblePropAbrir, ElEscurridorSeMarcaSiLoHay) {
    for (const bool hay : {true, false}) {
        fregadero().Escurridor = hay ? 1 : 0;
        EXPECT_EQ(MuebleProp(dibujo, Clase::MblFregadero, 1).escurridor(), hay);
    }
    silla();
    EXPECT_FALSE(MuebleProp(dibujo, Clase::MblSilla, 1).escurridor());
}

TEST_F(BañeraProp, AlAbrirLuceElBotonDeSuLongitudYConOtraNinguno) {
    for (const char* idiomaDelUsuario : {Idioma::espanol, Idioma::ingles}) {
        const Idioma otro(idiomaDelUsuario);
        for (int i = 0; i < 6; ++i) {
            bañera().Longitud = 1000 + 200 * i;
            EXPECT_EQ(MuebleProp(dibujo, Clase::MblBañera, 1).opcion(), i);
        }
        for (const double otra : {1100.0, 800.0, 2200.0}) {
            bañera().Longitud = otra;
            EXPECT_EQ(MuebleProp(dibujo, Clase::MblBañera, 1).opcion(), -1);
        }
    }
}

TEST_F(BañeraProp, CuentaElNumeroDelBotonEnCualquierIdioma) {
    for (const char* idiomaDelUsuario : {Idioma::espanol, Idioma::ingles}) {
        const Idioma otro(idiomaDelUsuario);
        bañera();
        MuebleProp dialogo(dibujo, Clase::MblBañera, 1);
        for (int i = 0; i < 6; ++i) {
            dialogo.elegirOpcion(i);
            EXPECT_EQ(bañera().Longitud, 1000 + 200 * i);
            EXPECT_EQ(dialogo.opcion(), i);
        }
    }
}

TEST_F(MueblePropPulsar, CadaBotonEscribeSuCodigoEnElActo) {
    for (const Fila& fila : filas) {
        crear(fila.clase);
        MuebleProp dialogo(dibujo, fila.clase, 1);
        escuchar(dialogo);
        for (std::size_t i = 0; i < fila.codigos.size(); ++i) {
            escrituras = 0;
            dialogo.pulsarDist(static_cast<int>(i));
            EXPECT_EQ(orientacion(fila.clase), fila.codigos[i]) << fila.titulo;
            EXPECT_EQ(dialogo.pulsado(), static_cast<int>(i)) << fila.titulo;
            EXPECT_TRUE(anunciado(fila.clase)) << fila.titulo;
            EXPECT_EQ(escrituras, 1);
        }
    }
}

TEST_F(MueblePropPulsar, LaSillaEscribeAntesSuMedida) {
    silla();
    MuebleProp dialogo(dibujo, Clase::MblSilla, 1);
    dialogo.medidas[0] = "0,5";
    dialogo.pulsarDist(0);
    EXPECT_EQ(silla().AnchoSilla, 500);
    EXPECT_EQ(silla().Orientacion, "Norte");
}

TEST_F(MueblePropPulsar, UnaMedidaQueNoEsNumeroSeQuedaComoEstabaYLaDireccionSeEscribe) {
    silla();
    MuebleProp dialogo(dibujo, Clase::MblSilla, 1);
    for (const char* texto : {"", ",", "1,2,3m", "nada"}) {
        dialogo.medidas[0] = texto;
        dialogo.pulsarDist(1);
        EXPECT_EQ(silla().AnchoSilla, 450) << texto;
        EXPECT_EQ(silla().Orientacion, "Este");
    }
}

TEST_F(MueblePropPulsar, LasDemasMedidasEsperanAAplicar) {
    asiento();
    MuebleProp dialogo(dibujo, Clase::MblAsiento, 1);
    dialogo.medidas[0] = "0,9";
    dialogo.txtLineColor = verde;
    dialogo.pulsarDist(1);
    EXPECT_EQ(asiento().AnchoAsiento, 600);
    EXPECT_EQ(asiento().LineColor, colorTextoVentana);
}

TEST_F(MueblePropPulsar, LasOpcionesYElEscurridorEscribenEnElActo) {
    asiento();
    fregadero();
    MuebleProp asientos(dibujo, Clase::MblAsiento, 1);
    escuchar(asientos);
    asientos.elegirOpcion(3);
    EXPECT_EQ(asiento().NumeroAsientos, 4);
    EXPECT_TRUE(anunciado(Clase::MblAsiento));
    MuebleProp senos(dibujo, Clase::MblFregadero, 1);
    escuchar(senos);
    senos.elegirOpcion(1);
    senos.ponerEscurridor(false);
    EXPECT_EQ(fregadero().NumeroSenos, 2);
    EXPECT_EQ(fregadero().Escurridor, 0);
    senos.ponerEscurridor(true);
    EXPECT_EQ(fregadero().Escurridor, 1);
    EXPECT_TRUE(anunciado(Clase::MblFregadero));
    EXPECT_EQ(escrituras, 4);
}

TEST_F(MueblePropPulsar, CancelarTrasPulsarDejaLaOrientacionNueva) {
    asiento();
    {
        MuebleProp dialogo(dibujo, Clase::MblAsiento, 1);
        dialogo.pulsarDist(3);
        dialogo.medidas[0] = "9";
    }
    EXPECT_EQ(asiento().Orientacion, "W");
    EXPECT_EQ(asiento().AnchoAsiento, 600);
}

TEST_F(MueblePropPulsar, UnBotonQueNoHayNoHaceNada) {
    asiento();
    MuebleProp dialogo(dibujo, Clase::MblAsiento, 1);
    escuchar(dialogo);
    for (const int fuera : {-1, 4, 100}) {
        dialogo.pulsarDist(fuera);
        dialogo.elegirOpcion(fuera);
        EXPECT_TRUE(dialogo.calco(fuera).trazos.empty());
    }
    dialogo.ponerEscurridor(true);
    EXPECT_EQ(escrituras, 0);
}

TEST_F(MueblePropPulsar, CadaBotonMuestraElElementoEnSuDisposicion) {
    for (const Fila& fila : filas) {
        crear(fila.clase);
        MuebleProp dialogo(dibujo, fila.clase, 1);
        for (std::size_t i = 0; i < fila.codigos.size(); ++i) {
            const Calco calco = dialogo.calco(static_cast<int>(i));
            EXPECT_FALSE(calco.trazos.empty());
            dialogo.pulsarDist(static_cast<int>(i));
            EXPECT_EQ(calcar(dibujo, fila.clase, 1), calco) << fila.titulo;
        }
    }
}

TEST_F(MueblePropPulsar, LaHojaLoMuestraAntesDeQueElDialogoSeCierre) {
    apoyo::Banco banco;
    banco.dibujo().MblCama90.crear(1);
    MuebleProp dialogo(banco.dibujo(), Clase::MblCama90, 1);
    std::size_t repintados = 0;
    banco.plataforma.alAbrirMueble = [&](MuebleProp& abierto) {
        const std::size_t antes = banco.plataforma.repintados.size();
        banco.dibujo().sucia.anadirTodo();
        abierto.pulsarDist(2);
        repintados = banco.plataforma.repintados.size() - antes;
    };
    mostrar(banco.sesion(), dialogo);
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 1);
    EXPECT_EQ(repintados, 1U);
}

TEST_F(MueblePropAplicar, EscribeMedidasYColores) {
    for (const char* idiomaDelUsuario : {Idioma::espanol, Idioma::ingles}) {
        const Idioma otro(idiomaDelUsuario);
        dibujo.MblArmario.crear(1);
        MuebleProp dialogo(dibujo, Clase::MblArmario, 1);
        escuchar(dialogo);
        escrituras = 0;
        dialogo.medidas = {"2,25", "0.7"};
        dialogo.txtLineColor = verde;
        dialogo.txtBackColor = rosa;
        dialogo.Aplicar();
        EXPECT_EQ(armario().DimX, 2250);
        EXPECT_EQ(armario().DimY, 700);
        EXPECT_EQ(armario().LineColor, verde);
        EXPECT_EQ(armario().BackColor, rosa);
        EXPECT_TRUE(anunciado(Clase::MblArmario));
        EXPECT_EQ(escrituras, 1);
        EXPECT_EQ(dibujo.MblArmario.modelo().DimX, 1500);
        EXPECT_EQ(dibujo.MblArmario.modelo().LineColor, colorTextoVentana);
    }
}

TEST_F(MueblePropAplicar, UnTextoQueNoEsNumeroDejaSuCampoComoEstaba) {
    armario();
    MuebleProp dialogo(dibujo, Clase::MblArmario, 1);
    dialogo.medidas = {"", "0,9"};
    dialogo.Aplicar();
    EXPECT_EQ(armario().DimX, 1500);
    EXPECT_EQ(armario().DimY, 900);
}

TEST_F(MueblePropAplicar, SinTocarNadaLosColoresDelSistemaSiguenSiendolo) {
    silla().BackColor = colorFondoVentana;
    MuebleProp(dibujo, Clase::MblSilla, 1).Aplicar();
    EXPECT_EQ(silla().LineColor, colorTextoVentana);
    EXPECT_EQ(silla().BackColor, colorFondoVentana);
}

TEST_F(MueblePropModelo, TomaTodoLoSuyoConLaOrientacionYLosColores) {
    asiento().Left = 700;
    asiento().Top = 800;
    asiento().Visible = true;
    asiento().FactorZOOM = 1.5;
    MuebleProp dialogo(dibujo, Clase::MblAsiento, 1);
    dialogo.pulsarDist(1);
    dialogo.elegirOpcion(0);
    dialogo.medidas = {"0,55", "0,75"};
    dialogo.txtLineColor = verde;
    dialogo.txtBackColor = rosa;
    dialogo.Check1 = true;
    dialogo.Aplicar();
    const MblAsiento& modelo = dibujo.MblAsiento.modelo();
    EXPECT_EQ(modelo.Orientacion, "E");
    EXPECT_EQ(modelo.NumeroAsientos, 1);
    EXPECT_EQ(modelo.AnchoAsiento, 550);
    EXPECT_EQ(modelo.FondoAsiento, 750);
    EXPECT_EQ(modelo.LineColor, verde);
    EXPECT_EQ(modelo.BackColor, rosa);
    EXPECT_EQ(modelo.Left, 0);
    EXPECT_EQ(modelo.Top, 0);
    EXPECT_EQ(modelo.FactorZOOM, 0.5);
    EXPECT_FALSE(modelo.Visible);
}

TEST_F(MueblePropModelo, CadaClaseGuardaSuDisposicionYSuColor) {
    for (const Fila& fila : filas) {
        crear(fila.clase);
        MuebleProp dialogo(dibujo, fila.clase, 1);
        dialogo.pulsarDist(1);
        dialogo.elegirOpcion(1);
        dialogo.ponerEscurridor(false);
        dialogo.txtLineColor = verde;
        dialogo.Check1 = true;
        dialogo.Aplicar();
        EXPECT_EQ(calcar(dibujo, fila.clase, 0), calcar(dibujo, fila.clase, 1)) << fila.titulo;
        EXPECT_EQ(calcar(dibujo, fila.clase, 0).trazos[0].color, verde) << fila.titulo;
        EXPECT_EQ(orientacion(fila.clase, 0), orientacion(fila.clase, 1)) << fila.titulo;
    }
    EXPECT_EQ(dibujo.MblFregadero.modelo().Escurridor, 0);
    EXPECT_EQ(dibujo.MblFregadero.modelo().NumeroSenos, 2);
    EXPECT_EQ(dibujo.MblBañera.modelo().Longitud, 1200);
}

TEST_F(MueblePropFalta, UnHuecoYElModeloDanUnDialogoVacioQueNoCambiaNada) {
    for (const int indice : {0, 1, -3})
        for (const Fila& fila : filas) {
            MuebleProp dialogo(dibujo, fila.clase, indice);
            escuchar(dialogo);
            EXPECT_EQ(dialogo.medidas, Textos(fila.campos.size()));
            EXPECT_EQ(dialogo.pulsado(), -1);
            EXPECT_EQ(dialogo.opcion(), -1);
            const Calco modelo = calcar(dibujo, fila.clase, 0);
            dialogo.pulsarDist(1);
            dialogo.elegirOpcion(1);
            dialogo.ponerEscurridor(false);
            dialogo.txtLineColor = verde;
            dialogo.Check1 = true;
            dialogo.Aplicar();
            EXPECT_EQ(calcar(dibujo, fila.clase, 0), modelo) << fila.titulo;
            EXPECT_TRUE(dialogo.calco(0).trazos.empty());
        }
    EXPECT_TRUE(dibujo.cambiados.empty());
    EXPECT_EQ(escrituras, 0);
}
