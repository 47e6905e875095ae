#!/usr/bin/env bash
# Builds Debian packages of the last commit into build/packages. With --check, builds them a second
# time elsewhere and compares, runs lintian, and installs, uses and removes them in a fresh Debian.
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

install_missing lintian mmdebstrap
make_packages "$room/second/elsewhere"
for package in build/packages/*.deb; do
    cmp "$package" "$room/second/elsewhere/packages/${package##*/}"
done
lintian --allow-root --fail-on error,warning build/packages/*.deb
# shellcheck disable=SC2016 # $1 is the root's folder
mmdebstrap --variant=apt \
    --customize-hook='copy-in build/packages /root' \
    --customize-hook='chroot "$1" sh -ec "
        apt-get install -y --no-install-recommends /root/packages/*.deb
        cd /root
        ffmpeg -v error -f lavfi -i sine=duration=1 clip.wav
        vexconvert convert clip.wav --type audio --format mp3 --target 192
        test -s clip.mp3
        QT_QPA_PLATFORM=offscreen timeout 5 vexconvert || test \$? = 124
        apt-get purge -y vexconvert libvexconvertformats-dev libvexconvertformats1
        ! find / -xdev -path /proc -prune -o -path /root -prune -o -iname \"*vex*convert*\" -print | grep ."' \
    "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$room/root.tar" >"$room/log" 2>&1 || {
    tail -n 40 "$room/log" >&2
    exit 1
}
echo "The packages are reproducible, clean for lintian, and work in a fresh Debian."
