#pragma once

#include "Comparison.h"

#include <functional>
#include <optional>
#include <string>

namespace Bench {

constexpr std::nullopt_t noAim = std::nullopt;

// How many times as long something may take that is ten times as large: it is to grow with the
// size, and the caches that hold only the smaller one may cost a fifth.
constexpr double mostGrowth = 12;

// One line of the table: what is measured against what, and the figure to reach, if any, in the
// unit of the comparison. The measuring is done when the line is printed.
void AddMeasure(std::string what, std::string size, std::optional<double> toReach,
                std::function<Comparison()> measure);

// Makes the application object, if it is not there yet. The measures of the model need none.
void NeedApplication();

// What a table of instructions consists of.
void AddCounts();

void AddGrowthMeasures();
void AddModelMeasures();
void AddPopupMeasures();
void AddWidgetMeasures();

} // namespace Bench
