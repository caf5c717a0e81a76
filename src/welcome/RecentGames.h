// What the start page tells of the games that were open last: read whole from their files, for the score is
// in none of the details. May run on any thread; it shares nothing but the file system with others.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"
#include "storage/TaskWatch.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct RecentGame {
  struct Team {
    std::string abbreviation;
    std::uint32_t colour = 0; // red + 256 * green + 65536 * blue
    int points = 0;
    friend bool operator==(const Team&, const Team&) = default;
  };
  std::string path;
  GameFileProblem problem = GameFileProblem::None; // what is below holds only with none
  std::string date;                                // yyyy-mm-dd, as the file has it
  PerSide<Team> teams;
  bool isFinished = false;
  bool mayBeCut = false;   // finished, and its end is missing
  bool hasPeriods = false; // recorded event by event, not entered as totals
  bool hasTime = false;
  int period = 0;           // of the last event
  int regularPeriods = 0;   // what is behind them is overtime; 0: not known
  int clockSeconds = 0;     // of the last event
  std::size_t events = 0;   // without deleted ones
  std::int64_t changed = 0; // the file, in seconds since 1970
  friend bool operator==(const RecentGame&, const RecentGame&) = default;
};

struct RecentGames {
  static constexpr std::size_t kMostOthers = 8;

  std::optional<RecentGame> unfinished; // the first one that goes on
  std::vector<RecentGame> others;       // in the order of the paths
  friend bool operator==(const RecentGames&, const RecentGames&) = default;
};

// Files that are not there are passed over. Stops between two files once it is cancelled.
[[nodiscard]] RecentGames readRecentGames(FileSystem& files, const std::vector<std::string>& paths,
                                          const TaskWatch& watch = {});

} // namespace hooptab
