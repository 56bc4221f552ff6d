#!/usr/bin/env bash
# Every menu item opened in the real program under Xvfb: menu item to the
# first frame of its window, and the peak memory once every window has been
# opened and closed. Several runs (BENCH_RUNS, default 5), each a fresh
# process starting the pass at a different item; per item the median over the
# runs. Prints the slowest and the median item against the budget of one frame
# (16 ms) and the memory against 60 MiB, and writes the figures into the
# "Windows" section of docs/performance.md.
#
#   tools/bench-windows.sh BUILD_DIR        (exit 1 when a budget is missed)
# BENCH_LOAD_NOTE="..." is written beside the load average.
set -euo pipefail

build=${1:-build}
runs=${BENCH_RUNS:-5}
here=$(cd "$(dirname "$0")/.." && pwd)
source "$here/tools/bench-lib.sh"
exe="$build/bin/bench-windows"
frame_us=16000
memory_kib=$((60 * 1024))

if [ "${2:-}" != "--inside" ]; then
  if [ ! -x "$exe" ]; then
    echo "bench-windows: $exe is not built (the Qt front end and BM_BENCH are needed); skipped."
    exit 0
  fi
  if [ "$runs" -lt 3 ]; then runs=3; fi
  bench_under_xvfb bench-windows "$runs" "$build" "$0"
fi

export QT_QPA_PLATFORM=xcb
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# One warm-up run fills the file cache; its figures are dropped.
"$exe" >"$tmp/warm" 2>"$tmp/err" || { cat "$tmp/err" >&2; exit 1; }
items=$(grep -c '^item ' "$tmp/warm" || true)
for ((i = 0; i < runs; i++)); do
  "$exe" --start $((i * items / runs)) >"$tmp/run$i" 2>"$tmp/err" || {
    echo "bench-windows: run $i failed:" >&2
    cat "$tmp/err" >&2
    exit 1
  }
done

# Per item: the median over the runs of the first opening, its CPU time and the reopening.
cat "$tmp"/run* | awk '
  function median(list,   n, v, i, j, t) {
    n = split(list, v, " ")
    for (i = 2; i <= n; i++) { t = v[i]; for (j = i - 1; j >= 1 && v[j] + 0 > t + 0; j--) v[j + 1] = v[j]; v[j + 1] = t }
    return (n % 2) ? v[(n + 1) / 2] : (v[n / 2] + v[n / 2 + 1]) / 2
  }
  $1 == "item" { key = $2 " " $3 " " $4; first[key] = first[key] " " $5; cpu[key] = cpu[key] " " $6; again[key] = again[key] " " $7 }
  END { for (k in first) print k, median(first[k]), median(cpu[k]), median(again[k]) }
' | sort -k4 -n >"$tmp/items"
# The first window of each session, whichever it was.
for f in "$tmp"/run*; do grep -m1 '^item ' "$f"; done | awk '{ print $5 }' | sort -n >"$tmp/session_first"
skipped=$(grep -c '^skipped ' "$tmp/run0" || true)
measured=$(wc -l <"$tmp/items")

slowest=$(tail -1 "$tmp/items")
slowest_us=$(echo "$slowest" | awk '{ print $4 }')
slowest_name=$(echo "$slowest" | awk '{ print $1 " (" $2 ", " $3 ")" }')
median_us=$(awk '{ print $4 }' "$tmp/items" | median)
cpu_median_us=$(awk '{ print $5 }' "$tmp/items" | median)
cpu_max_us=$(awk '{ print $5 }' "$tmp/items" | sort -n | tail -1)
again_median_us=$(awk '{ print $6 }' "$tmp/items" | median)
again_max_us=$(awk '{ print $6 }' "$tmp/items" | sort -n | tail -1)
session_first_us=$(median <"$tmp/session_first")
# The slowest single first opening of any run, not a median.
worst=$(cat "$tmp"/run* | awk '$1 == "item" && $5 + 0 > w + 0 { w = $5; name = $2 " (" $3 ")" } END { print w, name }')
worst_us=${worst%% *}
worst_name=${worst#* }
peak_kib=$(sed -n 's/^peak_kib //p' "$tmp"/run* | median)
peak_max_kib=$(sed -n 's/^peak_kib //p' "$tmp"/run* | sort -n | tail -1)

ms() { awk -v u="$1" 'BEGIN { printf "%.1f ms", u / 1000 }'; }
verdict() { if awk -v a="$1" -v b="$2" 'BEGIN { exit !(a < b) }'; then echo "within"; else echo "OVER"; fi; }
time_verdict=$(verdict "$slowest_us" "$frame_us")
memory_verdict=$(verdict "$peak_max_kib" "$memory_kib")

load=$(cut -d' ' -f1-3 /proc/loadavg)
# BENCH_LOAD_NOTE says what else the machine was doing, for the record.
note=${BENCH_LOAD_NOTE:+ (${BENCH_LOAD_NOTE})}
cpu=$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -1)
qt=$(dpkg-query -W -f='${Version}' libqt6widgets6 2>/dev/null || echo "?")
slowest_rows=$(tail -5 "$tmp/items" | tac | awk '{ printf "| %s | %s | %s | %.1f ms | %.1f ms | %.1f ms |\n", $1, $2, $3, $4 / 1000, $5 / 1000, $6 / 1000 }')
section=$(cat <<MD
## Windows
\`make bench\` (\`tools/bench-windows.sh\`, program \`bench-windows\`): the real
main window under Xvfb (xcb, no window manager), left to settle for 300 ms
after its first paint, then every menu item whose form is in the workbook
chosen in turn (its QAction triggered, as a click on the item does), from
that moment to the turn of the event loop after the first
paint of its window, then the window closed through its close box. Xvfb
rather than the offscreen platform because a real X server creates, maps and
exposes each window and takes its image as a desktop does; offscreen skips all
of that. $runs runs after one warm-up run, each a fresh process beginning at a
different item; per item the median over the runs. Release build, measured
$(date +%Y-%m-%d) on $(nproc) cores of ${cpu:-an unknown CPU}, load average $load at the
end${note}, Qt $qt.

$measured menu items measured, $skipped not yet in the workbook (skipped; they are
picked up as their forms are added). Budget: one frame, 16 ms, for the slowest
item; 60 MiB of peak memory.

| figure | value | budget |
|---|---|---|
| slowest item, first opening | $(ms "$slowest_us"): $slowest_name | 16 ms: $time_verdict |
| median item, first opening | $(ms "$median_us") | |
| CPU time of the program over a first opening, median / most | $(ms "$cpu_median_us") / $(ms "$cpu_max_us") | |
| reopening, median / slowest | $(ms "$again_median_us") / $(ms "$again_max_us") | |
| first window of a session, median | $(ms "$session_first_us") | 16 ms: $(verdict "$session_first_us" "$frame_us") (shown, not in the exit status) |
| slowest single first opening of any run | $(ms "$worst_us"): $worst_name | |
| peak memory after every window opened and closed once, median / most | $(mib "$peak_kib") / $(mib "$peak_max_kib") | 60 MiB: $memory_verdict |

The five slowest items (medians; first opening, its CPU time, reopening):

| item | form | how | first opening | CPU | reopening |
|---|---|---|---|---|---|
$slowest_rows

The first opening builds the form's definition and all its widgets; a
reopening builds the widgets again from the kept definition. The first window
of a session also pays for what Qt sets up on first use (styles, font
engines, the first widget of each kind), which is why the pass begins at a
different item in each run; its figure, a median of one opening per run, is
the noisiest of all and is shown beside the budget without deciding it. Wall times on a shared machine move
with its load; the CPU column moves much less, and tells whether a miss is
the program's or the machine's.
MD
)

bench_write_section Windows "$section"

echo "windows: $measured menu items measured, $skipped skipped (form not in the workbook yet), $runs runs"
echo "windows: slowest $(ms "$slowest_us") $slowest_name [budget 16 ms: $time_verdict]"
echo "windows: slowest single opening $(ms "$worst_us") $worst_name"
echo "windows: median $(ms "$median_us"); CPU median $(ms "$cpu_median_us"); reopening median $(ms "$again_median_us"); first of a session $(ms "$session_first_us")"
echo "windows: peak memory $(mib "$peak_kib") median, $(mib "$peak_max_kib") most [budget 60 MiB: $memory_verdict]"
echo "windows: load average $load"
echo "written to docs/performance.md (Windows)"
[ "$time_verdict" = within ] && [ "$memory_verdict" = within ]
