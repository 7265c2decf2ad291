#pragma once

#include "FormatObjects.h"
#include "PresetsModel.h"

#include "IOLFmtPresetDataSource.h"

#include <map>
#include <string>
#include <vector>

namespace Test {

// The data source of this process, on which operations are done beside a model of it. Whatever
// differs between the two is told by Difference().
class PresetsLife
{
public:
    explicit PresetsLife(PresetsModel &model);

    void Do(const PresetsOperation &operation);

    // The first difference between the data source and the model; empty where there is none.
    const std::string &Difference() const { return m_difference; }

private:
    bool Apply(const PresetsOperation &operation);
    bool AddOwn(const PresetsOperation &operation);
    bool AddIncomplete(const PresetsOperation &operation);
    bool AddCustom(const PresetsOperation &operation);
    Item At(int place) const;
    void RememberRemoved(const std::vector<Item> &before);

    void CheckSearches(const PresetsOperation &operation);
    void CheckState();
    void CheckRecent();
    void CheckItems(const std::vector<Item> &items);
    void CheckStored(const char *key, const PlainNode &expected, std::string &lastValue);
    void Verify(bool condition, const std::string &what);

    PresetsModel &m_model;
    std::shared_ptr<Orlimo::IOLFmtPresetDataSource> m_source;
    std::vector<Item> m_removed;
    std::map<int, Item> m_items; // by the child that the model gives them
    std::string m_storedRecent;
    std::string m_storedCustom;
    std::string m_difference;
};

} // namespace Test
