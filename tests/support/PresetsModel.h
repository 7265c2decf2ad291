#pragma once

#include "PlainTree.h"
#include "RandomRun.h"

#include <string>
#include <vector>

namespace Test {

// One call on the recent choices and custom presets.
struct PresetsOperation
{
    enum Kind {
        AddRecentPreset,
        AddRecentItem,  // of objects of the caller's own
        AddListedItem,  // the item at place in the list
        AddRemovedItem, // the item at place among those that were removed
        AddIncompleteItem,
        RemoveListedItem,
        RemoveRemovedItem,
        RemoveCopyOfListedItem,
        RemoveByName,
        SaveRecent,
        AddCustom,
        RemoveCustom,
        SaveCustom,
        FilterRecent,
        SearchCustom
    };

    Kind kind;
    PlainNode format = {}; // its attributes
    PlainPreset preset = {};
    int place = 0;
    std::string text = {}; // a name or a keyword

    std::string Describe() const;
};

// What the data source promises about the recent choices and custom presets, on plain values.
class PresetsModel
{
public:
    // A choice and the child of the "Recent" node that was made for it.
    struct Choice
    {
        int child;
        PlainNode format;
        PlainPreset preset;

        std::string DisplayName() const;
        bool LooksLike(const Choice &other) const;
    };
    using Choices = std::vector<Choice>;

    // Does the operation and returns what the call is to return; true where it returns nothing.
    bool Apply(const PresetsOperation &operation);

    // The process ends and another one starts.
    void Restart();

    const Choices &Recent() const { return m_recent; }   // the newest first
    const Choices &Removed() const { return m_removed; } // since the start of the process
    const PlainNode &Custom() const { return m_custom; }

    // The trees as they are stored.
    PlainNode StoredRecent() const;
    const PlainNode &StoredCustom() const { return m_storedCustom; }

    static Choices Filtered(const Choices &choices, const std::string &keyword);

private:
    bool AddRecent(const PlainNode &format, const PlainPreset &preset);
    bool RemoveRecentAt(Choices::const_iterator place);
    void AddCustom(const PlainNode &format, const PlainPreset &preset);
    bool RemoveCustom(const std::string &format, const std::string &preset);

    Choices m_recent;
    Choices m_children; // of the "Recent" node, the oldest first
    Choices m_storedChildren;
    Choices m_removed;
    PlainNode m_custom { "Custom", "Custom Preset", 2, {}, {} };
    PlainNode m_storedCustom = m_custom;
    int m_lastChild = 0;
};

// Makes operations that suit the state of a model, from a small stock of formats and presets, so
// that they often meet the same ones.
class PresetsOperations
{
public:
    explicit PresetsOperations(unsigned seed);

    PresetsOperation Next(const PresetsModel &model);

private:
    std::string NameFor(const PresetsModel &model);

    Random m_random;
    std::vector<PlainNode> m_formats;
    std::vector<PlainPreset> m_presets;
};

} // namespace Test
