#!/usr/bin/env bash
# Installs the Debian package built by `make package` into a fresh Debian 12
# (a minimal debootstrap in a chroot), then starts the launcher's command under
# Xvfb until the main window is painted. Needs root and the Debian mirror.
#
#   tools/check-package.sh [BUILD_DIR] [CHROOT_DIR]
set -euo pipefail
build=${1:-build}
root=${2:-/tmp/bancomisuratore-deb12}
deb=$(ls "$build"/bancomisuratore_*.deb | head -n 1)
command -v debootstrap >/dev/null || DEBIAN_FRONTEND=noninteractive apt-get install -y -qq debootstrap
if [ ! -x "$root/bin/bash" ]; then
  debootstrap --variant=minbase bookworm "$root" http://deb.debian.org/debian
fi
cp /etc/resolv.conf "$root/etc/"
cp "$deb" "$root/tmp/package.deb"
chroot "$root" bash -euc '
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq ./tmp/package.deb
  apt-get install -y -qq xvfb xauth >/dev/null
  cmd=$(grep "^Exec=" /usr/share/applications/it.bancomisuratore.Bancomisuratore.desktop | cut -d= -f2)
  bancomisuratore --version
  BM_EXIT_AFTER_SHOW=1 timeout 30 xvfb-run -a $cmd
  echo "the launcher started the program and its main window was painted"
'
