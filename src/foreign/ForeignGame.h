// A game in the terms that the files of other systems share: what a reader of a format makes of a file, and
// what a writer of one makes a file of. Players are meant by their place in their team's list. The order of
// the events is the order of the game. Counts nothing.
#pragma once

#include "foreign/ExchangeNote.h"
#include "game/EventKind.h"
#include "game/Side.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

enum class GameFormat : std::uint8_t { LiveStats, EuroLeague, NbaLive, BbGame };
inline constexpr std::array kGameFormats = {GameFormat::LiveStats, GameFormat::EuroLeague,
                                            GameFormat::NbaLive, GameFormat::BbGame};
// As the command line has it: "fls", "euroleague", "nba", "bbgame".
[[nodiscard]] std::string_view formatKey(GameFormat format);
[[nodiscard]] std::optional<GameFormat> formatOf(std::string_view key);
// As people call it, the same in every language.
[[nodiscard]] std::string_view formatName(GameFormat format);

// A figure of a file's own box score. `tolerance`: how far another may be from it and still be the same, as
// of minutes that are written whole.
struct OfficialNumber {
  int value = 0;
  int tolerance = 0;
};
// By the names that exchange/Reconciliation.h lists; only what the file says.
using OfficialNumbers = std::map<std::string, OfficialNumber, std::less<>>;

struct ForeignPlayer {
  std::string id = {}; // in the files of that system; empty: none
  std::string jersey = {};
  std::string name = {}; // "Given Family"
  int position = 9;      // as RosterPlayer
  bool isStarter = false;
  bool isCaptain = false;
  OfficialNumbers official = {}; // empty for who is in no box score
};

struct ForeignTeam {
  std::string name = {};
  std::string abbreviation = {};
  std::string id = {};
  std::string coach = {};
  std::vector<ForeignPlayer> players = {};
  OfficialNumbers official = {};        // of the team as a whole
  std::vector<int> pointsOfPeriod = {}; // as the file's box says; overtimes behind; empty where it does not
};

// Who did it. The team itself, its coach and bench, have no player.
struct Doer {
  std::optional<Side> team = {}; // none: nobody
  int player = -1;               // place in the team's list; -1: the team
  [[nodiscard]] bool isPlayer() const { return team && player >= 0; }
  friend bool operator==(const Doer&, const Doer&) = default;
};

enum class ForeignKind : std::uint8_t {
  Event, // of `code`
  In,    // the player comes on court
  Out,
  PeriodStart,
  PeriodEnd, // that was played to its end
};

// Of a field goal or free throw, made or missed.
struct ShotOrigin {
  bool isInPaint = false; // a two-pointer from inside the box; without a place one at the basket by its kind
  bool isSecondChance = false; // after an offensive rebound of the same possession, the team's own included
  bool isFromTurnover = false; // in the possession that follows the other team's turnover
};

struct ForeignEvent {
  ForeignKind kind = ForeignKind::Event;
  EventCode code = EventCode::Unknown; // never DEPART and ARRET: they follow from all the others
  bool isMade = false;                 // shots
  bool isFastBreak = false;            // shots
  int period = 1;                      // overtimes count on behind the regular periods
  int centiseconds = 0;                // left in the period
  Doer doer = {};                      // of XJB: the jumper of the visitors
  Doer other = {};                     // who drew the foul, whose shot was blocked; of XJB: the home jumper
  std::string detail = {};             // value of K: "TRAVEL", "O", "LAYUP", "FULL"
  int freeThrows = -1;                 // of a foul: awarded; -1: not said
  int numberOfThrow = 0;               // of a free throw: its number, and of how many; 0: not said
  int ofThrows = 0;
  std::optional<Side> wonBy = {};                      // of XJB: a team
  std::optional<std::pair<double, double>> place = {}; // court units, the attacked basket on the left
  std::int64_t wallClock = 0;                          // milliseconds of UTC since 1970; 0: not said
  int belongsTo =
      -1; // place in the list of what it goes with: of an assist or a block its shot, of a rebound the
          // shot or throw, of a steal the turnover, of a free throw the foul; -1: not said
  std::optional<ShotOrigin> origin = {}; // of a shot, where its source tells it
};

struct ForeignGame {
  GameFormat format = GameFormat::LiveStats;
  std::string id = {};
  std::string date = {}; // yyyy-mm-dd; empty: the file has none
  std::string place = {};
  std::string competition = {};
  std::string round = {};
  std::string referees = {};
  std::string attendance = {};
  std::string ruleSet = {}; // as REGLES; empty: not known
  int periods = 4;
  int minutes = 10;
  int overtimeMinutes = 5;
  int threePointRadius = 675; // centimetres, as GameDetails
  int threePointCorner = 660;
  bool isFinished = false;
  PerSide<ForeignTeam> teams = {};
  std::vector<ForeignEvent> events = {};
  std::map<std::string, int> unknown = {}; // kinds of events that were passed over: how many of each
  std::vector<ExchangeNote> notes = {};    // what the user should know of this file
};

} // namespace hooptab
