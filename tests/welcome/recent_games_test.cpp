#include "welcome/RecentGames.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace hooptab {
namespace {

class RecentGamesTest : public testing::Test {
 protected:
  std::string game(const std::string& name, bool isFinished, int inputType = 0, int minutes = 10) const {
    return folder.write(name,
                        "[DETAILS]\r\nVERSION=2.0\r\nINPUTTYPE=" + std::to_string(inputType) +
                            "\r\nDATE=2026-11-20\r\nEQUIPE0COL=255\r\nEQUIPE0ABB=ANTS\r\nEQUIPE1ABB=BEES"
                            "\r\nNBREPERIODE=2\r\nDUREE=" +
                            std::to_string(minutes) + (isFinished ? "\r\nTERMINE=1" : "") +
                            "\r\n[0]\r\n4=1,Ann\r\n[1]\r\n5=1,Bo\r\n[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n"
                            "2=09:10,GF3,0-4\r\n3=E08:00,GFG,1-5\r\n[PERIODE3]\r\n4=00:41,GFG,1-5\r\n");
  }
  RecentGames read(const std::vector<std::string>& paths) { return readRecentGames(disk, paths, watch); }

  TemporaryFolder folder;
  FileSystem disk;
  TaskWatch watch;
};

TEST_F(RecentGamesTest, TheFirstGameThatGoesOnStandsApartAndTheOthersKeepTheirOrder) {
  const std::string final = game("1.GAM", true);
  const std::string goesOn = game("2.GAM", false);
  const std::string older = game("3.GAM", false, 1);
  const RecentGames games = read({final, folder.path("gone.GAM"), goesOn, older});
  const RecentGame& found = games.unfinished.value();
  EXPECT_EQ(found.path, goesOn);
  EXPECT_EQ(found.date, "2026-11-20");
  EXPECT_EQ(found.teams[Side::Visitor], (RecentGame::Team{"ANTS", 255, 3}));
  EXPECT_EQ(found.teams[Side::Home].points, 2) << "a deleted shot counts nothing";
  EXPECT_EQ(found.events, 3U);
  EXPECT_EQ((std::vector{found.period, found.regularPeriods, found.clockSeconds}), (std::vector{3, 2, 41}));
  EXPECT_TRUE(found.hasTime && !found.isFinished);
  EXPECT_GT(found.changed, 0);
  ASSERT_EQ(games.others.size(), 2U) << "a file that is gone is not among them";
  EXPECT_TRUE(games.others[0].isFinished);
  EXPECT_EQ(games.others[1].path, older);
  EXPECT_FALSE(games.others[1].hasPeriods) << "a game of totals";
}

TEST_F(RecentGamesTest, WhatCannotBeReadSaysSoAndBlocksNothing) {
  const std::string pipe = folder.path("pipe.GAM");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const RecentGames games = read({pipe, folder.write("other.GAM", "[DETAILS]\r\nVERSION=1.0\r\n"),
                                  folder.path(), "", game("good.GAM", true)});
  ASSERT_EQ(games.others.size(), 4U);
  EXPECT_EQ(games.others[0].problem, GameFileProblem::Unreadable);
  EXPECT_EQ(games.others[1].problem, GameFileProblem::InvalidFormat);
  EXPECT_EQ(games.others[2].problem, GameFileProblem::Unreadable) << "a folder";
  EXPECT_EQ(games.others[3].teams[Side::Visitor].points, 3);
  EXPECT_FALSE(games.unfinished.has_value());
}

TEST_F(RecentGamesTest, AFewAreReadAndNoneOnceThePageIsGone) {
  std::vector<std::string> paths;
  for (int i = 0; i < 30; ++i)
    paths.push_back(i % 3 == 0 ? folder.path("gone" + std::to_string(i)) : game(std::to_string(i), true));
  const RecentGames games = read(paths);
  ASSERT_EQ(games.others.size(), RecentGames::kMostOthers);
  EXPECT_EQ(games.others.back().path, paths[11]);
  watch.cancel();
  EXPECT_EQ(read(paths), RecentGames());
}

} // namespace
} // namespace hooptab
