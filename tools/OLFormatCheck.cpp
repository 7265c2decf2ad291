#include "OLFormatCheck.h"

#include "IOLError.h"
#include "IOLFileProvider.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "OLArtworkFile.h"
#include "OLArtworkImageGroup.h"
#include "OLFormatNode.h"
#include "OLFormatRemarks.h"
#include "OLFormatTreeReader.h"
#include "OLJsonLocator.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

using ErrorPointer = std::shared_ptr<const IOLError>;

QByteArray TextOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// As the picker finds it.
QString ArtworkBeside(const QString &description)
{
    const std::string base = IOLFileProvider::RemovePathExtension(description.toStdString());
    return QString::fromStdString(IOLFileProvider::AppendPathExtension(base, "icfg"));
}

QString WithoutControls(const QString &text)
{
    QString line;
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control)
            line += u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
        else
            line += c;
    }
    return line;
}

class Check
{
public:
    explicit Check(QString description)
        : m_description(std::move(description))
        , m_artworkFile(ArtworkBeside(m_description))
    {
    }

    std::vector<OLFinding> Run()
    {
        const std::optional<OLArtworkFile> artwork = ReadArtwork();
        ReadDescription(artwork ? &*artwork : nullptr);
        std::ranges::stable_sort(m_findings, {}, &OLFinding::place);
        std::ranges::move(m_artworkFindings, std::back_inserter(m_findings));
        return std::move(m_findings);
    }

private:
    void ReadDescription(const OLArtworkFile *artwork)
    {
        ErrorPointer error;
        const auto json = IOLJsonReader::ReadJsonFile(m_description.toStdString(), &error);
        if (!json)
            return AddSyntaxFault(*error);
        const QJsonValue document = json->ToQJsonValue();
        const OLJsonLocator locator(TextOf(m_description));
        std::vector<OLJsonFault> faults;
        const std::shared_ptr<const OLFormatNode> root = OLFormatTreeReader::Read(document, faults);
        AddFindings(faults, true, locator);
        if (root)
            AddFindings(Remarks(document, *root, artwork), false, locator);
    }

    static std::vector<OLJsonFault> Remarks(const QJsonValue &document, const OLFormatNode &root,
                                            const OLArtworkFile *artwork)
    {
        std::vector<OLJsonFault> remarks;
        RemarkNames(root, remarks);
        RemarkTables(document.toObject(), root, remarks);
        if (artwork)
            RemarkFaces(root, *artwork, remarks);
        return remarks;
    }

    void AddFindings(const std::vector<OLJsonFault> &remarks, bool areFaults,
                     const OLJsonLocator &locator)
    {
        for (const OLJsonFault &remark : remarks) {
            const QString pointer = QString::fromStdString(remark.pointer);
            m_findings.push_back({ areFaults, m_description, locator.PlaceOf(pointer), pointer,
                                   QString::fromStdString(remark.reason) });
        }
    }

    // The reader names the byte of the line where it stopped, or no place where it cannot read.
    void AddSyntaxFault(const IOLError &error)
    {
        static const QRegularExpression pattern(u"^line (\\d+), column (\\d+)$"_s);
        const auto match = pattern.match(QString::fromStdString(error.Place()));
        std::optional<OLTextPlace> place;
        if (match.hasMatch()) {
            place = OLTextLines(TextOf(m_description))
                            .PlaceInLine(match.captured(1).toLongLong(),
                                         match.captured(2).toLongLong());
        }
        m_findings.push_back(
                { true, m_description, place, {}, QString::fromStdString(error.Reason()) });
    }

    std::optional<OLArtworkFile> ReadArtwork()
    {
        if (!QFileInfo::exists(m_artworkFile)) {
            AddArtworkFinding(false, u"there is no artwork file, so the picker shows no icons"_s);
            return std::nullopt;
        }
        ErrorPointer error;
        auto artwork = OLArtworkFile::Read(m_artworkFile.toStdString(), &error);
        if (!artwork) {
            const QString place = QString::fromStdString(error->Place());
            AddArtworkFinding(true,
                              place + (place.isEmpty() ? u""_s : u": "_s)
                                      + QString::fromStdString(error->Reason()));
            return std::nullopt;
        }
        CheckImages(*artwork);
        return artwork;
    }

    void CheckImages(const OLArtworkFile &artwork)
    {
        for (const OLArtworkImage &image : artwork.Images()) {
            if (OLArtworkImageGroup::Decode(image).isNull()) {
                AddArtworkFinding(true,
                                  u"face id %1, %2 x %3: not a PNG image of this size"_s
                                          .arg(QString::number(image.faceID),
                                               QString::number(image.size.width()),
                                               QString::number(image.size.height())));
            }
        }
        std::vector<OLJsonFault> remarks;
        RemarkOwnFaces(artwork, remarks);
        for (const OLJsonFault &remark : remarks)
            AddArtworkFinding(false, QString::fromStdString(remark.reason));
    }

    void AddArtworkFinding(bool isFault, QString text)
    {
        m_artworkFindings.push_back({ isFault, m_artworkFile, std::nullopt, {}, std::move(text) });
    }

    QString m_description;
    QString m_artworkFile;
    std::vector<OLFinding> m_findings;
    std::vector<OLFinding> m_artworkFindings;
};

} // namespace

QString OLFinding::ToLine() const
{
    QString line = file;
    if (place)
        line += u":%1:%2"_s.arg(place->line).arg(place->column);
    line += isFault ? u": error: "_s : u": warning: "_s;
    if (!pointer.isEmpty())
        line += pointer + u": "_s;
    return WithoutControls(line + text);
}

std::vector<OLFinding> CheckFormat(const QString &description)
{
    return Check(description).Run();
}

} // namespace Orlimo
