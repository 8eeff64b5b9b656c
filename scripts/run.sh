#!/usr/bin/env bash
# Builds and opens the host program on the demo project (build/demo.vkd, created when missing).
# Without a display it runs offscreen instead of waiting for a user: it prints the demo project's
# script and saves a picture of each page to build/screenshots.
set -euo pipefail
cd "$(dirname "$0")/.."
# The build reports on standard error, so that standard output carries the script alone.
bash scripts/build.sh >&2
project=build/demo.vkd
[ -f "$project" ] || build/bin/plib-project create "$project" >&2
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  build/bin/plib-host --script - --screenshots build/screenshots "$@" "$project"
else
  build/bin/plib-host "$@" "$project"
fi
