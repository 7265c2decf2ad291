#include "FuzzTargets.h"

#include "Require.h"
#include "TreeComparison.h"

#include "IOLAppSettings.h"
#include "IOLBase64Codec.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "OLFmtPresetDataSource.h"
#include "OLFmtPresetStore.h"

#include <QCoreApplication>
#include <QSettings>

using Orlimo::IOLAppSettings;
using Orlimo::IOLBase64Codec;
using Orlimo::LoadPresetNode;
using Orlimo::OLCustomPresetsKey;
using Orlimo::OLFmtPresetDataSource;
using Orlimo::OLRecentPresetsKey;

namespace Fuzz {

namespace {

using Items = std::vector<std::shared_ptr<Orlimo::IOLFmtPresetRecentItem>>;

std::string StoredValue(QByteArrayView input)
{
    const QByteArrayView bytes = input.isEmpty() ? input : input.sliced(1);
    const std::string value(bytes.data(), std::size_t(bytes.size()));
    return input.startsWith('r') ? value : IOLBase64Codec::Encode(value);
}

// Nothing that an earlier input has left is in the settings.
void Store(const std::string &value)
{
    QSettings(QSettings::IniFormat, QSettings::UserScope, QCoreApplication::organizationName(),
              QCoreApplication::applicationName())
            .clear();
    const auto settings = IOLAppSettings::Shared();
    settings->SetValue(value, OLRecentPresetsKey);
    settings->SetValue(value, OLCustomPresetsKey);
    settings->Save();
}

void RequireSameItems(const Items &left, const Items &right)
{
    Require(left.size() == right.size(), "there are as many recent choices again");
    for (std::size_t i = 0; i < left.size(); ++i) {
        Require(left[i]->IsEqual(right[i]) && right[i]->IsEqual(left[i]),
                "a recent choice equals itself again");
    }
}

void Save(OLFmtPresetDataSource &dataSource)
{
    dataSource.SaveRecentPresets();
    dataSource.SaveCustomPresets();
}

} // namespace

void StoredPresets(QByteArrayView input)
{
    Store(StoredValue(input));
    const auto stored = LoadPresetNode(OLRecentPresetsKey);
    OLFmtPresetDataSource before;
    Save(before);

    RequireSameTree(before.GetCustomFormatNode(), LoadPresetNode(OLCustomPresetsKey));
    OLFmtPresetDataSource after;
    RequireSameItems(before.GetRecentItems(), after.GetRecentItems());
    RequireSameTree(before.GetCustomFormatNode(), after.GetCustomFormatNode());
    if (stored)
        RequireSameTree(stored, LoadPresetNode(OLRecentPresetsKey));
}

} // namespace Fuzz
