#include "TestCase.h"

#include "EditingDriver.h"
#include "SampleFormat.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QProxyStyle>
#include <QTextDocument>

using namespace Test;
using Orlimo::RPFmtEditingDlg;

namespace {

// Wants other margins around a layout than any style does.
class WideStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutLeftMargin:
            return 31;
        case PM_LayoutTopMargin:
            return 32;
        case PM_LayoutRightMargin:
            return 33;
        case PM_LayoutBottomMargin:
            return 34;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

RPFmtEditingDlg *Dialog()
{
    return RPFmtEditingDlg::Instance();
}

template<class Object>
Object *Find(const QString &name)
{
    return Dialog()->findChild<Object *>(name);
}

// What a tool tip with the text shows.
QString ShownInToolTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

bool DefaultHeightForWidth(const QWidget &widget)
{
    if (qobject_cast<const QGroupBox *>(&widget))
        return QGroupBox().sizePolicy().hasHeightForWidth();
    if (qobject_cast<const QLabel *>(&widget))
        return QLabel().sizePolicy().hasHeightForWidth();
    return QComboBox().sizePolicy().hasHeightForWidth();
}

} // namespace

class tst_RPFmtEditingDlgLook : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAndPolicies_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSizePolicy>("policy");
        QTest::addColumn<QSize>("minimum");
        QTest::addColumn<QSize>("maximum");
        const QSize unlimited(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        QSizePolicy stretched(QSizePolicy::Preferred, QSizePolicy::Preferred);
        stretched.setVerticalStretch(1);
        const QSizePolicy fixed(QSizePolicy::Fixed, QSizePolicy::Fixed);
        const QSizePolicy fixedWidth(QSizePolicy::Fixed, QSizePolicy::Preferred);
        const auto add = [&](const char *name, QSizePolicy policy, QSize minimum, QSize maximum) {
            QTest::newRow(name) << QString::fromLatin1(name) << policy << minimum << maximum;
        };
        add("grpVideo", stretched, { 0, 0 }, unlimited);
        add("grpAudio", stretched, { 0, 0 }, unlimited);
        add("lblVEncoder", fixed, { 125, 0 }, unlimited);
        add("lblResolution", fixedWidth, { 80, 0 }, unlimited);
        add("lblFrameRate", fixedWidth, { 125, 0 }, unlimited);
        add("lblVQuality", fixedWidth, { 80, 0 }, unlimited);
        add("lblAEncoder", fixed, { 125, 0 }, unlimited);
        add("lblChannel", fixed, { 80, 0 }, unlimited);
        add("lblSampleRate", fixed, { 125, 0 }, unlimited);
        add("lblAQuality", fixed, { 80, 0 }, unlimited);
        for (const char *combo : { "cmbVEncoder", "cmbResolution", "cmbFrameRate", "cmbVQuality",
                                   "cmbAEncoder", "cmbChannel", "cmbSampleRate", "cmbAQuality" })
            add(combo, fixed, { 100, 0 }, { 100, 16777215 });
    }

    void sizesAndPolicies()
    {
        QFETCH(const QString, name);
        QFETCH(const QSizePolicy, policy);
        const auto *widget = Find<QWidget>(name);
        const QSizePolicy actual = widget->sizePolicy();
        QCOMPARE(actual.horizontalPolicy(), policy.horizontalPolicy());
        QCOMPARE(actual.verticalPolicy(), policy.verticalPolicy());
        QCOMPARE(actual.horizontalStretch(), policy.horizontalStretch());
        QCOMPARE(actual.verticalStretch(), policy.verticalStretch());
        QCOMPARE(actual.hasHeightForWidth(), DefaultHeightForWidth(*widget));
        QTEST(widget->minimumSize(), "minimum");
        QTEST(widget->maximumSize(), "maximum");
    }

    void fiveLabelsAlwaysRunFromLeftToRight_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isSet");
        const auto add = [](const char *name, bool isSet) {
            QTest::newRow(name) << QString::fromLatin1(name) << isSet;
        };
        add("lblVEncoder", true);
        add("lblResolution", false);
        add("lblFrameRate", false);
        add("lblVQuality", false);
        add("lblAEncoder", true);
        add("lblChannel", true);
        add("lblSampleRate", true);
        add("lblAQuality", true);
    }

    void fiveLabelsAlwaysRunFromLeftToRight()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, isSet);
        const auto *label = Find<QLabel>(name);
        QCOMPARE(label->testAttribute(Qt::WA_SetLayoutDirection), isSet);
        QCOMPARE(label->layoutDirection(), Qt::LeftToRight);
        Dialog()->setLayoutDirection(Qt::RightToLeft);
        const auto direction = label->layoutDirection();
        Dialog()->unsetLayoutDirection();
        QCOMPARE(direction, isSet ? Qt::LeftToRight : Qt::RightToLeft);
    }

    void fontsAreSetOnFiveWidgets_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("family");
        QTest::addColumn<int>("size"); // 0: the default
        const auto a = QStringLiteral("Microsoft New Tai Lue");
        const auto b = QStringLiteral("Microsoft JhengHei UI");
        QTest::newRow("video") << QStringLiteral("grpVideo") << a << 10;
        QTest::newRow("audio") << QStringLiteral("grpAudio") << a << 10;
        QTest::newRow("save as new") << QStringLiteral("btnSaveNewPreset") << a << 10;
        QTest::newRow("cancel") << QStringLiteral("btnCancel") << b << 0;
        QTest::newRow("save") << QStringLiteral("btnSave") << b << 0;
    }

    void fontsAreSetOnFiveWidgets()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, family);
        QFETCH(const int, size);
        const auto *widget = Find<QWidget>(name);
        QVERIFY(widget->testAttribute(Qt::WA_SetFont));
        QCOMPARE(widget->font().families(), QStringList { family });
        QCOMPARE(widget->font().pointSize(), size ? size : QPushButton().font().pointSize());
        QCOMPARE(bool(widget->font().resolveMask() & QFont::SizeResolved), size != 0);
    }

    void otherWidgetsInheritTheirFonts()
    {
        for (const auto *widget : Dialog()->findChildren<QWidget *>()) {
            if (!qobject_cast<const QLabel *>(widget) && !qobject_cast<const QComboBox *>(widget))
                continue;
            QVERIFY2(!widget->testAttribute(Qt::WA_SetFont), qPrintable(widget->objectName()));
            QCOMPARE(widget->font().families(),
                     QStringList { QStringLiteral("Microsoft New Tai Lue") });
            QCOMPARE(widget->font().pointSize(), 10);
        }
        const auto *reset = Find<QPushButton>(QStringLiteral("btnDefault"));
        QVERIFY(!reset->testAttribute(Qt::WA_SetFont));
        QCOMPARE(reset->font(), QPushButton().font());
    }

    void everyLayoutHasTheSameSpacing()
    {
        const auto layouts = Dialog()->findChildren<QLayout *>();
        QCOMPARE(layouts.size(), 12);
        for (const QLayout *layout : layouts) {
            QCOMPARE(layout->spacing(), 6);
            if (const auto *grid = qobject_cast<const QGridLayout *>(layout)) {
                QCOMPARE(grid->horizontalSpacing(), 6);
                QCOMPARE(grid->verticalSpacing(), 6);
            }
        }
    }

    void onlyTheLeftMarginOfTheGridsIsTheirOwn()
    {
        const QString style = QApplication::style()->name();
        QApplication::setStyle(new WideStyle);
        const auto outer = Find<QLayout>(QStringLiteral("verticalLayout"))->contentsMargins();
        const auto video = Find<QLayout>(QStringLiteral("gridLayout_2"))->contentsMargins();
        const auto audio = Find<QLayout>(QStringLiteral("gridLayout"))->contentsMargins();
        QApplication::setStyle(style);
        QCOMPARE(outer, QMargins(11, 11, 11, 11));
        QCOMPARE(video, QMargins(15, 32, 33, 34));
        QCOMPARE(audio, QMargins(15, 32, 33, 34));
    }

    void theSizeIsFixed()
    {
        const QSize size(540, 320);
        QCOMPARE(Dialog()->minimumSize(), size);
        QCOMPARE(Dialog()->maximumSize(), size);
        const auto steps = [&size](const EditingDriver &user) {
            QCOMPARE(user.Dialog().size(), size);
            user.Dialog().resize(900, 700);
            QCOMPARE(user.Dialog().size(), size);
            user.Dialog().resize(100, 100);
            QCOMPARE(user.Dialog().size(), size);
            user.Press(Qt::Key_Escape);
        };
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), steps);
    }

    void groupsShareTheHeightEqually()
    {
        const auto steps = [](const EditingDriver &user) {
            const int video = user.Find<QGroupBox>(QStringLiteral("grpVideo")).height();
            const int audio = user.Find<QGroupBox>(QStringLiteral("grpAudio")).height();
            const int buttons =
                    user.Find<QLayout>(QStringLiteral("horizontalLayout_2")).geometry().height();
            QVERIFY2(qAbs(video - audio) <= 1,
                     qPrintable(QStringLiteral("%1 %2").arg(video).arg(audio)));
            QCOMPARE(video + audio, 320 - 2 * 11 - 2 * 6 - buttons);
            user.Press(Qt::Key_Escape);
        };
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), steps);
    }

    void labelsAndCombosKeepToTheLeftOfTheirCells()
    {
        const auto steps = [](const EditingDriver &user) {
            for (const auto *layout : user.Dialog().findChildren<QHBoxLayout *>()) {
                if (layout->count() != 3)
                    continue;
                const QRect label = layout->itemAt(0)->geometry();
                const QRect combo = layout->itemAt(1)->geometry();
                QCOMPARE(label.left(), layout->geometry().left());
                QCOMPARE(combo.left(), label.right() + 1 + 6);
                QVERIFY(layout->geometry().right() >= combo.right());
            }
            user.Press(Qt::Key_Escape);
        };
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), steps);
    }

    void longTextsDoNotWidenTheCombos()
    {
        const auto steps = [](const EditingDriver &user) {
            for (const QString &name : allCombos) {
                const QComboBox &combo = user.Combo(name);
                QVERIFY(combo.fontMetrics().horizontalAdvance(combo.currentText()) > 100);
                QCOMPARE(combo.width(), 100);
            }
            user.Press(Qt::Key_Escape);
        };
        Edit(MakeSamplePreset("Long"), MakeSampleFormat(), steps);
    }

    // The box cuts such a text; a tool tip and the open list show it whole.
    void aLongTextCanBeReadInTheToolTip()
    {
        Edit(MakeSamplePreset("Long"), MakeSampleFormat(), [](const EditingDriver &user) {
            for (const QString &name : allCombos)
                QCOMPARE(user.Combo(name).toolTip(), user.Combo(name).currentText());
            user.Press(Qt::Key_Escape);
        });
        Edit(MakeSamplePreset("Automatic"), MakeSampleFormat(), [](const EditingDriver &user) {
            QCOMPARE(user.Combo(QStringLiteral("cmbResolution")).toolTip(), QString());
            user.Press(Qt::Key_Escape);
        });
    }

    void aTextThatLooksLikeHtmlIsShownAsItStands_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("tag") << QByteArray("<b>x</b>");
        QTest::newRow("picture") << QByteArray("<img src=file:///x.png>");
        QTest::newRow("line break") << QByteArray("one<br>two");
        QTest::newRow("entity") << QByteArray("<p>&amp; &lt;</p>");
        QTest::newRow("spaces") << QByteArray("  <i>a   b</i>");
        QTest::newRow("beyond ASCII") << QByteArray("<u>Größe 小</u>");
    }

    void aTextThatLooksLikeHtmlIsShownAsItStands()
    {
        QFETCH(const QByteArray, text);
        const QString expected = QString::fromUtf8(text);
        QVERIFY(Qt::mightBeRichText(expected));
        const auto preset = MakePresetOf(OneOfEachDescription().replace("Text", text));
        Edit(preset, nullptr, [&expected](const EditingDriver &user) {
            for (const QString &name : allCombos) {
                QCOMPARE(user.Combo(name).currentText(), expected);
                QCOMPARE(ShownInToolTip(user.Combo(name).toolTip()), expected);
            }
            user.Press(Qt::Key_Escape);
        });
    }

    void aPlainTextIsTheToolTipItself_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("ampersand") << QByteArray("Mono & Stereo &amp;");
        QTest::newRow("less than") << QByteArray("rate < 48 kHz");
        QTest::newRow("greater than") << QByteArray("3 > 2 > 1");
    }

    void aPlainTextIsTheToolTipItself()
    {
        QFETCH(const QByteArray, text);
        const auto preset = MakePresetOf(OneOfEachDescription().replace("Text", text));
        Edit(preset, nullptr, [&text](const EditingDriver &user) {
            for (const QString &name : allCombos)
                QCOMPARE(user.Combo(name).toolTip(), QString::fromUtf8(text));
            user.Press(Qt::Key_Escape);
        });
    }

    void theToolTipFollowsTheChoice()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            const auto name = QStringLiteral("cmbVEncoder");
            user.Choose(name, 2);
            QCOMPARE(user.Combo(name).toolTip(), user.Texts(name).at(2));
            user.Press(Qt::Key_Escape);
        });
    }

    void aLongTextCanBeReadInTheOpenList_data()
    {
        QTest::addColumn<QString>("style");
        QTest::newRow("a list beside the box") << QStringLiteral("windows");
        QTest::newRow("a menu over the box") << QStringLiteral("fusion");
    }

    void aLongTextCanBeReadInTheOpenList()
    {
        QFETCH(const QString, style);
        QApplication::setStyle(style);
        Edit(MakeSamplePreset("Long"), MakeSampleFormat(), [](const EditingDriver &user) {
            for (const QString &name : allCombos) {
                QComboBox &combo = user.Combo(name);
                combo.showPopup();
                const QAbstractItemView &list = *combo.view();
                QTRY_VERIFY(list.isVisible());
                const QString text = combo.currentText();
                QVERIFY(list.viewport()->width() >= list.fontMetrics().horizontalAdvance(text));
                combo.hidePopup();
            }
            user.Press(Qt::Key_Escape);
        });
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgLook)

#include "tst_rpfmteditingdlg_look.moc"
