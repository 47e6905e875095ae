#!/usr/bin/env bash
# Usage: tools/abi.sh [--update] [BUILD_DIR]
# Compares the libraries of a build with debug information and Qt 5 (build/dev by default) to the last
# release, which cmake/abi/ describes. Fails if a program that was linked with the release wouldn't
# work with the build. With --update, describes the build as the new release.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
update=false
if [ "${1:-}" = --update ]; then
    update=true
    shift
fi
build=${1:-build/dev}
folder=cmake/abi
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
cmake --install "$build" --prefix "$room" --component dev >/dev/null

status=0
for library in formats/libVexConvertFormats utility/libVexMorrowUtility; do
    name=${library#*/}
    file=$(realpath "$build/$library.so")
    release=$folder/$name.abi
    abidw --suppressions "$folder/public.suppr" --headers-dir "$room/include" --drop-private-types \
        --exported-interfaces-only --no-show-locs --no-corpus-path --no-comp-dir-path \
        --no-elf-needed --no-parameter-names --out-file "$room/$name.abi" "$file"
    # Where the sources were built says nothing of the library.
    sed -i "s|path='$PWD/|path='|" "$room/$name.abi"
    if $update; then
        cp "$room/$name.abi" "$release"
        continue
    fi
    soname=$(sed -n "1s/.* soname='\([^']*\)'.*/\1/p" "$room/$name.abi")
    if ! grep -q "soname='$soname'" "$release"; then
        echo "$soname is a new SOVERSION: run tools/abi.sh --update when it is released" >&2
        continue
    fi
    # What is added breaks nothing.
    abidiff --no-added-syms "$release" "$room/$name.abi" >"$room/changes" || {
        cat "$room/changes" >&2
        echo "$name is incompatible with the last release: raise SOVERSION, or undo this" >&2
        status=1
    }
done
exit "$status"
