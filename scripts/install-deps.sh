#!/usr/bin/env bash
# Installs the Debian packages the build needs, if any is missing.
set -euo pipefail
packages=(build-essential cmake qtbase5-dev qttools5-dev-tools qttools5-dev libsqlite3-dev
          binutils xvfb xauth qttranslations5-l10n
          clang libclang-rt-14-dev ccache)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  echo "installing: ${missing[*]}"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
