#pragma once

#include <QByteArray>
#include <QSize>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Orlimo {

class IOLError;

// One image of an artwork file: its face id, its size in pixels and its encoded bytes.
struct OLArtworkImage
{
    int faceID = 0;
    QSize size;
    QByteArray png;
};

// An artwork file in memory, in the layout that docs/artwork-file.md gives.
class OLArtworkFile
{
public:
    // The images ordered by face id and size. No value where they break a rule of the layout; then
    // reason says which.
    static std::optional<OLArtworkFile> FromImages(std::vector<OLArtworkImage> images,
                                                   std::string &reason);

    // Checks the table, decodes nothing. No value where the file cannot be read or breaks the
    // layout; then error, where it is not null, says why.
    static std::optional<OLArtworkFile> Read(const std::string &path,
                                             std::shared_ptr<const IOLError> *error);

    // All images, ordered by face id and size.
    std::span<const OLArtworkImage> Images() const { return m_images; }

    // The images of a face id from the smallest to the largest; none where the file has none.
    std::span<const OLArtworkImage> Images(int faceID) const;

    QByteArray ToBytes() const;

private:
    QByteArray m_bytes; // what the images' bytes point into, where they were read from a file
    std::vector<OLArtworkImage> m_images;
};

} // namespace Orlimo
