#!/usr/bin/env bash
# Builds, creates the demo project (build/demo.vkd) and shows what it holds.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
project=build/demo.vkd
[ -f "$project" ] || build/bin/plib-project create "$project"
build/bin/plib-project model "$project"
