// Makes a rating of a formula that the user typed: the one place that knows the library that calculates it.
// What a formula may ask for is in game/OwnRating.h, what else may stand in it in FormulaCheck.
#pragma once

#include "game/OwnRating.h"

namespace hooptab {

// A FormulaReader. The decimal point is a point in every locale; nothing of a formula has an effect.
[[nodiscard]] FormulaReading readFormula(std::string_view formula);

} // namespace hooptab
