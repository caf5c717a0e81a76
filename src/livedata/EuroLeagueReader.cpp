#include "livedata/EuroLeagueReader.h"

#include "foreign/ExchangeNote.h"
#include "livedata/EuroLeagueKinds.h"
#include "livedata/EuroLeaguePlays.h"
#include "livedata/EuroLeagueTeams.h"
#include "livedata/EuroLeagueTime.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

std::string bothCodes(const std::string& home, const std::string& visitors) {
  return home + '/' + visitors;
}

void addPlayer(SourcePart& part, const Json& row, std::string_view member) {
  std::string id = textOf(row, member);
  if (!id.empty() && !id.starts_with("CO_") && !id.starts_with("AC_"))
    part.players.insert(std::move(id));
}

SourcePart partOfPlays(const Json& document) {
  SourcePart part = {GameFormat::EuroLeague, SourceRole::PlayByPlay,
                     bothCodes(textOf(document, "CodeTeamA"), textOf(document, "CodeTeamB"))};
  for (const std::string_view list : kEuroLeagueLists) {
    for (const Json& row : listOf(document, list))
      addPlayer(part, row, "PLAYER_ID");
  }
  return part;
}

SourcePart partOfBox(const Json& document) {
  const Json& both = listOf(document, "Stats");
  SourcePart part = {GameFormat::EuroLeague, SourceRole::Box,
                     bothCodes(euroLeagueCode(both[0]), both.size() > 1 ? euroLeagueCode(both[1]) : "")};
  for (const Json& stats : both) {
    for (const Json& row : listOf(stats, "PlayersStats"))
      addPlayer(part, row, "Player_ID");
  }
  return part;
}

// The rows do not say who is at home: the first points tell it, which make the one or the other score.
SourcePart partOfPoints(const Json& document) {
  SourcePart part = {GameFormat::EuroLeague, SourceRole::Points};
  std::vector<std::string> codes;
  std::string home;
  for (const Json& row : listOf(document, "Rows")) {
    addPlayer(part, row, "ID_PLAYER");
    const std::string code = textOf(row, "TEAM");
    if (!code.empty() && std::ranges::find(codes, code) == codes.end())
      codes.push_back(code);
    const bool isFirst = (numberOf(row, "POINTS_A", 0) == 0) != (numberOf(row, "POINTS_B", 0) == 0);
    if (home.empty() && isFirst && numberOf(row, "POINTS", 0) > 0) {
      const bool isOfHome = numberOf(row, "POINTS_A", 0) > 0;
      home = isOfHome ? code : '-' + code;
    }
  }
  codes.resize(std::max<std::size_t>(codes.size(), 2));
  if (home == codes[1] || home == '-' + codes[0])
    std::swap(codes[0], codes[1]);
  part.game = bothCodes(codes[0], codes[1]);
  return part;
}

// The file has no date but the times of its shots.
std::string dateOf(const std::vector<ForeignEvent>& events) {
  std::int64_t earliest = 0;
  for (const ForeignEvent& event : events) {
    if (event.wallClock > 0 && (earliest == 0 || event.wallClock < earliest))
      earliest = event.wallClock;
  }
  return earliest == 0 ? std::string() : dateOfTime(earliest);
}

} // namespace

std::optional<SourcePart> recogniseEuroLeague(const Json& document) {
  if (document.contains("CodeTeamA") && member(document, kEuroLeagueLists[0]).is_array())
    return partOfPlays(document);
  if (const Json& stats = listOf(document, "Stats"); !stats.empty() && stats[0].contains("PlayersStats"))
    return partOfBox(document);
  if (const Json& rows = listOf(document, "Rows"); !rows.empty() && rows[0].contains("NUM_ANOT"))
    return partOfPoints(document);
  return std::nullopt;
}

ForeignGame readEuroLeague(const Json& playByPlay, const Json* box, const Json* points) {
  ForeignGame game;
  game.format = GameFormat::EuroLeague;
  game.ruleSet = "FIBA";
  EuroLeagueTeams teams(playByPlay, game.teams);
  if (box != nullptr && teams.takeBox(*box)) {
    game.referees = euroLeagueReferees(textOf(*box, "Referees"));
    game.attendance = textOf(*box, "Attendance");
  } else if (box != nullptr) {
    game.notes.push_back({Text::EuroLeagueOtherBox});
  }
  if (points == nullptr)
    game.notes.push_back({Text::EuroLeagueNoPoints});
  readEuroLeaguePlays(playByPlay, points, teams, game);
  game.date = dateOf(game.events);
  return game;
}

} // namespace hooptab
