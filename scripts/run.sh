#!/usr/bin/env bash
# Builds and opens the host program on the demo project (build/demo.vkd, created when missing).
# Without a display it runs on the offscreen platform and saves a picture of the dialog to
# build/plib-host.png instead of waiting for a user.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
project=build/demo.vkd
[ -f "$project" ] || build/bin/plib-project create "$project"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: running plib-host offscreen and saving a screenshot to build/plib-host.png"
  QT_QPA_PLATFORM=offscreen build/bin/plib-host --screenshot build/plib-host.png "$project" "$@"
else
  build/bin/plib-host "$project" "$@"
fi
