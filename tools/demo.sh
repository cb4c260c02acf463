#!/usr/bin/env bash
# Builds the orx tool natively and runs its demo: a gallery of every profile outline, the
# boolean operations and a region with holes, as SVG pictures and an index.html page whose
# path is printed last.
#     tools/demo.sh          the gallery in build/orx-demo
#     tools/demo.sh DIR      the gallery in DIR
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh
cmake --preset native >/dev/null
cmake --build --preset native --target orx
build/native/bin/orx version
build/native/bin/orx demo "${1:-$PWD/build/orx-demo}"
