#!/usr/bin/env bash
# Checks all files with clang-format, qmllint and shellcheck. Exits with 1 if there are complaints.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=tools/build.sh
. tools/build.sh

install_missing "${lint_packages[@]}"
status=0
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror || status=1
git ls-files -z '*.qml' | xargs -0 /usr/lib/qt5/bin/qmllint || status=1
shellcheck -x run test .ci/run tools/*.sh || status=1
exit "$status"
