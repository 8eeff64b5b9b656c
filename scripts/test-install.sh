#!/usr/bin/env bash
# Installs the built library into a temporary prefix and builds and runs the example host of
# examples/host against it, as a host developer would. Needs a configured and built build/.
set -euo pipefail
cd "$(dirname "$0")/.."
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install build --prefix "$prefix/usr" >/dev/null
cmake -S examples/host -B "$prefix/build" -DCMAKE_PREFIX_PATH="$prefix/usr" \
      -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >/dev/null
cmake --build "$prefix/build" >/dev/null
# The data files live in the temporary prefix, not where the build put its default.
export VKD_SEARCHPATH="$prefix/usr/share/plib"
"$prefix/usr/bin/plib-project" create "$prefix/demo.vkd" >/dev/null
script=$(QT_QPA_PLATFORM=offscreen "$prefix/build/example-host" "$prefix/demo.vkd")
grep -q '^SIZE' <<<"$script" || { echo "example host printed no script:"; echo "$script"; exit 1; }
echo "installed package: example host built and ran ($(wc -l <<<"$script") script lines)"
