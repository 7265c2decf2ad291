#pragma once

#include <functional>

class QIcon;
class QListWidget;
class QString;

namespace Orlimo {

class RPFmtItemDataWdg;

// Sets a list of rows up: one row can be selected, and its scroll bars have no context menu, which
// would take the focus and with it close the popup.
void SetUpRowList(QListWidget &list);

// The action icon in the file.
QIcon ActionIcon(const QString &file);

// Appends count() rows to the list, and asks for their number again after each, which may have
// changed. setUpRow(row, i) gives each its data.
//
// All items are added before the first row widget: a list that gets them by turns lays itself out
// anew for each, which takes time quadratic in the number of rows.
void FillRows(QListWidget &list, const std::function<int()> &count,
              const std::function<void(RPFmtItemDataWdg &row, int index)> &setUpRow);

} // namespace Orlimo
