// Slips of the hand that the recorder forgives or refuses: what it keeps, and what it says.
#include "checks/GameCheck.h"
#include "game/EventDetails.h"
#include "recording/FollowUpQuestion.h"
#include "recording/LiveTable.h"
#include "recording/ToggleGuard.h"

namespace hooptab {
namespace {

class SlipsTest : public LiveTableTest {
 protected:
  void SetUp() override {
    GameDetails details = regular();
    details.periods = 2;
    details.personalFoulLimit = 2;
    details.abbreviation[Side::Visitor] = "PAN";
    details.abbreviation[Side::Home] = "OLY";
    create(details, "3 4 10 13 30 23 1", "7 9 09 12 15 3 44");
    putFives();
    begun = lines().size();
  }
  // What was recorded in the first period since.
  std::string since() { return lines().substr(begun); }
  std::size_t begun = 0;
};

// Types digits; '<' takes one back, '!' is Enter, 'r' and 'l' move the mark. What comes of it: the jersey of
// who is taken, then what is left of the number, and why.
TEST_F(SlipsTest, ANumberIsTakenWholeOrStaysWithItsReason) {
  ASSERT_TRUE(live.recordAction(Side::Visitor, 7, EventCode::SPF));
  ASSERT_TRUE(live.recordAction(Side::Visitor, 7, EventCode::SPF)); // jersey 1 has fouled out
  const auto type = [&](bool isAssist, std::string_view keys) {
    FollowUpQuestion question;
    question.ask(live, live.followUps(Side::Visitor, 1, EventCode::GFG, isAssist, true), Side::Visitor, 1);
    std::string came;
    for (const char key : keys) {
      std::optional<FollowUpQuestion::Answer> answer;
      if (key == '<')
        question.takeBackDigit();
      else if (key == '!')
        answer = question.enter(std::nullopt);
      else if (key == 'r' || key == 'l')
        question.moveMark(key == 'r' ? 1 : -1);
      else
        answer = question.type(key - '0');
      if (answer)
        came += std::to_string(numberOf(answer->team)) + "-" +
                live.game().roster[answer->team].player(answer->player)->jersey +
                (answer->isOnCourt ? ""
                 : answer->comesIn ? "+"
                                   : "*") +
                ' ';
    }
    return came + question.typed() + (question.refusal() ? ": " + question.reason(texts) : "");
  };
  const std::tuple<bool, const char*, const char*> taken[] = {
      {true, "4", "0-4 4"}, {true, "13", "0-13 13"}, {true, "30", "0-30 30"}, {true, "213<<<4", "0-4 4"},
      {true, "3", "3"},     {false, "7", "1-7 7"},   {false, "9!", "1-9 9"},  {false, "09", "1-09 09"},
      {false, "4", "4"},    {false, "4!", "0-4 4"},  {false, "12", "1-12 12"}};
  for (const auto& [isAssist, keys, came] : taken)
    EXPECT_EQ(type(isAssist, keys), came) << keys;
  EXPECT_EQ(type(false, "44!"), "44: 44 is on the bench: rebound all the same, or put him in");
  const std::string onBench = "23: 23 is on the bench: assist all the same, or put him in";
  const std::pair<const char*, std::string> refused[] = {
      {"1!", "1: 1 has fouled out."}, // 10 and 13 begin so, and are not taken for it
      {"3!", "3: 3 has made the basket himself."},
      {"23", onBench},
      {"23!", onBench}, // a habit is no choice
      {"23r!", "0-23* " + onBench},
      {"23l!", "0-23+ " + onBench},
      {"213", "213: Nobody here has number 213."},
      {"7", "7: 7 plays for OLY."},
      {"99999", "9999: Nobody here has number 9999."},
  };
  for (const auto& [keys, came] : refused)
    EXPECT_EQ(type(true, keys), came) << keys;
}

TEST_F(SlipsTest, TheClockIsNotTurnedTwiceByOnePress) {
  ToggleGuard guard;
  EXPECT_TRUE(guard.mayToggle(1000));
  EXPECT_FALSE(guard.mayToggle(1149));
  EXPECT_TRUE(guard.mayToggle(1220)) << "a start by mistake is stopped at once";
  for (int now = 1260; now < 3000; now += 40) // a held key whose repeats look like presses
    EXPECT_FALSE(guard.mayToggle(now)) << now;
}

TEST_F(SlipsTest, NobodyStartsAPeriodByReactingToTheHorn) {
  run(600);
  ASSERT_EQ(live.period(), 2);
  for (int second = 0; second <= 3; ++second, pass(1)) {
    live.toggleClock();
    EXPECT_EQ(live.phase(), Phase::Stopped) << second;
  }
  EXPECT_EQ(live.startLock(), 0);
  live.toggleClock();
  EXPECT_EQ(live.phase(), Phase::Running);
  EXPECT_EQ(lines(2), " 10:00,DEPART");
}

TEST_F(SlipsTest, UndoTakesAStartBackAndRedoLetsTheClockGoOn) {
  run(600);
  pass(5);
  run(4);
  live.stop();
  ASSERT_TRUE(live.undo());
  EXPECT_EQ(lines(2), " E10:00,DEPART E09:56,ARRET,IN-03-04-10-13-30,IN-07-9-09-12-15");
  EXPECT_EQ(std::pair(live.clockSeconds(), live.period()), std::pair(600, 2));
  EXPECT_TRUE(live.isHalfTime() && live.canReturnToEndedPeriod()) << "as before it";
  EXPECT_EQ(LiveFigures(live).secondsOnCourt(Side::Visitor, 1), 600);
  LiveGame again(store, time);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_EQ(std::pair(again.clockSeconds(), again.period()), std::pair(600, 2));
  ASSERT_TRUE(live.redo());
  EXPECT_EQ(live.clockSeconds(), 596);
  ASSERT_TRUE(live.undo());
  live.start();
  EXPECT_EQ(live.toRedo(), nullptr) << "the clock has been turned otherwise since";
  pass(10);
  ASSERT_TRUE(live.undo());
  EXPECT_EQ(live.phase(), Phase::Stopped);
  pass(10);
  ASSERT_TRUE(live.redo());
  EXPECT_EQ(live.phase(), Phase::Running);
  EXPECT_EQ(live.clockSeconds(), 580) << "as if it had never been taken back";
  ASSERT_TRUE(live.recordAction(Side::Visitor, 1, EventCode::STO));
  ASSERT_TRUE(live.undo()) << "behind anything else the start stays";
  EXPECT_EQ(live.phase(), Phase::Running);
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(SlipsTest, HalfASubstitutionWaitsForItsOtherHalf) {
  run(10);
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 1));
  EXPECT_EQ(since(), " 10:00,DEPART") << "four on court are nobody's wish";
  pass(7);
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 6));
  EXPECT_EQ(since(), " 10:00,DEPART 09:50,ARRET,IN-04-10-13-23-30,IN-07-9-09-12-15 09:50,DEPART");
  ASSERT_TRUE(live.toggleOnCourt(Side::Home, 1));
  ASSERT_TRUE(live.toggleOnCourt(Side::Home, 1));
  EXPECT_FALSE(live.pending()) << "clicked back";
  ASSERT_TRUE(live.toggleOnCourt(Side::Home, 2));
  pass(5);
  ASSERT_TRUE(live.recordAction(Side::Visitor, 2, EventCode::STO)); // what comes next is behind it
  EXPECT_EQ(last(3), " 09:43,ARRET,IN-04-10-13-23-30,IN-07-09-12-15 09:43,DEPART 09:38,STO,0-4");
  ASSERT_TRUE(live.toggleOnCourt(Side::Home, 6));
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 6));
  pass(LiveGame::kLongestPending);
  EXPECT_FALSE(live.pending());
  EXPECT_EQ(last(2), " 09:38,ARRET,IN-04-10-13-30,IN-03-07-09-12-15 09:38,DEPART");
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 3));
  EXPECT_FALSE(live.toUndo()->start) << "the half that was clicked is taken back first";
  live.stop();
  EXPECT_EQ(last(2), " 09:18,DEPART 09:18,ARRET,IN-04-13-30,IN-03-07-09-12-15");
  EXPECT_TRUE(live.log().countsAgree());
}

TEST_F(SlipsTest, WhoHasFouledOutIsNotWaitedFor) {
  for (const int player : {6, 7, 1, 6, 7, 1})
    live.recordAction(Side::Visitor, player, EventCode::SPF);
  run(10);
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 1));
  EXPECT_FALSE(live.pending()) << "four are all who can play";
}

TEST_F(SlipsTest, AGameThatWasClosedInPlaySaysSoUntilItGoesOn) {
  run(60);
  live.stopForClosing(1'763'790'000);
  LiveGame again(store, time);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_TRUE(again.wasClosedInPlay());
  EXPECT_EQ(again.game().details.closedInPlay.time, 1'763'790'000);
  again.start();
  again.stop();
  EXPECT_FALSE(again.wasClosedInPlay());
}

TEST_F(SlipsTest, DoubtsAndAcceptedFindingsStandInTheFileUntilTheEventChanges) {
  // The roster has a 9 and a 09, which is a finding of no event.
  const auto findingsOfEvents = [](const Game& game) {
    return std::ranges::count_if(checkGame(game), &Finding::hasEvent);
  };
  ASSERT_TRUE(live.recordShot(Side::Visitor, 1, EventCode::GFG, true)); // without a place
  ASSERT_TRUE(live.setDoubtful(*live.lastRecorded(), true));
  ASSERT_TRUE(live.recordAction(Side::Visitor, 6, EventCode::STO)); // who sits on the bench
  const EventPlace turnover = *live.lastRecorded();
  ASSERT_TRUE(live.setOnCourt({kFive ^ 0b1000010U, kFive}));
  ASSERT_TRUE(live.setDoubtful(*live.lastRecorded(), true));
  EXPECT_EQ(since(),
            " 10:00,GFG,0-3,,,?=1 10:00,STO,0-23 10:00,ARRET,IN-04-10-13-23-30,IN-07-9-09-12-15,?=1");
  ASSERT_EQ(findingsOfEvents(live.game()), 1);
  ASSERT_TRUE(live.acceptFinding(turnover, static_cast<int>(FindingKind::NotOnCourt)));
  const Game read = onDisk();
  EXPECT_EQ(findingsOfEvents(read), 0);
  EXPECT_TRUE(read.events[2].isDoubtful && !read.events[3].isDoubtful && read.events[4].isDoubtful);
  EXPECT_EQ(tallied(read).players[Side::Visitor][1].counters[Counter::FGM], 1) << "counts as before";
  ASSERT_TRUE(live.editEvent(turnover, 590, {.kind = EventCode::SPF, .team = Side::Visitor, .player = 7}));
  EXPECT_EQ(findingsOfEvents(live.game()), 1) << "another event, another finding";
  const std::string bare = withDetail("05:00,ARRET", detail_key::kDoubtful, "1");
  EXPECT_EQ(bare, "05:00,ARRET,,,?=1") << "behind both lists, be they missing";
  EXPECT_TRUE(GameEvent::parse(1, "1", bare).isUnderstood && GameEvent::parse(1, "1", bare).isDoubtful);
  ASSERT_TRUE(live.setDoubtful({1, "3"}, false));
  EXPECT_TRUE(since().starts_with(" 10:00,GFG,0-3 ")) << since();
}

} // namespace
} // namespace hooptab
