#pragma once

#include "Comparison.h"

#include <QString>

#include <memory>

namespace Orlimo {
class IOLFmtPresetDataSource;
class IOLFormatNode;
} // namespace Orlimo

namespace Bench {

std::shared_ptr<Orlimo::IOLFormatNode> LoadedTree(const QString &path);

// The data source with every preset of a description chosen once, and no other. All are chosen
// under one format, so that no two choices differ before their names.
std::shared_ptr<Orlimo::IOLFmtPresetDataSource> WithRecentChoices(const QString &path);

// The load of a description, and the parse of its bytes alone.
Rounds CompareLoads(const QString &path, int rounds);
// A search that finds nothing, and the same texts searched in one vector.
Rounds CompareFinds(const QString &path, int rounds);
// Saving every preset of a description as a recent choice, and writing the same bytes.
Rounds CompareSaves(const QString &path, int rounds);

} // namespace Bench
