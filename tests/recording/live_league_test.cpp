#include "game/EventDetails.h"
#include "recording/FollowUpQuestion.h"
#include "recording/FoulThrows.h"
#include "recording/LiveTable.h"

namespace hooptab {
namespace {

class LiveLeagueTest : public LiveTableTest {
 protected:
  void SetUp() override {
    GameDetails details = regular();
    details.level = RecordingLevel::League;
    details.ruleSet = "FIBA";
    details.bonus = 4;
    create(details, "4 5 10 12 15 0 00", "4 5 10 12 15 0 00");
    putFives();
  }
  // A foul of that visitor on a player of the home team, with the throws behind it: "+-" made and missed.
  void foul(int player, int on, std::string_view shots, int awarded = 0) {
    ASSERT_TRUE(live.recordAction(Side::Visitor, player, EventCode::SPF));
    const EventPlace place = live.lastAdded();
    ASSERT_TRUE(live.setDetailsOf(
        place, {{detail_key::kDrawnBy, "1-" + live.game().roster[Side::Home].player(on)->jersey}}));
    throws.begin(live, place, Side::Home, on);
    EXPECT_TRUE(awarded == 0 || throws.setAwarded(live, awarded));
    for (const char shot : shots) {
      EXPECT_TRUE(throws.shoot(live, shot == '+'));
      throws.gameChanged(live);
    }
  }

  FoulThrows throws;
};

TEST_F(LiveLeagueTest, AFoulItsThrowsAndWhatIsTakenBackOfThem) {
  run(30);
  live.stop();
  foul(1, 2, "+");
  EXPECT_EQ(last(2), " 09:30,SPF,0-4,D=1-5,F=2,K=S 09:30,GFT,1-5,N=1/2")
      << "not in the bonus: a shooting one";
  EXPECT_TRUE(throws.isOpen());
  ASSERT_TRUE(live.setOnCourt({kFive, (kFive & ~2U) | 1U << 6U})) << "between two throws";
  ASSERT_TRUE(live.recordOfTeam(Side::Home, EventCode::XTO));
  throws.gameChanged(live);
  EXPECT_TRUE(throws.isOpen() && throws.taken().size() == 1);
  EXPECT_TRUE(throws.shoot(live, false));
  throws.gameChanged(live);
  EXPECT_FALSE(throws.isOpen());
  EXPECT_EQ(last(1), " 09:30,GFTA,1-5,N=2/2");
  EXPECT_FALSE(live.followUps(Side::Home, 2, EventCode::GFT, false, true).isEmpty())
      << "the last one is rebounded";
  for (int step = 0; step < 4; ++step)
    EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.state().teamRows[Side::Home].timeOuts, 0);
  EXPECT_EQ(live.state().extras[Side::Home][2].foulsDrawn, 1);
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.state().extras[Side::Home][2].foulsDrawn, 0) << "in one step with what was said of it";
  for (int step = 0; step < 5; ++step)
    EXPECT_TRUE(live.redo());
  EXPECT_EQ(live.state().extras[Side::Home][2].foulsDrawn, 1);
  EXPECT_EQ(last(1), " 09:30,GFTA,1-5,N=2/2");
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(LiveLeagueTest, ProposesHowManyThrowsAndAsksForTheReboundOfTheLastAlone) {
  ASSERT_TRUE(live.recordShot(Side::Home, 2, EventCode::GFG, true, {{20, 90}}));
  ASSERT_TRUE(live.recordFollowUp(Side::Home, 1, EventCode::SA));
  foul(1, 2, "");
  EXPECT_EQ(throws.awarded(), 1) << "behind a basket";
  foul(1, 3, "-");
  EXPECT_EQ(throws.awarded(), 2);
  EXPECT_TRUE(live.followUps(Side::Home, 3, EventCode::GFT, false, true).isEmpty());
  EXPECT_TRUE(throws.setAwarded(live, 1));
  EXPECT_FALSE(live.followUps(Side::Home, 3, EventCode::GFT, false, true).isEmpty()) << "it was the last";
  ASSERT_TRUE(live.recordAction(Side::Visitor, 2, EventCode::STF));
  throws.begin(live, live.lastAdded(), Side::Home, 4);
  EXPECT_EQ(throws.awarded(), 1);
  EXPECT_TRUE(throws.shoot(live, false));
  EXPECT_TRUE(live.followUps(Side::Home, 4, EventCode::GFT, false, true).isEmpty()) << "a throw-in follows";
  foul(1, 2, "", 3); // the fourth team foul
  foul(1, 2, "+");
  EXPECT_EQ(last(2), " 10:00,SPF,0-4,D=1-5,F=2 10:00,GFT,1-5,N=1/2")
      << "in the bonus any foul is shot; the one before, of three throws, is still open";
  foul(3, 4, "");
  EXPECT_TRUE(throws.isOpen() && throws.setKind(live, "O"));
  throws.gameChanged(live);
  EXPECT_FALSE(throws.isOpen()) << "nobody shoots for an offensive foul";
  foul(3, 5, "");
  live.start();
  throws.gameChanged(live);
  EXPECT_FALSE(throws.isOpen());
}

TEST_F(LiveLeagueTest, ThrowsStayWithTheirFoulWhateverTheClockDoes) {
  run(300);
  foul(1, 2, ""); // and the clock runs on
  pass(8);
  EXPECT_TRUE(throws.shoot(live, true));
  live.stop();
  ASSERT_TRUE(live.setClock(300));
  throws.gameChanged(live);
  EXPECT_TRUE(throws.shoot(live, false));
  EXPECT_EQ(lines().substr(lines().find(",SPF") - 6),
            " 05:00,SPF,0-4,D=1-5,F=2,K=S 04:52,GFT,1-5,N=1/2 04:52" + kFives + " 05:00,GFTA,1-5,N=2/2");
  run(299);
  foul(2, 3, ""); // at the last second: its throws belong to the period that has ended
  pass(5);
  ASSERT_EQ(live.period(), 2);
  EXPECT_TRUE(throws.shoot(live, true));
  EXPECT_EQ(last(1), " 00:00,GFT,1-10,N=1/2");
  EXPECT_EQ(lines(2), "");
}

TEST_F(LiveLeagueTest, WhatTeamsDo) {
  EXPECT_FALSE(live.recordOfTeam(Side::Visitor, EventCode::XJB));
  EXPECT_FALSE(live.recordOfTeam(std::nullopt, EventCode::XOR));
  EXPECT_TRUE(live.recordOfTeam(std::nullopt, EventCode::XTO, {{detail_key::kKind, "MEDIA"}}));
  EXPECT_TRUE(live.recordOfTeam(Side::Home, EventCode::XAR));
  EXPECT_TRUE(live.recordAction(Side::Visitor, 1, EventCode::STO));
  EXPECT_TRUE(live.giveToTeam(live.lastAdded()));
  EXPECT_EQ(last(3), " 10:00,XTO,,K=MEDIA 10:00,XAR,1 10:00,XTV,0");
  EXPECT_EQ(live.state().players[Side::Visitor][1].counters[Counter::TO], 0);
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.state().players[Side::Visitor][1].counters[Counter::TO], 1);
  // A block is of the shot before it, whose rebound may stand between.
  EXPECT_TRUE(live.recordShot(Side::Visitor, 3, EventCode::GLG, false));
  EXPECT_TRUE(live.recordFollowUp(Side::Home, 2, EventCode::SDR));
  EXPECT_TRUE(live.recordAction(Side::Home, 4, EventCode::SBS));
  EXPECT_EQ(last(1), " 10:00,SBS,1-12,S=0-10");
  // The arrow turns with the first start of each further period, once.
  run(601);
  pass(5);
  ASSERT_EQ(live.period(), 2);
  live.start();
  EXPECT_EQ(lines(2), " 10:00,XAR,0 10:00,DEPART");
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.phase(), Phase::Stopped) << "the start";
  EXPECT_EQ(lines(2), " 10:00,XAR,0 E10:00,DEPART");
  live.start();
  EXPECT_EQ(live.arrow(), Side::Visitor);
  pass(601);
  pass(5);
  ASSERT_EQ(live.period(), 3);
  EXPECT_TRUE(live.recordOfTeam(Side::Home, EventCode::XAR)) << "set right in the interval";
  live.start();
  EXPECT_EQ(lines(3), " 10:00,XAR,1 10:00,XAR,0 10:00,DEPART");
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(LiveLeagueTest, QuestionsOfOpponents) {
  FollowUpQuestion question;
  const auto follow = [&](EventCode kind, bool isMade = false) {
    question.ask(live, live.followUps(Side::Visitor, 1, kind, isMade, true), Side::Visitor, 1, kind);
  };
  follow(EventCode::STO);
  EXPECT_EQ(question.choices().size(), 5U);
  EXPECT_EQ(question.codeFor({Side::Home, 2}), EventCode::SST);
  EXPECT_EQ(question.codeFor(*question.teamOf(Side::Visitor)), EventCode::XTV);
  EXPECT_FALSE(question.teamOf(Side::Home));
  EXPECT_FALSE(question.type(0)) << "of the bench, and 00 begins so";
  EXPECT_EQ(question.refusal()->text, Text::OnBench);
  follow(EventCode::GFG);
  EXPECT_EQ(question.codeFor(*question.teamOf(Side::Home)), EventCode::XDR);
  question.askBlock(true);
  EXPECT_EQ(question.fitting().size(), 5U) << "the defence alone";
  EXPECT_EQ(question.codeFor(*question.type(4)), EventCode::SBS);
  follow(EventCode::SPF);
  EXPECT_EQ(question.codeFor({Side::Home, 2}), EventCode::Unknown);
  EXPECT_TRUE(live.setDetails({{"NIVEAU", "BASIC"}}));
  for (const EventCode kind : {EventCode::SPF, EventCode::STO, EventCode::STF})
    EXPECT_TRUE(live.followUps(Side::Visitor, 1, kind, false, true).isEmpty()) << "of today, nothing more";
}

} // namespace
} // namespace hooptab
