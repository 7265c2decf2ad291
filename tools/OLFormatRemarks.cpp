#include "OLFormatRemarks.h"

#include "IOLArtworkImageMgr.h"
#include "IOLFormatNode.h"
#include "OLArtworkFile.h"
#include "OLFormatPreset.h"
#include "OLOptionLayout.h"

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <string>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

// The path at the root of a tree, which appends what is reported to remarks.
class TreePath : public OLJsonPath
{
public:
    explicit TreePath(std::vector<OLJsonFault> &remarks)
        : m_root(*this, u"root"_s)
    {
        CollectInto(remarks);
    }

private:
    Scope m_root;
};

// Calls visit(node, depth) for node and all nodes below it, with the path at each of them.
template<class Visitor>
void ForEachNode(const IOLFormatNode &node, OLJsonPath &path, Visitor &&visit, int depth = 0)
{
    visit(node, depth);
    const OLJsonPath::Scope in(path, u"children"_s);
    for (int i = 0; i < node.ChildCount(); ++i) {
        const OLJsonPath::Scope at(path, i);
        ForEachNode(*node.ChildAt(i), path, visit, depth + 1);
    }
}

// Calls visit(preset) for the presets of a node, with the path at each of them.
template<class Visitor>
void ForEachPreset(const IOLFormatNode &node, OLJsonPath &path, Visitor visit)
{
    const OLJsonPath::Scope in(path, u"presets"_s);
    for (int i = 0; i < node.PresetCount(); ++i) {
        const OLJsonPath::Scope at(path, i);
        visit(static_cast<const OLFormatPreset &>(*node.PresetAt(i))); // as the reader makes them
    }
}

const char *ChildWord(int depth)
{
    constexpr const char *words[] = { "category", "format" };
    return static_cast<std::size_t>(depth) < std::size(words) ? words[depth] : "node";
}

template<class NameAt>
void RemarkSiblings(OLJsonPath &path, QString list, const std::string &what, int count,
                    NameAt nameAt)
{
    const OLJsonPath::Scope in(path, std::move(list));
    std::map<std::string, int> first;
    for (int i = 0; i < count; ++i) {
        const OLJsonPath::Scope at(path, i);
        const std::string name = nameAt(i);
        const auto [known, isNew] = first.emplace(name, i);
        if (name.empty())
            path.ReportAt("name"_L1, "the " + what + " has no name");
        else if (!isNew) {
            path.ReportAt("name"_L1,
                          "the " + what + " at index " + std::to_string(known->second)
                                  + " is called \"" + name + "\" too");
        }
    }
}

// The tables of a document that its presets lead to: the ids by the member that holds the table.
class UsedTables
{
public:
    // Appends encoders without a name to remarks.
    explicit UsedTables(std::vector<OLJsonFault> &remarks) { m_path.CollectInto(remarks); }

    void Add(const OLCodecList &list)
    {
        const OLEncoderSetPointer &set = list.Set();
        if (!set || !m_ids["encoderSets"_L1].insert(set->id).second)
            return;
        for (const OLEncoderPointer &encoder : set->encoders)
            Add(*encoder);
    }

    bool Contain(QLatin1StringView table, const QString &id) const
    {
        const auto ids = m_ids.find(table);
        return ids != m_ids.end() && ids->second.contains(id.toStdString());
    }

private:
    void Add(const OLEncoder &encoder)
    {
        if (!m_ids["encoders"_L1].insert(encoder.id).second)
            return;
        if (encoder.name.empty())
            RemarkNoName(encoder);
        OLForEachOptionType(encoder.kind, [&]<class Option>() {
            if (const auto &list = encoder.List<Option>())
                m_ids[OLOptionLayout<Option>::lists].insert(list->id);
        });
    }

    void RemarkNoName(const OLEncoder &encoder)
    {
        const OLJsonPath::Scope in(m_path, u"encoders"_s);
        const OLJsonPath::Scope at(m_path, QString::fromStdString(encoder.id));
        m_path.ReportAt("name"_L1, "the encoder has no name");
    }

    OLJsonPath m_path;
    std::map<QLatin1StringView, std::set<std::string>> m_ids;
};

void RemarkUnused(const QJsonObject &document, QLatin1StringView table, const UsedTables &used,
                  OLJsonPath &path)
{
    const OLJsonPath::Scope in(path, QString(table));
    for (const QString &id : document.value(table).toObject().keys()) {
        const OLJsonPath::Scope at(path, id);
        if (!used.Contain(table, id))
            path.Report("no preset uses this entry of the table");
    }
}

// A size in pixels in which the picker draws an icon.
struct Shown
{
    int side;
    const char *where;
};

constexpr Shown onTab[] = { { 18, "on a tab" }, { 36, "on a tab at 200 %" } };
constexpr Shown inRow[] = { { 33, "in a row" }, { 66, "in a row at 200 %" } };
constexpr Shown onRecentTab[] = { { 15, "on the Recent tab" },
                                  { 30, "on the Recent tab at 200 %" },
                                  { 18, "on the Recent tab after a load" },
                                  { 36, "on the Recent tab after a load at 200 %" } };

std::vector<std::string> WhatLacks(const OLArtworkFile &artwork, int faceID,
                                   std::span<const Shown> sizes)
{
    const std::span<const OLArtworkImage> images = artwork.Images(faceID);
    const std::string face = "face id " + std::to_string(faceID) + " has no image";
    if (images.empty())
        return { face };
    std::vector<std::string> lacks;
    for (const auto [side, where] : sizes) {
        const QSize size(side, side);
        if (std::ranges::find(images, size, &OLArtworkImage::size) == images.end()) {
            const std::string text = std::to_string(side);
            lacks.push_back(face + " of " + text + " x " + text + " pixels, its size " + where);
        }
    }
    return lacks;
}

} // namespace

void RemarkNames(const IOLFormatNode &root, std::vector<OLJsonFault> &remarks)
{
    TreePath path(remarks);
    ForEachNode(root, path, [&](const IOLFormatNode &node, int depth) {
        RemarkSiblings(path, u"presets"_s, "preset", node.PresetCount(),
                       [&](int index) { return node.PresetAt(index)->Name(); });
        RemarkSiblings(path, u"children"_s, ChildWord(depth), node.ChildCount(),
                       [&](int index) { return node.ChildAt(index)->Name(); });
    });
}

void RemarkTables(const QJsonObject &document, const IOLFormatNode &root,
                  std::vector<OLJsonFault> &remarks)
{
    OLJsonPath path;
    path.CollectInto(remarks);
    UsedTables used(remarks);
    ForEachNode(root, path, [&](const IOLFormatNode &node, int) {
        ForEachPreset(node, path, [&](const OLFormatPreset &preset) {
            used.Add(preset.Video());
            used.Add(preset.Audio());
        });
    });
    for (const auto table :
         { OLOptionLayout<OLResolution>::lists, OLOptionLayout<OLFrameRate>::lists,
           OLOptionLayout<OLQuality>::lists, OLOptionLayout<OLChannel>::lists,
           OLOptionLayout<OLSampleRate>::lists, "encoders"_L1, "encoderSets"_L1 })
        RemarkUnused(document, table, used, path);
}

void RemarkFaces(const IOLFormatNode &root, const OLArtworkFile &artwork,
                 std::vector<OLJsonFault> &remarks)
{
    TreePath path(remarks);
    std::set<std::string> said;
    const auto check = [&](int faceID, std::span<const Shown> sizes) {
        for (const std::string &text : WhatLacks(artwork, faceID, sizes)) {
            if (faceID != 0 && said.insert(text).second)
                path.ReportAt("faceId"_L1, text);
        }
    };
    ForEachNode(root, path, [&](const IOLFormatNode &node, int depth) {
        if (depth > 0)
            check(node.FaceID(), depth == 1 ? std::span(onTab) : std::span(inRow));
        ForEachPreset(node, path,
                      [&](const OLFormatPreset &preset) { check(preset.FaceID(), inRow); });
    });
}

void RemarkOwnFaces(const OLArtworkFile &artwork, std::vector<OLJsonFault> &remarks)
{
    const auto check = [&](int faceID, std::span<const Shown> sizes) {
        for (const std::string &text : WhatLacks(artwork, faceID, sizes))
            remarks.push_back({ {}, text });
    };
    check(IOLArtworkImageMgr::CategoryFaceIDRecentList, onRecentTab);
    check(IOLArtworkImageMgr::CategoryFaceIDCustomize, onTab);
}

} // namespace Orlimo
