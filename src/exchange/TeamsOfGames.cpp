#include "exchange/TeamsOfGames.h"

#include "game/Rules.h"
#include "storage/Module1.h"
#include "storage/codepage.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

bool isSame(std::string_view left, std::string_view right) {
  const std::string_view name = Module1::trimmed(left);
  return !name.empty() &&
         codepage::equalNames(codepage::fromUtf8(name), codepage::fromUtf8(Module1::trimmed(right)));
}

bool isOneNumber(const std::string& left, const std::string& right) {
  return left == right || Roster::areOneNumber(left, right);
}

// Letter by letter shorter until the file gives it back whole; a letter may be several bytes.
template <class Fits>
void cutToFit(std::string& text, Fits fits) {
  while (!text.empty() && !fits()) {
    for (bool isInside = true; isInside && !text.empty(); text.pop_back())
      isInside = (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U;
  }
}

TeamRecord recordOf(const GameDetails& details, Side side) {
  TeamRecord team;
  team.abbreviation = withoutCommas(codepage::storedForm(details.abbreviation[side]));
  cutToFit(team.abbreviation,
           [&] { return codepage::fromUtf8(team.abbreviation).size() <= kLongestAbbreviation; });
  team.name = withoutCommas(codepage::storedForm(details.name[side]));
  team.minutesPerPeriod = std::to_string(details.minutesPerPeriod);
  team.periods = std::to_string(details.periods);
  team.bonus = std::to_string(details.bonus);
  team.personalFoulLimit = std::to_string(details.personalFoulLimit);
  team.technicalFoulLimit = std::to_string(details.technicalFoulLimit);
  team.storedColour = details.teamColour[side];
  return team;
}

TeamPlayer playerOf(const RosterPlayer& player) {
  PlayerRecord record;
  record.position = player.position;
  record.name = withoutCommas(codepage::storedForm(player.name));
  cutToFit(record.name, [&] { return fitsInValue(playerValue(record)); });
  return {player.jersey, record, {}};
}

// The team that is there, by its name before its abbreviation; null for a new one.
const TeamEntry* entryOf(const std::vector<TeamEntry>& entries, const TeamRecord& team) {
  for (const auto field : {&TeamEntry::name, &TeamEntry::abbreviation}) {
    const std::string& own = field == &TeamEntry::name ? team.name : team.abbreviation;
    const auto found = std::ranges::find_if(
        entries, [&](const TeamEntry& entry) { return entry.isEditable() && isSame(own, entry.*field); });
    if (found != entries.end())
      return &*found;
  }
  return nullptr;
}

} // namespace

void TeamsOfGames::add(const Game& game) {
  for (const Side side : kSides)
    addTeam(game, side);
}

void TeamsOfGames::addTeam(const Game& game, Side side) {
  TeamRecord record = recordOf(game.details, side);
  if (record.abbreviation.empty() && record.name.empty())
    return;
  auto team = std::ranges::find_if(m_teams, [&](const Team& known) {
    return isSame(record.name, known.record.name) || isSame(record.abbreviation, known.record.abbreviation);
  });
  if (team == m_teams.end())
    team = m_teams.insert(m_teams.end(), Team{std::move(record), {}});
  if (isTeamItself(game.roster[side]))
    return;
  for (const RosterPlayer& player : game.roster[side].players()) {
    const bool isKnown = std::ranges::any_of(team->players, [&](const RosterPlayer& known) {
      return isOneNumber(player.jersey, known.jersey) && isSame(player.name, known.name);
    });
    if (!isKnown && !player.name.empty())
      team->players.push_back(player);
  }
}

std::vector<TeamsOfGames::Addition> TeamsOfGames::lackingIn(TeamStore& store) const {
  std::vector<Addition> additions;
  const std::vector<TeamEntry> entries = store.list();
  for (const Team& team : m_teams) {
    const TeamEntry* entry = entryOf(entries, team.record);
    Addition addition{entry == nullptr ? 0 : entry->id, team.record, {}, {}};
    std::vector<TeamPlayer> there = entry == nullptr ? std::vector<TeamPlayer>() : store.players(entry->key);
    for (const RosterPlayer& player : team.players) {
      TeamPlayer made = playerOf(player);
      if (std::ranges::any_of(
              there, [&](const TeamPlayer& known) { return isSame(made.record.name, known.record.name); }))
        continue;
      const bool isTaken = std::ranges::any_of(
          there, [&](const TeamPlayer& known) { return isOneNumber(made.number, known.number); });
      if (isTaken || !isJersey(made.number)) {
        addition.leftOut.push_back(team.record.abbreviation + ' ' + player.jersey + ' ' + player.name);
        continue;
      }
      there.push_back(made);
      addition.players.push_back(std::move(made));
    }
    if (addition.id == 0 || !addition.players.empty() || !addition.leftOut.empty())
      additions.push_back(std::move(addition));
  }
  return additions;
}

AdditionCounts countsOf(const std::vector<TeamsOfGames::Addition>& additions) {
  AdditionCounts counts;
  for (const TeamsOfGames::Addition& addition : additions) {
    counts.teams += addition.id == 0 ? 1U : 0U;
    counts.players += addition.players.size();
  }
  return counts;
}

bool addTo(TeamStore& store, const std::vector<TeamsOfGames::Addition>& additions, const Texts& texts) {
  for (const TeamsOfGames::Addition& addition : additions) {
    if (addition.id == 0) {
      TeamRecord team = addition.team;
      cutToFit(team.name, [&] { return fitsInValue(teamValue(team, store.settings().statisticLabel)); });
      const std::optional<int> id = store.create(texts);
      if (!id || !store.save(*id, team, addition.players))
        return false;
      continue;
    }
    if (addition.players.empty())
      continue;
    std::vector<TeamPlayer> players = store.players(std::to_string(addition.id));
    players.insert(players.end(), addition.players.begin(), addition.players.end());
    if (!store.savePlayers(addition.id, players))
      return false;
  }
  return true;
}

} // namespace hooptab
