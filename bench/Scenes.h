#pragma once

#include <QStringList>

namespace Bench {

// What is measured in a process of its own: the popup and the data that it shows come into being
// once in a process. A scene is started by these arguments: this one, its name, and its own.
constexpr char sceneArgument[] = "--scene";

// Searches the popup and a StockPicker for a key, by turns: the path of a description, the key.
constexpr char searchScene[] = "search";
// Opens the popup for the first time, and a window: the path, and "popup" where that comes first.
constexpr char openingScene[] = "opening";
// Opens the popup and a window again, by turns: the path.
constexpr char reopeningScene[] = "reopening";
// Loads a description under the open popup: the path. The figures are the longest stalls of the GUI
// thread beside the insertion of the categories, at the insertion, and without a load.
constexpr char loadingScene[] = "loading";

// Prints a line of figures in milliseconds for each round.
void RunScene(const QStringList &arguments);

} // namespace Bench
