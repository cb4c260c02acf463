#!/usr/bin/env bash
# The whole test of the project: installs what the builds need, then builds the native,
# sanitizer and Windows configurations and runs every test of each.
#     tools/test.sh                 all three
#     tools/test.sh native windows  only these
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh

presets=("$@")
[ ${#presets[@]} -eq 0 ] && presets=(native sanitize windows)

for preset in "${presets[@]}"; do
    start=$SECONDS
    echo "== $preset: configure and build"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    built=$SECONDS
    echo "== $preset: test"
    ctest --preset "$preset"
    echo "== $preset: built in $((built - start)) s, tested in $((SECONDS - built)) s"
done
