#pragma once

#include "drawing/sesion.h"

#include <filesystem>

namespace bosquel {

// Opening, saving and auto-saving, and the gate that keeps commands and auto-save apart.

/// A command begins (true): waits until a running auto-save is done, then shuts the gate. It ends (false):
/// the gate opens at once, and an auto-save that has waited for it is made.
void CheckAutoSaving(Sesion& sesion, bool Valor);

/// One minute has gone by. At the due minute it saves; if a command is running, when that ends. It waits for
/// it without a loop, since the command may be what it stands upon: one that shows a dialog, or gives other
/// events a turn, cannot go on before the minute's event is over.
void tmrAutoSave(Sesion& sesion);

/// Writes the drawing to `Ruta`, in the place of what may stand there; asks for a file if `Ruta` is empty. A
/// file of the auto-save's name goes unannounced.
void GuardarDibujo(Sesion& sesion, std::filesystem::path Ruta);

/// Asks for a file and replaces the drawing by what it holds. A file that is missing or no drawing gives an
/// empty one.
void AbrirDibujo(Sesion& sesion);

/// The drawing as it is when nothing has been drawn: counters, view, tool and settings, which are read anew.
/// Elements are the caller's to remove first.
void ResetearDibujo(Sesion& sesion);

inline constexpr const char* tituloNuevo = "Nuevo.bqr - Bosquel Rapiz";
inline constexpr const char* ficheroAjustes = "Bqr.ini";
inline constexpr const char* ficheroAutoSave = "AutoSave.bqr";
inline constexpr const char* carpetaDibujos = "Bosquel";

/// A boolean as files and settings hold it. Only the exact word is true.
inline constexpr const char* palabraVerdadero = "Verdadero";
inline constexpr const char* palabraFalso = "Falso";

}  // namespace bosquel
