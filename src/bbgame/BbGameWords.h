// The words of <bbgame> for kinds of shots, fouls, turnovers and time-outs, and what they are here: one table
// for each, which the reader and the writer share.
#pragma once

#include "court/CourtGeometry.h"
#include "foreign/ForeignGame.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace hooptab::bbgame {

inline constexpr PerSide<std::string_view> kSideLetters = {"V", "H"};
inline constexpr std::string_view kTeamNumber = "TM"; // stands for a jersey
inline constexpr std::string_view kTeamName = "TEAM"; // stands for a name
inline constexpr std::string_view kCoach = "COACH";
inline constexpr std::string_view kDeadBall = "DEADBALL";
inline constexpr std::string_view kShooting = "SHOOTING";
inline constexpr std::string_view kOneAndOne = "ONEANDONE";

// Of the whole court, of which places are percents; in our units.
inline constexpr double kCourtLength = court::units(28);

// What a box score calls the official numbers of exchange/Reconciliation.h; "fgm" and "fga" count threes,
// too.
struct BoxNumber {
  std::string_view name;
  const char* attribute;
};
inline constexpr std::array kBoxNumbers = {
    BoxNumber{"F3M", "fgm3"},   BoxNumber{"F3A", "fga3"},   BoxNumber{"FTM", "ftm"},
    BoxNumber{"FTA", "fta"},    BoxNumber{"PTS", "tp"},     BoxNumber{"Ast", "ast"},
    BoxNumber{"BS", "blk"},     BoxNumber{"ST", "stl"},     BoxNumber{"PF", "pf"},
    BoxNumber{"FD", "drawn"},   BoxNumber{"BA", "blkrcvd"}, BoxNumber{"plusMinus", "plusminus"},
    BoxNumber{"rating", "eff"},
};
// What the team's own row counts as well: a team's totals hold both.
struct SharedNumber {
  std::string_view name;
  std::string_view ofRow;
  const char* attribute;
};
inline constexpr std::array kSharedNumbers = {
    SharedNumber{"OR", "teamRow.OR", "oreb"}, SharedNumber{"DR", "teamRow.DR", "dreb"},
    SharedNumber{"TO", "teamRow.TO", "to"}, SharedNumber{"TF", "teamRow.CF", "tf"}};

// What these words say alone; who and when is somebody else's.
struct ShotMeaning {
  EventCode code = EventCode::GFG; // GFG of every two-pointer
  std::string_view detail = {};
};
// Nothing where the type is missing: then nobody knows what the shot was worth.
[[nodiscard]] std::optional<ShotMeaning> shotOf(std::string_view type, std::string_view description);
struct ShotWords {
  std::string_view type = {};
  std::string_view description = {};
};
[[nodiscard]] ShotWords wordsOfShot(EventCode code, std::string_view detail);

// The detail of a foul: "P" to "D", or "T" of a technical one; empty where the type says nothing.
[[nodiscard]] std::string_view foulOf(std::string_view type, std::string_view qualifiers);
[[nodiscard]] std::string_view wordOfFoul(std::string_view detail);
[[nodiscard]] std::string_view turnoverOf(std::string_view type);
[[nodiscard]] std::string_view wordOfTurnover(std::string_view detail);
[[nodiscard]] std::string_view timeoutOf(std::string_view type);
[[nodiscard]] std::string_view wordOfTimeout(std::string_view detail);

} // namespace hooptab::bbgame
