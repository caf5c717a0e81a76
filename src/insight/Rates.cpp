#include "insight/Rates.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

namespace hooptab {

namespace {

constexpr double kThrowsThatEndOne = 0.44; // free throws that end a possession, of all
constexpr ShotKinds kThrees = shotKinds({EventCode::GF3});
constexpr ShotKinds kThrows = shotKinds({EventCode::GFT});
constexpr ShotKinds kField = kAllShotKinds & ~kThrows;
constexpr ShotKinds kTwos = kField & ~kThrees;
constexpr double kHundred = 100;

std::optional<double> ratio(double numerator, double denominator) {
  return denominator > 0 ? std::optional(numerator / denominator) : std::nullopt;
}
std::optional<double> hundredfold(double numerator, double denominator) {
  return ratio(kHundred * numerator, denominator);
}

BoxNumbers ofTeam(const RateBasis& basis) {
  return basis.meanwhile.numbers(basis.team);
}
BoxNumbers ofOthers(const RateBasis& basis) {
  return basis.meanwhile.numbers(otherSide(basis.team));
}
int possessionsOf(const RateBasis& basis) {
  return basis.meanwhile.possessions[basis.team];
}
int possessionsAgainst(const RateBasis& basis) {
  return basis.meanwhile.possessions[otherSide(basis.team)];
}
// Ways in which whoever has the ball ends a possession.
double used(const BoxNumbers& numbers) {
  return numbers.attempted(kField) + kThrowsThatEndOne * numbers.attempted(kThrows) +
         numbers.counters[Counter::TO];
}

std::optional<double> effective(const RateBasis& basis) {
  return ratio(basis.own.made(kField) + 0.5 * basis.own.made(kThrees), basis.own.attempted(kField));
}
std::optional<double> trueShooting(const RateBasis& basis) {
  return ratio(basis.own.points(),
               2 * (basis.own.attempted(kField) + kThrowsThatEndOne * basis.own.attempted(kThrows)));
}
std::optional<double> twoPointers(const RateBasis& basis) {
  return ratio(basis.own.made(kTwos), basis.own.attempted(kTwos));
}
std::optional<double> threePointers(const RateBasis& basis) {
  return ratio(basis.own.made(kThrees), basis.own.attempted(kThrees));
}
std::optional<double> freeThrows(const RateBasis& basis) {
  return ratio(basis.own.made(kThrows), basis.own.attempted(kThrows));
}
std::optional<double> turnovers(const RateBasis& basis) {
  return hundredfold(basis.own.counters[Counter::TO], used(basis.own));
}
std::optional<double> offensiveRebounds(const RateBasis& basis) {
  const int own = basis.own.counters[Counter::OR];
  const int available = ofTeam(basis).counters[Counter::OR] + ofOthers(basis).counters[Counter::DR];
  return ratio(own, available);
}
std::optional<double> rebounds(const RateBasis& basis) {
  return ratio(basis.own.rebounds(), ofTeam(basis).rebounds() + ofOthers(basis).rebounds());
}
std::optional<double> throwsMade(const RateBasis& basis) {
  return hundredfold(basis.own.made(kThrows), basis.own.attempted(kField));
}
std::optional<double> pointsPerShot(const RateBasis& basis) {
  return ratio(basis.own.points(kField), basis.own.attempted(kField));
}
std::optional<double> usage(const RateBasis& basis) {
  return ratio(used(basis.own), used(ofTeam(basis)));
}
std::optional<double> assists(const RateBasis& basis) {
  return ratio(basis.own.counters[Counter::Ast], ofTeam(basis).made(kField) - basis.own.made(kField));
}
std::optional<double> steals(const RateBasis& basis) {
  return hundredfold(basis.own.counters[Counter::ST], possessionsAgainst(basis));
}
std::optional<double> blocks(const RateBasis& basis) {
  return ratio(basis.own.counters[Counter::BS], ofOthers(basis).attempted(kTwos));
}
std::optional<double> offensive(const RateBasis& basis) {
  return hundredfold(basis.meanwhile.points(basis.team), possessionsOf(basis));
}
std::optional<double> defensive(const RateBasis& basis) {
  return hundredfold(basis.meanwhile.points(otherSide(basis.team)), possessionsAgainst(basis));
}
std::optional<double> net(const RateBasis& basis) {
  const auto scored = offensive(basis);
  const auto allowed = defensive(basis);
  return scored && allowed ? std::optional(*scored - *allowed) : std::nullopt;
}
std::optional<double> pace(const RateBasis& basis) {
  constexpr double kGame = 40 * 60;
  return ratio(kGame * (possessionsOf(basis) + possessionsAgainst(basis)) / 2, basis.meanwhile.seconds);
}
// Technical ones are among those that box scores publish.
int foulsOf(const BoxNumbers& numbers) {
  return numbers.counters[Counter::PF] + numbers.counters[Counter::TF];
}
std::optional<double> index(const RateBasis& basis) {
  return basis.own.rating() + basis.extras.foulsDrawn - foulsOf(basis.own) - basis.extras.blocksAgainst;
}
std::optional<double> gameScore(const RateBasis& basis) {
  const BoxNumbers& own = basis.own;
  const auto of = [&own](Counter counter) { return own.counters[counter]; };
  return own.points() + 0.4 * own.made(kField) - 0.7 * own.attempted(kField) -
         0.4 * (own.attempted(kThrows) - own.made(kThrows)) + 0.7 * of(Counter::OR) + 0.3 * of(Counter::DR) +
         of(Counter::ST) + 0.7 * of(Counter::Ast) + 0.7 * of(Counter::BS) - 0.4 * foulsOf(own) -
         of(Counter::TO);
}

constexpr std::array kRates = {
    Rate{"eFG", Text::EffectiveFieldGoals, Text::EffectiveTip, RateKind::Share, effective},
    Rate{"TOrate", Text::TurnoversPerHundred, Text::TurnoverRateTip, RateKind::Number, turnovers, false,
         true},
    Rate{"ORpct", Text::OffensiveReboundRate, Text::OffensiveReboundRateTip, RateKind::Share,
         offensiveRebounds},
    Rate{"FTrate", Text::FreeThrowRate, Text::FreeThrowRateTip, RateKind::Number, throwsMade},
    Rate{"F2pct", Text::TwoPointRate, Text::None, RateKind::Share, twoPointers},
    Rate{"F3pct", Text::ThreePointRate, Text::None, RateKind::Share, threePointers},
    Rate{"FTpct", Text::FreeThrowPercent, Text::None, RateKind::Share, freeThrows},
    Rate{"TS", Text::TrueShootingWord, Text::TrueShootingTip, RateKind::Share, trueShooting},
    Rate{"pointsPerShot", Text::PointsPerShotWord, Text::None, RateKind::Number, pointsPerShot},
    Rate{"usage", Text::UsageWord, Text::UsageTip, RateKind::Share, usage, true},
    Rate{"ASTpct", Text::AssistRateWord, Text::AssistRateTip, RateKind::Share, assists, true},
    Rate{"REBpct", Text::ReboundRateWord, Text::ReboundRateTip, RateKind::Share, rebounds},
    Rate{"STLrate", Text::StealRateWord, Text::StealRateTip, RateKind::Number, steals},
    Rate{"BLKpct", Text::BlockRateWord, Text::BlockRateTip, RateKind::Share, blocks},
    Rate{"offRating", Text::RatingOffensive, Text::RatingPerHundredTip, RateKind::Number, offensive},
    Rate{"defRating", Text::RatingDefensive, Text::RatingPerHundredTip, RateKind::Number, defensive, false,
         true},
    Rate{"netRating", Text::RatingNet, Text::RatingPerHundredTip, RateKind::Number, net},
    Rate{"pace", Text::PaceWord, Text::PaceTip, RateKind::Number, pace},
    Rate{"index", Text::IndexWord, Text::IndexTip, RateKind::Number, index, true},
    Rate{"gameScore", Text::GameScoreWord, Text::GameScoreTip, RateKind::Number, gameScore, true},
};

} // namespace

std::span<const Rate> rates() {
  return kRates;
}

const Rate& rateNamed(std::string_view name) {
  const auto found = std::ranges::find(kRates, name, &Rate::name);
  if (found == kRates.end())
    throw std::invalid_argument("no rate " + std::string(name));
  return *found;
}

std::string rateText(const Rate& rate, const std::optional<double>& value) {
  if (!value)
    return "–";
  // snprintf follows the locale of C, which the program leaves as it was: a decimal point.
  std::array<char, 32> text = {};
  const double shown = rate.kind == RateKind::Share ? kHundred * *value : *value;
  std::snprintf(text.data(), text.size(), "%.1f", shown);
  return text.data();
}

} // namespace hooptab
