// The one table of statistics: what is counted of a player, a line or a team, and what is computed from it.
// Box score, season, leaders, reports, exports and command line read it; text is made where a value is shown.
#pragma once

#include "game/EventKind.h"
#include "game/GameState.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// The counts of a row, wide enough for the sum of a whole team's 16-bit counts.
struct BoxCounters {
  std::array<std::int32_t, kCounterCount> counts = {};

  std::int32_t operator[](Counter counter) const { return counts[static_cast<std::size_t>(counter)]; }
  BoxCounters& operator+=(const Counters& added);
  friend bool operator==(const BoxCounters&, const BoxCounters&) = default;
};

// Some of the shot kinds, as bits: bit n for the kind at place n of the table of kinds.
using ShotKinds = unsigned;
[[nodiscard]] constexpr ShotKinds shotKinds(std::initializer_list<EventCode> codes) {
  ShotKinds kinds = 0;
  for (std::size_t i = 0; i < kEventKinds.size(); ++i) {
    for (const EventCode code : codes)
      kinds |= kEventKinds[i].isShot && kEventKinds[i].code == code ? 1U << i : 0U;
  }
  return kinds;
}
inline constexpr ShotKinds kAllShotKinds =
    shotKinds({EventCode::GFG, EventCode::GF3, EventCode::GFT, EventCode::GLG, EventCode::GLD, EventCode::GPB,
               EventCode::GDK});

// Numbers of a row, whatever it stands for.
struct BoxNumbers {
  BoxCounters counters;
  std::int32_t seconds = 0; // not below 0

  [[nodiscard]] int made(ShotKinds kinds = kAllShotKinds) const;
  [[nodiscard]] int attempted(ShotKinds kinds = kAllShotKinds) const;
  [[nodiscard]] int points(ShotKinds kinds = kAllShotKinds) const;
  [[nodiscard]] int rebounds() const; // OR + DR
  [[nodiscard]] int rating() const;   // PTS + OR + DR + Ast + ST + BS - ((A - M) + TO)
};

enum class ValueKind : std::uint8_t {
  Count,   // whole; an average of it is not
  Time,    // seconds
  Percent, // 0.5 for 50 %; has no average
};

// Exactly, as a fraction. `denominator` 0: there is nothing to divide by.
struct StatisticValue {
  std::int64_t numerator = 0;
  std::int64_t denominator = 1;
};

// As it is shown: "12", "12:34", "45.5%".
[[nodiscard]] std::string valueText(const StatisticValue& value, ValueKind kind);
// The number by which it sorts; what has nothing to divide by comes below 0 %.
[[nodiscard]] double sortValue(const StatisticValue& value);

// Shots that are counted together, in four statistics of their own.
enum class ShotPart : std::uint8_t { Made, Attempted, Percent, Points };
struct ShotGroup {
  std::string_view name; // "F3"
  ShotKinds kinds;
  Text words; // of its statistics
  Text title; // over its columns; none: the name
};
// All shots first.
[[nodiscard]] std::span<const ShotGroup> shotGroups();

struct Statistic {
  std::string_view name;     // among a season's, for files and the command line: "F2M", "Ast"
  std::string_view gameName; // the same among a game's: "FGM"
  ValueKind kind;
  int boxColumn; // creation index in a game's table, and in a season's; 0: not there
  int seasonColumn;
  StatisticValue (*value)(const BoxNumbers&); // of totals
  const ShotGroup* group = nullptr;           // with `part`, where it is of shots
  ShotPart part = ShotPart::Made;
  Text header = Text::None; // short; none: the name, "PTS" for points
  Text words = Text::None;  // none: of the kind of event, or of group and part
  Text title = Text::None;  // where the words are a whole formula
  int own = -1;             // which of the user's own two; -1: none of them
  ShotKinds tries = 0;      // of a percentage: the shots that one must have tried to lead in it

  [[nodiscard]] bool isShotPart(ShotPart which) const { return group != nullptr && part == which; }
  [[nodiscard]] bool isOfAllShots() const { return group == shotGroups().data(); }
  // Whom it is good to have most of: everything but attempts, and points of one kind of shot.
  [[nodiscard]] bool hasLeaders() const {
    return !isShotPart(ShotPart::Attempted) && (!isShotPart(ShotPart::Points) || isOfAllShots());
  }
};

// In the order of a season's columns.
[[nodiscard]] std::span<const Statistic> statistics();
// By its name among a season's; throws std::invalid_argument for one that is in no table.
[[nodiscard]] const Statistic& statisticNamed(std::string_view name);

} // namespace hooptab
