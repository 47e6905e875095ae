#!/usr/bin/env bash
# Runs a command on an X server of its own, whose number the server itself has found free.
set -euo pipefail
exec {answer}< <(exec Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp -noreset 2>/dev/null)
server=$!
trap 'kill "$server"' EXIT
read -r number <&"$answer"
DISPLAY=":$number" "$@"
