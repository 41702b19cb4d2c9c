# Sourced by ./run and ./test: installs what a fresh Debian 12 machine is missing, then the page libraries.
# Expects the current folder to be the project's root.

packages=(
    g++ cmake ninja-build git
    qtbase5-dev qtbase5-private-dev qtdeclarative5-dev qttools5-dev qttools5-dev-tools libqt5webkit5-dev
    qt5-image-formats-plugins qttranslations5-l10n
    libzip-dev libdeflate-dev libpng-dev libtiff-dev rapidjson-dev libopencv-imgproc-dev pkg-config
    libgtest-dev libgmock-dev python3-jsonschema imagemagick ffmpeg
    fonts-dejavu-core fonts-noto-cjk
)
run_packages=(xvfb xauth openbox)
lint_packages=(clang-format-16 clang-tidy)
clang_packages=(clang libclang-rt-14-dev libomp-14-dev)

# install_missing PACKAGE...: as root or by sudo; otherwise names what is missing and fails.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$package")
    done
    # Debian's npm conflicts with a Node that came another way.
    command -v npm >/dev/null || missing+=(nodejs npm)
    [ ${#missing[@]} -eq 0 ] && return 0

    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! sudo -n true 2>/dev/null; then
            echo "These packages are missing; install them as root, then start again:" >&2
            echo "    apt-get install ${missing[*]}" >&2
            return 1
        fi
        sudo=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# The libraries that the pages run, and their linters, as package-lock.json pins them.
install_page_libraries() {
    if [ ! -e node_modules/.package-lock.json ] || [ package-lock.json -nt node_modules/.package-lock.json ]; then
        npm ci --no-audit --no-fund --loglevel=error
        touch node_modules/.package-lock.json
    fi
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    mkdir -p build
    cmake --preset "$preset" >"build/configure-$preset.log" || { cat "build/configure-$preset.log"; return 1; }
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
