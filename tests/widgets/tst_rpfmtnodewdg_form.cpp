#include "TestCase.h"

#include "CatalogueBuilder.h"
#include "ListStyleSheets.h"
#include "Pixels.h"
#include "RPFmtNodeWdg.h"
#include "RowClicks.h"
#include "TreeBuilder.h"

#include "IOLFormatNode.h"

#include <QHBoxLayout>
#include <QMetaMethod>

using namespace Orlimo;

namespace {

using namespace Qt::StringLiterals;

QString Text(const QByteArray &text)
{
    return QString::fromLatin1(text);
}

} // namespace

// The page as the form makes it, and how it looks.
class tst_RPFmtNodeWdg_Form : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePageHasItsNameSizeAndTitle()
    {
        const RPFmtNodeWdg page(nullptr);
        QCOMPARE(page.objectName(), u"RPFmtNodeWdgClass"_s);
        QCOMPARE(page.size(), QSize(654, 567));
        QCOMPARE(page.windowTitle(), u"RPFmtNodeWdg"_s);
    }

    void thePageIsAChildOfItsParent()
    {
        QWidget parent;
        const RPFmtNodeWdg page(&parent);
        QCOMPARE(page.parentWidget(), &parent);
        QVERIFY(!page.isWindow());
    }

    void theWindowTitleIsTranslatedInTheContextOfTheForm()
    {
        const Test::InstalledCatalogue catalogue(
                { { "RPFmtNodeWdgClass", "RPFmtNodeWdg", u"Seite"_s } });
        QCOMPARE(RPFmtNodeWdg(nullptr).windowTitle(), u"Seite"_s);
    }

    void theListsStandSideBySideWithoutMargins()
    {
        const RPFmtNodeWdg page(nullptr);
        const auto *layout = qobject_cast<QHBoxLayout *>(page.layout());
        QVERIFY(layout);
        QCOMPARE(layout->objectName(), u"horizontalLayout"_s);
        QCOMPARE(layout->spacing(), 6);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->itemAt(0)->widget(), page.findChild<QListWidget *>(u"ListNode"_s));
        QCOMPARE(layout->itemAt(1)->widget(), page.findChild<QListWidget *>(u"ListFormat"_s));
        QCOMPARE(page.NodeList(), layout->itemAt(0)->widget());
        QCOMPARE(page.FormatList(), layout->itemAt(1)->widget());
    }

    void theNodeListIsAColumnOfFixedWidth()
    {
        const RPFmtNodeWdg page(nullptr);
        const QListWidget *list = page.NodeList();
        QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        policy.setHeightForWidth(QListWidget().sizePolicy().hasHeightForWidth());
        QCOMPARE(list->sizePolicy(), policy);
        QCOMPARE(list->minimumSize(), QSize(240, 0));
        QCOMPARE(list->maximumSize(), QSize(240, 16777215));
        QCOMPARE(list->font().families(), QStringList { u"Microsoft New Tai Lue"_s });
        QCOMPARE(list->font().pointSize(), 10);
    }

    void theFormatListHasNoFontAndLimitsOfItsOwn()
    {
        const RPFmtNodeWdg page(nullptr);
        const QListWidget *list = page.FormatList();
        QVERIFY(!list->testAttribute(Qt::WA_SetFont));
        QCOMPARE(list->minimumSize(), QSize(0, 0));
        QCOMPARE(list->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    void theListsHaveTheirStyleSheets()
    {
        const RPFmtNodeWdg page(nullptr);
        const QByteArray start = QByteArray(Test::RowRules) + Test::FocusRule;
        QCOMPARE(page.NodeList()->styleSheet(), Text(start + '\n' + Test::ScrollBarRules));
        QCOMPARE(page.FormatList()->styleSheet(), Text(start + Test::ScrollBarRules));
    }

    void theListsSelectSingleRows()
    {
        const RPFmtNodeWdg page(nullptr);
        QCOMPARE(page.NodeList()->selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(page.FormatList()->selectionMode(), QAbstractItemView::SingleSelection);
    }

    void theTwoSlotsAreTheOnlyMetaMethods()
    {
        const QMetaObject &meta = RPFmtNodeWdg::staticMetaObject;
        QCOMPARE(meta.className(), "Orlimo::RPFmtNodeWdg");
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
        for (const char *name :
             { "SelectedNodeChanged()", "ListFormatClicked(QListWidgetItem*)" }) {
            const int index = meta.indexOfSlot(name);
            QVERIFY2(index >= meta.methodOffset(), name);
            QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
            QCOMPARE(meta.method(index).returnType(), int(QMetaType::Void));
        }
    }

    void aNewPageIsEmpty()
    {
        RPFmtNodeWdg page(nullptr);
        QCOMPARE(page.NodeList()->count(), 0);
        QCOMPARE(page.FormatList()->count(), 0);
        QVERIFY(!page.formatSelected);
        QVERIFY(!page.formatEditRequested);
        QVERIFY(!page.formatActionRequested);
    }

    void aLineSeparatesTheLists()
    {
        RPFmtNodeWdg page(nullptr);
        page.resize(600, 300);
        const QImage image = Test::GrabOnWhite(page);
        QCOMPARE(page.NodeList()->geometry(), QRect(0, 0, 240, 300));
        QCOMPARE(page.FormatList()->geometry(), QRect(246, 0, 354, 300));
        const QRect gap(240, 0, 6, 300);
        QCOMPARE(Test::InkBox(image, gap), QRect(241, 0, 1, 300));
        QCOMPARE(Test::SolidBox(image.copy(gap), QColor(210, 210, 210)), QRect(1, 0, 1, 300));
    }

    void theSelectedRowsAreShaded()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(Test::MakeCategory("Video",
                                              { Test::MakeFormat("MP4", { "HD", "SD" }),
                                                Test::MakeFormat("AVI", { "HD" }) }),
                           false);
        page.resize(600, 300);
        const QColor shade(227, 229, 229);
        for (QListWidget *list : { page.NodeList(), page.FormatList() }) {
            const QImage image = list->grab().toImage();
            const QRect selected = list->visualItemRect(list->item(0));
            const QRect other = list->visualItemRect(list->item(1));
            QCOMPARE(image.pixelColor(selected.topLeft()), shade);
            QCOMPARE(image.pixelColor(selected.bottomRight()), shade);
            QCOMPARE(image.pixelColor(other.topLeft()), list->palette().color(QPalette::Base));
        }
    }

    void theRowUnderTheMouseIsShaded()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(Test::MakeCategory("Video", { Test::MakeFormat("MP4", { "HD", "SD" }) }),
                           false);
        QCursor::setPos(0, 0);
        page.setGeometry(50, 50, 600, 300);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QListWidget *list = page.FormatList();
        const QPoint corner = list->visualItemRect(list->item(1)).bottomRight();
        QVERIFY(list->grab().toImage().pixelColor(corner) != QColor(227, 229, 229));
        QCursor::setPos(Test::RowOnScreen(*list, 1).center());
        QTRY_COMPARE(list->grab().toImage().pixelColor(corner), QColor(227, 229, 229));
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtNodeWdg_Form)

#include "tst_rpfmtnodewdg_form.moc"
