# Sourced by run.sh, test.sh and package.sh: installs what is missing, without asking anything.

# What the program is built with.
BUILD_PACKAGES=(ccache cmake g++ lld ninja-build qt6-base-dev qt6-serialport-dev)
# What it runs with, and what shows it where there is no display.
RUN_PACKAGES=(fonts-dejavu-core fonts-jetbrains-mono hamradio-files imagemagick libqt6svg6 xvfb)
# What its tests need besides: those under the sanitizers are built by the second compiler.
TEST_PACKAGES=(appstream clang dbus-daemon desktop-file-utils googletest libclang-rt-dev libgmock-dev
  libgtest-dev)
# What the package is made and judged with.
PACKAGING_PACKAGES=(appstream desktop-file-utils dpkg-dev file)
# What the pictures of the manual are made with, by the names that a screen reader says.
PICTURE_PACKAGES=(at-spi2-core dbus-daemon dpkg-dev faketime gir1.2-atspi-2.0 pngquant python3-gi
  xdotool)
# What the benchmarks are built with.
BENCH_PACKAGES=(libbenchmark-dev)
# What the lint needs.
LINT_PACKAGES=(clang-tidy)

missing_packages() {
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      printf '%s\n' "$package"
  done
}

# need PACKAGE...: installs those that are missing; ends the script where that is refused.
need() {
  local missing as_root=()
  mapfile -t missing < <(missing_packages "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! sudo -n true 2>/dev/null; then
      echo "These packages are missing. Install them, then start this again:" >&2
      echo "  sudo apt-get install -y ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo -n)
  fi
  echo "Installing ${missing[*]}"
  # A source that fails may not hold what is missing: the installation decides.
  "${as_root[@]}" apt-get update -q || true
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}"
}
