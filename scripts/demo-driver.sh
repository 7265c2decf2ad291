# shellcheck shell=bash disable=SC2034,SC2154
# A user of the example host on a virtual screen: real mouse and key events, and what there is to see.
#
# Everything waits for a condition, and the first one that does not come about ends the script with
# the name of the step. The host's widget locator says where the widgets are; it never acts on them.

screen_width=1280
screen_height=800
free_area=        # "x y width height" of what the popup's screen leaves to windows; all, if empty
scale_percent=100 # device pixels in 100 pixels of the host, in which the locator answers
patience=20       # seconds

build=$root/build/demo-build
host_command=("$build/examples/host/examplehost")

# Set by start_driver: where the output of the host, its settings and the pictures go.
work=
settings=
pictures=

host_pid=
host_in=
host_out=
background=()
choices=()  # every choice that the host printed
expected=() # those that the steps so far call for
step_number=0
step_name=start

# Set by the verbs that look something up.
answer=
x=0
y=0
width=0
height=0
row_path=
action_path=

# --- Steps -------------------------------------------------------------------------------------

# step NAME: begins a step.
step() {
    step_number=$((step_number + 1))
    step_name=$(printf '%02d-%s' "$step_number" "$1")
}

# start_album FOLDER: the pictures of the next steps go there, and the host forgets what it knows.
start_album() {
    pictures=$1
    settings=$work/settings-${1##*/}
    step_number=0
    mkdir -p "$pictures"
    rm -f "$pictures"/*.png
}

# finish [CHOICE]: ends the step, in which the host must have printed this choice and no other.
finish() {
    expect_choice "$@"
    take_picture "$pictures/$step_name.png"
    printf '%-32s %s\n' "$step_name" "${1:-}"
}

# expect_choice [CHOICE]: that the host has printed since the last one; without it, none.
expect_choice() {
    if (($#)); then
        expected+=("$1")
        wait_until "\"$1\" is printed" has_printed "${#expected[@]}"
    fi
    drain
    [[ ${choices[*]} == "${expected[*]}" ]] \
        || fail "expected ${1:-no choice}, the host printed: ${choices[*]:${#expected[@]} - $#}"
}

fail() {
    printf '%s: step %s: %s\n' "${0##*/}" "$step_name" "$*" >&2
    import -silent -window root "$pictures/$step_name-failed.png" || true
    [[ ! -s $work/host.log ]] || sed 's/^/host: /' "$work/host.log" >&2
    exit 1
}

# wait_until DESCRIPTION COMMAND...: polls the command until it succeeds.
wait_until() {
    local description=$1 deadline=$((SECONDS + patience))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || fail "it never came about that $description"
        sleep 0.05
    done
}

# --- The screen --------------------------------------------------------------------------------

# start_driver PICTURES: makes the virtual screen with a window manager.
start_driver() {
    pictures=$1
    work=$(mktemp -d)
    settings=$work/settings
    trap stop_driver EXIT
    trap '' PIPE # a host that is gone is found out by writing to it
    mkdir -p "$pictures"
    rm -f "$pictures"/*.png
    unset LANGUAGE WAYLAND_DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP DBUS_SESSION_BUS_ADDRESS "${!QT_@}"
    export LC_ALL=C.UTF-8
    export XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
    start_screen
}

start_screen() {
    local server number
    exec {server}< <(exec Xvfb -displayfd 1 -screen 0 "${screen_width}x${screen_height}x24" \
        -nolisten tcp -noreset 2>"$work/server.log")
    background+=($!)
    read -r -t "$patience" number <&"$server" || fail "the virtual screen does not start"
    export DISPLAY=:$number
    openbox --sm-disable >"$work/openbox.log" 2>&1 &
    background+=($!)
    wait_until "the window manager runs" has_window_manager
    say "Virtual screen $DISPLAY, $screen_width x $screen_height"
}

has_window_manager() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# Ends the virtual screen and everything on it.
stop_screen() {
    local pid
    [[ -z $host_pid ]] || kill "$host_pid" 2>/dev/null || true
    for pid in "${background[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait
    host_pid=
    background=()
}

# shellcheck disable=SC2317 # called by the trap
stop_driver() {
    stop_screen
    rm -rf "$work"
}

# start_other_window: a window of another application, in the lower right corner.
start_other_window() {
    xev -geometry 200x200+1040+560 >/dev/null 2>&1 &
    background+=($!)
    wait_until "the other window is shown" has_other_window
}

has_other_window() {
    xdotool search --onlyvisible --name 'Event Tester' >/dev/null 2>&1
}

# take_picture FILE [X Y WIDTH HEIGHT]: of this part of the screen or the whole, once it stands still.
take_picture() {
    local file=$1 part=${screen_width}x$screen_height+0+0
    shift
    (($# == 0)) || part=$(device_area "$@")
    wait_until "the screen stands still" stands_still "$part"
    convert "$work/now.ppm" "$file"
}

stands_still() {
    import -silent -window root -crop "$1" "$work/before.ppm"
    import -silent -window root -crop "$1" "$work/now.ppm"
    cmp -s "$work/before.ppm" "$work/now.ppm"
}

# colours X Y WIDTH HEIGHT: how many different ones this part of the screen has.
colours() {
    import -silent -window root -crop "$(device_area "$@")" +repage "$work/part.png"
    identify -format '%k' "$work/part.png"
}

# has_colour X Y COLOUR: whether the pixel of the device has the colour, given as 188,188,188.
has_colour() {
    import -silent -window root -crop "1x1+$1+$2" +repage -depth 8 "rgb:$work/pixel"
    [[ $(od -An -tu1 "$work/pixel" | xargs | tr ' ' ,) == "$3" ]]
}

# --- The host ----------------------------------------------------------------------------------

# build_host PACKAGE...
build_host() {
    need_packages "$@"
    cmake --preset dev -B "$build" -DBUILD_TESTING=OFF
    cmake --build "$build" --target examplehost
}

# start_host [LANGUAGE]
start_host() {
    local options=(--locator --settings "$settings" ${1:+--language "$1"})
    coproc HOST { exec "${host_command[@]}" "${options[@]}" 2>>"$work/host.log"; }
    host_pid=${HOST_PID:-}
    exec {host_out}<&"${HOST[0]}" {host_in}>&"${HOST[1]}"
    wait_until "the host's window is shown" is_shown host
    wait_until "the host's window has been given its place" is_active
}

is_active() {
    [[ $(xdotool getactivewindow getwindowpid 2>/dev/null) == "$host_pid" ]]
}

# Closes the host's window with the window manager's key; the process must end well.
close_host() {
    local status=0
    xdotool key --clearmodifiers alt+F4
    wait "$host_pid" || status=$?
    host_pid=
    ((status == 0)) || fail "the host ended with status $status"
    exec {host_in}>&- {host_out}<&-
}

# move_host X Y: by the window manager.
move_host() {
    xdotool search --onlyvisible --name '^Example Host$' windowmove -- \
        "$(device_pixels "$1")" "$(device_pixels "$2")"
    wait_until "the host's window has moved" is_near host "$1" "$2"
}

# The frame of the window manager lies between the two corners.
is_near() {
    place "$1"
    ((x >= $2 && x - $2 < 40 && y >= $3 && y - $3 < 40))
}

# ask QUESTION PATH: sets answer, and takes note of the choices that were printed before it.
ask() {
    local line
    printf '%s\n' "$*" >&"$host_in" || fail "the host is gone"
    while IFS= read -r -t "$patience" line <&"$host_out"; do
        line=${line%$'\r'} # on Windows
        if [[ $line == '='* ]]; then
            answer=${line#= }
            return
        fi
        choices+=("$line")
    done
    fail "the host does not answer"
}

drain() {
    ask visible host
}

# --- What there is to see ----------------------------------------------------------------------

has_printed() {
    drain
    ((${#choices[@]} >= $1))
}

is_shown() {
    ask visible "$1"
    [[ $answer == yes ]]
}

is_gone() {
    ! is_shown "$1"
}

says() {
    ask text "$1"
    [[ $answer == "$2" ]]
}

# place PATH: sets x, y, width and height of the widget on the screen.
place() {
    ask where "$1"
    [[ $answer != none ]] || fail "there is no $1"
    read -r x y width height <<<"$answer"
}

expect_shown() {
    wait_until "$1 is shown" is_shown "$1"
}

expect_gone() {
    wait_until "$1 is gone" is_gone "$1"
}

# expect_text PATH TEXT
expect_text() {
    wait_until "$1 says \"$2\"" says "$1" "$2"
}

# expect_place PATH X Y WIDTH HEIGHT
expect_place() {
    wait_until "$1 is at ${*:2}" is_at "$@"
}

# expect_width PATH WIDTH
expect_width() {
    place "$1"
    ((width == $2)) || fail "$1 is $width wide, not $2"
}

# expect_height PATH HEIGHT
expect_height() {
    place "$1"
    ((height == $2)) || fail "$1 is $height high, not $2"
}

is_at() {
    ask where "$1"
    [[ $answer == "${*:2}" ]]
}

# expect_rows LIST TEXT...: these rows, and no other.
expect_rows() {
    local list=$1 row=0 text
    shift
    for text in "$@"; do
        expect_text "$list/$row" "$text"
        row=$((row + 1))
    done
    expect_gone "$list/$row"
}

# expect_icon PATH: something is painted in the box of this action icon.
expect_icon() {
    place "$1"
    wait_until "the icon of $1 is painted" has_colours "$x" "$y" "$width" "$height"
}

has_colours() {
    (($(colours "$@") > 4))
}

# expect_popup_beside X Y WIDTH HEIGHT: where the popup opens for such a control. In the left half of
# the area that the screen leaves to windows it begins at the control's left edge, in the right half
# it ends the control's width left of it; in the upper half it begins at the control's top edge, in
# the lower half it ends there. The halves are told by the size of the area alone.
expect_popup_beside() {
    local left=$1 top=$2 bottom=$(($2 + $4 - 1)) right popup_x popup_y
    local area_x area_y area_width area_height
    read -r area_x area_y area_width area_height <<<"${free_area:-0 0 $screen_width $screen_height}"
    right=$((area_x + area_width - 1))
    if ((2 * left <= area_width)); then
        popup_x=$((left + 800 > right ? right - 800 : left))
    else
        popup_x=$((left - $3 - 800 < 0 ? 0 : left - $3 - 800))
    fi
    if ((2 * bottom > area_height)); then
        popup_y=$((top - 600 < 0 ? 0 : top - 600))
    else
        popup_y=$((bottom + 600 >= area_height ? area_height - 600 : top - 1))
    fi
    expect_place popup "$popup_x" "$popup_y" 800 600
}

# --- Mouse and keys ----------------------------------------------------------------------------

# device_pixels LENGTH: rounded as the host does it.
device_pixels() {
    echo $((($1 * scale_percent + 50) / 100))
}

# device_area X Y WIDTH HEIGHT
device_area() {
    printf '%dx%d+%d+%d\n' "$(device_pixels "$3")" "$(device_pixels "$4")" \
        "$(device_pixels "$1")" "$(device_pixels "$2")"
}

# move_mouse X Y
move_mouse() {
    xdotool mousemove "$(device_pixels "$1")" "$(device_pixels "$2")"
}

# hover PATH
hover() {
    expect_shown "$1"
    place "$1"
    move_mouse $((x + width / 2)) $((y + height / 2))
}

# click PATH
click() {
    hover "$1"
    xdotool click 1
}

# click_title WINDOW: in the title bar that the window manager gives the window.
click_title() {
    place "$1"
    xdotool mousemove "$(device_pixels $((x + width / 4)))" $(($(device_pixels "$y") - 10)) click 1
}

# click_row LIST TEXT: at the left end of the row, away from its action icon.
click_row() {
    find_row "$@"
    place "$row_path"
    move_mouse $((x + 20)) $((y + height / 2))
    xdotool click 1
}

# find_row LIST TEXT: sets row_path and action_path of the row of that text.
find_row() {
    wait_until "$1 has the row \"$2\"" has_row "$@"
}

has_row() {
    local row=0
    answer=
    while [[ $answer != none ]]; do
        row_path=$1/$row
        action_path=${1/row/action}/$row
        ask text "$row_path"
        [[ $answer != "$2" ]] || return 0
        row=$((row + 1))
    done
    return 1
}

# type_text TEXT
type_text() {
    xdotool type --delay 15 -- "$1"
}

press() {
    xdotool key --clearmodifiers "$@"
}

# choose_in_combo PATH TEXT: by typing the text into the open list of the combo box.
choose_in_combo() {
    click "$1"
    type_text "$2"
    press Return
    expect_text "$1" "$2"
}
