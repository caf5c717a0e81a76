// The user's own rating of the rows of a season, beside the built-in one and averaged as that is: the formula
// is asked of the sums, and what it gives is divided. What a formula may ask for is OwnRating's (game).
#pragma once

#include "game/OwnRating.h"
#include "season/SeasonColumns.h"
#include "settings/Settings.h"

#include <optional>
#include <string>

namespace hooptab {

struct SeasonRating {
  std::string head, formula;
  OwnRating rating; // none: there is no formula, or it cannot be read

  [[nodiscard]] static SeasonRating of(const OwnRatingChoice& choice, const FormulaReader& reader);
  [[nodiscard]] bool isThere() const { return rating != nullptr; }
  [[nodiscard]] bool isSameAs(const SeasonRating& other) const {
    return formula == other.formula && head == other.head && isThere() == other.isThere();
  }
  // Nothing where the formula gives none, or there is no time to divide by.
  [[nodiscard]] std::optional<double> value(const SeasonRow& row, SeasonView view) const;
  // "12.5"; "–" for nothing.
  [[nodiscard]] std::string text(const SeasonRow& row, SeasonView view) const;
  // "Your own: PTS + 2 * ST".
  [[nodiscard]] std::string words(const Texts& texts) const;
};

// Head of its column, also where nobody gave it one.
[[nodiscard]] std::string ownRatingHead(const OwnRatingChoice& choice);

} // namespace hooptab
