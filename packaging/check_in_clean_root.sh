#!/usr/bin/env bash
# Tries a package in a clean Debian 12: installs it there, starts it as a new user by the Exec line of
# its menu entry, sees it log in to the practice node that it starts itself, ends it, removes it, and
# looks for what it leaves behind. Needs root, debootstrap and iproute2; takes some minutes.
#   packaging/check_in_clean_root.sh PACKAGE.deb [MIRROR]
# The mirror is that of this system if none is named.
set -euo pipefail

readonly PATIENCE=60          # seconds that anything may take to show
readonly OPERATOR=op          # who uses it there
readonly OPERATORS_HOME=/home/$OPERATOR
readonly MENU_ENTRY=/usr/share/applications/molva-desk.desktop

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# ---- In the clean system, with processes and a network of its own: "$0 --inside" ----

# wait_until WHAT COMMAND...: until the command succeeds.
wait_until() {
  local end=$((SECONDS + PATIENCE)) what=$1
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || fail "$what"
    sleep 0.2
  done
}

# runs NAME: whether a program of that name runs here; the system keeps 15 letters of it.
runs() { grep -qxF "${1:0:15}" /proc/[0-9]*/comm 2>/dev/null; }

has_gone() { ! runs "$1"; }

# A node sends none before the login.
spots_are_logged() { grep -qs , "$OPERATORS_HOME"/.local/share/molva-desk/20*/dx-*.txt; }

# The least that the first start would have asked for, and a log to see the spots in.
prepare_operator() {
  useradd --create-home "$OPERATOR"
  su "$OPERATOR" -c 'mkdir -p ~/.local/share/molva-desk && cat >~/.local/share/molva-desk/molva.cfg' \
    < <(printf '%s\r\n' '"My Call","K1TST-2"' '"My Name","ANNA"' '"My QTH","Ann Arbor, MI"' \
      '"Gmt Offset","Ok"' '"AutoStart",-1' '"LogDxSpots",-1')
}

run_inside() {
  mount -t proc proc /proc
  molva-practice-tnc --help >/dev/null || fail "the practice TNC does not start"
  prepare_operator
  local command client
  command=$(sed -n 's/^Exec=//p' "$MENU_ENTRY")
  echo "-- starts: $command"
  su "$OPERATOR" -c "cd && QT_QPA_PLATFORM=offscreen exec $command" &
  client=$!
  wait_until "the client does not run" runs molva-desk
  wait_until "the practice node was not started" runs molva-practice-node
  wait_until "no spot has come: the client has not logged in" spots_are_logged
  echo "-- is logged in; its folder: $(ls -m "$OPERATORS_HOME/.local/share/molva-desk")"
  cmp "$OPERATORS_HOME/.local/share/molva-desk/cty.dat" /usr/share/hamradio-files/cty.dat
  kill -TERM "$(pidof_client)"
  wait "$client" || fail "the client ended with exit code $?"
  wait_until "the practice node runs on" has_gone molva-practice-node
}

pidof_client() {
  local comm
  comm=$(grep -lxF molva-desk /proc/[0-9]*/comm)
  basename "${comm%/comm}"
}

if [ "${1:-}" = --inside ]; then
  run_inside
  exit
fi

# ---- Outside ----

in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
  DEBIAN_FRONTEND=noninteractive ${http_proxy:+http_proxy="$http_proxy"} "$@"; }

mirror_of_this_system() {
  apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Codename: bookworm' | head -n 1
}

install_package() { in_root apt-get install -y -q -o Dpkg::Use-Pty=0 --no-install-recommends ./package.deb; }
purge_package() { in_root apt-get purge -y -q -o Dpkg::Use-Pty=0 molva-desk; }

# All that stands in the system, but for what changes with every installation of anything.
list_files() {
  find "$root" -xdev \( -path "$root/proc" -o -path "$root/tmp" -o -path "$root/var/log" \
    -o -path "$root/var/cache" -o -path "$root/var/lib/apt" -o -path "$root/var/lib/dpkg" \) -prune \
    -o -printf '/%P\n' | sort
}

[ "$(id -u)" -eq 0 ] || fail "this has to be started as root"
package=$(realpath "${1:?name the package}")
mirror=${2:-$(mirror_of_this_system)}
root=$(mktemp -d)
trap 'rm -rf --one-file-system "$root"' EXIT
chmod 755 "$root"

echo "-- makes a clean system"
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$root.log" ||
  fail "debootstrap; see $root.log"
rm "$root.log"
cp "$package" "$root/package.deb"
cp "${BASH_SOURCE[0]}" "$root/check"

echo "-- installs the package, and removes it: what it needs stays"
install_package >/dev/null
purge_package >/dev/null
list_files >"$root/tmp/before"

echo "-- installs it again, and runs it"
install_package
unshare --mount --pid --net --fork sh -c "ip link set lo up && exec chroot '$root' /check --inside"

echo "-- removes it"
purge_package
list_files | grep -vE "^($OPERATORS_HOME(/|$)|/var/mail/$OPERATOR$|/etc/(passwd|group|shadow|gshadow|subuid|subgid)-?$)" \
  >"$root/tmp/after"
residue=$(comm -13 "$root/tmp/before" "$root/tmp/after"; grep molva "$root/tmp/after" || true)
[ -z "$residue" ] || fail "it leaves behind:"$'\n'"$residue"
grep -q molva "$root/var/lib/dpkg/status" && fail "the package system still knows it"
[ -s "$root$OPERATORS_HOME/.local/share/molva-desk/molva.cfg" ] || fail "the user's folder has gone"
echo "It installs, starts, logs in to the practice node, and leaves nothing but the user's folder."
