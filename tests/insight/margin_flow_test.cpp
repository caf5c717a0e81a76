// How the score of a game went: leads, runs, ties and who was on court meanwhile.
#include "insight/MarginFlow.h"

#include "insight/GameInsight.h"
#include "insight/Rotation.h"
#include "insight/Stretch.h"
#include "insight/WinProbability.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace hooptab;

namespace {

const std::string kStart = "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";

Game gameOf(const std::string& lines, const std::string& details = {}) {
  return gameOfText(textOfGame(kStart + lines, details));
}

std::vector<std::pair<int, int>> spansOf(const MarginFlow& flow) {
  std::vector<std::pair<int, int>> spans;
  for (const MarginFlow::Period& period : flow.periods)
    spans.emplace_back(period.begin, period.end);
  return spans;
}

TEST(MarginFlow, KnowsLeadsTiesAndChanges) {
  const MarginFlow flow =
      marginFlowOf(gameOf("3=09:00,GFG,0-4\n4=08:30,GFG,1-3\n5=08:00,GF3,1-3\n6=07:00,GF3,0-4\n"
                          "7=06:00,GF3,0-4\n8=05:00,GFG,1-3\n"));
  EXPECT_EQ(flow.timesTied, 2);                                  // 2-2 and 5-5
  EXPECT_EQ(flow.leadChanges, (std::vector<std::size_t>{2, 4})); // the first lead is none
  EXPECT_EQ(flow.biggestLead[Side::Visitor], (MarginFlow::Peak{3, 1, 360}));
  EXPECT_EQ(flow.biggestLead[Side::Home], (MarginFlow::Peak{3, 1, 480}));
  EXPECT_EQ(flow.biggestRun[Side::Visitor], (MarginFlow::Peak{6, 1, 360}));
  EXPECT_EQ(flow.marginAt(60), 2);
  EXPECT_EQ(flow.marginAt(59), 0);
  EXPECT_FALSE(marginFlowOf(gameOf("")).biggestLead[Side::Home].has_value());
}

TEST(MarginFlow, ARunGoesOnAcrossPeriodsAndAMissEndsNone) {
  const MarginFlow flow =
      marginFlowOf(gameOf("3=00:30,GF3,0-4\n4=00:10,GFGA,1-3\n5=00:00,ARRET,,\n[PERIODE2]\n6=09:00,GFG,0-5\n"
                          "7=08:00,GFG,0-5\n8=07:00,GFT,1-3\n"));
  ASSERT_EQ(flow.runs.size(), 1U);
  EXPECT_EQ(flow.runs[0].points, 7);
  EXPECT_EQ(flow.runs[0].last, 2U);
  EXPECT_EQ(flow.biggestRun[Side::Visitor], (MarginFlow::Peak{7, 2, 480}));
}

TEST(MarginFlow, PeriodsStandBesideEachOtherWhateverWasRecordedOfThem) {
  const MarginFlow flow =
      marginFlowOf(gameOf("3=04:00,GFG,0-4\n[PERIODE2]\n4=09:00,GFG,0-4\n[PERIODE4]\n5=00:00,GFG,1-3\n"
                          "[PERIODE5]\n6=05:00,DEPART\n7=03:00,GFG,1-3\n"));
  using Spans = std::vector<std::pair<int, int>>;
  EXPECT_EQ(spansOf(flow), (Spans{{0, 600}, {600, 1200}, {1800, 2400}, {2400, 2520}}));
  EXPECT_EQ(spansOf(marginFlowOf(gameOf("[PERIODE5]\n3=05:00,DEPART\n4=03:00,GFG,1-3\n"))),
            (Spans{{0, 600}, {2400, 2520}}))
      << "periods without events stand before an overtime, too";
  EXPECT_EQ(spansOf(marginFlowOf(gameOf("[PERIODE2]\n3=12:00,DEPART\n4=00:00,GFG,1-3\n"))),
            (Spans{{0, 600}, {600, 1320}}))
      << "a clock above the rules' length";
  const MarginFlow untimed = marginFlowOf(gameOf("3=00:00,GFG,0-4\n4=00:00,GFG,1-3\n", "DUREE=0\n"));
  EXPECT_FALSE(untimed.hasTime);
  EXPECT_LT(untimed.steps[0].at, untimed.steps[1].at);
}

TEST(Rotation, HoldsEachStayWithItsMargin) {
  const std::vector<Stay> stays =
      rotationOf(gameOf("3=09:00,GFG,0-4\n4=08:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n"
                        "5=08:00,DEPART\n6=07:00,GF3,1-3\n"
                        "7=06:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n8=06:00,DEPART\n"
                        "9=00:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"));
  std::vector<Stay> ofFour;
  std::ranges::copy_if(stays, std::back_inserter(ofFour),
                       [](const Stay& stay) { return stay.team == Side::Visitor && stay.player == 1; });
  EXPECT_EQ(ofFour,
            (std::vector<Stay>{{Side::Visitor, 1, 1, 0, 120, 2}, {Side::Visitor, 1, 1, 240, 600, 0}}));
  EXPECT_EQ(std::ranges::count_if(stays, [](const Stay& stay) { return stay.team == Side::Home; }), 5);
}

TEST(Stretch, BeginsInThePeriodThatComesAndEndsInTheOneBefore) {
  const Game game = gameOf("3=00:00,ARRET,,\n[PERIODE2]\n4=10:00,DEPART\n5=00:00,ARRET,,\n");
  EXPECT_EQ(stretchBetween(game, 600, 900), (Stretch{2, Stretch::kPeriodBegin, 2, 300}));
  EXPECT_EQ(stretchBetween(game, 30, 600), (Stretch{1, 570, 1, 0}));
}

TEST(Stretch, TimeOfNobodyStaysNobodysAndAClockSetBackLosesNothing) {
  const Game closedEarly =
      gameOf("3=01:30,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n[PERIODE2]\n4=10:00,DEPART\n"
             "5=09:00,GFG,0-4\n");
  EXPECT_EQ(insightOf(gameOfStretch(closedEarly, Stretch::ofPeriods(1, 1))).whole.seconds, 510);
  const Game setBack =
      gameOf("3=04:58,GFG,0-4\n4=05:10,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n5=05:05,GFG,0-0\n"
             "6=04:40,GFG,0-0\n");
  const Stretch fromFive{1, 5 * 60, 1, 0};
  EXPECT_EQ(insightOf(gameOfStretch(setBack, fromFive)).whole.points(Side::Visitor), 6);
}

TEST(WinProbability, GrowsWithTheMarginAndAsTimeRunsOut) {
  EXPECT_DOUBLE_EQ(homeWinProbability(0, 0), 0.5);
  EXPECT_DOUBLE_EQ(homeWinProbability(-1, 0), 0);
  EXPECT_NEAR(homeWinProbability(0, 48 * 60), 0.62, 0.005); // as its source has it
  EXPECT_GT(homeWinProbability(5, 60), homeWinProbability(5, 600));
  EXPECT_GT(homeWinProbability(6, 600), homeWinProbability(5, 600));
  const Game overtime = gameOf("[PERIODE5]\n3=05:00,DEPART\n4=03:00,GFG,1-7\n");
  EXPECT_NEAR(winProbabilityOf(marginFlowOf(overtime), overtime.details).back().home,
              homeWinProbability(2, 180), 1e-9);
}

} // namespace
