#include "forms/ScannedTotals.h"

#include "storage/Module1.h"

#include <algorithm>
#include <map>

namespace hooptab {

namespace {

void add(Counters& sum, const Counters& more) {
  for (std::size_t counter = 0; counter < kCounterCount; ++counter)
    sum.counts[counter] = static_cast<std::int16_t>(sum.counts[counter] + more.counts[counter]);
}

} // namespace

PerSide<bool> teamsOf(const FormIdentifier& identifier, const GameDetails& details) {
  if (!identifier.isPrepared)
    return {true, true};
  PerSide<bool> mayBe = {};
  for (const Side team : kSides)
    mayBe[team] = identifier.team == FormIdentifier::teamNumber(details.abbreviation[team],
                                                                Module1::trimmed(details.category[team]));
  return mayBe;
}

ScannedTotals::ScannedTotals(CheckedSheet read, Side team, Roster roster) : sheet(std::move(read)) {
  setTeam(team, std::move(roster));
}

void ScannedTotals::setTeam(Side team, Roster roster) {
  m_team = team;
  m_roster = std::move(roster);
  m_players = {};
  match();
}

void ScannedTotals::match() {
  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    Player& matched = m_players[static_cast<std::size_t>(player)];
    if (matched.isAssigned)
      continue;
    const CheckedSheet::Jersey jersey = sheet.jersey(player);
    matched.slot =
        jersey.state == CheckedSheet::Jersey::State::Readable ? m_roster.entryOf(jersey.number) : kNobody;
  }
}

void ScannedTotals::assign(int player, int slot) {
  m_players[static_cast<std::size_t>(player)] = {slot, true};
}

bool ScannedTotals::isUnknown(int player) const {
  return slot(player) == kNobody && !isAssigned(player) && sheet.hasCounts(player);
}

ScannedTotals::Outcome ScannedTotals::outcome(Way way, const ManualTotals& before) const {
  Outcome result;
  result.totals = before;
  std::map<int, Counters> sums; // by slot
  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    if (isUnknown(player))
      result.unknown.push_back(player);
    if (slot(player) == kNobody)
      continue;
    const auto [sum, isFirst] = sums.try_emplace(slot(player));
    if (!isFirst)
      result.twice.push_back(slot(player));
    add(sum->second, sheet.counts(player));
  }
  result.isAgain = way == Way::Add &&
                   std::ranges::any_of(sums, [](const auto& sum) { return sum.second.hasAny(); }) &&
                   std::ranges::all_of(sums, [&](const auto& sum) {
                     return sum.second.counts == before.slot(m_team, sum.first).counts().counts;
                   });
  for (auto& [number, counts] : sums) {
    if (way == Way::Add)
      add(counts, before.slot(m_team, number).counts());
    if (std::ranges::any_of(counts.counts, [](int count) { return count > ManualTotals::kLargestCount; })) {
      result.totals = before;
      result.tooMany = number;
      result.placedShotsGone = 0;
      return result;
    }
    result.placedShotsGone += result.totals.setCounts(m_team, number, counts);
  }
  return result;
}

} // namespace hooptab
