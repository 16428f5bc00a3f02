#include <QAbstractButton>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QMap>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// All captions of a dialog of the toolkit, in sight or not yet.
QStringList rotulos(const QWidget& dialogo) {
    QStringList todos;
    for (const auto* boton : dialogo.findChildren<QAbstractButton*>())
        todos << boton->text();
    for (const auto* marco : dialogo.findChildren<QGroupBox*>())
        todos << marco->title();
    for (const auto* etiqueta : dialogo.findChildren<QLabel*>())
        todos << etiqueta->text();
    for (const auto* solapas : dialogo.findChildren<QTabBar*>())
        for (int i = 0; i < solapas->count(); ++i)
            todos << solapas->tabText(i);
    for (QString& rotulo : todos)
        rotulo.remove('&');
    return todos;
}

void esperarEspanol(const QWidget& dialogo, const QStringList& entreOtros) {
    const QStringList todos = rotulos(dialogo);
    for (const QString& rotulo : entreOtros)
        EXPECT_TRUE(todos.contains(rotulo))
            << rotulo.toStdString() << " in " << todos.join('|').toStdString();
    const QRegularExpression ingles(
        "\\b(OK|Cancel|Options?|Pages?|Print|Printer|Name|Location|Type|Output|Off|"
        "Double|Long|Short|Advanced|Basic|Custom|Pick|Add|Red|Green|Blue|Hue|Sat|Val)\\b");
    EXPECT_EQ(todos.filter(ingles), QStringList());
}

}  // namespace

TEST(Aplicacion, ElDialogoDeImpresionEstaEnEspanol) {
    QPrinter impresora;
    impresora.setOutputFormat(QPrinter::PdfFormat);
    const QPrintDialog dialogo(&impresora);
    esperarEspanol(dialogo, {"Imprimir", "Cancelar", "Páginas", "Copias:", "Impresión a dos caras"});
}

TEST(Aplicacion, ElDialogoDeColorEstaEnEspanol) {
    QColorDialog dialogo;
    dialogo.setOption(QColorDialog::DontUseNativeDialog);
    esperarEspanol(dialogo, {"Aceptar", "Cancelar", "Rojo:", "Colores básicos"});
}

TEST(Aplicacion, LosBotonesDeConfirmarVanDelanteDeLosDeCancelar) {
    QColorDialog dialogo;
    dialogo.setOption(QColorDialog::DontUseNativeDialog);
    dialogo.show();
    QMap<QString, int> lugares;
    for (const auto* boton : dialogo.findChildren<QPushButton*>())
        lugares[boton->text().remove('&')] = boton->mapTo(&dialogo, QPoint()).x();
    EXPECT_LT(lugares["Aceptar"], lugares["Cancelar"]);
}

TEST(Aplicacion, LaFechaYLosNumerosSonLosDeEspana) {
    EXPECT_EQ(QLocale().decimalPoint(), ",");
    EXPECT_EQ(QLocale().monthName(1), "enero");
}
