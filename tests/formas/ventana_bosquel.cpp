#include "drawing/vista.h"
#include "formas/ventana_de_prueba.h"

#include <QAction>
#include <QScrollBar>
#include <QShortcut>
#include <QWheelEvent>

using namespace bosquel;

using VentanaBosquelPrueba = apoyo::VentanaDePrueba;

TEST_F(VentanaBosquelPrueba, ColumnaVisorYBarraLlenanLaVentana) {
    const QRect visor = control("ContImagen").geometry();
    EXPECT_EQ(visor, QRect(107, 56, 1000 - 124, 593));
    EXPECT_EQ(control("VScroll1").geometry(), QRect(visor.right() + 1, 56, 17, visor.height()));
    EXPECT_EQ(control("HScroll1").geometry(), QRect(107, visor.bottom() + 1, visor.width(), 17));
    EXPECT_EQ(visor.right() + 1 + 17, ventana.width());
    EXPECT_EQ(control("BttPrincipal_9").x(), 1000 - 67);
    EXPECT_EQ(control("SSPanel1").geometry(), QRect(0, 0, 1000, 56));
}

TEST_F(VentanaBosquelPrueba, LaHojaEstaEnElVisorAQuinceUnidadesPorPixel) {
    EXPECT_EQ(control("Hoja").parentWidget(), &control("ContImagen"));
    EXPECT_EQ(control("Hoja").geometry(), QRect(0, 0, 667, 667));
    EXPECT_EQ(control("Regla").parentWidget(), &control("ContImagen"));
}

TEST_F(VentanaBosquelPrueba, TodosLosBotonesTienenNombreYRotulo) {
    const std::vector<std::pair<QString, int>> grupos{
        {"BttPrincipal", 11}, {"BttOperacion", 4}, {"BttTipo", 6},    {"BttMueble", 6},
        {"BttBaño", 6},       {"BttCocina", 6},    {"BttUsuario", 6}, {"BttElectrico", 6}};
    for (const auto& [grupo, cuantos] : grupos)
        for (int i = 0; i < cuantos; ++i) {
            const auto& boton = control<QAbstractButton>(QString("%1_%2").arg(grupo).arg(i));
            EXPECT_FALSE(boton.text().isEmpty());
            EXPECT_EQ(boton.accessibleName(), boton.text());
            EXPECT_FALSE(boton.text().contains('&'));
        }
}

TEST_F(VentanaBosquelPrueba, ElSelectorCambiaDePaletaYDeLetrero) {
    EXPECT_TRUE(control("FrUsuario").isVisible());
    pulsar("BttTipo_1");
    EXPECT_TRUE(control("FrBaño").isVisible());
    EXPECT_FALSE(control("FrUsuario").isVisible());
    EXPECT_EQ(control<QLabel>("Letrero").text(), "Baño");
    pulsar("BttTipo_3");
    EXPECT_TRUE(control("FrUsuario").isVisible());
    EXPECT_EQ(control<QLabel>("Letrero").text(), "Divisiones");
}

TEST_F(VentanaBosquelPrueba, UnMuroEmpiezaDondeSePulsaLaHoja) {
    ponMuro({100, 200});
    const Pared* pared = dibujo().Pared.en(1);
    ASSERT_TRUE(pared);
    EXPECT_EQ(pared->InicialX, 1500.0F);
    EXPECT_EQ(pared->InicialY, 3000.0F);
    EXPECT_EQ(pared->Tipo, "Muro");
    EXPECT_EQ(pared->Estado, "Edicion");
    EXPECT_EQ(pared->ParedPick.BackColor, rojo);
}

TEST_F(VentanaBosquelPrueba, CerrarElDialogoDejaUnHueco) {
    pulsar("BttUsuario_1");
    cuandoSeAbra<QDialog>([](QDialog& dialogo) { dialogo.close(); });
    clicEnHoja({100, 200});
    EXPECT_FALSE(dibujo().Pared.en(1));
    EXPECT_EQ(dibujo().Pared.contador, 2);
}

TEST_F(VentanaBosquelPrueba, ArrastrarElTiradorMueveElMuro) {
    ponMuro({100, 200});
    QWidget& hoja = control("Hoja");
    const QPoint tirador = centro(dibujo().Pared.en(1)->ParedPickCentro);
    QTest::mouseMove(&hoja, tirador);
    QTest::mousePress(&hoja, Qt::LeftButton, {}, tirador);
    bosquel.mover(true, true, static_cast<float>(tirador.x() * 15 + 300),
                  static_cast<float>(tirador.y() * 15 + 150));
    QTest::mouseRelease(&hoja, Qt::LeftButton, {}, tirador + QPoint(20, 10));
    EXPECT_EQ(dibujo().Pared.en(1)->InicialX, 1800.0F);
    EXPECT_EQ(dibujo().Pared.en(1)->InicialY, 3150.0F);
}

TEST_F(VentanaBosquelPrueba, LoArrastradoSeVeIgualEnElAireQueEnReposo) {
    ponMuro({100, 200});
    ponMuro({150, 230});
    const Pared& pared = *dibujo().Pared.en(2);
    const float x = pared.ParedPick.Left + 40;
    const float y = pared.ParedPick.Top + 40;
    bosquel.pulsar(x, y);
    for (int paso = 1; paso < 20; ++paso)
        bosquel.mover(true, true, x + 15.0F * static_cast<float>(paso), y - 30.0F);
    QApplication::processEvents();
    const QImage enElAire = control("ContImagen").grab().toImage();
    bosquel.soltar(x, y);
    dibujo().sucia.anadirTodo();
    publicar(bosquel.sesion());
    QApplication::processEvents();
    EXPECT_EQ(enElAire, control("ContImagen").grab().toImage());
}

TEST_F(VentanaBosquelPrueba, LosTrazosDelMuroSonNegrosSobreElPapelBlanco) {
    ponMuro({100, 200});
    const QImage hoja = control("Hoja").grab().toImage();
    EXPECT_EQ(hoja.pixelColor(150, 200), QColor(Qt::black));
    EXPECT_EQ(hoja.pixelColor(150, 207), QColor(Qt::black));
    EXPECT_EQ(hoja.pixelColor(150, 203), QColor(Qt::white));
    EXPECT_EQ(hoja.pixelColor(150, 190), QColor(Qt::white));
}

TEST_F(VentanaBosquelPrueba, LaCuadriculaSeDibujaDesdeLaEsquinaDeLaHoja) {
    dibujo().VerCuadricula = true;
    dibujo().Cuadricula = 300;
    pulsar("BttPrincipal_4");
    QApplication::processEvents();
    const QImage hoja = control("Hoja").grab().toImage();
    EXPECT_EQ(hoja.pixelColor(200, 105), QColor(240, 240, 255));
    EXPECT_EQ(hoja.pixelColor(210, 110), QColor(Qt::white));
}

TEST_F(VentanaBosquelPrueba, SuprimirEliminaDesdeCualquierControl) {
    ponMuro({100, 200});
    control("BttTipo_0").setFocus();
    QTest::keyClick(&control("BttTipo_0"), Qt::Key_Delete);
    EXPECT_FALSE(dibujo().Pared.en(1));
}

TEST_F(VentanaBosquelPrueba, NingunaOtraTeclaHaceNada) {
    ponMuro({100, 200});
    control("Hoja").setFocus();
    for (const int tecla :
         {Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_F1, Qt::Key_Z, Qt::Key_Plus})
        for (const auto con : {Qt::KeyboardModifiers{}, Qt::KeyboardModifiers{Qt::ControlModifier},
                               Qt::KeyboardModifiers{Qt::AltModifier}})
            QTest::keyClick(&control("Hoja"), static_cast<Qt::Key>(tecla), con);
    EXPECT_TRUE(dibujo().Pared.en(1));
    EXPECT_EQ(dibujo().FactorZoomActual, 0.5);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(VentanaBosquelPrueba, NoTieneAtajos) {
    EXPECT_TRUE(ventana.findChildren<QShortcut*>().isEmpty());
    for (const QAction* accion : ventana.findChildren<QAction*>())
        EXPECT_TRUE(accion->shortcuts().isEmpty()) << accion->text().toStdString();
    for (const QAbstractButton* boton : ventana.findChildren<QAbstractButton*>())
        EXPECT_TRUE(boton->shortcut().isEmpty()) << boton->objectName().toStdString();
    for (const QLabel* letrero : ventana.findChildren<QLabel*>())
        EXPECT_FALSE(letrero->buddy());
}

TEST_F(VentanaBosquelPrueba, DelTecladoEnteroSoloSuprimirActua) {
    ponMuro({100, 200});
    clicEnHoja(centro(dibujo().Pared.en(1)->ParedPick));
    control("Hoja").setFocus();
    const auto aspecto = [this] {
        QApplication::processEvents();
        return ventana.grab().toImage();
    };
    const QImage antes = aspecto();
    QList<int> teclas;
    for (int tecla = Qt::Key_Space; tecla <= Qt::Key_AsciiTilde; ++tecla)
        teclas << tecla;
    for (int tecla = Qt::Key_Escape; tecla <= Qt::Key_F35; ++tecla)
        if (tecla != Qt::Key_Tab && tecla != Qt::Key_Backtab && tecla != Qt::Key_Delete) teclas << tecla;
    for (const int tecla : teclas)
        for (const auto con :
             {Qt::KeyboardModifiers{}, Qt::KeyboardModifiers{Qt::ShiftModifier},
              Qt::KeyboardModifiers{Qt::ControlModifier}, Qt::KeyboardModifiers{Qt::AltModifier}})
            QTest::sendKeyEvent(QTest::Click, &control("Hoja"), static_cast<Qt::Key>(tecla), QString(), con);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(ventana.focusWidget(), &control("Hoja"));
    EXPECT_EQ(aspecto(), antes);
    QTest::keyClick(&control("Hoja"), Qt::Key_Delete);
    EXPECT_FALSE(dibujo().Pared.en(1));
}

TEST_F(VentanaBosquelPrueba, ElBordeSeElevaBajoElPunteroYBajaFueraDeLosBotones) {
    const auto elevado = [this](const QString& boton) {
        return control(boton).property("BordeElevado").toBool();
    };
    cruzar("BttPrincipal_2");
    EXPECT_TRUE(elevado("BttPrincipal_2"));
    cruzar("BttPrincipal_4");
    EXPECT_FALSE(elevado("BttPrincipal_2"));
    EXPECT_TRUE(elevado("BttPrincipal_4"));
    for (const auto* fuera : {"BttTipo_2", "SSPanel1", "Hoja"}) {
        cruzar("BttPrincipal_4");
        EXPECT_TRUE(elevado("BttPrincipal_4"));
        cruzar(fuera);
        EXPECT_FALSE(elevado("BttPrincipal_4")) << fuera;
    }
    cruzar("BttPrincipal_4");
    cruzar("BttUsuario_2");
    EXPECT_TRUE(elevado("BttPrincipal_4"));
}

TEST_F(VentanaBosquelPrueba, LaBarraMueveLaHoja) {
    auto& barra = control<QScrollBar>("VScroll1");
    ASSERT_TRUE(barra.isEnabled());
    EXPECT_FALSE(control("HScroll1").isEnabled());
    barra.setValue(50);
    EXPECT_EQ(dibujo().Hoja.Top, -550.0F);
    EXPECT_EQ(control("Hoja").y(), -37);
}

TEST_F(VentanaBosquelPrueba, LaRuedaGiraLaBarraVertical) {
    QWidget& visor = control("ContImagen");
    QWheelEvent rueda({100, 100}, visor.mapToGlobal(QPointF(100, 100)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&visor, &rueda);
    EXPECT_GT(control<QScrollBar>("VScroll1").value(), 0);
    EXPECT_LT(dibujo().Hoja.Top, 0.0F);
}

TEST_F(VentanaBosquelPrueba, ElDobleClicEnLaHojaTumbaLaReglaYSobreEllaLaOculta) {
    EXPECT_EQ(control("Regla").x(), 876 - 25);
    QTest::mouseDClick(&control("Hoja"), Qt::LeftButton, {}, {300, 300});
    EXPECT_GT(control("Regla").width(), control("Regla").height());
    QTest::mouseDClick(&control("Regla"), Qt::LeftButton);
    EXPECT_FALSE(control("Regla").isVisible());
}

TEST_F(VentanaBosquelPrueba, CambiarElTamanoAcoplaLaRegla) {
    QTest::mouseDClick(&control("Hoja"), Qt::LeftButton, {}, {300, 300});
    ventana.resize(1100, 760);
    QApplication::processEvents();
    EXPECT_EQ(control("Regla").geometry(), QRect(976 - 25, 0, 25, 653));
}

TEST_F(VentanaBosquelPrueba, UnaHojaMayorQueCualquierControlSeSigueViendoYPulsando) {
    dibujo().AreaWidth = 2000000000;
    dibujo().AreaHight = 2000000000;
    MedirHoja(bosquel.sesion());
    bosquel.cambiarHScroll1(50);
    QApplication::processEvents();
    EXPECT_EQ(control("Hoja").geometry(),
              QRect(QPoint(), QSize(876, 667)).intersected(QRect(0, 0, 876, 593)));
    ponMuro({100, 100});
    ASSERT_TRUE(dibujo().Pared.en(1));
    EXPECT_GT(dibujo().Pared.en(1)->InicialX, 4.0e8F);
}

TEST_F(VentanaBosquelPrueba, ElPieDiceQueEsperaLaHerramienta) {
    const QString enReposo = control<QLabel>("lblEstado").text();
    pulsar("BttUsuario_0");
    EXPECT_NE(control<QLabel>("lblEstado").text(), enReposo);
    EXPECT_EQ(control<QLabel>("lblEscala").text(), "Escala 1:100");
    pulsar("BttPrincipal_4");
    EXPECT_EQ(control<QLabel>("lblEscala").text(), "Escala 1:50");
}
