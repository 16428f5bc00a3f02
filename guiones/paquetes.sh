# shellcheck shell=bash
# Set-up shared by ./ejecutar and ./probar: the Debian packages that each of them needs, their installation
# and the Spanish locale. To be sourced.

# shellcheck disable=SC2034  # the lists are for whoever sources this
paquetesPrograma=(
    build-essential
    cmake
    ninja-build
    qt6-base-dev          # Widgets, Test and the platform plugins
    qt6-svg-dev           # the icons
    libchm-dev            # reads the manual
    fp-utils              # chmcmd, which compiles it
    qt6-translations-l10n # Qt's own texts in Spanish
    locales               # localedef, for es_ES.UTF-8
    fonts-dejavu-core
)

# shellcheck disable=SC2034
paquetesPruebas=(
    ccache
    libgtest-dev
    clang
    clang-format
    clang-tidy
    libclang-rt-dev # the sanitizers
    procps
    xvfb
    xdotool
    x11-utils     # xwininfo, xprop
    xclip
    imagemagick   # import, compare
    poppler-utils # pdfinfo, pdftoppm
)

# shellcheck disable=SC2034
paquetesMedidas=(
    ccache
    libbenchmark-dev
    libglib2.0-dev # a peer, for the files
    pkgconf
)

# shellcheck disable=SC2034
paquetesCobertura=(
    ccache
    libgtest-dev
    clang
    libclang-rt-dev # the counters
    llvm            # llvm-profdata, llvm-cov
)

# shellcheck disable=SC2034
paquetesPaquete=(
    file # dpkg-shlibdeps by way of cpack
    desktop-file-utils
    appstream
    lintian
)

paso() { printf '==> %s\n' "$*"; }

fallo() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Whether there is a way to run something as root; without a terminal nobody is asked for a password.
puedeSerRoot() {
    [[ $EUID -eq 0 ]] && return 0
    command -v sudo >/dev/null || return 1
    if [[ -t 0 ]]; then sudo -v; else sudo -n true 2>/dev/null; fi
}

comoRoot() {
    if [[ $EUID -eq 0 ]]; then "$@"; else sudo "$@"; fi
}

# Which of these packages are not installed, one a line.
paquetesQueFaltan() {
    local paquete
    for paquete in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$paquete" 2>/dev/null) == installed ]] ||
            printf '%s\n' "$paquete"
    done
}

instalar() {
    local faltan
    mapfile -t faltan < <(paquetesQueFaltan "$@")
    ((${#faltan[@]})) || return 0
    paso "Instalo los paquetes que faltan: ${faltan[*]}"
    puedeSerRoot || fallo "Faltan paquetes y no puedo instalarlos sin ser root ni tener sudo: ${faltan[*]}"
    comoRoot apt-get update -q
    comoRoot env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "${faltan[@]}"
}

# The decimal comma of the texts is that of the process's locale.
asegurarIdioma() {
    local idiomas
    idiomas=$(locale -a 2>/dev/null)
    grep -qix 'es_ES\.utf-\?8' <<<"$idiomas" && return 0
    paso "Genero el idioma es_ES.UTF-8"
    puedeSerRoot || fallo "Falta el idioma es_ES.UTF-8 y no puedo generarlo sin ser root ni tener sudo"
    comoRoot localedef -i es_ES -f UTF-8 es_ES.UTF-8
}
