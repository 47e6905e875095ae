#!/usr/bin/env bash
# Usage: tools/qml-types.sh [--check]
# Describes the types of the QML module "CVFormats" for editors and qmllint, in
# formats/qml/CVFormats/plugins.qmltypes. The types are those that the facade registers. With --check,
# nothing is written, and the exit code is 1 if the file is out of date.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
file=formats/qml/CVFormats/plugins.qmltypes
qt5=/usr/lib/qt5/bin
include=$("$qt5/qmake" -query QT_INSTALL_HEADERS)
libraries=$("$qt5/qmake" -query QT_INSTALL_LIBS)
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT

# What moc makes of header $1, as JSON.
describe() {
    "$qt5/moc" --output-json -I. -I"$include" -I"$include/QtCore" -I"$include/QtQml" \
        -o "$room/${1//\//_}" "$1" >/dev/null
    descriptions+=("$room/${1//\//_}.json")
}

descriptions=()
registered='s/.*qmlRegisterType<\(.*\)>("CVFormats", 1, 0, "\(.*\)");/\1 \2/p'
echo '#include <QtQml>' >"$room/types.h"
while read -r class name; do
    echo "struct Qml$name { Q_GADGET QML_FOREIGN($class) QML_NAMED_ELEMENT($name) };" >>"$room/types.h"
    describe "formats/models/${class,,}.h"
done < <(sed -n "$registered" formats/proxy/formatsproxy.cpp)
describe "$room/types.h"
"$qt5/moc" --collect-json -o "$room/all.json" "${descriptions[@]}"
# Qt 6's writes what the qmllint of either Qt reads without a warning.
/usr/lib/qt6/libexec/qmltyperegistrar --import-name CVFormats --major-version 1 --minor-version 0 \
    --foreign-types "$libraries/metatypes/qt5core_metatypes.json" \
    --generate-qmltypes "$room/types" -o /dev/null "$room/all.json"
# The folder of this run doesn't belong there.
sed -i '/^ *file: ".*types\.h"$/d' "$room/types"

if [ "${1:-}" = --check ]; then
    diff "$file" "$room/types" || {
        echo "$file is out of date: run tools/qml-types.sh" >&2
        exit 1
    }
else
    cp "$room/types" "$file"
fi
