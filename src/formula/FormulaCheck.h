// Looks at a formula before it is calculated with: only what belongs into one is let through, and what is
// wrong is told with its place. Calculates nothing.
#pragma once

#include "game/OwnRating.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct FormulaFunction {
  std::string_view name;
  std::size_t fewest, most; // values that it takes
};
[[nodiscard]] std::span<const FormulaFunction> formulaFunctions();

struct CheckedFormula {
  std::string text;                      // character for character, names in capitals, functions small
  std::vector<const RatingName*> names;  // that it asks for, each once
  std::optional<FormulaProblem> problem; // the first one
  [[nodiscard]] bool isEmpty() const { return text.find_first_not_of(' ') == std::string::npos; }
};
// Numbers with a decimal point, names, + - * / ^, comparisons, brackets, and commas between the values of a
// function. Whether they stand in an order that makes sense is not looked at.
[[nodiscard]] CheckedFormula checkFormula(std::string_view formula);

} // namespace hooptab
