// Real games, recorded once more event by event through the live game with a clock that the test turns, must
// come out with the counts of the originals.
#include "recording/LiveTable.h"
#include "support/SharedGames.h"

#include <map>

namespace hooptab {
namespace {

class Replay {
 public:
  explicit Replay(const Game& original) : m_original(original) {
    m_disk.syncs = false;
    EXPECT_EQ(GameFile(m_store, m_path)
                  .create(original.details, original.roster[Side::Visitor].players(),
                          original.roster[Side::Home].players()),
              GameFileProblem::None);
    EXPECT_EQ(live.open(m_path), GameFileProblem::None);
  }

  void play() {
    for (const GameEvent& event : m_original.events) {
      if (!event.isUnderstood || event.isDeleted)
        continue;
      turnClockTo(event);
      if (event.code == EventCode::DEPART)
        start();
      else if (event.code == EventCode::ARRET)
        stop(event);
      else
        record(event);
    }
  }

  Game recorded() {
    Game game;
    EXPECT_EQ(GameFile(m_store, m_path).read(game), GameFileProblem::None);
    return game;
  }

 private:
  // The time of day passes; a clock that was corrected is set by hand.
  void turnClockTo(const GameEvent& event) {
    while (live.period() < event.period && live.phase() != LiveGame::Phase::Running) {
      const bool isNext = live.phase() == LiveGame::Phase::OvertimeAsked
                              ? live.beginOvertime(event.clockSeconds / 60, false)
                              : live.setPeriod(event.period);
      ASSERT_TRUE(isNext) << event.line;
    }
    if (live.period() > event.period) {
      ASSERT_TRUE(live.returnToEndedPeriod()) << event.line;
    }
    const int remaining = live.clockSeconds();
    if (remaining == event.clockSeconds)
      return;
    if (live.phase() == LiveGame::Phase::Running && remaining > event.clockSeconds) {
      m_time.now += remaining - event.clockSeconds;
      if (event.clockSeconds > 0)
        live.tick();
      return;
    }
    live.stop();
    EXPECT_TRUE(live.setClock(event.clockSeconds)) << event.line;
  }

  void start() {
    if (live.phase() != LiveGame::Phase::Stopped || live.clockSeconds() == 0)
      return;
    m_time.now += live.startLock() + 1;
    live.start();
  }

  void stop(const GameEvent& event) {
    const Rosters rosters = live.log().rosters();
    const OnCourt lists = *onCourtOf(event, rosters);
    if (lists == live.onCourt())
      live.stop();
    else
      EXPECT_TRUE(live.setOnCourt(lists)) << event.line;
    live.tick();
  }

  void record(const GameEvent& event) {
    const Side team = *event.player.team;
    const int entry = live.game().roster[team].entryOf(event.player.jersey);
    const bool isRecorded =
        event.isShot()
            ? live.recordShot(team, entry, event.code, event.isMade,
                              event.hasPlace ? std::optional(std::pair(double{event.x}, double{event.y}))
                                             : std::nullopt)
            : live.recordAction(team, entry, event.code);
    EXPECT_TRUE(isRecorded) << event.line;
  }

  const Game& m_original;
  TemporaryFolder m_folder;
  FaultyFileSystem m_disk;
  ProfileStore m_store{m_disk};
  ManualTime m_time;
  std::string m_path = m_folder.path("replay.GAM");

 public:
  LiveGame live{m_store, m_time};
};

// Lines with anything to show, by their list.
std::map<std::string, std::pair<int, Counters>> linesOf(const GameState& state, Side team) {
  std::map<std::string, std::pair<int, Counters>> lines;
  for (const LineEntry& line : state.lines[team]) {
    if (line.seconds != 0 || line.counters.hasAny())
      lines[line.list] = {line.seconds, line.counters};
  }
  return lines;
}

class LiveReplay : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(LiveReplay, ComesOutAsTheOriginal) {
  FileSystem disk;
  ProfileStore store(disk);
  Game original;
  ASSERT_EQ(GameFile(store, GetParam().string()).read(original), GameFileProblem::None);
  Replay replay(original);
  replay.play();
  EXPECT_TRUE(replay.live.log().countsAgree() && replay.live.log().isOnDisk());
  const GameState wanted = tallied(original);
  const GameState found = tallied(replay.recorded());
  for (const Side team : kSides) {
    for (std::size_t entry = 0; entry < wanted.players[team].size(); ++entry) {
      SCOPED_TRACE(testing::Message() << numberOf(team) << ' ' << entry);
      EXPECT_EQ(found.players[team][entry].counters, wanted.players[team][entry].counters);
      EXPECT_EQ(found.players[team][entry].seconds, wanted.players[team][entry].seconds);
    }
    EXPECT_EQ(linesOf(found, team), linesOf(wanted, team));
    for (std::size_t row = 0; row < wanted.periods[team].size(); ++row) {
      EXPECT_EQ(found.periods[team][row].points, wanted.periods[team][row].points) << row;
      EXPECT_EQ(found.periods[team][row].fouls, wanted.periods[team][row].fouls) << row;
    }
  }
  EXPECT_EQ(found.lead.seconds, wanted.lead.seconds);
  EXPECT_EQ(found.lead.times, wanted.lead.times);
}

INSTANTIATE_TEST_SUITE_P(RealGames, LiveReplay, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::erase(name, '-');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(LiveReplay);

} // namespace
} // namespace hooptab
