// Real games against their official box scores: every counter of every player, and seconds as far as the
// sources agree.
#include "game/GameFile.h"
#include "game/Tally.h"
#include "support/OfficialBox.h"
#include "support/SharedGames.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

class Truth : public testing::TestWithParam<std::filesystem::path> {
 protected:
  void SetUp() override {
    cinifile store(m_files);
    GameFile file(store, GetParam().string());
    ASSERT_EQ(file.read(m_game), GameFileProblem::None);
    ASSERT_EQ(Tally::run(m_state, m_game.events, m_game.roster[0], m_game.roster[1]), std::nullopt);
  }

  FileSystem m_files;
  Game m_game;
  GameState m_state;
};

TEST_P(Truth, AgreesWithTheOfficialBox) {
  EXPECT_EQ(OfficialBox(GetParam()).differences(m_game, m_state), std::vector<std::string>{});
}

TEST_P(Truth, LinesPeriodsAndLeadAddUp) {
  int played = 0; // seconds of all periods, from the events themselves
  int length = 0;
  int period = 0;
  for (const GameEvent& event : m_game.events.events()) {
    if (event.period != period)
      length = event.clockSeconds;
    else
      played += length - event.clockSeconds;
    length = event.clockSeconds;
    period = event.period;
  }
  EXPECT_GE(played, m_game.details.periods * m_game.details.minutesPerPeriod * 60);
  EXPECT_EQ(m_state.lead.seconds[0] + m_state.lead.seconds[1] + m_state.lead.seconds[2], played);
  for (std::size_t team = 0; team < 2; ++team) {
    int ofPlayers = 0;
    int ofLines = 0;
    Counters players;
    Counters lines;
    for (const PlayerEntry& player : m_state.players[team]) {
      ofPlayers += player.seconds;
      for (std::size_t i = 0; i < kCounterCount; ++i)
        players.counts[i] = static_cast<std::int16_t>(players.counts[i] + player.counters.counts[i]);
    }
    for (const LineEntry& line : m_state.lines[team]) {
      ofLines += line.seconds;
      for (std::size_t i = 0; i < kCounterCount; ++i)
        lines.counts[i] = static_cast<std::int16_t>(lines.counts[i] + line.counters.counts[i]);
    }
    EXPECT_EQ(ofPlayers, played * 5);
    EXPECT_EQ(ofLines, played);
    EXPECT_EQ(players, lines);
  }
}

INSTANTIATE_TEST_SUITE_P(RealGames, Truth, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Truth);

TEST(RealGamesFolder, IsThere) {
  if (sharedGames().empty())
    GTEST_SKIP() << "the folder of real games is missing: " << sharedFolder();
  EXPECT_GE(sharedGames().size(), 10U);
}

} // namespace
