#!/usr/bin/env bash
# Installs the package in a throw-away root of bare Debian 12, starts the program there, gives it
# a file, removes it, and tells what is left. As root:
#   tools/try_package.sh build/release/veldox_1.0.0_amd64.deb
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

[ $# -eq 1 ] && [ -f "$1" ] || die "usage: tools/try_package.sh PACKAGE.deb"
[ "$(id -u)" -eq 0 ] || die "A root of its own can only be made as root."
package=$(realpath "$1")
require_packages "${ROOT_PACKAGES[@]}"

root=$(mktemp -d)
display=
finish() {
  [ -z "$display" ] || kill "$display" 2>/dev/null || true
  umount "$root/tmp/.X11-unix" "$root/dev" "$root/proc" 2>/dev/null || true
  # Nothing but the root itself goes.
  rm -rf --one-file-system "$root"
}
trap finish EXIT

# Packages come from where this machine has its own from.
mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Suite: bookworm' | head -n 1)
[ -n "$mirror" ] || mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | head -n 1)
say "== a bare Debian 12"
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$root.log" 2>&1 ||
  { tail -n 5 "$root.log" >&2; die "debootstrap failed."; }
rm -f "$root.log"
cp -a /etc/apt/apt.conf.d/. "$root/etc/apt/apt.conf.d/"
rm -f "$root"/etc/apt/apt.conf.d/docker-*
cp /etc/resolv.conf "$root/etc/resolv.conf"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"

within() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 HOME=/root \
  DEBIAN_FRONTEND=noninteractive ${http_proxy:+http_proxy="$http_proxy"} \
  ${https_proxy:+https_proxy="$https_proxy"} "$@"; }
# All files but those that the package tools write for themselves.
list() { (cd "$root" && find usr etc opt srv root home -xdev | sort); }

cp "$package" "$root/tmp/veldox.deb"
within apt-get update -qq
say "== the libraries that it needs"
within apt-get install -y --no-install-recommends $(dpkg-deb -f "$package" Depends |
  sed 's/([^)]*)//g; s/,/ /g; s/|[^ ]*//g') >/dev/null
list >"$root/tmp/before"
say "== installing"
within apt-get install -y --no-install-recommends /tmp/veldox.deb >/dev/null
say "packages: $(chroot "$root" dpkg-query -W | wc -l), installed size: $(dpkg-deb -f "$package" Installed-Size) KB"

say "== starting by the desktop entry"
run=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/veldox.desktop")
cp samples/small_block_drag.prm "$root/root/an engine.prm"
mkdir -p "$root/tmp/.X11-unix" /tmp/.X11-unix
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1366x768x24 2>/dev/null)
display=$!
read -r number <&3
start() { # the command line with %f replaced by a file, or left out
  local command=${run%" %f"}
  within env DISPLAY=":$number" XDG_RUNTIME_DIR=/tmp timeout 20 $command "$@" >"$root/tmp/out" 2>&1
}
shown() { DISPLAY=":$number" xwininfo -root -tree 2>/dev/null | grep -q -F "$1"; }
try() { # TITLE [FILE]
  local title=$1
  shift
  start "$@" &
  local program=$! i
  for i in $(seq 80); do
    shown "$title" && break
    sleep 0.25
  done
  shown "$title" || { cat "$root/tmp/out" >&2; die "No window came with the title $title"; }
  say "window: $title"
  # Only what was started here is ended.
  pkill -P "$program" 2>/dev/null || true
  wait "$program" 2>/dev/null || true
}
try '"VELDOX-Math-Formula-Calculator"'
try '"VELDOX-Math-Formula-Calculator - an engine.prm"' "/root/an engine.prm"
status=0
within veldox no-such.prm 2>"$root/tmp/out" || status=$?
[ "$status" -eq 2 ] || die "A missing file ended with the status $status, not 2."
say "a missing file: $(head -n 1 "$root/tmp/out")"
printf 'menu CubicInch\nclick Form1.Command1\nget Form1.Text6\n' >"$root/tmp/a.vs"
for windows in "" --windows; do
  answer=$(within env QT_QPA_PLATFORM=offscreen veldox-script $windows /tmp/a.vs)
  [ "$answer" = "Form1.Text6 = 326.7256" ] || die "veldox-script $windows answered: $answer"
done
say "a script, without and with windows: $answer"

say "== removing"
rm -rf "$root/root/an engine.prm" "$root/root/.config" "$root/root/.local" "$root/root/.cache"
within apt-get purge -y veldox >/dev/null
list >"$root/tmp/after"
if ! diff "$root/tmp/before" "$root/tmp/after" >&2; then die "Something is left of it, or missing."; fi
say "Installed, started, given a file and removed; nothing is left."
