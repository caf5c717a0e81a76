// Which shots a chart shows, and in which zone each is summed.
#include "scorecard/ShotChart.h"

#include "scorecard/ZoneRates.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

using namespace hooptab;
using court::ChartZone;

namespace {

Shot shotAt(float x, float y, bool isThree) {
  Shot shot;
  shot.isThree = isThree;
  shot.isMade = true;
  shot.hasPlace = true;
  shot.x = x;
  shot.y = y;
  return shot;
}

ZoneSum sumOf(const ShotSums& sums, bool three) {
  ZoneSum sum;
  for (std::size_t zone = 0; zone < sums.zones.size(); ++zone) {
    if (isThreePointZone(static_cast<ChartZone>(zone)) != three)
      continue;
    sum.made += sums.zones[zone].made;
    sum.attempted += sums.zones[zone].attempted;
  }
  return sum;
}

TEST(ShotSelection, TakesTheTeamsShotsOfTheChosenPlayersOrLines) {
  const Game game =
      gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                            "2=09:00,GFG,0-4,30,100\n3=08:50,GFGA,0-5,40,90\n4=08:40,GF3,1-7,115,100\n"
                            "5=08:00,ARRET,IN-00-04-05-10-12,IN-03-07-08-11-22\n6=07:00,GF3A,0-4\n"
                            "7=06:50,GFT,0-4\nE8=x\n9=E06:40,GFG,0-4,30,100\n"));
  const GameState state = tallied(game);
  const auto eventsOf = [&](const ShotSelection& selection) {
    std::vector<std::uint32_t> events;
    for (const Shot& shot : selectedShots(state, selection))
      events.push_back(shot.eventIndex);
    return events;
  };
  using Events = std::vector<std::uint32_t>;
  EXPECT_EQ(eventsOf({Side::Visitor, BoxView::Players, true, {}}), (Events{1, 2, 5}));
  EXPECT_EQ(eventsOf({Side::Home, BoxView::Players, true, {}}), (Events{3}));
  EXPECT_EQ(eventsOf({Side::Visitor, BoxView::Players, false, {1}}), (Events{1, 5}));
  EXPECT_EQ(eventsOf({Side::Visitor, BoxView::Players, false, {}}), Events{});
  EXPECT_EQ(eventsOf({Side::Visitor, BoxView::Lines, false, {1}}), (Events{1, 2}));
  EXPECT_EQ(eventsOf({Side::Visitor, BoxView::Lines, false, {2}}), (Events{5}));
}

TEST(ShotSums, CountAShotOfTheOtherKindInTheNearestZoneOfItsOwn) {
  const auto y = static_cast<float>(court::kBasketY);
  const std::pair<Shot, ChartZone> cases[] = {
      {shotAt(21, y, false), ChartZone::UnderBasket},
      {shotAt(118, y, true), ChartZone::Top},
      {shotAt(118, y, false), ChartZone::MidRangeCentre}, // just outside the line, said to be two
      {shotAt(104, y, true), ChartZone::Top},             // just inside, said to be three
      {shotAt(500, -50, true), court::chartZone(court::atEdge({500, -50}))},
  };
  for (const auto& [shot, zone] : cases) {
    const ShotSums sums = shotSums({shot});
    EXPECT_EQ(sums.zones[static_cast<std::size_t>(zone)].made, 1) << shot.x << ',' << shot.y;
    EXPECT_EQ(sumOf(sums, shot.isThree).attempted, 1);
  }
  // A three from just inside the straight line belongs to the corner on its side, not to the top.
  const ShotSums low = shotSums({shotAt(10, 14, true)});
  const ShotSums high = shotSums({shotAt(10, static_cast<float>(court::kWidth) - 14, true)});
  EXPECT_EQ(low.zones[static_cast<std::size_t>(court::chartZone({10, 5}))].made, 1);
  EXPECT_EQ(high.zones[static_cast<std::size_t>(court::chartZone({10, court::kWidth - 5}))].made, 1);
  EXPECT_NE(court::chartZone({10, 5}), court::chartZone({10, court::kWidth - 5}));
  Shot keypad = shotAt(0, 0, true);
  keypad.hasPlace = false;
  EXPECT_EQ(shotSums({keypad}).withoutPlace.attempted, 1);
  EXPECT_EQ(sumOf(shotSums({keypad}), true).attempted, 0);
}

TEST(ZoneRates, AreSetBesideTheAverageOfTheSameZone) {
  ShotSums own;
  own.zones[static_cast<std::size_t>(ChartZone::Paint)] = {3, 4};
  own.zones[static_cast<std::size_t>(ChartZone::Top)] = {1, 3};
  ShotSums average;
  average.zones[static_cast<std::size_t>(ChartZone::Paint)] = {5, 10};
  const std::vector<ZoneRate> rates = zoneRates(own, average);
  ASSERT_EQ(rates.size(), 2U) << "a zone without shots has no rate";
  EXPECT_EQ(rates[0].fraction, "3/4");
  EXPECT_EQ(rates[0].pointsPerShot, "1.50");
  EXPECT_DOUBLE_EQ(rates[0].aboveAverage, 0.5);
  EXPECT_FALSE(rates[0].isFew);
  EXPECT_EQ(rates[1].pointsPerShot, "1.00") << "three points for a shot from there";
  EXPECT_EQ(rates[1].aboveAverage, 0) << "nobody to set it beside";
  EXPECT_TRUE(rates[1].isFew);
}

} // namespace
