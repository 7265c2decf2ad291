#include "TestCase.h"

#include "EditingDriver.h"
#include "Languages.h"
#include "SampleFormat.h"
#include "TextFit.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "OLFormatText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QStyleOptionComboBox>

using namespace Test;
using Orlimo::RPFmtEditingDlg;
using Orlimo::TranslateFormatText;

namespace {

constexpr int leftLabelWidth = 125;
constexpr int rightLabelWidth = 80;
constexpr int comboMargin = 1; // left of a combo box's text

const QStringList leftLabels { QStringLiteral("lblVEncoder"), QStringLiteral("lblFrameRate"),
                               QStringLiteral("lblAEncoder"), QStringLiteral("lblSampleRate") };

int RoomForText(const QComboBox &combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    return field.width() - comboMargin;
}

// The example's description.
QJsonObject Description()
{
    QFile file(QStringLiteral(ORLIMO_EXAMPLE_DESCRIPTION));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    return QJsonDocument::fromJson(file.readAll()).object();
}

void Collect(const QString &member, const QJsonValue &value, QStringList &texts)
{
    for (const QJsonValue element : value.toArray())
        Collect(member, element, texts);
    const QJsonObject object = value.toObject();
    if (object.value(member).isString())
        texts += object.value(member).toString();
    for (const QJsonValue &element : object)
        Collect(member, element, texts);
}

// The texts of that member anywhere in the description.
QStringList Collected(const QString &member)
{
    QStringList texts;
    Collect(member, Description(), texts);
    texts.removeDuplicates();
    return texts;
}

QStringList Encoders()
{
    QStringList names;
    for (const QJsonValue &encoder : Description().value(QLatin1String("encoders")).toObject())
        names += encoder.toObject().value(QLatin1String("name")).toString();
    return names;
}

} // namespace

class tst_RPFmtEditingDlgLanguages : public Test::TestCase
{
    Q_OBJECT

private:
    // Runs look(driver) in the dialog that was opened in the language of the data row.
    template<class Look>
    static void openAndLook(Look look)
    {
        QFETCH(const int, language);
        const InstalledLanguage installed(AllLanguages().at(language));
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&look](const EditingDriver &user) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            look(user);
            user.Press(Qt::Key_Escape);
        });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(HasJapaneseFont(), "there is no font to measure Japanese texts with");
    }

    void labelsShowTheirWholeTextInColumnsOfTheSameWidth_data() { AddLanguageRows(AllLanguages()); }

    void labelsShowTheirWholeTextInColumnsOfTheSameWidth()
    {
        openAndLook([](const EditingDriver &user) {
            const auto labels = user.Dialog().findChildren<QLabel *>();
            QCOMPARE(labels.size(), 8);
            for (const QLabel *label : labels) {
                const int column = leftLabels.contains(label->objectName()) ? leftLabelWidth
                                                                            : rightLabelWidth;
                const int text = WidthOf(*label, label->text());
                QVERIFY(text > 0);
                QVERIFY2(text <= column,
                         qPrintable(QStringLiteral("%1: %2 is %3 wide")
                                            .arg(label->objectName(), label->text())
                                            .arg(text)));
                QCOMPARE(label->width(), column);
            }
        });
    }

    void buttonsShowTheirWholeTextSideBySide_data() { AddLanguageRows(AllLanguages()); }

    void buttonsShowTheirWholeTextSideBySide()
    {
        openAndLook([](const EditingDriver &user) {
            int end = 0;
            for (const char *name : { "btnDefault", "btnSaveNewPreset", "btnCancel", "btnSave" }) {
                const QPushButton &button = user.Button(QString::fromLatin1(name));
                QVERIFY2(button.width() >= button.sizeHint().width(), name);
                QVERIFY2(button.x() >= end, name);
                end = button.geometry().right();
            }
            QVERIFY(end <= user.Dialog().contentsRect().right() - 11);
        });
    }

    void everyOptionOfTheExampleFitsItsCombo_data() { AddLanguageRows(AllLanguages()); }

    // English texts cannot be shortened, and this one is wider than the box.
    void everyOptionOfTheExampleFitsItsCombo()
    {
        openAndLook([](const EditingDriver &user) {
            const QComboBox &combo = user.Combo(QStringLiteral("cmbVQuality"));
            const QStringList options = Collected(QStringLiteral("text"));
            QVERIFY(options.contains(QStringLiteral("Same as source")));
            for (const QString &option : options) {
                const QString text = TranslateFormatText(option.toStdString());
                const bool tooWide = text == QLatin1String("Same as source");
                QVERIFY2(tooWide == (WidthOf(combo, text) > RoomForText(combo)), qPrintable(text));
            }
        });
    }

    // Their names are the same in every language; the tool tip and the open list show them whole.
    void theExamplesEncodersFitTheirComboButForKnownNames()
    {
        const QStringList known {
            QStringLiteral("DNxHD "),         QStringLiteral("G.711 "),
            QStringLiteral("MP3 (MPEG-2)"),   QStringLiteral("MPEG-2 "),
            QStringLiteral("PCM (IEEE 754)"), QStringLiteral("ProRes 422 "),
            QStringLiteral("ProRes 4444"),    QStringLiteral("Sorenson H.263")
        };
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&known](const EditingDriver &user) {
            const QComboBox &combo = user.Combo(QStringLiteral("cmbVEncoder"));
            const QStringList encoders = Encoders();
            QVERIFY(encoders.contains(QStringLiteral("H.264")));
            for (const QString &name : encoders) {
                const bool isKnown = std::any_of(known.begin(), known.end(), [&name](auto &start) {
                    return name.startsWith(start);
                });
                QVERIFY2(isKnown == (WidthOf(combo, name) > RoomForText(combo)), qPrintable(name));
            }
            user.Press(Qt::Key_Escape);
        });
    }

    void thePortugueseDialogSaysSampleRateInEnglish()
    {
        const InstalledLanguage portuguese(LanguageOf(QStringLiteral("pt_BR")));
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            QCOMPARE(user.Find<QLabel>(QStringLiteral("lblSampleRate")).text(),
                     QStringLiteral("Sample Rate"));
            QCOMPARE(user.Find<QLabel>(QStringLiteral("lblFrameRate")).text(),
                     QStringLiteral("Taxa de quadros"));
            user.Press(Qt::Key_Escape);
        });
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgLanguages)

#include "tst_rpfmteditingdlg_languages.moc"
