#!/bin/sh
# Runs inside a virtual display: starts the editor, waits for its window, saves a picture of it.
set -eu

"$TAGSMITH_PROGRAM" "$@" &
editor=$!
trap 'kill "$editor" 2>/dev/null || true' EXIT

tries=0
until xdotool search --onlyvisible --name '^Tagsmith - ' >/dev/null 2>&1; do
    tries=$((tries + 1))
    if [ "$tries" -gt 100 ]; then
        echo "The window of Tagsmith did not come up." >&2
        exit 1
    fi
    sleep 0.1
done
sleep 1
import -window root "$TAGSMITH_SHOT"
