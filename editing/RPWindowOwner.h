#pragma once

class QWidget;

namespace Orlimo {

// The picker's windows have no parent, but they have to get along with the windows of the host.

// Makes a popup that is about to open belong to the modal dialog that is open, if any, so that it
// takes input in spite of it. Remembers the window that was active.
void PlaceAboveModalWindow(QWidget &window);

// Puts a modal window that is about to open above the window that the user is working in, so that
// it cannot get lost behind it. Where no window of the application is active, as when the popup has
// just been hidden, the window counts that was active when the popup last opened.
void PlaceAboveActiveWindow(QWidget &window);

} // namespace Orlimo
