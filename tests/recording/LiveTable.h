// A live game that begins with the text of its file, for tests of what is done at the scorer's table.
#pragma once

#include "recording/LiveGame.h"
#include "recording/ManualTime.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {

class LiveTableTest : public testing::Test {
 protected:
  // PAN 4 5 10 12 15 0 00, OLY 3 7 8 11 22.
  void open(const std::string& game) {
    path = folder.write("live.GAM", game);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
  }
  std::string places(LiveGame& game, int team = 0) const {
    std::string text;
    for (int slot = team * LiveGame::kSlotsOfTeam; slot < (team + 1) * LiveGame::kSlotsOfTeam; ++slot)
      text += (text.empty() ? "" : " ") + std::to_string(game.playerIn(slot));
    return text;
  }
  Game onDisk() {
    Game game;
    EXPECT_EQ(GameFile(store, path).read(game), GameFileProblem::None);
    return game;
  }
  static constexpr unsigned kFive = 0b111110; // entries 1 to 5
  static inline const std::string kBegin = "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n";

  TemporaryFolder folder;
  FaultyFileSystem disk;
  cinifile store{disk};
  ManualTime time;
  std::string path;
  LiveGame live{store, time};
};

} // namespace hooptab
