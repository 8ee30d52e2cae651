#!/bin/sh
# Sets up what is missing, builds Tagsmith and starts it.
#   ./run.sh [FILE]
set -eu
root=$(cd "$(dirname "$0")" && pwd)
. "$root/tools/setup.sh"

start_on_a_virtual_display() {
    install_packages xvfb xauth imagemagick xdotool
    shot="$root/build/screenshot.png"
    echo "There is no display. Tagsmith is started on a virtual one for a screenshot."
    TAGSMITH_PROGRAM="$program" TAGSMITH_SHOT="$shot" \
        xvfb-run -a -s "-screen 0 1280x960x24" "$root/tools/screenshot.sh" "$@"
    echo "The screenshot is in $shot"
}

install_packages $BUILD_PACKAGES qt6-wayland
build release tagsmith
program="$root/build/release/bin/tagsmith"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    start_on_a_virtual_display "$@"
else
    exec "$program" "$@"
fi
