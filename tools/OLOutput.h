#pragma once

#include <QString>

#include <cstdio>

namespace Orlimo {

// Writes the text in UTF-8 on every platform; to a console of Windows, which shows bytes in a code
// page of its own, in UTF-16.
void Print(std::FILE *stream, const QString &text);

} // namespace Orlimo
