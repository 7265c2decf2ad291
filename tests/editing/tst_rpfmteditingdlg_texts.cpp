#include "TestCase.h"

#include "EditingDriver.h"
#include "MapTranslator.h"
#include "SampleFormat.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>

using namespace Test;
using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;
using Orlimo::RPFmtEditingDlg;

namespace {

const QByteArray formContext = "RPFmtEditingDlgClass";
const QByteArray dialogContext = "Orlimo::RPFmtEditingDlg";
const QByteArray presetContext = "RPObject";

// Collects the titles that the dialog is given.
class TitleSpy : public QObject
{
public:
    TitleSpy() { RPFmtEditingDlg::Instance()->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::WindowTitleChange)
            titles += RPFmtEditingDlg::Instance()->windowTitle();
        return false;
    }

    QStringList titles;
};

void Cancel(const EditingDriver &user)
{
    user.Press(Qt::Key_Escape);
}

std::shared_ptr<IOLFormatNode> NodeCalled(const QByteArray &name)
{
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName(name.toStdString());
    return node;
}

std::shared_ptr<IOLFormatPreset> PresetCalled(const QByteArray &name)
{
    auto preset = MakeSamplePreset("HD");
    preset->SetName(name.toStdString());
    return preset;
}

QString TextOf(const QWidget &widget)
{
    for (const char *property : { "text", "title", "windowTitle" }) {
        const QVariant text = widget.property(property);
        if (!text.toString().isEmpty())
            return text.toString();
    }
    return {};
}

} // namespace

class tst_RPFmtEditingDlgTexts : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // The first of the functions, since the dialog is made once.
    void theNewDialogIsCalledSettingsInItsOwnContext()
    {
        const MapTranslator catalogue(
                { { { dialogContext, "Settings", "" }, QStringLiteral("Réglages") } });
        QCOMPARE(RPFmtEditingDlg::Instance()->windowTitle(), QStringLiteral("Réglages"));
    }

    void setUpComposesATitleThatTheShownDialogDrops_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QString>("composed");
        QTest::newRow("other name")
                << QByteArray("HD") << QByteArray("MP4") << QStringLiteral("Settings - MP4 HD");
        QTest::newRow("the format's name")
                << QByteArray("MP4") << QByteArray("MP4") << QStringLiteral("Settings - MP4");
        QTest::newRow("contains the format")
                << QByteArray("HD MP4") << QByteArray("MP4") << QStringLiteral("Settings - HD MP4");
        QTest::newRow("other letter case")
                << QByteArray("mp4") << QByteArray("MP4") << QStringLiteral("Settings - MP4 mp4");
        QTest::newRow("nameless node")
                << QByteArray("HD") << QByteArray("") << QStringLiteral("Settings - HD");
        QTest::newRow("no node") << QByteArray("HD") << QByteArray()
                                 << QStringLiteral("Settings - HD");
        QTest::newRow("nameless preset")
                << QByteArray("") << QByteArray("MP4") << QStringLiteral("Settings - MP4 ");
        QTest::newRow("beyond ASCII")
                << QByteArray("小") << QByteArray("Größe") << QStringLiteral("Settings - Größe 小");
    }

    void setUpComposesATitleThatTheShownDialogDrops()
    {
        QFETCH(const QByteArray, preset);
        QFETCH(const QByteArray, node);
        QFETCH(const QString, composed);
        const TitleSpy spy;
        QString visible;
        Edit(PresetCalled(preset), node.isNull() ? nullptr : NodeCalled(node),
             [&visible](const EditingDriver &user) {
                 visible = user.Dialog().windowTitle();
                 Cancel(user);
             });
        QCOMPARE(visible, QStringLiteral("Settings"));
        const QStringList expected { composed, QStringLiteral("Settings") };
        QCOMPARE(spy.titles, expected);
    }

    void withoutAPresetTheTitleIsSettingsFromTheStart()
    {
        const MapTranslator catalogue(
                { { { dialogContext, "Settings", "" }, QStringLiteral("dialog's") },
                  { { formContext, "Settings", "" }, QStringLiteral("form's") } });
        const TitleSpy spy;
        Edit(nullptr, MakeSampleFormat(), Cancel);
        const QStringList expected { QStringLiteral("dialog's"), QStringLiteral("form's") };
        QCOMPARE(spy.titles, expected);
    }

    void theComposedTitleIsTranslatedPartByPart()
    {
        const MapTranslator catalogue(
                { { { dialogContext, "Settings", "" }, QStringLiteral("Réglages") },
                  { { formContext, "Settings", "" }, QStringLiteral("Paramètres") },
                  { { presetContext, "MP4", "MP4" }, QStringLiteral("Format MP4") },
                  { { presetContext, "HD", "HD" }, QStringLiteral("haute définition") } });
        const TitleSpy spy;
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), Cancel);
        const QStringList expected { QStringLiteral("Réglages - Format MP4 haute définition"),
                                     QStringLiteral("Paramètres") };
        QCOMPARE(spy.titles, expected);
    }

    // Which names the title has is settled by the names, not by their translations.
    void theFormatIsLookedForInTheUntranslatedName()
    {
        const MapTranslator catalogue(
                { { { presetContext, "MP4", "MP4" }, QStringLiteral("HD") } });
        const TitleSpy spy;
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), Cancel);
        QCOMPARE(spy.titles.value(0), QStringLiteral("Settings - HD HD"));
    }

    void aChangeOfLanguageShowsAtTheNextOpening_data() { addFormTexts(); }

    void aChangeOfLanguageShowsAtTheNextOpening()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, text);
        const auto translation = QStringLiteral("in the other language");
        {
            const MapTranslator catalogue({ { { formContext, text, "" }, translation } });
            QCOMPARE(shownText(name), translation);
        }
        QCOMPARE(shownText(name), QString::fromLatin1(text));
    }

    void aFormTextWithAnEmptyTranslationStaysInEnglish_data() { addFormTexts(); }

    void aFormTextWithAnEmptyTranslationStaysInEnglish()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, text);
        const MapTranslator catalogue({ { { formContext, text, "" }, QStringLiteral("") } });
        QCOMPARE(shownText(name), QString::fromLatin1(text));
    }

    void aTitleWithAnEmptyTranslationStaysInEnglish()
    {
        const MapTranslator catalogue(
                { { { dialogContext, "Settings", "" }, QStringLiteral("") } });
        const TitleSpy spy;
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), Cancel);
        QCOMPARE(spy.titles.value(0), QStringLiteral("Settings - MP4 HD"));
    }

    void entriesAreTranslatedWithThemselvesAsTheComment_data()
    {
        QTest::addColumn<QString>("combo");
        QTest::addColumn<QByteArray>("text");
        const auto add = [](const char *combo, const char *text) {
            QTest::newRow(combo) << QString::fromLatin1(combo) << QByteArray(text);
        };
        add("cmbVEncoder", "Alpha");
        add("cmbResolution", "1920 x 1080");
        add("cmbFrameRate", "50 fps");
        add("cmbVQuality", "Best");
        add("cmbAEncoder", "Delta");
        add("cmbChannel", "One");
        add("cmbSampleRate", "32000 Hz");
        add("cmbAQuality", "Middle");
    }

    void entriesAreTranslatedWithThemselvesAsTheComment()
    {
        QFETCH(const QString, combo);
        QFETCH(const QByteArray, text);
        const auto translation = QStringLiteral("übersetzt");
        const MapTranslator catalogue({ { { presetContext, text, text }, translation } });
        QString shown;
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&](const EditingDriver &user) {
            shown = user.Combo(combo).currentText();
            Cancel(user);
        });
        QCOMPARE(shown, translation);
    }

    void thePromptIsTranslatedInTheContextOfTheDialog()
    {
        const MapTranslator catalogue(
                { { { dialogContext, "Save as New Preset", "" }, QStringLiteral("Nouveau") },
                  { { dialogContext, "preset name", "" }, QStringLiteral("nom") } });
        const QStringList expected { QStringLiteral("Nouveau"), QStringLiteral("nom") };
        QCOMPARE(promptTexts(), expected);
    }

    void aPromptWithEmptyTranslationsStaysInEnglish()
    {
        const MapTranslator catalogue(
                { { { dialogContext, "Save as New Preset", "" }, QStringLiteral("") },
                  { { dialogContext, "preset name", "" }, QStringLiteral("") } });
        const QStringList expected { QStringLiteral("Save as New Preset"),
                                     QStringLiteral("preset name") };
        QCOMPARE(promptTexts(), expected);
    }

private:
    static void addFormTexts()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("text");
        const auto add = [](const char *name, const char *text) {
            QTest::newRow(name) << QString::fromLatin1(name) << QByteArray(text);
        };
        add("grpVideo", "Video");
        add("lblVEncoder", "Encoder");
        add("lblResolution", "Resolution");
        add("lblFrameRate", "Frame Rate");
        add("lblVQuality", "Quality");
        add("grpAudio", "Audio");
        add("lblAEncoder", "Encoder");
        add("lblChannel", "Channel");
        add("lblSampleRate", "Sample Rate");
        add("lblAQuality", "Quality");
        add("btnDefault", "Reset");
        add("btnSaveNewPreset", "Save as New Preset");
        add("btnCancel", "Cancel");
        add("btnSave", "Save");
        add("RPFmtEditingDlgClass", "Settings");
    }

    // Title and label of the prompt for the name of a new preset.
    static QStringList promptTexts()
    {
        QStringList texts;
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&texts](const EditingDriver &user) {
            const WhenOpen<QInputDialog> prompt([&texts](QInputDialog &dialog) {
                texts = QStringList { dialog.windowTitle(), dialog.labelText() };
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            user.Click(QStringLiteral("btnSaveNewPreset"));
            Cancel(user);
        });
        return texts;
    }

    static QString shownText(const QString &name)
    {
        QString text;
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&](const EditingDriver &user) {
            const QWidget &dialog = user.Dialog();
            text = TextOf(name == dialog.objectName() ? dialog : user.Find<QWidget>(name));
            Cancel(user);
        });
        return text;
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgTexts)

#include "tst_rpfmteditingdlg_texts.moc"
