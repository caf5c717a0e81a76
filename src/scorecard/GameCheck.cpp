#include "scorecard/GameCheck.h"

#include "appearance/CourtGeometry.h"
#include "storage/Module1.h"
#include "storage/PlayerLookup.h"

#include <algorithm>
#include <optional>

namespace hooptab {

namespace {

constexpr std::size_t kPlayersOnCourt = 5;

class Check {
 public:
  explicit Check(const Game& game) : m_game(game) {}

  std::vector<GameFinding> run() && {
    checkLength();
    int period = 0;
    for (const GameEvent& event : m_game.events) {
      if (event.period != period && event.period > kLastPeriod)
        name(event.period, "section PERIODE" + std::to_string(event.period) + " lies behind the " +
                               std::to_string(kLastPeriod) +
                               " periods that a game can have; it counts with period 8");
      period = event.period;
      if (!event.isDeleted)
        check(event);
    }
    return std::move(m_findings);
  }

 private:
  void checkLength();
  void check(const GameEvent& event);
  void checkClock(const GameEvent& event);
  void checkLists(const GameEvent& event);
  void checkStart(const GameEvent& event);
  void checkPlayer(const GameEvent& event);
  void checkPlace(const GameEvent& event);

  void name(const GameEvent& event, std::string problem, bool isWarning = false) {
    m_findings.push_back(
        {isWarning, event.period, std::string(event.key), std::string(event.line), std::move(problem)});
  }
  // Of no event.
  void name(int period, std::string problem) {
    m_findings.push_back({false, period, {}, {}, std::move(problem)});
  }
  // "LYNX", or "team 0" where the file gives no abbreviation.
  std::string team(std::size_t side) const {
    const std::string& abbreviation = m_game.details.abbreviation[side];
    return abbreviation.empty() ? "team " + std::to_string(side) : abbreviation;
  }
  std::string player(std::string_view jersey, std::size_t side) const {
    return "player " + std::string(jersey) + " of " + team(side);
  }
  // Totals entered after the game know neither clock nor who was on court; a side without players is always
  // there.
  bool followsCourt(std::size_t side) const {
    return m_game.details.inputType == 0 && !isTeamItself(m_game.roster[side]);
  }

  const Game& m_game;
  std::vector<GameFinding> m_findings;
  std::vector<ListedPlayer> m_onCourt[2];
  int m_period = 0;
  int m_clockSeconds = 0;
};

std::string whyNoList(const GameEvent& event) {
  for (const std::size_t side : {0U, 1U}) {
    if (const std::string_view list = event.onCourt(side); !list.empty() && !list.starts_with("IN"))
      return "cannot be understood: an on-court list does not begin with IN";
  }
  return "cannot be understood: an on-court list is not IN- and jerseys with - between";
}

// Why a line could not be taken apart, looked at in the order of its fields.
std::string whyNotUnderstood(const GameEvent& event) {
  if (Module1::wholeNumber(event.key) <= 0)
    return "the key is no event number";
  if (!Module1::clockSeconds(Module1::field(event.line, 1)))
    return "cannot be understood: the clock is not mm:ss";
  const std::string_view code = Module1::field(event.line, 2);
  if (code == "ARRET")
    return whyNoList(event);
  const GameEvent withPlayer =
      GameEvent::parse(event.period, event.key, "00:00," + std::string(code) + ",0-1,0,0");
  return withPlayer.isUnderstood ? "cannot be understood: the player is not 0- or 1- and a jersey"
                                 : "cannot be understood: there is no code " + std::string(code);
}

void Check::checkLength() {
  const GameDetails& details = m_game.details;
  if (details.impossibleMinutes)
    name(0, "DUREE is " + std::to_string(*details.impossibleMinutes) +
                " minutes; a clock shows 0 to 99, and it is read as " +
                std::to_string(details.minutesPerPeriod));
}

void Check::check(const GameEvent& event) {
  if (!event.isUnderstood) {
    name(event, whyNotUnderstood(event));
    return;
  }
  checkClock(event);
  if (event.code == EventCode::ARRET) {
    checkLists(event);
  } else if (event.code == EventCode::DEPART) {
    checkStart(event);
  } else {
    checkPlayer(event);
    checkPlace(event);
  }
}

// The length of an overtime is in no file: its first event's clock is taken for it.
void Check::checkClock(const GameEvent& event) {
  const bool isFirst = event.period != m_period;
  const bool isRegular = event.period <= m_game.details.periods;
  const int length = m_game.details.minutesPerPeriod * 60;
  const std::string clock = Module1::clockText(event.clockSeconds);
  if (isRegular && length > 0 && event.clockSeconds > length)
    name(event, "the clock of " + clock + " exceeds the period's length of " + Module1::clockText(length));
  else if (!isFirst && event.clockSeconds > m_clockSeconds)
    name(event, "the clock rises from " + Module1::clockText(m_clockSeconds) + " to " + clock);
  m_period = event.period;
  m_clockSeconds = event.clockSeconds;
}

void Check::checkLists(const GameEvent& event) {
  for (std::size_t side = 0; side < 2; ++side) {
    std::vector<ListedPlayer> players = playersOfList(event.onCourt(side), m_game.roster[side]);
    for (auto listed = players.begin(); listed != players.end(); ++listed) {
      const auto earlier = std::count(players.begin(), listed, *listed);
      if (earlier == 1)
        name(event, player(listed->jersey, side) + " is twice in the list");
      if (earlier == 0 && listed->player == nullptr)
        name(event, player(listed->jersey, side) + " is on court and not in the roster");
    }
    m_onCourt[side] = std::move(players);
  }
}

void Check::checkStart(const GameEvent& event) {
  for (std::size_t side = 0; side < 2; ++side) {
    const std::size_t count = m_onCourt[side].size();
    if (followsCourt(side) && count != kPlayersOnCourt)
      name(event,
           "the clock starts with " + std::to_string(count) + " players of " + team(side) + " on court");
  }
}

void Check::checkPlayer(const GameEvent& event) {
  const auto side = static_cast<std::size_t>(event.player.team);
  const RosterPlayer* const found = findPlayer(m_game.roster[side], event.player.jersey);
  if (found == nullptr) {
    name(event, player(event.player.jersey, side) + " is not in the roster");
    return;
  }
  if (!followsCourt(side) || event.code == EventCode::STF) // the bench is given technical fouls too
    return;
  const auto isFound = [found](const ListedPlayer& listed) { return listed.player == found; };
  if (std::ranges::none_of(m_onCourt[side], isFound))
    name(event, player(found->jersey, side) + " is not on court");
}

// A place on a line may be of either kind.
void Check::checkPlace(const GameEvent& event) {
  if (!event.hasPlace)
    return;
  const court::ColourZone zone = court::colourZone(court::atEdge({event.x, event.y}));
  if (zone == court::ColourZone::Line)
    return;
  const bool isThreeZone = zone == court::ColourZone::ThreePoints;
  if (isThreeZone != (event.code == EventCode::GF3))
    name(event,
         isThreeZone ? "a shot for 2 points from the 3-point zone"
                     : "a shot for 3 points from inside the line",
         true);
}

} // namespace

std::vector<GameFinding> checkGame(const Game& game) {
  return Check(game).run();
}

} // namespace hooptab
