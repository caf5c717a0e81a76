// Real games, entered as totals through the window with clicks and keys as from a paper sheet, must give the
// official box score to every reader of the file.
#include "manual/OpenManualGame.h"

#include "game/CourtClick.h"
#include "support/OfficialBox.h"
#include "support/SharedGames.h"

namespace hooptab {
namespace {

class ManualTruth : public OpenManualGame, public testing::WithParamInterface<std::filesystem::path> {
 protected:
  void makeGame() override {
    ASSERT_EQ(GameFile(store, GetParam().string()).read(played), GameFileProblem::None);
    counted = tallied(played);
    GameDetails details = played.details;
    details.inputType = 1;
    ASSERT_EQ(
        GameFile(store, path)
            .create(details, played.roster[Side::Visitor].players(), played.roster[Side::Home].players()),
        GameFileProblem::None);
  }
  // Whatever the zones of the court take for what it was: the rest is typed.
  void placeShots(Side team, int player) {
    auto& view = find<CourtView>("Court");
    const ZoneMap zones = zoneMapOf(settings);
    for (const Shot& shot : counted.shots) {
      const court::Place place{std::floor(shot.x), std::floor(shot.y)};
      const auto click = CourtClick::of(place, false, zones);
      const bool isInPicture = place.x < court::kLength && place.y < court::kWidth;
      if (shot.team != team || shot.player != player || !shot.hasPlace || !click || !isInPicture ||
          (click->kind == EventCode::GF3) != shot.isThree)
        continue;
      QTest::mouseClick(&view, shot.isMade ? Qt::LeftButton : Qt::RightButton, {}, pixelOf(view, place));
      ++placed;
    }
  }
  static QPoint pixelOf(const CourtView& court, court::Place place) {
    const auto unitAt = [&](QPoint spot) { return *court.placeAt(QPointF(spot)); };
    QPoint spot = court.rect().center();
    while (unitAt(spot).x < place.x)
      spot.rx() += 1;
    while (unitAt(spot).x >= place.x + 1)
      spot.rx() -= 1;
    while (unitAt(spot).y < place.y)
      spot.ry() += 1;
    while (unitAt(spot).y >= place.y + 1)
      spot.ry() -= 1;
    return spot;
  }
  void enter(Side team, int player) {
    const Counters& counts = counted.players[team][static_cast<std::size_t>(player)].counters;
    const auto& first =
        find<QLabel>((table().page() == 1 ? "lblFG(" : "lblA(") + std::to_string(player) + ")");
    QTest::mouseClick(&table(), Qt::LeftButton, {},
                      QPoint(first.geometry().center().x(), nameOf(player).geometry().center().y()));
    for (const ManualColumn& column : kManualColumns) {
      if (column.page != table().page())
        continue;
      if (counts[column.counter] > 0)
        QTest::keyClicks(&table(), QString::number(counts[column.counter]));
      QTest::keyClick(&table(), Qt::Key_Right);
    }
  }

  Game played;
  GameState counted;
  int placed = 0;
};

TEST_P(ManualTruth, EnteredByHandGivesTheOfficialBox) {
  for (const Side team : kSides) {
    find<QComboBox>("cmbTEAM").setCurrentIndex(numberOf(team));
    const int players =
        std::min<int>(static_cast<int>(played.roster[team].players().size()), Roster::kLargestEntry);
    for (int page = 1; page <= kManualPages; ++page) {
      for (int player = 1; player <= players; ++player) {
        QTest::mouseClick(&table(), Qt::LeftButton, {}, nameOf(player).geometry().center());
        if (page == 1)
          placeShots(team, player);
        enter(team, player);
      }
      QTest::keyClick(&table(), Qt::Key_PageDown);
    }
  }
  EXPECT_GT(placed, 50);
  window->save();
  EXPECT_TRUE(dialogs.shown.empty());
  Game entered;
  ASSERT_EQ(GameFile(store, path).read(entered), GameFileProblem::None);
  EXPECT_TRUE(entered.details.isFinished);
  GameState again = tallied(entered);
  EXPECT_EQ(again.shots.size(), counted.shots.size());
  // Totals know no time: that of the recorded game stands in for it.
  for (const Side team : kSides) {
    for (std::size_t player = 0; player < GameState::kPlayerEntries; ++player) {
      EXPECT_EQ(again.players[team][player].counters, counted.players[team][player].counters)
          << "team " << numberOf(team) << " player " << player;
      again.players[team][player].seconds = counted.players[team][player].seconds;
    }
  }
  again.lines = counted.lines;
  for (const std::string& difference : OfficialBox(GetParam()).differences(entered, again))
    ADD_FAILURE() << difference;
}

INSTANTIATE_TEST_SUITE_P(Games, ManualTruth, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ManualTruth);

} // namespace
} // namespace hooptab
