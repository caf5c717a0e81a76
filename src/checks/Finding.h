// What a check finds in a game. Each kind is the number of the text that names it, and is either wrong, which
// no game can be, or doubtful, which is worth a look.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace hooptab {

// The comments say what stands in a finding's `subject`, `found` and `wanted`. Where a player or a team is
// meant, `team` and `jersey` name it.
enum class FindingKind {
  // Doubtful:
  NotOnCourt = 1966,
  FewerThanFive = 1967, // found: how many
  OtherTime = 1968,     // of the players in the period; found and wanted: clocks
  FouledOutBefore = 1969,
  AssistWithoutBasket = 1970,
  GameWithoutStop = 2653,
  NumbersAtEndMissing = 2654, // subject: EVENUM; found: the highest number
  NumbersMissing = 2655,      // subject: "5", "5–9"
  NotInRoster = 2656,
  OnCourtNotInRoster = 2657,
  ClockRises = 2658,       // subject and found: clocks
  ClockAbovePeriod = 2659, // subject and found: clocks
  Swapped = 2660,          // subject and found: the events' numbers
  TwoFromThree = 2661,
  ThreeFromInside = 2662,
  AfterClose = 2663,
  NotClosedAtZero = 2664, // subject: the period; found: the clock
  Tied = 2665,            // subject: the score
  NoTeam = 2666,
  MoreThanFifteen = 2667, // found: how many
  ImpossibleDate = 2668,  // subject: the date
  ReboundAfterMade = 2669,
  Burst = 2670,        // subject: how many at one second
  NearlyOurs = 2671,   // subject: the section; found: ours
  SectionTwice = 2672, // subject: the section
  // Wrong:
  Twice = 1971,
  UnknownClock = 2673,
  UnknownCode = 2674, // subject: the code
  UnknownPlayer = 2675,
  UnknownList = 2676,
  NoEventNumber = 2677, // subject: the key
  NoEqualsSign = 2678,  // subject: the line; found: the section
  NumberTwice = 2679,   // subject: the number
  PeriodMissing = 2680, // subject: "2", "2–4"
  TooFewPeriods = 2681, // subject: the periods played; found: those of the rules
  PeriodNotClosed = 2682,
  MoreThanFive = 2683, // found: how many
  NumberTaken = 2684,  // subject: EVENUM; found: the highest number
  JerseyTwice = 2685,  // subject: the jersey
  NoRoster = 2686,
  ImpossibleLength = 2687, // subject: DUREE; found: what it is read as
  PeriodBehindLast = 2688, // subject: the section
  CountOutOfRange = 2689,  // subject: the count
};

struct Finding {
  static constexpr std::size_t kNoEvent = std::numeric_limits<std::size_t>::max();

  FindingKind kind = FindingKind::NotOnCourt;
  std::size_t event = kNoEvent; // place in the list of events
  int team = -1;                // whose
  std::string jersey = {};      // and which player's; empty for the team as a whole
  std::string subject = {};
  std::string found = {};
  std::string wanted = {};

  [[nodiscard]] bool isWrong() const;
  [[nodiscard]] bool hasEvent() const { return event != kNoEvent; }
};

// The findings whose kind the reader has not seen often yet, and how many more of each kind there are.
struct FindingSummary {
  struct Row {
    Finding finding;
    std::size_t more = 0; // of this kind, behind the last that is shown
  };
  std::vector<Row> rows;
  std::size_t wrong = 0; // of all findings
  std::size_t doubtful = 0;
};
inline constexpr std::size_t kShownOfAKind = 5;
[[nodiscard]] FindingSummary summaryOf(const std::vector<Finding>& findings,
                                       std::size_t shownOfAKind = kShownOfAKind);

} // namespace hooptab
