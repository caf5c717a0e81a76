// What a check finds in a game. Each kind is the text that names it, and is either wrong, which
// no game can be, or doubtful, which is worth a look.
#pragma once

#include "game/Side.h"
#include "settings/Text.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// The comments say what stands in a finding's `subject`, `found` and `wanted`. Where a player or a team is
// meant, `team` and `jersey` name it.
enum class FindingKind {
  // Doubtful:
  NotOnCourt = int(Text::FindsNotOnCourt),
  FewerThanFive = int(Text::FindsFewerThanFive), // found: how many
  OtherTime = int(Text::FindsOtherTime),         // of the players in the period; found and wanted: clocks
  FouledOutBefore = int(Text::FindsFouledOutBefore),
  AssistWithoutBasket = int(Text::FindsAssistWithoutBasket),
  GameWithoutStop = int(Text::FindsGameWithoutStop),
  NumbersAtEndMissing = int(Text::FindsNumbersAtEndMissing), // subject: EVENUM; found: the highest number
  NumbersMissing = int(Text::FindsNumbersMissing),           // subject: "5", "5–9"
  NotInRoster = int(Text::FindsNotInRoster),
  OnCourtNotInRoster = int(Text::FindsOnCourtNotInRoster),
  ClockRises = int(Text::FindsClockRises),             // subject and found: clocks
  ClockAbovePeriod = int(Text::FindsClockAbovePeriod), // subject and found: clocks
  Swapped = int(Text::FindsSwapped),                   // subject and found: the events' numbers
  TwoFromThree = int(Text::FindsTwoFromThree),
  ThreeFromInside = int(Text::FindsThreeFromInside),
  AfterClose = int(Text::FindsAfterClose),
  NotClosedAtZero = int(Text::FindsNotClosedAtZero), // subject: the period; found: the clock
  Tied = int(Text::FindsTied),                       // subject: the score
  NoTeam = int(Text::FindsNoTeam),
  MoreThanFifteen = int(Text::FindsMoreThanFifteen), // found: how many
  ImpossibleDate = int(Text::FindsImpossibleDate),   // subject: the date
  ReboundAfterMade = int(Text::FindsReboundAfterMade),
  Burst = int(Text::FindsBurst),               // subject: how many at one second
  NearlyOurs = int(Text::FindsNearlyOurs),     // subject: the section; found: ours
  SectionTwice = int(Text::FindsSectionTwice), // subject: the section
  // Doubtful by the sheet or the rules of the game:
  ThrowWithoutFoul = int(Text::FindsThrowWithoutFoul),
  ThrowBeyondAward = int(Text::FindsThrowBeyondAward), // found: which throw; wanted: how many were awarded
  ThrowsMissing = int(Text::FindsThrowsMissing),       // found: how many were taken; wanted: awarded
  TimeOutTooMany = int(Text::FindsTimeOutTooMany),     // found: how many were taken before
  CoachOutBefore = int(Text::FindsCoachOutBefore),
  // Wrong:
  Twice = int(Text::FindsTwice),
  UnknownClock = int(Text::FindsUnknownClock),
  UnknownCode = int(Text::FindsUnknownCode), // subject: the code
  UnknownPlayer = int(Text::FindsUnknownPlayer),
  UnknownList = int(Text::FindsUnknownList),
  NoEventNumber = int(Text::FindsNoEventNumber), // subject: the key
  NoEqualsSign = int(Text::FindsNoEqualsSign),   // subject: the line; found: the section
  NumberTwice = int(Text::FindsNumberTwice),     // subject: the number
  PeriodMissing = int(Text::FindsPeriodMissing), // subject: "2", "2–4"
  TooFewPeriods = int(Text::FindsTooFewPeriods), // subject: the periods played; found: those of the rules
  PeriodNotClosed = int(Text::FindsPeriodNotClosed),
  MoreThanFive = int(Text::FindsMoreThanFive), // found: how many
  NumberTaken = int(Text::FindsNumberTaken),   // subject: EVENUM; found: the highest number
  JerseyTwice = int(Text::FindsJerseyTwice),   // subject: the jersey
  NoRoster = int(Text::FindsNoRoster),
  ImpossibleLength = int(Text::FindsImpossibleLength), // subject: DUREE; found: what it is read as
  PeriodBehindLast = int(Text::FindsPeriodBehindLast), // subject: the section
  CountOutOfRange = int(Text::FindsCountOutOfRange),   // subject: the count
};

struct Finding {
  static constexpr std::size_t kNoEvent = std::numeric_limits<std::size_t>::max();

  FindingKind kind = FindingKind::NotOnCourt;
  std::size_t event = kNoEvent;  // place in the list of events
  std::optional<Side> team = {}; // whose
  std::string jersey = {};       // and which player's; empty for the team as a whole
  std::string subject = {};
  std::string found = {};
  std::string wanted = {};

  [[nodiscard]] bool isWrong() const;
  [[nodiscard]] bool hasEvent() const { return event != kNoEvent; }
  friend bool operator==(const Finding&, const Finding&) = default;
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
