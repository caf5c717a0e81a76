// The finished games of a folder, and who played in them: scanned once, then narrowed by criteria as often as
// the user likes. A scan may run on another thread than the one that watches it; the catalogue itself belongs
// to one thread at a time. Sums nothing (SeasonStatistics does) and shows nothing.
#pragma once

#include "catalogue/ListedGame.h"
#include "settings/Texts.h"
#include "storage/FileSystem.h"
#include "storage/TaskWatch.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// A team is its abbreviation and category.
struct SeasonTeam {
  std::string key;          // "LYNX-AAA"
  std::string abbreviation; // "LYNX"
  std::string name;         // full name in the earliest game that has one, else the key
  std::uint32_t colour = 0; // in the latest game that has one
  friend bool operator==(const SeasonTeam&, const SeasonTeam&) = default;
};
[[nodiscard]] std::string seasonTeamKey(std::string_view abbreviation, std::string_view category);
// A player is his team, jersey and name, without regard to case; 5 and 05 are one jersey, 0 and 00 two.
struct SeasonPlayer {
  SeasonId team = kNobody;
  std::string number; // jersey as in his earliest game
  std::string name;
  int nameOrder = 0; // place of his name among all
  friend bool operator==(const SeasonPlayer&, const SeasonPlayer&) = default;
};
// A line is its team and its set of jerseys.
struct SeasonLine {
  SeasonId team = kNobody;
  std::string list;         // IN-04-05-10-12-15, as on-court lists write it
  std::string name;         // "4-5-10-12-15"
  std::string players = {}; // "4 Able, 5 Baker, 10 Cole, 12 Dunn, 15 Eng"
  friend bool operator==(const SeasonLine&, const SeasonLine&) = default;
};

enum class SkipReason : std::uint8_t {
  NotFinished,  // being recorded, or left before its end
  OtherVersion, // no game of ours
  Unreadable,   // rights, a damaged disk
  TooLarge,
  Vanished, // removed while the folder was scanned
};
[[nodiscard]] Text skipReasonText(SkipReason reason);
struct SkippedFile {
  std::string path;
  SkipReason reason = SkipReason::Unreadable;
  friend bool operator==(const SkippedFile&, const SkippedFile&) = default;
};

struct ScanRequest {
  std::string folder;
  bool withSubfolders = false; // each folder once, wherever links lead
  unsigned threads = 2;        // the result does not depend on it
  // Where summaries are kept between two scans (catalogue/SummaryCache.h); empty: nowhere. Nor on this.
  std::string cacheFolder = {};
};
enum class ScanOutcome : std::uint8_t { Done, Cancelled, FolderMissing, FolderUnreadable };

// What is left empty accepts every game.
struct GameCriteria {
  enum class Where : std::uint8_t { Anywhere, Home, Away };

  std::string team; // its key: games of either side
  // Inclusive. With either of them, games without a valid date are left out.
  std::optional<int> fromDay, toDay;
  std::optional<int> type;
  Where where = Where::Anywhere; // of the team; without a team it accepts all
  std::optional<InputKind> input;
  bool countsCopiesOnce = false; // of several files of one game only one, the fullest
  bool leavesOutWrong = false;   // games of which something cannot be so

  friend bool operator==(const GameCriteria&, const GameCriteria&) = default;
};

class GameCatalogue {
 public:
  explicit GameCatalogue(FileSystem& files) : m_files(files) {}

  // Reads the finished games of a folder (*.GAM in any letter case). Whatever it held before is replaced,
  // unless the scan was cancelled or the folder could not be listed. It tells the files that were read of
  // those that were found.
  [[nodiscard]] ScanOutcome scan(const ScanRequest& request, const TaskWatch& watch = {});

  const std::string& folder() const { return m_content.folder; }
  // In order of date, then file name; games without a valid date last.
  std::span<const ListedGame> games() const { return m_content.games; }
  // Files that could not be listed, and games that are not finished; in order of path.
  std::span<const SkippedFile> skipped() const { return m_content.skipped; }
  // In order of first appearance in games().
  std::span<const SeasonTeam> teams() const { return m_content.teams; }
  std::span<const SeasonPlayer> players() const { return m_content.players; }
  std::span<const SeasonLine> lines() const { return m_content.lines; }

  // The team of that key, else the first whose key differs in letter case alone.
  [[nodiscard]] std::optional<SeasonId> teamOf(std::string_view key) const;
  // How many listed files are copies of another listed one.
  [[nodiscard]] std::size_t copies() const;
  // Says why a listed game cannot be right, in a line; empty where nothing is wrong.
  [[nodiscard]] std::string whyWrong(const ListedGame& game, const Texts& texts) const;
  // How many listed games cannot be right.
  [[nodiscard]] std::size_t wrongGames() const;
  // Places in games(), ascending.
  [[nodiscard]] std::vector<std::size_t> select(const GameCriteria& criteria) const;

  struct Content {
    std::string folder;
    std::vector<ListedGame> games;
    std::vector<SkippedFile> skipped;
    std::vector<SeasonTeam> teams;
    std::vector<SeasonPlayer> players;
    std::vector<SeasonLine> lines;
    friend bool operator==(const Content&, const Content&) = default;
  };
  // All that a scan finds.
  friend bool operator==(const GameCatalogue& one, const GameCatalogue& other) {
    return one.m_content == other.m_content;
  }

 private:
  FileSystem& m_files;
  Content m_content;
};

} // namespace hooptab
