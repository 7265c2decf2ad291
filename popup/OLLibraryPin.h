#pragma once

namespace Orlimo {

// Keeps this library loaded until the process ends, whatever the host closes. The windows are never
// destroyed and would otherwise outlive their code.
void KeepLibraryLoaded();

} // namespace Orlimo
