// What FIBA LiveStats calls kinds of events and the columns of its box score, and what they are here. One
// table for the reader and the writer, which writes the first row of a word.
#pragma once

#include "game/EventKind.h"

#include <array>
#include <span>
#include <string_view>

namespace hooptab {

struct LiveStatsWord {
  std::string_view theirs;
  std::string_view ours; // value of K
};

inline constexpr auto kLiveStatsShots = std::to_array<LiveStatsWord>({
    {"layup", "LAYUP"},
    {"drivinglayup", "LAYUP"},
    {"reverselayup", "LAYUP"},
    {"tipinlayup", "TIPIN"},
    {"tipin", "TIPIN"},
    {"dunk", "DUNK"},
    {"tipindunk", "DUNK"},
    {"alleyoop", "ALLEYOOP"},
    {"jumpshot", "JUMP"},
    {"pullupjumpshot", "JUMP"},
    {"stepbackjumpshot", "JUMP"},
    {"turnaroundjumpshot", "JUMP"},
    {"fadeaway", "FADEAWAY"},
    {"hookshot", "HOOK"},
    {"floatingjumpshot", "FLOATER"},
});
// Every other one is of the kind OTHER.
inline constexpr auto kLiveStatsTurnovers = std::to_array<LiveStatsWord>({
    {"badpass", "BADPASS"},
    {"ballhandling", "HANDLING"},
    {"travel", "TRAVEL"},
    {"outofbounds", "OUT"},
    {"offensive", "OFFENSIVE"},
    {"3sec", "3S"},
    {"5sec", "5S"},
    {"8sec", "8S"},
    {"24sec", "24S"},
    {"shotclock", "24S"},
    {"other", "OTHER"},
});
inline constexpr auto kLiveStatsTimeOuts = std::to_array<LiveStatsWord>({
    {"full", "FULL"},
    {"short", "SHORT"},
    {"officials", "MEDIA"},
    {"commercial", "MEDIA"},
});

struct LiveStatsFoul {
  std::string_view theirs;
  EventCode code;
  std::string_view ours; // value of K; of personal fouls before it is known whether a shooter was fouled
};
inline constexpr auto kLiveStatsFouls = std::to_array<LiveStatsFoul>({
    {"personal", EventCode::SPF, "P"},
    {"offensive", EventCode::SPF, "O"},
    {"unsportsmanlike", EventCode::SPF, "U"},
    {"disqualifying", EventCode::SPF, "D"},
    {"technical", EventCode::STF, ""},
    {"coachTechnical", EventCode::XCF, "C"},
    {"benchTechnical", EventCode::XCF, "B"},
});

// The value of K for one of their words; empty for a word that the table lacks.
[[nodiscard]] constexpr std::string_view oursOf(std::span<const LiveStatsWord> table,
                                                std::string_view theirs) {
  for (const LiveStatsWord& word : table) {
    if (word.theirs == theirs)
      return word.ours;
  }
  return {};
}
[[nodiscard]] constexpr std::string_view theirsOf(std::span<const LiveStatsWord> table,
                                                  std::string_view ours) {
  for (const LiveStatsWord& word : table) {
    if (word.ours == ours)
      return word.theirs;
  }
  return {};
}

// Columns of a player's box score and, behind "tot_", of his team's, by the names of Reconciliation.h.
// Personal fouls include the technical ones.
struct LiveStatsColumn {
  std::string_view theirs;
  std::string_view ours;
  std::string_view ofTeam = {}; // what the team's total has beyond its players'
};
inline constexpr auto kLiveStatsColumns = std::to_array<LiveStatsColumn>({
    {"sThreePointersMade", "F3M"},
    {"sThreePointersAttempted", "F3A"},
    {"sTwoPointersMade", "FGM"},
    {"sTwoPointersAttempted", "FGA"},
    {"sFreeThrowsMade", "FTM"},
    {"sFreeThrowsAttempted", "FTA"},
    {"sReboundsDefensive", "DR", "teamRow.DR"},
    {"sReboundsOffensive", "OR", "teamRow.OR"},
    {"sAssists", "Ast"},
    {"sTurnovers", "TO", "teamRow.TO"},
    {"sSteals", "ST"},
    {"sBlocks", "BS"},
    {"sBlocksReceived", "BA"},
    {"sFoulsPersonal", "PF"},
    {"sFoulsOn", "FD"},
    {"sPoints", "PTS"},
});
// Of players alone.
inline constexpr auto kLiveStatsPlayerColumns = std::to_array<LiveStatsColumn>({
    {"sPlusMinusPoints", "plusMinus"},
    {"eff_1", "rating"},
});
// Of the team's own row.
inline constexpr auto kLiveStatsTeamColumns = std::to_array<LiveStatsColumn>({
    {"tot_sReboundsTeamOffensive", "teamRow.OR"},
    {"tot_sReboundsTeamDefensive", "teamRow.DR"},
    {"tot_sTurnoversTeam", "teamRow.TO"},
    {"tot_sFoulsTeam", "teamRow.CF"},
});

// Places stand in percent of a court of 28 by 15 metres, the basket that is shot at on either side.
inline constexpr double kLiveStatsUnitsAlong = 28 / 0.075 / 100;
inline constexpr double kLiveStatsUnitsAcross = 2;

} // namespace hooptab
