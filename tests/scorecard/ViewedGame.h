// A small game that grows: two teams of made-up players, written through the store as the program writes one.
#pragma once

#include "game/GameFile.h"
#include "storage/FileSystem.h"
#include "storage/ProfileStore.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace hooptab {

class ViewedGame {
 public:
  explicit ViewedGame(const std::string& name = "seen.GAM") : file(store, folder.path(name)) {
    GameDetails details;
    details.version = GameFile::kVersion;
    details.date = "2026-11-05";
    details.teamColour[0] = 8438015;
    details.teamColour[1] = 12303223;
    details.abbreviation[0] = "LYNX";
    details.abbreviation[1] = "PUMA";
    details.name[0] = "Basketball College";
    details.name[1] = "Very Small School";
    details.statisticLabel[0] = "U1-Charges";
    details.statisticLabel[1] = "U2-";
    details.place = "Main gym";
    details.periods = 4;
    details.minutesPerPeriod = 10;
    details.bonus = 2;
    details.type = 2;
    details.notes = "A close one";
    const std::vector<RosterPlayer> visitors = {
        {"4", 0, "Ann Able"}, {"5", 1, "Bea Baker"}, {"12", 2, "Cleo Carter"}, {"23", 9, "Dana Dunn"}};
    const std::vector<RosterPlayer> home = {{"7", 0, "Eve Ellis"}, {"8", 1, "Fay Ford"}};
    EXPECT_EQ(file.create(details, visitors, home), GameFileProblem::None);
    add(1, 600, {stopText("IN-04-05", "IN-07-08"), startText()});
    add(1, 590, {",GFG,0-4,40,50"});
    add(1, 580, {",GF3A,0-5,110,90"});
    add(1, 570, {",GF3,1-7,60,20", ",SA,1-8"});
    add(1, 560, {",SPF,0-12", ",SPF,0-12"});
    add(1, 550, {stopText("IN-05-12", "IN-07-08"), startText()});
    add(1, 540, {",GFG,0-12,30,30"});
  }

  void add(int period, int clock, const std::vector<std::string>& events) {
    EXPECT_EQ(file.append(period, clock, file.nextNumber(), events), GameFileProblem::None);
  }

  TemporaryFolder folder;
  FileSystem files;
  ProfileStore store{files};
  GameFile file;
};

} // namespace hooptab
