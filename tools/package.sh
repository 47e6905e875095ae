#!/usr/bin/env bash
# Builds Debian packages of the last commit into build/packages. With --check, builds them a second
# time elsewhere and compares, runs lintian on them, and tries them: see check-package.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/build.sh
. tools/build.sh

install_missing "${build_packages[@]}"
commit=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git show -s --format=%ct "$commit")
# Resources carry the times of their files, which rcc takes from this.
export SOURCE_DATE_EPOCH QT_RCC_SOURCE_DATE_OVERRIDE=$SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT

# Builds in folder $1 and leaves the packages in $1/packages.
make_packages() {
    mkdir -p "$1/source"
    git archive "$commit" | tar -x -C "$1/source"
    cmake -G Ninja -S "$1/source" -B "$1/build" -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
        -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_SKIP_RPATH=ON \
        -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$1=." >/dev/null
    LD_LIBRARY_PATH=$1/build/formats:$1/build/utility cmake --build "$1/build" -- --quiet
    (cd "$1/build" && cpack -G DEB -B "$1/packages" >/dev/null)
    rm -rf "$1/packages/_CPack_Packages"
}

make_packages "$room/first"
rm -rf build/packages
mkdir -p build/packages
cp "$room/first/packages/"*.deb build/packages
ls build/packages
[ "${1:-}" = --check ] || exit 0

install_missing lintian
make_packages "$room/second/elsewhere"
for package in build/packages/*.deb; do
    cmp "$package" "$room/second/elsewhere/packages/${package##*/}"
done
lintian --allow-root --fail-on error,warning build/packages/*.deb
echo "The packages are reproducible, and clean for lintian."
status=0
tools/check-package.sh || status=$?
skipped=77
[ "$status" -eq 0 ] || [ "$status" -eq "$skipped" ]
