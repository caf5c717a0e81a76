// The clocks, times, places, names and words of NBA live data, for reading and for writing: each pair of
// functions is the two ways of one form, each table serves both. Knows nothing of games.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace hooptab::nba_live {

// "PT11M45.00S", hundredths of a second; also of minutes played, "PT240M00.00S".
[[nodiscard]] std::optional<int> centisecondsOf(std::string_view clock);
[[nodiscard]] std::string clockText(int centiseconds);

// "2026-02-12T00:10:32.6Z" as milliseconds of UTC since 1970. What stands behind the seconds' fraction is not
// looked at: the times of events are always of UTC.
[[nodiscard]] std::optional<std::int64_t> wallClockOf(std::string_view time);
[[nodiscard]] std::string timeText(std::int64_t wallClock);
// "2026-02-11". The league dates its games by Eastern time, and none is played while its midnight passes.
[[nodiscard]] std::string dayOf(std::int64_t wallClock);

// Tenths of a foot from the ring, across the court and towards its middle, and our units. The court of these
// games is wider than ours: what lies outside stands at the edge.
[[nodiscard]] std::pair<double, double> placeOf(double across, double away);
// Whole tenths of a foot that become a place of the same whole units again.
[[nodiscard]] std::pair<int, int> legacyOf(const std::pair<double, double>& place);

// Of "Ana Roy" "A. Roy".
[[nodiscard]] std::string shortName(std::string_view name);

struct ShotWord {
  std::string_view detail; // ours
  std::string_view subType;
  std::string_view descriptor; // part of it
};
// The more particular ones first.
inline constexpr std::array kShotWords = std::to_array<ShotWord>({
    {"TIPIN", "Layup", "tip"},
    {"ALLEYOOP", "DUNK", "alley-oop"},
    {"ALLEYOOP", "Layup", "alley-oop"},
    {"FLOATER", "Jump Shot", "floating"},
    {"FADEAWAY", "Jump Shot", "fadeaway"},
    {"LAYUP", "Layup", ""},
    {"DUNK", "DUNK", ""},
    {"HOOK", "Hook", ""},
    {"JUMP", "Jump Shot", ""},
});
[[nodiscard]] std::string_view shotDetail(std::string_view subType, std::string_view descriptor);

struct Word {
  std::string_view detail; // ours
  std::string_view word;   // the beginning of theirs
};
inline constexpr std::array kTurnoverWords = std::to_array<Word>({
    {"BADPASS", "bad pass"},
    {"HANDLING", "lost ball"},
    {"HANDLING", "double dribble"},
    {"HANDLING", "discontinue dribble"},
    {"HANDLING", "palming"},
    {"TRAVEL", "traveling"},
    {"OUT", "out-of-bounds"},
    {"OUT", "step out of bounds"},
    {"OFFENSIVE", "offensive foul"},
    {"3S", "3-second"},
    {"5S", "5-second"},
    {"8S", "8-second"},
    {"24S", "shot clock"},
    {"OTHER", ""},
});
// Of personal fouls, by their descriptor.
inline constexpr std::array kFoulWords = std::to_array<Word>({
    {"S", "shooting"},
    {"U", "flagrant-type-1"},
    {"D", "flagrant-type-2"},
    {"P", ""},
});
template <std::size_t kSize>
[[nodiscard]] constexpr std::string_view detailOf(const std::array<Word, kSize>& words,
                                                  std::string_view word) {
  for (const Word& each : words) {
    if (word.starts_with(each.word))
      return each.detail;
  }
  return {};
}
template <std::size_t kSize>
[[nodiscard]] constexpr std::string_view wordOf(const std::array<Word, kSize>& words,
                                                std::string_view detail) {
  for (const Word& each : words) {
    if (each.detail == detail)
      return each.word;
  }
  return {};
}

// The figures of a box score that are counted the same way here, by their names in exchange/Reconciliation.h.
struct BoxWord {
  std::string_view name;
  std::string_view word;
};
// Of players, and summed over them of teams.
inline constexpr std::array kBoxWords = std::to_array<BoxWord>({
    {"FGM", "twoPointersMade"},
    {"FGA", "twoPointersAttempted"},
    {"F3M", "threePointersMade"},
    {"F3A", "threePointersAttempted"},
    {"FTM", "freeThrowsMade"},
    {"FTA", "freeThrowsAttempted"},
    {"PTS", "points"},
    {"Ast", "assists"},
    {"BS", "blocks"},
    {"ST", "steals"},
    {"TO", "turnovers"},
    {"OR", "reboundsOffensive"},
    {"DR", "reboundsDefensive"},
    {"PF", "foulsPersonal"},
    {"TF", "foulsTechnical"},
    {"FD", "foulsDrawn"},
    {"BA", "blocksReceived"},
});
inline constexpr std::array kPlayerWords = std::to_array<BoxWord>({
    {"plusMinus", "plusMinusPoints"},
});
// What a team has that none of its players has. Rebounds while the ball is dead are among these in every box
// score of the league, so they are rebounds of the team here too.
inline constexpr std::array kTeamWords = std::to_array<BoxWord>({
    {"points", "points"},
    {"teamRow.OR", "reboundsTeamOffensive"},
    {"teamRow.DR", "reboundsTeamDefensive"},
    {"teamRow.TO", "turnoversTeam"},
});

} // namespace hooptab::nba_live
