// Reads one game file after another into what a season keeps of it. Each thread of a scan has a reader of its
// own; the numbers that its games carry are those of the reader's own names().
#pragma once

#include "catalogue/GameCatalogue.h"
#include "catalogue/NameTable.h"
#include "game/GameFile.h"
#include "game/Side.h"
#include "game/Tally.h"
#include "insight/GameInsight.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

class SummaryReader {
 public:
  explicit SummaryReader(FileSystem& files) : m_files(files) {}

  // Nothing when `game` was read, else why the file is left out.
  [[nodiscard]] std::optional<SkipReason> read(const std::string& path, ListedGame& game);
  // The state in which the file that was read last was; nothing of one that could not be read.
  const std::optional<FileStamp>& stamp() const { return m_stamp; }
  const NameTable::Lists& names() const { return m_names.lists(); }

 private:
  std::optional<CountOutOfRange> summarise(const Game& source, ListedGame& game);
  static void check(const Game& source, const ProfileText& text,
                    const std::optional<CountOutOfRange>& outOfRange, ListedGame& game);
  void addPlayers(const Roster& roster, Side side, ListedGame& game);
  void addLines(const Roster& roster, Side side, const GameInsight& insight, ListedGame& game);
  void addUntoldLines(Side side, const GameInsight& insight, ListedGame& game) const;
  void addPeriods(int periods, ListedGame& game) const;
  void addShots(ListedGame& game) const;
  // Which rows of the game's players stand for a line's.
  [[nodiscard]] std::uint32_t rowsOf(Side side, unsigned members) const;
  [[nodiscard]] NameTable::LineKey lineKey(const Roster& roster, Side side, std::size_t line, SeasonId team);

  FileSystem& m_files;
  NameTable m_names;
  std::optional<FileStamp> m_stamp;
  GameState m_state;                 // kept for its memory
  std::vector<CourtShare> m_ofLines; // of a side, by entry; kept for its memory
  // Of the game being read: each entry's jersey, and where its row stands.
  PerSide<std::array<NameTable::JerseyCode, GameState::kPlayerEntries>> m_codes = {};
  PerSide<std::array<std::uint8_t, GameState::kPlayerEntries>> m_rows = {};
};

} // namespace hooptab
