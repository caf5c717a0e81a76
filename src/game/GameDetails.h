// The details of one game: teams, date, place, rules. Read from and written to section DETAILS of its file,
// whose keys are described in docs/formats/game.md.
#pragma once

#include "game/Side.h"
#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

inline constexpr std::string_view kDetailsSection = "DETAILS";
inline constexpr int kMostMinutes = 99; // of a clock that shows mm:ss

// The rules of a game as somebody typed them: a new game keeps the texts, readers take their numbers.
struct TypedRules {
  std::string periods;
  std::string minutesPerPeriod;
  std::string bonus;
  std::string personalFoulLimit;
  std::string technicalFoulLimit;
};

// How much is asked for while a game is recorded: what a box score needs, what a league's sheet has, or
// everything that the file can hold.
enum class RecordingLevel : std::uint8_t { Basic, League, Full };

// Section DETAILS. Numbers are read leniently; texts are as stored (trailing blanks of a category are lost on
// disk).
struct GameDetails {
  std::string version;
  int inputType = 0;             // 0 live, anything else entry of totals
  std::string date;              // yyyy-mm-dd
  Side mainTeam = Side::Visitor; // OKPRINCIPAL
  PerSide<int> teamId = {};
  PerSide<std::uint32_t> teamColour = {}; // red + 256 * green + 65536 * blue
  PerSide<std::string> abbreviation;
  PerSide<std::string> name;
  PerSide<std::string> category;
  std::string statisticLabel[2]; // SUPP0, SUPP1, with their "U1-" / "U2-" prefix
  std::string place;
  std::string statistician;
  int periods = 0;
  int minutesPerPeriod = 0;             // 0 to 99, which a clock shows; 0: a game without time
  std::optional<int> impossibleMinutes; // what the file says where no clock shows it; never written
  int bonus = 0;                        // 0: no limit, as for the next two
  int personalFoulLimit = 0;
  int technicalFoulLimit = 0;
  int type = 0;
  std::string notes;
  // IDPARTIE: 32 hexadecimal digits that no other game has; empty in a game of an older program.
  std::string id;
  std::string ruleSet; // REGLES: the key of one of kRuleSets; else the game is checked by none
  std::optional<RecordingLevel> level; // NIVEAU; none in a game for which nobody chose
  RecordingLevel recordingLevel() const { return level.value_or(RecordingLevel::Basic); }
  std::string competition;
  std::string round;
  std::string referees;
  std::string attendance; // as it was typed
  PerSide<std::string> coach;
  PerSide<std::string> captain; // the jersey
  int targetScore = 0;          // SCORECIBLE: who reaches it has won; 0: the clock decides
  int overtimeMinutes = 0;      // DUREEPROL: of the last overtime; 0: there was none, or nobody knows
  int nextEventNumber = 0;      // EVENUM; 0 when absent
  // LIGNE3 and LIGNE3COIN, in centimetres: how far from the basket the three-point line was drawn, and from
  // the court's axis its straight parts in the corners.
  int threePointRadius = 675;
  int threePointCorner = 660;
  bool keepsBonus = false;
  bool isFinished = false;
  // The window was closed while the clock ran (QUITTE): the event that stopped it, and the wall clock then in
  // seconds since 1970; 0 when it was not.
  struct ClosedInPlay {
    int event = 0;
    std::int64_t time = 0;
  };
  ClosedInPlay closedInPlay;
  std::optional<TypedRules> typedRules; // written in place of the five numbers where given; never read
};

// Sets what the section holds; the rest stays as it is.
void readDetails(const ProfileText& text, GameDetails& details);
// Sets what one key holds, as reading it would; nothing for a key that is none of the section's.
void setDetail(GameDetails& details, std::string_view key, std::string_view value);
// The value of NIVEAU, and what it says: nothing for any other text.
[[nodiscard]] std::string_view levelKey(RecordingLevel level);
[[nodiscard]] std::optional<RecordingLevel> levelOf(std::string_view value);
// The keys that a new game gets, in their order. EVENUM, KEEPBONUS and TERMINE come while it is recorded.
void writeNewDetails(const GameDetails& details, ProfileBatch& batch);

} // namespace hooptab
