#include "TestCase.h"

#include "OLMediaCodecs.h"

#include <type_traits>

namespace {

// Read before main() is entered.
const std::string earlyName = Orlimo::OLFormatNameMP4;

} // namespace

class tst_OLMediaCodecs : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNameOfMP4IsAConstantText()
    {
        static_assert(std::is_same_v<decltype(Orlimo::OLFormatNameMP4), const std::string>);
        QCOMPARE(Orlimo::OLFormatNameMP4, std::string("MP4"));
    }

    void theNameIsThereBeforeMain() { QCOMPARE(earlyName, std::string("MP4")); }
};

ORLIMO_TEST_MAIN(tst_OLMediaCodecs)

#include "tst_olmediacodecs.moc"
