#!/usr/bin/env bash
# The style checks of the project: formatting (clang-format) and static analysis
# (clang-tidy) over the library and the tool. Exits non-zero on the first kind of finding.
#     tools/check.sh            both checks; clang-tidy needs build/native (compile commands)
#     tools/check.sh format     only the formatting
#     tools/check.sh tidy       only clang-tidy
# Every public header compiling on its own is checked by the build (ORX_CHECK_HEADERS).
set -euo pipefail
cd "$(dirname "$0")/.."

checks=("$@")
[ ${#checks[@]} -eq 0 ] && checks=(format tidy)

# The project's C++ sources: tracked and new files, generated and fuzz inputs left out.
sources() {
    git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h' | grep -v '^fuzz/corpus/\|^fuzz/regressions/'
}

check_format() {
    local bad
    bad=$(sources | xargs clang-format --dry-run 2>&1 | grep -o '^[^:]*:[0-9]*:[0-9]*: warning' | cut -d: -f1 | sort -u || true)
    if [ -n "$bad" ]; then
        echo "check: not formatted as .clang-format says (run clang-format -i on them):" >&2
        echo "$bad" | sed 's/^/  /' >&2
        return 1
    fi
    echo "check: formatting clean ($(sources | wc -l) files)"
}

check_tidy() {
    local db=build/native/compile_commands.json
    if [ ! -f "$db" ]; then
        echo "check: $db missing; configure the native preset first" >&2
        return 1
    fi
    local log
    log=$(mktemp)
    # Translation units of the library and the tool; headers under orx/ and tools/ are
    # checked through them (.clang-tidy's HeaderFilterRegex).
    if ! run-clang-tidy -p build/native -j "$(nproc)" -quiet "$PWD/(orx|tools)/.*\.cpp$" \
        >"$log" 2>&1; then
        grep -E 'error:|warning:' "$log" | sort -u >&2 || cat "$log" >&2
        rm -f "$log"
        echo "check: clang-tidy findings above" >&2
        return 1
    fi
    rm -f "$log"
    echo "check: clang-tidy clean"
}

for c in "${checks[@]}"; do
    "check_$c"
done
