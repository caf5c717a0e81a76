// Chosen games written as one PDF, a page a game, and as one workbook, a sheet a game. All of it is made
// before the first byte is written, and each file is written whole or not at all.
#pragma once

#include "printing/ReportFiles.h"
#include "report/GamePages.h"

#include <string>
#include <vector>

namespace hooptab {

struct GamesOrder {
  std::vector<std::string> games;
  std::string pdf;      // its path; empty: none is asked for
  std::string workbook; // the same
  std::string title;    // of the pages, in place of their own where not empty
  Paper paper = Paper::A4;
};

struct GamesOutcome {
  std::vector<GamePages::PassedOver> passedOver;
  bool hasGames = false;            // one could be read at least
  bool isMade = false;              // else cancelled, or without room for temporary files
  std::vector<std::string> written; // paths
  std::string failed;               // the path that could not be written; those before it stand
  WriteProblem problem = WriteProblem::Unknown;
};

// The watch is told of each game as often as stepsOf() says.
[[nodiscard]] GamesOutcome writeGames(FileSystem& files, const GamesOrder& order, const Texts& texts,
                                      const TaskWatch& watch = {});
[[nodiscard]] std::size_t stepsOf(const GamesOrder& order);

} // namespace hooptab
