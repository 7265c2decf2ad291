# shellcheck shell=bash disable=SC2034,SC2154
# Where the popup opens: beside a button anywhere on the screen, with a panel, and on two monitors.

frame=()         # what lies between the host's window with its frame and the button, across and down
button=()        # width and height of the button
monitors=()      # "x y width height" of each
monitor=         # the one that the popup was last on
panel_window=
panel="0 0 0 0"  # what it takes at the left, the right, the top and the bottom of the screen

# --- The button --------------------------------------------------------------------------------

measure_the_host() {
    move_host 100 100
    wait_until "the host's frame is measured" knows_frame
}

# The window is moved by the corner of its frame.
knows_frame() {
    place button/pick
    frame=($((x - 100)) $((y - 100)))
    button=("$width" "$height")
    ((frame[0] > 0 && frame[0] < 40 && frame[1] > 40))
}

# put_button X Y
put_button() {
    xdotool search --onlyvisible --name '^Example Host$' \
        windowmove -- $(($1 - frame[0])) $(($2 - frame[1]))
    wait_until "the button is at $1 $2" is_at button/pick "$1" "$2" "${button[@]}"
}

# --- The popup ---------------------------------------------------------------------------------

# check_place NAME X Y: the popup opens where it should for the button there, Qt and the window system
# agree about that, and a click inside, below the rows, does not count as one elsewhere. The button is
# clicked at its part that is in sight.
check_place() {
    step "$1"
    put_button "$2" "$3"
    free_area=$(free_area_of "$monitor")
    move_mouse_into_button "$2" "$3"
    xdotool click 1
    expect_state popup popup
    expect_popup_beside "$2" "$3" "${button[@]}"
    wait_until "the window system has the popup at $answer" has_window_at "$answer"
    place popup
    monitor=$(monitor_at $((x + 400)) $((y + 300)))
    move_mouse $((x + 600)) $((y + 560))
    xdotool click 1
    expect_state popup/lwRecentList popup
    close_popup
    passed
}

has_window_at() {
    local id
    id=$(xdotool getactivewindow)
    [[ $(xwininfo -id "$id" | awk '/Absolute|Width|Height/ { print $NF }' | xargs) == "$1" ]]
}

move_mouse_into_button() {
    local left=$1 top=$2 right=$(($1 + button[0] - 1)) bottom=$(($2 + button[1] - 1))
    ((left >= 0)) || left=0
    ((top >= 0)) || top=0
    ((right < screen_width)) || right=$((screen_width - 1))
    ((bottom < screen_height)) || bottom=$((screen_height - 1))
    xdotool mousemove $(((left + right) / 2)) $(((top + bottom) / 2))
}

# monitor_at X Y: the one that has the point, else that which the popup was on.
monitor_at() {
    local left top wide high
    while read -r left top wide high; do
        if (($1 >= left && $1 < left + wide && $2 >= top && $2 < top + high)); then
            echo "$left $top $wide $high"
            return
        fi
    done < <(printf '%s\n' "${monitors[@]}")
    echo "$monitor"
}

# free_area_of X Y WIDTH HEIGHT: what the panel leaves of the monitor.
free_area_of() {
    local left top wide high from_left from_right from_top from_bottom
    read -r left top wide high <<<"$*"
    read -r from_left from_right from_top from_bottom <<<"$panel"
    local right=$((left + wide)) bottom=$((top + high))
    from_right=$((screen_width - from_right))
    from_bottom=$((screen_height - from_bottom))
    ((left > from_left)) || left=$from_left
    ((top > from_top)) || top=$from_top
    ((right < from_right)) || right=$from_right
    ((bottom < from_bottom)) || bottom=$from_bottom
    echo "$left $top $((right - left)) $((bottom - top))"
}

# --- The screen --------------------------------------------------------------------------------

# use_screen WIDTH HEIGHT [MONITOR...]: with these monitors, given as "x y width height".
use_screen() {
    local number=0
    stop_screen
    screen_width=$1
    screen_height=$2
    shift 2
    monitors=("$@")
    (($#)) || monitors=("0 0 $screen_width $screen_height")
    monitor=${monitors[0]}
    panel="0 0 0 0"
    start_screen
    for ((number = 0; number < $#; ++number)); do
        set_monitor "$number" "${monitors[number]}"
    done
    start_host
    measure_the_host
    expect_free_area "${monitors[@]}"
}

# set_monitor NUMBER AREA
set_monitor() {
    local left top wide high output=none
    read -r left top wide high <<<"$2"
    (($1)) || output=screen
    xrandr --setmonitor "monitor$1" "$wide/300x$high/300+$left+$top" "$output" >/dev/null
}

# What Qt believes that the monitor with the host's window leaves to windows.
expect_free_area() {
    free_area=$(free_area_of "$(monitor_at 200 200)")
    wait_until "the free area is $free_area" has_free_area
}

has_free_area() {
    ask area host
    [[ $answer == "$free_area" ]]
}

# start_panel: a window that the window manager takes for a panel.
start_panel() {
    start_other_window
    panel_window=$(xdotool search --onlyvisible --name 'Event Tester')
    xdotool windowunmap --sync "$panel_window"
    xprop -id "$panel_window" -f _NET_WM_WINDOW_TYPE 32a \
        -set _NET_WM_WINDOW_TYPE _NET_WM_WINDOW_TYPE_DOCK
    xdotool windowmap --sync "$panel_window"
}

# put_panel LEFT RIGHT TOP BOTTOM: it takes so much of these edges of the screen; one of them, and no
# less than the window can be made.
put_panel() {
    panel="$*"
    local right_end=$((screen_width - 1)) bottom_end=$((screen_height - 1))
    local strut="$1, $2, $3, $4, 0, $bottom_end, 0, $bottom_end, 0, $right_end, 0, $right_end"
    local left=0 top=0 wide=$screen_width high=$screen_height
    (($1 == 0)) || wide=$1
    (($2 == 0)) || left=$((screen_width - $2)) wide=$2
    (($3 == 0)) || high=$3
    (($4 == 0)) || top=$((screen_height - $4)) high=$4
    xprop -id "$panel_window" -f _NET_WM_STRUT_PARTIAL 32c -set _NET_WM_STRUT_PARTIAL "$strut"
    xdotool windowsize "$panel_window" "$wide" "$high" windowmove "$panel_window" "$left" "$top"
    expect_free_area
}

# --- The places --------------------------------------------------------------------------------

# check_quadrants NAME
check_quadrants() {
    check_place "$1-upper-left" 150 150
    check_place "$1-upper-right" $((screen_width - 400)) 150
    check_place "$1-lower-left" 150 $((screen_height - 150))
    check_place "$1-lower-right" $((screen_width - 400)) $((screen_height - 150))
}

# check_edges NAME: at the edges of the screen and partly beyond them, and on both sides of the lines
# between the halves.
check_edges() {
    local right=$((screen_width - button[0])) bottom=$((screen_height - button[1]))
    check_place "$1-left-edge" 0 300
    check_place "$1-right-edge" "$right" 300
    check_place "$1-top-edge" 300 0
    check_place "$1-bottom-edge" 300 "$bottom"
    check_place "$1-upper-left-corner" 0 0
    check_place "$1-lower-right-corner" "$right" "$bottom"
    check_place "$1-beyond-the-left-edge" -100 300
    check_place "$1-beyond-the-right-edge" $((right + 100)) 300
    check_place "$1-beyond-the-bottom-edge" 300 $((bottom + 10))
    check_place "$1-last-of-the-left-half" $((screen_width / 2)) 200
    check_place "$1-first-of-the-right-half" $((screen_width / 2 + 1)) 200
    check_place "$1-last-of-the-upper-half" 300 $((screen_height / 2 - button[1] + 1))
    check_place "$1-first-of-the-lower-half" 300 $((screen_height / 2 - button[1] + 2))
}

# open_beside_a_panel NAME
open_beside_a_panel() {
    start_panel
    put_panel 0 0 80 0
    check_quadrants "$1-panel-at-the-top"
    put_panel 0 0 0 100
    check_quadrants "$1-panel-at-the-bottom"
    put_panel 140 0 0 0
    check_quadrants "$1-panel-at-the-left"
    put_panel 0 90 0 0
    check_quadrants "$1-panel-at-the-right"
}

# check_monitor NAME AREA: the four quadrants of the monitor, twice, since the popup goes by the
# monitor that it was last on.
check_monitor() {
    local left top wide high round
    read -r left top wide high <<<"$2"
    for round in first second; do
        check_place "$1-$round-upper-left" $((left + 50)) $((top + 150))
        check_place "$1-$round-upper-right" $((left + wide - 300)) $((top + 150))
        check_place "$1-$round-lower-left" $((left + 50)) $((top + high - 100))
        check_place "$1-$round-lower-right" $((left + wide - 300)) $((top + high - 100))
    done
}

open_at_many_places() {
    use_screen 1280 800
    check_quadrants small
    check_edges small
    open_beside_a_panel small
    use_screen 2600 1600
    check_quadrants large
    check_edges large
    open_beside_a_panel large
    use_screen 2800 1300 "0 0 1280 1024" "1280 0 1520 1300"
    check_monitor left-monitor "${monitors[0]}"
    check_monitor right-monitor "${monitors[1]}"
    use_screen 1600 2000 "0 0 1280 800" "0 800 1600 1200"
    check_monitor upper-monitor "${monitors[0]}"
    check_monitor lower-monitor "${monitors[1]}"
}
