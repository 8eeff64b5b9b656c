#!/usr/bin/env bash
# A short run of every fuzz target of build-asan/ (made by sanitize.sh), two at a time, each
# for FUZZ_SECONDS (30 by default) from a copy of its seed corpus under fuzz/corpus. A crash, a
# leak or a hang fails the run and names the input that caused it, kept under
# build-asan/fuzz-artifacts/.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${FUZZ_SECONDS:-30}
source scripts/sanitizer-env.sh
out=$PWD/build-asan/fuzz-artifacts
rm -rf "$out"
mkdir -p "$out"

run_one() {
  local program=$1 name
  name=$(basename "$program")
  name=${name#fuzz_}
  mkdir -p "$out/$name/corpus"
  cp fuzz/corpus/"$name"/* "$out/$name/corpus/"
  # An input that takes longer than 25 s counts as a hang.
  if QT_QPA_PLATFORM=offscreen "$program" -max_total_time="$seconds" -timeout=25 -print_final_stats=1 \
      -artifact_prefix="$out/$name/" "$out/$name/corpus" >"$out/$name/log" 2>&1; then
    echo "fuzz_$name: $(grep -m1 -o 'stat::number_of_executed_units: *[0-9]*' "$out/$name/log" | grep -o '[0-9]*$') inputs in ${seconds} s, no finding"
  else
    echo "fuzz_$name FAILED; the end of its log ($out/$name/log):"
    tail -n 40 "$out/$name/log"
    for input in "$out/$name"/crash-* "$out/$name"/leak-* "$out/$name"/timeout-* "$out/$name"/oom-*; do
      [ -e "$input" ] && echo "reproduce with: build-asan/bin/fuzz_$name $input"
    done
    return 1
  fi
}

programs=(build-asan/bin/fuzz_*)
[ -e "${programs[0]}" ] || { echo "no fuzz targets in build-asan/bin: run scripts/sanitize.sh first"; exit 1; }
failed=0
pids=()
for program in "${programs[@]}"; do
  run_one "$program" &
  pids+=($!)
  if [ ${#pids[@]} -eq 2 ]; then
    wait "${pids[0]}" || failed=1
    pids=("${pids[1]}")
  fi
done
for pid in "${pids[@]}"; do
  wait "$pid" || failed=1
done
[ $failed -eq 0 ] || { echo "fuzzing found a fault"; exit 1; }
echo "${#programs[@]} fuzz targets ran ${seconds} s each without a finding"
