#!/usr/bin/env bash
# A session with the real window, from the splash to the exit. The argument is the program; with CAPTURAS set
# to a folder the screenshots stay there.
set -euo pipefail
programa=$(realpath "${1:?el programa}")
# shellcheck source-path=SCRIPTDIR source=apoyo.sh
source "$(dirname "${BASH_SOURCE[0]}")/apoyo.sh"

principal='^Nuevo\.bqr - Bosquel Rapiz$'

# Where things stand in the main window, in pixels; the sheet begins right of the column, below the strip.
anchoColumna=107 altoFranja=56
muro=(27 385) abrir=(95 28) guardar=(157 28) eliminar=(353 28) zoom=(425 28)
# And in the wall dialog.
treintaGrados=(420 126) aplicar=(329 355)

enVentana() { situarEn "$ventanaPrincipal"; }
enHoja() { situarEn "$ventanaPrincipal" "$anchoColumna" "$altoFranja"; }

# delMuro FICHERO CLAVE: of the first wall.
delMuro() { valor "$1" 'Pared(1)' "$2"; }

# deLaMano FICHERO: a drawing without what every opening adds to it, a hidden stair and a hidden symbol.
deLaMano() {
    tr -d '\r' <"$1" | awk '
        /^\[/ { anadido = /^\[(Escalera|Electrico)\([1-9]/ }
        NF && !anadido && !/^NumElectrico=/'
}

guardarComo() {
    enVentana
    clic "${guardar[@]}"
    elegirFichero 'Guardar dibujo' "$carpeta/$1"
    responder '^Aviso$' Return
}

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
foto 02-vacio

# --- A wall: one click on the sheet, its length typed, its angle from the dial.
enVentana
clic "${muro[@]}"
enHoja
clic 200 300
esperarVentana 'Propiedades de Muros y Tabiques'
situarEn "$ventana"
tecla ctrl+a
teclear '4.00'
clic "${treintaGrados[@]}"
foto 03-dialogo
clic "${aplicar[@]}"
esperarCierre 'Propiedades de Muros y Tabiques'
enHoja
foto 04-muro

# --- Saved, with the decimal commas of the user's language.
guardarComo piso
piso=$carpeta/piso.bqr
comprobar 'título al guardar' 'piso.bqr - Bosquel Rapiz' "$(titulo "$ventanaPrincipal")"
comprobar 'ángulo' 30 "$(delMuro "$piso" Angulo)"
comprobar 'longitud' 4000 "$(delMuro "$piso" Longitud)"
comprobar 'línea 1, inicio x' 3000 "$(delMuro "$piso" Linea1X1)"
comprobar 'línea 1, inicio y' 4500 "$(delMuro "$piso" Linea1Y1)"
comprobar 'línea 1, final x' 4732,051 "$(delMuro "$piso" Linea1X2)"
comprobar 'línea 1, final y' 3500 "$(delMuro "$piso" Linea1Y2)"
comprobar 'línea 3, inicio x' 3050 "$(delMuro "$piso" Linea3X1)"
comprobar 'línea 3, inicio y' 4586,603 "$(delMuro "$piso" Linea3Y1)"
comprobar 'línea 3, final x' 4782,051 "$(delMuro "$piso" Linea3X2)"
comprobar 'línea 3, final y' 3586,603 "$(delMuro "$piso" Linea3Y2)"

# --- Dragged by its end grip, the whole wall moves; its offsets are whole sheet units.
enHoja
arrastrar 317 236 377 276 12
foto 05-arrastrado
guardarComo movido
comprobar 'inicio x tras arrastrar' 3900,051 "$(delMuro "$carpeta/movido.bqr" InicialX)"
comprobar 'inicio y tras arrastrar' 5100,301 "$(delMuro "$carpeta/movido.bqr" InicialY)"

# --- Opened again, saved again: the same drawing. Three steps of the zoom come back to the first.
enVentana
clic "${abrir[@]}"
elegirFichero 'Abrir dibujo' "$piso"
for _ in 1 2 3; do clic "${zoom[@]}"; done
foto 06-abierto
enVentana
clic "${abrir[@]}"
elegirFichero 'Abrir dibujo' "$piso"
guardarComo otro
comprobar 'abrir y guardar' "$(deLaMano "$piso")" "$(deLaMano "$carpeta/otro.bqr")"
comprobar 'símbolos tras abrir' 2 "$(valor "$carpeta/otro.bqr" Cabecera NumElectrico)"

# --- Delete removes the selected wall, from anywhere in the window.
enHoja
clic 201 303
enVentana
mover "${eliminar[@]}"
tecla Delete
guardarComo vacio
comprobar 'muro eliminado' '' "$(delMuro "$carpeta/vacio.bqr" Angulo)"
comprobar 'el contador no baja' 2 "$(valor "$carpeta/vacio.bqr" Cabecera NumPared)"

# --- The program ends at once.
enVentana
medidas "$ventanaPrincipal"
clic $((WIDTH - 36)) 28
esperarVentana 'Salir del programa'
situarEn "$ventana"
foto 07-salir
tecla alt+s
salioBien
