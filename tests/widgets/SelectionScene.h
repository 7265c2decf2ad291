#pragma once

#include "Activity.h"
#include "PopupDriver.h"

#include "RPFmtSelectionDlg.h"

#include <QTest>

namespace Test {

// A host's window and the popup, which is shown and active.
class SelectionScene
{
public:
    static constexpr QRect anchor { 20, 20, 100, 30 };

    SelectionScene()
        : driver(&popup)
    {
        host.resize(200, 100);
        host.show();
        open();
    }

    void open()
    {
        activateHost();
        popup.ShowPopup(counter(), anchor);
        QTRY_VERIFY(IsActive(popup));
    }

    void activateHost()
    {
        host.activateWindow();
        QTRY_VERIFY(IsActive(host));
    }

    Orlimo::RPFmtSelectionDlg::Callback counter()
    {
        return [this](const std::shared_ptr<const Orlimo::IOLFormatPreset> &preset,
                      const std::shared_ptr<const Orlimo::IOLFormatNode> &node) {
            QCOMPARE(bool(preset), bool(node));
            ++(preset ? choices : closings);
        };
    }

    QWidget host;
    Orlimo::RPFmtSelectionDlg popup;
    PopupDriver driver;
    int choices = 0;
    int closings = 0;
};

} // namespace Test
