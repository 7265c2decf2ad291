// Prints trees as the library writes them, each on a line after its name and a tab: the format
// description given, as it is and with every preset edited, and the nodes that the data source
// keeps.

#include "IOLCodecPreset.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonReader.h"
#include "IOLJsonWriter.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Orlimo;

namespace {

using NodePointer = std::shared_ptr<IOLFormatNode>;

// A preset with neither an encoder nor an option chosen, which no setter brings about.
const char nothingChosen[] = R"({
    "version": 1,
    "resolutions": { "hd": [ { "text": "1280 x 720", "width": 1280, "height": 720 } ] },
    "encoders": { "h264": { "kind": "video", "name": "H.264", "resolutions": "hd" } },
    "encoderSets": { "mp4": [ "h264" ] },
    "root": { "name": "MP4", "presets": [ { "name": "HD", "video": {
        "encoders": "mp4", "current": -1, "choices": [ { "encoder": 0, "resolution": -1 } ] } } ] }
})";

void Print(const char *name, const std::shared_ptr<const IOLFormatNode> &node)
{
    std::printf("%s\t%s\n", name, IOLJsonWriter::WriteJsonString(node->ToJsonValue()).c_str());
}

void ChooseLastOptions(IOLCodecPreset &codec)
{
    codec.SetResolutionIndex(codec.ResolutionCount() - 1);
    codec.SetFrameRateIndex(codec.FrameRateCount() - 1);
    codec.SetQualityIndex(codec.QualityCount() - 1);
    codec.SetChannelIndex(codec.ChannelCount() - 1);
    codec.SetSampleRateIndex(codec.SampleRateCount() - 1);
}

void Edit(IOLFormatPreset &preset)
{
    for (int i = 0; i < preset.VideoCodecCount(); ++i)
        ChooseLastOptions(*preset.VideoCodecAt(i));
    for (int i = 0; i < preset.AudioCodecCount(); ++i)
        ChooseLastOptions(*preset.AudioCodecAt(i));
    preset.SetCurrentVideoCodecIndex(preset.VideoCodecCount() - 1);
    preset.SetCurrentAudioCodecIndex(preset.AudioCodecCount() - 1);
    preset.SetName(preset.Name() + " \"edited\" \\ Ä 日本語");
}

void EditAll(const NodePointer &node)
{
    for (int i = 0; i < node->PresetCount(); ++i)
        Edit(*node->PresetAt(i));
    for (int i = 0; i < node->ChildCount(); ++i)
        EditAll(node->ChildAt(i));
}

void PrintKeptTrees()
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    const auto builtIn = dataSource->GetDefaultRecentItem();
    Print("built-in", builtIn->GetFormatNode());

    const auto preset = builtIn->GetFormatPreset()->Clone();
    Edit(*preset);
    dataSource->AddCustomPreset(preset, builtIn->GetFormatNode());
    Print("custom", dataSource->GetCustomFormatNode());
    dataSource->AddRecentPreset(preset, builtIn->GetFormatNode());
    Print("recent", dataSource->GetLatestRecentItem()->GetFormatNode());
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const NodePointer tree = IOLFormatNode::MallocFormatNode(
            IOLJsonReader::ReadJsonFile(argv[1], nullptr));
    if (!tree)
        return 1;
    Print("description", tree);
    EditAll(tree);
    Print("edited", tree);
    Print("nothing chosen",
          IOLFormatNode::MallocFormatNode(IOLJsonReader::ReadJsonString(nothingChosen, nullptr)));
    Print("empty", IOLFormatNode::MallocFormatNode(NodePointer()));
    PrintKeptTrees();
    return 0;
}
