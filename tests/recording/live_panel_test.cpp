// What the panels beside the court and the scoreboard show, and where a click on the court belongs.
#include "recording/LivePanel.h"

#include "game/CourtClick.h"
#include "recording/LiveTable.h"
#include "recording/ScoreText.h"

namespace hooptab {
namespace {

TEST(CourtClick, TellsTwoFromThreeAndIgnoresLinesOnEitherSide) {
  const ZoneMap zones(1, 2, 3);
  const auto kindAt = [&](court::Place shown, bool playsRight) {
    const auto click = CourtClick::of(shown, playsRight, zones);
    return click ? std::optional(click->kind) : std::nullopt;
  };
  const court::Place box{10, 100};
  EXPECT_EQ(kindAt(box, false), EventCode::GFG);
  EXPECT_EQ(kindAt({60, 40}, false), EventCode::GFG);
  EXPECT_EQ(kindAt({10, 4}, false), EventCode::GF3);
  EXPECT_EQ(kindAt(box, true), EventCode::GF3) << "far from the basket at the right";
  EXPECT_EQ(kindAt(court::reflected(box), true), EventCode::GFG);
  EXPECT_EQ(CourtClick::of({116, 196}, true, zones)->place, (court::Place{10, 4}));
  EXPECT_EQ(CourtClick::of({116, 196}, false, zones)->place, (court::Place{116, 196}));
  int lines = 0;
  for (int y = 0; y <= 200; ++y) {
    const court::Place place{30, static_cast<double>(y)};
    const bool isLine = zones.shotAt(place) == ZoneMap::Result::Ignored;
    lines += isLine ? 1 : 0;
    EXPECT_EQ(!kindAt(place, false).has_value(), isLine) << y;
    EXPECT_EQ(!kindAt(court::reflected(place), true).has_value(), isLine) << y;
  }
  EXPECT_EQ(lines, 4) << "two of the box, two straight parts of the three-point line";
  EXPECT_FALSE(kindAt({127.5, 100}, false));
  EXPECT_FALSE(kindAt({127.5, 100}, true)) << "left of the picture once it is turned";
  EXPECT_EQ(CourtClick::of({10, 4}, false, ZoneMap(7, 7, 7))->kind, EventCode::GFG) << "equal colours";
}

class LivePanelTest : public LiveTableTest {
 protected:
  void SetUp() override {
    GameDetails details = regular();
    details.personalFoulLimit = 5;
    details.technicalFoulLimit = 2;
    create(details, "4 5", "4 5");
    ASSERT_TRUE(live.setOnCourt({0b110, 0b100}));
  }
  int count(Slot slot, Counter counter) const { return LivePanel::of(live, slot).counters[counter]; }
};

TEST_F(LivePanelTest, ShowsWhatTheCountersHoldOfThePlayerInTheSlot) {
  run(75);
  ASSERT_TRUE(live.recordShot(Side::Visitor, 2, EventCode::GF3, true, {{100, 30}}));
  ASSERT_TRUE(live.recordShot(Side::Visitor, 2, EventCode::GFG, false, {{20, 90}}));
  ASSERT_TRUE(live.recordShot(Side::Visitor, 2, EventCode::GFT, true));
  ASSERT_TRUE(live.recordShot(Side::Home, 2, EventCode::GFG, true, {{40, 40}}));
  ASSERT_TRUE(live.recordAction(Side::Visitor, 2, EventCode::SST));
  const LivePanel panel = LivePanel::of(live, {Side::Visitor, 1});
  EXPECT_EQ(panel.player, 2);
  EXPECT_EQ(panel.jersey + ' ' + panel.name + ' ' + panel.timeOnCourt, "5 Player 5 01:15");
  EXPECT_EQ(std::pair(panel.made(), panel.attempts()), std::pair(2, 3));
  EXPECT_EQ(pointsOf(panel.counters), 4);
  EXPECT_EQ(panel.counters[Counter::ST], 1);
  const std::vector<LivePanel::ShotMark> expected = {{{100, 30}, true}, {{20, 90}, false}};
  EXPECT_EQ(panel.shots, expected) << "his own, free throws apart";
  const LivePanel other = LivePanel::of(live, {Side::Home, 0});
  EXPECT_EQ(other.team, Side::Home);
  EXPECT_EQ(other.shots.size(), 1U);
  ASSERT_TRUE(live.undo());
  EXPECT_EQ(count({Side::Visitor, 1}, Counter::ST), 0);
  const LivePanel nobody = LivePanel::of(live, {Side::Home, 1});
  EXPECT_EQ(std::pair(nobody.team, nobody.player), std::pair(Side::Home, 0));
  EXPECT_TRUE(nobody.timeOnCourt.empty() && nobody.shots.empty());
}

TEST_F(LivePanelTest, WarnsOfTwoEarlyFoulsAndOfOneBeforeTheLimit) {
  using Mark = LivePanel::FoulMark;
  ASSERT_TRUE(live.recordAction(Side::Visitor, 2, EventCode::SPF) &&
              live.recordAction(Side::Visitor, 2, EventCode::SPF));
  for (const auto& [period, mark] :
       {std::pair(1, Mark::EarlyTwo), {2, Mark::EarlyTwo}, {3, Mark::None}, {1, Mark::EarlyTwo}}) {
    ASSERT_TRUE(live.setPeriod(period));
    EXPECT_EQ(LivePanel::foulTrouble(live, Side::Visitor, 2), mark) << period;
  }
  ASSERT_TRUE(live.recordAction(Side::Visitor, 2, EventCode::STF) &&
              live.recordAction(Side::Visitor, 2, EventCode::STF));
  EXPECT_EQ(LivePanel::foulTrouble(live, Side::Visitor, 2), Mark::Reached);
  EXPECT_EQ(LivePanel::of(live, {Side::Visitor, 1}).personalFouls, Mark::EarlyTwo);
  ASSERT_TRUE(live.setPeriod(2));
  for (const Mark mark : {Mark::None, Mark::None, Mark::None, Mark::OneLeft, Mark::Reached, Mark::Reached}) {
    ASSERT_TRUE(live.recordAction(Side::Visitor, 1, EventCode::SPF));
    EXPECT_EQ(LivePanel::of(live, {Side::Visitor, 0}).personalFouls, mark)
        << count({Side::Visitor, 0}, Counter::PF);
  }
  EXPECT_EQ(LivePanel::of(live, {Side::Visitor, 0}).technicalFouls, Mark::None) << "without a single one";
  ASSERT_TRUE(live.recordAction(Side::Visitor, 1, EventCode::STF));
  EXPECT_EQ(LivePanel::of(live, {Side::Visitor, 0}).technicalFouls, Mark::OneLeft);
}

class ScoreTextTest : public LiveTableTest {
 protected:
  std::string shown() const {
    return periodShown(live, texts) + ' ' + clockShown(live) + ' ' + startShown(live, texts);
  }
};

TEST_F(ScoreTextTest, SaysPeriodClockAndWhatTheButtonDoes) {
  open(textOfGame("[PERIODE4]\n1=00:02,GFT,0-4\n2=00:02,GFT,1-3\n"));
  EXPECT_EQ(shown(), "4 00:02 START");
  live.start();
  EXPECT_EQ(shown(), "4 00:02 STOP");
  pass(2);
  EXPECT_EQ(live.phase(), Phase::OvertimeAsked);
  EXPECT_EQ(shown(), "4 00:00 START") << "which asks for the overtime again";
  ASSERT_TRUE(live.beginOvertime(5, true));
  EXPECT_EQ(shown(), "OT1 05:00 START");
  EXPECT_EQ(shownByPeriod(live, Side::Visitor, ByPeriod::Points, texts),
            "1: 0   2: 0   3: 0   4: 1   OT1: 0");
  texts.setLanguage(Language::French);
  EXPECT_EQ(shown(), "PROL.1 05:00 DÉPART");
  pass(4); // behind the horn
  live.start();
  ASSERT_TRUE(live.recordShot(Side::Home, 1, EventCode::GFT, true));
  ASSERT_TRUE(live.recordAction(Side::Home, 1, EventCode::STF));
  pass(300);
  EXPECT_EQ(shown(), "PROL.1 00:00 ---");
  EXPECT_EQ(shownByPeriod(live, Side::Home, ByPeriod::Fouls, texts), "1: 0   2: 0   3: 0   4: 0   PROL.1: 1");
  live.finish("");
  EXPECT_EQ(startShown(live, texts), "---");
}

TEST_F(ScoreTextTest, WithoutTimeShowsNone) {
  std::string game = textOfGame("[PERIODE2]\n1=00:00,GFT,0-4\n");
  open(game.replace(game.find("DUREE=10"), 8, "DUREE=0"));
  EXPECT_EQ(shown(), "2 --:-- START");
  EXPECT_EQ(leadTimeShown(live, LeadState::Team0), "--:--");
}

TEST(TypedClock, TakesMinutesAndSecondsUpToTheLengthOfThePeriod) {
  const std::pair<const char*, int> cases[] = {{"7:05", 425}, {" 07:05 ", 425}, {"10:00", 600},
                                               {"0:00", 0},   {"145", 105},     {"0959", 599},
                                               {"1000", 600}, {"3", 180},       {"10", 600}};
  for (const auto& [typed, seconds] : cases)
    EXPECT_EQ(typedClock(typed, 600), seconds) << typed;
  for (const char* refused : {"10:01", "1001", "11", "7:5", "7:60", "760", "-7:05", "-7", "7.05", "", ":05",
                              "7:05x", "7x", "00705"})
    EXPECT_EQ(typedClock(refused, 600), std::nullopt) << refused;
}

} // namespace
} // namespace hooptab
