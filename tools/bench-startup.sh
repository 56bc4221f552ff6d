#!/usr/bin/env bash
# Start-up of bancomisuratore against the least Qt Widgets program with the same
# menu (one window, the workbook's menu bar built from the same menu tree by
# the same code): time from launch to the main window on the screen, and peak
# memory, median of several runs under Xvfb, the two programs taking turns.
# The budget: the program's median within 1.1 times the yardstick's, in the
# same run. Writes the figures into the "Start-up" section of
# docs/performance.md.
#
#   tools/bench-startup.sh BUILD_DIR      (BENCH_RUNS=N to change the 41 runs;
#                                          exit 1 when the budget is missed)
# BENCH_LOAD_NOTE="..." is written beside the load average.
set -euo pipefail

build=${1:-build}
runs=${BENCH_RUNS:-41}
here=$(cd "$(dirname "$0")/.." && pwd)
source "$here/tools/bench-lib.sh"
app="$build/bin/bancomisuratore"
minimal="$build/bin/bench-startup-minimal"

if [ "${2:-}" != "--inside" ]; then
  for exe in "$app" "$minimal"; do
    if [ ! -x "$exe" ]; then
      echo "bench-startup: $exe is not built (the Qt front end and BM_BENCH are needed); skipped."
      exit 0
    fi
  done
  if [ "$runs" -lt 7 ]; then runs=7; fi
  bench_under_xvfb bench-startup "$runs" "$build" "$0"
fi

export QT_QPA_PLATFORM=xcb
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# One run: prints "<milliseconds to shown> <max RSS in KiB>".
measure() {
  local exe=$1 start shown rss
  start=$(date +%s%N)
  BM_EXIT_AFTER_SHOW=1 /usr/bin/time -v -o "$tmp/time" "$exe" >"$tmp/out" 2>"$tmp/err" || {
    echo "bench-startup: $exe failed:" >&2
    cat "$tmp/err" >&2
    exit 1
  }
  shown=$(sed -n 's/^shown_ns=//p' "$tmp/out")
  rss=$(sed -n 's/.*Maximum resident set size (kbytes): //p' "$tmp/time")
  echo "$(( (shown - start) / 1000 )) $rss"
}

best() { sort -n | head -1; }

# The two programs take turns, so that whatever else the machine is doing
# weighs on both alike; one warm-up run each fills the file cache.
measure "$minimal" >/dev/null
measure "$app" >/dev/null
: >"$tmp/minimal"
: >"$tmp/app"
for ((i = 0; i < runs; i++)); do
  measure "$minimal" >>"$tmp/minimal"
  measure "$app" >>"$tmp/app"
done
min_us=$(cut -d' ' -f1 "$tmp/minimal" | median)
min_best=$(cut -d' ' -f1 "$tmp/minimal" | best)
min_kib=$(cut -d' ' -f2 "$tmp/minimal" | median)
app_us=$(cut -d' ' -f1 "$tmp/app" | median)
app_best=$(cut -d' ' -f1 "$tmp/app" | best)
app_kib=$(cut -d' ' -f2 "$tmp/app" | median)
# The same ratio run by run: each pair ran back to back, under the same load.
pair_ratio=$(paste -d' ' "$tmp/app" "$tmp/minimal" | awk '{ printf "%.4f\n", $1 / $3 }' | median)
ratio=$(awk -v a="$app_us" -v b="$min_us" 'BEGIN { printf "%.3f", a / b }')
if awk -v r="$ratio" 'BEGIN { exit !(r <= 1.1) }'; then verdict=within; else verdict=OVER; fi

ms() { awk -v u="$1" 'BEGIN { printf "%.0f ms", u / 1000 }'; }
extra() { awk -v a="$1" -v b="$2" -v s="$3" 'BEGIN { printf "%+.1f%s", (a - b) / s, (s == 1000 ? " ms" : " MiB") }'; }

load=$(cut -d' ' -f1-3 /proc/loadavg)
# BENCH_LOAD_NOTE says what else the machine was doing, for the record.
note=${BENCH_LOAD_NOTE:+ (${BENCH_LOAD_NOTE})}
cpu=$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -1)
qt=$(dpkg-query -W -f='${Version}' libqt6widgets6 2>/dev/null || echo "?")
section=$(cat <<MD
## Start-up
\`make bench\` (\`tools/bench-startup.sh\`): launch to the main window painted on
the screen, and peak resident memory (\`/usr/bin/time -v\`): median (and
fastest) of $runs runs each, the two programs taking turns after one warm-up
run each, under Xvfb (xcb), Release build. Measured $(date +%Y-%m-%d) on
$(nproc) cores of ${cpu:-an unknown CPU}, load average $load at the end${note},
Qt $qt.

The yardstick is \`bench-startup-minimal\`: one QMainWindow of the main
window's size carrying the same menu bar, built from the same menu tree by the
same code (\`BuildMainMenu\` over \`FormRegistry::items()\`, every item
enabled), and nothing else: no style, no picture, no forms. Both programs
therefore pay for the menu alike, and the difference is what the workbook adds
to a window with that menu. Budget: the program's median within 1.1 times the
yardstick's.

| program | to main window shown, median | fastest | peak memory |
|---|---|---|---|
| bench-startup-minimal | $(ms "$min_us") | $(ms "$min_best") | $(mib "$min_kib") |
| bancomisuratore | $(ms "$app_us") | $(ms "$app_best") | $(mib "$app_kib") |
| difference | $(extra "$app_us" "$min_us" 1000) | $(extra "$app_best" "$min_best" 1000) | $(extra "$app_kib" "$min_kib" 1024) |

Ratio of the medians: $ratio (budget 1.1: $verdict); median of the ratios of
runs taken back to back: $pair_ratio.

What the difference pays for: the workbook's style, palette and font choice,
the main window's labels and its picture drawn at its size, and the workbook's
list of forms. The menu's enabled items are found from the forms' names: no
calculator's definition is built to start (a test holds this); each is built
the first time its window opens. The machine is shared with other builds, so
single runs scatter widely: compare medians.
MD
)

bench_write_section Start-up "$section"

printf '%-24s %12s %12s %12s\n' program "to shown" fastest "peak RSS"
printf '%-24s %12s %12s %12s\n' bench-startup-minimal "$(ms "$min_us")" "$(ms "$min_best")" "$(mib "$min_kib")"
printf '%-24s %12s %12s %12s\n' bancomisuratore "$(ms "$app_us")" "$(ms "$app_best")" "$(mib "$app_kib")"
echo "start-up: ratio of the medians $ratio [budget 1.1: $verdict]; median of back-to-back ratios $pair_ratio; load average $load"
echo "written to docs/performance.md (Start-up)"
[ "$verdict" = within ]
