#!/usr/bin/env bash
# Checks that all files tell the same version as the project, which is that of CMakeLists.txt.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
status=0

# Compares what file $1 tells, $2, to $3.
expect() {
    [ "$2" = "$3" ] || {
        echo "$1 tells version \"$2\" instead of \"$3\"" >&2
        status=1
    }
}

for library in formats utility; do
    file=$library/CMakeLists.txt
    expect "$file" "$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' "$file")" "$version"
    expect "$file" "$(sed -n 's/^ *SOVERSION \([0-9]*\))$/\1/p' "$file")" "${version%%.*}"
done
file=cmake/debian/changelog
expect "$file" "$(sed -n '1s/.*(\(.*\)).*/\1/p' "$file")" "$version"
file=host/desktop/org.vexconvert.VexConvert.metainfo.xml.in
expect "$file" "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$file" | head -n 1)" \
    "@PROJECT_VERSION@"
# Until the first release, all changes are unreleased.
file=CHANGELOG.md
released=$(sed -n 's/^## \[\{0,1\}\([0-9][0-9.]*\).*/\1/p' "$file" | head -n 1)
expect "$file" "${released:-$version}" "$version"
expect "the documentation" "$(sed -n 's/^find_package(VexConvertFormats \([0-9.]*\) .*/\1/p' docs/embedding.md README.md |
    head -n 1)" "${version%.*}"
exit "$status"
