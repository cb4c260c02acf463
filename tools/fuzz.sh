#!/usr/bin/env bash
# Builds the fuzz preset (clang, libFuzzer, AddressSanitizer, UndefinedBehaviorSanitizer)
# and runs each fuzz target for a while, one after another.
#     tools/fuzz.sh                         every target for 60 seconds
#     tools/fuzz.sh 600 maps outlines       these two for 10 minutes each
#     tools/fuzz.sh --jobs 2 60             two targets at a time
# Each target grows its working corpus in build/fuzz/corpus/<target>, starting from the seeds
# in fuzz/corpus/<target> and the inputs in fuzz/regressions/<target>. An input that fails a
# check, crashes, leaks or takes longer than 30 seconds is written to
# build/fuzz/findings/<target>/ and the script ends with status 1 after the other targets
# have run; fuzz/README.md says how to keep such an input as a regression test.
set -euo pipefail
cd "$(dirname "$0")/.."

jobs=1
if [ "${1:-}" = "--jobs" ]; then
    jobs=$2
    shift 2
fi
seconds=60
if [[ "${1:-}" =~ ^[0-9]+$ ]]; then
    seconds=$1
    shift
fi
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(boolean_ops region_ops polyline_edit intersections point_in_region outlines
             string_text maps registry_values tool_formats)
fi

tools/setup.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

logs=build/fuzz/logs
mkdir -p "$logs"

# run_target <target>: one fuzzing session; its output goes to build/fuzz/logs/<target>.log.
run_target() {
    local target=$1
    local program=build/fuzz/bin/orx_fuzz_$target
    local corpus=build/fuzz/corpus/$target
    local findings=build/fuzz/findings/$target
    if [ ! -x "$program" ]; then
        echo "fuzz: no target $target" >&2
        return 1
    fi
    mkdir -p "$corpus" "$findings"
    local inputs=("$corpus" "fuzz/corpus/$target")
    [ -d "fuzz/regressions/$target" ] && inputs+=("fuzz/regressions/$target")
    local status=0
    nice "$program" -max_total_time="$seconds" -timeout=30 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="$findings/" "${inputs[@]}" \
        >"$logs/$target.log" 2>&1 || status=$?
    local runs
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$logs/$target.log" | tail -1)
    if [ $status -eq 0 ]; then
        echo "== $target: ${runs:-?} runs in $seconds s, no finding"
    else
        echo "== $target: FINDING after ${runs:-?} runs, see $logs/$target.log and $findings/"
        grep -m 3 -E 'fuzz check failed|ERROR: |runtime error|SUMMARY' "$logs/$target.log" || true
    fi
    return $status
}

failed=0
running=0
for target in "${targets[@]}"; do
    run_target "$target" &
    running=$((running + 1))
    if [ $running -ge "$jobs" ]; then
        wait -n || failed=1
        running=$((running - 1))
    fi
done
while [ $running -gt 0 ]; do
    wait -n || failed=1
    running=$((running - 1))
done
exit $failed
