#include "recording/LivePanel.h"

#include "game/CourtClick.h"
#include "recording/LiveGame.h"
#include "recording/ManualTime.h"
#include "storage/FileSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

constexpr ZoneMap::Result kIgnored = ZoneMap::Result::Ignored;

TEST(CourtClick, TellsTwoFromThreeAndIgnoresLinesOnEitherSide) {
  const ZoneMap zones(1, 2, 3);
  const auto kindAt = [&](court::Place shown, bool playsRight) {
    const auto click = CourtClick::of(shown, playsRight, zones);
    return click ? std::optional(click->kind) : std::nullopt;
  };
  const court::Place box{10, 100};
  const court::Place inside{60, 40};
  const court::Place corner{10, 4};
  EXPECT_EQ(kindAt(box, false), EventCode::GFG);
  EXPECT_EQ(kindAt(inside, false), EventCode::GFG);
  EXPECT_EQ(kindAt(corner, false), EventCode::GF3);
  EXPECT_EQ(kindAt(box, true), EventCode::GF3) << "far from the basket at the right";
  EXPECT_EQ(kindAt(court::reflected(box), true), EventCode::GFG);
  EXPECT_EQ(CourtClick::of({116, 196}, true, zones)->place, (court::Place{10, 4}));
  EXPECT_EQ(CourtClick::of({116, 196}, false, zones)->place, (court::Place{116, 196}));

  int lines = 0;
  for (int y = 0; y <= 200; ++y) {
    const court::Place place{30, static_cast<double>(y)};
    const bool isLine = zones.shotAt(place) == kIgnored;
    lines += isLine ? 1 : 0;
    EXPECT_EQ(!kindAt(place, false).has_value(), isLine) << y;
    EXPECT_EQ(!kindAt(court::reflected(place), true).has_value(), isLine) << y;
  }
  EXPECT_EQ(lines, 4) << "two of the box, two straight parts of the three-point line";
  EXPECT_FALSE(kindAt({127.5, 100}, false));
  EXPECT_FALSE(kindAt({127.5, 100}, true)) << "left of the picture once it is turned";
}

TEST(CourtClick, EqualColoursOfZonesAreTwoPoints) {
  const ZoneMap zones(7, 7, 7);
  EXPECT_EQ(CourtClick::of({10, 4}, false, zones)->kind, EventCode::GFG);
}

class LivePanelTest : public testing::Test {
 protected:
  void SetUp() override {
    GameDetails details;
    details.periods = 4;
    details.minutesPerPeriod = 10;
    details.personalFoulLimit = 5;
    details.technicalFoulLimit = 2;
    const std::vector<RosterPlayer> players = {{"4", 0, "A"}, {"5", 1, "B"}};
    ASSERT_EQ(GameFile(store, path).create(details, players, players), GameFileProblem::None);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
    ASSERT_TRUE(live.setOnCourt({0b110, 0b100}));
  }
  int count(int slot, Counter counter) const { return LivePanel::of(live, slot).counters[counter]; }

  TemporaryFolder folder;
  FileSystem files;
  cinifile store{files};
  ManualTime time;
  std::string path = folder.path("panel.GAM");
  LiveGame live{store, time};
};

TEST_F(LivePanelTest, ShowsWhatTheCountersHoldOfThePlayerInTheSlot) {
  live.start();
  time.now += 75;
  live.tick();
  ASSERT_TRUE(live.recordShot(0, 2, EventCode::GF3, true, {{100, 30}}));
  ASSERT_TRUE(live.recordShot(0, 2, EventCode::GFG, false, {{20, 90}}));
  ASSERT_TRUE(live.recordShot(0, 2, EventCode::GFT, true));
  ASSERT_TRUE(live.recordShot(1, 2, EventCode::GFG, true, {{40, 40}}));
  ASSERT_TRUE(live.recordAction(0, 2, EventCode::SST));

  const LivePanel panel = LivePanel::of(live, 1);
  EXPECT_EQ(panel.player, 2);
  EXPECT_EQ(panel.jersey, "5");
  EXPECT_EQ(panel.name, "B");
  EXPECT_EQ(panel.timeOnCourt, "01:15");
  EXPECT_EQ(panel.made(), 2);
  EXPECT_EQ(panel.attempts(), 3);
  EXPECT_EQ(pointsOf(panel.counters), 4);
  EXPECT_EQ(panel.counters[Counter::ST], 1);
  const std::vector<LivePanel::ShotMark> expected = {{{100, 30}, true}, {{20, 90}, false}};
  EXPECT_EQ(panel.shots, expected) << "his own, free throws apart";

  const LivePanel other = LivePanel::of(live, 5);
  EXPECT_EQ(other.team, 1);
  EXPECT_EQ(other.shots.size(), 1U);
  ASSERT_TRUE(live.undo());
  EXPECT_EQ(count(1, Counter::ST), 0);
}

TEST_F(LivePanelTest, AnEmptySlotHoldsNobody) {
  const LivePanel panel = LivePanel::of(live, 6);
  EXPECT_EQ(panel.team, 1);
  EXPECT_EQ(panel.player, 0);
  EXPECT_EQ(panel.timeOnCourt, "");
  EXPECT_TRUE(panel.shots.empty());
}

TEST_F(LivePanelTest, WarnsOfTwoEarlyFoulsAndOfOneBeforeTheLimit) {
  using Mark = LivePanel::FoulMark;
  ASSERT_TRUE(live.recordAction(0, 2, EventCode::SPF) && live.recordAction(0, 2, EventCode::SPF));
  for (const auto& [period, mark] :
       {std::pair(1, Mark::EarlyTwo), {2, Mark::EarlyTwo}, {3, Mark::None}, {1, Mark::EarlyTwo}}) {
    ASSERT_TRUE(live.setPeriod(period));
    EXPECT_EQ(LivePanel::foulTrouble(live, 0, 2), mark) << period;
  }
  ASSERT_TRUE(live.recordAction(0, 2, EventCode::STF) && live.recordAction(0, 2, EventCode::STF));
  EXPECT_EQ(LivePanel::foulTrouble(live, 0, 2), Mark::Reached);
  EXPECT_EQ(LivePanel::of(live, 1).personalFouls, Mark::EarlyTwo);

  ASSERT_TRUE(live.setPeriod(2));
  for (const Mark mark : {Mark::None, Mark::None, Mark::None, Mark::OneLeft, Mark::Reached, Mark::Reached}) {
    ASSERT_TRUE(live.recordAction(0, 1, EventCode::SPF));
    EXPECT_EQ(LivePanel::of(live, 0).personalFouls, mark) << count(0, Counter::PF);
  }
  EXPECT_EQ(LivePanel::of(live, 0).technicalFouls, Mark::None) << "without a single one";
  ASSERT_TRUE(live.recordAction(0, 1, EventCode::STF));
  EXPECT_EQ(LivePanel::of(live, 0).technicalFouls, Mark::OneLeft);
}

} // namespace
} // namespace hooptab
