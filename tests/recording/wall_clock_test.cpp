// When events happened by the clock on the wall, in the game's own file.
#include "LiveTable.h"
#include "game/WallClock.h"

namespace hooptab {
namespace {

class WallClockTest : public LiveTableTest {
 protected:
  static constexpr std::int64_t kMidnight = 1763788400000 - 36'000'000;
  void SetUp() override { time.utcAtZero = kMidnight; }
  // By number, in seconds since the game was opened.
  std::map<int, std::int64_t> times() {
    const ProfileText text(folder.read("live.GAM"));
    std::map<int, std::int64_t> found = readWallClock(text, live.game().details.id);
    for (auto& [number, milliseconds] : found)
      milliseconds = (milliseconds - 1763788400000) / 1000;
    return found;
  }
};

TEST_F(WallClockTest, StandsForStartsAndStopsAndWhatIsRecordedBetween) {
  open(textOfGame(kBegin + "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"));
  EXPECT_TRUE(live.game().details.id.empty()) << "of an older program";
  run(10);                                             // 3
  live.recordAction(Side::Visitor, 1, EventCode::SPF); // 4, while the game's clock tells it
  pass(5);
  live.stop(); // 5
  pass(20);
  live.recordShot(Side::Home, 1, EventCode::GFT, true); // 6
  EXPECT_EQ(live.game().details.id.size(), 32U);
  EXPECT_EQ(onDisk().details.id, live.game().details.id);
  const std::map<int, std::int64_t> before = times();
  EXPECT_EQ(before, (std::map<int, std::int64_t>{{3, 0}, {5, 15}, {6, 35}}));
  pass(60);
  ASSERT_TRUE(
      live.insertEvent({1, "5"}, LiveGame::Where::Before, 590, {EventCode::STO, false, Side::Visitor, 2}));
  ASSERT_TRUE(live.setTime({1, "5"}, 580));
  ASSERT_TRUE(live.undo());
  EXPECT_EQ(times(), before) << "what is put in later has no time, what is rewritten keeps its first";
}

// A pending substitution is written when it is whole; it began with its first click.
TEST_F(WallClockTest, OfASubstitutionIsThatOfItsFirstClick) {
  open(textOfGame(kBegin + "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"));
  run(10);
  live.toggleOnCourt(Side::Visitor, 5);
  pass(4);
  live.toggleOnCourt(Side::Visitor, 6);
  EXPECT_EQ(times(), (std::map<int, std::int64_t>{{3, 0}, {4, 10}, {5, 10}}));
}

// A machine that slept stops behind the horn, and of a stop that was lost nobody knows when it was.
TEST_F(WallClockTest, OfAStopIsWhenItWas) {
  open(textOfGame(kBegin + "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"));
  run(0);
  pass(2400);
  EXPECT_EQ(times(), (std::map<int, std::int64_t>{{3, 0}, {4, 600}}));
  pass(5);
  live.start(); // 5
  ASSERT_EQ(live.open(path), GameFileProblem::None);
  pass(86'400);
  ASSERT_TRUE(live.settleStop(500));
  EXPECT_EQ(times().size(), 3U);
}

// What others wrote under our number gives way with its time, and a time comes back with its line.
TEST_F(WallClockTest, GoesWithItsEventUnderOtherHands) {
  open(textOfGame(kBegin + "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"));
  run(10);
  const std::string before = folder.read("live.GAM");
  folder.write("live.GAM", before + "4=700\r\n[PERIODE2]\r\n4=09:00,SA,0-4\r\n");
  live.recordAction(Side::Visitor, 1, EventCode::SPF);
  EXPECT_EQ(times(), (std::map<int, std::int64_t>{{3, 0}}));
  live.stop();
  ASSERT_EQ(live.open(path), GameFileProblem::None);
  const std::map<int, std::int64_t> all = times();
  ASSERT_TRUE(all.contains(5));
  folder.write("live.GAM", before);
  ASSERT_TRUE(live.settle());
  EXPECT_EQ(times(), all);
}

TEST_F(WallClockTest, OfTheGameThatStoodThereBeforeIsDropped) {
  open(textOfGame(kBegin) + "[HORLOGE]\n1=5\nPARTIE=old\n3=6\n");
  EXPECT_TRUE(times().empty());
  run(1);
  EXPECT_EQ(times(), (std::map<int, std::int64_t>{{2, 0}}));
  const std::string text = folder.read("live.GAM");
  EXPECT_EQ(text.find("PARTIE=old"), std::string::npos);
  EXPECT_EQ(text.find("[HORLOGE]\r\nPARTIE="), text.find("[HORLOGE]")) << "whose it is stands first";
}

} // namespace
} // namespace hooptab
