#include "recording/LiveTable.h"

#include <random>

namespace hooptab {
namespace {

class LiveGameTest : public LiveTableTest {
 protected:
  void SetUp() override {
    GameDetails details = regular();
    details.bonus = 5;
    details.personalFoulLimit = 5;
    details.technicalFoulLimit = 2;
    create(details, kSeven, kSeven);
  }
  static constexpr const char* kSeven = "4 5 10 12 15 0 00";
  static constexpr int kBehindHorn = 4; // seconds, when one can start again
};

TEST_F(LiveGameTest, AnAnswerThatComesBehindTheBuzzerBelongsToItsShot) {
  putFives();
  run(597);
  ASSERT_TRUE(live.recordShot(Side::Visitor, 1, EventCode::GF3, false, {{110, 20}}));
  pass(5);
  ASSERT_EQ(live.period(), 2);
  EXPECT_TRUE(live.recordFollowUp(Side::Home, 2, EventCode::SDR));
  EXPECT_EQ(last(3), " 00:03,GF3A,0-4,110,20 00:03,SDR,1-5 00:00" + kFives);
  EXPECT_EQ(lines(2), "");
  EXPECT_TRUE(live.log().countsAgree());
  EXPECT_TRUE(live.recordShot(Side::Home, 1, EventCode::GFT, false));
  EXPECT_TRUE(live.recordFollowUp(Side::Visitor, 2, EventCode::SOR));
  EXPECT_EQ(lines(2), " 10:00,GFTA,1-4 10:00,SOR,0-5");
}

TEST_F(LiveGameTest, RecordsClockSubstitutionsAndShotsAsTheFileKeepsThem) {
  for (int player = 5; player >= 1; --player)
    EXPECT_TRUE(live.toggleOnCourt(Side::Visitor, player));
  EXPECT_FALSE(live.toggleOnCourt(Side::Visitor, 6)) << "a sixth";
  EXPECT_EQ(live.playerIn({Side::Visitor, 0}), 1) << "in order, whoever came first";
  run(19);
  EXPECT_EQ(std::pair(live.clockSeconds(), LiveFigures(live).secondsOnCourt(Side::Visitor, 1)),
            std::pair(581, 19));
  EXPECT_TRUE(live.recordShot(Side::Visitor, 4, EventCode::GFG, true, {{42.9, 51}}));
  EXPECT_FALSE(live.recordShot(Side::Visitor, 0, EventCode::GFG, true)) << "nobody in the slot";
  EXPECT_EQ(LiveFigures(live).secondsInLead(LeadState::Tied), 19);
  pass(1);
  EXPECT_TRUE(live.recordAction(Side::Visitor, 7, EventCode::STF)) << "from the bench";
  live.stop();
  EXPECT_EQ(lines(),
            " 10:00,ARRET,IN-,IN- 10:00,ARRET,IN-04-05-10-12-15,IN- 10:00,DEPART 09:41,GFG,0-12,42,51"
            " 09:40,STF,0-00 09:40,ARRET,IN-04-05-10-12-15,IN-");
  EXPECT_EQ(LiveFigures(live).secondsInLead(LeadState::Team0), 1);
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(LiveGameTest, SubstitutionsAtOneClockAreOneEventAndNeverTheLineOfAStop) {
  putFives();
  run(60);
  EXPECT_TRUE(live.toggleOnCourt(Side::Visitor, 1)); // while the clock runs, with a start
  EXPECT_TRUE(live.toggleOnCourt(Side::Visitor, 6));
  EXPECT_TRUE(live.toggleOnCourt(Side::Home, 2));
  live.stop();
  EXPECT_TRUE(live.toggleOnCourt(Side::Home, 7));
  EXPECT_EQ(
      lines(),
      " 10:00,ARRET,IN-,IN- 10:00" + kFives +
          " 10:00,DEPART 09:00,ARRET,IN-00-05-10-12-15,IN-04-10-12-15 09:00,DEPART"
          " 09:00,ARRET,IN-00-05-10-12-15,IN-04-10-12-15 09:00,ARRET,IN-00-05-10-12-15,IN-000-04-10-12-15");
  EXPECT_EQ(live.playerIn({Side::Home, 0}), 1);
  EXPECT_TRUE(live.takeAllOut(Side::Home));
  EXPECT_EQ(live.onCourt()[Side::Home], 0U);
  // A foul between: another event.
  EXPECT_TRUE(live.recordAction(Side::Visitor, 2, EventCode::SPF));
  EXPECT_TRUE(live.setOnCourt({kFive, kFive}));
  EXPECT_EQ(last(3), " 09:00,ARRET,IN-00-05-10-12-15,IN- 09:00,SPF,0-5 09:00" + kFives);
}

TEST_F(LiveGameTest, PeriodsOvertimesAndTheEnd) {
  putFives();
  for (int period = 1; period <= 3; ++period) {
    EXPECT_EQ(live.period(), period);
    run(10'000); // however late the tick comes
    EXPECT_EQ(live.phase(), Phase::Stopped);
    EXPECT_EQ(live.clockSeconds(), 600);
    pass(kBehindHorn);
  }
  EXPECT_EQ(lines(2, 1), " 00:00" + kFives);
  live.start();
  live.recordAction(Side::Home, 1, EventCode::SPF);
  pass(600);
  ASSERT_EQ(live.phase(), Phase::OvertimeAsked);
  pass(kBehindHorn);
  live.start();
  EXPECT_EQ(live.phase(), Phase::OvertimeAsked) << "not before the overtime has a length";
  // Free throws behind the buzzer decide after all.
  EXPECT_TRUE(live.returnToEndedPeriod());
  EXPECT_EQ(live.clockSeconds(), 0);
  live.recordShot(Side::Visitor, 1, EventCode::GFT, true);
  live.start();
  EXPECT_EQ(live.phase(), Phase::Decided);
  EXPECT_TRUE(live.undo());
  EXPECT_TRUE(live.returnToEndedPeriod());
  live.start();
  ASSERT_EQ(live.phase(), Phase::OvertimeAsked);
  EXPECT_FALSE(live.beginOvertime(0, true) || live.beginOvertime(100, true));
  EXPECT_TRUE(live.beginOvertime(5, true) && live.isOvertime());
  EXPECT_EQ(live.clockSeconds(), 300);
  EXPECT_EQ(LiveFigures(live).teamFouls(Side::Home), 1) << "kept from the last period";
  run(10);
  live.recordShot(Side::Home, 3, EventCode::GF3, true, {{1, 1}});
  pass(290);
  EXPECT_EQ(live.phase(), Phase::Decided);
  live.finish("Close, and loud");
  EXPECT_EQ(live.phase(), Phase::Finished);
  EXPECT_FALSE(live.recordAction(Side::Visitor, 1, EventCode::SPF) || live.undo());
  const GameDetails details = onDisk().details;
  EXPECT_TRUE(details.isFinished && details.keepsBonus);
  EXPECT_EQ(details.notes, "Close, and loud");
  live.reopen();
  EXPECT_EQ(live.phase(), Phase::Decided);
}

TEST_F(LiveGameTest, IsOpenedAsItWasLeft) {
  putFives();
  run(125);
  live.recordShot(Side::Visitor, 2, EventCode::GDK, true);
  live.stop();
  live.toggleOnCourt(Side::Visitor, 1);
  LiveGame again(store, time);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_EQ(std::pair(again.period(), again.clockSeconds()), std::pair(1, 475));
  EXPECT_EQ(again.onCourt(), live.onCourt());
  EXPECT_EQ(again.phase(), Phase::Stopped);
  EXPECT_EQ(again.log().nextNumber(), live.log().nextNumber());
  run(475);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_EQ(std::pair(again.period(), again.clockSeconds()), std::pair(2, 600));
  EXPECT_EQ(again.open(folder.path("none.GAM")), GameFileProblem::Absent);
  EXPECT_EQ(again.period(), 2) << "what was open stays";
}

TEST_F(LiveGameTest, WhatAnEarlierSessionHasDoneIsTakenBackToo) {
  putFives();
  run(10);
  live.toggleOnCourt(Side::Visitor, 1);
  live.toggleOnCourt(Side::Visitor, 6);
  pass(10);
  live.recordShot(Side::Visitor, 2, EventCode::GDK, true);
  live.recordAction(Side::Visitor, 3, EventCode::SA);
  live.undo();
  live.stop();
  const std::string left = lines();
  LiveGame again(store, time);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  ASSERT_TRUE(again.toUndo());
  EXPECT_TRUE(again.recordAction(Side::Home, 3, EventCode::SPF) && again.undo() && again.undo());
  EXPECT_EQ(again.state().points(Side::Visitor), 0);
  EXPECT_TRUE(again.undo()); // the substitution, and its start of the clock
  EXPECT_EQ(again.onCourt(), (OnCourt{kFive, kFive}));
  EXPECT_EQ(last(2), " 09:40" + kFives + " E09:40,SPF,1-10");
  EXPECT_TRUE(again.redo() && again.redo());
  EXPECT_EQ(again.state().points(Side::Visitor), 2);
  EXPECT_EQ(lines(), left + " E09:40,SPF,1-10");
  EXPECT_TRUE(again.undo() && again.undo() && again.undo());
  EXPECT_EQ(again.onCourt(), (OnCourt{0, 0}));
  EXPECT_FALSE(again.undo()) << "neither START nor STOP";
}

TEST_F(LiveGameTest, AScoreThatChangesAfterTheBuzzerDecidesAtOnce) {
  putFives();
  live.setPeriod(4);
  live.start();
  live.recordShot(Side::Visitor, 1, EventCode::GFG, true, {{1, 1}});
  pass(600);
  ASSERT_EQ(live.phase(), Phase::Decided);
  live.recordShot(Side::Home, 1, EventCode::GFT, true);
  EXPECT_EQ(live.phase(), Phase::Decided);
  live.recordShot(Side::Home, 1, EventCode::GFT, true);
  EXPECT_EQ(live.phase(), Phase::OvertimeAsked) << "the game would stand at a tie that nothing resolves";
  live.recordShot(Side::Home, 1, EventCode::GFT, true);
  EXPECT_EQ(live.phase(), Phase::Decided);
}

TEST_F(LiveGameTest, ClockAndPeriodByHand) {
  putFives();
  live.start();
  EXPECT_FALSE(live.setClock(100) || live.setPeriod(2)) << "not while it runs";
  pass(100);
  live.recordAction(Side::Visitor, 1, EventCode::STO);
  live.stop();
  EXPECT_FALSE(live.setClock(601));
  EXPECT_TRUE(live.setClock(503));
  live.recordAction(Side::Visitor, 2, EventCode::STO);
  EXPECT_TRUE(live.setPeriod(3));
  EXPECT_EQ(live.clockSeconds(), 600);
  EXPECT_EQ(last(2), " 08:23,STO,0-5 08:23" + kFives);
  live.recordAction(Side::Visitor, 3, EventCode::STO);
  EXPECT_TRUE(live.setPeriod(1));
  EXPECT_EQ(live.clockSeconds(), 503);
  live.recordAction(Side::Visitor, 4, EventCode::STO);
  EXPECT_TRUE(live.log().countsAgree());
  EXPECT_EQ(live.state().players[Side::Visitor][4].counters[Counter::TO], 1);
}

TEST_F(LiveGameTest, AGameWithoutTime) {
  GameDetails details;
  details.periods = 2;
  create(details, kSeven, kSeven);
  live.start();
  EXPECT_EQ(live.phase(), Phase::Stopped);
  putFives();
  live.recordShot(Side::Visitor, 1, EventCode::GFT, true);
  EXPECT_TRUE(live.setPeriod(2));
  live.recordAction(Side::Home, 1, EventCode::SPF);
  EXPECT_EQ(lines(2), " 00:00,SPF,1-4");
  EXPECT_EQ(LiveFigures(live).teamFouls(Side::Home), 1);
  LiveGame again(store, time);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_EQ(again.period(), 2) << "a stop at 00:00 ends nothing";
}

TEST_F(LiveGameTest, ATeamThatIsItsOwnPlayerStandsOnCourt) {
  create(regular(), "", "");
  EXPECT_EQ(lines(), " 10:00,ARRET,IN-,IN- 10:00,ARRET,IN-00,IN-00");
  EXPECT_EQ(places(live) + ' ' + places(live, Side::Home), "1 0 0 0 0 1 0 0 0 0");
  EXPECT_FALSE(live.toUndo());
}

TEST_F(LiveGameTest, FoulsBonusAndFollowUps) {
  putFives();
  for (int foul = 1; foul <= 5; ++foul) {
    EXPECT_FALSE(LiveFigures(live).isInBonus(Side::Visitor) ||
                 LiveFigures(live).isFouledOut(Side::Visitor, 1))
        << foul;
    live.recordAction(Side::Visitor, 1, EventCode::SPF);
  }
  EXPECT_TRUE(LiveFigures(live).isInBonus(Side::Visitor) && LiveFigures(live).isFouledOut(Side::Visitor, 1));
  live.recordAction(Side::Visitor, 2, EventCode::STF);
  EXPECT_FALSE(LiveFigures(live).isFouledOut(Side::Visitor, 2));
  live.recordAction(Side::Visitor, 2, EventCode::STF);
  EXPECT_TRUE(LiveFigures(live).isFouledOut(Side::Visitor, 2));
  EXPECT_EQ(LiveFigures(live).teamFouls(Side::Visitor), 7) << "technical ones too";
  EXPECT_EQ(live.followUps(Side::Visitor, 2, EventCode::GFG, true, true).assist,
            (std::vector<Slot>{kSlots[0], kSlots[2], kSlots[3], kSlots[4]}));
  EXPECT_TRUE(live.followUps(Side::Visitor, 2, EventCode::GFT, true, true).isEmpty());
  const auto rebounds = live.followUps(Side::Home, 2, EventCode::GFT, false, true);
  EXPECT_EQ(rebounds.offensiveRebound, std::vector<Slot>(kSlots.begin() + Slot::kOfTeam, kSlots.end()));
  EXPECT_EQ(rebounds.defensiveRebound, std::vector<Slot>(kSlots.begin(), kSlots.begin() + Slot::kOfTeam));
  EXPECT_TRUE(live.followUps(Side::Home, 2, EventCode::GFT, false, false).isEmpty());
}

TEST_F(LiveGameTest, TakingBackASubstitutionCarriesTheStopsBehindIt) {
  putFives();
  run(10);
  live.stop();
  live.setOnCourt({(kFive & ~2U) | 64U, kFive}); // 4 out, 0 in
  run(590);
  ASSERT_EQ(live.period(), 2) << "a start in a period that has ended stays";
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.onCourt()[Side::Visitor], kFive);
  EXPECT_EQ(last(3), " E09:50,ARRET,IN-00-05-10-12-15,IN-04-05-10-12-15 09:50,DEPART 00:00" + kFives);
  EXPECT_EQ(LiveFigures(live).secondsOnCourt(Side::Visitor, 1), 600);
  EXPECT_TRUE(live.redo());
  EXPECT_EQ(std::pair(LiveFigures(live).secondsOnCourt(Side::Visitor, 1),
                      LiveFigures(live).secondsOnCourt(Side::Visitor, 6)),
            std::pair(10, 590));
  // The same by hand, in the list of events.
  const std::vector<EventPlace> substitution = {{1, "5"}};
  EXPECT_TRUE(live.setDeleted(substitution, true));
  EXPECT_EQ(live.onCourt()[Side::Visitor], kFive);
  EXPECT_TRUE(live.setDeleted(substitution, false));
  EXPECT_EQ(last(1), " 00:00,ARRET,IN-00-05-10-12-15,IN-04-05-10-12-15");
}

TEST_F(LiveGameTest, DeletingASubstitutionIsRefusedWhereAPlayerWouldComeTwice) {
  putFives();
  run(10);
  live.stop();
  live.setOnCourt({(kFive & ~2U) | 64U, kFive}); // 4 out, 0 in
  live.recordAction(Side::Visitor, 6, EventCode::STO);
  live.setOnCourt({(kFive & ~4U) | 64U, kFive}); // 5 out, 4 in again: without the first he is there already
  run(10);
  live.stop();
  const std::string before = lines();
  EXPECT_FALSE(live.setDeleted(std::vector<EventPlace>{{1, "5"}}, true)) << "four would be left";
  EXPECT_EQ(live.conflict(), (CourtConflict{{1, "7"}, Side::Visitor, 2U, true}));
  EXPECT_EQ(lines(), before);
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(LiveGameTest, AnEditIsRefusedThatWouldMakeSix) {
  ASSERT_TRUE(live.setOnCourt({kFive & ~2U, kFive}));
  live.recordAction(Side::Visitor, 2, EventCode::STO);
  ASSERT_TRUE(live.setOnCourt({(kFive & ~2U) | 64U, kFive}));
  const std::string before = lines();
  EXPECT_FALSE(live.replaceEvent({1, "2"}, 600, kFives));
  EXPECT_EQ(lines(), before);
  EXPECT_TRUE(live.replaceEvent({1, "3"}, 599, ",SST,0-10"));
  EXPECT_EQ(live.state().players[Side::Visitor][3].counters[Counter::ST], 1);
}

// Whatever is done: the file read anew is what the window shows; all taken back is as it began, and done
// again is as it was.
TEST_F(LiveGameTest, EverythingCanBeTakenBackAndDoneAgain) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    SetUp();
    putFives();
    live.start();
    std::mt19937 random(seed);
    const auto roll = [&random](int below) {
      return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    for (int step = 0; step < 60; ++step) {
      switch (roll(7)) {
      case 0: pass(roll(9)); break;
      case 1: live.toggleClock(); break;
      case 2: live.toggleOnCourt(*sideOf(roll(2)), 1 + roll(7)); break;
      case 3: live.undo(); break;
      case 4: live.recordAction(*sideOf(roll(2)), 1 + roll(7), EventCode::SPF); break;
      case 5: {
        const EventList& events = live.game().events;
        const GameEvent& event =
            events[events.size() / 2 + static_cast<std::size_t>(roll(static_cast<int>(events.size() / 2)))];
        if (event.code != EventCode::DEPART)
          live.setDeleted(std::vector<EventPlace>{{event.period, std::string(event.key)}}, !event.isDeleted);
        break;
      }
      default:
        live.recordShot(*sideOf(roll(2)), 1 + roll(5), EventCode::GFG, roll(2) == 0,
                        {{roll(126), roll(200)}});
      }
    }
    ASSERT_TRUE(live.log().countsAgree());
    live.stop();
    while (live.toRedo() != nullptr)
      ASSERT_TRUE(live.redo());
    const std::string asItWas = lines() + lines(2);
    LiveGame again(store, time);
    ASSERT_EQ(again.open(path), GameFileProblem::None);
    EXPECT_EQ(linesOf(again.game().events), linesOf(live.game().events));
    EXPECT_EQ(again.onCourt(), live.onCourt());
    int count = 0;
    for (; live.undo(); ++count)
      ASSERT_TRUE(live.log().countsAgree());
    EXPECT_GT(count, 5);
    for (const GameEvent& event : live.game().events)
      EXPECT_TRUE(!event.isUnderstood || event.isDeleted || event.kind() == nullptr) << event.line;
    EXPECT_EQ(live.onCourt(), (OnCourt{0, 0}));
    while (live.redo())
      --count;
    EXPECT_EQ(count, 0);
    EXPECT_EQ(lines() + lines(2), asItWas);
  }
}

TEST_F(LiveGameTest, WhatTheDiskDoesNotTakeIsWrittenInOrderLater) {
  putFives();
  disk.failAt = disk.calls;
  disk.staysBroken = true;
  run(5);
  live.recordShot(Side::Visitor, 1, EventCode::GFT, true);
  live.undo();
  live.stop();
  EXPECT_FALSE(live.log().isOnDisk());
  EXPECT_EQ(live.state().players[Side::Visitor][1].counters[Counter::FTM], 0);
  EXPECT_FALSE(live.settle());
  disk.reset();
  EXPECT_TRUE(live.settle());
  EXPECT_EQ(last(3), " 10:00,DEPART E09:55,GFT,0-4 09:55" + kFives);
}

} // namespace
} // namespace hooptab
