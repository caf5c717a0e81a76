#include "recording/ScoreText.h"

#include "recording/ManualTime.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <fstream>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using Phase = LiveGame::Phase;

class ScoreTextTest : public testing::Test {
 protected:
  void open(const std::string& periods, bool hasTime = true) {
    const std::string path = folder.path("score.GAM");
    std::string game = textOfGame(periods);
    if (!hasTime)
      game.replace(game.find("DUREE=10"), 8, "DUREE=0");
    std::ofstream(path) << game;
    ASSERT_EQ(live.open(path), GameFileProblem::None);
  }
  std::string shown() const {
    return periodShown(live, texts) + ' ' + clockShown(live) + ' ' + startShown(live, texts);
  }

  TemporaryFolder folder;
  FileSystem disk;
  cinifile store{disk};
  ManualTime time;
  Texts texts;
  LiveGame live{store, time};
};

TEST_F(ScoreTextTest, SaysPeriodClockAndWhatTheButtonDoes) {
  open("[PERIODE4]\n1=00:02,GFT,0-4\n2=00:02,GFT,1-3\n");
  EXPECT_EQ(shown(), "4 00:02 START");
  live.start();
  EXPECT_EQ(shown(), "4 00:02 STOP");
  time.now += 2;
  live.tick();
  EXPECT_EQ(live.phase(), Phase::OvertimeAsked);
  EXPECT_EQ(shown(), "4 00:00 START") << "which asks for the overtime again";
  ASSERT_TRUE(live.beginOvertime(5, true));
  EXPECT_EQ(shown(), "OT1 05:00 START");
  EXPECT_EQ(shownByPeriod(live, 0, ByPeriod::Points, texts), "1: 0   2: 0   3: 0   4: 1   OT1: 0");
  texts.setLanguage(Language::French);
  EXPECT_EQ(shown(), "PROL.1 05:00 DÉPART");
  time.now += 4; // behind the horn
  live.start();
  ASSERT_TRUE(live.recordShot(1, 1, EventCode::GFT, true));
  ASSERT_TRUE(live.recordAction(1, 1, EventCode::STF));
  time.now += 300;
  live.tick();
  EXPECT_EQ(shown(), "PROL.1 00:00 ---");
  EXPECT_EQ(shownByPeriod(live, 1, ByPeriod::Fouls, texts), "1: 0   2: 0   3: 0   4: 0   PROL.1: 1");
  live.finish("");
  EXPECT_EQ(startShown(live, texts), "---");
}

TEST_F(ScoreTextTest, WithoutTimeShowsNone) {
  open("[PERIODE2]\n1=00:00,GFT,0-4\n", false);
  EXPECT_EQ(shown(), "2 --:-- START");
  EXPECT_EQ(leadTimeShown(live, LeadState::Team0), "--:--");
}

TEST(TypedClock, TakesMinutesAndSecondsUpToTheLengthOfThePeriod) {
  EXPECT_EQ(typedClock("7:05", 600), 425);
  EXPECT_EQ(typedClock(" 07:05 ", 600), 425);
  EXPECT_EQ(typedClock("10:00", 600), 600);
  EXPECT_EQ(typedClock("0:00", 600), 0);
  EXPECT_EQ(typedClock("145", 600), 105);
  EXPECT_EQ(typedClock("0959", 600), 599);
  EXPECT_EQ(typedClock("1000", 600), 600);
  EXPECT_EQ(typedClock("3", 600), 180);
  EXPECT_EQ(typedClock("10", 600), 600);
  for (const char* refused : {"10:01", "1001", "11", "7:5", "7:60", "760", "-7:05", "-7", "7.05", "", ":05",
                              "7:05x", "7x", "00705"})
    EXPECT_EQ(typedClock(refused, 600), std::nullopt) << refused;
}

} // namespace
} // namespace hooptab
