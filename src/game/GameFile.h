// One game, one .GAM profile file: its details, rosters and event lines, read and written through the store.
// The format is described in docs/formats/game.md. Counts nothing (that is the tally's work) and knows no
// window.
#pragma once

#include "game/EventList.h"
#include "game/GameDetails.h"
#include "game/Roster.h"
#include "game/Side.h"
#include "storage/ProfileStore.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

using AcceptedFindings = std::map<int, std::vector<int>>;
inline constexpr std::string_view kAcceptedSection = "ACCEPTES";

// A whole game as read from its file.
struct Game {
  std::string path;
  GameDetails details;
  PerSide<Roster> roster;
  EventList events;
  // Findings that the user has looked at and accepted: the event's number, and the numbers of their texts.
  AcceptedFindings accepted;
};

enum class GameFileProblem {
  None,
  Absent,        // no such file, or it was removed
  Unreadable,    // rights, a folder, a device
  TooLarge,      // more than kLargestProfileFile
  InvalidFormat, // VERSION is not "2.0": text 1059
  WriteFailed,   // the disk did not take it; nothing was changed
  UnknownEvent,  // no event of that period and key
};

class GameFile {
 public:
  static constexpr std::string_view kVersion = "2.0";

  GameFile(ProfileStore& store, std::string path);
  const std::string& path() const { return m_path; }
  // The file as it was read or written last, here.
  const ProfileText& text() const { return m_read.text; }

  [[nodiscard]] GameFileProblem validate();
  // Reads everything; on a problem `game` is left untouched.
  [[nodiscard]] GameFileProblem read(Game& game);
  [[nodiscard]] GameFileProblem readDetails(GameDetails& details);

  // Writes a new game over whatever stood at the path, as one batch: nothing of an old game remains. A side
  // without players is its own one player. A live game gets its first event, the full period length with
  // nobody on court.
  [[nodiscard]] GameFileProblem create(const GameDetails& details, const std::vector<RosterPlayer>& visitors,
                                       const std::vector<RosterPlayer>& home);

  // The number that the next event will get: one more than the highest of any period section, deleted events
  // included.
  [[nodiscard]] int nextNumber();

  // Appends events (each ",CODE,..." as eventText() makes it, blanks are removed) to a period, at one clock,
  // under increasing numbers from `firstNumber`, and advances EVENUM; one batch.
  [[nodiscard]] GameFileProblem append(int period, int clockSeconds, int firstNumber,
                                       const std::vector<std::string>& eventTexts);
  // Takes the steps in their order, as one batch; EVENUM follows new events. Nothing is changed when one of
  // them cannot be taken.
  [[nodiscard]] GameFileProblem change(const std::vector<EventChange>& steps);
  // Adds what change() would write to the file of that text to a batch. False, and nothing added, when one of
  // the steps cannot be taken.
  [[nodiscard]] static bool plan(const std::vector<EventChange>& steps, const ProfileText& text,
                                 ProfileBatch& batch);
  // The event lines of a period become these, numbered from 1, and the game is finished when there are any.
  // For games of totals, which are written whole.
  static void planLines(int period, const std::vector<std::string>& lines, ProfileBatch& batch);
  // Marks events as deleted ("E" in front of the line) or takes the mark away; the rest of each line is
  // unchanged. One batch.
  struct EventKey {
    int period;
    std::string key;
  };
  [[nodiscard]] GameFileProblem setDeleted(const std::vector<EventKey>& events, bool deleted);
  // Sets keys of DETAILS, as one batch.
  [[nodiscard]] GameFileProblem
  setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues);

 private:
  [[nodiscard]] GameFileProblem open();
  [[nodiscard]] GameFileProblem write(const ProfileBatch& batch);

  ProfileStore& m_store;
  std::string m_path;
  ProfileReading m_read;
};

// The parts of reading for callers that have the parsed file already: everything, the event lines of all
// periods as they are stored (bytes of the code page), and whether it is a game at all.
void readGame(const ProfileText& text, Game& game);
[[nodiscard]] AcceptedFindings readAccepted(const ProfileText& text);
[[nodiscard]] EventLines storedEventLines(const ProfileText& text);
[[nodiscard]] int nextNumberOf(const ProfileText& text); // as GameFile::nextNumber
[[nodiscard]] bool isGame(const ProfileText& text);
// The period whose events a section of that name holds; nothing for any other section.
[[nodiscard]] std::optional<int> periodOfSection(std::string_view section);
// Whether a file of that name may be one: *.GAM in any letter case.
[[nodiscard]] bool isGameName(std::string_view name);
// The name of a period's section, and of a team's.
[[nodiscard]] std::string periodSection(int period);
[[nodiscard]] std::string rosterSection(Side team);
// What stands behind a player's jersey there: "1,Ann Able".
[[nodiscard]] std::string playerValue(const RosterPlayer& player);

} // namespace hooptab
