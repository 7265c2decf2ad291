// Uses every header of the package as a host does. Prints what it checked; ends with 0 if all is
// well.
//
// foreign FORMATS.json FORMATS.icfg

#include <IOLAppSettings.h>
#include <IOLArtworkImageGroup.h>
#include <IOLArtworkImageMgr.h>
#include <IOLBase64Codec.h>
#include <IOLCodecPreset.h>
#include <IOLError.h>
#include <IOLFileProvider.h>
#include <IOLFmtPresetDataSource.h>
#include <IOLFmtPresetRecentItem.h>
#include <IOLFormatNode.h>
#include <IOLFormatPreset.h>
#include <IOLJsonReader.h>
#include <IOLJsonValue.h>
#include <IOLJsonWriter.h>
#include <IOLLogConfig.h>
#include <IOLMediaFormatPopup.h>
#include <IOLStringHelper.h>
#include <OLMediaCodecs.h>

#include <QApplication>
#include <QJsonObject>
#include <QWidget>

#include <cstdio>

namespace {

using namespace Orlimo;

int failures = 0;

void Check(bool holds, const char *what)
{
    std::printf("%s: %s\n", holds ? "ok" : "FAILED", what);
    if (!holds)
        ++failures;
}

void CheckTexts()
{
    Check(IOLStringHelper::ToLower("MP4 Ä") == "mp4 ä", "a text is folded");
    Check(IOLBase64Codec::Encode("Ma") == "TWE=", "bytes are encoded");
    Check(IOLBase64Codec::Decode("TWE=") == "Ma", "bytes are decoded");
    const std::string bare = IOLFileProvider::RemovePathExtension("a.b/formats.json");
    Check(IOLFileProvider::AppendPathExtension(bare, "icfg") == "a.b/formats.icfg",
          "a path gets another extension");
    Check(IOLLogConfig::Printf("a line of the %s", "host") > 0, "a line is logged");
    Check(OLFormatNameMP4 == "MP4", "the name of MP4 is there");
}

void CheckJson()
{
    const auto json = IOLJsonReader::ReadJsonString(R"({ "width": 1920 })", nullptr);
    Check(json && json->ToQJsonValue().toObject().value(QLatin1String("width")).toInt() == 1920,
          "JSON is read");
    Check(IOLJsonWriter::WriteJsonString(json) == R"({"width":1920})", "JSON is written");

    std::shared_ptr<const IOLError> error;
    Check(!IOLJsonReader::ReadJsonFile("no such file", &error), "a missing file is not read");
    Check(error && error->Source() == "no such file" && !error->Message().empty(),
          "the error says which file");
}

void CheckFormatObjects()
{
    const auto preset = IOLFormatPreset::MallocFormatPreset(OLFormatNameMP4, "");
    Check(preset->Name() == "MP4", "a preset is named after its format");
    const auto codec = preset->CurrentVideoCodec();
    Check(codec && !codec->Name().empty(), "a preset has a video encoder");
    Check(codec && codec->ResolutionText(-1).empty(), "there is no option before the first");

    const auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName("MP4");
    node->SetDescription("MP4 file format");
    node->AddPreset(preset);
    const auto restored = IOLFormatNode::MallocFormatNode(node->ToJsonValue());
    Check(restored && restored->IsEqual(node) && restored->FirstFormatPreset()->IsEqual(preset),
          "a tree survives JSON");
}

void CheckArtwork(const std::string &file)
{
    const auto artwork = IOLArtworkImageMgr::MallocArtworkImageMgr(file, nullptr);
    const auto group = artwork ? artwork->ArtworkGroup(IOLArtworkImageMgr::FormatFaceIDMP4)
                               : nullptr;
    Check(group && !group->Icon().isNull(), "MP4 has an icon");
    Check(artwork && !artwork->ArtworkGroup(-1), "an unknown face has no icon");
}

void CheckSettings()
{
    IOLAppSettings::Shared()->SetValue("a value", "a key");
    IOLAppSettings::Shared()->Save();
    Check(IOLAppSettings::Shared()->Value("a key") == "a value", "a setting is kept");
}

void CheckPresets()
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    const auto builtIn = dataSource->GetLatestRecentItem();
    Check(!builtIn->IsEmpty() && builtIn->GetDisplayName() == "MP4"
                  && builtIn->GetDescription() == "MP4 Format",
          "the built-in entry comes first");

    const auto preset = builtIn->GetFormatPreset()->Clone();
    preset->SetName("HD");
    const auto item = IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset,
                                                                        builtIn->GetFormatNode());
    Check(item->GetDisplayName() == "MP4 HD", "a choice is named after format and preset");

    dataSource->AddCustomPreset(preset, builtIn->GetFormatNode());
    dataSource->SaveCustomPresets();
    const auto format = dataSource->GetCustomFormatNode()->FindChild("MP4");
    Check(format && format->FindPreset("HD"), "the custom preset is filed under its format");
    Check(!IOLAppSettings::Shared()->Value("custom_format_preset").empty(),
          "the custom preset is saved");
}

QWidget *VisibleWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

void CheckPopup(const std::string &description)
{
    IOLMediaFormatPopup::SetupExternalFormatData(description);
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    Check(root && root->ChildCount() == 4, "the description is loaded");

    int calls = 0;
    bool chosen = false;
    IOLMediaFormatPopup::Shared()->ShowFormatPopup({ 10.9F, 20.0F, 100.0F, 30.0F },
                                                   [&](const auto &preset, const auto &node) {
                                                       ++calls;
                                                       chosen = preset || node;
                                                   });
    QWidget *popup = VisibleWindow();
    Check(popup, "the popup is open");
    if (popup)
        popup->close();
    Check(calls == 1 && !chosen, "closing the popup is reported once, without a choice");
    Check(!VisibleWindow(), "the popup is closed");
    IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 0.0F, 0.0F }, nullptr);
    Check(VisibleWindow() == popup, "the same popup opens again");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Not those of main, which on Windows are in the code page of the user.
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    QCoreApplication::setOrganizationName(QStringLiteral("Foreign Company"));
    QCoreApplication::setApplicationName(QStringLiteral("Foreign Application"));

    CheckTexts();
    CheckJson();
    CheckFormatObjects();
    CheckArtwork(arguments[2].toStdString());
    CheckSettings();
    CheckPresets();
    CheckPopup(arguments[1].toStdString());
    return failures == 0 ? 0 : 1;
}
