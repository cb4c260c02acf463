#!/usr/bin/env bash
# Builds the orx tool natively and runs it: the first thing to try.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh
cmake --preset native >/dev/null
cmake --build --preset native --target orx
build/native/bin/orx version
