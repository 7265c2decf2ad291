# shellcheck shell=bash disable=SC2034,SC2154
# The windows at several scale factors, with a picture of each.

# use_scale PERCENT: a screen that is as large for the host as any other.
use_scale() {
    stop_screen
    scale_percent=$1
    export QT_SCALE_FACTOR=$((scale_percent / 100)).$((scale_percent % 100))
    screen_width=$(device_pixels 1280)
    screen_height=$(device_pixels 800)
    free_area="0 0 1280 800"
    settings=$work/settings-$1
    start_screen
    start_host
    move_host 20 40
}

# picture NAME WINDOW: a check of its own.
picture() {
    step "$1-at-$scale_percent-percent"
    place "$2"
    take_picture "$pictures/$1-$scale_percent.png" "$x" "$y" "$width" "$height"
    passed
}

# The outermost pixels of the device belong to the frame on every side.
expect_whole_frame() {
    local left top right bottom point
    place popup
    left=$(device_pixels "$x")
    top=$(device_pixels "$y")
    right=$((left + $(device_pixels "$width") - 1))
    bottom=$((top + $(device_pixels "$height") - 1))
    for point in "$left $((top + 400))" "$right $((top + 400))" "$((left + 400)) $top" \
        "$((left + 400)) $bottom"; do
        read -r x y <<<"$point"
        wait_until "the frame is painted at $point" has_colour "$x" "$y" 188,188,188
    done
}

look_at_the_popup() {
    open_popup
    place button/pick
    expect_popup_beside "$x" "$y" "$width" "$height"
    expect_whole_frame
    show_tab Video
    find_row popup/row/ListFormat "HD 1080P"
    hover "$row_path"
    expect_icon "$action_path"
    picture popup popup
    click popup/search
    type_text 720p
    expect_rows popup/row/ListFormat "HD 720P"
    hover popup/row/ListFormat/0
    expect_icon popup/action/ListFormat/0
}

look_at_the_dialog() {
    click popup/action/ListFormat/0
    expect_state dialog/cmbVEncoder dialog
    expect_width dialog 540
    expect_height dialog 320
    picture dialog dialog
    click dialog/btnSaveNewPreset
    expect_state prompt/search dialog prompt
    picture prompt prompt
}

# Every click has its right place at every scale.
use_what_was_made() {
    step "custom-preset-at-$scale_percent-percent"
    press Return
    expect_state dialog/btnSaveNewPreset dialog
    click dialog/btnSave
    expect_state host/btnPick
    passed "choice: MP4 / HD 720P"
    open_popup
    show_tab Custom
    hover popup/row/ListFormat/0
    expect_icon popup/action/ListFormat/0
    picture custom popup
    click popup/action/ListFormat/0
    expect_gone popup/row/ListFormat/0
    show_tab Recent
    hover popup/row/lwRecentList/0
    expect_icon popup/action/lwRecentList/0
    picture recent popup
    close_popup
}

look_at_the_scales() {
    local percent
    for percent in 100 150 200 300; do
        use_scale "$percent"
        look_at_the_popup
        look_at_the_dialog
        use_what_was_made
    done
    unset QT_SCALE_FACTOR
}
