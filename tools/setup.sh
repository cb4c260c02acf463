#!/usr/bin/env bash
# Installs every Debian 12 package the builds, the tests, the fuzzers and the tool need.
# Does nothing when they are all present already; needs root (or sudo) otherwise.
set -euo pipefail

# clang, libclang-rt-14-dev and llvm are for the fuzz preset: libFuzzer and the sanitizer
# runtimes (libclang-rt-14-dev is only recommended by clang, and recommendations are not
# installed here) and llvm-symbolizer for readable reports.
packages=(
  build-essential cmake ninja-build pkg-config
  libgtest-dev libgmock-dev libbenchmark-dev
  libsqlite3-dev libsystemd-dev dbus-daemon
  libcli11-dev nlohmann-json3-dev librsvg2-bin python3-ezdxf
  g++-mingw-w64-x86-64-posix wine64
  clang-format clang-tidy
  clang libclang-rt-14-dev llvm
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "setup: installing ${missing[*]}" >&2
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
