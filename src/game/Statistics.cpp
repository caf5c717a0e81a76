#include "game/Statistics.h"

#include "storage/Module1.h"

#include <algorithm>
#include <stdexcept>

namespace hooptab {

namespace {

constexpr Text wordsOf(EventCode code) {
  return kindOf(code)->wordsText;
}

enum Group : std::size_t { All, Two, Three, FreeThrow, FieldGoal, LayupLeft, LayupRight, PutBack, Dunk };

// clang-format off
constexpr ShotGroup kShotGroups[] = {
    {"TG", kAllShotKinds, Text::AllShots, Text::EveryShot},
    {"F2", shotKinds({EventCode::GFG}), wordsOf(EventCode::GFG), wordsOf(EventCode::GFG)},
    {"F3", shotKinds({EventCode::GF3}), wordsOf(EventCode::GF3), wordsOf(EventCode::GF3)},
    {"FT", shotKinds({EventCode::GFT}), wordsOf(EventCode::GFT), wordsOf(EventCode::GFT)},
    {"FG", shotKinds({EventCode::GFG, EventCode::GF3}), Text::FieldGoals, Text::None}, // those with a place on the court
    {"LL", shotKinds({EventCode::GLG}), wordsOf(EventCode::GLG), wordsOf(EventCode::GLG)},
    {"LR", shotKinds({EventCode::GLD}), wordsOf(EventCode::GLD), wordsOf(EventCode::GLD)},
    {"PB", shotKinds({EventCode::GPB}), wordsOf(EventCode::GPB), wordsOf(EventCode::GPB)},
    {"DK", shotKinds({EventCode::GDK}), wordsOf(EventCode::GDK), wordsOf(EventCode::GDK)},
};
// clang-format on

template <Counter counter>
constexpr Statistic counted(std::string_view name, int boxColumn, int seasonColumn) {
  return {name,      name,         ValueKind::Count,
          boxColumn, seasonColumn, [](const BoxNumbers& of) { return StatisticValue{of.counters[counter]}; }};
}

// One of the user's own two, which a season calls otherwise than a game.
template <Counter counter>
constexpr Statistic own(int number, std::string_view name, std::string_view gameName, int boxColumn,
                        int seasonColumn) {
  Statistic statistic = counted<counter>(name, boxColumn, seasonColumn);
  statistic.gameName = gameName;
  statistic.own = number;
  return statistic;
}

template <Group group, ShotPart part>
constexpr StatisticValue ofShots(const BoxNumbers& of) {
  constexpr ShotKinds kinds = kShotGroups[group].kinds;
  switch (part) {
  case ShotPart::Made: return {of.made(kinds)};
  case ShotPart::Attempted: return {of.attempted(kinds)};
  case ShotPart::Percent: return {of.made(kinds), of.attempted(kinds)};
  case ShotPart::Points: return {of.points(kinds)};
  }
  return {};
}

template <Group group, ShotPart part>
constexpr Statistic shots(std::string_view name, std::string_view gameName, int boxColumn, int seasonColumn) {
  constexpr bool isPercent = part == ShotPart::Percent;
  return {.name = name,
          .gameName = gameName,
          .kind = isPercent ? ValueKind::Percent : ValueKind::Count,
          .boxColumn = boxColumn,
          .seasonColumn = seasonColumn,
          .value = ofShots<group, part>,
          .group = &kShotGroups[group],
          .part = part,
          .tries = isPercent ? kShotGroups[group].kinds : 0U};
}

using enum ShotPart;

// Of all shots: what everybody calls points.
constexpr Statistic points(int boxColumn, int seasonColumn) {
  Statistic statistic = shots<All, Points>("PTS", "PTS", boxColumn, seasonColumn);
  statistic.words = Text::PointsScored;
  return statistic;
}

// clang-format off
constexpr Statistic kStatistics[] = {
    {"Time", "Time", ValueKind::Time, 3, 3, [](const BoxNumbers& of) { return StatisticValue{of.seconds}; },
     nullptr, Made, Text::Time, Text::TimeToolTip},
    counted<Counter::PF>("PF", 4, 5),
    counted<Counter::TF>("TF", 48, 6),
    {"rating", "rating", ValueKind::Count, 34, 7, [](const BoxNumbers& of) { return StatisticValue{of.rating()}; },
     nullptr, Made, Text::Rating, Text::RatingFormula, Text::RatingCapital},
    shots<All, Made>("TGM", "M", 5, 8),
    shots<All, Attempted>("TGA", "A", 6, 9),
    shots<All, Percent>("%", "%", 7, 10),
    points(8, 11),
    shots<Two, Made>("F2M", "FGM", 9, 12),
    shots<Two, Attempted>("F2A", "FGA", 10, 13),
    shots<Two, Percent>("F2%", "FG%", 11, 14),
    shots<Two, Points>("F2PTS", "FGPTS", 12, 15),
    shots<Three, Made>("F3M", "F3M", 13, 16),
    shots<Three, Attempted>("F3A", "F3A", 14, 17),
    shots<Three, Percent>("F3%", "F3%", 15, 18),
    shots<Three, Points>("F3PTS", "F3PTS", 16, 19),
    shots<FreeThrow, Made>("FTM", "FTM", 21, 20),
    shots<FreeThrow, Attempted>("FTA", "FTA", 22, 21),
    shots<FreeThrow, Percent>("FT%", "FT%", 23, 22),
    shots<FreeThrow, Points>("FTPTS", "FTPTS", 24, 23),
    shots<FieldGoal, Made>("FGM", {}, 0, 24),
    shots<FieldGoal, Attempted>("FGA", {}, 0, 25),
    shots<FieldGoal, Percent>("FG%", {}, 0, 26),
    shots<FieldGoal, Points>("FGPTS", {}, 0, 27),
    shots<LayupLeft, Made>("LLM", "LLM", 17, 28),
    shots<LayupLeft, Attempted>("LLA", "LLA", 18, 29),
    shots<LayupLeft, Percent>("LL%", "LL%", 19, 30),
    shots<LayupLeft, Points>("LLPTS", "LLPTS", 20, 31),
    shots<LayupRight, Made>("LRM", "LRM", 35, 32),
    shots<LayupRight, Attempted>("LRA", "LRA", 36, 33),
    shots<LayupRight, Percent>("LR%", "LR%", 37, 34),
    shots<LayupRight, Points>("LRPTS", "LRPTS", 38, 35),
    shots<PutBack, Made>("PBM", "PBM", 39, 36),
    shots<PutBack, Attempted>("PBA", "PBA", 40, 37),
    shots<PutBack, Percent>("PB%", "PB%", 41, 38),
    shots<PutBack, Points>("PBPTS", "PBPTS", 42, 39),
    shots<Dunk, Made>("DKM", "DKM", 44, 40),
    shots<Dunk, Attempted>("DKA", "DKA", 45, 41),
    shots<Dunk, Percent>("DK%", "DK%", 46, 42),
    shots<Dunk, Points>("DKPTS", "DKPTS", 47, 43),
    counted<Counter::Ast>("Ast", 25, 44),
    counted<Counter::BS>("BS", 26, 45),
    counted<Counter::ST>("ST", 27, 46),
    counted<Counter::TO>("TO", 28, 47),
    counted<Counter::OR>("OR", 29, 48),
    counted<Counter::DR>("DR", 30, 49),
    {"TR", {}, ValueKind::Count, 0, 50, [](const BoxNumbers& of) { return StatisticValue{of.rebounds()}; },
     nullptr, Made, Text::None, Text::TotalRebounds},
    own<Counter::S1>(0, "U1", "S1", 31, 51),
    own<Counter::S2>(1, "U2", "S2", 32, 52),
};
// clang-format on

template <class Number>
int sumOfShots(ShotKinds kinds, Number number) {
  int sum = 0;
  for (std::size_t i = 0; i < kEventKinds.size(); ++i) {
    if ((kinds & (1U << i)) != 0)
      sum += number(kEventKinds[i]);
  }
  return sum;
}

} // namespace

BoxCounters& BoxCounters::operator+=(const Counters& added) {
  for (std::size_t i = 0; i < kCounterCount; ++i)
    counts[i] += added.counts[i];
  return *this;
}

int BoxNumbers::made(ShotKinds kinds) const {
  return sumOfShots(kinds, [this](const EventKind& kind) { return counters[kind.counter]; });
}
int BoxNumbers::attempted(ShotKinds kinds) const {
  return sumOfShots(kinds, [this](const EventKind& kind) { return counters[kind.attempts]; });
}
int BoxNumbers::points(ShotKinds kinds) const {
  return sumOfShots(kinds, [this](const EventKind& kind) { return counters[kind.counter] * kind.points; });
}
int BoxNumbers::rebounds() const {
  return counters[Counter::OR] + counters[Counter::DR];
}

int BoxNumbers::rating() const {
  const int good =
      points() + rebounds() + counters[Counter::Ast] + counters[Counter::ST] + counters[Counter::BS];
  return good - ((attempted() - made()) + counters[Counter::TO]);
}

std::string valueText(const StatisticValue& value, ValueKind kind) {
  switch (kind) {
  case ValueKind::Count: break;
  case ValueKind::Time: return Module1::clockText(static_cast<int>(value.numerator));
  case ValueKind::Percent:
    return Module1::percentText(static_cast<int>(value.numerator), static_cast<int>(value.denominator));
  }
  return std::to_string(value.numerator);
}

double sortValue(const StatisticValue& value) {
  return value.denominator > 0 ? static_cast<double>(value.numerator) / static_cast<double>(value.denominator)
                               : -1;
}

std::span<const ShotGroup> shotGroups() {
  return kShotGroups;
}

std::span<const Statistic> statistics() {
  return kStatistics;
}

const Statistic& statisticNamed(std::string_view name) {
  const Statistic* found = std::ranges::find(kStatistics, name, &Statistic::name);
  if (found == std::end(kStatistics))
    throw std::invalid_argument("no statistic " + std::string(name));
  return *found;
}

} // namespace hooptab
