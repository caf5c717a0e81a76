// A game that is being set up: the whole form of the new-game window as plain data, and its rules. Which team
// sets the parameters, who plays for this game alone, what still misses, what is wrong, under which name the
// game is proposed, and the file that it becomes. Knows no window and no calendar: today's date is given to
// it.
#pragma once

#include "game/GameFile.h"
#include "game/Rules.h"
#include "game/Side.h"
#include "settings/ChoiceTexts.h"
#include "settings/Texts.h"
#include "setup/GameSheet.h"
#include "setup/QuickRoster.h"
#include "teams/TeamStore.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// An input type by its position in the list. Live input with and without the keypad is the same in the file.
struct InputType {
  Text text;
  int stored;
  bool usesKeypad;
};
inline constexpr std::array<InputType, 3> kInputTypes = {
    {{Text::Live, 0, false}, {Text::LiveAndKeypad, 0, true}, {Text::Manual, 1, false}}};

// By what a team's last game was recorded.
struct TeamHabit {
  std::string ruleSet; // a key of kRuleSets; empty for none
  RecordingLevel level = RecordingLevel::Basic;
  friend bool operator==(const TeamHabit&, const TeamHabit&) = default;
};

// What the next game begins with.
struct LastChoices {
  PerSide<int> teamId = {}; // 0 for none
  std::string place;
  std::string statistician;
  int gameType = 2;                     // Season
  int inputType = 0;                    // position; Live
  std::map<int, TeamHabit> habits = {}; // by the ids of the teams
  friend bool operator==(const LastChoices&, const LastChoices&) = default;
};

class NewGame {
 public:
  static constexpr int kNone = -1;

  // What stands against the game; SetupWords has the sentences.
  enum class Problem : std::uint8_t {
    None,
    NoTeam, // of a side
    NoDate,
    NoGameType,
    NoInputType,
    NoMainTeam, // whose keypad it is
    Minutes,
    Periods,
    SameTeam,
    Bonus,
    PersonalFouls,
    TechnicalFouls,
    TooManyPlayers, // of a side
  };
  struct Objection {
    Problem problem = Problem::None;
    std::optional<Side> side = {}; // where it is of one
    friend bool operator==(const Objection&, const Objection&) = default;
  };
  // What became of a player for this game alone.
  struct AddedPlayer {
    enum class Problem : std::uint8_t { None, NoJersey, NumberWorn, TooLong };
    Problem problem = Problem::None; // with any, he was not added
    std::string jersey = {};
    std::string wearer = {}; // of a number that is worn: "4 Ann Able"
  };

  enum class Eligibility : std::uint8_t { CanPlay, NoJersey, NumberTaken, NumberWrittenOtherwise };
  struct Player {
    std::string number = {};
    int position = kNoPosition;
    std::string name = {};
    Eligibility eligibility = Eligibility::CanPlay;
    bool isChecked = false; // never for one who cannot play
    bool isAdded = false;   // for this game alone: the team's list has him not
  };
  // As it is typed and chosen for one side.
  struct SideForm {
    int team = kNone; // position in teams()
    std::string name;
    std::string category;
    std::uint32_t colour = 0; // as stored; 0 when missing
    std::vector<Player> players;
    [[nodiscard]] int checkedPlayers() const;
  };

  // `today` is yyyy-mm-dd. The teams of the last game are chosen where they are still there.
  NewGame(TeamStore& store, Settings& settings, const Texts& texts, std::string today,
          const LastChoices& last);

  // Fields that take whatever is typed. Numbers are read leniently and written as they are.
  PerSide<SideForm> sides;
  std::optional<Side> mainTeam;
  TypedRules rules;
  std::string date;
  int gameType = kNone;  // index, as stored
  int inputType = kNone; // position in kInputTypes
  std::string place;
  std::string statistician;
  std::string notes;
  // Without its rules and level, which are asked for by what follows.
  GameSheet sheet;

  // A set of rules by its key, none for another one. It sets the typed rules, and what is typed afterwards,
  // or comes with a team, holds above it. Until one is chosen, it is that of the last game of the main team,
  // or of the home team where none is the main one.
  void chooseRules(std::string_view key);
  [[nodiscard]] std::string ruleSet() const;
  // Whether one of the typed rules is not the set's.
  [[nodiscard]] bool differsFromRules() const;
  // How much is asked for in a live game; the same team's until it is chosen.
  void chooseLevel(RecordingLevel level) { m_chosenLevel = level; }
  [[nodiscard]] RecordingLevel level() const;
  [[nodiscard]] bool isLive() const; // by its input type
  // Who plays.
  [[nodiscard]] std::vector<RosterPlayer> roster(Side side) const;

  const std::vector<TeamEntry>& teams() const { return m_teams; }
  // Takes over name, category, colour, main team and players. The home team and the main team also set the
  // rules, and the date to today. Another team has another coach and captain.
  void chooseTeam(Side side, int team);
  void setChecked(Side side, std::size_t player, bool isChecked); // nothing for one who cannot play
  void stepPosition(Side side, std::size_t player);

  // Chooses a team that no list keeps, without players: the side's own one, added to teams() the first time.
  // Rules that are missing become the usual ones. Nothing where it is chosen already.
  void chooseOwnTeam(Side side);
  [[nodiscard]] bool hasOwnTeam(Side side) const; // one of this game alone is chosen
  // After a new name or category of the side: what teams() calls a team of this game follows, with the last
  // word of the name as abbreviation, or VISITOR and HOME where both would be called alike. False, and
  // nothing, for a team of the list.
  bool renameOwnTeam(Side side);

  // The players of the side, by their numbers ("4 5 7 10 23"): who is not named does not play, and a number
  // that nobody has is a player without a name, for this game alone. Without a team, the side gets its own.
  // Nothing changes with a problem, nor where nothing is typed.
  QuickRoster takeNumbers(Side side, std::string_view typed);
  // One player more for this game alone, with or without a name.
  [[nodiscard]] AddedPlayer addPlayer(Side side, std::string_view number, std::string_view name);

  // The first thing that has to be chosen before the game can be accepted.
  [[nodiscard]] Objection missing() const;
  [[nodiscard]] bool canAccept() const { return missing() == Objection(); }
  // The first thing that is wrong.
  [[nodiscard]] Objection problem() const;

  [[nodiscard]] std::string proposedFileName() const; // bare, fit for a file name
  // What has to be asked before a file is written over: names the game that would be lost. Empty where
  // nothing stands.
  [[nodiscard]] std::string overwriteQuestion(const std::string& path) const;
  // Writes the game, and sets the folder of the last game and the keypad switch. A form without a main team
  // gets the visitors. Unless None is returned nothing is changed.
  [[nodiscard]] GameFileProblem create(const std::string& path);
  [[nodiscard]] LastChoices choices() const;

 private:
  // Of this game alone; by position in teams().
  struct OwnTeam {
    int team = kNone;
    TeamRecord record;
  };

  [[nodiscard]] OwnTeam* ownTeam(int team);
  [[nodiscard]] Player* wearerOf(Side side, std::string_view number);
  [[nodiscard]] Objection missingTeam() const;
  [[nodiscard]] const TeamEntry* entry(Side side) const;
  [[nodiscard]] std::string listText(Side side) const;
  [[nodiscard]] std::string abbreviation(Side side) const;
  [[nodiscard]] TeamHabit habitOf(int team) const; // by its id
  [[nodiscard]] TeamHabit habit() const;
  [[nodiscard]] GameDetails details() const;

  TeamStore& m_store;
  Settings& m_settings;
  const Texts& m_texts;
  std::string m_today;
  std::vector<TeamEntry> m_teams;
  PerSide<OwnTeam> m_ownTeams; // by the side that made them
  std::map<int, TeamHabit> m_habits;
  std::optional<std::string> m_chosenRules;
  std::optional<RecordingLevel> m_chosenLevel;
};

// The path, with the ending of game files where it has none (in any letter case).
[[nodiscard]] std::string withGameEnding(const std::string& path);

} // namespace hooptab
