#!/usr/bin/env bash
# Installs what is missing, builds, and runs all tests.
#   ./test.sh         the everyday build with all tests, and the folders without Qt under sanitizers
#   ./test.sh --all   besides, everything with the second compiler and its lint, and everything
#                     under the sanitizers
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup.sh

case "${1:-}" in
  '') presets=(asan-core dev) ;;
  --all) presets=(clang asan dev) ;;
  *)
    echo "Usage: ./test.sh [--all]" >&2
    exit 2
    ;;
esac

need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
if [ "${1:-}" = --all ]; then need "${LINT_PACKAGES[@]}"; fi

for preset in "${presets[@]}"; do
  echo "== $preset"
  cmake --preset "$preset" -Wno-dev
  cmake --build --preset "$preset"
done
for preset in "${presets[@]}"; do
  echo "== $preset: tests"
  # One more than there are processors: those on real sockets wait for most of their time.
  ctest --preset "$preset" --parallel "$(($(nproc) + 1))"
done
