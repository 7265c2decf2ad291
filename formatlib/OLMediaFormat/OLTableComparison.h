#pragma once

#include "OLCodecTables.h"

#include <map>
#include <memory>
#include <utility>

namespace Orlimo {

// Tells whether two tables say the same, whatever their ids are. The answer for two tables is found
// once and remembered by their addresses, so they must outlive the comparison: encoder sets share
// encoders, and encoders share lists, and what is shared by thousands is not compared thousands of
// times.
class OLTableComparison
{
public:
    template<class Table>
    bool SaySame(const std::shared_ptr<const Table> &left,
                 const std::shared_ptr<const Table> &right)
    {
        if (left == right)
            return true;
        if (!left || !right)
            return false;
        const auto [answer, isNew] = m_answers.try_emplace({ left.get(), right.get() }, false);
        if (isNew)
            answer->second = HaveSameContent(*left, *right);
        return answer->second;
    }

private:
    template<class Option>
    bool HaveSameContent(const OLOptionList<Option> &left, const OLOptionList<Option> &right)
    {
        return left.options == right.options;
    }

    bool HaveSameContent(const OLEncoder &left, const OLEncoder &right);
    bool HaveSameContent(const OLEncoderSet &left, const OLEncoderSet &right);

    std::map<std::pair<const void *, const void *>, bool> m_answers;
};

} // namespace Orlimo
