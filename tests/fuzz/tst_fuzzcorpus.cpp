#include "TestCase.h"

#include "FuzzTargets.h"
#include "Require.h"

#include <QDirIterator>

using Target = void (*)(QByteArrayView);

Q_DECLARE_METATYPE(Target)

namespace {

const QString fuzzFolder = QStringLiteral(FUZZ_FOLDER);

// The files that are kept of a target: its seeds, and the inputs that once broke something.
QStringList KeptInputs(const QString &target)
{
    QStringList files;
    for (const char *kind : { "seeds", "regressions" }) {
        QDirIterator folder(fuzzFolder + QLatin1Char('/') + QLatin1String(kind) + QLatin1Char('/')
                                    + target,
                            QDir::Files);
        while (folder.hasNext())
            files.append(folder.next());
    }
    files.sort();
    return files;
}

} // namespace

// The kept inputs of the fuzz targets, in the build that the other tests use.
class tst_FuzzCorpus : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeptInputKeepsThePromises_data();
    void everyKeptInputKeepsThePromises();
};

void tst_FuzzCorpus::everyKeptInputKeepsThePromises_data()
{
    QTest::addColumn<Target>("target");
    QTest::addColumn<QString>("path");
    const std::pair<const char *, Target> targets[] = {
        { "formattree", Fuzz::FormatTree },
        { "artwork", Fuzz::Artwork },
        { "storedpresets", Fuzz::StoredPresets },
        { "search", Fuzz::Search },
    };
    for (const auto &[name, target] : targets) {
        const QStringList files = KeptInputs(QLatin1String(name));
        QVERIFY2(!files.isEmpty(), name);
        for (const QString &file : files)
            QTest::newRow(qUtf8Printable(file.mid(fuzzFolder.size() + 1))) << target << file;
    }
}

void tst_FuzzCorpus::everyKeptInputKeepsThePromises()
{
    QFETCH(const Target, target);
    QFETCH(const QString, path);
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qUtf8Printable(file.errorString()));
    try {
        target(file.readAll());
    } catch (const Fuzz::Violation &violation) {
        QFAIL(violation.what());
    }
}

ORLIMO_TEST_MAIN(tst_FuzzCorpus)

#include "tst_fuzzcorpus.moc"
