#include "TestCase.h"

#include "OLTableComparison.h"

#include <functional>
#include <utility>

using namespace Orlimo;

using QualityList = OLOptionList<OLQuality>;

namespace {

std::shared_ptr<QualityList> MakeQualities(const char *id, std::vector<OLQuality> options)
{
    return std::make_shared<QualityList>(QualityList { id, std::move(options) });
}

std::shared_ptr<OLEncoder> MakeEncoder(const char *id, OLEncoderKind kind = OLEncoderKind::Video)
{
    auto encoder = std::make_shared<OLEncoder>();
    encoder->id = id;
    encoder->kind = kind;
    encoder->name = "H.264";
    std::get<OLOptionListPointer<OLQuality>>(encoder->lists) = MakeQualities(id, { { "High" } });
    return encoder;
}

OLEncoderSetPointer MakeSet(const char *id, std::vector<OLEncoderPointer> encoders)
{
    return std::make_shared<OLEncoderSet>(
            OLEncoderSet { id, OLEncoderKind::Video, std::move(encoders) });
}

template<class Table>
bool SaySame(const std::shared_ptr<const Table> &left, const std::shared_ptr<const Table> &right)
{
    return OLTableComparison().SaySame(left, right);
}

} // namespace

class tst_OLTableComparison : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void idsDoNotCount()
    {
        QVERIFY(SaySame<OLEncoder>(MakeEncoder("a"), MakeEncoder("b")));
        QVERIFY(SaySame(MakeSet("a", { MakeEncoder("a") }), MakeSet("b", { MakeEncoder("b") })));
    }

    void whateverElseDiffersCounts_data()
    {
        using Change = std::function<void(OLEncoder &)>;
        QTest::addColumn<Change>("change");
        const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
        row("kind", [](OLEncoder &encoder) { encoder.kind = OLEncoderKind::Audio; });
        row("name", [](OLEncoder &encoder) { encoder.name = "HEVC"; });
        row("automatic", [](OLEncoder &encoder) { encoder.automatic = true; });
        row("default", [](OLEncoder &encoder) { encoder.defaults.front() = 0; });
        row("option", [](OLEncoder &encoder) {
            std::get<OLOptionListPointer<OLQuality>>(encoder.lists) = MakeQualities("a",
                                                                                    { { "Low" } });
        });
        row("list missing", [](OLEncoder &encoder) {
            std::get<OLOptionListPointer<OLQuality>>(encoder.lists) = nullptr;
        });
        row("list added", [](OLEncoder &encoder) {
            std::get<OLOptionListPointer<OLResolution>>(
                    encoder.lists) = std::make_shared<OLOptionList<OLResolution>>();
        });
    }

    void whateverElseDiffersCounts()
    {
        QFETCH(const std::function<void(OLEncoder &)>, change);
        const auto changed = MakeEncoder("a");
        change(*changed);
        QVERIFY(!SaySame<OLEncoder>(MakeEncoder("a"), changed));
        QVERIFY(!SaySame<OLEncoder>(changed, MakeEncoder("a")));
        QVERIFY(!SaySame(MakeSet("a", { MakeEncoder("a") }), MakeSet("a", { changed })));
    }

    void theNumberAndOrderOfEncodersCount()
    {
        const auto one = MakeEncoder("a");
        const auto other = MakeEncoder("b");
        other->name = "HEVC";
        QVERIFY(!SaySame(MakeSet("a", { one, other }), MakeSet("a", { other, one })));
        QVERIFY(!SaySame(MakeSet("a", { one, one }), MakeSet("a", { one })));
    }

    // So two sets that name an encoder a hundred thousand times are compared in no time.
    void twoTablesAreComparedOnce()
    {
        OLTableComparison comparison;
        const auto left = MakeQualities("a", { { "High" } });
        const auto right = MakeQualities("b", { { "High" } });
        QVERIFY(comparison.SaySame<QualityList>(left, right));
        right->options.clear();
        QVERIFY(comparison.SaySame<QualityList>(left, right));
    }
};

ORLIMO_TEST_MAIN(tst_OLTableComparison)

#include "tst_oltablecomparison.moc"
