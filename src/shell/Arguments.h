// The command line of the program. Only takes it apart: what is asked for is done by main.
#pragma once

#include "appearance/ColourScheme.h"
#include "season/Qualification.h"
#include "settings/CommandLine.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// A report to be written without a window.
struct ReportRequest {
  std::string kind;   // "sheet", "scorecard", "scorecard-lines", "play-by-play", "roster", "forms",
                      // "blank-forms", or one of the season's
  std::string format; // "pdf", "xlsx", "csv", "html", "png"; where none is given, the ending of the output
  std::string output; // absolute; a folder, for a file for each of several games
  std::string source; // absolute; the game or a folder of games, empty for a team's report
  std::vector<std::string> games; // absolute; several games and folders of games for "sheet", else empty
  std::string team;               // "ABBREVIATION-LEVEL"
  std::string reader;             // the team of the coach that a scouting sheet is for
  std::string player;             // jersey of a player, or the jerseys of a line, "4-5-10-12-15"
  std::string title;              // in place of the report's own, where not empty
  std::optional<Language> language;
  bool isLetter = false;
  bool isForFrenchSpreadsheets = false; // of a table as text
  std::optional<int> most;              // rows of a ranked table; 0: all
  Qualification minimum;                // of a season's averages
};

struct Arguments {
  std::optional<std::string> folder; // absolute
  std::optional<ColourScheme> colourScheme;
  std::optional<Language> language;
  bool asksForHelp = false;
  bool asksForVersion = false;
  bool leavesWhenReady = false;
  bool isRehearsal = false;
  std::optional<ReportRequest> report;
  std::vector<std::string> games; // absolute
  WrongUse wrong;
};

// `words` without the program's name; paths are taken relative to `currentFolder`. After "--" every word is a
// game.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& words,
                                       const std::string& currentFolder);

} // namespace hooptab
