#!/usr/bin/env bash
# Usage: tools/check-package.sh
# Tries the packages in build/packages as a user does, on a Debian 12 with nothing in it, in a folder
# of its own: install, menu entry, manual page, completion, a conversion, a program of ten lines
# built with the library, upgrade from an older version, removal. Needs root and Debian's mirror:
# without either, it says so and ends with 77.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/build.sh
. tools/build.sh

skip() {
    echo "check-package: skipped, $*" >&2
    exit 77
}

[ "$(id -u)" -eq 0 ] || skip "only root can make another system in a folder"
packages=$(realpath build/packages)
[ -n "$(find "$packages" -name '*.deb' 2>/dev/null)" ] || {
    echo "check-package: there are no packages in build/packages; run tools/package.sh" >&2
    exit 1
}
install_missing mmdebstrap || skip "mmdebstrap can't be installed"
room=$(mktemp -d)
# The mounts of the other system end with the process that made them.
trap 'rm -rf --one-file-system "$room"' EXIT
root=$room/root
mmdebstrap --quiet --variant=minbase bookworm "$root" 2>"$room/log" ||
    skip "Debian's mirror can't be used: $(tail -n 1 "$room/log")"
cp /etc/resolv.conf "$root/etc/resolv.conf"
# Nothing in it needs to survive a power cut.
echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io"

mkdir "$root/packages" "$root/older" "$root/consumer"
cp "$packages"/*.deb "$root/packages"
# The older version is the same but for its number, and has a file that the newer one lacks.
version=$(dpkg-deb -f "$packages"/vexconvert_*.deb Version)
for package in "$packages"/*.deb; do
    dpkg-deb -R "$package" "$room/opened"
    sed -i "s/\b$version\b/0.9.0/g" "$room/opened/DEBIAN/control"
    touch "$room/opened/usr/share/doc/$(dpkg-deb -f "$package" Package)/outdated"
    dpkg-deb -b --root-owner-group "$room/opened" "$root/older" >/dev/null
    rm -rf "$room/opened"
done

cat >"$root/consumer/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.16)
project(consumer LANGUAGES CXX)
find_package(VexConvertFormats 1.0 CONFIG REQUIRED)
add_executable(consumer main.cpp)
target_link_libraries(consumer PRIVATE Vex::ConvertFormats)
END
cat >"$root/consumer/main.cpp" <<'END'
#include "formats/proxy/formatsproxy.h"

#include <cstdio>

int main()
{
    FormatsProxy::getInstance()->init(QString());
    std::puts(qPrintable(FormatsProxy::getInstance()->getTagName(QStringLiteral("Video_MP4_005"))));
}
END

cat >"$root/try" <<'END'
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 HOME=/root QT_QPA_PLATFORM=offscreen
fail() {
    echo "check-package: $*" >&2
    exit 1
}
get() {
    apt-get -qq -y --no-install-recommends -o Dpkg::Use-Pty=0 "$@" >/tmp/apt.log 2>&1 ||
        fail "apt-get $* failed: $(tail -n 20 /tmp/apt.log)"
}
step() {
    echo "$((SECONDS / 60)):$(printf %02d $((SECONDS % 60)))  $*"
}

# Minimal systems leave manual pages out.
rm -f /etc/dpkg/dpkg.cfg.d/docker /etc/dpkg/dpkg.cfg.d/excludes
get update
get install man-db bash-completion desktop-file-utils
get install /older/vexconvert_*.deb /older/libvexconvertformats1_*.deb
[ "$(vexconvert --version | head -n 1)" != "" ] || fail "the older version doesn't start"
mkdir -p ~/.config/vexconvert
echo '[]' >~/.config/vexconvert/formatCache.json
step "the older version is installed"

get install /packages/vexconvert_*.deb /packages/libvexconvertformats1_*.deb
dpkg-query -W -f '${Package} ${Version}\n' vexconvert libvexconvertformats1 |
    { ! grep -v " $1\$"; } || fail "an older package is left"
[ ! -e /usr/share/doc/vexconvert/outdated ] || fail "the upgrade leaves a file of the older version"
step "upgraded to $1"

menu=/usr/share/applications/vexconvert.desktop
desktop-file-validate "$menu"
command -v "$(sed -n 's/^TryExec=//p' "$menu")" >/dev/null || fail "the menu entry starts nothing"
grep -q vexconvert.desktop /usr/share/applications/mimeinfo.cache ||
    fail "the menu doesn't offer vexconvert for files"
man -P cat vexconvert-convert | grep -q 'vexconvert convert' || fail "the manual page can't be read"
completed=$(bash -c '. /usr/share/bash-completion/bash_completion
    _completion_loader vexconvert
    COMP_WORDS=(vexconvert show Video_MP4_00) COMP_CWORD=2
    _vexconvert
    echo "${COMPREPLY[@]}"')
[[ $completed == *Video_MP4_005* ]] || fail "the shell completes no ids but \"$completed\""
ffmpeg -v error -f lavfi -i testsrc2=duration=1 /tmp/clip.mkv
vexconvert convert /tmp/clip.mkv --preset Video_MP4_005 --to /tmp/result >/dev/null
[ -s /tmp/result/clip.mp4 ] || fail "nothing is converted"
status=0
timeout 5 vexconvert --config /tmp/window 2>/tmp/window.log || status=$?
[ "$status" -eq 124 ] || fail "the window doesn't stay open: $(cat /tmp/window.log)"
step "menu entry, manual page, completion, conversion and window work"

get install /packages/libvexconvertformats-dev_*.deb g++ cmake make
step "the headers are installed"
start=$SECONDS
cmake -S /consumer -B /consumer/build >/tmp/consumer.log
cmake --build /consumer/build >>/tmp/consumer.log || fail "$(cat /tmp/consumer.log)"
[ "$(/consumer/build/consumer 2>/dev/null)" = video ] || fail "the consumer finds nothing"
step "a program of ten lines builds and runs, in $((SECONDS - start)) s"

ours=(vexconvert libvexconvertformats1 libvexconvertformats-dev)
dpkg -L "${ours[@]}" | sort -u >/tmp/installed
get remove "${ours[@]}"
dpkg --purge "${ours[@]}" >/tmp/apt.log 2>&1 # apt-get no longer knows them
while read -r path; do
    [ ! -e "$path" ] || dpkg -S "$path" >/dev/null 2>&1 || echo "$path"
done </tmp/installed >/tmp/left
# man keeps pages that it has shown, until its own cleaning.
find / -xdev -iname '*vexconv*' -not -path '/root/*' -not -path '/var/cache/man/*' -not -path '/tmp/*' -not -path '/packages/*' \
    -not -path '/older/*' -not -path '/consumer/*' >>/tmp/left
grep -rIls vexconvert /etc /usr/share /var/lib --exclude-dir=lists --exclude=status-old >>/tmp/left || true
[ ! -s /tmp/left ] || fail "these are left: $(cat /tmp/left)"
[ -s ~/.config/vexconvert/formatCache.json ] || fail "the user's own presets are gone"
step "removed without a trace but for the user's own presets"
END
unshare --mount --pid --fork --mount-proc="$root/proc" chroot "$root" bash /try "$version"
