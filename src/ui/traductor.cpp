#include "ui/traductor.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace bosquel {

namespace {

struct Traduccion {
    std::string_view contexto, texto;
    const char* enEspanol;
};

// clang-format off
constexpr auto traducciones = std::to_array<Traduccion>({
    {"Print Device Input Slot", "Automatic", "Automática"},
    {"Print Device Output Bin", "Automatic", "Automática"},
    {"QAbstractFileIconProvider", "Alias", "Alias"},
    {"QAbstractFileIconProvider", "Drive", "Unidad"},
    {"QAbstractFileIconProvider", "File", "Fichero"},
    {"QAbstractFileIconProvider", "File Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "Shortcut", "Acceso directo"},
    {"QAbstractFileIconProvider", "Unknown", "Desconocido"},
    {"QCupsPrinterSupport", "Authentication Needed", "Hace falta identificarse"},
    {"QCupsPrinterSupport", "Authentication needed to use %1 on %2.",
     "Hace falta identificarse para usar %1 en %2."},
    {"QCupsPrinterSupport", "Authentication needed to use %1.", "Hace falta identificarse para usar %1."},
    {"QCupsPrinterSupport", "Username:", "Usuario:"},
    {"QCupsPrinterSupport", "Password:", "Contraseña:"},
    {"QFileSystemModel",
     "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no punctuation"
     " marks.",
     "<b>El nombre «%1» no se puede usar.</b><p>Pruebe con otro, más corto o sin signos de puntuación."},
    {"QPrintDialog", "Invalid Pages Definition", "Páginas no válidas"},
    {"QPrintDialog",
     "%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and"
     " make sure ranges do not intersect with each other.",
     "%1 no está bien escrito. Separe páginas e intervalos con «,», escriba los intervalos con «-» y procure que"
     " no se solapen."},
    {"QPrintDialog", "Duplex Settings Conflicts", "Conflicto en las dos caras"},
    {"QPrintDialog", "There are conflicts in duplex settings. Do you want to fix them?",
     "Los ajustes de las dos caras se contradicen. ¿Desea corregirlos?"},
    {"QPrintPropertiesDialog", "Page Setup Conflicts", "Conflicto en la página"},
    {"QPrintPropertiesDialog", "There are conflicts in page setup options. Do you want to fix them?",
     "Las opciones de la página se contradicen. ¿Desea corregirlas?"},
    {"QPrintPropertiesDialog", "Advanced Option Conflicts", "Conflicto en las opciones avanzadas"},
    {"QPrintPropertiesDialog", "There are conflicts in some advanced options. Do you want to fix them?",
     "Algunas opciones avanzadas se contradicen. ¿Desea corregirlas?"},
    {"QPrintPropertiesWidget", "Advanced", "Avanzadas"},
    {"QPrintPropertiesWidget", "There are conflicts in some options. Please fix them.",
     "Algunas opciones se contradicen. Corríjalas, por favor."},
    {"QPrintSettingsOutput", "Pages", "Páginas"},
    {"QPrintSettingsOutput",
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g:"
     " 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Páginas o intervalos separados por comas. Un intervalo son dos números separados por un guion: 3,5-7,9"
     " imprime las páginas 3, 5, 6, 7 y 9."},
    {"QPrintSettingsOutput", "Double Sided Printing", "Impresión a dos caras"},
    {"QPrintSettingsOutput", "Off", "No"},
    {"QPrintSettingsOutput", "Long side binding", "Encuadernar por el lado largo"},
    {"QPrintSettingsOutput", "Short side binding", "Encuadernar por el lado corto"},
});
// clang-format on

}  // namespace

QString Traductor::translate(const char* contexto, const char* texto, const char*, int) const {
    const auto* hallada = std::find_if(traducciones.begin(), traducciones.end(), [=](const Traduccion& una) {
        return una.contexto == contexto && una.texto == texto;
    });
    return hallada == traducciones.end() ? QString() : QString::fromUtf8(hallada->enEspanol);
}

}  // namespace bosquel
