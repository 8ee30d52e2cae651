#!/bin/sh
# Edits a real page in the real window, from start to save, with mouse and keyboard alone.
#   edit_a_page.sh PROGRAM
# Runs itself again inside a virtual display with a window manager.
set -eu
program=$1

if [ -z "${TAGSMITH_TEST_FOLDER:-}" ]; then
    TAGSMITH_TEST_FOLDER=$(mktemp -d)
    export TAGSMITH_TEST_FOLDER
    trap 'rm -rf "$TAGSMITH_TEST_FOLDER"' EXIT
    xvfb-run -a -s "-screen 0 1280x960x24" "$0" "$program"
    exit
fi

folder=$TAGSMITH_TEST_FOLDER
export HOME="$folder" XDG_CONFIG_HOME="$folder/config" XDG_RUNTIME_DIR="$folder"
unset QT_QPA_PLATFORM
chmod 700 "$folder"

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

# within SECONDS CONDITION...: waits until the condition holds.
within() {
    tries=$(($1 * 20))
    shift
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.05
    done
}

is_shown() {
    xdotool search --onlyvisible --name "$1"
}

start() {
    "$program" "$@" 2>"$folder/errors" &
    editor=$!
    within 20 is_shown '^Tagsmith - ' || fail "no window"
    window=$(is_shown '^Tagsmith - ' | head -n 1)
    xdotool windowactivate --sync "$window"
    eval "$(xdotool getwindowgeometry --shell "$window")"
    sleep 0.3
}

# place X Y: the mouse goes to a place in the client area, in twips from its top left corner.
place() {
    menu=$((HEIGHT - 7020 * WIDTH / 9405))
    xdotool mousemove --window "$window" $(($1 * WIDTH / 9405)) $((menu + $2 * WIDTH / 9405))
}

# click X Y: a click at such a place.
click() {
    place "$1" "$2"
    xdotool click 1
    sleep 0.2
}

keys() {
    xdotool key --clearmodifiers --delay 20 "$@"
    sleep 0.2
}

quit() {
    keys alt+f x
    within 10 not_running || fail "the program did not end"
}

not_running() {
    ! kill -0 "$editor" 2>/dev/null
}

# expect_file PATH TEXT: the file holds exactly the text, printf escapes in it.
expect_file() {
    printf "$2" >"$folder/expected"
    within 5 cmp -s "$1" "$folder/expected" || {
        od -c "$1" | head -n 20 >&2
        fail "$1 is not as expected"
    }
}

# A window that comes up while the window manager is still starting can be lost.
manager_is_up() {
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}
openbox >/dev/null 2>&1 &
within 20 manager_is_up || fail "no window manager"

page="$folder/a page.html"
printf '<P>first</P>\r\n<P>second</P>\r\n' >"$page"

# Type at the caret, tag a word on the page "Formatting", save.
start "$page"
click 4000 4000
keys ctrl+Home
xdotool type --delay 20 'Wort '
keys ctrl+Home ctrl+shift+Right
click 1880 190
click 848 850
keys ctrl+s
expect_file "$page" '<B>Wort </B><P>first</P>\r\n<P>second</P>\r\n\r\n'

# One undo takes the tag away again; the Tab key is five blanks; comment two lines.
keys ctrl+z
keys ctrl+Home Tab
keys ctrl+Home shift+Down
click 4500 1560
keys ctrl+s
expect_file "$page" '//     Wort <P>first</P>\r\n//<P>second</P>\r\n\r\n'

# Go to a line by the menu, put a date there, close without saving.
keys alt+e g
within 5 is_shown 'Jump To Line' || fail "no question for the line"
xdotool type --delay 20 '2'
keys Return
keys ctrl+d
within 5 is_shown 'Insert Date' || fail "no dates to choose from"
keys End Return
within 5 is_shown '^Tagsmith - ' || fail "the dates did not go"
keys ctrl+s
day=$(date +%m%d%Y)
expect_file "$page" "//     Wort <P>first</P>\\r\\n${day}//<P>second</P>\\r\\n\\r\\n"
# One Escape leads from a menu back into the text.
keys alt+f Escape
xdotool type --delay 20 'lost'
keys alt+f x
within 5 is_shown 'Save on Open' || fail "no question about the edits"
keys alt+n
within 10 not_running || fail "the program did not end"
grep -q lost "$page" && fail "saved what was to be dropped"

# A picture dragged from the file list into the page, then the restart with the folder remembered.
mkdir "$folder/site"
convert -size 30x20 xc:red "gif:$folder/site/Pic.GIF"
printf '{"Tagsmith":{"Settings":{"Dir":"c:%s","HeightWidth":"True"}}}' \
    "$(echo "$folder/site" | sed 's|/|\\\\|g')" >"$folder/config/tagsmith/settings.json"
printf 'x' >"$page"
start "$page"
click 5000 4000
keys ctrl+Home
place 500 4000 && xdotool mousedown 1
sleep 0.2
for step in 1500 3000 4500 5500; do
    place $step 3500
    sleep 0.1
done
xdotool mouseup 1
sleep 0.3
keys ctrl+s
expect_file "$page" '<IMG Src="Pic.GIF" Width="30" Height="20" Border="0"></IMG>x\r\n'
quit

# After the restart the Recent menu brings the page back.
start
keys alt+r Return
within 5 is_shown 'a page.html' || fail "the Recent menu did not open the page"
quit

[ ! -s "$folder/errors" ] || { cat "$folder/errors" >&2; fail "the program complained"; }
echo "edited, saved and found again"
