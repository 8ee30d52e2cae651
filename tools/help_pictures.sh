#!/bin/bash
# Makes the pictures of the help pages anew: starts the editor on a display of its own with a home
# folder of its own, works it to each state by mouse and keys, and cuts the window out.
#
#     tools/help_pictures.sh PROGRAM [PICTURE...]
#
# Needs Xvfb, openbox, xdotool and ImageMagick, and the right to make the folder /home/ann, whose
# name shows in the pictures. Places are pixels in a main window 813 wide, the size with the font
# "DejaVu Sans" in ten points; they are scaled to the size that is found.
set -eu

program=$(realpath "$1")
shift
pictures=$(realpath "$(dirname "$0")/../data/help/pictures")
home=/home/ann
[ ! -e "$home" ] || { echo "$home is there already; it would be taken away." >&2; exit 1; }

editor=
manager=
server=
clean_up() {
    for process in $editor $manager $server; do kill "$process" 2>/dev/null || true; done
    rm -rf "$home"
}
trap clean_up EXIT
coproc display { exec Xvfb -displayfd 1 -screen 0 1400x1050x24 -nolisten tcp 2>/dev/null; }
# shellcheck disable=SC2154
server=$display_PID
read -r number <&"${display[0]}"
export DISPLAY=":$number"
openbox >/dev/null 2>&1 &
manager=$!

unset WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_SCALE_FACTOR
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb HOME="$home" XDG_RUNTIME_DIR="$home/.run" \
       XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache"

# --- The folder of a small site, and the settings ---

page() {
    printf '<HTML>\n<HEAD><TITLE>%s</TITLE></HEAD>\n<BODY>\n<H1>%s</H1>\n</BODY>\n</HTML>\n' "$1" "$1"
}

make_home() {
    rm -rf "$home"
    mkdir -p "$home/site/pages" "$home/site/pictures" "$home/site/notes" "$home/site/Scans" \
             "$home/.config/tagsmith" "$home/programs"
    mkdir -m 700 "$home/.run"
    cd "$home/site"
    cat >index.html <<'PAGE'
<HTML>

<HEAD>
     <TITLE>The Orchard</TITLE>
     <STYLE>
          h1 { color: #2F6B3A; }
     </STYLE>
</HEAD>

<BODY BgColor="#FFFFFF" Text="#202020">

<H1>The Orchard</H1>

<P>Old kinds of <B>apples</B> and pears, and how to grow them.</P>

<UL>
   <LI><A HREF="pages/apples.html">Apples</A></LI>
   <LI><A HREF="pages/pears.html">Pears</A></LI>
</UL>

</BODY>
</HTML>
PAGE
    for name in apples pears plums quinces; do page "$name" >"pages/$name.html"; done
    for name in harvest pruning; do printf '{\\rtf1\\ansi %s\\par}' "$name" >"notes/$name.rtf"; done
    touch Scans/Label1.JPG Scans/Label2.JPG Scans/README.TXT notes/seeds.txt
    printf 'Fruit|Apples|pages/apples.html|Pears|pages/pears.html\r\nNotes|Pruning|notes/pruning.html\r\n' >menu.txt
    convert -size 260x180 gradient:'#8fbfe8-#eef6e8' -fill '#5a8f3c' -draw 'rectangle 0,130 260,180' \
            -fill '#6b4a2b' -draw 'rectangle 122,90 138,150' -fill '#3f7d34' -draw 'circle 130,70 130,22' \
            -fill '#c8352b' -draw 'circle 112,60 112,54 circle 146,78 146,72 circle 134,46 134,40' \
            pictures/tree.jpg
    convert -size 24x24 xc:white -fill '#c8352b' -draw 'circle 12,12 12,3' pictures/dot.gif
    for name in firefox chromium; do
        printf '#!/bin/sh\n' >"$home/programs/$name"
        chmod +x "$home/programs/$name"
    done
    cat >"$home/.config/tagsmith/settings.json" <<'SETTINGS'
{"Tagsmith": {
  "Settings": {"Drive": "c: [root]", "Dir": "c:\\home\\ann\\site", "VirtualPath": "http://localhost/",
    "UDO1": "<CODE>", "UDC1": "</CODE>", "UDO2": "<P Class=\"note\">", "UDC2": "</P>",
    "RU0": "c:\\home\\ann\\site\\pages\\pears.html", "RU1": "c:\\home\\ann\\site\\pages\\apples.html"},
  "Browsers": {"IE": "c:\\home\\ann\\programs\\firefox", "NN": "c:\\home\\ann\\programs\\chromium"}}}
SETTINGS
}

# --- Working the editor ---

settle() { sleep 0.5; }

window() { # NAME -> its id, once it is there
    local tries=0
    until xdotool search --onlyvisible --name "^$1" 2>/dev/null | tail -1 | grep .; do
        tries=$((tries + 1))
        [ "$tries" -le 100 ] || { echo "No window \"$1\" came up." >&2; return 1; }
        sleep 0.1
    done
}

start() {
    [ -z "$editor" ] || { kill "$editor" 2>/dev/null || true; wait "$editor" 2>/dev/null || true; }
    make_home
    "$program" index.html 2>/dev/null &
    editor=$!
    main=$(window 'Tagsmith - ')
    xdotool windowmove "$main" 40 40 windowactivate "$main"
    settle
    width=$(xdotool getwindowgeometry --shell "$main" | sed -n 's/^WIDTH=//p')
}

scaled() { echo $(($1 * width / 813)); }
click() { # X Y [BUTTON]: a place in the main window
    xdotool mousemove --window "$main" "$(scaled "$1")" "$(scaled "$2")" click "${3:-1}"
    sleep 0.3
}
keys() { xdotool key --delay 60 "$@"; sleep 0.2; }
text() { xdotool type --delay 25 "$1"; sleep 0.2; }
fields() { # a text for each field; Tab leads on
    local first=1
    for value in "$@"; do
        [ -n "$first" ] || keys Tab
        first=
        [ -z "$value" ] || text "$value"
    done
}

html_page() { click 12 48; click "$1" 35; }
script_page() { click 12 105; click "$1" 35; }
tool() { click "$((73 + $1 * 156 / 5))" 93; } # counted from 0, with none but narrow gaps before it
quick() { click "$1" 155; }

# --- Cutting out ---

save() { # NAME: from standard input
    convert - -strip -dither None -colors 256 -define png:compression-level=9 "PNG8:$pictures/$1.png"
    echo "$1.png $(stat -c %s "$pictures/$1.png")"
}
inside() { # WINDOW -> X=.. Y=.. WIDTH=.. HEIGHT=.. of what its frame holds
    xwininfo -id "$1" | sed -n 's/^ *Absolute upper-left X: */X=/p; s/^ *Absolute upper-left Y: */Y=/p
                                s/^ *Width: */WIDTH=/p; s/^ *Height: */HEIGHT=/p'
}
cut_screen() { # NAME X Y WIDTH HEIGHT
    xdotool mousemove 1390 1040
    settle
    import -window root -crop "$4x$5+$2+$3" +repage png:- | save "$1"
}
cut_window() { # NAME WINDOW: with its frame
    local id left right top bottom
    id=$(window "$2") || return 1
    settle
    eval "$(inside "$id")"
    read -r left right top bottom < <(xprop -id "$id" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')
    cut_screen "$1" $((X - left)) $((Y - top)) $((WIDTH + left + right)) $((HEIGHT + top + bottom))
}
cut_main() { # NAME X Y WIDTH HEIGHT: a part of the main window
    eval "$(inside "$main")"
    cut_screen "$1" $((X + $(scaled "$2"))) $((Y + $(scaled "$3"))) "$(scaled "$4")" "$(scaled "$5")"
}

# --- The pictures ---

toolbar() { cut_main "$1" 0 18 "$2" 118; } # NAME WIDTH

picture_main() { start; cut_window main 'Tagsmith - '; }
picture_quick() { start; text ' '; cut_main quick 0 138 813 34; }
picture_sidebar() { start; click 60 306; keys Return; cut_main sidebar 0 174 182 240; }
picture_recent() { start; click 146 9; settle; cut_main recent 0 0 420 215; }
picture_toolbars() {
    start
    html_page 81; toolbar page_dialogs 670
    html_page 160; toolbar page_formatting 690
    html_page 288; toolbar page_fonts 670
    html_page 424; toolbar page_lists 670
    html_page 512; toolbar page_alltags 670
    html_page 580; toolbar page_dhtml 670
    html_page 638; toolbar page_css 670
    script_page 89; toolbar page_javascript 440
    script_page 160; toolbar page_cfml 470
    script_page 226; toolbar page_vbscript 440
    script_page 288; toolbar page_php 700
    script_page 336; toolbar page_asp 540
    script_page 385; toolbar page_user 440
}
picture_userbuttons() { start; keys alt+v; keys u; cut_window userbuttons 'Define User Buttons'; }
picture_gotoline() { start; keys alt+e; keys g; text 14; cut_window gotoline 'Jump To Line'; }
picture_date() { start; keys ctrl+d; cut_window date 'Insert Date'; }
picture_fonts() { start; keys alt+v; keys f; cut_window fonts '.*Font'; }

colour() { # TEXT: answers the dialog for a colour
    keys space
    window 'Select Color' >/dev/null
    keys alt+h ctrl+a
    text "$1"
    keys Return
}
picture_jumpstart() {
    start
    tool 0
    fields 'The Orchard' 'pictures/sky.gif' ''
    colour '#EEF6E8'
    keys Tab
    colour '#203020'
    keys Tab
    colour '#1A5FB4'
    cut_window jumpstart 'Jump Start'
}
picture_colors() { start; tool 1; keys Tab space; cut_window colors 'Color Dialog'; }
picture_anchor() {
    start
    tool 2
    fields pages/apples.html 'All about apples' '' '' link1
    cut_window anchor 'Anchors Dialog'
}
picture_lists() { start; tool 3; keys Tab Down space Tab Right Right Right; cut_window lists 'List Dialog'; }
picture_listitems() { start; html_page 424; tool 0; keys Right Right Right Right; cut_window listitems 'How Many'; }
picture_image() { start; tool 4; fields pictures/tree.jpg 'A tree' 180 260; cut_window image 'Image Dialog'; }
picture_line() { start; tool 5; keys Tab; fields 3 80%; cut_window line 'HR Line Dialog'; }
cell() { # TEXT: stores it, and goes back to the grid
    keys Tab
    text "$1"
    keys Tab space shift+Tab shift+Tab
}
picture_table() {
    start
    tool 6
    window 'Table Dialog' >/dev/null
    keys shift+Tab shift+Tab shift+Tab Right Right Tab Down Down Tab
    cell Kind
    keys Right
    cell Ripe
    keys Right
    cell Keeps
    keys Down Home Left Left
    cell Cox
    keys Tab Tab Tab
    fields 'Apples' '90%' 1
    cut_window table 'Table Dialog'
}
picture_mail() { start; tool 7; text ann@example.org; cut_window mail 'E-Mail Dialog'; }
picture_marquee() { start; tool 8; fields 'Apples are ripe' 30 400; cut_window marquee 'Marquee Dialog'; }
picture_comment() { start; tool 9; text 'The list of pages begins here'; cut_window comment 'Comment Dialog'; }
picture_frame() { start; tool 10; cut_window frame 'Frame Dialog'; }
picture_dirreplace() {
    start
    tool 11
    window 'Directory Replace' >/dev/null
    keys Tab Down Down Return Tab Tab space Tab Tab
    fields '<BODY>' '<BODY BgColor="#FFFFFF">'
    cut_window dirreplace 'Directory Replace'
}
picture_lowercase() {
    start
    tool 12
    window 'Convert To Lower Case' >/dev/null
    keys Tab Down Down Down Down Return
    cut_window lowercase 'Convert To Lower Case'
}
picture_indexwizard() { start; tool 13; cut_window indexwizard 'File Management Dialog - Export'; }
picture_indexpage() {
    start
    tool 13
    window 'File Management Dialog - Export' >/dev/null
    keys Return
    window 'File Management Dialog$' >/dev/null
    keys Tab Tab Tab Tab
    text 'c:\home\ann\site\all.html'
    cut_window indexpage 'File Management Dialog$'
}
picture_rtf() {
    start
    tool 14
    window 'RTF to HTML' >/dev/null
    keys Tab Down Return Tab Tab space
    cut_window rtf 'RTF to HTML'
}
picture_jsmenu() {
    start
    tool 15
    fields 'c:\home\ann\site\menu.txt' '' ''
    keys space Tab Tab Tab
    text 'c:\home\ann\site\menu.html'
    cut_window jsmenu 'JavaScript Menu Dialog'
}
picture_validation() {
    start
    script_page 89
    tool 3
    fields document.order.pieces '' ''
    keys Down
    fields '' 100 '' 'Please order fewer than a hundred trees.'
    cut_window validation 'Validate Form'
}
picture_php() {
    start
    script_page 288
    tool 8
    window 'PHP Database Dialog' >/dev/null
    keys Tab Tab
    fields orchard ann secret trees 'Kind|String|Planted|Numeric'
    cut_window php 'PHP Database Dialog'
}
picture_find() { start; keys alt+e; keys f; fields apples pears; cut_window find 'Find and Replace'; }

picture_inbrowser() { start; keys alt+v; keys i; cut_window inbrowser 'External Browser'; }
picture_browsers() { start; keys alt+v; keys d; cut_window browsers 'Define External Browsers'; }
picture_mapping() {
    start
    quick 462
    window 'Virtual Path Mapping' >/dev/null
    keys Tab Tab space
    cut_window mapping 'Virtual Path Mapping'
}
picture_options() { start; keys alt+v; keys o; cut_window options 'Tagsmith Options'; }
picture_spelling() {
    start
    keys ctrl+Home Down Down Down Down Down Down Down Down Down Down Down Down Down End
    text ' The harvset begins in August.'
    keys F7
    cut_window spelling 'Check Spelling'
}
picture_print() { start; keys ctrl+p; cut_window print '.*Print'; }
picture_viewer() {
    start
    keys alt+v
    keys p
    window 'Image Viewer' >/dev/null
    keys shift+Tab Down Down Down Return Tab End
    cut_window viewer 'Image Viewer'
}
picture_about() { start; keys alt+h; keys a; cut_window about 'About Tagsmith'; }

all=("$@")
[ "$#" -gt 0 ] || mapfile -t all < <(declare -F | sed -n 's/^declare -f picture_//p')
failed=
for name in "${all[@]}"; do
    "picture_$name" || failed="$failed $name"
done
[ -z "$failed" ] || { echo "Not made:$failed" >&2; exit 1; }
