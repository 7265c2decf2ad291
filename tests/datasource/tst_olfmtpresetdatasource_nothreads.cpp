#include "TestCase.h"

#include "FormatFiles.h"
#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

#include <cerrno>
#include <dlfcn.h>
#include <optional>
#include <pthread.h>
#include <system_error>

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::OLFmtPresetDataSource;

namespace {

// Which of the next threads that this one makes is refused to it, counted from 1; 0 refuses none.
thread_local int creationToRefuse = 0;

} // namespace

// Takes the place of the C library's own function, for the standard library too.
extern "C" Q_DECL_EXPORT int pthread_create(pthread_t *thread, const pthread_attr_t *attributes,
                                            void *(*start)(void *), void *argument) noexcept
{
    static const auto create = reinterpret_cast<decltype(&pthread_create)>(
            dlsym(RTLD_NEXT, "pthread_create"));
    if (creationToRefuse > 0 && --creationToRefuse == 0)
        return EAGAIN;
    return create(thread, attributes, start, argument);
}

// A load makes two threads. The system is out of threads for one of them.
class tst_OLFmtPresetDataSource_NoThreads : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aMissingThreadIsReportedAsTheSystemsLack_data() { addRefusals(); }
    void aMissingThreadIsReportedAsTheSystemsLack();
    void aLoadAfterOneWithoutAThreadSucceeds_data() { addRefusals(); }
    void aLoadAfterOneWithoutAThreadSucceeds();

private:
    Test::FormatFolder m_folder;
    bool m_refusedActionRan = false;

    void prepare() override { m_refusedActionRan = false; }

    static void addRefusals()
    {
        QTest::addColumn<int>("refused");
        QTest::newRow("the first thread") << 1;
        QTest::newRow("the second thread") << 2;
    }

    // Starts a load and returns the error that it throws.
    std::error_code loadWithout(int thread, OLFmtPresetDataSource &dataSource)
    {
        const std::string path = m_folder.Write(u"refused.json"_s, Test::Description("Refused"));
        std::error_code error;
        creationToRefuse = thread;
        try {
            dataSource.AsyncLoadExternalDataSource(path, [this] { m_refusedActionRan = true; });
        } catch (const std::system_error &thrown) {
            error = thrown.code();
        }
        creationToRefuse = 0;
        return error;
    }
};

void tst_OLFmtPresetDataSource_NoThreads::aMissingThreadIsReportedAsTheSystemsLack()
{
    QFETCH(const int, refused);
    std::optional<OLFmtPresetDataSource> dataSource(std::in_place);
    QVERIFY(loadWithout(refused, *dataSource) == std::errc::resource_unavailable_try_again);
    dataSource->WaitForLoadingComplete();
    dataSource.reset();
    QVERIFY(!m_refusedActionRan);
}

void tst_OLFmtPresetDataSource_NoThreads::aLoadAfterOneWithoutAThreadSucceeds()
{
    QFETCH(const int, refused);
    const std::string path = m_folder.Write(u"formats.json"_s, Test::Description("Formats"));
    OLFmtPresetDataSource dataSource;
    QVERIFY(loadWithout(refused, dataSource) == std::errc::resource_unavailable_try_again);
    bool actionRan = false;
    dataSource.AsyncLoadExternalDataSource(path, [&] { actionRan = true; });
    dataSource.WaitForLoadingComplete();
    QVERIFY(actionRan);
    QVERIFY(!m_refusedActionRan);
    QVERIFY(dataSource.GetDefaultFormatNode());
    QCOMPARE(dataSource.GetDefaultFormatNode()->Name(), "Formats"s);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_NoThreads)

#include "tst_olfmtpresetdatasource_nothreads.moc"
