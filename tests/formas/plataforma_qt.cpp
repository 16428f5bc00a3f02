#include "formas/ventana_de_prueba.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <algorithm>

using namespace bosquel;
using PlataformaQtPrueba = apoyo::VentanaDePrueba;

namespace {

QStringList rotulos(const QMessageBox& caja) {
    auto botones = caja.buttons();
    std::sort(botones.begin(), botones.end(), [](const auto* a, const auto* b) { return a->x() < b->x(); });
    QStringList todos;
    for (const QAbstractButton* boton : botones)
        todos << boton->text().remove('&');
    return todos;
}

}  // namespace

TEST_F(PlataformaQtPrueba, LaPreguntaSeHaceConBotonesEnEspanol) {
    cuandoSeAbra<QMessageBox>([](QMessageBox& caja) {
        EXPECT_EQ(caja.windowTitle(), "Título");
        EXPECT_EQ(caja.text(), "Una línea\n\notra");
        EXPECT_EQ(caja.icon(), QMessageBox::Question);
        EXPECT_EQ(rotulos(caja), QStringList({"Sí", "No", "Cancelar"}));
        QTest::mouseClick(caja.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_EQ(plataforma.mensaje({"Título", "Una línea\n\notra", Icono::pregunta, Botones::siNoCancelar}),
              Respuesta::si);
}

TEST_F(PlataformaQtPrueba, CerrarUnaPreguntaRespondeQueNo) {
    cuandoSeAbra<QMessageBox>([](QMessageBox& caja) { caja.close(); });
    EXPECT_EQ(plataforma.mensaje({"Aviso", "¿?", Icono::pregunta, Botones::siNo}), Respuesta::no);
}

TEST_F(PlataformaQtPrueba, ElAvisoSoloSeAcepta) {
    cuandoSeAbra<QMessageBox>([](QMessageBox& caja) {
        EXPECT_EQ(caja.icon(), QMessageBox::Information);
        EXPECT_EQ(rotulos(caja), QStringList({"Aceptar"}));
        QTest::keyClick(&caja, Qt::Key_Escape);
    });
    EXPECT_EQ(plataforma.mensaje({.titulo = "Aviso", .texto = "Ya está"}), Respuesta::aceptar);
}

TEST_F(PlataformaQtPrueba, GuardarPreguntaElFicheroConElDialogoDelPropioToolkit) {
    cuandoSeAbra<QFileDialog>([this](QFileDialog& dialogo) {
        EXPECT_TRUE(dialogo.testOption(QFileDialog::DontUseNativeDialog));
        EXPECT_TRUE(dialogo.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialogo.nameFilters(), QStringList({"Dibujos Bosquel Rapiz(*.bqr)"}));
        cuandoSeAbra<QMessageBox>([](QMessageBox& caja) {
            EXPECT_EQ(caja.text(), "Dibujo guardado con éxito");
            caja.accept();
        });
        dialogo.findChild<QLineEdit*>("fileNameEdit")
            ->setText(QString::fromStdString((carpeta.ruta() / "piso").string()));
        QTest::keyClick(dialogo.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    pulsar("BttPrincipal_2");
    EXPECT_TRUE(std::filesystem::exists(carpeta.ruta() / "piso.bqr"));
    EXPECT_EQ(ventana.windowTitle(), "piso.bqr - Bosquel Rapiz");
}

TEST_F(PlataformaQtPrueba, LosBotonesDeLasCajasNoTienenImagenComoLosDeLosDialogos) {
    cuandoSeAbra<QMessageBox>([](QMessageBox& caja) {
        for (const QAbstractButton* boton : caja.buttons())
            EXPECT_TRUE(boton->icon().isNull());
        caja.reject();
    });
    plataforma.mensaje({"Aviso", "¿?", Icono::pregunta, Botones::siNoCancelar});
}

TEST_F(PlataformaQtPrueba, ElDialogoDeFicherosEnsenaTodasSusColumnasEnEspanol) {
    cuandoSeAbra<QFileDialog>([](QFileDialog& dialogo) {
        QApplication::processEvents();
        const auto& lista = *dialogo.findChild<QTreeView*>("treeView");
        QStringList columnas;
        for (int i = 0; i < lista.header()->count(); ++i) {
            columnas << lista.model()->headerData(i, Qt::Horizontal).toString();
            EXPECT_GE(lista.header()->sectionSize(i), lista.header()->sectionSizeHint(i));
        }
        EXPECT_EQ(columnas, QStringList({"Nombre", "Tamaño", "Tipo", "Última modificación"}));
        EXPECT_LE(lista.header()->length(), lista.viewport()->width());
        EXPECT_GT(lista.header()->sectionSize(0), 200);
        dialogo.reject();
    });
    pulsar("BttPrincipal_1");
}

TEST_F(PlataformaQtPrueba, SePuedePedirAbrirUnFicheroQueNoExiste) {
    cuandoSeAbra<QFileDialog>([this](QFileDialog& dialogo) {
        dialogo.findChild<QLineEdit*>("fileNameEdit")
            ->setText(QString::fromStdString((carpeta.ruta() / "nadie.bqr").string()));
        QTest::keyClick(dialogo.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    pulsar("BttPrincipal_1");
    EXPECT_EQ(ventana.windowTitle(), " - Bosquel Rapiz");
}

TEST_F(PlataformaQtPrueba, ElRelojDeAutoguardadoLateCadaMinuto) {
    auto& reloj = ventana.tmrAutoSave();
    EXPECT_EQ(reloj.objectName(), "tmrAutoSave");
    EXPECT_EQ(reloj.interval(), 60000);
    EXPECT_TRUE(reloj.isActive());
    plataforma.activar(Reloj::tmrAutoSave, false);
    EXPECT_FALSE(reloj.isActive());
}

TEST_F(PlataformaQtPrueba, ElMinutoQueLlegaDuranteUnaPreguntaEsperaASuRespuesta) {
    const auto salvado = carpeta.ruta() / "AutoSave.bqr";
    cuandoSeAbra<QMessageBox>([&](QMessageBox& caja) {
        for (int minuto = 1; minuto <= 5; ++minuto)
            bosquel.minutoDeAutoSave();
        EXPECT_FALSE(std::filesystem::exists(salvado));
        QTest::mouseClick(caja.button(QMessageBox::No), Qt::LeftButton);
    });
    pulsar("BttPrincipal_0");
    EXPECT_TRUE(std::filesystem::exists(salvado));
}

TEST_F(PlataformaQtPrueba, UnTurnoDejaPasarLosSucesos) {
    for (const Espera espera : {Espera::completa, Espera::sinEntrada}) {
        bool paso = false;
        QTimer::singleShot(0, &ventana, [&] { paso = true; });
        plataforma.cederEventos(espera);
        EXPECT_TRUE(paso);
    }
}

TEST_F(PlataformaQtPrueba, ElRelojDeArenaSePoneYSeQuita) {
    plataforma.ponerRelojDeArena(true);
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    plataforma.ponerRelojDeArena(false);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(PlataformaQtPrueba, CadaPapelTieneSuCursor) {
    plataforma.ponerCursor(Cursor::Flecha);
    EXPECT_EQ(control("Hoja").cursor().shape(), Qt::ArrowCursor);
    for (const Cursor papel : {Cursor::Cruz, Cursor::Palma, Cursor::IcoSeleccion, Cursor::IcoPared}) {
        plataforma.ponerCursor(papel);
        EXPECT_EQ(control("Hoja").cursor().shape(), Qt::BitmapCursor);
        EXPECT_EQ(control("Hoja").cursor().pixmap().deviceIndependentSize(), QSizeF(32, 32));
    }
}
