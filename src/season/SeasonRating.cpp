#include "season/SeasonRating.h"

#include "insight/SignedText.h"

#include <array>
#include <cmath>

namespace hooptab {

namespace {

// By what a sum is divided; 0: there is nothing to divide by.
double divisorOf(const SeasonRow& row, SeasonView view) {
  switch (view) {
  case SeasonView::Totals: break;
  case SeasonView::PerGame: return row.games;
  case SeasonView::PerMinute: return row.numbers.seconds / 60.0;
  case SeasonView::PerForty: return row.numbers.seconds / 2400.0;
  }
  return 1;
}

// Without a sign where it is a plus, which only differences wear.
std::string withDecimals(double value, int decimals) {
  const std::string text = signedText(value, decimals);
  return text.starts_with('+') ? text.substr(1) : text;
}

} // namespace

std::string ownRatingHead(const OwnRatingChoice& choice) {
  return choice.name.empty() ? "OWN" : choice.name;
}

SeasonRating SeasonRating::of(const OwnRatingChoice& choice, const FormulaReader& reader) {
  return {ownRatingHead(choice), choice.formula, reader ? reader(choice.formula).rating : OwnRating()};
}

std::optional<double> SeasonRating::value(const SeasonRow& row, SeasonView view) const {
  const std::optional<double> sum = ownRatingOf(rating, {row.numbers, row.extras, row.plusMinus()});
  const double divisor = divisorOf(row, view);
  return sum && divisor > 0 ? std::optional(*sum / divisor) : std::nullopt;
}

std::string SeasonRating::text(const SeasonRow& row, SeasonView view) const {
  const std::optional<double> shown = value(row, view);
  return shown && view == SeasonView::PerMinute ? withDecimals(*shown, 2)
                                                : withWideMinus(ownRatingText(shown));
}

std::string SeasonRating::words(const Texts& texts) const {
  return texts.withPlaceholder(Text::OwnRatingTip, formula);
}

} // namespace hooptab
