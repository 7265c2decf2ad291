#include "TestCase.h"

#include "FormatFiles.h"
#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

#include <cstdlib>
#include <new>

using namespace Qt::StringLiterals;
using namespace std::literals;

namespace {

constexpr std::size_t largestAllocation = 1 << 20;

} // namespace

// Memory runs out, as far as C++ is concerned, for whoever asks for more than this at once. Qt's
// own texts come from another place.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return size <= largestAllocation ? std::malloc(size) : nullptr;
}

void *operator new(std::size_t size)
{
    if (void *memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

class tst_OLFmtPresetDataSource_NoMemory : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anExceptionWhileParsingIsAFailedLoad();
};

void tst_OLFmtPresetDataSource_NoMemory::anExceptionWhileParsingIsAFailedLoad()
{
    const Test::FormatFolder folder;
    const QByteArray tooLong(largestAllocation + 1, 'x');
    const std::string path = folder.Write(u"formats.json"_s, Test::Description(tooLong));
    bool actionRan = false;
    Orlimo::OLFmtPresetDataSource dataSource;

    QTest::ignoreMessage(QtWarningMsg, ("Failed load external format " + path).c_str());
    dataSource.AsyncLoadExternalDataSource(path, [&] { actionRan = true; });
    dataSource.WaitForLoadingComplete();
    QVERIFY(actionRan);
    QVERIFY(!dataSource.GetDefaultFormatNode());

    folder.Write(u"formats.json"_s, Test::Description("Formats"));
    dataSource.AsyncLoadExternalDataSource(path, [] {});
    dataSource.WaitForLoadingComplete();
    QVERIFY(dataSource.GetDefaultFormatNode());
    QCOMPARE(dataSource.GetDefaultFormatNode()->Name(), "Formats"s);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_NoMemory)

#include "tst_olfmtpresetdatasource_nomemory.moc"
