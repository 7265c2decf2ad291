#pragma once

#include <QByteArrayView>

namespace Fuzz {

// What is done with every input of a target. Each returns where the library kept its promises,
// throws Violation where it did not, and leaves nothing behind that the next input could notice.
// They need the application object and, but for Search, private settings.

// A description: a tree that can be read is written as text, which reads back as the same tree.
void FormatTree(QByteArrayView input);

// An artwork file: no icon but for the face ids in its table, and only in sizes that stand there.
void Artwork(QByteArrayView input);

// What the settings hold for both stored trees: the bytes after an "r" as they are, those after
// anything else in base64. What the data source made of it is there again after it was saved.
void StoredPresets(QByteArrayView input);

// A keyword and a tree, in the layout of SearchInput.h: folding, search and filter give what plain
// code gives.
void Search(QByteArrayView input);

} // namespace Fuzz
