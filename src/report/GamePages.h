// Several games for one file: each as the report of one page, and the table that lists them. A game that
// cannot be read is passed over, and named. Writes nothing.
#pragma once

#include "game/GameFile.h"
#include "report/Report.h"
#include "settings/Texts.h"
#include "storage/FileSystem.h"
#include "storage/TaskWatch.h"

#include <span>
#include <string>
#include <vector>

namespace hooptab {

struct GamePages {
  struct PassedOver {
    std::string path;
    Text why = Text::None;
  };
  ReportTable summary; // a row a game: date, teams, score
  std::vector<Report> pages;
  std::vector<std::string> names; // of the games, for the sheets of a workbook
  std::vector<PassedOver> passedOver;
};

// In the order of the paths; each is told to the watch. Cancelled, some of them.
[[nodiscard]] GamePages gamePages(FileSystem& files, std::span<const std::string> paths, const Texts& texts,
                                  const TaskWatch& watch = {});

// Why a game could not be read, as the words behind its path.
[[nodiscard]] Text whyNotRead(GameFileProblem problem);

// What files of games of these dates are called, without ending: "2026-11-05 - 2026-11-07". `otherwise` where
// no game has a date.
[[nodiscard]] std::string nameOfGames(std::vector<std::string> dates, const std::string& otherwise);

} // namespace hooptab
