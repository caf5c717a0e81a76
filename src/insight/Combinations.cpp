#include "insight/Combinations.h"

#include <algorithm>
#include <bit>
#include <map>

namespace hooptab {

namespace {

// Without whoever is in no roster.
unsigned membersOf(const GameState& state, Side team, int line) {
  return line > 0 ? state.lineMembers[team][static_cast<std::size_t>(line)] & ~1U : 0U;
}

// Calls for each choice of `size` of the players.
template <class Call>
void forEachChoice(unsigned players, int size, unsigned chosen, const Call& call) {
  if (size == 0)
    return call(chosen);
  while (std::popcount(players) >= size) {
    const unsigned lowest = players & (~players + 1);
    players &= ~lowest;
    forEachChoice(players, size - 1, chosen | lowest, call);
  }
}

} // namespace

CourtShare togetherOnCourt(const GameInsight& insight, const GameState& state, Side team, unsigned players) {
  CourtShare sum;
  for (const Matchup& matchup : insight.matchups) {
    if (const unsigned members = membersOf(state, team, matchup.line[team]);
        members != 0 && (members & players) == players)
      sum += matchup.share;
  }
  return sum;
}

OnOff onOffOf(const GameInsight& insight, Side team, int player) {
  const CourtShare& on = insight.players[team][static_cast<std::size_t>(player)];
  return {on, insight.whole - on};
}

std::vector<Combination> combinationsOf(const GameInsight& insight, const GameState& state, Side team,
                                        int size) {
  std::map<unsigned, CourtShare> shares;
  for (const Matchup& matchup : insight.matchups)
    forEachChoice(membersOf(state, team, matchup.line[team]), size, 0U,
                  [&](unsigned players) { shares[players] += matchup.share; });
  std::vector<Combination> combinations;
  combinations.reserve(shares.size());
  for (const auto& [players, share] : shares)
    combinations.push_back({players, share});
  std::ranges::stable_sort(combinations, std::ranges::greater(),
                           [](const Combination& combination) { return combination.share.seconds; });
  return combinations;
}

} // namespace hooptab
