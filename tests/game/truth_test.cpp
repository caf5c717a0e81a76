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

INSTANTIATE_TEST_SUITE_P(RealGames, Truth, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Truth);

} // namespace
