#!/usr/bin/env bash
# Installs what is missing to build the project on Debian 12: scripts/setup.sh [package …]. Does nothing, and asks for
# nothing, where all of it is there. The packages named on top are for what the calling script does besides building.
set -euo pipefail

packages=(g++ cmake ninja-build ccache qtbase5-dev fonts-dejavu-core libcli11-dev zlib1g-dev libjpeg62-turbo-dev
  libcsv-dev libzip-dev qttranslations5-l10n "$@")

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" apt-get install -q -y --no-install-recommends "${missing[@]}"
