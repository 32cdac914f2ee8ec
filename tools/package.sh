#!/usr/bin/env bash
# Installs what is missing, builds the Debian package and prints where it is.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need "${BUILD_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"
cmake --preset release
cmake --build --preset release --target package
ls "$PWD"/build/release/molva-desk_*.deb
