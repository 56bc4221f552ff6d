#!/usr/bin/env bash
# Starts the program built in $1.
set -euo pipefail
build=${1:-build}
if [ ! -x "$build/bin/bancomisuratore" ]; then
  echo "The window front end is not built yet: only the tests and the scenario runner exist."
  exit 0
fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: set DISPLAY (or run under Xvfb: xvfb-run make run)."
  exit 1
fi
exec "$build/bin/bancomisuratore"
