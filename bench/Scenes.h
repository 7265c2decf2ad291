#pragma once

#include <QStringList>

namespace Bench {

// What is measured or profiled in a process of its own: the popup and the data that it shows come
// into being once in a process. A scene is started by these arguments: this one, its name, and its
// own.
constexpr char sceneArgument[] = "--scene";

// The pickers that a scene is about: the popup, or the bare widgets that it consists of.
constexpr char popupPicker[] = "popup";
constexpr char barePicker[] = "bare";

// Searches a picker and a StockPicker for a key, by turns, after a round that is not printed: the
// picker, the path of a description, the key, the number of rounds.
constexpr char searchScene[] = "search";
// Opens a picker for the first time, and a window: the picker, the path, and "picker" or "window",
// whichever comes first.
constexpr char openingScene[] = "opening";
// Opens a picker and a window again, by turns, after a round that is not printed: the picker, the
// path, the number of rounds.
constexpr char reopeningScene[] = "reopening";
// Puts the categories of a description into an open picker: the picker, the path. The popup loads
// it meanwhile. The figures are the longest stalls of the GUI thread beside the insertion of the
// categories, at the insertion, and without a load.
constexpr char loadingScene[] = "loading";
// Puts the categories of a description that is loaded into an open picker: the picker, the path.
constexpr char insertionScene[] = "insertion";

// Loads a description, and parses it alone, by turns: the path, the number of rounds.
constexpr char loadScene[] = "load";
// Searches the tree of a description for what is not there, and its texts in one vector, by turns:
// the path, the number of rounds.
constexpr char findScene[] = "find";
// Saves every preset of a description as a recent choice, and writes the same bytes, by turns: the
// path, the number of rounds.
constexpr char saveScene[] = "save";

// The keys that are searched for, and how much each finds.
struct Key
{
    const char *text;
    const char *finds;
};

constexpr Key keys[] = { { "#", "all" }, { "%", "1 %" }, { "~", "nothing" } };

// Prints a line of figures for each round, in milliseconds or, in a process that callgrind runs, in
// millions of instructions; stalls are in milliseconds always.
void RunScene(const QStringList &arguments);

} // namespace Bench
