#include "OLCodecTables.h"

#include <algorithm>

namespace Orlimo {

namespace {

template<class Table>
bool SameTable(const std::shared_ptr<const Table> &left, const std::shared_ptr<const Table> &right)
{
    return left == right || (left && right && SameContent(*left, *right));
}

template<std::size_t... slots>
bool SameLists(const OLOptionLists &left, const OLOptionLists &right, std::index_sequence<slots...>)
{
    return (SameTable(std::get<slots>(left), std::get<slots>(right)) && ...);
}

} // namespace

bool SameContent(const OLEncoder &left, const OLEncoder &right)
{
    return left.kind == right.kind && left.name == right.name && left.automatic == right.automatic
            && left.defaults == right.defaults
            && SameLists(left.lists, right.lists,
                         std::make_index_sequence<std::tuple_size_v<OLOptionLists>>());
}

bool SameContent(const OLEncoderSet &left, const OLEncoderSet &right)
{
    return left.kind == right.kind
            && std::ranges::equal(left.encoders, right.encoders, SameTable<OLEncoder>);
}

} // namespace Orlimo
