# shellcheck shell=bash disable=SC2034 # the lists are for the sourcing scripts
# Sourced by ./run, ./test and the scripts here to install missing packages and build CMake presets.
# All messages go to stderr: stdout belongs to the program.

missing_packages() {
    comm -13 <(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^ii *//p' | sort) <(printf '%s\n' "$@" | sort)
}

install_missing() {
    local missing
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return
    # shellcheck disable=SC2086 # one word per package
    {
        echo "Installing" $missing
        local as_root=()
        [ "$(id -u)" -eq 0 ] || as_root=(sudo)
        "${as_root[@]}" apt-get update -qq
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends $missing >/dev/null
    } >&2
}

build() {
    local preset=$1
    if [ ! -f "build/$preset/build.ninja" ]; then
        echo "Building the preset \"$preset\" for the first time; this takes a few minutes." >&2
        cmake --preset "$preset" >&2
    fi
    cmake --build --preset "$preset" -- --quiet 2>&1 | sed '/^ninja: no work to do\.$/d' >&2
}

build_packages=(
    g++ cmake ninja-build
    qtbase5-dev qtdeclarative5-dev qtquickcontrols2-5-dev qttools5-dev qttools5-dev-tools libexpected-dev
    pkgconf libavformat-dev libavcodec-dev libavutil-dev python3
)
run_packages=(
    ffmpeg libqt5svg5 fonts-dejavu-core
    qml-module-qtqml qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2
    qml-module-qtquick-templates2 qml-module-qtquick-layouts qml-module-qt-labs-settings
    qml-module-qtgraphicaleffects qttranslations5-l10n
)
test_packages=(
    qml-module-qttest xvfb openbox xdotool libgl1-mesa-dri python3-jsonschema
    parallel rsync openssh-client openssh-server slurm-client slurmctld slurmd munge
    dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi desktop-file-utils appstream
    man-db zsh fish handbrake-cli
    abigail-tools doxygen qtdeclarative5-dev-tools qt6-declarative-dev-tools qml6-module-qtqml
)
qt6_packages=(
    qt6-base-dev qt6-declarative-dev libqt6svg6 qml6-module-qttest
    qml6-module-qt-labs-settings qml6-module-qtqml-workerscript qml6-module-qtquick
    qml6-module-qtquick-controls qml6-module-qtquick-layouts qml6-module-qtquick-templates
    qml6-module-qtquick-window
)
fuzz_packages=(clang libclang-rt-dev)
lint_packages=(
    clang-format clang-tidy shellcheck reuse qtdeclarative5-dev-tools qt6-declarative-dev-tools
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
    qml6-module-qtquick-templates qml6-module-qtquick-window
)
