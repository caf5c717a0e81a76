#include "season/Standings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <tuple>

namespace hooptab {

namespace {

GameOutcome outcomeOf(const ListedGame& game, Side side) {
  const std::optional<Side> winner = game.winner();
  return !winner ? GameOutcome::Tie : *winner == side ? GameOutcome::Win : GameOutcome::Loss;
}

double shareOf(const Balance& balance) {
  return balance.games() == 0 ? 0 : (balance.wins + balance.ties / 2.0) / balance.games();
}

std::string fixed(double value, int decimals) {
  std::array<char, 32> text = {};
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  return text.data();
}

} // namespace

void Balance::add(GameOutcome outcome) {
  ++(outcome == GameOutcome::Win ? wins : outcome == GameOutcome::Loss ? losses : ties);
}

double Standing::share() const {
  return shareOf(all);
}

double Standing::average(int points) const {
  return all.games() == 0 ? 0 : static_cast<double>(points) / all.games();
}

Standings::Standings(const GameCatalogue& catalogue, std::span<const std::size_t> games) {
  m_rows.resize(catalogue.teams().size());
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    m_rows[i].team = static_cast<SeasonId>(i);
  for (const std::size_t index : games) {
    const ListedGame& game = catalogue.games()[index];
    if (game.team[Side::Visitor] == game.team[Side::Home])
      continue;
    for (const Side side : kSides)
      add(game, side);
  }
  std::erase_if(m_rows, [](const Standing& row) { return row.all.games() == 0; });
  order(m_rows);
  for (Standing& row : m_rows) {
    const Balance& first = m_rows.front().all;
    row.halfGamesBehind = first.wins - row.all.wins + row.all.losses - first.losses;
  }
}

void Standings::add(const ListedGame& game, Side side) {
  Standing& row = m_rows[game.team[side]];
  const GameOutcome outcome = outcomeOf(game, side);
  row.all.add(outcome);
  (side == Side::Home ? row.home : row.away).add(outcome);
  if (row.latest.size() == Standing::kLatest)
    row.latest.erase(row.latest.begin());
  row.latest.push_back(outcome);
  if (outcome == GameOutcome::Tie)
    row.streak = 0;
  else if (outcome == GameOutcome::Win)
    row.streak = std::max(row.streak, 0) + 1;
  else
    row.streak = std::min(row.streak, 0) - 1;
  row.pointsFor += game.points[side];
  row.pointsAgainst += game.points[otherSide(side)];
  row.counted += wholeOfGame(game, side);
  m_duels.push_back({row.team, game.team[otherSide(side)], game.points[side], game.points[otherSide(side)]});
}

// Sorts by the key, the largest first, and orders each group of equal keys; false where all keys are equal.
template <class Key>
bool Standings::part(std::span<Standing> rows, const Key& key) const {
  std::ranges::stable_sort(rows, std::greater(), key);
  if (!(key(rows.back()) < key(rows.front())))
    return false;
  for (std::size_t begin = 0; begin < rows.size();) {
    std::size_t end = begin + 1;
    while (end < rows.size() && !(key(rows[end]) < key(rows[begin])))
      ++end;
    order(rows.subspan(begin, end - begin));
    begin = end;
  }
  return true;
}

void Standings::order(std::span<Standing> rows) const {
  if (rows.size() < 2 || part(rows, [](const Standing& row) { return row.share(); }) || partByDuels(rows))
    return;
  std::ranges::stable_sort(rows, std::greater(), [](const Standing& row) {
    return std::tuple(row.difference(), row.average(row.pointsFor));
  });
}

bool Standings::partByDuels(std::span<Standing> rows) const {
  struct Among {
    Balance balance;
    int difference = 0;
  };
  std::map<SeasonId, Among> among;
  for (const Standing& row : rows)
    among[row.team];
  for (const Duel& duel : m_duels) {
    const auto team = among.find(duel.team);
    if (team == among.end() || !among.contains(duel.other))
      continue;
    const int difference = duel.points - duel.pointsAgainst;
    team->second.balance.add(difference > 0   ? GameOutcome::Win
                             : difference < 0 ? GameOutcome::Loss
                                              : GameOutcome::Tie);
    team->second.difference += difference;
  }
  if (std::ranges::any_of(among, [](const auto& each) { return each.second.balance.games() == 0; }))
    return false;
  return part(rows, [&](const Standing& row) { return shareOf(among[row.team].balance); }) ||
         part(rows, [&](const Standing& row) { return among[row.team].difference; });
}

std::string balanceText(const Balance& balance) {
  return std::to_string(balance.wins) + "–" + std::to_string(balance.losses) +
         (balance.ties > 0 ? "–" + std::to_string(balance.ties) : "");
}

std::string shareText(const Standing& standing) {
  const std::string text = fixed(standing.share(), 3);
  return text.starts_with('0') ? text.substr(1) : text;
}

std::string behindText(const Standing& standing) {
  return standing.halfGamesBehind == 0 ? "–" : fixed(standing.halfGamesBehind / 2.0, 1);
}

std::string_view outcomeText(GameOutcome outcome, const Texts& texts) {
  switch (outcome) {
  case GameOutcome::Win: return texts.text(Text::WinShort);
  case GameOutcome::Loss: return texts.text(Text::LossShort);
  case GameOutcome::Tie: break;
  }
  return texts.text(Text::TieShort);
}

std::string streakText(const Standing& standing, const Texts& texts) {
  const GameOutcome outcome = standing.streak > 0   ? GameOutcome::Win
                              : standing.streak < 0 ? GameOutcome::Loss
                                                    : GameOutcome::Tie;
  return std::string(outcomeText(outcome, texts)) + std::to_string(std::max(std::abs(standing.streak), 1));
}

} // namespace hooptab
