#include "season/Standings.h"

#include "game/RuleSets.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <set>

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

// The set that most games name; of equally many the one that stands first in the table.
const TieRules& rulesOfMost(const std::map<std::string, int>& named) {
  const TieRules* most = &kTieRules.front();
  int count = 0;
  for (const TieRules& rules : kTieRules) {
    const auto found = named.find(std::string(rules.key));
    if (found != named.end() && found->second > count) {
      most = &rules;
      count = found->second;
    }
  }
  return *most;
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

Standings::Standings(const GameCatalogue& catalogue, std::span<const std::size_t> games,
                     PracticeGames practice) {
  std::map<std::string, int> rules;
  m_rows.resize(catalogue.teams().size());
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    m_rows[i].team = static_cast<SeasonId>(i);
  for (const std::size_t index : games) {
    const ListedGame& game = catalogue.games()[index];
    if (game.team[Side::Visitor] == game.team[Side::Home] ||
        (game.isPractice && practice == PracticeGames::LeftOut))
      continue;
    ++rules[game.ruleSet];
    for (const Side side : kSides)
      add(game, side);
  }
  std::erase_if(m_rows, [](const Standing& row) { return row.all.games() == 0; });
  m_ties = &rulesOfMost(rules);
  for (const Standing& row : m_rows)
    m_shares[row.team] = row.share();
  order(m_rows);
  for (Standing& row : m_rows) {
    const Balance& first = m_rows.front().all;
    row.halfGamesBehind = first.wins - row.all.wins + row.all.losses - first.losses;
  }
}

void Standings::Part::add(const Duel& duel) {
  balance.add(duel.points > duel.pointsAgainst   ? GameOutcome::Win
              : duel.points < duel.pointsAgainst ? GameOutcome::Loss
                                                 : GameOutcome::Tie);
  points += duel.points;
  pointsAgainst += duel.pointsAgainst;
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
  if (rows.size() < 2 || part(rows, [](const Standing& row) { return row.share(); }))
    return;
  for (const TieCriterion criterion : m_ties->criteria) {
    if (criterion == TieCriterion::None || partBy(criterion, rows))
      return;
  }
}

bool Standings::partBy(TieCriterion criterion, std::span<Standing> rows) const {
  switch (criterion) {
  case TieCriterion::None: break;
  case TieCriterion::ShareBetween:
    return partBetween(rows, [](const Part& part) { return shareOf(part.balance); });
  case TieCriterion::DifferenceBetween:
    return partBetween(rows, [](const Part& part) { return part.points - part.pointsAgainst; });
  case TieCriterion::PointsBetween: return partBetween(rows, [](const Part& part) { return part.points; });
  case TieCriterion::AgainstTheBest: return partAgainstTheBest(rows);
  case TieCriterion::Difference: return part(rows, [](const Standing& row) { return row.difference(); });
  case TieCriterion::Points:
    return part(rows, [](const Standing& row) { return row.average(row.pointsFor); });
  }
  return false;
}

template <class Key>
bool Standings::partBetween(std::span<Standing> rows, const Key& key) const {
  Parts between;
  for (const Standing& row : rows)
    between[row.team];
  for (const Duel& duel : m_duels) {
    const auto team = between.find(duel.team);
    if (team != between.end() && between.contains(duel.other))
      team->second.add(duel);
  }
  return std::ranges::none_of(between, [](const auto& each) { return each.second.balance.games() == 0; }) &&
         part(rows, [&](const Standing& row) { return key(between.at(row.team)); });
}

// Those with equal shares of wins are one opponent. Who has not played it is not compared by it.
bool Standings::partAgainstTheBest(std::span<Standing> rows) const {
  std::map<double, Parts, std::greater<>> against; // by the opponents' share of wins
  std::set<SeasonId> equal;
  for (const Standing& row : rows)
    equal.insert(row.team);
  for (const Duel& duel : m_duels) {
    if (equal.contains(duel.team) && !equal.contains(duel.other))
      against[m_shares.at(duel.other)][duel.team].add(duel);
  }
  return std::ranges::any_of(against, [&](const auto& opponent) {
    const Parts& parts = opponent.second;
    return parts.size() == rows.size() &&
           part(rows, [&](const Standing& row) { return shareOf(parts.at(row.team).balance); });
  });
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

std::string tiesText(const TieRules& rules, const Texts& texts) {
  return texts.withPlaceholder(Text::StandingsTiesBy, std::string(texts.text(ruleSetOf(rules.key)->name)) +
                                                          " – " + std::string(texts.text(rules.words)));
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
