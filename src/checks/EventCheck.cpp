#include "checks/EventCheck.h"

#include "checks/LineUpCheck.h"
#include "checks/NumberCheck.h"
#include "checks/RuleCheck.h"
#include "court/CourtGeometry.h"
#include "game/EventDetails.h"
#include "game/PlayerLookup.h"
#include "game/Rules.h"
#include "game/ShotFollowUp.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>

namespace hooptab {

namespace {

// As many of one kind at one second nobody types.
constexpr int kMostAtOneSecond = 12;

std::string rangeText(int first, int last) {
  return first == last ? std::to_string(first) : std::to_string(first) + "–" + std::to_string(last);
}

// Why a line could not be taken apart, looked at in the order of its fields.
Finding whyNotUnderstood(const GameEvent& event) {
  if (Module1::wholeNumber(event.key) <= 0)
    return {.kind = FindingKind::NoEventNumber, .subject = std::string(event.key)};
  if (!Module1::clockSeconds(Module1::field(event.line, 1)))
    return {.kind = FindingKind::UnknownClock};
  const std::string_view code = Module1::field(event.line, 2);
  if (code == "ARRET")
    return {.kind = FindingKind::UnknownList};
  if (std::ranges::find(kTeamKinds, code, &EventKind::text) != kTeamKinds.end())
    return {.kind = FindingKind::UnknownPlayer};
  const GameEvent withPlayer =
      GameEvent::parse(event.period, event.key, "00:00," + std::string(code) + ",0-1,0,0");
  if (withPlayer.isUnderstood)
    return {.kind = FindingKind::UnknownPlayer};
  return {.kind = FindingKind::UnknownCode, .subject = std::string(code)};
}

// Whose clock, order and kinds fit each other; line-ups and numbers have checks of their own.
class EventCheck {
 public:
  EventCheck(const Game& game, std::vector<Finding>& findings)
      : m_game(game), m_findings(findings), m_lineUps(game, findings), m_rules(game, findings),
        m_threePointRadius(court::units(game.details.threePointRadius / 100.0)),
        m_threePointFromAxis(
            std::min(court::units(game.details.threePointCorner / 100.0), m_threePointRadius)),
        m_threePointCornerX(court::threePointCornerX(m_threePointRadius, m_threePointFromAxis)) {}

  void run() {
    m_place = 0;
    for (auto each = m_game.events.begin(); each != m_game.events.end(); ++each, ++m_place) {
      const GameEvent& event = *each;
      if (event.period != m_section)
        enterSection(event.period);
      if (event.isDeleted)
        continue;
      if (event.isUnderstood && !isOfTotals())
        m_rules.take(event, m_place);
      if (!event.isUnderstood)
        name(whyNotUnderstood(event));
      else if (event.isOfTeam())
        checkOfTeam(event);
      else if (isOfTotals())
        checkOfTotals(event);
      else
        check(event);
    }
    finish();
  }

 private:
  [[nodiscard]] bool isOfTotals() const { return m_game.details.inputType != 0; }
  [[nodiscard]] bool hasTime() const { return m_game.details.minutesPerPeriod > 0; }
  void name(Finding finding) { nameAt(m_place, std::move(finding)); }
  void nameAt(std::size_t place, Finding finding) {
    finding.event = place;
    m_findings.push_back(std::move(finding));
  }
  void namePlayer(FindingKind kind, const GameEvent& event) {
    name({.kind = kind, .team = event.player.team, .jersey = std::string(event.player.jersey)});
  }

  void enterSection(int period);
  void checkOfTotals(const GameEvent& event) {
    if (!event.isClock())
      playerOf(event);
  }
  void checkOfTeam(const GameEvent& event);
  void checkNamed(const GameEvent& event);
  void check(const GameEvent& event);
  void endPeriod(bool isLast);
  void finish();
  void checkClock(const GameEvent& event, bool isFirst);
  [[nodiscard]] bool isSwapped(const GameEvent& event) const;
  [[nodiscard]] const GameEvent* next() const;
  void nameSwapped(const GameEvent& before, const GameEvent& behind);
  void checkBurst(const GameEvent& event);
  const RosterPlayer* playerOf(const GameEvent& event);
  void checkAction(const GameEvent& event);
  void checkFoul(const GameEvent& event);
  void checkAssist(const GameEvent& event);
  [[nodiscard]] bool hasBasketBefore(const GameEvent& assist) const;
  void checkRebound(const GameEvent& event);
  void checkPlace(const GameEvent& event);

  const Game& m_game;
  std::vector<Finding>& m_findings;
  LineUpCheck m_lineUps;
  RuleCheck m_rules;
  double m_threePointRadius, m_threePointFromAxis, m_threePointCornerX; // units

  std::size_t m_place = 0;
  int m_section = 0; // whose events these are, counted or not
  // Of the events that count:
  int m_period = 0;
  std::size_t m_last = 0; // place of the latest
  int m_clock = 0;
  std::optional<int> m_teamClock; // of the last event of a team in the section
  int m_clockBefore = 0;          // of the one before it in the period
  bool m_hasTwo = false;          // there is one before it
  EventCode m_lastClockEvent = EventCode::Unknown;
  int m_stopClock = 0;
  std::optional<std::size_t> m_afterStop; // the first that no free throw explains
  bool m_hasFreeThrowSinceStop = false;

  PerSide<std::array<PlayerFouls, Roster::kLargestEntry + 1>> m_fouls = {};
  std::array<int, kEventKinds.size()> m_atOneSecond = {};
  std::array<std::size_t, kEventKinds.size()> m_burst = {}; // its finding
};

void EventCheck::enterSection(int period) {
  const int before = m_section;
  m_section = period;
  m_teamClock.reset();
  if (period > kLastPeriod)
    return name({.kind = FindingKind::PeriodBehindLast, .subject = periodSection(period)});
  if (!isOfTotals() && period > before + 1)
    name({.kind = FindingKind::PeriodMissing, .subject = rangeText(before + 1, period - 1)});
}

// It moves no clock of a count, and stands where it happened.
void EventCheck::checkOfTeam(const GameEvent& event) {
  checkNamed(event);
  if (isOfTotals())
    return;
  const bool isBehindOther = event.period == m_period && (!m_teamClock || m_clock < *m_teamClock);
  const std::optional<int> before = isBehindOther ? std::optional(m_clock) : m_teamClock;
  const int length = m_game.details.minutesPerPeriod * 60;
  if (event.period <= m_game.details.periods && hasTime() && event.clockSeconds > length)
    name({.kind = FindingKind::ClockAbovePeriod,
          .subject = Module1::clockText(event.clockSeconds),
          .found = Module1::clockText(length)});
  else if (before && event.clockSeconds > *before)
    name({.kind = FindingKind::ClockRises,
          .subject = Module1::clockText(*before),
          .found = Module1::clockText(event.clockSeconds)});
  m_teamClock = event.clockSeconds;
}

// Those whom an event names beside the one who did it.
void EventCheck::checkNamed(const GameEvent& event) {
  const std::vector<PlayerReference> all = playersNamedBy(event);
  for (const PlayerReference& named : std::span(all).subspan(event.isOfPlayer() ? 1 : 0)) {
    if (findPlayer(m_game.roster[*named.team], named.jersey) == nullptr)
      name({.kind = FindingKind::NotInRoster, .team = named.team, .jersey = std::string(named.jersey)});
  }
}

void EventCheck::check(const GameEvent& event) {
  const bool isFirst = event.period != m_period;
  if (isFirst) {
    if (m_period > 0)
      endPeriod(false);
    m_period = event.period;
    m_lastClockEvent = EventCode::Unknown;
    m_afterStop.reset();
    m_lineUps.enterPeriod(event);
  }
  if (isFirst || event.clockSeconds != m_clock)
    m_atOneSecond.fill(0);
  checkClock(event, isFirst);
  m_hasTwo = !isFirst;
  m_clockBefore = m_clock;
  m_clock = event.clockSeconds;
  if (event.isClock()) {
    m_lastClockEvent = event.code;
    m_stopClock = event.clockSeconds;
    m_afterStop.reset();
    m_hasFreeThrowSinceStop = false;
    if (event.code == EventCode::ARRET)
      m_lineUps.stop(m_place);
    else
      m_lineUps.start(m_place);
  } else {
    checkAction(event);
  }
  m_last = m_place;
}

// The period in play lacks nothing.
void EventCheck::endPeriod(bool isLast) {
  if (!hasTime() || (isLast && !m_game.details.isFinished))
    return;
  if (m_lastClockEvent != EventCode::ARRET) {
    nameAt(m_last, {.kind = isLast ? FindingKind::GameWithoutStop : FindingKind::PeriodNotClosed,
                    .subject = std::to_string(m_period)});
    return;
  }
  if (m_stopClock > 0 && m_game.details.isFinished)
    nameAt(m_last, {.kind = FindingKind::NotClosedAtZero,
                    .subject = std::to_string(m_period),
                    .found = Module1::clockText(m_stopClock)});
  if (m_afterStop)
    nameAt(*m_afterStop, {.kind = FindingKind::AfterClose});
}

void EventCheck::finish() {
  if (isOfTotals())
    return;
  if (m_period > 0)
    endPeriod(true);
  m_lineUps.finish();
  m_rules.finish();
  const GameDetails& details = m_game.details;
  if (details.isFinished && m_section < details.periods)
    m_findings.push_back({.kind = FindingKind::TooFewPeriods,
                          .subject = std::to_string(m_section),
                          .found = std::to_string(details.periods)});
}

// Its length is known of a regular period alone; the first event of an overtime is taken for it.
void EventCheck::checkClock(const GameEvent& event, bool isFirst) {
  const bool isRegular = event.period <= m_game.details.periods;
  const int length = m_game.details.minutesPerPeriod * 60;
  if (isRegular && hasTime() && event.clockSeconds > length)
    return name({.kind = FindingKind::ClockAbovePeriod,
                 .subject = Module1::clockText(event.clockSeconds),
                 .found = Module1::clockText(length)});
  if (isFirst || event.clockSeconds <= m_clock)
    return;
  if (isSwapped(event))
    return nameSwapped(m_game.events[m_last], event);
  name({.kind = FindingKind::ClockRises,
        .subject = Module1::clockText(m_clock),
        .found = Module1::clockText(event.clockSeconds)});
}

// Whether all would be in order with this event and the one before it exchanged.
bool EventCheck::isSwapped(const GameEvent& event) const {
  const GameEvent* const behind = next();
  return (!m_hasTwo || m_clockBefore >= event.clockSeconds) &&
         (behind == nullptr || behind->clockSeconds <= m_clock);
}

// The next that counts in the period, or null.
const GameEvent* EventCheck::next() const {
  for (std::size_t place = m_place + 1; place < m_game.events.size(); ++place) {
    const GameEvent& event = m_game.events[place];
    if (event.period != m_game.events[m_place].period)
      return nullptr;
    if (event.isUnderstood && !event.isDeleted && !event.isOfTeam())
      return &event;
  }
  return nullptr;
}

void EventCheck::nameSwapped(const GameEvent& before, const GameEvent& behind) {
  name({.kind = FindingKind::Swapped, .subject = std::string(before.key), .found = std::string(behind.key)});
}

void EventCheck::checkBurst(const GameEvent& event) {
  if (!hasTime())
    return;
  const auto kind = static_cast<std::size_t>(event.kind() - kEventKinds.data());
  const int count = ++m_atOneSecond[kind];
  if (count == kMostAtOneSecond + 1) {
    m_burst[kind] = m_findings.size();
    name({.kind = FindingKind::Burst});
  }
  if (count > kMostAtOneSecond)
    m_findings[m_burst[kind]].subject = std::to_string(count);
}

// Null, and named, where he is not in the roster.
const RosterPlayer* EventCheck::playerOf(const GameEvent& event) {
  const RosterPlayer* const player = findPlayer(m_game.roster[*event.player.team], event.player.jersey);
  if (player == nullptr)
    namePlayer(FindingKind::NotInRoster, event);
  return player;
}

void EventCheck::checkAction(const GameEvent& event) {
  if (event.code == EventCode::GFT) {
    m_hasFreeThrowSinceStop = true;
    if (m_afterStop && m_game.events[*m_afterStop].kind()->isTeamFoul)
      m_afterStop.reset(); // for that foul
  }
  if (!m_hasFreeThrowSinceStop && !m_afterStop)
    m_afterStop = m_place;
  checkBurst(event);
  if (event.detailsAt > 0)
    checkNamed(event);
  // The bench is given technical fouls too.
  const RosterPlayer* const player = playerOf(event);
  if (player != nullptr && event.code != EventCode::STF && !m_lineUps.isOnCourt(*event.player.team, *player))
    namePlayer(FindingKind::NotOnCourt, event);
  switch (event.code) {
  case EventCode::SPF:
  case EventCode::STF: return checkFoul(event);
  case EventCode::SA: return checkAssist(event);
  case EventCode::SOR:
  case EventCode::SDR: return checkRebound(event);
  default: return checkPlace(event);
  }
}

void EventCheck::checkFoul(const GameEvent& event) {
  const Side team = *event.player.team;
  const int entry = m_game.roster[team].entryOf(event.player.jersey);
  if (entry == 0)
    return;
  PlayerFouls& fouls = m_fouls[team][static_cast<std::size_t>(entry)];
  if (isFouledOut(m_game.details, fouls))
    namePlayer(FindingKind::FouledOutBefore, event);
  ++(event.code == EventCode::SPF ? fouls.personal : fouls.technical);
}

void EventCheck::checkAssist(const GameEvent& event) {
  if (hasBasketBefore(event))
    return;
  const GameEvent* const behind = next();
  const bool isBeforeItsBasket =
      behind != nullptr && behind->isShot() && behind->isMade && behind->clockSeconds == event.clockSeconds &&
      behind->player.team == event.player.team && behind->player.jersey != event.player.jersey;
  if (isBeforeItsBasket)
    nameSwapped(event, *behind);
  else
    namePlayer(FindingKind::AssistWithoutBasket, event);
}

// A basket that no other assist has taken. One may also be given to a player who is fouled in the act and
// makes a free throw, be it not the last.
bool EventCheck::hasBasketBefore(const GameEvent& assist) const {
  auto shot = shotOf(m_game.events, m_place);
  for (; shot; shot = shotBefore(m_game.events, *shot)) {
    const GameEvent& basket = m_game.events[*shot];
    const bool isFreeThrow = basket.code == EventCode::GFT;
    if (basket.player.team != assist.player.team || basket.player.jersey == assist.player.jersey ||
        (isFreeThrow && basket.clockSeconds != assist.clockSeconds))
      return false;
    if (basket.isMade || !isFreeThrow)
      return basket.isMade;
  }
  return false;
}

void EventCheck::checkRebound(const GameEvent& event) {
  const auto shot = shotOf(m_game.events, m_place);
  if (!shot || !m_game.events[*shot].isMade)
    return;
  const GameEvent* const behind = next();
  const bool isBeforeItsShot = behind != nullptr && behind->isShot() && !behind->isMade &&
                               behind->clockSeconds == event.clockSeconds &&
                               (behind->player.team == event.player.team) == (event.code == EventCode::SOR);
  if (isBeforeItsShot)
    nameSwapped(event, *behind);
  else
    namePlayer(FindingKind::ReboundAfterMade, event);
}

// A place on the line may be of either kind.
void EventCheck::checkPlace(const GameEvent& event) {
  constexpr double kHalfLine = 0.5;
  if (!event.hasPlace)
    return;
  const double beyond = court::beyondThreePointLine(court::atEdge({event.x, event.y}), m_threePointRadius,
                                                    m_threePointFromAxis, m_threePointCornerX);
  if (std::abs(beyond) <= kHalfLine || (beyond > 0) == (event.code == EventCode::GF3))
    return;
  name({.kind = beyond > 0 ? FindingKind::TwoFromThree : FindingKind::ThreeFromInside});
}

} // namespace

void checkEvents(const Game& game, std::vector<Finding>& findings) {
  checkNumbers(game, findings);
  EventCheck(game, findings).run();
}

} // namespace hooptab
