#include "live/Substitution.h"

#include "storage/Module1.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

// The line as bits and text; nobody when it is not five players of the roster who may play.
Substitution::Line lineOf(const LiveGame& game, std::size_t team, const LineEntry& entry) {
  const auto listed = Module1::jerseysOfList(entry.list);
  if (!listed)
    return {};
  Substitution::Line line{.seconds = entry.seconds};
  for (const std::string_view jersey : *listed) {
    const int player = game.game().roster[team].entryOfListed(jersey);
    if (player == 0 || game.isFouledOut(static_cast<int>(team), player))
      return {};
    line.players |= 1U << player;
    line.jerseys += (line.jerseys.empty() ? "" : " ") + game.game().roster[team].player(player)->jersey;
  }
  return std::popcount(line.players) == kMostOnCourt ? line : Substitution::Line{};
}

std::vector<Substitution::Line> linesOf(const LiveGame& game, std::size_t team, unsigned onCourt) {
  std::vector<Substitution::Line> lines;
  const auto& entries = game.state().lines[team];
  const int used = game.state().usedLines[team];
  for (int entry = 1; entry <= used; ++entry) {
    Substitution::Line line = lineOf(game, team, entries[static_cast<std::size_t>(entry)]);
    if (line.players != 0 && line.players != onCourt)
      lines.push_back(std::move(line));
  }
  std::ranges::stable_sort(lines, std::ranges::greater{}, &Substitution::Line::seconds);
  lines.resize(std::min(lines.size(), Substitution::kMostLines));
  return lines;
}

} // namespace

Substitution::Substitution(const LiveGame& game) : m_before(game.onCourt()), m_onCourt(m_before) {
  for (std::size_t team = 0; team < m_lines.size(); ++team) {
    for (int player = 1; player <= Roster::kLargestEntry; ++player) {
      if (game.game().roster[team].player(player) != nullptr)
        m_rosters[team] |= 1U << player;
    }
    m_lines[team] = linesOf(game, team, m_before[team]);
  }
}

void Substitution::toggle(int team, int player) {
  if (holds(m_rosters, team, player))
    m_onCourt[static_cast<std::size_t>(team)] ^= 1U << player;
}

void Substitution::takeLine(int team, std::size_t line) {
  m_onCourt[static_cast<std::size_t>(team)] = lines(team).at(line).players;
}

int Substitution::count(int team) const {
  return std::popcount(m_onCourt[static_cast<std::size_t>(team)]);
}

bool Substitution::canAccept() const {
  return count(0) <= kMostOnCourt && count(1) <= kMostOnCourt && m_onCourt != m_before;
}

} // namespace hooptab
