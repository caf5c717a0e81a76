// A live game and its file, for tests of what is done at the scorer's table.
#pragma once

#include "game/Side.h"
#include "recording/GameSession.h"
#include "recording/LiveFigures.h"
#include "recording/ManualTime.h"
#include "recording/Slot.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {

class LiveTableTest : public testing::Test {
 protected:
  using Phase = LiveGame::Phase;

  // PAN 4 5 10 12 15 0 00, OLY 3 7 8 11 22.
  void open(const std::string& game) {
    path = folder.write("live.GAM", game);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
  }
  // Four periods of ten minutes.
  static GameDetails regular() {
    GameDetails details;
    details.periods = 4;
    details.minutesPerPeriod = 10;
    return details;
  }
  // A new game of "Player 4" and so on.
  void create(const GameDetails& details, const std::string& visitors, const std::string& home) {
    const auto wearing = [](const std::string& jerseys) {
      std::vector<RosterPlayer> players;
      std::istringstream numbers(jerseys);
      for (std::string jersey; numbers >> jersey;)
        players.push_back({jersey, 0, "Player " + jersey});
      return players;
    };
    ASSERT_EQ(GameFile(store, path).create(details, wearing(visitors), wearing(home)), GameFileProblem::None);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
  }
  void putFives() { ASSERT_TRUE(live.setOnCourt({kFive, kFive})); }
  void pass(int seconds) {
    time.now += seconds;
    live.tick();
  }
  void run(int seconds) {
    live.start();
    pass(seconds);
  }
  std::string places(LiveGame& game, Side team = Side::Visitor) const {
    std::string text;
    for (int place = 0; place < Slot::kOfTeam; ++place)
      text += (text.empty() ? "" : " ") + std::to_string(game.playerIn({team, place}));
    return text;
  }
  Game onDisk() {
    Game game;
    EXPECT_EQ(GameFile(store, path).read(game), GameFileProblem::None);
    return game;
  }
  // The lines of a period on disk, keys left out, each behind a blank; all or the last ones.
  std::string lines(int period = 1, std::size_t last = SIZE_MAX) {
    const PeriodLines all = linesOfFile(store, path)[period];
    std::string text;
    for (std::size_t place = all.size() - std::min(last, all.size()); place < all.size(); ++place)
      text += ' ' + all[place].second;
    return text;
  }
  std::string last(std::size_t count) { return lines(1, count); }
  static constexpr unsigned kFive = 0b111110; // entries 1 to 5
  static inline const std::string kFives = ",ARRET,IN-04-05-10-12-15,IN-04-05-10-12-15";
  static inline const std::string kBegin = "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n";

  TemporaryFolder folder;
  FaultyFileSystem disk;
  ProfileStore store{disk};
  ManualTime time;
  std::string path = folder.path("live.GAM");
  GameSession session{store, time};
  LiveGame& live = *session.change(); // the test's own hand on it
  Texts texts;
};

} // namespace hooptab
