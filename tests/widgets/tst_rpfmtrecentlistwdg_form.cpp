#include "TestCase.h"

#include "CatalogueBuilder.h"
#include "ListStyleSheets.h"
#include "RPFmtRecentListWdg.h"

#include <QHBoxLayout>
#include <QMetaMethod>

using namespace Orlimo;

namespace {

using namespace Qt::StringLiterals;

} // namespace

// The page as the form makes it.
class tst_RPFmtRecentListWdg_Form : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePageHasItsNameSizeAndTitle()
    {
        QWidget parent;
        const RPFmtRecentListWdg page(&parent);
        QCOMPARE(page.parentWidget(), &parent);
        QCOMPARE(page.objectName(), u"RPFmtRecentListWdgClass"_s);
        QCOMPARE(page.size(), QSize(600, 400));
        QCOMPARE(page.windowTitle(), u"RPFmtRecentListWdg"_s);
    }

    void theWindowTitleIsTranslatedInTheContextOfTheForm()
    {
        const Test::InstalledCatalogue catalogue(
                { { "RPFmtRecentListWdgClass", "RPFmtRecentListWdg", u"Zuletzt"_s } });
        QCOMPARE(RPFmtRecentListWdg(nullptr).windowTitle(), u"Zuletzt"_s);
    }

    void theListFillsThePage()
    {
        const RPFmtRecentListWdg page(nullptr);
        const auto *layout = qobject_cast<QHBoxLayout *>(page.layout());
        QVERIFY(layout);
        QCOMPARE(layout->objectName(), u"horizontalLayout"_s);
        QCOMPARE(layout->spacing(), 6);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->itemAt(0)->widget(), page.findChild<QListWidget *>(u"lwRecentList"_s));
        QCOMPARE(page.List(), layout->itemAt(0)->widget());
    }

    void theListHasItsFontAndStyleSheet()
    {
        const RPFmtRecentListWdg page(nullptr);
        QCOMPARE(page.List()->font().families(), QStringList { u"Microsoft New Tai Lue"_s });
        QCOMPARE(page.List()->font().pointSize(), 10);
        const QByteArray sheet = QByteArray(Test::RowRules) + '\n' + Test::ScrollBarRules;
        QCOMPARE(page.List()->styleSheet(), QString::fromLatin1(sheet));
    }

    void theListSelectsSingleRows()
    {
        const RPFmtRecentListWdg page(nullptr);
        QCOMPARE(page.List()->selectionMode(), QAbstractItemView::SingleSelection);
    }

    void theSlotIsTheOnlyMetaMethod()
    {
        const QMetaObject &meta = RPFmtRecentListWdg::staticMetaObject;
        QCOMPARE(meta.className(), "Orlimo::RPFmtRecentListWdg");
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const int index = meta.indexOfSlot("ListRecentClicked(QListWidgetItem*)");
        QCOMPARE(index, meta.methodOffset());
        QCOMPARE(meta.method(index).returnType(), int(QMetaType::Void));
    }

    void aNewPageIsEmpty()
    {
        const RPFmtRecentListWdg page(nullptr);
        QCOMPARE(page.List()->count(), 0);
        QVERIFY(!page.recentSelected);
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtRecentListWdg_Form)

#include "tst_rpfmtrecentlistwdg_form.moc"
