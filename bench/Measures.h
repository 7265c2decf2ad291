#pragma once

#include "Comparison.h"

#include <functional>
#include <string>

namespace Bench {

// One line of the table: what is measured against what, and the figure to reach, in the unit of the
// comparison. The measuring is done when the line is printed.
void AddMeasure(std::string what, std::string size, double toReach,
                std::function<Comparison()> measure);

void AddModelMeasures();
void AddPopupMeasures();
void AddWidgetMeasures();

} // namespace Bench
