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
    ProfileStore store(m_files);
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
  for (const GameEvent& event : m_game.events) {
    if (event.period != period)
      length = event.clockSeconds;
    else
      played += length - event.clockSeconds;
    length = event.clockSeconds;
    period = event.period;
  }
  EXPECT_GE(played, m_game.details.periods * m_game.details.minutesPerPeriod * 60);
  EXPECT_EQ(m_state.lead.seconds[0] + m_state.lead.seconds[1] + m_state.lead.seconds[2], played);
  const auto sum = [](const auto& entries) {
    std::pair<int, Counters> all; // of seconds and counts
    for (const auto& entry : entries) {
      all.first += entry.seconds;
      for (std::size_t i = 0; i < kCounterCount; ++i)
        all.second.counts[i] = static_cast<std::int16_t>(all.second.counts[i] + entry.counters.counts[i]);
    }
    return all;
  };
  for (std::size_t team = 0; team < 2; ++team) {
    const auto players = sum(m_state.players[team]);
    const auto lines = sum(m_state.lines[team]);
    EXPECT_EQ(players.first, played * 5);
    EXPECT_EQ(lines.first, played);
    EXPECT_EQ(players.second, lines.second);
  }
}

INSTANTIATE_TEST_SUITE_P(RealGames, Truth, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Truth);

} // namespace
