#include "FormatTool.h"
#include "FormatTreeDocument.h"
#include "TestCase.h"

#include "IOLError.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

// The steps to every value below the given one.
void CollectSteps(const QJsonValue &value, const QStringList &steps, QList<QStringList> &all)
{
    const auto descend = [&](const QString &step, const QJsonValue &child) {
        const QStringList below = steps + QStringList { step };
        all.append(below);
        CollectSteps(child, below, all);
    };
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        descend(member.key(), member.value());
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i)
        descend(QString::number(i), array.at(i));
}

} // namespace

Q_DECLARE_METATYPE(QJsonValue)

// The check refuses what the library refuses, and accepts what it accepts.
class tst_OLFormatCheckLibrary : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSampleWithAnotherValueAnywhere_data()
    {
        QTest::addColumn<QJsonValue>("value");
        QTest::newRow("null") << QJsonValue();
        QTest::newRow("an object") << QJsonValue(QJsonObject { { u"encoders"_s, u"video"_s } });
        QTest::newRow("a number") << QJsonValue(1);
        QTest::newRow("nothing") << QJsonValue(QJsonValue::Undefined);
    }

    void theSampleWithAnotherValueAnywhere()
    {
        QFETCH(const QJsonValue, value);
        QList<QStringList> places;
        CollectSteps(Test::SampleDocument(), {}, places);
        QVERIFY(places.size() > 100);
        for (const QStringList &steps : places) {
            ExpectTheSame(Test::Changed(Test::SampleDocument(), steps, value).toObject(),
                          steps.join(u'/'));
        }
    }

private:
    // The first fault, with which the library ends, is one of those that are printed.
    void ExpectTheSame(const QJsonObject &document, const QString &changed)
    {
        std::shared_ptr<const Orlimo::IOLError> error;
        const auto tree =
                Orlimo::IOLFormatNode::MallocFormatNode(Orlimo::IOLJsonValue::MallocJsonValue(
                                                                document),
                                                        &error);
        m_folder.Write(u"tree.json"_s, QJsonDocument(document).toJson());
        const Test::ToolResult result = m_folder.Run({ u"check"_s, u"tree.json"_s });
        QVERIFY2(result.status == (tree ? 0 : 2), qPrintable(changed + u'\n' + result.output));
        if (tree)
            return;
        const QString pointer = QString::fromStdString(error->Place());
        const QString place = pointer.isEmpty() ? u": error: "_s : u": error: "_s + pointer;
        QVERIFY2(result.output.contains(place), qPrintable(changed + u'\n' + result.output));
    }

    Test::ToolFolder m_folder;
};

ORLIMO_TEST_MAIN(tst_OLFormatCheckLibrary)

#include "tst_olformatcheck_library.moc"
