// Editing a recorded game: events put in, changed, moved and deleted, with all that depends on them.
#include "game/ShotFollowUp.h"
#include "recording/ConflictWords.h"
#include "recording/LiveTable.h"

#include <random>

namespace hooptab {
namespace {

using Where = LiveGame::Where;

class LiveEditTest : public LiveTableTest {
 protected:
  void SetUp() override {
    disk.syncs = false;
    create(regular(), "4 5 10 12 15 7 8", "4 5 10 12 15 7 8");
    putFives();
  }
  // 3 start, 4 basket at 9:50, 5 assist, 6 foul at 9:30, 7 stop, 8 start, 9 stop at 9:00.
  void play() {
    run(10);
    live.recordShot(Side::Visitor, 1, EventCode::GLG, true);
    live.recordAction(Side::Visitor, 2, EventCode::SA);
    pass(20);
    live.recordAction(Side::Home, 3, EventCode::SPF);
    live.stop();
    run(30);
    live.stop();
  }
  // Keys and lines of the file, "4=09:50,GLG,0-4".
  std::vector<std::string> lines() {
    std::vector<std::string> text;
    EventLines found = linesOfFile(store, path);
    EXPECT_EQ(found, linesOf(live.game().events));
    for (const auto& [key, line] : found[1])
      text.push_back(key + '=' + line);
    return text;
  }
  bool setDeleted(std::vector<EventPlace> events, bool isDeleted) {
    return live.setDeleted(events, isDeleted);
  }
  int seconds(Side team, int player) const { return LiveFigures(live).secondsOnCourt(team, player); }
};

TEST_F(LiveEditTest, EventsArePutInChangedAndMoved) {
  play();
  EXPECT_TRUE(
      live.insertEvent({1, "6"}, Where::Before, 570, {EventCode::GF3, false, Side::Home, 3, {{20, 30}}}));
  EXPECT_TRUE(live.insertEvent({1, "6"}, Where::Behind, 590, {EventCode::SST, false, Side::Home, 4}));
  auto found = lines();
  EXPECT_EQ(found[5], "11=09:50,SST,1-12") << "behind the last of its time";
  EXPECT_EQ(found[6], "10=09:30,GF3A,1-10,20,30");
  EXPECT_TRUE(live.editEvent({1, "4"}, 565, {EventCode::GDK, true, Side::Visitor, 5}));
  found = lines();
  EXPECT_EQ(found[3], "5=09:50,SA,0-5");
  EXPECT_EQ(found[9], "4=09:25,GDK,0-15") << "past its neighbours, behind the start at 09:30";
  EXPECT_EQ(live.state().players[Side::Visitor][5].counters[Counter::DKM], 1);
  EXPECT_TRUE(live.setTime({1, "4"}, 600));
  EXPECT_EQ(lines()[3], "4=10:00,GDK,0-15");
  for (int count = 0; count < 4; ++count)
    EXPECT_TRUE(live.undo());
  EXPECT_EQ(lines()[3], "4=09:50,GLG,0-4");
  EXPECT_EQ(lines()[5], "11=E09:50,SST,1-12") << "no line is lost";
  EXPECT_TRUE(live.redo());
  EXPECT_EQ(live.state().players[Side::Home][3].counters[Counter::F3A], 1);
  EXPECT_FALSE(live.setTime({1, "4"}, 601)) << "longer than the period";
  EXPECT_FALSE(live.insertEvent({1, "99"}, Where::Before, 500, {EventCode::SST, false, Side::Visitor, 1}));
  EXPECT_FALSE(live.insertEvent({1, "4"}, Where::Before, 590, {EventCode::SST, false, Side::Visitor, 9}))
      << "nobody";
}

TEST_F(LiveEditTest, WhatTeamsDoAndDetailsAreEditedAsOneStep) {
  play();
  ASSERT_TRUE(live.insertEvent({1, "6"}, Where::Before, 570, {EventCode::XTO, false, std::nullopt, 0}));
  const auto line = [this](const char* key) { return std::string(live.game().events.find(1, key)->whole()); };
  EXPECT_EQ(line("10"), "09:30,XTO,,K=MEDIA");
  ASSERT_TRUE(live.editEvent({1, "10"}, 590, {EventCode::XTO, false, Side::Home, 0, {}, {{"K", "SHORT"}}}));
  EXPECT_EQ(lines()[5], "10=09:50,XTO,1,K=SHORT") << "and moves like any other";
  ASSERT_TRUE(live.editEvent({1, "10"}, 590, {EventCode::XTV, false, Side::Home, 0}));
  EXPECT_EQ(line("10"), "09:50,XTV,1");
  EXPECT_EQ(live.state().teamRows[Side::Home].turnovers, 1);
  EXPECT_TRUE(live.undo() && live.undo());
  EXPECT_EQ(lines()[5], "10=09:30,XTO,,K=MEDIA");
  EXPECT_FALSE(live.insertEvent({1, "6"}, Where::Before, 570, {EventCode::XOR, false, std::nullopt, 0}));
  EXPECT_FALSE(live.insertEvent({1, "6"}, Where::Before, 570, {EventCode::XJB, false, Side::Visitor, 0}));
  const std::string foul = "09:30,SPF,1-10";
  ASSERT_TRUE(
      live.editEvent({1, "6"}, 570, {EventCode::SPF, false, Side::Home, 3, {}, {{"D", "0-4"}, {"F", "2"}}}));
  ASSERT_TRUE(
      live.editEvent({1, "6"}, 570, {EventCode::SPF, false, Side::Home, 4, {}, {{"F", ""}, {"K", "S"}}}));
  EXPECT_EQ(line("6"), "09:30,SPF,1-12,D=0-4,K=S");
  EXPECT_TRUE(live.undo() && live.undo());
  EXPECT_EQ(line("6"), foul);
}

TEST_F(LiveEditTest, AForgottenSubstitutionIsCarriedOn) {
  play();
  EXPECT_TRUE(live.insertSubstitution({1, "6"}, Where::Before, {1U << 1U, 0}, {1U << 6U, 0}));
  const auto found = lines();
  EXPECT_EQ(found[5], "10=09:30,ARRET,IN-05-07-10-12-15,IN-04-05-10-12-15");
  EXPECT_EQ(found[6], "11=09:30,DEPART") << "the clock ran";
  EXPECT_EQ(found.back(), "9=09:00,ARRET,IN-05-07-10-12-15,IN-04-05-10-12-15");
  EXPECT_EQ(std::pair(seconds(Side::Visitor, 1), seconds(Side::Visitor, 6)), std::pair(30, 30));
  EXPECT_EQ(live.onCourt()[Side::Visitor], 0b1111100U);
  // Out a second time, or in twice.
  EXPECT_FALSE(live.insertSubstitution({1, "6"}, Where::Behind, {1U << 1U, 0}, {1U << 7U, 0}));
  EXPECT_EQ(live.conflict(), (CourtConflict{{1, "6"}, Side::Visitor, 1U << 1U, true}));
  EXPECT_FALSE(live.insertSubstitution({1, "6"}, Where::Behind, {}, {1U << 7U, 0})) << "a sixth";
  EXPECT_EQ(wordsOf(*live.conflict(), live.game(), texts),
            "09:30 (Period 1): too many players of Visitor would be on court (5, 10, 12, 15, 7, 8)");
  // Earlier by its time: the players go with it.
  EXPECT_TRUE(live.setTime({1, "10"}, 595));
  EXPECT_EQ(std::pair(seconds(Side::Visitor, 1), seconds(Side::Visitor, 6)), std::pair(5, 55));
  EXPECT_TRUE(live.undo() && live.undo());
  EXPECT_EQ(seconds(Side::Visitor, 1), 60);
  EXPECT_EQ(live.onCourt()[Side::Visitor], kFive);
}

TEST_F(LiveEditTest, AStartOfTheClockGoesWithItsSubstitution) {
  play();
  ASSERT_TRUE(live.insertSubstitution({1, "5"}, Where::Behind, {1U << 1U, 0}, {1U << 6U, 0}));
  const auto running = lines();
  EXPECT_EQ(seconds(Side::Visitor, 6), 50);
  ASSERT_TRUE(setDeleted({{1, "10"}}, true));
  EXPECT_EQ(lines()[5], "10=E09:50,ARRET,IN-05-07-10-12-15,IN-04-05-10-12-15");
  EXPECT_EQ(lines()[6], "11=E09:50,DEPART");
  EXPECT_EQ(seconds(Side::Visitor, 1), 60);
  ASSERT_TRUE(setDeleted({{1, "10"}, {1, "11"}}, false));
  EXPECT_EQ(lines(), running);
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(lines()[6], "11=E09:50,DEPART") << "one step";
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(lines(), running);
  ASSERT_TRUE(live.setTime({1, "10"}, 575)) << "and to another time";
  EXPECT_EQ(lines()[5], "10=09:35,ARRET,IN-05-07-10-12-15,IN-04-05-10-12-15");
  EXPECT_EQ(lines()[6], "11=09:35,DEPART");
  EXPECT_EQ(seconds(Side::Visitor, 6), 35);
  ASSERT_TRUE(live.setTime({1, "10"}, 560)) << "past others";
  EXPECT_EQ(lines()[8], "10=09:20,ARRET,IN-05-07-10-12-15,IN-04-05-10-12-15") << "behind the start at 9:30";
  EXPECT_EQ(lines()[9], "11=09:20,DEPART");
  EXPECT_TRUE(live.undo());
  // A substitution while the clock stands leaves the start to whom started it.
  ASSERT_TRUE(live.insertSubstitution({1, "7"}, Where::Behind, {0, 1U << 1U}, {0, 1U << 6U}));
  ASSERT_TRUE(setDeleted({{1, "12"}}, true));
  EXPECT_FALSE(live.game().events.find(1, "8")->whole().starts_with('E'));
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(LiveEditTest, AnotherPlayerWentIn) {
  play();
  ASSERT_TRUE(live.insertSubstitution({1, "6"}, Where::Before, {1U << 1U, 0}, {1U << 6U, 0}));
  ASSERT_TRUE(live.setOnCourt({0b11111000, kFive})) << "8 for 5 at 9:00";
  const EventPlace stop{1, "10"};
  // 8 instead of 7: at 9:00 he would come a second time, for one who is not there.
  EXPECT_FALSE(live.take(live.editing().newLists(stop, {0b10111100, kFive})));
  EXPECT_EQ(wordsOf(*live.conflict(), live.game(), texts),
            "09:00 (Period 1): 8 of Visitor would come in or leave twice");
  ASSERT_TRUE(live.take(live.editing().newLists(stop, {0b1110110, kFive}))) << "for 10";
  EXPECT_EQ(lines()[5], "10=09:30,ARRET,IN-04-05-07-12-15,IN-04-05-10-12-15");
  EXPECT_EQ(live.onCourt()[Side::Visitor], 0b11110010U) << "and later 8 for 5";
  EXPECT_EQ(std::tuple(seconds(Side::Visitor, 1), seconds(Side::Visitor, 3), seconds(Side::Visitor, 6)),
            std::tuple(60, 30, 30));
  EXPECT_TRUE(live.log().countsAgree());
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(seconds(Side::Visitor, 1), 30);
}

TEST_F(LiveEditTest, ASubstitutionThatStopsHaveFollowedIsTakenBackThroughThem) {
  play();
  EXPECT_TRUE(live.insertSubstitution({1, "6"}, Where::Before, {1U << 1U, 0}, {1U << 6U, 0}));
  run(540); // the stop came later, and is no action of the user
  EXPECT_TRUE(live.insertEvent({1, "4"}, Where::Before, 595, {EventCode::STO, false, Side::Home, 1}));
  EXPECT_TRUE(live.undo() && live.undo());
  EXPECT_EQ(lines().back(), "13=00:00" + kFives);
  EXPECT_EQ(seconds(Side::Visitor, 1), 600);
  EXPECT_TRUE(live.redo());
  EXPECT_EQ(seconds(Side::Visitor, 1), 30);
}

TEST_F(LiveEditTest, AStopWithoutListsGetsThemBehindItsCode) {
  EXPECT_EQ(withLists("09:00,ARRET", {0b10, 0}, live.log().rosters()), "09:00,ARRET,IN-04,IN-");
  EXPECT_EQ(withLists("E09:00,ARRET,IN-05,IN", {0, 0b110}, live.log().rosters()),
            "E09:00,ARRET,IN-,IN-04-05");
}

// As another program may have left it: what is there can be edited, and recording goes on within the limit.
TEST_F(LiveEditTest, EventsOfAPeriodBehindTheLastAreEditedWhereTheyStand) {
  open(textOfGame("[PERIODE300]\n1=05:00,SA,0-4\n2=04:00,ARRET,IN-04,IN-03\n"));
  EXPECT_EQ(live.period(), 255);
  EXPECT_EQ(live.onCourt(), (OnCourt{0b10, 0b10}));
  EXPECT_TRUE(live.editEvent({300, "1"}, 290, {EventCode::STO, false, Side::Visitor, 2}));
  EXPECT_EQ(LiveTableTest::lines(300), " 04:50,STO,0-5 04:00,ARRET,IN-04,IN-03");
  EXPECT_EQ(live.game().events[0].period, 300);
}

TEST_F(LiveEditTest, TheStopThatEndsAPeriodStays) {
  play();
  EXPECT_FALSE(live.canDelete({1, "9"}));
  EXPECT_FALSE(setDeleted({{1, "4"}, {1, "9"}}, true));
  EXPECT_EQ(lines()[3], "4=09:50,GLG,0-4") << "all or nothing";
  EXPECT_TRUE(live.canDelete({1, "7"}));
  EXPECT_TRUE(live.setTime({1, "9"}, 530));
  EXPECT_EQ(seconds(Side::Visitor, 1), 70);
  EXPECT_TRUE(live.undo());
  live.toggleOnCourt(Side::Visitor, 1);
  EXPECT_TRUE(live.canDelete({1, "10"})) << "the stop before it ends the time as well";
}

TEST_F(LiveEditTest, AnAssistOrReboundBelongsToItsShot) {
  play();
  const EventList& events = live.game().events;
  EXPECT_EQ(followUpOf(events, 3), 4U);
  EXPECT_EQ(shotOf(events, 4), 3U);
  EXPECT_EQ(followUpOf(events, 4), std::nullopt);
  live.insertEvent({1, "4"}, Where::Behind, 590, {EventCode::GFT, false, Side::Visitor, 1});
  EXPECT_EQ(followUpOf(live.game().events, 3), std::nullopt) << "another shot between";
  EXPECT_EQ(shotOf(live.game().events, 5), 4U);
  setDeleted({{1, "10"}}, true);
  EXPECT_EQ(followUpOf(live.game().events, 3), 5U) << "which is deleted";
  EXPECT_TRUE(setDeleted({{1, "4"}, {1, "5"}}, true));
  EXPECT_EQ(live.state().players[Side::Visitor][2].counters[Counter::Ast], 0);
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.state().players[Side::Visitor][2].counters[Counter::Ast], 1) << "one action";
}

// Whatever is edited, in whatever order: memory and file agree, and taking all back brings all counts back.
TEST_F(LiveEditTest, RandomEditsCanAllBeTakenBack) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto roll = [&random](int sides) {
      return static_cast<int>(random() % static_cast<unsigned>(sides));
    };
    path = folder.path("random" + std::to_string(seed) + ".GAM");
    SetUp();
    for (int i = 0; i < 12; ++i) {
      live.toggleClock();
      pass(roll(80));
      live.recordShot(*sideOf(roll(2)), 1 + roll(5), EventCode::GFG, roll(2) == 0, {{roll(126), roll(200)}});
      if (roll(3) == 0)
        live.toggleOnCourt(*sideOf(roll(2)), 1 + roll(7));
    }
    live.stop();
    ASSERT_EQ(live.open(path), GameFileProblem::None);
    const EventList before = live.game().events;
    const GameState counted = live.state();
    const OnCourt onCourt = live.onCourt();
    int changes = 0;
    for (int i = 0; i < 60; ++i) {
      const EventList& events = live.game().events;
      const GameEvent& event = events[static_cast<std::size_t>(roll(static_cast<int>(events.size())))];
      const EventPlace place{event.period, std::string(event.key)};
      const Where where = roll(2) == 0 ? Where::Before : Where::Behind;
      const LiveGame::Counted shot{
          EventCode::GF3, roll(2) == 0, sideOf(roll(2)), 1 + roll(7), {{roll(126), roll(200)}}};
      switch (roll(7)) {
      case 0: {
        const LiveGame::Counted timeOut{EventCode::XTO, false, sideOf(roll(3) - 1), 0};
        changes += live.insertEvent(place, where, roll(601), roll(2) == 0 ? shot : timeOut) ? 1 : 0;
        break;
      }
      case 1: {
        const Side team = *sideOf(roll(2));
        OnCourt out = {};
        OnCourt in = {};
        out[team] = 1U << (1 + roll(7));
        in[team] = 1U << (1 + roll(7));
        changes += live.insertSubstitution(place, where, out, in) ? 1 : 0;
        break;
      }
      case 2:
        if (!event.isClock())
          changes += live.editEvent(place, roll(601), shot) ? 1 : 0;
        break;
      case 3: changes += live.setTime(place, roll(601)) ? 1 : 0; break;
      case 4:
        if (changes > 0) // else it would take back what the earlier session has recorded
          changes -= live.undo() ? 1 : 0;
        break;
      case 5: changes += live.redo() ? 1 : 0; break;
      default: changes += live.setDeleted(std::vector{place}, !event.isDeleted) ? 1 : 0;
      }
      ASSERT_TRUE(live.log().countsAgree());
    }
    EXPECT_GT(changes, 8);
    LiveGame again(store, time);
    ASSERT_EQ(again.open(path), GameFileProblem::None);
    EXPECT_EQ(linesOf(again.game().events), linesOf(live.game().events));
    for (; changes > 0; --changes)
      ASSERT_TRUE(live.undo());
    EventLines left = linesOf(live.game().events);
    for (auto& [period, events] : left)
      std::erase_if(events, [&before](const auto& event) {
        return before.find(1, event.first) == nullptr && before.find(2, event.first) == nullptr;
      });
    EXPECT_EQ(left, linesOf(before));
    EXPECT_EQ(live.onCourt(), onCourt);
    for (const Side team : kSides) {
      for (std::size_t entry = 0; entry < counted.players[team].size(); ++entry) {
        EXPECT_EQ(live.state().players[team][entry].counters, counted.players[team][entry].counters);
        EXPECT_EQ(live.state().players[team][entry].seconds, counted.players[team][entry].seconds);
      }
    }
    while (live.redo())
      continue;
    ASSERT_TRUE(live.log().countsAgree());
  }
}

} // namespace
} // namespace hooptab
