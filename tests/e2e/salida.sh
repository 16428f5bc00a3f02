#!/usr/bin/env bash
# How a drawing leaves the real window: areas marked by hand, bitmaps, the clipboard as another program sees it,
# and the four papers measured. The argument is the program; with CAPTURAS set to a folder the screenshots stay
# there.
set -euo pipefail
programa=$(realpath "${1:?el programa}")
# shellcheck source-path=SCRIPTDIR source=apoyo.sh
source "$(dirname "${BASH_SOURCE[0]}")/apoyo.sh"
calma=0.04

# Where things stand in the main window, in pixels; the sheet begins right of the column, below the strip.
anchoColumna=107 altoFranja=56
abrir=(95 28) guardar=(157 28) imprimir=(219 28) colores=(487 28)
muro=(27 385) texto=(79 434)

# A wall of 4 m lies at 200, 200 of the sheet. On the picture of the output that is pixel 227, and the wall has 152
# of them: 40 mm and the stroke itself.
esquinaMuro=227 anchoMuro=152

salida='Selección de Area'
guardarMapa='Guardar mapa de bits'
sinArea='Selección de área'

enVentana() { situarEn "$ventanaPrincipal"; }
enHoja() { situarEn "$ventanaPrincipal" "$anchoColumna" "$altoFranja"; }
enSalida() { dialogo "$salida"; }

# empezar: past the splash.
empezar() {
    arrancar "$programa"
    dialogo '.'
    clic 20 20
    esperarVentana '^Nuevo\.bqr - Bosquel Rapiz$'
    ventanaPrincipal=$ventana
}

abrirSalida() {
    enVentana
    clic "${imprimir[@]}"
    enSalida
}

# mapaDeBits NOMBRE: of the area marked.
mapaDeBits() {
    tecla alt+b
    elegirFichero "$guardarMapa" "$carpeta/$1"
    responder '^Aviso$' Return
    enSalida
}

# todoElDibujo TECLA: one of the ends without an area, and all of the drawing instead.
todoElDibujo() {
    tecla alt+r "$1"
    responder "$sinArea" alt+s
}

# campo FICHERO.bmp LUGAR: a number of its header.
campo() { od -An -td4 -j "$2" -N4 "$1" | tr -d ' '; }
bits() { od -An -tu2 -j28 -N2 "$1" | tr -d ' '; }
tamano() { convert "$1" -format '%wx%h' info:; }

# esperarMapa FICHERO.bmp ANCHOxALTO BITS
esperarMapa() {
    local nombre
    nombre=$(basename "$1")
    comprobar "$nombre: tamaño" "$2" "$(campo "$1" 18)x$(campo "$1" 22)"
    comprobar "$nombre: bits por píxel" "$3" "$(bits "$1")"
    comprobar "$nombre: píxeles por metro" 3780x3780 "$(campo "$1" 38)x$(campo "$1" 42)"
}

# esperarTinta FICHERO.bmp CAJA: where there is anything but white, as WIDTHxHEIGHT+LEFT+TOP; the height may differ.
esperarTinta() { comprobar "$(basename "$1"): tinta" "$2" "$(convert "$1" -trim -format '%w%O' info:)"; }

# mismosPixeles QUE FICHERO.bmp ENTERO.bmp RECORTE: the file is that part of the whole.
mismosPixeles() {
    convert "$2" "$taller/una.png"
    convert "$3" -crop "$4" +repage "$taller/otra.png"
    comprobar "$1" 0 "$(diferencias "$taller/una.png" "$taller/otra.png")"
}

# sitioDelMuro: its left end in the viewport, once the screen is at rest. A frame over it is no more than a veil.
sitioDelMuro() {
    recorte "$taller/visor.png" 0 215 460 20
    convert "$taller/visor.png" -colorspace gray -threshold 35% -trim -format '%X' info: | tr -d +
}

# alturaDelMuro: its upper edge there.
alturaDelMuro() {
    recorte "$taller/visor.png" 230 100 100 200
    convert "$taller/visor.png" -colorspace gray -threshold 35% -trim -format '%Y' info: | tr -d +
}

# imprimirEn PAPEL TITULO TECLA_TAMANO TECLA_SENTIDO PUNTOS: prints to a file, whose paper is so many points large
# and whose wall is measured. At 384 dots to the inch a pixel of the picture has 4 of them.
imprimirEn() {
    local pdf=$carpeta/$1.pdf ancho izquierda
    enSalida
    tecla "$3" "$4" alt+i
    dialogo "$2"
    foto "previa-$1"
    tecla ctrl+p
    dialogo '^Imprimir$'
    tecla alt+f ctrl+a
    teclear "$pdf"
    responder '^Imprimir$' Return
    responder "$2" alt+c
    pdfinfo "$pdf" >"$taller/pdf.txt" || mal "no hay $1.pdf"
    comprobar "$1: páginas" 1 "$(awk '/^Pages:/ { print $2 }' "$taller/pdf.txt")"
    comprobar "$1: papel, en puntos" "$5" "$(awk '/^Page size:/ { printf "%.0fx%.0f", $3, $5 }' "$taller/pdf.txt")"
    pdftoppm -r 384 -gray -singlefile -x 0 -y 0 -W 1800 -H 1300 "$pdf" "$taller/pagina"
    read -r ancho izquierda < <(convert "$taller/pagina.pgm" -threshold 50% -trim -format '%w %X\n' info:)
    comprobarMargen "$1: muro de 4 m, 40 mm en cuartos de píxel" 605 4 $((ancho - 4))
    comprobarMargen "$1: su sitio" $((4 * esquinaMuro)) 4 "$izquierda"
}

# portapapeles DESTINO: as another program gets it.
portapapeles() { timeout "$espera" xclip -selection clipboard -t "$1" -o 2>/dev/null; }

# --- A wall of 4 m, with what its dialog offers.
abrirPantalla 1400x1100
empezar
enVentana
clic "${muro[@]}"
enHoja
clic 200 200
responder 'Propiedades de Muros y Tabiques' alt+a

# --- In black and white: an area drawn by hand is the file, with one bit to a pixel.
abrirSalida
foto 01-salida
arrastrar 210 210 420 260
foto 02-area
mapaDeBits area
todoElDibujo alt+b
elegirFichero "$guardarMapa" "$carpeta/todo"
responder '^Aviso$' Return
enSalida
esperarMapa "$carpeta/area.bmp" 210x50 1
esperarTinta "$carpeta/area.bmp" "$anchoMuro+17+17"
esperarMapa "$carpeta/todo.bmp" 755x755 1
esperarTinta "$carpeta/todo.bmp" "$anchoMuro+$esquinaMuro+$esquinaMuro"
mismosPixeles 'área y todo' "$carpeta/area.bmp" "$carpeta/todo.bmp" 210x50+210+210

# --- Past the edge of the viewport the sheet goes along for as long as the button is down.
redimensionar "$ventana" 560 460
enSalida
tecla alt+r
comprobar 'el muro, antes' "$esquinaMuro" "$(sitioDelMuro)"
mover 100 100
xdotool mousedown 1
mover 300 200
mover 500 250
sleep 0.8
mover 440 250
desplazado=$((esquinaMuro - $(sitioDelMuro)))
foto 03-desplazada
xdotool mouseup 1
((desplazado >= 6)) || mal "la hoja no se ha desplazado: $desplazado"
mapaDeBits lejos
comprobarMargen 'ancho de lo trazado con la hoja en marcha' $((340 + desplazado)) 1 "$(campo "$carpeta/lejos.bmp" 18)"
esperarTinta "$carpeta/lejos.bmp" "$anchoMuro+$((esquinaMuro - 100))+$((esquinaMuro - 100))"
responder "$salida" alt+s

# --- The wheel takes it up and down: three lines a notch, of a twentieth of what the sheet has to spare.
abrirSalida
redimensionar "$ventana" 560 460
enSalida
clic 300 200 5
comprobarMargen 'el muro, con la rueda' $((esquinaMuro - 100 - 54)) 2 "$(alturaDelMuro)"
clic 300 200 4
comprobar 'el muro, con la rueda hacia atrás' $((esquinaMuro - 100)) "$(alturaDelMuro)"
responder "$salida" alt+s

# --- A frame moved off the sheet is taken from its edge, with its size; a click leaves an empty one, and no question.
abrirSalida
arrastrar 300 200 600 270
arrastrar 400 230 20 230
foto 04-fuera
mapaDeBits fuera
esperarMapa "$carpeta/fuera.bmp" 300x70 1
mismosPixeles 'lo sacado por la izquierda' "$carpeta/fuera.bmp" "$carpeta/todo.bmp" 300x70+0+200
clic 650 600
mapaDeBits vacia
esperarMapa "$carpeta/vacia.bmp" 0x0 1
comprobar 'bytes de un mapa sin píxeles' 62 "$(stat -c %s "$carpeta/vacia.bmp")"

# --- "Reiniciar" brings the question back; with No nothing happens, nor when the file dialog is left.
tecla alt+r alt+b
responder "$sinArea" alt+n
noHayVentana "$guardarMapa" || mal 'se pide un fichero después de un No'
enSalida
arrastrar 210 210 420 260
tecla alt+b
dialogo "$guardarMapa"
teclear cancelado
responder "$guardarMapa" Escape
enSalida
noHayVentana '^Aviso$' || mal 'se avisa de lo que se ha cancelado'
comprobar 'ficheros tras cancelar' 'area fuera lejos todo vacia' \
    "$(cd "$carpeta" && find . -name '*.bmp' -printf '%f\n' | sort | sed 's/\.bmp$//' | paste -sd ' ')"

# --- Where nothing can be written the notice is the same.
mapaDeBits nadie/plano
[[ ! -e $carpeta/nadie ]] || mal 'se ha escrito donde no se podía'

# --- The clipboard, read by another program; printing empties it.
tecla alt+c
portapapeles TARGETS >"$taller/formas.txt" || mal 'no hay nada en el portapapeles'
grep -qx image/png "$taller/formas.txt" || mal "el portapapeles no ofrece PNG: $(<"$taller/formas.txt")"
portapapeles image/png >"$taller/pegado.png"
comprobar 'píxeles por metro de lo pegado' 3780x3780 \
    "$(convert "$taller/pegado.png" -format '%[fx:round(100*resolution.x)]x%[fx:round(100*resolution.y)]' info:)"
mismosPixeles 'lo pegado' "$taller/pegado.png" "$carpeta/todo.bmp" 210x50+210+210

# --- The four papers, with the whole drawing.
todoElDibujo alt+c
imprimirEn A4 '^Vista Previa de Impresión$' alt+4 alt+v 595x842
imprimirEn A4H '^ActiveReport1$' alt+4 alt+h 842x595
imprimirEn A3 '^ActiveReport1$' alt+3 alt+v 842x1191
imprimirEn A3H '^ActiveReport1$' alt+3 alt+h 1191x842
! portapapeles image/png >"$taller/nada.png" || mal 'imprimir no vacía el portapapeles'
enSalida
responder "$salida" alt+s

# --- With letters and in colours of one's own, the file is of colour.
enVentana
clic "${texto[@]}"
teclear 'Salón'
enHoja
arrastrar 5 5 305 405 3
enVentana
clic "${colores[@]}"
dialogo 'Colores por Tipos'
tecla Down
foto 05-colores
responder 'Colores por Tipos' alt+a
enVentana
clic "${guardar[@]}"
elegirFichero 'Guardar dibujo' "$carpeta/salida"
responder '^Aviso$' Return
comprobar 'esquema' 'Colores Personalizados' "$(valor "$carpeta/salida.bqr" Colores Esquema)"
abrirSalida
todoElDibujo alt+b
elegirFichero "$guardarMapa" "$carpeta/color"
responder '^Aviso$' Return
esperarMapa "$carpeta/color.bmp" 755x755 24
mismosPixeles 'muro en color' "$carpeta/color.bmp[200x60+200+200]" "$carpeta/todo.bmp" 200x60+200+200
enSalida
responder "$salida" alt+s
terminar "$procesoPrograma"
terminar "$procesoPantalla"
procesoPrograma='' procesoPantalla=''

# --- On a screen of twice the density the same drawing gives the same file.
escala=2
abrirPantalla 2100x1700
empezar
enVentana
clic "${abrir[@]}"
elegirFichero 'Abrir dibujo' "$carpeta/salida.bqr"
esperarVentana '^salida\.bqr - Bosquel Rapiz$'
abrirSalida
foto 06-doble
todoElDibujo alt+b
elegirFichero "$guardarMapa" "$carpeta/doble"
responder '^Aviso$' Return
cmp "$carpeta/color.bmp" "$carpeta/doble.bmp" || mal 'el mapa de bits cambia con la densidad de la pantalla'
printf 'bien: el mismo fichero a doble densidad\n'
enSalida
responder "$salida" alt+s
