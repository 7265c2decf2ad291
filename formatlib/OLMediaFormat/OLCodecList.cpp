#include "OLCodecList.h"

#include "OLCodecPreset.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace Orlimo {

namespace {

std::mutex codecMaking;

} // namespace

OLCodecList::OLCodecList(OLEncoderSetPointer set, int current,
                         std::span<const OLEncoderChoice> choices)
    : m_set(std::move(set))
    , m_current(current)
{
    Keep(choices);
}

OLCodecList::OLCodecList(const OLCodecList &other)
    : m_set(other.m_set)
    , m_current(other.m_current)
{
    const std::lock_guard lock(codecMaking);
    if (other.m_codecs)
        Keep(other.ChoicesOfCodecs());
    else
        Keep(other.FirstChoices());
}

void OLCodecList::Keep(std::span<const OLEncoderChoice> choices)
{
    if (choices.empty())
        return;
    m_choices = std::make_unique<OLEncoderChoice[]>(choices.size());
    m_choiceCount = static_cast<int>(choices.size());
    std::ranges::copy(choices, m_choices.get());
}

OLCodecList &OLCodecList::operator=(const OLCodecList &other)
{
    return *this = OLCodecList(other);
}

std::vector<OLEncoderChoice> OLCodecList::Choices() const
{
    const std::lock_guard lock(codecMaking);
    const auto first = FirstChoices();
    return m_codecs ? ChoicesOfCodecs() : std::vector(first.begin(), first.end());
}

std::span<const OLEncoderChoice> OLCodecList::FirstChoices() const
{
    const int count = m_choices ? m_choiceCount : 0; // none where the list was moved from
    return { m_choices.get(), static_cast<std::size_t>(count) };
}

std::vector<OLEncoderChoice> OLCodecList::ChoicesOfCodecs() const
{
    std::vector<OLEncoderChoice> choices;
    for (int i = 0; i < Count(); ++i) {
        const auto &codec = m_codecs[static_cast<std::size_t>(i)];
        const OLOptionIndices options = codec ? codec->CurrentOptions() : OptionsOf(i);
        if (options != m_set->encoders[static_cast<std::size_t>(i)]->defaults)
            choices.push_back({ i, options });
    }
    return choices;
}

int OLCodecList::Count() const
{
    return m_set ? static_cast<int>(m_set->encoders.size()) : 0;
}

std::shared_ptr<OLCodecPreset> OLCodecList::At(int index) const
{
    if (!Contains(index))
        return nullptr;
    const auto place = static_cast<std::size_t>(index);
    const std::lock_guard lock(codecMaking);
    if (!m_codecs)
        m_codecs = std::make_unique<std::shared_ptr<OLCodecPreset>[]>(m_set->encoders.size());
    if (!m_codecs[place])
        m_codecs[place] = std::make_shared<OLCodecPreset>(m_set->encoders[place], OptionsOf(index));
    return m_codecs[place];
}

void OLCodecList::SetCurrentIndex(int index)
{
    if (Contains(index))
        m_current = index;
}

OLOptionIndices OLCodecList::OptionsOf(int index) const
{
    const auto choices = FirstChoices();
    const auto choice = std::ranges::lower_bound(choices, index, {}, &OLEncoderChoice::encoder);
    const bool chosen = choice != choices.end() && choice->encoder == index;
    return chosen ? choice->options : m_set->encoders[static_cast<std::size_t>(index)]->defaults;
}

} // namespace Orlimo
