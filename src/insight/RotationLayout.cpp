#include "insight/RotationLayout.h"

#include "insight/GameInsight.h"

#include <algorithm>
#include <tuple>

namespace hooptab {

namespace {

// "0" before "00"; what is no number comes last.
auto orderOf(const RotationRow& row) {
  const int number = Roster::jerseyNumber(row.number);
  return std::tuple(number < 0, number, row.number);
}

} // namespace

PerSide<std::vector<RotationRow>> rotationRows(const CountedGame& counted) {
  PerSide<std::vector<RotationRow>> rows;
  const std::vector<Stay> stays = rotationOf(counted.game);
  if (stays.empty())
    return rows;
  const GameInsight insight = insightOf(counted.game);
  for (const Stay& stay : stays) {
    std::vector<RotationRow>& ofTeam = rows[stay.team];
    if (ofTeam.empty() || ofTeam.back().player != stay.player) {
      const auto entry = static_cast<std::size_t>(stay.player);
      const RosterPlayer* player = counted.game.roster[stay.team].player(stay.player);
      ofTeam.push_back({stay.player,
                        player == nullptr ? "" : player->jersey,
                        player == nullptr ? "" : player->name,
                        std::max(0, counted.state.players[stay.team][entry].seconds),
                        insight.players[stay.team][entry].plusMinus(stay.team),
                        {}});
    }
    ofTeam.back().stays.push_back(stay);
  }
  for (std::vector<RotationRow>& ofTeam : rows)
    std::ranges::stable_sort(ofTeam, {}, orderOf);
  return rows;
}

double RotationLayout::headTop(Side team) const {
  return team == Side::Visitor
             ? m_top
             : m_top + m_headHeight + static_cast<double>(m_rows[Side::Visitor]) * m_rowHeight;
}

double RotationLayout::rowTop(Side team, std::size_t row) const {
  return headTop(team) + m_headHeight + static_cast<double>(row) * m_rowHeight;
}

double RotationLayout::bottom() const {
  return rowTop(Side::Home, m_rows[Side::Home]);
}

std::optional<RotationLayout::Place> RotationLayout::rowAt(double y) const {
  for (const Side team : kSides) {
    const double first = rowTop(team, 0);
    if (y < first)
      continue;
    const auto row = static_cast<std::size_t>((y - first) / m_rowHeight);
    if (row < m_rows[team])
      return Place{team, row};
  }
  return std::nullopt;
}

const Stay* RotationLayout::stayAt(const RotationRow& row, int at) {
  for (auto stay = row.stays.rbegin(); stay != row.stays.rend(); ++stay) {
    if (stay->from <= at && at <= stay->to)
      return &*stay;
  }
  return nullptr;
}

} // namespace hooptab
