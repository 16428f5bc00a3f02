#!/usr/bin/env bash
# A session with the real window, from the splash to the exit. The argument is the program; with CAPTURAS set
# to a folder the screenshots stay there.
set -euo pipefail
programa=$(realpath "${1:?el programa}")
# shellcheck source=apoyo.sh
source "$(dirname "${BASH_SOURCE[0]}")/apoyo.sh"

foto() {
    [[ -n ${CAPTURAS:-} ]] || return 0
    mkdir -p "$CAPTURAS"
    captura "$CAPTURAS/$1.png"
}

principal='^Nuevo\.bqr - Bosquel Rapiz$'

# The sheet begins right of the column of palettes and below the main strip.
# shellcheck disable=SC2034  # for the steps to come
anchoColumna=107 altoFranja=56

enVentana() { situarEn "$ventanaPrincipal"; }
enHoja() { situarEn "$ventanaPrincipal" "$anchoColumna" "$altoFranja"; }

# --- The splash closes on a click, anywhere on it.
abrirPantalla 1280x1024
arrancar "$programa"
esperarVentana '.'
foto 01-entrada
situarEn "$ventana"
clic 20 20

# --- The main window, with an empty drawing.
esperarVentana "$principal"
ventanaPrincipal=$ventana
comprobar 'título' 'Nuevo.bqr - Bosquel Rapiz' "$(titulo "$ventanaPrincipal")"
enVentana
foto 02-vacio

# --- The sheet takes the mouse.
enHoja
mover 200 200
foto 03-hoja
comprobar 'el programa sigue' si "$(corre && echo si || echo no)"
