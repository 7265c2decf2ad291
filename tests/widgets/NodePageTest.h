#pragma once

#include "RPFmtItemDataWdg.h"
#include "RPFmtNodeWdg.h"
#include "RowClicks.h"
#include "TestCase.h"
#include "TreeBuilder.h"

#include "IOLFormatNode.h"

namespace Test {

inline Orlimo::RPFmtItemDataWdg *RowAt(const QListWidget *list, int index)
{
    return qobject_cast<Orlimo::RPFmtItemDataWdg *>(list->itemWidget(list->item(index)));
}

inline bool Show(Orlimo::RPFmtNodeWdg &page)
{
    page.setGeometry(50, 50, 700, 400);
    page.show();
    return QTest::qWaitForWindowExposed(&page);
}

// A test of the page of a category with three formats, which is made anew for every function.
class NodePageTest : public TestCase
{
protected:
    void prepare() override
    {
        video = MakeCategory("Video",
                             { MakeFormat("MP4", { "HD 1080P", "SD 480P", "mobile" }),
                               MakeFormat("AVI", { "DivX", "Xvid" }),
                               MakeFormat("MKV", { "HD 720P" }) });
    }

    static void compareLists(const Orlimo::RPFmtNodeWdg &page, const QStringList &nodes,
                             const QStringList &presets)
    {
        QCOMPARE(RowTitles(*page.NodeList()), nodes);
        QCOMPARE(RowTitles(*page.FormatList()), presets);
    }

    static void compareCurrentRows(const Orlimo::RPFmtNodeWdg &page, int node, int preset)
    {
        QCOMPARE(page.NodeList()->currentRow(), node);
        QCOMPARE(page.FormatList()->currentRow(), preset);
    }

    std::shared_ptr<Orlimo::IOLFormatNode> video;
};

} // namespace Test
