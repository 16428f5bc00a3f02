#include "ui/plataforma_qt.h"

#include "ui/ayuda_forma.h"
#include "ui/ayuda_sumario.h"
#include "ui/carpeta.h"
#include "ui/colores_forma.h"
#include "ui/electrico_forma.h"
#include "ui/entrada_forma.h"
#include "ui/escalera_forma.h"
#include "ui/hoja_widget.h"
#include "ui/image_crop_forma.h"
#include "ui/letra.h"
#include "ui/mesa_forma.h"
#include "ui/mueble_forma.h"
#include "ui/opciones_forma.h"
#include "ui/paralelas_forma.h"
#include "ui/pared_prop_forma.h"
#include "ui/puerta_prop_forma.h"
#include "ui/textos.h"
#include "ui/unidades.h"
#include "ui/ventana_bosquel.h"
#include "ui/ventana_prop_forma.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <cstdlib>

namespace bosquel {

namespace {

/// How long a wait loop lets events run before it looks again, ms.
constexpr int turno = 5;

struct BotonDeMensaje {
    QMessageBox::StandardButton boton;
    const char* rotulo;
    Respuesta respuesta;
};

constexpr BotonDeMensaje aceptar{QMessageBox::Ok, "Aceptar", Respuesta::aceptar};
constexpr BotonDeMensaje si{QMessageBox::Yes, "&Sí", Respuesta::si};
constexpr BotonDeMensaje no{QMessageBox::No, "&No", Respuesta::no};
constexpr BotonDeMensaje cancelar{QMessageBox::Cancel, "&Cancelar", Respuesta::cancelar};

/// The last one is what closing the box answers.
std::vector<BotonDeMensaje> botonesDe(Botones botones) {
    switch (botones) {
        case Botones::aceptar: return {aceptar};
        case Botones::siNo: return {si, no};
        case Botones::siNoCancelar: return {si, no, cancelar};
    }
    return {};
}

/// What a box belongs to: the dialog that it comes out of, or the main window.
QWidget* duenoDe(QWidget* ventana) {
    QWidget* dialogo = QApplication::activeModalWidget();
    return dialogo ? dialogo : ventana;
}

/// A timer that runs goes on with the time that it has left.
void activarReloj(QTimer& reloj, bool activo) {
    if (activo && !reloj.isActive()) reloj.start();
    if (!activo) reloj.stop();
}

/// A folder that is missing would be taken for the name of a file.
std::filesystem::path carpetaInicial(const std::filesystem::path& carpeta) {
    std::error_code error;
    return std::filesystem::is_directory(carpeta, error) ? carpeta : carpeta.parent_path();
}

/// All columns in sight, with room for names above all.
void darEspacio(QFileDialog& dialogo) {
    constexpr int lateral = 150;
    constexpr QSize tamano{880, 500};
    dialogo.resize(tamano);
    if (auto* partes = dialogo.findChild<QSplitter*>()) partes->setSizes({lateral, tamano.width() - lateral});
    if (auto* lista = dialogo.findChild<QTreeView*>()) {
        lista->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        lista->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

}  // namespace

PlataformaQt::PlataformaQt() = default;

PlataformaQt::~PlataformaQt() {
    delete ayuda_;
}

Respuesta PlataformaQt::mensaje(const Mensaje& mensaje) {
    QMessageBox caja(duenoDe(ventana_));
    caja.setWindowTitle(aQString(mensaje.titulo));
    caja.setTextFormat(Qt::PlainText);
    caja.setText(aQString(mensaje.texto));
    caja.setIcon(mensaje.icono == Icono::pregunta ? QMessageBox::Question : QMessageBox::Information);
    const auto botones = botonesDe(mensaje.botones);
    for (const BotonDeMensaje& boton : botones)
        caja.addButton(boton.boton)->setText(QString::fromUtf8(boton.rotulo));
    caja.setEscapeButton(botones.back().boton);
    const int pulsado = caja.exec();
    for (const BotonDeMensaje& boton : botones)
        if (boton.boton == pulsado) return boton.respuesta;
    return botones.back().respuesta;
}

void PlataformaQt::mostrar(Colores& dialogo) {
    ColoresForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(ElectricoProp& dialogo) {
    ElectricoForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(Entrada& dialogo) {
    EntradaForma(dialogo).exec();
}
void PlataformaQt::mostrar(EscaleraProp& dialogo) {
    EscaleraForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(ImageCrop& dialogo) {
    ImageCropForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(MesaProp& dialogo) {
    MesaForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(MuebleProp& dialogo) {
    MuebleForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(Opciones& dialogo) {
    OpcionesForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(Paralelas& dialogo) {
    ParalelasForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(ParedProp& dialogo) {
    ParedPropForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(PuertaProp& dialogo) {
    PuertaPropForma(dialogo, ventana_).exec();
}
void PlataformaQt::mostrar(VentanaProp& dialogo) {
    VentanaPropForma(dialogo, ventana_).exec();
}

std::optional<std::filesystem::path> PlataformaQt::elegirArchivo(const PeticionArchivo& peticion) {
    const bool guardar = peticion.modo == PeticionArchivo::Modo::guardar;
    const QString titulo = !peticion.titulo.empty() ? aQString(peticion.titulo)
                           : guardar                ? "Guardar dibujo"
                                                    : "Abrir dibujo";
    QFileDialog dialogo(duenoDe(ventana_), titulo,
                        QString::fromStdString(carpetaInicial(peticion.carpeta).string()),
                        aQString(peticion.filtro));
    dialogo.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialogo.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(QFileDialog::AnyFile);
    darEspacio(dialogo);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
    return std::filesystem::path(dialogo.selectedFiles().constFirst().toStdString());
}

std::string PlataformaQt::pedirTexto(const PeticionTexto& peticion) {
    QInputDialog caja(duenoDe(ventana_));
    caja.setWindowTitle(aQString(peticion.titulo));
    caja.setLabelText(aQString(peticion.texto));
    caja.setOkButtonText("&Aceptar");
    caja.setCancelButtonText("&Cancelar");
    return caja.exec() == QDialog::Accepted ? caja.textValue().toStdString() : std::string();
}

Medida PlataformaQt::medirTexto(const std::string& texto, double FontSize) {
    const QFontMetricsF metrica(fuenteTexto(FontSize, 1 / unidadesPorPixel));
    return {metrica.horizontalAdvance(aQString(texto)) * unidadesPorPixel,
            metrica.height() * unidadesPorPixel};
}

void PlataformaQt::cederEventos(Espera espera) {
    QEventLoop bucle;
    QTimer::singleShot(turno, &bucle, &QEventLoop::quit);
    bucle.exec(espera == Espera::sinEntrada ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
}

void PlataformaQt::activar(Reloj reloj, bool activo) {
    if (!ventana_) return;
    switch (reloj) {
        case Reloj::tmrAutoSave: return activarReloj(ventana_->tmrAutoSave(), activo);
        case Reloj::Timer2: return activarReloj(ventana_->timer2(), activo);
    }
}

void PlataformaQt::ponerCursor(Cursor cursor) {
    if (ventana_) ventana_->hoja().ponerCursor(cursor);
}

void PlataformaQt::ponerRelojDeArena(bool puesto) {
    if (puesto)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void PlataformaQt::ponerTitulo(const std::string& titulo) {
    if (ventana_) ventana_->setWindowTitle(aQString(titulo));
}

void PlataformaQt::mostrarAyuda(const std::filesystem::path& manual) {
    if (!ayuda_) {
        const ArchivoAyuda archivo = leerArchivoAyuda(sitioDelManual(manual));
        if (paginasAyuda(archivo).isEmpty()) return;
        ayuda_ = new AyudaForma(archivo);
    }
    ayuda_->traerAlFrente();
}

void PlataformaQt::vistaCambiada() {
    if (ventana_) ventana_->mostrarVista();
}

void PlataformaQt::repintar(const ZonaSucia& zona, const ZonaSucia& paso) {
    if (ventana_) ventana_->mostrarCambios(zona, paso);
}

void PlataformaQt::terminar() {
    // What has been copied goes to the keeper of the desktop's clipboard, which the application sees to as it
    // is taken down. Nobody comes back to it: those who wait in its loops end with the program.
    if (QGuiApplication::clipboard()->ownsClipboard()) QCoreApplication::instance()->~QCoreApplication();
    // At once, whatever loops and dialogs are still open; nothing is saved on the way out.
    std::quick_exit(EXIT_SUCCESS);
}

}  // namespace bosquel
