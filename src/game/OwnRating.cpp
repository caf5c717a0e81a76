#include "game/OwnRating.h"

#include "storage/Placeholders.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <vector>

namespace hooptab {

namespace {

std::string inCapitals(std::string_view name) {
  std::string capitals(name);
  for (char& letter : capitals)
    letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  return capitals;
}

// Counters as files know them, then what is computed of them.
std::vector<RatingName> makeNames(std::span<const std::string> counters) {
  std::vector<RatingName> names;
  for (std::size_t i = 0; i < counters.size(); ++i)
    names.push_back({counters[i], [counter = static_cast<Counter>(i)](const RatedNumbers& of) {
                       return std::optional<double>(of.box.counters[counter]);
                     }});
  names.push_back({"PTS", [](const RatedNumbers& of) { return std::optional<double>(of.box.points()); }});
  names.push_back({"TR", [](const RatedNumbers& of) { return std::optional<double>(of.box.rebounds()); }});
  names.push_back({"MIN", [](const RatedNumbers& of) { return std::optional(of.box.seconds / 60.0); }});
  names.push_back({"FD", [](const RatedNumbers& of) {
                     return of.extras ? std::optional<double>(of.extras->foulsDrawn) : std::nullopt;
                   }});
  names.push_back({"BA", [](const RatedNumbers& of) {
                     return of.extras ? std::optional<double>(of.extras->blocksAgainst) : std::nullopt;
                   }});
  names.push_back({"PM", [](const RatedNumbers& of) {
                     return of.plusMinus ? std::optional<double>(*of.plusMinus) : std::nullopt;
                   }});
  return names;
}

} // namespace

std::span<const RatingName> ratingNames() {
  static const std::array<std::string, kCounterCount> kCounters = [] {
    std::array<std::string, kCounterCount> counters;
    for (std::size_t i = 0; i < counters.size(); ++i)
      counters[i] = inCapitals(counterName(static_cast<Counter>(i)));
    return counters;
  }();
  static const std::vector<RatingName> kNames = makeNames(kCounters);
  return kNames;
}

std::string wordsOf(const FormulaProblem& problem, const Texts& texts) {
  const std::string place = std::to_string(problem.character);
  switch (problem.fault) {
  case FormulaFault::UnknownName:
    return withPlaceholders(texts.text(Text::OwnRatingUnknown), problem.name, place);
  case FormulaFault::Broken: return texts.withPlaceholder(Text::OwnRatingBroken, place);
  case FormulaFault::Bracket: return texts.withPlaceholder(Text::OwnRatingBracket, place);
  case FormulaFault::Arguments:
    return withPlaceholders(texts.text(Text::OwnRatingArguments), problem.name, place);
  case FormulaFault::TooLong:
    return texts.withPlaceholder(Text::OwnRatingTooLong, std::to_string(kLongestFormula));
  }
  return {};
}

std::optional<double> ownRatingOf(const OwnRating& rating, const RatedNumbers& numbers) {
  return rating ? rating(numbers) : std::nullopt;
}

std::string ownRatingText(const std::optional<double>& value) {
  constexpr double kLongestInFull = 1e7;
  if (!value)
    return "–";
  std::array<char, 32> digits = {};
  const bool isShort = std::abs(*value) < kLongestInFull;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), *value,
                    isShort ? std::chars_format::fixed : std::chars_format::scientific, isShort ? 1 : 3);
  const std::string text(digits.data(), end.ptr);
  return text == "-0.0" ? "0.0" : text;
}

} // namespace hooptab
