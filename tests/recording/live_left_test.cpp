// How a game is left and found again: while its clock ran, where nobody may write, in the middle of a write.
#include "recording/LiveGame.h"
#include "recording/LostStop.h"
#include "recording/ManualTime.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {
namespace {

using Phase = LiveGame::Phase;
constexpr unsigned kFive = 0b111110;
constexpr unsigned kOther = 0b1111100; // 6 for 1

TEST(LostStopTest, TellsTheClocksToGoOnFrom) {
  struct Case {
    int lastClock;
    std::int64_t fileTime;
    std::int64_t now;
    std::optional<int> runOn;
    bool isOver;
  };
  const Case cases[] = {{312, 1000, 1032, 280, false}, {312, 1000, 1311, 1, false},
                        {312, 1000, 1312, {}, true},   {312, 1000, 90'000, {}, true},
                        {312, 1000, 1000, {}, false},  {312, 1000, 999, {}, false},
                        {0, 1000, 1032, {}, false},    {1, 0, 5'000'000'000'000, {}, true}};
  for (const Case& c : cases) {
    const LostStop lost = LostStop::of(c.lastClock, c.fileTime, c.now);
    EXPECT_EQ(lost.runOnClock, c.runOn) << c.lastClock << ' ' << c.now;
    EXPECT_EQ(lost.isPeriodOver, c.isOver) << c.lastClock << ' ' << c.now;
    EXPECT_EQ(lost.lastClock, c.lastClock);
  }
}

class LeftGameTest : public testing::Test {
 protected:
  void make(int minutes = 10) {
    GameDetails details;
    details.periods = 4;
    details.minutesPerPeriod = minutes;
    const std::vector<RosterPlayer> players = {{"4", 0, "A"},  {"5", 1, "B"},  {"10", 2, "C"},
                                               {"12", 2, "D"}, {"15", 1, "E"}, {"20", 1, "F"}};
    ASSERT_EQ(GameFile(store, path).create(details, players, players), GameFileProblem::None);
  }
  // Both fives on court, a minute played, a basket at 09:00; and then the power goes.
  void leaveRunning() {
    make();
    ASSERT_EQ(live->open(path), GameFileProblem::None);
    ASSERT_TRUE(live->setOnCourt({kFive, kFive}));
    live->start();
    time.now += 60;
    ASSERT_TRUE(live->recordShot(0, 2, EventCode::GLG, true));
    findAgain();
  }
  void findAgain(LiveGame::Access access = LiveGame::Access::Recording) {
    time.now += 5'000; // by another start of the machine
    live = std::make_unique<LiveGame>(store, time);
    ASSERT_EQ(live->open(path, access), GameFileProblem::None);
  }
  void play(int seconds) {
    live->start();
    time.now += seconds;
    live->stop();
  }
  std::string lastLines(std::size_t count) {
    EventLines found;
    EXPECT_EQ(GameFile(store, path).readLines(found), GameFileProblem::None);
    std::string text;
    const PeriodLines& lines = found[1];
    for (std::size_t i = lines.size() - count; i < lines.size(); ++i)
      text += (text.empty() ? "" : " ") + lines[i].second;
    return text;
  }

  TemporaryFolder folder;
  FileSystem disk;
  cinifile store{disk};
  ManualTime time;
  std::string path = folder.path("left.GAM");
  std::unique_ptr<LiveGame> live = std::make_unique<LiveGame>(store, time);
};

TEST_F(LeftGameTest, StandsAtTheLastEventUntilAClockIsChosen) {
  struct Case {
    const char* how;
    std::optional<int> chosen; // otherwise START alone
    int secondsAtOnce;         // of a player on court
  };
  const Case cases[] = {{"last event", 540, 60}, {"as if run on", 520, 80}, {"start", std::nullopt, 60}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.how);
    leaveRunning();
    EXPECT_EQ(live->phase(), Phase::Stopped);
    EXPECT_EQ(live->clockSeconds(), 540);
    EXPECT_EQ(live->onCourt(), (OnCourt{kFive, kFive}));
    ASSERT_TRUE(live->isStopLost());
    EXPECT_EQ(live->secondsOnCourt(0, 1), 60) << "though no stop has credited it";
    ASSERT_TRUE(live->setClock(530));
    EXPECT_EQ(live->secondsOnCourt(0, 1), 70);
    EXPECT_EQ(live->secondsInLead(LeadState::Team0), 10) << "the lead lasts as long as they play";
    ASSERT_TRUE(live->setClock(540));
    if (c.chosen) {
      EXPECT_TRUE(live->settleStop(*c.chosen));
      EXPECT_EQ(live->clockSeconds(), *c.chosen);
      EXPECT_EQ(live->secondsOnCourt(0, 1), c.secondsAtOnce);
      EXPECT_FALSE(live->isStopLost());
      EXPECT_FALSE(live->settleStop(540)) << "once";
    }
    live->start();
    EXPECT_FALSE(live->isStopLost());
    EXPECT_EQ(live->secondsOnCourt(0, 1), c.secondsAtOnce);
    time.now += live->clockSeconds() - 500;
    live->stop();
    EXPECT_EQ(live->clockSeconds(), 500);
    for (int player = 1; player <= 5; ++player)
      EXPECT_EQ(live->secondsOnCourt(1, player), 100) << player;
    EXPECT_EQ(live->secondsInLead(LeadState::Tied), 60);
    EXPECT_EQ(live->secondsInLead(LeadState::Team0), 40);
    const std::string clock = c.chosen == 520 ? "08:40" : "09:00";
    const std::string lists = ",ARRET,IN-04-05-10-12-15,IN-04-05-10-12-15";
    EXPECT_EQ(lastLines(4), "09:00,GLG,0-5 " + clock + lists + " " + clock + ",DEPART 08:20" + lists);
  }
}

TEST_F(LeftGameTest, WhatIsRecordedFirstCountsWhereTheClockStands) {
  leaveRunning();
  EXPECT_TRUE(live->recordAction(0, 3, EventCode::SPF));
  EXPECT_TRUE(live->isStopLost()) << "a foul has stopped no clock";
  EXPECT_TRUE(live->settleStop(530));
  EXPECT_TRUE(lastLines(2).starts_with("09:00,SPF,0-10 08:50,ARRET,")) << lastLines(2);
  findAgain();
  EXPECT_FALSE(live->isStopLost());

  leaveRunning();
  EXPECT_TRUE(live->setOnCourt({kOther, kFive}));
  EXPECT_FALSE(live->isStopLost()) << "the line of a substitution is a stop";
  play(30);
  EXPECT_EQ(live->secondsOnCourt(0, 1), 60);
  EXPECT_EQ(live->secondsOnCourt(0, 6), 30);
  EXPECT_EQ(live->secondsOnCourt(0, 2), 90);

  leaveRunning();
  EXPECT_TRUE(live->setPeriod(2));
  EXPECT_FALSE(live->isStopLost());
  EXPECT_TRUE(lastLines(1).starts_with("09:00,ARRET,"));
}

TEST_F(LeftGameTest, AtZeroThePeriodIsClosed) {
  leaveRunning();
  EXPECT_TRUE(live->settleStop(0));
  EXPECT_EQ(live->period(), 2);
  EXPECT_EQ(live->clockSeconds(), 600);
  EXPECT_EQ(live->secondsOnCourt(0, 1), 600);

  leaveRunning();
  EXPECT_TRUE(live->setClock(0)); // by hand, then START
  live->start();
  EXPECT_EQ(live->period(), 2);
  EXPECT_TRUE(lastLines(1).starts_with("00:00,ARRET,")) << lastLines(1);
  EXPECT_TRUE(live->log().countsAgree());

  make(0);
  findAgain();
  EXPECT_TRUE(live->recordAction(0, 1, EventCode::SPF));
  findAgain();
  EXPECT_FALSE(live->isStopLost()) << "no time, no stop";
}

// As long as the highest clock in it says, not as long as a regular period.
TEST_F(LeftGameTest, AnOvertimeKeepsItsLength) {
  for (const int minutes : {3, 15}) {
    make();
    ASSERT_EQ(live->open(path), GameFileProblem::None);
    ASSERT_TRUE(live->setPeriod(4));
    live->start();
    time.now += 600;
    live->tick();
    ASSERT_TRUE(live->beginOvertime(minutes, false));
    time.now += 4; // behind the horn
    live->start();
    time.now += 60;
    live->stop();
    findAgain();
    EXPECT_EQ(live->period(), 5);
    EXPECT_EQ(live->fullLength(), minutes * 60);
    EXPECT_FALSE(live->setClock(minutes * 60 + 1));
    EXPECT_TRUE(live->setClock(minutes * 60));
    EXPECT_TRUE(live->setPeriod(4));
    EXPECT_EQ(live->fullLength(), 600);
    EXPECT_TRUE(live->setPeriod(5));
    EXPECT_EQ(live->fullLength(), minutes * 60);
    EXPECT_TRUE(live->setPeriod(6));
    EXPECT_EQ(live->fullLength(), 600) << "before its first event nobody knows";
  }
}

TEST_F(LeftGameTest, ForReadingEverythingIsShownAndNothingWritten) {
  leaveRunning();
  const std::string before = folder.read("left.GAM");
  findAgain(LiveGame::Access::Reading);
  EXPECT_EQ(live->phase(), Phase::ReadOnly);
  EXPECT_FALSE(live->canRecord());
  EXPECT_EQ(live->clockSeconds(), 540);
  EXPECT_EQ(live->state().points(0), 2);
  EXPECT_EQ(live->onCourt(), (OnCourt{kFive, kFive}));
  const std::vector<EventPlace> shot = {{1, "4"}};
  live->toggleClock();
  live->tick();
  live->stop();
  EXPECT_FALSE(live->settleStop(500) || live->setClock(500) || live->setPeriod(2) ||
               live->returnToEndedPeriod() || live->beginOvertime(5, true) || live->toggleOnCourt(0, 6) ||
               live->setOnCourt({kOther, kOther}) || live->takeAllOut(0) ||
               live->recordShot(0, 1, EventCode::GFT, true) || live->recordAction(0, 1, EventCode::SPF) ||
               live->undo() || live->redo() || live->setDeleted(shot, true) || live->setTime(shot[0], 530) ||
               live->insertSubstitution(shot[0], LiveGame::Where::Before, {2, 0}, {64, 0}));
  live->setTeamColour(0, 1);
  live->saveNotes("notes");
  live->finish("notes");
  live->reopen();
  EXPECT_EQ(live->phase(), Phase::ReadOnly);
  EXPECT_EQ(folder.read("left.GAM"), before);
}

#ifndef NDEBUG
TEST_F(LeftGameTest, AStopWithWrongCountsIsLoud) {
  leaveRunning();
  ASSERT_TRUE(live->settleStop(540));
  live->start();
  const auto spoil = [this] {
    const_cast<GameState&>(live->state()).players[1][3].counters[Counter::DR] = 7;
    live->stop();
  };
  EXPECT_DEATH(spoil(), "left.GAM differ from its events: team 1 player 3 counts");
}
#endif

// Plays substitutions and shots as fast as it can; each is acknowledged, by the number of the next event,
// once the call has returned.
[[noreturn]] void recordUntilKilled(const std::string& path, int acknowledgements) {
  FileSystem disk;
  cinifile store(disk);
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
  for (bool isOther = live.onCourt()[0] == kFive;; isOther = !isOther) {
    ++time.now;
    if (!live.setOnCourt({isOther ? kOther : kFive, kFive}))
      ::_exit(1);
    acknowledge();
    if (!live.recordShot(0, 2, EventCode::GFG, true, {{40, 100}}))
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
    const PeriodLines& lines = live->log().lines().at(1);
    const int next = static_cast<int>(lines.size()) + 1;
    EXPECT_EQ(live->log().nextNumber(), next) << "no number is left out";
    EXPECT_GE(next, acknowledged);
    EXPECT_LE(next, acknowledged + 2) << "one action more, a substitution with its start";
    EXPECT_TRUE(live->isStopLost()) << "every substitution has its start: " << lines.back().second;
    EXPECT_TRUE(live->settleStop(live->clockSeconds()));
    EXPECT_TRUE(live->recordAction(1, 1, EventCode::SPF));
    EXPECT_TRUE(live->log().isOnDisk() && live->log().countsAgree());
  }
}

} // namespace
} // namespace hooptab
