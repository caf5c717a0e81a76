// Real games against their official box scores: every counter of every player, and seconds as far as the
// sources agree.
#include "game/GameFile.h"
#include "game/Tally.h"
#include "support/OfficialBox.h"
#include "support/SharedGames.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

class Truth : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Truth, AgreesWithTheOfficialBox) {
  FileSystem files;
  ProfileStore store(files);
  Game game;
  GameState state;
  ASSERT_EQ(GameFile(store, GetParam().string()).read(game), GameFileProblem::None);
  ASSERT_EQ(Tally::run(state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]),
            std::nullopt);
  EXPECT_EQ(OfficialBox(GetParam()).differences(game, state), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(RealGames, Truth, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Truth);

} // namespace
