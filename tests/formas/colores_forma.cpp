#include "ui/colores_forma.h"

#include "apoyo/carpeta_temporal.h"
#include "appearance/colores.h"
#include "formas/apoyo_formas.h"
#include "ui/selector_color.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <functional>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr Color naranja = 0x0080FF;

struct PlataformaConTeclado : PlataformaMuda {
    Respuesta mensaje(const Mensaje& mensaje) override {
        mensajes += QString::fromStdString(mensaje.texto);
        return respuesta;
    }
    std::string pedirTexto(const PeticionTexto&) override { return nombre; }

    std::string nombre;
    Respuesta respuesta = Respuesta::si;
    QStringList mensajes;
};

struct PruebaColoresForma : testing::Test {
    CarpetaTemporal carpeta;
    PlataformaConTeclado plataforma;
    Dibujo dibujo;
    std::unique_ptr<Colores> logica;
    std::unique_ptr<ColoresForma> forma;

    PruebaColoresForma() {
        ponerBytes(carpeta / "PerfilesColor.ini",
                   "[Carga]\r\nNumeroPerfiles=2\r\nPerfil1=Playa\r\nPerfil2=Campo\r\n"
                   "[PerfilesVarios]\r\nPlaya=255#1#2#3#4\r\nCampo=65280#1#2#3#4\r\n");
        abrir("Blanco y Negro");
    }

    void abrir(const char* Esquema, const char* Perfil = "") {
        dibujo.Esquema = Esquema;
        dibujo.Perfil = Perfil;
        forma.reset();
        logica = std::make_unique<Colores>(dibujo, plataforma, carpeta.ruta());
        forma = std::make_unique<ColoresForma>(*logica);
        mostrarActiva(*forma);
    }

    template <class Control = QWidget>
    Control& de(const QString& nombre) {
        return control<Control>(*forma, nombre);
    }
    QTabWidget& solapas() { return de<QTabWidget>("Solapas"); }
    QComboBox& combo() { return de<QComboBox>("cboPerfil"); }
    bool marcada(const QString& nombre) { return de<QCheckBox>(nombre).isChecked(); }
    QColor muestra(const QString& nombre) { return color(de(nombre), QPalette::Window); }
    bool hay(const QString& nombre) { return forma->findChild<QWidget*>(nombre); }

    /// The colour dialog of a picker was closed, with a colour or without.
    void elegir(const QString& boton, std::optional<Color> nuevo) {
        auto* selector = qobject_cast<SelectorColor*>(de(boton).parentWidget());
        ASSERT_TRUE(selector) << boton.toStdString();
        if (nuevo) selector->ponerColor(*nuevo);
        emit selector->elegido(nuevo.has_value());
    }
    /// Presses a picker and does this in its dialog.
    void elegirEnDialogo(const QString& boton, std::function<void(QColorDialog&)> mano) {
        QTimer::singleShot(0, forma.get(), [mano = std::move(mano)] {
            auto* dialogo = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialogo);
            mano(*dialogo);
        });
        pulsar(*forma, boton);
    }
    void clicEn(const QString& casilla, Qt::KeyboardModifiers teclas) {
        auto& caja = de<QCheckBox>(casilla);
        QTest::mouseClick(&caja, Qt::LeftButton, teclas, {caja.height() / 2, caja.height() / 2});
    }
};

QString conIndice(const char* nombre, std::size_t i) {
    return QString("%1_%2").arg(nombre).arg(i);
}

QColor qt(Color c) {
    return {c & 0xFF, c >> 8 & 0xFF, c >> 16 & 0xFF};
}

}  // namespace

using ColoresFormaMostrar = PruebaColoresForma;
using ColoresFormaPerfil = PruebaColoresForma;
using ColoresFormaCasillas = PruebaColoresForma;
using ColoresFormaMuestras = PruebaColoresForma;
using ColoresFormaBotones = PruebaColoresForma;

TEST_F(ColoresFormaMostrar, TieneSusRotulos) {
    EXPECT_EQ(forma->objectName(), "Colores");
    EXPECT_EQ(forma->windowTitle(), "Colores por Tipos");
    EXPECT_EQ(forma->findChild<QGroupBox*>()->title(), "Perfiles de Color");
    EXPECT_EQ(combo().parentWidget(), forma->findChild<QGroupBox*>());
    EXPECT_EQ(de("cmdGuardarPerfil").parentWidget(), forma->findChild<QGroupBox*>());
    for (std::size_t i = 0; i < esquemasColor.size(); ++i)
        EXPECT_EQ(rotulo<QRadioButton>(*forma, conIndice("optSchemaColor", i)).toStdString(),
                  esquemasColor[i].rotulo);
    EXPECT_EQ(rotulo<QPushButton>(*forma, "cmdGuardarPerfil"), "Guardar");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command1"), "Aplicar");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command2"), "Cancelar");
}

TEST_F(ColoresFormaMostrar, CadaSolapaTieneSuNotaYSusFilas) {
    ASSERT_EQ(solapas().count(), 4);
    for (int i = 0; i < 4; ++i) {
        const QWidget& pagina = *solapas().widget(i);
        const auto& datos = solapasColor.at(static_cast<std::size_t>(i));
        EXPECT_EQ(solapas().tabText(i).remove('&').toStdString(), datos.rotulo);
        EXPECT_EQ(pagina.findChild<QLabel*>()->text().toStdString(), datos.nota);
        EXPECT_EQ(pagina.findChildren<QCheckBox*>().size(), i == 0 ? 8 : 6);
    }
    for (std::size_t i = 0; i < categoriasColor.size(); ++i) {
        const QString nombre = conIndice("chkCatColor", i);
        EXPECT_EQ(rotulo<QCheckBox>(*forma, nombre).toStdString(), categoriasColor[i].rotulo);
        EXPECT_TRUE(solapas().widget(0)->isAncestorOf(&de(nombre)));
        EXPECT_TRUE(hay(conIndice("txtLineCatColor", i)) && hay(conIndice("cmdLineCatColor", i)));
        EXPECT_EQ(hay(conIndice("txtBackCatColor", i)), i < 2) << nombre.toStdString();
        EXPECT_EQ(hay(conIndice("cmdBackCatColor", i)), i < 2) << nombre.toStdString();
    }
    for (std::size_t i = 0; i < tiposColor.size(); ++i) {
        const QString nombre = conIndice("chkColores", i);
        EXPECT_EQ(rotulo<QCheckBox>(*forma, nombre).toStdString(), tiposColor[i].rotulo);
        EXPECT_TRUE(solapas().widget(static_cast<int>(tiposColor[i].solapa))->isAncestorOf(&de(nombre)));
        EXPECT_TRUE(hay(conIndice("txtLineColor", i)) && hay(conIndice("cmdLineColor", i)));
        EXPECT_EQ(hay(conIndice("txtBackColor", i)), i < 12) << nombre.toStdString();
        EXPECT_EQ(hay(conIndice("cmdBackColor", i)), i < 12) << nombre.toStdString();
    }
}

TEST_F(ColoresFormaMostrar, SeLlegaATodoPorTecladoYDeOidas) {
    abrir("Perfil Predefinido");
    for (int i = 0; i < solapas().count(); ++i) {
        solapas().setCurrentIndex(i);
        esperarAccesible(*forma);
        for (int j = 0; j < solapas().count(); ++j) {
            const auto letra = QKeySequence::mnemonic(solapas().tabText(j));
            for (const auto* boton : forma->findChildren<QAbstractButton*>())
                EXPECT_TRUE(!boton->isVisibleTo(forma.get()) ||
                            QKeySequence::mnemonic(boton->text()) != letra)
                    << boton->text().toStdString();
        }
    }
    EXPECT_EQ(de("cmdBackColor_0").accessibleName(), "Elegir color de fondo de Mesas");
    EXPECT_EQ(de("txtLineCatColor_3").accessibleName(), "color de línea de Carpintería");
}

TEST_F(ColoresFormaMostrar, NadaQuedaCortado) {
    for (int i = 0; i < solapas().count(); ++i) {
        solapas().setCurrentIndex(i);
        QApplication::processEvents();
        for (const auto* boton : forma->findChildren<QAbstractButton*>()) {
            const bool propio = boton->isVisible() && boton->focusPolicy() != Qt::NoFocus;
            EXPECT_TRUE(!propio || boton->width() >= boton->minimumSizeHint().width())
                << boton->objectName().toStdString();
        }
        for (const auto* etiqueta : forma->findChildren<QLabel*>()) {
            const int alto = etiqueta->wordWrap() ? etiqueta->heightForWidth(etiqueta->width())
                                                  : etiqueta->sizeHint().height();
            EXPECT_TRUE(etiqueta->isHidden() || etiqueta->height() >= alto) << etiqueta->text().toStdString();
        }
    }
}

TEST_F(ColoresFormaMostrar, CadaEsquemaHabilitaLoSuyo) {
    for (const auto& [opcion, perfiles, enSolapas] :
         {std::tuple{1, false, true}, {2, true, true}, {0, false, false}}) {
        const QString nombre = conIndice("optSchemaColor", static_cast<std::size_t>(opcion));
        auto& radio = de<QRadioButton>(nombre);
        QTest::mouseClick(&radio, Qt::LeftButton, {}, {8, radio.height() / 2});
        EXPECT_EQ(logica->optSchemaColor(), static_cast<std::size_t>(opcion));
        EXPECT_EQ(combo().isEnabled(), perfiles) << opcion;
        EXPECT_EQ(de("cmdGuardarPerfil").isEnabled(), perfiles) << opcion;
        EXPECT_EQ(solapas().isEnabled(), enSolapas) << opcion;
        EXPECT_EQ(marcada("chkColores_17"), opcion == 0);
        EXPECT_EQ(marcada("chkCatColor_7"), opcion == 0);
        EXPECT_FALSE(marcada("chkCatColor_0"));
    }
}

TEST_F(ColoresFormaMostrar, LosColoresDelSistemaSeVenNegroYBlanco) {
    for (const char* nombre : {"txtLineColor_0", "txtLineColor_17", "txtLineCatColor_0", "txtLineCatColor_7"})
        EXPECT_EQ(muestra(nombre), QColor(Qt::black)) << nombre;
    for (const char* nombre : {"txtBackColor_0", "txtBackColor_11", "txtBackCatColor_0", "txtBackCatColor_1"})
        EXPECT_EQ(muestra(nombre), QColor(Qt::white)) << nombre;
}

TEST_F(ColoresFormaMostrar, SeAbreConElPerfilDelDibujo) {
    abrir("Perfil Predefinido", "Campo");
    EXPECT_TRUE(de<QRadioButton>("optSchemaColor_2").isChecked());
    EXPECT_EQ(combo().currentText(), "Campo");
    EXPECT_EQ(combo().currentIndex(), 1);
    EXPECT_EQ(muestra("txtLineCatColor_3"), QColor(0, 255, 0));
    EXPECT_TRUE(marcada("chkCatColor_3"));
}

TEST_F(ColoresFormaMostrar, ElTabuladorRecorreLaSolapaALaVista) {
    abrir("Perfil Predefinido");
    const auto recorrido = [this](int solapa) {
        solapas().setCurrentIndex(solapa);
        de("optSchemaColor_2").setFocus();
        return recorridoTab(*forma).join(' ').toStdString();
    };
    const std::string antes = "optSchemaColor_2 cboPerfil cmdGuardarPerfil qt_tabwidget_tabbar ";
    EXPECT_EQ(recorrido(0), antes +
                                "chkCatColor_0 cmdLineCatColor_0 cmdBackCatColor_0 "
                                "chkCatColor_1 cmdLineCatColor_1 cmdBackCatColor_1 "
                                "chkCatColor_2 cmdLineCatColor_2 chkCatColor_3 cmdLineCatColor_3 "
                                "chkCatColor_4 cmdLineCatColor_4 chkCatColor_5 cmdLineCatColor_5 "
                                "chkCatColor_6 cmdLineCatColor_6 chkCatColor_7 cmdLineCatColor_7 "
                                "Command1 Command2");
    EXPECT_EQ(recorrido(2), antes +
                                "chkColores_6 cmdLineColor_6 cmdBackColor_6 "
                                "chkColores_7 cmdLineColor_7 cmdBackColor_7 "
                                "chkColores_8 cmdLineColor_8 cmdBackColor_8 "
                                "chkColores_9 cmdLineColor_9 cmdBackColor_9 "
                                "chkColores_10 cmdLineColor_10 cmdBackColor_10 "
                                "chkColores_11 cmdLineColor_11 cmdBackColor_11 Command1 Command2");
    EXPECT_EQ(recorrido(3), antes +
                                "chkColores_12 cmdLineColor_12 chkColores_13 cmdLineColor_13 "
                                "chkColores_14 cmdLineColor_14 chkColores_15 cmdLineColor_15 "
                                "chkColores_16 cmdLineColor_16 chkColores_17 cmdLineColor_17 "
                                "Command1 Command2");
}

TEST_F(ColoresFormaMostrar, ElFocoEmpiezaEnElEsquemaElegido) {
    abrir("Colores Personalizados");
    EXPECT_EQ(forma->focusWidget(), &de("optSchemaColor_1"));
}

TEST_F(ColoresFormaPerfil, LaListaTieneLosGuardados) {
    abrir("Perfil Predefinido");
    ASSERT_EQ(combo().count(), 2);
    EXPECT_EQ(combo().itemText(0), "Playa");
    EXPECT_EQ(combo().itemText(1), "Campo");
    EXPECT_EQ(combo().currentIndex(), -1);
    EXPECT_EQ(combo().currentText(), "");
}

TEST_F(ColoresFormaPerfil, ElegirUnoEnsenaSusColores) {
    abrir("Perfil Predefinido");
    QTest::keyClick(&combo(), Qt::Key_Down);
    EXPECT_EQ(combo().currentText(), "Playa");
    EXPECT_EQ(muestra("txtLineCatColor_3"), QColor(255, 0, 0));
    EXPECT_TRUE(marcada("chkCatColor_3"));
    QTest::keyClick(&combo(), Qt::Key_Down);
    EXPECT_EQ(muestra("txtLineCatColor_3"), QColor(0, 255, 0));
}

TEST_F(ColoresFormaPerfil, VolverAElegirElMismoLoVuelveAAbrir) {
    abrir("Perfil Predefinido", "Playa");
    clicEn("chkCatColor_4", {});
    EXPECT_FALSE(marcada("chkCatColor_4"));
    EXPECT_EQ(combo().currentText(), "Playa") << "a tick is no colour";
    emit combo().activated(0);
    EXPECT_TRUE(marcada("chkCatColor_4"));
}

TEST_F(ColoresFormaPerfil, LoTecleadoAbreElPerfilQueNombra) {
    abrir("Perfil Predefinido");
    QTest::keyClicks(combo().lineEdit(), "Camp");
    EXPECT_EQ(combo().currentText(), "Camp") << "nothing is added to what is typed";
    EXPECT_FALSE(marcada("chkCatColor_3"));
    QTest::keyClicks(combo().lineEdit(), "o");
    EXPECT_EQ(muestra("txtLineCatColor_3"), QColor(0, 255, 0));
    EXPECT_EQ(combo().lineEdit()->cursorPosition(), 5);
}

TEST_F(ColoresFormaPerfil, UnCambioAManoLoDeja) {
    abrir("Perfil Predefinido", "Playa");
    elegir("cmdLineColor_0", naranja);
    EXPECT_EQ(combo().currentText(), "");
    EXPECT_EQ(combo().currentIndex(), -1);
    QTest::keyClicks(combo().lineEdit(), "otro");
    elegir("cmdLineCatColor_5", std::nullopt);
    EXPECT_EQ(combo().currentText(), "");
    EXPECT_EQ(muestra("txtLineCatColor_3"), QColor(255, 0, 0)) << "the colours stay";
}

TEST_F(ColoresFormaPerfil, GuardarUnoLoAnadeALaListaYLoSelecciona) {
    abrir("Perfil Predefinido");
    elegir("cmdLineColor_0", naranja);
    plataforma.nombre = "Año nuevo";
    pulsar(*forma, "cmdGuardarPerfil");
    EXPECT_EQ(plataforma.mensajes, QStringList({"Perfil Guardado con éxito"}));
    EXPECT_EQ(combo().count(), 3);
    EXPECT_EQ(combo().currentIndex(), 2);
    EXPECT_EQ(combo().currentText(), "Año nuevo");
    EXPECT_TRUE(marcada("chkColores_17"));
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(ColoresFormaPerfil, SinNombreAvisaYNoQuedaNingunoElegido) {
    abrir("Perfil Predefinido", "Playa");
    pulsar(*forma, "cmdGuardarPerfil");
    EXPECT_EQ(plataforma.mensajes, QStringList({"Perfil Guardado con éxito"}));
    EXPECT_EQ(combo().count(), 2);
    EXPECT_EQ(combo().currentText(), "");
}

TEST_F(ColoresFormaPerfil, NoSobreescribirlaDejaLoQuePoneLaCaja) {
    abrir("Perfil Predefinido");
    QTest::keyClicks(combo().lineEdit(), "otro");
    plataforma.nombre = "Playa";
    plataforma.respuesta = Respuesta::no;
    pulsar(*forma, "cmdGuardarPerfil");
    EXPECT_EQ(plataforma.mensajes,
              QStringList({"Ya existe un perfil con ese nombre. ¿Desea sobreescribirlo?"}));
    EXPECT_EQ(combo().count(), 2);
    EXPECT_EQ(combo().currentText(), "otro");
}

TEST_F(ColoresFormaCasillas, CadaUnaEsLaSuya) {
    abrir("Colores Personalizados");
    for (std::size_t i = 0; i < 18; ++i) {
        de<QCheckBox>(conIndice("chkColores", i)).click();
        for (std::size_t j = 0; j < 18; ++j)
            EXPECT_EQ(logica->chkColores[j], j <= i);
    }
    for (std::size_t i = 0; i < 8; ++i) {
        de<QCheckBox>(conIndice("chkCatColor", i)).click();
        for (std::size_t j = 0; j < 8; ++j)
            EXPECT_EQ(logica->chkCatColor[j], j <= i);
    }
}

TEST_F(ColoresFormaCasillas, SoltarConControlDaSuValorALasOtrasDiecisiete) {
    abrir("Colores Personalizados");
    solapas().setCurrentIndex(2);
    clicEn("chkColores_7", Qt::ControlModifier);
    for (std::size_t i = 0; i < 18; ++i)
        EXPECT_TRUE(marcada(conIndice("chkColores", i))) << i;
    EXPECT_FALSE(marcada("chkCatColor_1"));
    clicEn("chkColores_8", Qt::ControlModifier);
    for (std::size_t i = 0; i < 18; ++i)
        EXPECT_FALSE(marcada(conIndice("chkColores", i))) << i;
}

TEST_F(ColoresFormaCasillas, ConOtraTeclaMasNoPasaNada) {
    abrir("Colores Personalizados");
    solapas().setCurrentIndex(1);
    for (const Qt::KeyboardModifiers teclas :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::ControlModifier | Qt::ShiftModifier,
          Qt::ControlModifier | Qt::AltModifier, Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
        clicEn("chkColores_0", teclas);
        EXPECT_TRUE(marcada("chkColores_0"));
        EXPECT_EQ(std::count(logica->chkColores.begin(), logica->chkColores.end(), true), 1);
        clicEn("chkColores_0", {});
    }
}

TEST_F(ColoresFormaCasillas, SinElRatonElControlNoCuenta) {
    abrir("Colores Personalizados");
    solapas().setCurrentIndex(1);
    QTest::keyClick(&de("chkColores_0"), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(std::count(logica->chkColores.begin(), logica->chkColores.end(), true), 1);
}

TEST_F(ColoresFormaCasillas, ElControlNoCuentaEnLasCategorias) {
    abrir("Colores Personalizados");
    clicEn("chkCatColor_3", Qt::ControlModifier);
    EXPECT_EQ(std::count(logica->chkCatColor.begin(), logica->chkCatColor.end(), true), 1);
    EXPECT_EQ(std::count(logica->chkColores.begin(), logica->chkColores.end(), true), 0);
}

TEST_F(ColoresFormaMuestras, CadaBotonEsElDeLaSuya) {
    abrir("Colores Personalizados");
    for (std::size_t i = 0; i < 18; ++i) {
        const auto nuevo = static_cast<Color>(100 + i);
        elegir(conIndice("cmdLineColor", i), nuevo);
        EXPECT_EQ(logica->txtLineColor()[i], nuevo);
        EXPECT_EQ(muestra(conIndice("txtLineColor", i)), qt(nuevo));
        EXPECT_TRUE(marcada(conIndice("chkColores", i)));
        if (i >= 12) continue;
        elegir(conIndice("cmdBackColor", i), nuevo + 100);
        EXPECT_EQ(logica->txtBackColor()[i], nuevo + 100);
        EXPECT_EQ(muestra(conIndice("txtBackColor", i)), qt(nuevo + 100));
    }
    for (std::size_t i = 0; i < 8; ++i) {
        const auto nuevo = static_cast<Color>(50 + i);
        elegir(conIndice("cmdLineCatColor", i), nuevo);
        EXPECT_EQ(logica->txtLineCatColor()[i], nuevo);
        EXPECT_EQ(muestra(conIndice("txtLineCatColor", i)), qt(nuevo));
        EXPECT_TRUE(marcada(conIndice("chkCatColor", i)));
        if (i >= 2) continue;
        elegir(conIndice("cmdBackCatColor", i), nuevo + 100);
        EXPECT_EQ(logica->txtBackCatColor()[i], nuevo + 100);
        EXPECT_EQ(muestra(conIndice("txtBackCatColor", i)), qt(nuevo + 100));
    }
}

TEST_F(ColoresFormaMuestras, UnaCategoriaSeVeEnSusTipos) {
    abrir("Colores Personalizados");
    elegir("cmdLineCatColor_2", naranja);
    for (std::size_t i = 0; i < 18; ++i) {
        EXPECT_EQ(muestra(conIndice("txtLineColor", i)), i >= 12 ? qt(naranja) : QColor(Qt::black));
        EXPECT_EQ(marcada(conIndice("chkColores", i)), i >= 12);
    }
}

TEST_F(ColoresFormaMuestras, ElColorSeEligeEnElDialogoDelSistema) {
    abrir("Colores Personalizados");
    elegirEnDialogo("cmdLineCatColor_4", [](QColorDialog& dialogo) {
        EXPECT_EQ(dialogo.currentColor(), QColor(Qt::black));
        dialogo.setCurrentColor(QColor(10, 20, 30));
        dialogo.accept();
    });
    EXPECT_EQ(logica->txtLineCatColor()[4], 0x1E140A);
    EXPECT_EQ(muestra("txtLineCatColor_4"), QColor(10, 20, 30));
    EXPECT_TRUE(marcada("chkCatColor_4"));
}

TEST_F(ColoresFormaMuestras, ElDialogoNoEmpiezaEnElColorDeLaMuestra) {
    abrir("Colores Personalizados");
    elegir("cmdLineCatColor_4", naranja);
    elegirEnDialogo("cmdLineCatColor_4", [](QColorDialog& dialogo) {
        EXPECT_EQ(dialogo.currentColor(), QColor(Qt::black));
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            EXPECT_EQ(QColorDialog::customColor(i), QColor(Qt::black));
        QColorDialog::setCustomColor(0, Qt::red);
        dialogo.reject();
    });
    elegirEnDialogo("cmdLineCatColor_4", [](QColorDialog& dialogo) {
        EXPECT_EQ(QColorDialog::customColor(0), QColor(Qt::black)) << "kept for that call alone";
        dialogo.reject();
    });
    EXPECT_EQ(logica->txtLineCatColor()[4], naranja);
}

TEST_F(ColoresFormaMuestras, CanceladoElDialogoLaCasillaSeMarcaIgual) {
    abrir("Colores Personalizados");
    solapas().setCurrentIndex(1);
    elegirEnDialogo("cmdBackColor_3", [](QColorDialog& dialogo) {
        dialogo.setCurrentColor(Qt::red);
        dialogo.reject();
    });
    EXPECT_EQ(logica->txtBackColor()[3], colorFondoVentana);
    EXPECT_EQ(muestra("txtBackColor_3"), QColor(Qt::white));
    EXPECT_TRUE(marcada("chkColores_3"));
}

TEST_F(ColoresFormaBotones, AplicarEscribeEnElDibujoYCierra) {
    abrir("Colores Personalizados");
    elegir("cmdLineCatColor_4", naranja);
    pulsar(*forma, "Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(dibujo.Pared.modelo().LineColor, naranja);
    EXPECT_EQ(dibujo.Esquema, "Colores Personalizados");
}

TEST_F(ColoresFormaBotones, EnterAplica) {
    abrir("Perfil Predefinido");
    QTest::keyClicks(combo().lineEdit(), "Playa");
    QTest::keyClick(combo().lineEdit(), Qt::Key_Return);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(dibujo.Perfil, "Playa");
    EXPECT_EQ(dibujo.Puerta.modelo().LineColor, 255);
}

TEST_F(ColoresFormaBotones, CancelarEscapeYCerrarNoCambianNada) {
    for (const auto& salir : {std::function<void()>([this] { pulsar(*forma, "Command2"); }),
                              std::function<void()>([this] { QTest::keyClick(forma.get(), Qt::Key_Escape); }),
                              std::function<void()>([this] { forma->close(); })}) {
        abrir("Blanco y Negro");
        de<QRadioButton>("optSchemaColor_1").click();
        elegir("cmdLineCatColor_4", naranja);
        salir();
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(dibujo.Pared.modelo().LineColor, colorTextoVentana);
        EXPECT_EQ(dibujo.Esquema, "Blanco y Negro");
    }
}
