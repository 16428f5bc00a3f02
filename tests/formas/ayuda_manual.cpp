#include "apoyo/carpeta_temporal.h"
#include "ui/ayuda_archivo.h"
#include "ui/ayuda_sumario.h"

#include <QImage>
#include <QRegularExpression>
#include <QTextDocument>
#include <gtest/gtest.h>

using namespace bosquel;

namespace {

/// The manual as it was compiled.
const ArchivoAyuda& manual() {
    static const ArchivoAyuda archivo = leerArchivoAyuda(BOSQUEL_MANUAL);
    return archivo;
}

QString html(const QString& pagina) {
    return textoAyuda(manual().value(pagina));
}

/// The values of an attribute in a page.
QStringList valores(const QString& pagina, const QString& atributo) {
    QStringList todos;
    const QRegularExpression expresion(QString(R"re(\b%1="([^"]*)")re").arg(atributo));
    for (const auto& hallado : expresion.globalMatch(html(pagina)))
        todos += hallado.captured(1);
    return todos;
}

bool existe(const QString& destino) {
    const QString pagina = destino.section('#', 0, 0);
    const QString sitio = destino.section('#', 1);
    return manual().contains(pagina) && (sitio.isEmpty() || valores(pagina, "name").contains(sitio));
}

/// Whether guiones/figuras-ayuda makes this picture, if it has not made it yet.
bool laHaceElGuion(const QString& imagen) {
    static const QString guion =
        QString::fromStdString(apoyo::bytesDe(std::string(BOSQUEL_RAIZ) + "/guiones/figuras-ayuda"));
    const QString nombre = imagen.section('/', -1).section('.', 0, 0);
    return guion.contains("\nfigura:" + nombre + "()");
}

}  // namespace

TEST(Manual, CadaEnlaceLlevaAUnaPaginaYAUnSitioDeElla) {
    ASSERT_GT(paginasAyuda(manual()).size(), 15);
    for (const QString& pagina : paginasAyuda(manual()))
        for (const QString& enlace : valores(pagina, "href"))
            EXPECT_TRUE(existe(enlace.startsWith('#') ? pagina + enlace : enlace))
                << pagina.toStdString() << ": " << enlace.toStdString();
}

TEST(Manual, CadaImagenEstaOLaHaceElGuionDeLasFiguras) {
    int imagenes = 0;
    for (const QString& pagina : paginasAyuda(manual()))
        for (const QString& imagen : valores(pagina, "src")) {
            ++imagenes;
            EXPECT_TRUE(laHaceElGuion(imagen)) << pagina.toStdString() << ": " << imagen.toStdString();
            if (manual().contains(imagen)) {
                EXPECT_FALSE(QImage::fromData(manual().value(imagen)).isNull()) << imagen.toStdString();
            }
        }
    EXPECT_GT(imagenes, 20);
}

TEST(Manual, CadaImagenSeDescribeConPalabras) {
    for (const QString& pagina : paginasAyuda(manual())) {
        EXPECT_EQ(valores(pagina, "alt").size(), valores(pagina, "src").size()) << pagina.toStdString();
        EXPECT_FALSE(valores(pagina, "alt").contains("")) << pagina.toStdString();
    }
}

TEST(Manual, ElContenidoNombraTodasLasPaginas) {
    QStringList nombradas;
    for (const EntradaAyuda& entrada : contenidoAyuda(manual())) {
        EXPECT_TRUE(entrada.destino.isEmpty() || existe(entrada.destino)) << entrada.destino.toStdString();
        nombradas += entrada.destino;
    }
    for (const QString& pagina : paginasAyuda(manual()))
        EXPECT_TRUE(nombradas.contains(pagina)) << pagina.toStdString();
}

TEST(Manual, ElIndiceLlevaASitiosQueExistenYVaEnOrden) {
    const auto indice = indiceAyuda(manual());
    ASSERT_GT(indice.size(), 50);
    for (const EntradaAyuda& entrada : indice)
        EXPECT_TRUE(existe(entrada.destino)) << entrada.nombre.toStdString();
}

TEST(Manual, LosAcentosLleganEnterosALasTablasYALasPaginas) {
    QStringList nombres;
    for (const EntradaAyuda& entrada : contenidoAyuda(manual()) + indiceAyuda(manual()))
        nombres += entrada.nombre;
    EXPECT_TRUE(nombres.contains("Símbolos eléctricos"));
    EXPECT_TRUE(nombres.contains("bañera"));
    EXPECT_TRUE(manual()
                    .value("Bosquel.hhc")
                    .contains("S\xEDmbolos el\xE9"
                              "ctricos"))
        << "as all readers take it";
    QTextDocument bano;
    bano.setHtml(html("bano.html"));
    EXPECT_TRUE(bano.toPlainText().contains("La bañera"));
    for (const QString& pagina : paginasAyuda(manual())) {
        EXPECT_FALSE(html(pagina).contains(QChar::ReplacementCharacter)) << pagina.toStdString();
        EXPECT_FALSE(html(pagina).contains("Ã")) << pagina.toStdString();
    }
}

TEST(Manual, CadaPaginaTieneElTituloQueEncabezaSuTexto) {
    for (const QString& pagina : paginasAyuda(manual())) {
        QTextDocument documento;
        documento.setHtml(html(pagina));
        const QString titulo = documento.metaInformation(QTextDocument::DocumentTitle);
        EXPECT_FALSE(titulo.isEmpty()) << pagina.toStdString();
        EXPECT_TRUE(documento.toPlainText().startsWith(titulo)) << pagina.toStdString();
    }
}
