# shellcheck shell=bash
# What a session with the real window is made of: a screen of its own (Xvfb), the program started in a fresh
# folder, a hand on mouse and keyboard (xdotool), screenshots. To be sourced by a script that has set
# -euo pipefail. Every wait ends by itself, and whatever was started ends with the script.
#
#     source apoyo.sh
#     abrirPantalla 1280x1024
#     arrancar build/release/bosquel
#     esperarVentana '^Nuevo.bqr - Bosquel Rapiz$'
#     situarEn "$ventana"
#     clic 300 200

espera=${ESPERA:-20} # seconds until something that has not come counts as failed
escala=${ESCALA:-1}  # pixels of the screen to one of the program's, in which coordinates are given
taller=$(mktemp -d "${TMPDIR:-/tmp}/bosquel-e2e.XXXXXX")
carpeta=$taller/programa # the program's own folder: its settings, its drawings
procesoPantalla=
procesoPrograma=
ventana=
origenX=0
origenY=0
calma=0.15 # seconds of rest after each thing that the hand has done

mal() {
    printf 'MAL: %s\n' "$*" >&2
    if [[ -n $procesoPrograma ]] && ! corre; then
        wait "$procesoPrograma" || printf 'el programa ha terminado con %s\n' "$?" >&2
    fi
    if [[ -n ${CAPTURAS:-} && -n $procesoPantalla ]]; then
        mkdir -p "$CAPTURAS"
        timeout "$espera" import -silent -window root "$CAPTURAS/mal.png" || true
    fi
    if [[ -s $taller/salida.txt ]]; then
        sed 's/^/programa: /' "$taller/salida.txt" >&2
    fi
    exit 1
}

# Ends a process that this script has started: politely, and after two seconds not.
terminar() {
    local proceso=$1 i
    [[ -n $proceso ]] || return 0
    kill "$proceso" 2>/dev/null || return 0
    for ((i = 0; i < 20; ++i)); do
        kill -0 "$proceso" 2>/dev/null || break
        sleep 0.1
    done
    kill -9 "$proceso" 2>/dev/null || true
    wait "$proceso" 2>/dev/null || true
}

# For a script that has more to put away.
alRecoger() { :; }

recoger() {
    local resultado=$?
    trap - EXIT
    terminar "$procesoPrograma"
    terminar "$procesoPantalla"
    alRecoger
    rm -rf "$taller"
    exit "$resultado"
}
trap recoger EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# hasta SEGUNDOS ORDEN...: repeats the command until it succeeds.
hasta() {
    local fin=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < fin)) || return 1
        sleep 0.1
    done
}

# abrirPantalla ANCHOxALTO: the server chooses a display that is free and says which, once it is ready.
abrirPantalla() {
    command -v Xvfb >/dev/null || mal "falta Xvfb"
    : >"$taller/pantalla"
    Xvfb -displayfd 3 -screen 0 "${1:-1280x1024}x24" -nolisten tcp -noreset \
        3>"$taller/pantalla" >"$taller/xvfb.txt" 2>&1 &
    procesoPantalla=$!
    hasta "$espera" test -s "$taller/pantalla" || mal "Xvfb no arranca: $(cat "$taller/xvfb.txt")"
    DISPLAY=:$(<"$taller/pantalla")
    export DISPLAY
    unset WAYLAND_DISPLAY XAUTHORITY QT_IM_MODULE XMODIFIERS
    ponerLetras
    # A keyboard that has the letters of Spanish: those that it has not xdotool puts there for one stroke only,
    # which a slow program looks up too late.
    timeout "$espera" setxkbmap us altgr-intl || mal "el teclado no cambia"
}

# The same letters on every machine, whatever fonts it has: where things stand in a dialog follows from
# them.
ponerLetras() {
    local dejavu=/usr/share/fonts/truetype/dejavu
    [[ -d $dejavu ]] || mal "faltan las letras DejaVu"
    cat >"$taller/letras.conf" <<FIN
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <include ignore_missing="yes">/etc/fonts/conf.d</include>
  <dir>$dejavu</dir>
  <cachedir>$taller/letras</cachedir>
  <match target="pattern">
    <edit name="family" mode="prepend_first" binding="strong"><string>DejaVu Sans</string></edit>
  </match>
</fontconfig>
FIN
    export FONTCONFIG_FILE=$taller/letras.conf
}

# arrancar PROGRAMA [ARGUMENTO...]: a copy of it in a folder of its own, so that what it keeps beside itself
# starts empty; a folder that was prepared, or that an earlier start has left, is taken as it is.
arrancar() {
    local programa=$1 copia
    shift
    [[ -x $programa ]] || mal "no hay programa: $programa"
    mkdir -p "$carpeta"
    mkdir -p "$taller/casa"
    chmod 700 "$taller/casa"
    copia=$carpeta/$(basename "$programa")
    cp "$programa" "$copia"
    # Sharp, at the scale that was asked for, in Spanish, and without anything of the user's.
    (
        cd "$carpeta" || exit
        exec env -u QT_STYLE_OVERRIDE -u QT_QPA_PLATFORMTHEME -u XDG_CURRENT_DESKTOP -u DESKTOP_SESSION \
            -u DBUS_SESSION_BUS_ADDRESS HOME="$taller/casa" XDG_CONFIG_HOME="$taller/casa" \
            XDG_RUNTIME_DIR="$taller/casa" LC_ALL=es_ES.UTF-8 QT_QPA_PLATFORM=xcb \
            QT_SCALE_FACTOR="$escala" QT_ENABLE_HIGHDPI_SCALING=0 QT_FONT_DPI=96 "$copia" "$@"
    ) >>"$taller/salida.txt" 2>&1 &
    procesoPrograma=$!
}

corre() { kill -0 "$procesoPrograma" 2>/dev/null; }

# Waits until the program has ended, and takes its result.
salioBien() {
    local resultado=0
    hasta "$espera" noCorre || mal "el programa no termina"
    wait "$procesoPrograma" || resultado=$?
    procesoPrograma=
    ((resultado == 0)) || mal "el programa ha terminado con $resultado"
}
noCorre() { ! corre; }

# Puts into `ventana` the visible window whose title matches the regular expression.
buscarVentana() {
    corre || mal "el programa se ha cerrado antes de mostrar '$1'"
    ventana=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1)
    [[ -n $ventana ]]
}

hayVentana() { [[ -n $(xdotool search --onlyvisible --name "$1" 2>/dev/null || true) ]]; }
noHayVentana() { ! hayVentana "$1"; }

esperarVentana() { hasta "$espera" buscarVentana "$1" || mal "no aparece la ventana '$1'"; }
esperarCierre() { hasta "$espera" noHayVentana "$1" || mal "no se cierra la ventana '$1'"; }

titulo() { timeout "$espera" xdotool getwindowname "${1:-$ventana}"; }

# medidas [VENTANA]: its place and size on the screen, as X, Y, WIDTH and HEIGHT.
medidas() {
    local valores
    valores=$(timeout "$espera" xdotool getwindowgeometry --shell "${1:-$ventana}") || mal "no hay ventana que medir"
    eval "$(grep -E '^(X|Y|WIDTH|HEIGHT)=-?[0-9]+$' <<<"$valores")"
}

# redimensionar VENTANA ANCHO ALTO
redimensionar() {
    timeout "$espera" xdotool windowsize "$1" "$2" "$3" || mal "la ventana no cambia de tamaño"
    hasta "$espera" mide "$1" "$2" "$3" || mal "la ventana no llega a $2x$3"
}
mide() {
    local X Y WIDTH HEIGHT
    medidas "$1"
    ((WIDTH == $2 && HEIGHT == $3))
}

# situarEn VENTANA [X Y]: from here on, coordinates are counted from this place within the window. Without a
# window manager nobody else gives the keyboard to a window.
situarEn() {
    # shellcheck disable=SC2034
    local X Y WIDTH HEIGHT
    medidas "$1"
    ventana=$1
    origenX=$((X + escala * ${2:-0}))
    origenY=$((Y + escala * ${3:-0}))
    timeout "$espera" xdotool windowfocus "$1" || mal "la ventana no toma el teclado"
}

# A moment for the program to take in what was done to it.
pausa() { sleep "${1:-$calma}"; }

mover() { timeout "$espera" xdotool mousemove $((origenX + escala * $1)) $((origenY + escala * $2)); pausa 0.05; }

# clic X Y [BOTON]
clic() {
    mover "$1" "$2"
    timeout "$espera" xdotool click "${3:-1}"
    pausa
}

dobleClic() {
    mover "$1" "$2"
    timeout "$espera" xdotool click --repeat 2 --delay 60 1
    pausa
}

# arrastrar X1 Y1 X2 Y2 [PASOS]: with the button down all the way, in steps as a hand makes them.
arrastrar() {
    local x1=$1 y1=$2 x2=$3 y2=$4 pasos=${5:-10} i
    mover "$x1" "$y1"
    timeout "$espera" xdotool mousedown 1
    for ((i = 1; i <= pasos; ++i)); do
        mover $((x1 + (x2 - x1) * i / pasos)) $((y1 + (y2 - y1) * i / pasos))
    done
    timeout "$espera" xdotool mouseup 1
    pausa
}

# teclear TEXTO types it; tecla NOMBRE... presses keys by their names: Return, Tab, Delete, ctrl+a.
teclear() { timeout "$espera" xdotool type --delay 20 -- "$1"; pausa; }
tecla() { timeout "$espera" xdotool key --delay 40 "$@"; pausa; }

# dialogo TITULO: from here on, keys and coordinates are those of this window.
dialogo() {
    esperarVentana "$1"
    situarEn "$ventana"
}

# responder TITULO TECLA: with the key that closes this window.
responder() {
    dialogo "$1"
    tecla "$2"
    esperarCierre "$1"
}

# elegirFichero TITULO FICHERO: types the name into the file dialog.
elegirFichero() {
    dialogo "$1"
    tecla ctrl+a
    teclear "$2"
    responder "$1" Return
}

# captura FICHERO.png [VENTANA]
captura() { timeout "$espera" import -silent -window "${2:-root}" "$1" || mal "no sale la captura $1"; }

# foto NOMBRE [VENTANA]: a screenshot for who wants to look at the session, in the folder CAPTURAS.
foto() {
    [[ -n ${CAPTURAS:-} ]] || return 0
    mkdir -p "$CAPTURAS"
    captura "$CAPTURAS/$1.png" "${2:-root}"
}

# colorEn X Y: the colour of a pixel, counted as for a click, as rrggbb.
colorEn() {
    captura "$taller/pixel.png"
    convert "$taller/pixel.png" -crop "1x1+$((origenX + escala * $1))+$((origenY + escala * $2))" -depth 8 rgb:- | od -An -tx1 | tr -d ' \n'
}

# recorte FICHERO.png X Y ANCHO ALTO: a part of the screen, counted as for a click, once it is at rest.
recorte() {
    unRecorte "$@"
    hasta "$espera" enReposo "$@" || mal 'la pantalla no se está quieta'
}
enReposo() {
    mv "$1" "$taller/antes.png"
    pausa 0.2
    unRecorte "$@"
    (($(diferencias "$taller/antes.png" "$1") == 0))
}
unRecorte() {
    captura "$taller/entera.png"
    convert "$taller/entera.png" -crop "$4x$5+$((origenX + $2))+$((origenY + $3))" +repage "$1"
}

# esperarColor X Y COLOR, esperarOtroColor X Y COLOR: until the pixel is of this colour, or of another.
esColor() { [[ $(colorEn "$1" "$2") == "$3" ]]; }
noEsColor() { ! esColor "$@"; }
esperarColor() { hasta "$espera" esColor "$@" || mal "el color en $1, $2 no es $3"; }
esperarOtroColor() { hasta "$espera" noEsColor "$@" || mal "el color en $1, $2 sigue siendo $3"; }

# coloresDe FICHERO.png: each colour of a picture once, as rrggbb.
coloresDe() { convert "$1" -unique-colors -depth 8 rgb:- | od -An -v -tx1 -w3 | tr -d ' '; }

# diferencias UNA OTRA: how many pixels of two pictures are not the same.
diferencias() { compare -metric AE "$1" "$2" null: 2>&1 || true; }

# valor FICHERO SECCION CLAVE: of a drawing or any profile file.
valor() {
    iconv -f WINDOWS-1252 -t UTF-8 "$1" | tr -d '\r' | awk -v seccion="[$2]" -v clave="$3=" '
        /^\[/ { dentro = $0 == seccion }
        dentro && index($0, clave) == 1 { print substr($0, length(clave) + 1) }'
}

# comprobar QUE ESPERADO OBTENIDO
comprobar() {
    [[ $2 == "$3" ]] || mal "$1: se esperaba '$2' y es '$3'"
    printf 'bien: %s\n' "$1"
}

# comprobarMargen QUE ESPERADO MARGEN OBTENIDO: whole numbers that may be this far apart.
comprobarMargen() {
    (($4 >= $2 - $3 && $4 <= $2 + $3)) || mal "$1: se esperaba $2 ± $3 y es $4"
    printf 'bien: %s\n' "$1"
}

# comprobarClaves FICHERO: reads lines of section, key and value, and looks for them in the profile file.
comprobarClaves() {
    local seccion clave esperado
    while read -r seccion clave esperado; do
        [[ -z $seccion ]] || comprobar "$seccion $clave" "$esperado" "$(valor "$1" "$seccion" "$clave")"
    done
}
