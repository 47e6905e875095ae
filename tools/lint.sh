#!/usr/bin/env bash
# Checks all files with clang-format, shellcheck, qmllint and reuse, and with clang-tidy the C++ files
# that differ from main or, on main, from the commit before. With --all clang-tidy checks all C++
# files; with --clazy clazy's level 1 checks the same files. Exits with 1 if there are complaints.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/build.sh
. tools/build.sh

all=false
clazy=false
for argument in "$@"; do
    case $argument in
    --all) all=true ;;
    --clazy) clazy=true ;;
    *)
        echo "usage: tools/lint.sh [--all] [--clazy]" >&2
        exit 2
        ;;
    esac
done

install_missing "${build_packages[@]}" "${lint_packages[@]}"
! $clazy || install_missing clazy
sources=('formats/*.cpp' 'host/*.cpp' 'tools/*.cpp' 'utility/*.cpp')
room=build/lint
qt5=/usr/lib/qt5/bin
qt6=/usr/lib/qt6
qt6_qml=$(dirname "$(dpkg -L qml6-module-qtqml-models | grep '/Models/qmldir$')")
status=0

# The sources that a change touches, in themselves or in their header; null-separated.
changed_sources() {
    local base file
    base=$(git merge-base HEAD main 2>/dev/null) || base=HEAD
    [ "$base" != "$(git rev-parse HEAD)" ] || base=HEAD~
    if ! git rev-parse --quiet --verify "$base" >/dev/null; then
        echo "There is no commit before this one: clang-tidy checks nothing; use --all." >&2
        return
    fi
    for file in $(git diff --name-only --diff-filter=d "$base" -- "${sources[@]}" "${sources[@]/%cpp/h}"); do
        file=${file%.*}.cpp
        [ ! -f "$file" ] || printf '%s\0' "$file"
    done | sort -zu
}

# Describes the module "VexWindow", whose types are in C++, for Qt 6's qmllint.
describe_window_types() {
    local include header descriptions=()
    include=$("$qt5/qmake" -query QT_INSTALL_HEADERS)
    mkdir -p "$room/types/VexWindow"
    for header in $(git grep --untracked -lE 'Q_(OBJECT|GADGET)' -- 'host/*.h'); do
        "$qt5/moc" --output-json -I. -I"$include" -I"$include/QtCore" -I"$include/QtQml" \
            -o "$room/types/${header//\//_}" "$header"
        descriptions+=("$room/types/${header//\//_}.json")
    done
    "$qt5/moc" --collect-json -o "$room/types/all.json" "${descriptions[@]}"
    "$qt6/libexec/qmltyperegistrar" --import-name VexWindow --major-version 1 --minor-version 0 \
        --generate-qmltypes "$room/types/VexWindow/window.qmltypes" -o /dev/null \
        "$room/types/all.json"
    # Qt 6 sees no enums in a value type; ours are there for nothing else.
    sed -i 's/accessSemantics: "value"/accessSemantics: "none"/' \
        "$room/types/VexWindow/window.qmltypes"
    printf 'module VexWindow\ntypeinfo window.qmltypes\n' >"$room/types/VexWindow/qmldir"
}

# Qt 6's qmllint knows the types of what it reads. It checks copies, as Qt 5 refuses the pragma by
# which Qt 6 lets a delegate use the ids around it.
lint_types() {
    local options file untyped warnings
    untyped='on type "(Popup|QObject|QQuickItem|QVariantList)"$|type QSizeF to QSize$'
    describe_window_types
    for file in $(git ls-files 'formats/qml' 'host/qml'); do
        install -D -m 644 "$file" "$room/$file"
    done
    find "$room" -name '*.qml' -exec \
        sed -i '0,/^import/s/^import/pragma ComponentBehavior: Bound; import/' {} +
    # "import" warns of a file that Debian leaves out; a type that is missing shows anyway.
    options=(--import disable -I types -I host/qml -i "$qt6_qml/qmldir"
        --resource formats/qml/formats.qrc)
    (
        cd "$room"
        find host/qml -name '*.qml' -exec "$qt6/bin/qmllint" "${options[@]}" {} +
    ) || return 1
    # The library's screens find the host's objects in their context, where they have no type, and
    # know each other as popups and items.
    warnings=$(cd "$room" && find formats/qml -name '*.qml' -exec "$qt6/bin/qmllint" \
        "${options[@]}" --unqualified disable --deferred-property-id disable {} + 2>&1 |
        grep '^Warning' | grep -vE "$untyped") || true
    [ -z "$warnings" ] || {
        echo "$warnings"
        return 1
    }
}

rm -rf "$room"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror || status=1
git ls-files -z '*.qml' | xargs -0 "$qt5/qmllint" || status=1
lint_types || status=1
shellcheck -x run test .ci/run tools/*.sh tests/host/queue/engines/*.sh tests/support/*.sh || status=1
reuse lint --quiet || status=1

cmake --preset dev >/dev/null
if $all; then
    git ls-files -z "${sources[@]}"
else
    changed_sources
fi >"$room/sources"
xargs -0 -r -P "$(nproc)" -n 1 -a "$room/sources" \
    clang-tidy -p build/dev --quiet 2> >(grep -v 'warnings\? generated' >&2) || status=1
if $clazy; then
    xargs -0 -r -P "$(nproc)" -n 1 -a "$room/sources" \
        clazy-standalone -p build/dev -checks=level1 --extra-arg=-Werror || status=1
fi
exit "$status"
