#!/bin/sh
# Runs a Windows program of the cross build under Wine, for ctest and for the tool.
#
# - One Wine prefix per user, outside the build tree, created on first use (under a lock, as
#   ctest may start several tests at once).
# - Wine's own stderr goes to a temporary file and is printed afterwards: the first Wine
#   process starts wineserver, which inherits that stream, and ctest would otherwise wait for
#   wineserver to exit after every test.
# - A crash is a failure even when Wine's debugger handled it and the exit status is 0.
# - The program's output is collected and printed when it ends (see the retry below).
set -u

WINE=/usr/lib/wine/wine64
export WINEPREFIX="${ORX_WINEPREFIX:-${HOME:-/tmp}/.cache/orx/wine64}"
export WINEDEBUG="${WINEDEBUG:--all,err+module}"
export WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY

if [ ! -f "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$(dirname "$WINEPREFIX")"
    (
        flock 9
        if [ ! -f "$WINEPREFIX/system.reg" ]; then
            "$WINE" wineboot --init >/dev/null 2>&1
            /usr/lib/wine/wineserver -w
        fi
    ) 9>"$WINEPREFIX.lock"
fi

# Under heavy load Wine was seen (rarely) to exit with an error before the program wrote a
# single byte, the program never having run. That case, and only that case, is retried.
output=$(mktemp "${TMPDIR:-/tmp}/orx-wine-out.XXXXXX")
errors=$(mktemp "${TMPDIR:-/tmp}/orx-wine.XXXXXX")
# Interrupted (ctest's timeout, Ctrl-C): show what the program wrote so far, then clean up.
trap 'cat "$output"; cat "$errors" >&2; rm -f "$output" "$errors"; exit 143' INT TERM
attempt=1
while :; do
    "$WINE" "$@" >"$output" 2>"$errors"
    status=$?
    if [ "$status" -eq 0 ] || [ -s "$output" ] || [ -s "$errors" ] || [ "$attempt" -ge 3 ]; then
        break
    fi
    echo "wine-run: Wine exited with status $status before the program wrote anything; retrying" >&2
    attempt=$((attempt + 1))
    sleep 1
done
cat "$output"
if [ -s "$errors" ]; then
    cat "$errors" >&2
fi
if grep -q 'wine: Unhandled' "$errors"; then
    [ "$status" -eq 0 ] && status=1
fi
if [ "$status" -eq 53 ]; then
    echo "wine-run: a DLL the program needs was not found (exit status 53)" >&2
fi
rm -f "$output" "$errors"
exit "$status"
