#include "exchange/Reconciliation.h"

#include "exchange/OwnCount.h"
#include "game/GameFile.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace hooptab {

namespace {

Game gameOf(const ProfileText& text) {
  Game game;
  readGame(text, game);
  return game;
}

class Comparison {
 public:
  Comparison(const ForeignGame& game, const BuiltGame& built)
      : m_game(game), m_built(built), m_own(gameOf(built.text)), m_count(m_own) {
    for (const Side team : kSides) {
      for (std::size_t i = 0; i < game.teams[team].players.size(); ++i)
        comparePlayer(team, i);
      compareTeam(team);
    }
  }
  std::vector<Difference> takeDifferences() { return std::move(m_differences); }
  [[nodiscard]] int compared() const { return m_compared; }

 private:
  void compare(Side team, const std::string& player, std::string counter, int ours,
               const OfficialNumber& theirs) {
    ++m_compared;
    if (std::abs(ours - theirs.value) > theirs.tolerance)
      m_differences.push_back({team, player, std::move(counter), ours, theirs.value});
  }
  void compareAll(Side team, const std::string& player, const OfficialNumbers& official,
                  const OwnNumbers& own) {
    for (const NamedNumber& each : numbersOfPlayers()) {
      const auto theirs = official.find(each.name);
      if (theirs == official.end())
        continue;
      const bool isOfAllFouls = each.name == "PF" && !official.contains("TF");
      compare(team, player, std::string(each.name), isOfAllFouls ? own.fouls() : each.value(own),
              theirs->second);
    }
  }
  // A player behind the fifteenth has no row of his own: what he did is counted with the others.
  void comparePlayer(Side team, std::size_t place) {
    const ForeignPlayer& player = m_game.teams[team].players[place];
    const std::string& jersey = m_built.jerseys[team][place];
    const auto entry = static_cast<std::size_t>(m_own.roster[team].entryOf(jersey));
    compareAll(team, jersey + ' ' + player.name, player.official,
               entry == 0 ? OwnNumbers() : m_count.of(team, entry));
  }
  void compareTeam(Side team) {
    const ForeignTeam& foreign = m_game.teams[team];
    const TeamRow& row = m_count.state().teamRows[team];
    if (const auto points = foreign.official.find("points"); points != foreign.official.end())
      compare(team, {}, "points", m_count.state().points(team), points->second);
    for (std::size_t i = 0; i < foreign.pointsOfPeriod.size(); ++i) {
      const std::size_t period = GameState::periodRow(static_cast<int>(i) + 1);
      if (i + 1 < GameState::kPeriodRows - 1) // those behind share one row
        compare(team, {}, "periods[" + std::to_string(i + 1) + "]",
                m_count.state().periods[team][period].points, {foreign.pointsOfPeriod[i], 0});
    }
    compareAll(team, {}, foreign.official, m_count.ofTeam(team));
    for (const NamedRowNumber& each : numbersOfTeamRows()) {
      if (const auto theirs = foreign.official.find(each.name); theirs != foreign.official.end())
        compare(team, {}, std::string(each.name), each.value(row), theirs->second);
    }
  }

  const ForeignGame& m_game;
  const BuiltGame& m_built;
  Game m_own;
  OwnCount m_count;
  std::vector<Difference> m_differences;
  int m_compared = 0;
};

} // namespace

std::span<const std::string_view> reconciledNames() {
  static const auto kNames = [] {
    std::vector<std::string_view> names;
    for (const NamedNumber& each : numbersOfPlayers())
      names.push_back(each.name);
    names.emplace_back("points");
    for (const NamedRowNumber& each : numbersOfTeamRows())
      names.push_back(each.name);
    return names;
  }();
  return kNames;
}

std::vector<Difference> reconcile(const ForeignGame& game, const BuiltGame& built, int* compared) {
  Comparison comparison(game, built);
  if (compared != nullptr)
    *compared = comparison.compared();
  return comparison.takeDifferences();
}

} // namespace hooptab
