#!/usr/bin/env bash
# The whole test of the project: installs what the builds need, checks the formatting, then
# builds the native, sanitizer and Windows configurations and runs every test of each (after
# the native build clang-tidy checks the library and the tool, see tools/check.sh), then
# builds the fuzz preset, replays its seeds and regressions and runs every fuzz target for
# 60 seconds (two at a time, see tools/fuzz.sh). The native build compiles every public
# header on its own.
#     tools/test.sh                 all four
#     tools/test.sh native windows  only these
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh

presets=("$@")
[ ${#presets[@]} -eq 0 ] && presets=(native sanitize windows fuzz)

echo "== style: formatting"
tools/check.sh format

for preset in "${presets[@]}"; do
    start=$SECONDS
    echo "== $preset: configure and build"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    built=$SECONDS
    echo "== $preset: test"
    ctest --preset "$preset"
    if [ "$preset" = fuzz ]; then
        tools/fuzz.sh --jobs 2 60
    fi
    echo "== $preset: built in $((built - start)) s, tested in $((SECONDS - built)) s"
    if [ "$preset" = native ]; then
        echo "== native: clang-tidy"
        start=$SECONDS
        tools/check.sh tidy
        echo "== native: clang-tidy in $((SECONDS - start)) s"
    fi
done
