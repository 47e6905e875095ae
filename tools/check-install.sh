#!/usr/bin/env bash
# Usage: tools/check-install.sh [BUILD_DIR]
# Installs a finished build (build/dev by default) into a folder of its own, moves it, and uses
# what is there as others do: find_package, pkg-config, the headers and the examples. With Qt 5, also
# adds the source tree to another project, with static libraries, and tries vexconvert, its manual
# pages and completions.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$(realpath "${1:-build/dev}")
source=$PWD
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software LC_ALL=C.UTF-8
export XDG_RUNTIME_DIR=$room HOME=$room
prefix=$room/moved

fail() {
    echo "check-install: $*" >&2
    exit 1
}

# Runs the examples in folder $1.
run_examples() {
    local output
    [ "$("$1/lookup" video mp4 1280x720 2>/dev/null)" = "Video_MP4_005 HD 720P" ] ||
        fail "lookup in $1 finds the wrong preset"
    "$1/formatlist" "$room/list.png" 2>/dev/null || fail "formatlist in $1 failed"
    output=$(timeout 60 "$1/screens" "$room/picker.png" "$room/dialog.png" 2>&1) ||
        fail "screens in $1 failed: $output"
    # Qt 6 warns of an argument too many.
    ! grep -v '^newTitle@' <<<"$output" | grep 'qrc:' || fail "screens in $1 complained"
    rm "$room"/{list,picker,dialog}.png
}

components=(runtime dev)
[ ! -x "$build/host/vexconvert" ] || components+=(app)
for component in "${components[@]}"; do
    cmake --install "$build" --prefix "$room/first" --component "$component" >/dev/null
done
mv "$room/first" "$prefix"
! grep -rIl "$source" "$prefix" || fail "these files name the source tree"
! grep -rIl "$room/first" "$prefix" || fail "these files name the folder of the installation"

export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
read -ra flags < <(pkg-config --cflags VexConvertFormats)
(cd "$prefix/include" && find VexConvertFormats VexMorrowUtility -name '*.h') >"$room/headers"
while read -r header; do
    c++ -std=c++17 -fPIC -fsyntax-only "${flags[@]}" -x c++ - <<<"#include \"${header#*/}\"" ||
        fail "$header doesn't compile alone"
done <"$room/headers"
! grep -q '_p\.h\|private' "$room/headers" || fail "a private header is installed"

read -ra flags < <(pkg-config --cflags --libs VexConvertFormats)
c++ -std=c++17 -fPIC examples/lookup.cpp -o "$room/lookup" "${flags[@]}" "-Wl,-rpath,$prefix/lib"
"$room/lookup" audio mp3 192 2>/dev/null | grep -q '^Audio_MP3_' || fail "pkg-config's lookup failed"

# The module's description must do no harm to programs that find it.
modules=$(echo "$prefix"/lib/qt?/qml)
export QML2_IMPORT_PATH=$modules
cat >"$room/Good.qml" <<'END'
import QtQml 2.15
import CVFormats 1.0

QtObject {
    id: root

    required property FormatListModel formats
    readonly property int rows: root.formats.count
    readonly property int tagRole: FormatListModel.TagRole
    readonly property int presets: root.formats.formatDetailModel("MP4").count
}
END
sed 's/formats\.count/formats.number/' "$room/Good.qml" >"$room/Bad.qml"
qmllint() {
    /usr/lib/qt6/bin/qmllint -I "$modules" "$room/$1" 2>&1
}
qmllint Good.qml || fail "qmllint doesn't know the models"
[[ $(qmllint Bad.qml) == *'"number" not found on type "FormatListModel"'* ]] ||
    fail "qmllint accepts a property that the model lacks"

cmake -G Ninja -S examples -B "$room/examples" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$room/examples" -- --quiet
run_examples "$room/examples"
[ -x "$build/host/vexconvert" ] || exit 0

cmake -G Ninja -S tests/install -B "$room/consumer" -DCMAKE_CXX_FLAGS=-O0 >/dev/null
cmake --build "$room/consumer" -- --quiet
! find "$room/consumer" -name '*.so*' | grep . || fail "a static build makes shared libraries"
run_examples "$room/consumer/examples"

ffmpeg -v error -f lavfi -i sine=duration=1 "$room/clip.wav"
"$prefix/bin/vexconvert" convert "$room/clip.wav" --type audio --format mp3 --target 192 \
    --to "$room/result" >/dev/null
[ -s "$room/result/clip.mp3" ] || fail "the installed vexconvert converts nothing"
# Without ffprobe, only vexprobe can tell what the clip is.
mkdir "$room/path"
ln -s "$(command -v ffmpeg)" "$room/path/ffmpeg"
PATH=$room/path "$prefix/bin/vexconvert" convert "$room/clip.wav" --preset Audio_MP3_002 \
    --to "$room/result" >/dev/null || fail "the installed vexconvert doesn't find vexprobe"

desktop-file-validate "$prefix/share/applications/vexconvert.desktop"
appstreamcli validate --no-net "$prefix"/share/metainfo/*.xml >&2 || fail "the metainfo is invalid"
"$prefix/bin/vexconvert" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p' >"$room/subcommands"
[ -s "$room/subcommands" ] || fail "no subcommands are listed"
while read -r subcommand; do
    page=$prefix/share/man/man1/vexconvert-$subcommand.1.gz
    [ -z "$(man --warnings -E UTF-8 -l -Tutf8 "$page" 2>&1 >/dev/null)" ] || fail "$page has mistakes"
done <"$room/subcommands"

# Each shell completes a preset's id, which it can only know from vexconvert, subcommands and their
# first words.
export PATH=$prefix/bin:$PATH
share=$prefix/share
# shellcheck disable=SC2016 # the shells' own variables
in_bash() {
    bash -c 'source "$1"; shift; COMP_WORDS=(vexconvert "$@"); COMP_CWORD=$#; _vexconvert
        printf "%s\n" "${COMPREPLY[@]}"' - "$share/bash-completion/completions/vexconvert" "$@"
}
# shellcheck disable=SC2016
in_fish() {
    fish -c 'source $argv[1]; complete -C "vexconvert $argv[2..-1]"' \
        "$share/fish/vendor_completions.d/vexconvert.fish" "$@"
}
# The rules of _arguments end with those for the first argument and for the others, or with one.
# shellcheck disable=SC2016
in_zsh() {
    zsh -fc '_arguments() {
            local rule=${@[-1]}
            [[ $CURRENT != 2 || ${@[-2]} != 1:* ]] || rule=${@[-2]}
            rule=${rule#*:a*:}
            if [[ $rule == \(* ]]; then print -l ${=rule[2,-2]}; else eval "$rule"; fi
        }
        compadd() { print -l $found; }; file=$1; shift; words=(vexconvert "$@")
        CURRENT=$#words; source $file' - "$share/zsh/vendor-completions/_vexconvert" "$@"
}
# completes WORD ARGUMENT...: what each shell offers after the arguments has the word.
completes() {
    local word=$1 shell found
    shift
    for shell in in_bash in_fish in_zsh; do
        found=$("$shell" "$@")
        grep -q "^$word\b" <<<"$found" || fail "$shell completes \"$*\" with no $word but \"$found\""
    done
}
completes Video_MP4_005 show Video_MP4_00
completes check-catalogue help che
completes duplicate user dupl
completes Video_MP4_005 user add Video_MP4_00
vexconvert user add Video_MP4_005 --title Mine >"$room/added"
completes 1001 user delete 10
! in_bash user delete Video | grep -q Video || fail "presets that can't be deleted are completed"
