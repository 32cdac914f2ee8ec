#!/usr/bin/env bash
# Installs what is missing, builds the Debian package, has it judged and prints where it is.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

# As the menu entry, the metadata and the package stand in the package; lintian where it is installed.
validate() {
  local inside=build/release/package-content
  rm -rf "$inside"
  dpkg-deb --extract "$1" "$inside"
  desktop-file-validate "$inside"/usr/share/applications/*.desktop
  appstreamcli validate --no-net "$inside"/usr/share/metainfo/*.xml
  if command -v lintian >/dev/null; then lintian --fail-on error "$1"; fi
}

need "${BUILD_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"
cmake --preset release
rm -f build/release/molva-desk_*.deb
cmake --build --preset release --target package
package=$(echo "$PWD"/build/release/molva-desk_*.deb)
validate "$package"
echo "The package: $package"
