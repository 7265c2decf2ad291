#pragma once

#include "Comparison.h"

#include <functional>
#include <optional>
#include <string>

namespace Bench {

constexpr std::nullopt_t noAim = std::nullopt;

// One line of the table: what is measured against what, and the figure to reach, if any, in the
// unit of the comparison. The measuring is done when the line is printed.
void AddMeasure(std::string what, std::string size, std::optional<double> toReach,
                std::function<Comparison()> measure);

// Makes the application object, if it is not there yet. It comes after the measures of the model:
// Qt leaves the vector registers of a thread in a state that makes some processors slow.
void NeedApplication();

void AddModelMeasures();
void AddPopupMeasures();
void AddWidgetMeasures();

} // namespace Bench
