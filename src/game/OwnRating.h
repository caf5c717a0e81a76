// A rating that the user thought up: what a formula may ask for by name, and what comes of reading one. Who
// reads formulas is handed down (FormulaReader), so that whoever shows the rating needs no library for it.
#pragma once

#include "game/Statistics.h"
#include "settings/Texts.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// Of a player, a line or a team.
struct RatedNumbers {
  BoxNumbers box;
  std::optional<PlayerExtras> extras = {}; // none: not counted, as of a line
  std::optional<int> plusMinus = {};       // none: of a game without line-ups
};

// What a formula may name: "PTS", "MIN". No letter case tells two of them apart.
struct RatingName {
  std::string_view name;
  std::function<std::optional<double>(const RatedNumbers&)> value;
};
[[nodiscard]] std::span<const RatingName> ratingNames();

// What a formula gives; nothing where it asks for what is not counted, or where no finite number comes out.
// May be asked by several threads.
using OwnRating = std::function<std::optional<double>(const RatedNumbers&)>;

enum class FormulaFault { UnknownName, Broken, Bracket, Arguments, TooLong };
struct FormulaProblem {
  FormulaFault fault = FormulaFault::Broken;
  std::size_t character = 0; // counted from 1
  std::string name = {};     // that is unknown, or has another number of values
  friend bool operator==(const FormulaProblem&, const FormulaProblem&) = default;
};

// Of an empty formula neither: there is no rating of the user's own.
struct FormulaReading {
  OwnRating rating;
  std::optional<FormulaProblem> problem = {};
};
using FormulaReader = std::function<FormulaReading(std::string_view formula)>;

inline constexpr std::size_t kLongestFormula = 200; // characters
[[nodiscard]] std::string wordsOf(const FormulaProblem& problem, const Texts& texts);

// The value, nothing without a rating of the user's own.
[[nodiscard]] std::optional<double> ownRatingOf(const OwnRating& rating, const RatedNumbers& numbers);
// "12.5", whatever the locale says; "–" for nothing.
[[nodiscard]] std::string ownRatingText(const std::optional<double>& value);

} // namespace hooptab
