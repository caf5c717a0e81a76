// How a game is left and found again: while its clock ran, where nobody may write, in the middle of a write.
#include "recording/LiveTable.h"
#include "recording/LostStop.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {
namespace {

constexpr unsigned kFive = 0b111110;
constexpr unsigned kOther = 0b1111100; // 6 for 1

TEST(LostStopTest, TellsTheClocksToGoOnFrom) {
  const struct {
    int lastClock;
    std::int64_t fileTime, now;
    std::optional<int> runOn;
    bool isOver;
  } cases[] = {{312, 1000, 1032, 280, false}, {312, 1000, 1311, 1, false},        {312, 1000, 1312, {}, true},
               {312, 1000, 90'000, {}, true}, {312, 1000, 1000, {}, false},       {312, 1000, 999, {}, false},
               {0, 1000, 1032, {}, false},    {1, 0, 5'000'000'000'000, {}, true}};
  for (const auto& [lastClock, fileTime, now, runOn, isOver] : cases) {
    SCOPED_TRACE(testing::Message() << lastClock << ' ' << now);
    const LostStop lost = LostStop::of(lastClock, fileTime, now);
    EXPECT_EQ(lost.runOnClock, runOn);
    EXPECT_EQ(std::pair(lost.isPeriodOver, lost.lastClock), std::pair(isOver, lastClock));
  }
}

class LeftGameTest : public LiveTableTest {
 protected:
  void make(int minutes = 10) {
    GameDetails details = regular();
    details.minutesPerPeriod = minutes;
    create(details, "4 5 10 12 15 20", "4 5 10 12 15 20");
  }
  // Both fives on court, a minute played, a basket at 09:00; and then the power goes.
  void leaveRunning() {
    make();
    found = std::make_unique<LiveGame>(store, time);
    ASSERT_EQ(found->open(path), GameFileProblem::None);
    ASSERT_TRUE(found->setOnCourt({kFive, kFive}));
    found->start();
    time.now += 60;
    ASSERT_TRUE(found->recordShot(Side::Visitor, 2, EventCode::GLG, true));
    findAgain(); // which ends it
  }
  void findAgain(LiveGame::Access access = LiveGame::Access::Recording) {
    time.now += 5'000; // by another start of the machine
    found = std::make_unique<LiveGame>(store, time);
    ASSERT_EQ(found->open(path, access), GameFileProblem::None);
  }
  std::unique_ptr<LiveGame> found;
};

TEST_F(LeftGameTest, StandsAtTheLastEventUntilAClockIsChosen) {
  struct Case {
    const char* how;
    std::optional<int> chosen; // otherwise START alone
    int secondsAtOnce;         // of a player on court
  };
  for (const Case& c : {Case{"last event", 540, 60}, {"as if run on", 520, 80}, {"start", {}, 60}}) {
    SCOPED_TRACE(c.how);
    leaveRunning();
    EXPECT_EQ(found->phase(), Phase::Stopped);
    EXPECT_EQ(found->clockSeconds(), 540);
    EXPECT_EQ(found->onCourt(), (OnCourt{kFive, kFive}));
    ASSERT_TRUE(found->isStopLost());
    EXPECT_EQ(LiveFigures(*found).secondsOnCourt(Side::Visitor, 1), 60) << "though no stop has credited it";
    ASSERT_TRUE(found->setClock(530));
    EXPECT_EQ(LiveFigures(*found).secondsOnCourt(Side::Visitor, 1), 70);
    EXPECT_EQ(LiveFigures(*found).secondsInLead(LeadState::Team0), 10)
        << "the lead lasts as long as they play";
    ASSERT_TRUE(found->setClock(540));
    if (c.chosen) {
      EXPECT_TRUE(found->settleStop(*c.chosen));
      EXPECT_EQ(found->clockSeconds(), *c.chosen);
      EXPECT_EQ(LiveFigures(*found).secondsOnCourt(Side::Visitor, 1), c.secondsAtOnce);
      EXPECT_FALSE(found->isStopLost());
      EXPECT_FALSE(found->settleStop(540)) << "once";
    }
    found->start();
    EXPECT_FALSE(found->isStopLost());
    EXPECT_EQ(LiveFigures(*found).secondsOnCourt(Side::Visitor, 1), c.secondsAtOnce);
    time.now += found->clockSeconds() - 500;
    found->stop();
    EXPECT_EQ(found->clockSeconds(), 500);
    for (int player = 1; player <= 5; ++player)
      EXPECT_EQ(LiveFigures(*found).secondsOnCourt(Side::Home, player), 100) << player;
    EXPECT_EQ(LiveFigures(*found).secondsInLead(LeadState::Tied), 60);
    EXPECT_EQ(LiveFigures(*found).secondsInLead(LeadState::Team0), 40);
    const std::string clock = c.chosen == 520 ? "08:40" : "09:00";
    EXPECT_EQ(last(4), " 09:00,GLG,0-5 " + clock + kFives + " " + clock + ",DEPART 08:20" + kFives);
  }
}

TEST_F(LeftGameTest, WhatIsRecordedFirstCountsWhereTheClockStands) {
  leaveRunning();
  EXPECT_TRUE(found->recordAction(Side::Visitor, 3, EventCode::SPF));
  EXPECT_TRUE(found->isStopLost()) << "a foul has stopped no clock";
  EXPECT_TRUE(found->settleStop(530));
  EXPECT_EQ(last(2), " 09:00,SPF,0-10 08:50" + kFives);
  findAgain();
  EXPECT_FALSE(found->isStopLost());

  leaveRunning();
  EXPECT_TRUE(found->setOnCourt({kOther, kFive}));
  EXPECT_FALSE(found->isStopLost()) << "the line of a substitution is a stop";
  found->start();
  time.now += 30;
  found->stop();
  const std::array seconds{LiveFigures(*found).secondsOnCourt(Side::Visitor, 1),
                           LiveFigures(*found).secondsOnCourt(Side::Visitor, 6),
                           LiveFigures(*found).secondsOnCourt(Side::Visitor, 2)};
  EXPECT_EQ(seconds, (std::array{60, 30, 90}));

  leaveRunning();
  EXPECT_TRUE(found->setPeriod(2));
  EXPECT_FALSE(found->isStopLost());
  EXPECT_EQ(last(1), " 09:00" + kFives);
}

TEST_F(LeftGameTest, AtZeroThePeriodIsClosed) {
  leaveRunning();
  EXPECT_TRUE(found->settleStop(0));
  EXPECT_EQ(std::pair(found->period(), found->clockSeconds()), std::pair(2, 600));
  EXPECT_EQ(LiveFigures(*found).secondsOnCourt(Side::Visitor, 1), 600);

  leaveRunning();
  EXPECT_TRUE(found->setClock(0)); // by hand, then START
  found->start();
  EXPECT_EQ(found->period(), 2);
  EXPECT_EQ(last(1), " 00:00" + kFives);
  EXPECT_TRUE(found->log().countsAgree());

  make(0);
  findAgain();
  EXPECT_TRUE(found->recordAction(Side::Visitor, 1, EventCode::SPF));
  findAgain();
  EXPECT_FALSE(found->isStopLost()) << "no time, no stop";
}

// As long as the highest clock in it says, not as long as a regular period.
TEST_F(LeftGameTest, AnOvertimeKeepsItsLength) {
  for (const int minutes : {3, 15}) {
    make();
    ASSERT_TRUE(live.setPeriod(4));
    run(600);
    ASSERT_TRUE(live.beginOvertime(minutes, false));
    pass(4); // behind the horn
    run(60);
    live.stop();
    findAgain();
    EXPECT_EQ(std::pair(found->period(), found->fullLength()), std::pair(5, minutes * 60));
    EXPECT_FALSE(found->setClock(minutes * 60 + 1));
    EXPECT_TRUE(found->setClock(minutes * 60));
    // Before its first event the sixth is taken to be as long.
    for (const auto& [period, length] : {std::pair(4, 600), {5, minutes * 60}, {6, minutes * 60}}) {
      EXPECT_TRUE(found->setPeriod(period));
      EXPECT_EQ(found->fullLength(), length) << period;
    }
  }
}

TEST_F(LeftGameTest, ForReadingEverythingIsShownAndNothingWritten) {
  leaveRunning();
  const std::string before = folder.read("live.GAM");
  findAgain(LiveGame::Access::Reading);
  EXPECT_EQ(found->phase(), Phase::ReadOnly);
  EXPECT_FALSE(found->canRecord());
  EXPECT_EQ(found->clockSeconds(), 540);
  EXPECT_EQ(found->state().points(Side::Visitor), 2);
  EXPECT_EQ(found->onCourt(), (OnCourt{kFive, kFive}));
  const std::vector<EventPlace> shot = {{1, "4"}};
  found->toggleClock();
  found->tick();
  found->stop();
  EXPECT_FALSE(found->settleStop(500) || found->setClock(500) || found->setPeriod(2) ||
               found->returnToEndedPeriod() || found->beginOvertime(5, true) ||
               found->toggleOnCourt(Side::Visitor, 6) || found->setOnCourt({kOther, kOther}) ||
               found->takeAllOut(Side::Visitor) ||
               found->recordShot(Side::Visitor, 1, EventCode::GFT, true) ||
               found->recordAction(Side::Visitor, 1, EventCode::SPF) || found->undo() || found->redo() ||
               found->setDeleted(shot, true) || found->setTime(shot[0], 530) ||
               found->insertSubstitution(shot[0], LiveGame::Where::Before, {2, 0}, {64, 0}));
  found->setTeamColour(Side::Visitor, 1);
  found->saveNotes("notes");
  found->finish("notes");
  found->reopen();
  EXPECT_EQ(found->phase(), Phase::ReadOnly);
  EXPECT_EQ(folder.read("live.GAM"), before);
}

#ifndef NDEBUG
TEST_F(LeftGameTest, AStopWithWrongCountsIsLoud) {
  leaveRunning();
  ASSERT_TRUE(found->settleStop(540));
  found->start();
  const_cast<GameState&>(found->state()).players[Side::Home][3].counters[Counter::DR] = 7;
  EXPECT_DEATH(found->stop(), "live.GAM differ from its events: team 1 player 3 counts");
}
#endif

// Plays substitutions and shots as fast as it can; each is acknowledged, by the number of the next event,
// once the call has returned.
[[noreturn]] void recordUntilKilled(const std::string& path, int acknowledgements) {
  FileSystem disk;
  ProfileStore store(disk);
  ManualTime time;
  LiveGame live(store, time);
  if (live.open(path) != GameFileProblem::None)
    ::_exit(1);
  const auto acknowledge = [&] {
    const int next = live.log().nextNumber();
    if (!live.log().isOnDisk() || ::write(acknowledgements, &next, sizeof next) != sizeof next)
      ::_exit(1);
  };
  live.start();
  acknowledge();
  for (bool isOther = live.onCourt()[Side::Visitor] == kFive;; isOther = !isOther) {
    ++time.now;
    if (!live.setOnCourt({isOther ? kOther : kFive, kFive}))
      ::_exit(1);
    acknowledge();
    if (!live.recordShot(Side::Visitor, 2, EventCode::GFG, true, {{40, 100}}))
      ::_exit(1);
    acknowledge();
  }
}

TEST_F(LeftGameTest, AKillInABurstLeavesWholeActionsAndAGameThatGoesOn) {
  constexpr int kRounds = 60;
  constexpr int kRoundsPerFile = 15;
  std::mt19937 random(20240211); // fixed, so that a failure can be looked into
  std::uniform_int_distribution<int> actions(1, 12);
  std::uniform_int_distribution<useconds_t> moment(0, 3'000);
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    if (round % kRoundsPerFile == 0)
      make(99);
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(ends[0]);
      recordUntilKilled(path, ends[1]);
    }
    ::close(ends[1]);
    int acknowledged = 0;
    const auto hear = [&] { return ::read(ends[0], &acknowledged, sizeof acknowledged) > 0; };
    for (int left = actions(random); left > 0 && hear();)
      --left;
    ::usleep(moment(random));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child gave up";
    while (hear())
      continue;
    ::close(ends[0]);

    findAgain();
    const PeriodLines lines = linesOf(found->game().events).at(1);
    const int next = static_cast<int>(lines.size()) + 1;
    EXPECT_EQ(found->log().nextNumber(), next) << "no number is left out";
    EXPECT_GE(next, acknowledged);
    EXPECT_LE(next, acknowledged + 2) << "one action more, a substitution with its start";
    EXPECT_TRUE(found->isStopLost()) << "every substitution has its start: " << lines.back().second;
    EXPECT_TRUE(found->settleStop(found->clockSeconds()));
    EXPECT_TRUE(found->recordAction(Side::Home, 1, EventCode::SPF));
    EXPECT_TRUE(found->log().isOnDisk() && found->log().countsAgree());
  }
}

} // namespace
} // namespace hooptab
