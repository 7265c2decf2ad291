#include "OLTableComparison.h"

#include "OLOptionLayout.h"

#include <algorithm>

namespace Orlimo {

bool OLTableComparison::HaveSameContent(const OLEncoder &left, const OLEncoder &right)
{
    bool same = left.kind == right.kind && left.name == right.name
            && left.automatic == right.automatic && left.defaults == right.defaults;
    OLForEachOptionType(left.kind, [&]<class Option>() {
        same = same && SaySame(left.List<Option>(), right.List<Option>());
    });
    return same;
}

bool OLTableComparison::HaveSameContent(const OLEncoderSet &left, const OLEncoderSet &right)
{
    const auto saySame = [this](const OLEncoderPointer &one, const OLEncoderPointer &other) {
        return SaySame(one, other);
    };
    return left.kind == right.kind && std::ranges::equal(left.encoders, right.encoders, saySame);
}

} // namespace Orlimo
