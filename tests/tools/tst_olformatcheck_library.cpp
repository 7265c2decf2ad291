#include "FormatTreeDocument.h"
#include "TestCase.h"

#include "IOLError.h"
#include "OLFormatCheck.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <algorithm>

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
    // The first fault, with which the library ends, is one of those that are found.
    void ExpectTheSame(const QJsonObject &document, const QString &changed)
    {
        std::shared_ptr<const Orlimo::IOLError> error;
        const auto tree =
                Orlimo::IOLFormatNode::MallocFormatNode(Orlimo::IOLJsonValue::MallocJsonValue(
                                                                document),
                                                        &error);
        const std::vector<Orlimo::OLFinding> findings = Findings(document);
        const auto isFault = [](const Orlimo::OLFinding &finding) { return finding.isFault; };
        QVERIFY2(std::ranges::none_of(findings, isFault) == bool(tree), qPrintable(changed));
        if (tree)
            return;
        const QString place = QString::fromStdString(error->Place());
        const auto isThere = [&](const Orlimo::OLFinding &finding) {
            return finding.isFault && finding.pointer == place;
        };
        QVERIFY2(std::ranges::any_of(findings, isThere), qPrintable(changed + u": "_s + place));
    }

    std::vector<Orlimo::OLFinding> Findings(const QJsonObject &document) const
    {
        QFile file(m_folder.filePath(u"tree.json"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(document).toJson()) < 0)
            qFatal("%s cannot be written", qPrintable(file.fileName()));
        file.close();
        return Orlimo::CheckFormat(file.fileName());
    }

    QTemporaryDir m_folder;
};

ORLIMO_TEST_MAIN(tst_OLFormatCheckLibrary)

#include "tst_olformatcheck_library.moc"
