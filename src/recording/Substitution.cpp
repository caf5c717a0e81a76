#include "recording/Substitution.h"

#include "game/PlayerLookup.h"
#include "recording/LiveFigures.h"
#include "storage/Module1.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

// The line as bits and text; nobody when it is not five players of the roster who may play.
Substitution::Line lineOf(const LiveGame& game, Side team, const LineEntry& entry, unsigned fouledOut) {
  const Roster& roster = game.game().roster[team];
  Substitution::Line line{.seconds = entry.seconds, .jerseys = jerseysOnCourt(entry.list, roster)};
  for (const std::string_view jersey : Module1::countedJerseys(entry.list)) {
    const int player = roster.entryOfListed(jersey);
    if (player == 0 || (fouledOut >> player & 1U) != 0)
      return {};
    line.players |= 1U << player;
  }
  return std::popcount(line.players) == kMostOnCourt ? line : Substitution::Line{};
}

std::vector<Substitution::Line> linesOf(const LiveGame& game, Side team, unsigned onCourt,
                                        unsigned fouledOut) {
  std::vector<Substitution::Line> lines;
  const auto& entries = game.state().lines[team];
  const int used = game.state().usedLines[team];
  for (int entry = 1; entry <= used; ++entry) {
    Substitution::Line line = lineOf(game, team, entries[static_cast<std::size_t>(entry)], fouledOut);
    if (line.players != 0 && line.players != onCourt)
      lines.push_back(std::move(line));
  }
  std::ranges::stable_sort(lines, std::ranges::greater{}, &Substitution::Line::seconds);
  lines.resize(std::min(lines.size(), Substitution::kMostLines));
  return lines;
}

// Who had reached a limit of fouls at an event of the past.
OnCourt fouledOutAt(const Game& game, const EventPlace& place) {
  PerSide<std::array<PlayerFouls, Roster::kLargestEntry + 1>> fouls = {};
  OnCourt fouledOut = {};
  for (const GameEvent& event : game.events) {
    if (event.period == place.period && event.key == place.key)
      break;
    const bool isFoul = event.code == EventCode::SPF || event.code == EventCode::STF;
    if (!isFoul || !event.isUnderstood || event.isDeleted)
      continue;
    const Side team = *event.player.team;
    const int entry = game.roster[team].entryOf(event.player.jersey);
    PlayerFouls& ofPlayer = fouls[team][static_cast<std::size_t>(entry)];
    ++(event.code == EventCode::SPF ? ofPlayer.personal : ofPlayer.technical);
    if (isFouledOut(game.details, ofPlayer))
      fouledOut[team] |= 1U << entry;
  }
  return fouledOut;
}

} // namespace

Substitution::Substitution(const LiveGame& game)
    : m_game(game), m_before(game.onCourt()), m_onCourt(m_before) {
  for (const Side team : kSides) {
    for (int player = 1; player <= Roster::kLargestEntry; ++player) {
      if (LiveFigures(game).isFouledOut(team, player))
        m_fouledOut[team] |= 1U << player;
    }
  }
  fill();
}

Substitution::Substitution(const LiveGame& game, const PastSubstitution& past)
    : m_game(game), m_past(past), m_before(), m_onCourt(), m_fouledOut(fouledOutAt(game.game(), past.event)) {
  const LiveLog& log = game.log();
  const auto& [period, key] = past.event;
  const bool isBefore = past.what != PastSubstitution::What::InsertBehind;
  m_before = isBefore ? inForceBefore(log.game().events, period, key, log.rosters())
                      : inForce(log.game().events, period, key, log.rosters());
  m_onCourt = past.what == PastSubstitution::What::Change
                  ? inForce(log.game().events, period, key, log.rosters())
                  : m_before;
  fill();
}

void Substitution::fill() {
  for (const Side team : kSides) {
    for (int player = 1; player <= Roster::kLargestEntry; ++player) {
      if (m_game.game().roster[team].player(player) != nullptr)
        m_rosters[team] |= 1U << player;
    }
    m_lines[team] = linesOf(m_game, team, m_before[team], m_fouledOut[team]);
  }
}

EditPlan Substitution::plan() const {
  using enum PastSubstitution::What;
  if (!m_past)
    return {};
  if (m_past->what == Change)
    return m_game.editing().newLists(m_past->event, m_onCourt);
  OnCourt out = {};
  OnCourt in = {};
  for (const Side team : kSides) {
    out[team] = m_before[team] & ~m_onCourt[team];
    in[team] = m_onCourt[team] & ~m_before[team];
  }
  const bool isBefore = m_past->what == InsertBefore;
  return m_game.editing().substitution(m_past->event,
                                       isBefore ? LiveGame::Where::Before : LiveGame::Where::Behind, out, in);
}

void Substitution::toggle(Side team, int player) {
  if (!holds(m_rosters, team, player))
    return;
  m_earlier.push_back(m_onCourt);
  m_onCourt[team] ^= 1U << player;
}

void Substitution::takeLine(Side team, std::size_t line) {
  m_earlier.push_back(m_onCourt);
  take(team, lines(team).at(line).players);
}

void Substitution::takeBack() {
  if (m_earlier.empty())
    return;
  m_onCourt = m_earlier.back();
  m_earlier.pop_back();
}

int Substitution::count(Side team) const {
  return std::popcount(m_onCourt[team]);
}

bool Substitution::canAccept() const {
  if (count(Side::Visitor) > kMostOnCourt || count(Side::Home) > kMostOnCourt)
    return false;
  return m_past ? plan().isPossible : m_onCourt != m_before;
}

} // namespace hooptab
