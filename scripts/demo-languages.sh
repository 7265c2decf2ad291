# shellcheck shell=bash disable=SC2154
# The example host in other languages: what follows a change of language, and every window in one.

# --- A change of language while the host runs ---------------------------------------------------

# Rows follow at their next painting, the dialog at its next opening, tabs and search box at the next
# start of the host.
change_the_language() {
    step language-before-the-popup
    start_host
    click host/menu/0
    click menu/Français
    expect_text host/btnPick "Choisir le format…"
    expect_gone host/lblNote
    click host/menu/0
    click menu/English
    expect_text host/btnPick "Choose format…"
    finish

    step language-menu
    open_popup
    click_title host
    expect_gone popup
    click host/menu/0
    expect_shown menu/Deutsch
    finish "choice: none"

    step language-changed
    click menu/Deutsch
    expect_gone menu/Deutsch
    click host/menu/0
    click menu/English
    expect_text host/btnPick "Choose format…"
    expect_gone host/lblNote
    click host/menu/0
    click menu/Deutsch
    expect_text host/btnPick "Format wählen …"
    expect_shown host/lblNote
    finish

    step language-of-the-rows
    open_popup
    click popup/tab/Audio
    expect_text popup/row/ListFormat/0 Beste
    expect_text popup/tabAt/3 Device
    finish

    step language-of-the-dialog
    click popup/tab/Video
    hover popup/row/ListFormat/0
    click popup/action/ListFormat/0
    expect_text dialog Einstellungen
    expect_text dialog/lblResolution Auflösung
    finish

    step language-of-the-prompt
    click dialog/btnSaveNewPreset
    expect_text prompt "Als neue Vorgabe speichern"
    finish

    step language-kept
    press Escape
    expect_gone prompt
    press Escape
    expect_gone dialog
    close_host
    start_host
    click button/pick
    expect_text popup/tabAt/3 Geräte
    expect_text popup/tabAt/0 "Zuletzt verwendet"
    finish "choice: none"

    click_title host
    expect_gone popup
    close_host
    expected+=("choice: none")
}

# The host's button that opens the picker.
declare -A pick_texts=([en]="Choose format…" [de]="Format wählen …" [es]="Elegir formato…"
    [fr]="Choisir le format…" [it]="Scegli formato…" [pt]="Escolher formato…" [ja]="形式を選択…")

# --- Every window ------------------------------------------------------------------------------

# show_every_window LANGUAGE
show_every_window() {
    start_host "$1"
    expect_text host/btnPick "${pick_texts[$1]}"
    look_at_the_popup
    look_at_the_dialog
    look_at_the_presets_made
    look_at_the_host
    close_host
}

look_at_the_popup() {
    local tab names=(recent video audio device web-video custom)
    step host
    expect_text host/lblName MP4
    finish

    click button/pick
    expect_shown popup/tabAt/5
    for tab in 1 2 3 4 5 0; do
        step "popup-${names[tab]}"
        click "popup/tabAt/$tab"
        expect_current_tab "$tab"
        finish
    done
}

# expect_current_tab N
expect_current_tab() {
    ask text "popup/tabAt/$1"
    expect_text popup/tab "$answer"
}

look_at_the_dialog() {
    step popup-hover
    click popup/tabAt/1
    expect_text popup/row/ListNode/0 MP4
    hover popup/row/ListFormat/1
    expect_icon popup/action/ListFormat/1
    finish

    step dialog
    click popup/action/ListFormat/1
    expect_shown dialog
    finish

    step dialog-list
    click dialog/cmbVQuality
    finish

    step prompt
    press Escape
    click dialog/btnSaveNewPreset
    expect_shown prompt
    finish
}

# The prompt proposes a name that is free.
look_at_the_presets_made() {
    step saved
    press Return
    expect_gone prompt
    click dialog/btnSave
    expect_gone dialog
    finish "choice: MP4 / Same as source"

    step popup-recent-filled
    click button/pick
    expect_shown popup
    click popup/tabAt/0
    expect_shown popup/row/lwRecentList/0
    finish

    step popup-custom-filled
    click popup/tabAt/5
    expect_shown popup/row/ListFormat/0
    finish

    step popup-closed
    click_title host
    expect_gone popup
    finish "choice: none"
}

look_at_the_host() {
    step output
    click button/pickInDialog
    expect_shown output
    finish

    step language-menu
    click button/close
    expect_gone output
    click host/menu/0
    expect_shown menu/English
    finish

    press Escape
}
