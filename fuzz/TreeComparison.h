#pragma once

#include <memory>

namespace Orlimo {
class IOLFormatNode;
}

namespace Fuzz {

// Requires that two trees are equal in every node and preset, by the library's own comparisons in
// both directions. The encoders of the first presets only are compared, as each preset that is
// asked for them makes objects of its own; the written texts tell of the others.
void RequireSameTree(const std::shared_ptr<Orlimo::IOLFormatNode> &left,
                     const std::shared_ptr<Orlimo::IOLFormatNode> &right);

} // namespace Fuzz
