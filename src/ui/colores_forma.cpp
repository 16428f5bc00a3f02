#include "ui/colores_forma.h"

#include "appearance/colores.h"
#include "ui/rotulos.h"
#include "ui/selector_color.h"
#include "ui/textos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

namespace bosquel {

/// A kind of swatch: its name after "txt" and "cmd", what it is read as, and who is told of its colour.
struct MuestraColor {
    const char* nombre;
    const char* leida;
    void (Colores::*elegir)(std::size_t, std::optional<Color>);
};

/// What the rows of types have in common, and those of categories.
struct GrupoDeFilas {
    const char* casilla;
    void (Colores::*soltarConControl)(std::size_t);  ///< nullptr where Control says nothing
    MuestraColor linea, fondo;
};

/// A row of a tab: box, swatch of the line, and swatch of the fill where there is one.
struct FilaColor {
    const GrupoDeFilas& grupo;
    std::size_t indice;
    std::string_view rotulo;
    char letra;  ///< of the caption, that it is reached by
    bool* casilla;
    const Color *linea, *fondo;
};

namespace {

constexpr int anchoPerfil = 160, anchoNota = 460;  // px
constexpr int anchoRotulo = 170, separacionMuestras = 24, margenPagina = 12;

// The letters of the captions, one for each row of the tables: none stands twice among what is in sight.
constexpr std::string_view letrasEsquema = "yzf", letrasSolapa = "tMoS";
constexpr std::string_view letrasCategoria = "bnipdxEl", letrasTipo = "elnr91NidLvrIBLeDU";

constexpr GrupoDeFilas grupoTipos{"chkColores",
                                  &Colores::soltarConControl,
                                  {"LineColor", "color de línea de ", &Colores::cmdLineColor},
                                  {"BackColor", "color de fondo de ", &Colores::cmdBackColor}};
constexpr GrupoDeFilas grupoCategorias{"chkCatColor",
                                       nullptr,
                                       {"LineCatColor", "color de línea de ", &Colores::cmdLineCatColor},
                                       {"BackCatColor", "color de fondo de ", &Colores::cmdBackCatColor}};

/// A caption with its mnemonic.
QString conLetra(std::string_view rotulo, char letra) {
    std::string marcado(rotulo);
    return aQString(marcado.insert(marcado.find(letra), "&"));
}

std::vector<FilaColor> filasDe(Colores& logica, Solapa solapa) {
    std::vector<FilaColor> filas;
    for (std::size_t i = 0; i < categoriasColor.size() && solapa == Solapa::Categoria; ++i)
        filas.push_back({grupoCategorias, i, categoriasColor[i].rotulo, letrasCategoria[i],
                         &logica.chkCatColor[i], &logica.txtLineCatColor()[i],
                         categoriasColor[i].conFondo ? &logica.txtBackCatColor()[i] : nullptr});
    for (std::size_t i = 0; i < tiposColor.size(); ++i)
        if (tiposColor[i].solapa == solapa)
            filas.push_back({grupoTipos, i, tiposColor[i].rotulo, letrasTipo[i], &logica.chkColores[i],
                             &logica.txtLineColor()[i],
                             tiposColor[i].conFondo ? &logica.txtBackColor()[i] : nullptr});
    return filas;
}

/// A box that tells of the mouse's release on it while Control alone is held.
class CasillaConControl final : public QCheckBox {
  public:
    CasillaConControl(const QString& rotulo, std::function<void()> alSoltar)
        : QCheckBox(rotulo), alSoltar_(std::move(alSoltar)) {}

  protected:
    void mouseReleaseEvent(QMouseEvent* suceso) override {
        QCheckBox::mouseReleaseEvent(suceso);
        constexpr auto teclas = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
        if (suceso->button() == Qt::LeftButton && (suceso->modifiers() & teclas) == Qt::ControlModifier)
            alSoltar_();
    }

  private:
    std::function<void()> alSoltar_;
};

/// The swatches stand under each other on all tabs, near the captions.
QGridLayout* nuevaRejillaDeMuestras() {
    auto* rejilla = nuevaRejilla();
    rejilla->setHorizontalSpacing(separacionMuestras);
    rejilla->setColumnMinimumWidth(0, anchoRotulo);
    rejilla->setColumnStretch(0, 0);
    rejilla->setColumnStretch(3, 1);
    return rejilla;
}

/// Over as many lines as it takes.
QLabel* nuevaNota(std::string_view texto) {
    auto* nota = new QLabel(aQString(texto));
    nota->setWordWrap(true);
    nota->setFixedSize(anchoNota, nota->heightForWidth(anchoNota));
    return nota;
}

}  // namespace

ColoresForma::ColoresForma(Colores& logica, QWidget* padre)
    : Dialogo("Colores", "Colores por Tipos", {"Command1", "Command2"}, padre),
      logica_(logica),
      cboPerfil_(nombrar(new QComboBox, "cboPerfil")),
      cmdGuardarPerfil_(nombrar(new QPushButton("&Guardar"), "cmdGuardarPerfil")),
      solapas_(nombrar(new QTabWidget, "Solapas")) {
    auto* arriba = new QHBoxLayout;
    arriba->addLayout(esquemas());
    arriba->addWidget(perfiles(), 1);
    cuerpo()->addLayout(arriba);
    cuerpo()->addWidget(solapas_);
    orden_ += solapas_->tabBar()->objectName();
    for (std::size_t i = 0; i < solapasColor.size(); ++i)
        solapas_->addTab(pagina(i), conLetra(solapasColor[i].rotulo, letrasSolapa[i]));
    solapas_->setAccessibleName("Tipos de elementos");
    solapas_->tabBar()->setAccessibleName("Tipos de elementos");
    ordenar(orden_ + QStringList{"Command1", "Command2"});
    opciones_[logica_.optSchemaColor()]->setFocus();
    mostrar();
}

std::function<void()> ColoresForma::mostrandoTras(std::function<void()> paso) {
    return [this, paso = std::move(paso)] {
        paso();
        mostrar();
    };
}

QLayout* ColoresForma::esquemas() {
    auto* columna = new QVBoxLayout;
    for (std::size_t i = 0; i < esquemasColor.size(); ++i) {
        const QString nombre = QString("optSchemaColor_%1").arg(i);
        auto* opcion = nombrar(new QRadioButton(conLetra(esquemasColor[i].rotulo, letrasEsquema[i])),
                               nombre.toUtf8().constData());
        opcion->setChecked(i == logica_.optSchemaColor());
        connect(opcion, &QRadioButton::toggled, this,
                [elegir = mostrandoTras([this, i] { logica_.elegirEsquema(i); })](bool puesta) {
                    if (puesta) elegir();
                });
        columna->addWidget(opcion);
        opciones_.push_back(opcion);
        orden_ += nombre;
    }
    return columna;
}

QWidget* ColoresForma::perfiles() {
    auto* marco = new QGroupBox("Perfiles de Color");
    auto* fila = new QHBoxLayout(marco);
    fila->addWidget(cboPerfil_, 1);
    fila->addWidget(cmdGuardarPerfil_);
    cboPerfil_->setEditable(true);
    cboPerfil_->setInsertPolicy(QComboBox::NoInsert);
    cboPerfil_->setCompleter(nullptr);
    cboPerfil_->setMinimumWidth(anchoPerfil);
    cboPerfil_->setAccessibleName("Perfil");
    cboPerfil_->lineEdit()->setAccessibleName("Perfil");
    llenarPerfiles();
    const auto abrir =
        mostrandoTras([this] { logica_.escribirPerfil(cboPerfil_->currentText().toStdString()); });
    connect(cboPerfil_, &QComboBox::editTextChanged, this, abrir);
    connect(cboPerfil_, &QComboBox::activated, this, abrir);
    connect(cmdGuardarPerfil_, &QPushButton::clicked, this, mostrandoTras([this] {
                logica_.cmdGuardarPerfil();
                llenarPerfiles();
            }));
    orden_ += {"cboPerfil", "cmdGuardarPerfil"};
    return marco;
}

QWidget* ColoresForma::pagina(std::size_t solapa) {
    const auto filas = filasDe(logica_, static_cast<Solapa>(solapa));
    auto* rejilla = nuevaRejillaDeMuestras();
    rejilla->addWidget(new QLabel("Línea"), 0, 1);
    if (std::any_of(filas.begin(), filas.end(), [](const FilaColor& fila) { return fila.fondo; }))
        rejilla->addWidget(new QLabel("Fondo"), 0, 2);
    for (const FilaColor& fila : filas)
        ponerFila(rejilla, fila);

    auto* pagina = new QWidget;
    auto* columna = new QVBoxLayout(pagina);
    columna->setContentsMargins(margenPagina, margenPagina, margenPagina, margenPagina);
    columna->setSpacing(margenPagina);
    columna->addWidget(nuevaNota(solapasColor[solapa].nota));
    columna->addLayout(rejilla);
    columna->addStretch();
    return pagina;
}

void ColoresForma::ponerFila(QGridLayout* rejilla, const FilaColor& fila) {
    const int lugar = rejilla->rowCount();
    rejilla->addWidget(casilla(fila), lugar, 0);
    rejilla->addWidget(selector(fila, fila.grupo.linea, fila.linea), lugar, 1);
    if (fila.fondo) rejilla->addWidget(selector(fila, fila.grupo.fondo, fila.fondo), lugar, 2);
}

QCheckBox* ColoresForma::casilla(const FilaColor& fila) {
    const QString nombre = QString("%1_%2").arg(fila.grupo.casilla).arg(fila.indice);
    const QString rotulo = conLetra(fila.rotulo, fila.letra);
    const auto alSoltar = [this, &grupo = fila.grupo, i = fila.indice] {
        std::invoke(grupo.soltarConControl, logica_, i);
    };
    auto* casilla = fila.grupo.soltarConControl ? new CasillaConControl(rotulo, mostrandoTras(alSoltar))
                                                : new QCheckBox(rotulo);
    connect(casilla, &QCheckBox::toggled, this, [valor = fila.casilla](bool puesta) { *valor = puesta; });
    casillas_.emplace_back(casilla, fila.casilla);
    orden_ += nombre;
    return nombrar(casilla, nombre.toUtf8().constData());
}

SelectorColor* ColoresForma::selector(const FilaColor& fila, const MuestraColor& muestra,
                                      const Color* color) {
    const QString nombre = QString("%1_%2").arg(muestra.nombre).arg(fila.indice);
    auto* selector = new SelectorColor("txt" + nombre, "cmd" + nombre, muestra.leida + aQString(fila.rotulo));
    connect(selector, &SelectorColor::elegido, this,
            [this, selector, &muestra, i = fila.indice](bool conColor) {
                std::invoke(muestra.elegir, logica_, i,
                            conColor ? std::optional(selector->color()) : std::nullopt);
                mostrar();
            });
    selectores_.emplace_back(selector, color);
    orden_ += "cmd" + nombre;
    return selector;
}

void ColoresForma::llenarPerfiles() {
    const QSignalBlocker callado(cboPerfil_);
    cboPerfil_->clear();
    for (const std::string& perfil : logica_.perfiles())
        cboPerfil_->addItem(aQString(perfil));
    cboPerfil_->setCurrentIndex(-1);
}

void ColoresForma::mostrar() {
    const QString perfil = aQString(logica_.cboPerfil());
    if (cboPerfil_->currentText() != perfil) {
        const QSignalBlocker callado(cboPerfil_);
        cboPerfil_->setCurrentIndex(cboPerfil_->findText(perfil));
        cboPerfil_->setEditText(perfil);
    }
    cboPerfil_->setEnabled(logica_.perfilHabilitado());
    cmdGuardarPerfil_->setEnabled(logica_.perfilHabilitado());
    solapas_->setEnabled(logica_.solapasHabilitadas());
    for (const auto& [casilla, valor] : casillas_)
        casilla->setChecked(*valor);
    for (const auto& [selector, color] : selectores_)
        selector->ponerColor(*color);
}

void ColoresForma::aplicar() {
    logica_.AplicarColores();
}

}  // namespace bosquel
