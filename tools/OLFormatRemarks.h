#pragma once

#include "OLJsonMembers.h"

#include <vector>

namespace Orlimo {

class IOLFormatNode;
class OLArtworkFile;

// What the picker accepts in a description and its maker will hardly have meant. Each function
// appends to remarks, under the pointer to the value.

// Empty names, and siblings with one name, of which only the first can be found by it.
void RemarkNames(const IOLFormatNode &root, std::vector<OLJsonFault> &remarks);

// Tables of the document that root was read from which no preset leads to, and empty names of
// encoders.
void RemarkTables(const QJsonObject &document, const IOLFormatNode &root,
                  std::vector<OLJsonFault> &remarks);

// Face ids without an image, and the sizes that the picker draws and has to scale another image to.
// Each face is named once, at the first value that has it.
void RemarkFaces(const IOLFormatNode &root, const OLArtworkFile &artwork,
                 std::vector<OLJsonFault> &remarks);

// The same of the face ids of the picker's own tabs, which no value names.
void RemarkOwnFaces(const OLArtworkFile &artwork, std::vector<OLJsonFault> &remarks);

} // namespace Orlimo
