#pragma once

#include <QObject>

#include <memory>

namespace Host {

// Tells a driver that has only mouse and keyboard where to click and what there is to see. It
// answers each line of standard input with a line on standard output and never acts on a widget.
//
//   where PATH     "= x y width height" on the screen, or "= none"
//   visible PATH   "= yes" or "= no"
//   text PATH      "= " and the text, or "= none"
//   focus          "= " and the path of the widget that has the focus, or "= none"
//   menu           "= yes" or "= no": whether a menu or the list of a combo box is open
//   area WINDOW    "= x y width height" of what the window's screen leaves to windows, or "= none"
//
//   PATH is a window (host, output, popup, dialog, prompt) or one of
//   button/NAME           the button btnName in any window
//   WINDOW/OBJECT         the widget of that object name
//   WINDOW/search         the line edit
//   WINDOW/tab            the current tab
//   WINDOW/tab/TEXT       the tab of that text
//   WINDOW/tabAt/N        the tab N, from 0 on
//   WINDOW/menu/N         the title N of the menu bar
//   menu/TEXT             the entry of that text in the open menu
//   WINDOW/row/LIST/N     the whole row N, from 0 on
//   WINDOW/action/LIST/N  the box of that row's action icon
//   WINDOW/cell/TABLE/N/M the cell in row N and column M
class WidgetLocator final : public QObject
{
    Q_OBJECT

public:
    WidgetLocator();
    ~WidgetLocator() override;

private:
    class Receiver;

    std::shared_ptr<Receiver> m_receiver;
};

} // namespace Host
