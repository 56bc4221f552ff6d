# What the bench scripts share; sourced, not run.

# The median of the numbers on standard input, one a line.
median() { sort -n | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }
mib() { awk -v k="$1" 'BEGIN { printf "%.1f MiB", k / 1024 }'; }

# Runs the calling script again inside one X server for all its runs, so that
# only the programs are measured: bench_under_xvfb NAME RUNS BUILD SCRIPT.
bench_under_xvfb() {
  if ! command -v xvfb-run >/dev/null; then
    echo "$1: xvfb-run is missing (make deps installs xvfb)." >&2
    exit 1
  fi
  exec env BENCH_RUNS="$2" xvfb-run -a -s "-screen 0 1024x768x24" "$4" "$3" --inside
}

# Writes SECTION over the "## HEADING" section of docs/performance.md, up to
# the next heading of its level, or appends it: bench_write_section HEADING SECTION.
bench_write_section() {
  local doc="$here/docs/performance.md"
  [ -f "$doc" ] || printf '# Performance\n' >"$doc"
  awk -v heading="## $1" -v section="$2" '
    $0 ~ "^" heading "[[:space:]]*$" { print section; skip = 1; done = 1; next }
    skip && /^## / { skip = 0; print "" }
    !skip { print }
    END { if (!done) { print ""; print section } }
  ' "$doc" >"$tmp/doc" && cp "$tmp/doc" "$doc"
}
