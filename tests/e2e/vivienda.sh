#!/usr/bin/env bash
# A whole session as a user would have it, with the real window: a flat of two rooms is drawn, furnished,
# coloured, kept, opened again, printed and sent out. The argument is the program; with CAPTURAS set to a folder
# the screenshots stay there, among them piso.png, the furnished flat.
set -euo pipefail
programa=$(realpath "${1:?el programa}")
# shellcheck source-path=SCRIPTDIR source=apoyo.sh
source "$(dirname "${BASH_SOURCE[0]}")/apoyo.sh"
calma=0.04

# Where things stand in the main window, in pixels; the sheet begins right of the column, below the strip.
declare -A lugar=(
    [nuevo]='33 28' [abrir]='95 28' [guardar]='157 28' [imprimir]='219 28' [definir]='291 28' [zoom]='425 28'
    [colores]='487 28' [opciones]='549 28' [ayuda]='621 28'
    [paralela]='27 102' [esquina]='79 102' [union]='27 151'
    [muebles]='27 208' [bano]='79 208' [cocina]='27 257' [division]='79 257' [escalera]='27 306'
    [electrico]='79 306'
)
# The places of the buttons on their palettes.
declare -A puesto=(
    [muro]=0 [tabique]=1 [texto]=3 [puerta]=4 [ventana]=5
    [mesa]=0 [cama90]=2 [camaM]=3 [armario]=4 [asiento]=5
    [inodoro]=0 [lavabo]=1 [bidet]=2 [banera]=3
    [nevera]=0 [hornillo]=1 [fregadero]=2 [lavadora]=3
    [luz]=0 [llave]=1 [enchufe]=2
)
anchoColumna=107 altoFranja=56
# In the dialogs of the openings: the sides of the wall that the sketch offers, and an option.
derechaVentana=(243 222) situadaVentana=(30 410) arribaPuerta=(170 180)

paredProp='Propiedades de Muros y Tabiques'

enVentana() { situarEn "$ventanaPrincipal"; }
enHoja() { situarEn "$ventanaPrincipal" "$anchoColumna" "$altoFranja"; }

# pulsar BOTON: of the main window, by its name in the table above.
pulsar() {
    local x y
    read -r x y <<<"${lugar[$1]}"
    enVentana
    clic "$x" "$y"
}

# paleta ELEMENTO: its button on the palette on view; they stand two abreast. As any hand does, the pointer
# crosses bare sheet on its way, which ends what it has begun over a grip or a stair.
paleta() {
    local columna=$((puesto[$1] % 2)) fila=$((puesto[$1] / 2))
    enHoja
    mover 20 600
    enVentana
    clic $((27 + 52 * columna)) $((383 + 49 * fila))
}

# All of the sheet, as a picture.
hoja() {
    enHoja
    recorte "$1" 0 0 860 640
}

# pared ELEMENTO X Y LONGITUD ANGULO: leaves its dialog open.
pared() {
    paleta "$1"
    enHoja
    clic "$2" "$3"
    dialogo "$paredProp"
    teclear "$4"
    tecla alt+g
    teclear "$5"
}

# relacionar BOTON X1 Y1 X2 Y2: a relation of two walls, by the grips at their middles.
relacionar() {
    pulsar "$1"
    enHoja
    clic "$2" "$3"
    clic "$4" "$5"
}

# paralelaDe X Y DISTANCIA: leaves its dialog open.
paralelaDe() {
    pulsar paralela
    enHoja
    clic "$1" "$2"
    dialogo 'Situar Paralela'
    teclear "$3"
}

# abertura ELEMENTO DIALOGO X Y LONGITUD: leaves its dialog open.
abertura() {
    paleta "$1"
    enHoja
    clic "$3" "$4"
    dialogo "$2"
    tecla alt+l
    teclear "$5"
}
ventanaEn() { abertura ventana 'Propiedades de Ventana' "$@"; }
puertaEn() { abertura puerta 'Propiedades de Puerta' "$@"; }

# llevar X Y [ASIDERO_X ASIDERO_Y]: a new element stands at the corner of the sheet, where it is taken by a point
# of it and dragged to its place.
llevar() {
    enHoja
    arrastrar "${3:-5}" "${4:-5}" $((${3:-5} + $1)) $((${4:-5} + $2)) 3
}

# poner ELEMENTO X Y
poner() {
    paleta "$1"
    llevar "$2" "$3"
}

# editar X Y DIALOGO: by a double click.
editar() {
    enHoja
    dobleClic "$1" "$2"
    dialogo "$3"
}

# texto TEXTO X Y
texto() {
    paleta texto
    teclear "$1"
    llevar "$2" "$3"
}

# Whether the help button can be pressed and the manual lies beside the program.
manualALaMano() {
    [[ -e $carpeta/Bosquel.chm ]] || return 1
    enVentana
    recorte "$taller/ayuda.png" 600 34 42 14
    (($(convert "$taller/ayuda.png" -colorspace gray -format '%[fx:round(100 * minima)]' info:) < 40))
}

# color LETRA TABULADORES COLOR: of the category whose box has this letter.
color() {
    local i
    tecla "alt+$1"
    for ((i = 0; i < $2; ++i)); do tecla Tab; done
    tecla space
    dialogo 'Selecciona color'
    tecla alt+h
    teclear "$3"
    responder 'Selecciona color' Return
    situarEn "$ventanaColores"
}

# --- The splash, and a sheet of the size of the flat, seen from near.
abrirPantalla 1280x1024
manual=$(dirname "$programa")/Bosquel.chm
if [[ -e $manual ]]; then
    mkdir -p "$carpeta"
    cp "$manual" "$carpeta"
fi
arrancar "$programa"
dialogo '.'
foto 01-entrada
clic 20 20
esperarVentana '^Nuevo\.bqr - Bosquel Rapiz$'
ventanaPrincipal=$ventana
redimensionar "$ventanaPrincipal" 1020 760
pulsar opciones
dialogo 'Configuración'
teclear 129
tecla alt+t
teclear 96
foto 02-opciones
tecla alt+p
responder 'Configuración' alt+a
pulsar zoom
foto 03-hoja

# --- Four outer walls of 30 cm, two of them as parallels of the others, and their corners.
pared muro 60 100 11.10 0
tecla alt+m Tab
teclear 0.30
tecla alt+p
foto 04-muro
responder "$paredProp" alt+a
pared muro 60 540 6.60 90
responder "$paredProp" alt+a
paralelaDe 430 110 6.00
foto 05-paralela
responder 'Situar Paralela' alt+a
paralelaDe 70 320 10.50
responder 'Situar Paralela' alt+a
foto 06-muros
relacionar esquina 430 110 790 320
relacionar esquina 790 320 430 530
relacionar esquina 430 530 70 320
relacionar esquina 70 320 420 110
foto 07-esquinas

# --- Two partitions, each joined by a T at both its ends.
pared tabique 480 513 5.80 90
responder "$paredProp" alt+a
pared tabique 493 354 4.20 0
responder "$paredProp" alt+a
foto 08-tabiques
relacionar union 483 320 440 530
relacionar union 483 323 420 110
relacionar union 633 357 483 320
relacionar union 630 357 790 310
foto 09-uniones

# --- Windows and doors.
ventanaEn 70 330 1.80
foto 10-ventana
responder 'Propiedades de Ventana' alt+a
ventanaEn 790 227 1.40
clic "${derechaVentana[@]}"
responder 'Propiedades de Ventana' alt+a
ventanaEn 790 437 0.60
clic "${derechaVentana[@]}"
clic "${situadaVentana[@]}"
tecla Tab
teclear 0.40
foto 11-ventana
responder 'Propiedades de Ventana' alt+a
puertaEn 283 530 0.82
clic "${arribaPuerta[@]}"
tecla alt+s Tab
teclear 1.00
foto 12-puerta
responder 'Propiedades de Puerta' alt+a
puertaEn 483 237 0.72
responder 'Propiedades de Puerta' alt+a
puertaEn 483 440 0.72
responder 'Propiedades de Puerta' alt+a
foto 13-aberturas

# --- A stair along a wall.
pulsar escalera
dialogo '^Aviso$'
foto 14-alinear
responder '^Aviso$' alt+s
enHoja
clic 483 237
dialogo 'Propiedades Escalera'
teclear 0.30
tecla alt+n Tab Tab
teclear 0.90
tecla Tab space
foto 15-escalera
responder 'Propiedades Escalera' alt+a
llevar 354 107 94 94
foto 16-escalera

# --- Kitchen, furniture, bath.
pulsar cocina
poner lavadora 81 121
poner fregadero 123 121
poner hornillo 185 121
poner nevera 227 121
foto 17-cocina
pulsar muebles
paleta mesa
pulsar definir
dialogo 'Propiedades de mesa'
teclear 1.60
tecla Tab
teclear 0.90
tecla Tab Tab Tab Right Right Tab Right space
foto 18-mesa
responder 'Propiedades de mesa' alt+a
llevar 210 215 60 60
paleta mesa
pulsar definir
dialogo 'Propiedades de mesa'
teclear 1.00
tecla Tab
teclear 0.60
tecla Tab Tab Tab Left Left Left Left Tab space
responder 'Propiedades de mesa' alt+a
llevar 290 400
poner asiento 250 463
editar 255 468 'Propiedades de asientos'
tecla Tab Tab Tab Left Left space
foto 19-sofa
responder 'Propiedades de asientos' alt+a
poner camaM 580 121
poner cama90 718 121
poner armario 618 313
editar 623 318 'Propiedades Armario'
teclear 2.40
responder 'Propiedades Armario' alt+a
foto 20-muebles
pulsar bano
poner inodoro 570 362
poner bidet 605 362
poner lavabo 645 362
poner banera 659 472
editar 664 477 'Propiedades de Bañera'
tecla Right
foto 21-banera
responder 'Propiedades de Bañera' alt+a
foto 22-bano

# --- Lamps and switches, one of these turned; the names of the rooms.
pulsar electrico
poner luz 280 360
poner luz 680 275
poner llave 489 255
poner llave 220 505
editar 225 510 'Propiedades Llave Interruptor'
teclear 90
foto 23-llave
responder 'Propiedades Llave Interruptor' alt+a
poner enchufe 685 121
pulsar division
texto 'Cocina' 150 170
texto 'Salón comedor' 110 320
texto 'Dormitorio' 580 275
texto 'Baño' 580 440
foto 24-textos

# --- In colour, by a profile that is kept.
pulsar colores
dialogo 'Colores por Tipos'
ventanaColores=$ventana
tecla Down Down
color b 1 '#7a4a1e'
color b 2 '#f6e7cf'
color n 1 '#30506e'
color n 2 '#e6eef5'
color i 1 '#2f6f8f'
color p 1 '#a0522d'
color l 1 '#c0392b'
foto 25-colores
tecla alt+g
dialogo 'Guardar Perfil'
teclear 'Casa'
foto 26-perfil
responder 'Guardar Perfil' Return
responder '^Aviso$' Return
situarEn "$ventanaColores"
responder 'Colores por Tipos' alt+a
enHoja
clic 20 600
mover 20 20
hoja "$taller/dibujada.png"
foto piso "$ventanaPrincipal"
comprobar 'color de un muro' 000000 "$(colorEn 250 100)"
comprobar 'color de una puerta' a0522d "$(colorEn 153 500)"
comprobar 'relleno de un armario' f6e7cf "$(colorEn 700 330)"
comprobar 'relleno de la nevera' e6eef5 "$(colorEn 240 130)"

# --- Kept, with all that was said in the dialogs.
pulsar guardar
dialogo 'Guardar dibujo'
foto 27-guardar
elegirFichero 'Guardar dibujo' "$carpeta/vivienda"
responder '^Aviso$' Return
vivienda=$carpeta/vivienda.bqr
comprobar 'título al guardar' 'vivienda.bqr - Bosquel Rapiz' "$(titulo "$ventanaPrincipal")"
comprobarClaves "$vivienda" <<'FIN'
Cabecera FactorZoomActual 1
Cabecera AnchoAreaDibujo 12900
Cabecera AltoAreaDibujo 9600
Cabecera TotalGrupos 1
Cabecera DistParalela 10,5
Cabecera NumMesa 3
Cabecera NumSilla 1
Cabecera NumCama90 2
Cabecera NumCama130 2
Cabecera NumArmario 2
Cabecera NumAsiento 2
Cabecera NumInodoro 2
Cabecera NumBidet 2
Cabecera NumLavabo 2
Cabecera NumBañera 2
Cabecera NumDucha 1
Cabecera NumCocina 2
Cabecera NumNevera 2
Cabecera NumFregadero 2
Cabecera NumLavadora 2
Cabecera NumPared 11
Cabecera NumVentana 4
Cabecera NumPuerta 4
Cabecera NumTexto 5
Cabecera NumEscalera 2
Cabecera NumElectrico 6
Cabecera ColorCarpinteria 2970272
Colores Esquema Perfil Predefinido
Colores Perfil Casa

Pared(0) AnchoMuro 300
Pared(0) Longitud 11100
Pared(1) Tipo Muro
Pared(1) AnchoMuro 300
Pared(1) NumeroGrupo 1
Pared(1) Linea1X1 900
Pared(1) Linea1Y1 1500
Pared(1) Linea3X1 1200
Pared(1) Linea1X2 7300
Pared(1) Linea3X2 7200
Pared(1) Visible1 Falso
Pared(1) Visible2 Falso
Pared(3) Linea1Y1 7800
Pared(4) Linea1X1 11700
Pared(5) Tipo Tabique
Pared(5) AnchoTabique 100
Pared(5) Angulo 90
Pared(5) Linea1Y1 7800
Pared(9) Linea1Y2 1800
Pared(10) Angulo 90
Pared(10) NumeroGrupo 1

Ventana(1) NumeroPared 2
Ventana(1) Alineacion Centro
Ventana(1) Orientacion Arriba
Ventana(1) Longitud 1800
Ventana(2) NumeroPared 10
Ventana(2) Orientacion Abajo
Ventana(2) Longitud 1400
Ventana(3) NumeroPared 4
Ventana(3) Alineacion Izquierda
Ventana(3) Distancia 400
Ventana(3) Longitud 600
Puerta(1) NumeroPared 3
Puerta(1) Alineacion Izquierda
Puerta(1) Distancia 1000
Puerta(1) Orientacion Arriba
Puerta(1) Longitud 820
Puerta(2) NumeroPared 9
Puerta(2) Longitud 720
Puerta(3) NumeroPared 5

Escalera(2) Left 5310
Escalera(2) Top 1605
Escalera(2) Angle 90
Escalera(2) WidthSteps 300
Escalera(2) WidthStair1 900
Escalera(2) StepsStair1 8
Escalera(2) RailingSide1 Verdadero

Mesa(1) Left 3150
Mesa(1) Top 3225
Mesa(1) MesaDimX 1600
Mesa(1) MesaDimY 900
Mesa(1) ColocacionSillas 6LUUDDR
Mesa(1) LineColor 1985146
Mesa(1) BackColor 13625334
Mesa(2) MesaDimX 1000
Mesa(2) MesaDimY 600
Mesa(2) ColocacionSillas 0
Cama130(1) Left 8700
Cama90(1) Left 10770
Armario(1) DimX 2400
Armario(1) DimY 600
Asiento(1) Orientacion N
Asiento(1) NumeroAsientos 3
Bañera(1) Longitud 1800
Bañera(1) LineColor 9400111
Cocina(1) LineColor 7229488
Nevera(1) BackColor 16117478
Lavadora(1) Left 1215

TextoLibre(1) Text Cocina
TextoLibre(2) Text Salón comedor
TextoLibre(3) Text Dormitorio
TextoLibre(4) Text Baño
Electrico(1) ObjectType Punto de Luz
Electrico(3) ObjectType Interruptor
Electrico(3) Angle 0
Electrico(4) ObjectType Interruptor
Electrico(4) Angle 90
Electrico(4) LineColor 2832832
Electrico(5) ObjectType Enchufe
FIN
comprobarClaves "$carpeta/PerfilesColor.ini" <<'FIN'
Carga NumeroPerfiles 1
Carga Perfil1 Casa
PerfilesVarios Casa 2970272#-2147483640#-2147483640#-2147483640#2832832
PerfilesFondos Casa 13625334#13625334#13625334#13625334#13625334#13625334#16117478#16117478#16117478#16117478#16117478#16117478
FIN

# --- Cleared away and opened again: it looks the same, but for grips that lie in another order at a joint.
pulsar nuevo
dialogo '^Aviso$'
foto 28-nuevo
responder '^Aviso$' alt+s
esperarVentana '^Nuevo\.bqr - Bosquel Rapiz$'
enHoja
recorte "$taller/nueva.png" 0 0 430 320
comprobar 'hoja vacía' ffffff "$(coloresDe "$taller/nueva.png")"
pulsar abrir
dialogo 'Abrir dibujo'
foto 29-abrir
elegirFichero 'Abrir dibujo' "$vivienda"
esperarVentana '^vivienda\.bqr - Bosquel Rapiz$'
enHoja
mover 20 20
esperarColor 700 330 f6e7cf
hoja "$taller/abierta.png"
foto 30-abierto
comprobarMargen 'píxeles que cambian al abrir' 0 40 "$(diferencias "$taller/dibujada.png" "$taller/abierta.png")"

# --- Three steps of the zoom: nearer, from afar, and as before.
pulsar zoom
enHoja
esperarColor 865 600 ffffff
foto 31-cerca
pulsar zoom
enHoja
esperarOtroColor 440 300 ffffff
foto 32-lejos
pulsar zoom
enHoja
esperarColor 700 330 f6e7cf
hoja "$taller/vuelta.png"
comprobarMargen 'píxeles que cambian con el zoom' 0 40 "$(diferencias "$taller/abierta.png" "$taller/vuelta.png")"

# --- Printed: the flat lies on its sheet of A4 at 1:50. At 254 dots to the inch a dot is a tenth of a millimetre.
pulsar imprimir
dialogo 'Selección de Area'
arrastrar 30 80 950 650
foto 33-area
tecla alt+h
tecla alt+i
dialogo '^ActiveReport1$'
foto 34-previa
tecla ctrl+p
dialogo '^Imprimir$'
tecla alt+f
tecla ctrl+a
teclear "$carpeta/vivienda.pdf"
foto 35-pdf
responder '^Imprimir$' Return
responder '^ActiveReport1$' alt+c
pdfinfo "$carpeta/vivienda.pdf" >"$taller/pdf.txt" || mal 'no hay PDF'
comprobar 'páginas' 1 "$(awk '/^Pages:/ { print $2 }' "$taller/pdf.txt")"
comprobar 'papel, en puntos' 842x595 "$(awk '/^Page size:/ { printf "%.0fx%.0f", $3, $5 }' "$taller/pdf.txt")"
pdftoppm -r 254 -gray -singlefile "$carpeta/vivienda.pdf" "$taller/pagina"
read -r ancho alto < <(convert "$taller/pagina.pgm" -threshold 80% -trim -format '%w %h\n' info:)
comprobarMargen 'ancho del piso en el papel' 2220 8 "$ancho"
comprobarMargen 'alto del piso en el papel' 1320 8 "$alto"

# --- Sent out as bitmaps: the area, and then all of it.
dialogo 'Selección de Area'
tecla alt+b
elegirFichero 'Guardar mapa de bits' "$carpeta/area"
responder '^Aviso$' Return
dialogo 'Selección de Area'
tecla alt+r
tecla alt+b
dialogo 'Selección de área'
foto 36-todo
responder 'Selección de área' alt+s
elegirFichero 'Guardar mapa de bits' "$carpeta/todo"
responder '^Aviso$' Return
foto 37-todo
comprobar 'mapa de bits del área' '920x570' "$(convert "$carpeta/area.bmp" -format '%wx%h' info:)"
comprobar 'mapa de bits entero' '975x725' "$(convert "$carpeta/todo.bmp" -format '%wx%h' info:)"
comprobar 'bits por píxel' 24 "$(od -An -tu2 -j28 -N2 "$carpeta/todo.bmp" | tr -d ' ')"
convert "$carpeta/todo.bmp" -crop 920x570+30+80 +repage "$taller/parte.png"
convert "$carpeta/area.bmp" "$taller/area.png"
comprobar 'píxeles del área que no son del todo' 0 "$(diferencias "$taller/parte.png" "$taller/area.png")"
responder 'Selección de Area' alt+s

# --- The manual, where the program comes with one.
if manualALaMano; then
    pulsar ayuda
    dialogo '^Ayuda de Bosquel Rapiz$'
    foto 38-ayuda
    responder '^Ayuda de Bosquel Rapiz$' Escape
fi

# --- The program ends at once.
enVentana
medidas "$ventanaPrincipal"
clic $((WIDTH - 36)) 28
dialogo 'Salir del programa'
foto 39-salir
tecla alt+s
salioBien
