// Where a flow chart's parts stand, what a place on it means, and the rows of the rotation.
#include "insight/FlowLayout.h"

#include "insight/FlowDrawing.h"
#include "insight/RotationLayout.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace hooptab;

namespace {

Game gameOf(const std::string& lines, const std::string& details = {}) {
  return gameOfText(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n" + lines, details));
}
// So many points of one side, two at a time, at that clock.
std::string run(int& key, const std::string& clock, const std::string& player, int baskets) {
  std::string lines;
  for (int i = 0; i < baskets; ++i)
    lines += std::to_string(key++) + "=" + clock + ",GFG," + player + "\n";
  return lines;
}

TEST(FlowLayout, TheAxisHasRoundStepsForWhatEachTeamLedBy) {
  int key = 3;
  const MarginFlow flow = marginFlowOf(gameOf(run(key, "09:00", "0-4", 2) + run(key, "05:00", "1-3", 12)));
  const FlowLayout layout(flow, {100, 10, 600, 200});
  EXPECT_EQ(layout.gridLines(), (std::vector<int>{5, 0, -5, -10, -15, -20}));
  EXPECT_EQ(layout.labels(50), (std::vector<int>{0, -10, -20})); // a step is 40 high
  EXPECT_DOUBLE_EQ(layout.y(0), 50);
  EXPECT_EQ(layout.timeAt(layout.x(123)), 123);
  EXPECT_EQ(layout.timeAt(-1000), 0);
}

TEST(FlowLayout, OfRunsThatCoverEachOtherTheLargerIsShown) {
  int key = 3;
  // 8-0, then at once 10-0, and 8-0 much later.
  const MarginFlow flow = marginFlowOf(
      gameOf(run(key, "09:00", "0-4", 4) + run(key, "08:55", "1-3", 5) + run(key, "01:00", "0-4", 4)));
  ASSERT_EQ(flow.runs.size(), 3U);
  const FlowLayout layout(flow, {0, 0, 600, 200});
  std::vector<int> points;
  for (const FlowLayout::Bracket& bracket : layout.brackets(40))
    points.push_back(bracket.run->points);
  EXPECT_EQ(points, (std::vector<int>{10, 8}));
}

TEST(FlowLayout, TimeOutsAtOneTimeStandAboveEachOther) {
  const MarginFlow flow =
      marginFlowOf(gameOf("3=06:00,XTO,0\n4=06:00,XTO,1\n5=01:00,XTO,0\n6=01:00,GFG,0-4\n"));
  const FlowLayout layout(flow, {0, 0, 600, 200});
  EXPECT_EQ(layout.timeOutRows(14, 0, 0), (std::vector<int>{0, 1, 0}));
  EXPECT_EQ(layout.timeOutRows(14, 100, 300), (std::vector<int>{1, 2, 0}));
}

TEST(FlowLayout, WhoLeadsIsSaidWhereTheCurveDoesNotRun) {
  int key = 3;
  // The visitors lead by two in the first three minutes only, the home team by ten at the end.
  const MarginFlow flow = marginFlowOf(gameOf(run(key, "10:00", "0-4", 1) + run(key, "07:00", "1-3", 1) +
                                              run(key, "02:00", "1-3", 5) + "90=00:00,STO,0-4\n"));
  const FlowLayout layout(flow, {100, 10, 600, 200});
  EXPECT_GE(layout.textPlace(Side::Visitor, 100, 30), layout.x(180));
  EXPECT_EQ(layout.textPlace(Side::Home, 100, 30), 100);
  EXPECT_EQ(layout.textPlace(Side::Visitor, 100, 300), 100); // nowhere free
}

TEST(FlowLayout, APlaceMeansTheNearestPlayAndOfSeveralAtOneTimeTheLast) {
  const MarginFlow flow =
      marginFlowOf(gameOf("3=09:00,GFG,0-4\n4=08:00,XTO,1\n5=07:00,GFT,1-3\n6=07:00,GFT,1-3\n"));
  const std::vector<FlowPlay> plays = playsOf(flow);
  ASSERT_EQ(plays.size(), 4U);
  EXPECT_EQ(plays[1].score, (PerSide<int>{2, 0})); // a time-out has the score that stood
  EXPECT_EQ(FlowLayout::playAt(plays, 0), 0U);
  EXPECT_EQ(FlowLayout::playAt(plays, 85), 0U);
  EXPECT_EQ(FlowLayout::playAt(plays, 95), 1U);
  EXPECT_EQ(FlowLayout::playAt(plays, 160), 3U);
  EXPECT_EQ(FlowLayout::playAt(plays, 600), 3U);
  EXPECT_FALSE(FlowLayout::playAt({}, 0).has_value());
}

TEST(FlowDrawing, SaysWhatHappenedAndWhyThereIsNothingToShow) {
  const Texts texts;
  const FlowDrawing drawing = flowDrawing(gameOf("3=09:00,GFG,0-4\n4=08:00,GF3,1-3\n"), texts);
  EXPECT_EQ(inOneLine(flowSummary(drawing, texts)), "PAN up to +2 · OLY up to +1 · 1 lead change");
  EXPECT_EQ(drawing.result, "OLY by 1");
  EXPECT_NE(flowDrawing(gameOf("3=09:00,GFGA,0-4\n"), texts).emptyWords,
            flowDrawing(gameOf("3=09:00,GFG,0-4\n", "INPUTTYPE=1\n"), texts).emptyWords);
}

TEST(RotationLayout, RowsAreInTheOrderOfTheNumbersAndAPlaceFindsItsStay) {
  const Game game = gameOf("3=09:00,GFG,0-4\n4=08:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-22\n"
                           "5=08:00,DEPART\n6=00:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-22\n");
  const auto rows = rotationRows({game, tallied(game)});
  std::string numbers;
  for (const RotationRow& row : rows[Side::Visitor])
    numbers += row.number + ' ';
  EXPECT_EQ(numbers, "00 4 5 10 12 15 ");
  EXPECT_EQ(rows[Side::Visitor][1].plusMinus, 2);
  EXPECT_EQ(rows[Side::Visitor][1].seconds, 120);
  const RotationLayout layout({6, 5}, 100, 20, 10);
  EXPECT_FALSE(layout.rowAt(110).has_value());
  EXPECT_EQ(layout.rowAt(131)->row, 1U);
  EXPECT_FALSE(layout.rowAt(195).has_value()); // the home team's head
  EXPECT_EQ(layout.rowAt(201)->team, Side::Home);
  EXPECT_FALSE(layout.rowAt(layout.bottom() + 1).has_value());
  EXPECT_EQ(RotationLayout::stayAt(rows[Side::Visitor][1], 60)->to, 120);
  EXPECT_EQ(RotationLayout::stayAt(rows[Side::Visitor][1], 121), nullptr);
}

} // namespace
