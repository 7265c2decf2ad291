#pragma once

#include <QStringList>

namespace Bench {

// What is measured in a process of its own: the popup and the data that it shows come into being
// once in a process. A scene is started by these arguments: this one, its name, and its own.
constexpr char sceneArgument[] = "--scene";

// The pickers that a scene is about: the popup, or the bare widgets that it consists of.
constexpr char popupPicker[] = "popup";
constexpr char barePicker[] = "bare";

// Searches a picker and a StockPicker for a key, by turns: the picker, the path of a description,
// the key.
constexpr char searchScene[] = "search";
// Opens a picker for the first time, and a window: the picker, the path, and "window" where that
// comes first.
constexpr char openingScene[] = "opening";
// Opens a picker and a window again, by turns: the picker, the path.
constexpr char reopeningScene[] = "reopening";
// Puts the categories of a description into an open picker: the picker, the path. The popup loads
// it meanwhile. The figures are the longest stalls of the GUI thread beside the insertion of the
// categories, at the insertion, and without a load.
constexpr char loadingScene[] = "loading";

// Prints a line of figures in milliseconds for each round.
void RunScene(const QStringList &arguments);

} // namespace Bench
