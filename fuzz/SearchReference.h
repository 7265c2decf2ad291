#pragma once

#include "SearchInput.h"

#include <string>
#include <vector>

namespace Fuzz {

// Folding and searching by their rules in the plainest way, on plain values. Keywords are in lower
// case already.

// Every well-formed UTF-8 sequence in lower case, every other byte as it is.
std::string Lowered(const std::string &text);

// What a search in root for keyword, which is not empty, gives.
PlainNode SearchResult(const PlainNode &root, const std::string &loweredKeyword);

// The recent choices among which the filter chooses: the first preset of every node that has one,
// with its node's texts. They are in the order of the tree.
struct PlainRecent
{
    const PlainNode *node;
    const PlainPreset *preset;
};

std::vector<PlainRecent> RecentChoices(const PlainNode &root);

// Whether the filter keeps a recent choice. An empty keyword keeps all.
bool IsKept(const PlainRecent &choice, const std::string &loweredKeyword);

} // namespace Fuzz
