# shellcheck shell=bash disable=SC2154
# Every way of using the popup and the dialog beside another application's window.

# use NAME: opens the popup, which the check before has closed, and runs the check of that name.
use() {
    step "${1//_/-}"
    open_popup
    show_tab Video
    expect_state popup popup
    "$1"
}

# --- Inside the popup --------------------------------------------------------------------------

click_a_row() {
    click_row popup/row/ListFormat "HD 1080P"
    expect_state host/btnPick
    passed "choice: MP4 / HD 1080P"
}

# The first click hides the popup, the second falls on the host's window behind it.
double_click_a_row() {
    find_row popup/row/ListFormat "QHD 1440P"
    place "$row_path"
    move_mouse $((x + 20)) $((y + height / 2))
    xdotool click --repeat 2 --delay 60 1
    expect_state host/btnPick
    passed "choice: MP4 / QHD 1440P"
}

click_a_row_of_recent_choices() {
    show_tab Recent
    expect_rows popup/row/lwRecentList "MP4 QHD 1440P" "MP4 HD 1080P"
    click_row popup/row/lwRecentList "MP4 HD 1080P"
    expect_state host/btnPick
    passed "choice: MP4 / HD 1080P"
}

click_a_trash_icon_of_recent_choices() {
    show_tab Recent
    expect_rows popup/row/lwRecentList "MP4 HD 1080P" "MP4 QHD 1440P"
    hover popup/row/lwRecentList/1
    expect_icon popup/action/lwRecentList/1
    click popup/action/lwRecentList/1
    expect_rows popup/row/lwRecentList "MP4 HD 1080P"
    expect_state popup/lwRecentList popup
    passed
    close_popup
}

click_a_format() {
    click_row popup/row/ListNode "HEVC MP4"
    expect_text popup/row/ListFormat/1 "8K UHD 4320P"
    expect_state popup/ListNode popup
    passed
    close_popup
}

type_in_the_search_box() {
    click popup/search
    type_text 720p
    expect_rows popup/row/ListFormat "HD 720P"
    expect_state popup/search popup
    click_row popup/row/ListFormat "HD 720P"
    expect_state host/btnPick
    passed "choice: MP4 / HD 720P"
}

right_click_in_the_search_box() {
    click popup/search
    type_text 720p
    hover popup/search
    xdotool click 3
    expect_rows popup/row/ListFormat "HD 720P"
    expect_state popup/search popup
    passed
    close_popup
}

switch_tabs_by_mouse() {
    local tab
    click popup/search
    type_text a
    expect_text popup/search a
    for tab in Audio Device "Web Video" Custom Recent Video; do
        show_tab "$tab"
        expect_text popup/search ""
        expect_state popup popup
    done
    passed
    close_popup
}

scroll_by_wheel() {
    hover popup/row/ListNode/3
    xdotool click --repeat 3 --delay 30 5
    expect_gone popup/row/ListNode/0
    expect_text popup/row/ListNode/13 WebM
    expect_state popup popup
    click popup/row/ListNode/13
    expect_state popup/ListNode popup
    click_row popup/row/ListFormat "HD 1080P"
    expect_state host/btnPick
    passed "choice: WebM / HD 1080P"
}

switch_tabs_by_wheel() {
    hover popup/tab/Video
    xdotool click 5
    expect_text popup/tab Audio
    xdotool click 4
    expect_text popup/tab Video
    expect_state popup popup
    passed
    close_popup
}

# --- Ways out of the popup ---------------------------------------------------------------------

# drag_out PATH: presses the button there and lets it go on the other application's window.
drag_out() {
    hover "$1"
    xdotool mousedown 1 mousemove_relative 20 15 mousemove_relative 20 15
    xdotool mousemove 860 400 mousemove 1140 680 mouseup 1
}

drag_a_row_out() {
    find_row popup/row/ListFormat "SD 480P"
    drag_out "$row_path"
    expect_state popup/ListFormat popup
    passed
    close_popup
}

drag_from_the_search_box() {
    click popup/search
    type_text 720p
    drag_out popup/search
    expect_text popup/search 720p
    expect_state popup/search popup
    passed
    close_popup
}

click_another_window() {
    xdotool mousemove 1140 680 click 1
    expect_state other
    passed "choice: none"
}

click_the_desktop() {
    xdotool mousemove 900 100 click 1
    expect_state desktop
    passed "choice: none"
}

click_the_host() {
    click_title host
    expect_state host/btnPick
    passed "choice: none"
}

press_tab() {
    press Tab
    expect_state host/btnPick
    passed "choice: none"
}

press_tab_in_a_list() {
    click_row popup/row/ListNode MKV
    expect_state popup/ListNode popup
    press Tab
    expect_state host/btnPick
    passed "choice: none"
}

press_tab_in_the_search_box() {
    click popup/search
    type_text 1080
    press shift+Tab
    expect_state host/btnPick
    passed "choice: none"
}

# The window manager goes through the windows in the order in which they were last used.
switch_windows_to_the_host() {
    xdotool keydown alt key Tab keyup alt
    expect_state host/btnPick
    passed "choice: none"
}

switch_windows_to_another() {
    xdotool keydown alt key Tab key Tab keyup alt
    expect_state other
    passed "choice: none"
}

# The window manager takes the focus as soon as it shows the windows there are.
think_better_of_switching_windows() {
    xdotool keydown alt key Tab
    expect_gone popup
    xdotool key Escape keyup alt
    expect_state host/btnPick
    passed "choice: none"
}

close_with_the_key_of_the_window_manager() {
    xdotool key alt+F4
    expect_state host/btnPick
    passed "choice: none"
}

use_the_popup() {
    local check
    start_host
    start_other_window
    move_host 20 40
    for check in click_a_row double_click_a_row click_a_row_of_recent_choices \
        click_a_trash_icon_of_recent_choices click_a_format type_in_the_search_box \
        right_click_in_the_search_box switch_tabs_by_mouse scroll_by_wheel switch_tabs_by_wheel \
        drag_a_row_out drag_from_the_search_box click_another_window click_the_desktop \
        click_the_host press_tab press_tab_in_a_list press_tab_in_the_search_box \
        switch_windows_to_the_host switch_windows_to_another think_better_of_switching_windows \
        close_with_the_key_of_the_window_manager; do
        use "$check"
    done
}

# --- The dialog --------------------------------------------------------------------------------

# open_dialog PRESET: by the settings icon.
open_dialog() {
    find_row popup/row/ListFormat "$1"
    hover "$row_path"
    expect_icon "$action_path"
    click "$action_path"
    expect_state dialog/cmbVEncoder dialog
    expect_choice
}

save_in_the_dialog() {
    open_dialog "HD 720P"
    click dialog/btnSave
    expect_state host/btnPick
    passed "choice: MP4 / HD 720P"
}

cancel_the_dialog() {
    open_dialog "HD 720P"
    click dialog/btnCancel
    expect_state host/btnPick
    passed "choice: none"
}

press_escape_in_the_dialog() {
    open_dialog "SD 480P"
    press Escape
    expect_state host/btnPick
    passed "choice: none"
}

# The window manager has the button at the right end of the title bar.
close_the_dialog_by_its_window_button() {
    open_dialog "SD 480P"
    place dialog
    xdotool mousemove $((x + width - 10)) $((y - 10)) click 1
    expect_state host/btnPick
    passed "choice: none"
}

leave_the_dialog_for_another_window() {
    open_dialog "SD 480P"
    xdotool mousemove 1140 680 click 1
    expect_state other dialog
    expect_choice
    click_title dialog
    expect_state dialog/cmbVEncoder dialog
    press Escape
    expect_state host/btnPick
    passed "choice: none"
}

press_escape_in_the_prompt() {
    open_dialog "SD 360P"
    click dialog/btnSaveNewPreset
    expect_state prompt/search dialog prompt
    press Escape
    expect_state dialog/btnSaveNewPreset dialog
    press Escape
    expect_state host/btnPick
    passed "choice: none"
}

save_a_preset_of_ones_own() {
    open_dialog "SD 360P"
    click dialog/btnSaveNewPreset
    expect_state prompt/search dialog prompt
    type_text "My tablet"
    press Return
    expect_state dialog/btnSaveNewPreset dialog
    click dialog/btnCancel
    expect_state host/btnPick
    passed "choice: none"
}

click_a_custom_row() {
    show_tab Custom
    expect_rows popup/row/ListFormat "My tablet"
    click_row popup/row/ListFormat "My tablet"
    expect_state host/btnPick
    passed "choice: MP4 / My tablet"
}

click_a_trash_icon_of_custom_presets() {
    show_tab Custom
    expect_rows popup/row/ListFormat "My tablet"
    hover popup/row/ListFormat/0
    expect_icon popup/action/ListFormat/0
    click popup/action/ListFormat/0
    expect_gone popup/row/ListFormat/0
    expect_gone popup/row/ListNode/0
    expect_state popup/ListFormat popup
    passed
    close_popup
}

use_the_dialog() {
    local check
    for check in save_in_the_dialog cancel_the_dialog press_escape_in_the_dialog \
        close_the_dialog_by_its_window_button leave_the_dialog_for_another_window \
        press_escape_in_the_prompt save_a_preset_of_ones_own click_a_custom_row \
        click_a_trash_icon_of_custom_presets click_a_row; do
        use "$check"
    done
}
