// What a team's and a player's page say beyond sums: splits, players together, on and off court, hexagons.
#include "catalogue/SeasonFolder.h"
#include "season/ShotHexagons.h"
#include "season/TeamStudy.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

// Two lines of PAN: 12 sits from 06:00 on, and 0 plays for her.
const std::string kGame = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                          "2=09:00,GF3,0-4,100,100\n"
                          "3=08:00,GFG,1-7,20,100\n"
                          "4=06:00,ARRET,IN-00-04-05-10-15,IN-03-07-08-11-22\n"
                          "5=05:00,GFG,0-0,20,100\n"
                          "6=04:00,GFT,1-7\n"
                          "7=03:00,GFG,0-4,20,100\n"
                          "9=00:00,ARRET,IN-00-04-05-10-15,IN-03-07-08-11-22\n";

TEST(TeamStudy, PlayersTogetherAreSummedOverTheirLines) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", kGame);
  season.addGame("2.GAM", "2026-01-02", kGame);
  const SeasonStatistics statistics = season.statistics();
  const SeasonId pan = *season.catalogue().teamOf("PAN-A");
  const auto fives = combinationsOf(statistics, pan, 5);
  ASSERT_EQ(fives.size(), 2U);
  EXPECT_EQ(fives[0].share.seconds, 2 * 6 * 60) << "the longest together first";
  EXPECT_EQ(fives[0].share.plusMinus(kOwnSide), 2 * (4 - 1));
  EXPECT_EQ(fives[1].share.plusMinus(kOwnSide), 2 * (3 - 2));
  const auto pairs = combinationsOf(statistics, pan, 2);
  ASSERT_EQ(pairs.size(), 14U) << "all of six but 0 and 12";
  EXPECT_EQ(pairs[0].share.seconds, 2 * 10 * 60);
  EXPECT_EQ(combinationName(season.catalogue(), pairs[0]), "4 Able, 5 Baker");
}

TEST(TeamStudy, OnAndOffTogetherAreTheGamesThatHePlayedIn) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", kGame);
  season.addGame("2.GAM", "2026-01-02",
                 "1=10:00,ARRET,IN-04,IN-07\n2=09:00,GFG,1-7\n3=08:00,ARRET,IN-04,IN-07\n");
  const SeasonStatistics statistics = season.statistics();
  const auto sitting = std::ranges::find(statistics.players(), std::string("12"), &SeasonRow::number);
  ASSERT_NE(sitting, statistics.players().end());
  EXPECT_EQ(sitting->plusMinus(), 1);
  const auto results = statistics.resultsOfPlayer(sitting->id);
  const SeasonOnOff both = onOffOf(season.catalogue(), results);
  EXPECT_EQ(both.on.points(kOwnSide), 3);
  EXPECT_EQ(both.off.points(kOwnSide), 4);
  EXPECT_EQ(both.off.points(otherSide(kOwnSide)), 1) << "without the game in which she did not play";
}

TEST(TeamStudy, SplitsAreThoseOfTheTeam) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", kGame);
  season.addGame("2.GAM", "2026-01-02",
                 "1=10:00,ARRET,IN-04,IN-07\n2=09:00,GFG,1-7\n3=08:00,ARRET,IN-04,IN-07\n");
  const SeasonStatistics statistics = season.statistics();
  std::string told;
  for (const TeamSplit& split : splitsOf(statistics, *season.catalogue().teamOf("OLY-A")))
    told += balanceText(split.balance) + " " + std::to_string(split.pointsFor) + ", ";
  EXPECT_EQ(told, "1–1 5, 1–0 2, 0–1 3, 1–1 5, 0–0 0, 1–1 5, ");
  EXPECT_EQ(gamesOfTeam(statistics, *season.catalogue().teamOf("OLY-A")), (std::vector<std::size_t>{1, 0}));
}

TEST(TeamStudy, ACourseIsOfTheGamesFromEventsAndOfTheirPeriods) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", kGame + "[PERIODE2]\n20=09:00,STO,1-7\n21=08:00,GFG,0-4,20,100\n");
  season.addGame("2.GAM", "2026-01-02", kGame, "INPUTTYPE=1\n");
  const SeasonStatistics statistics = season.statistics();
  const TeamCourse pan = courseOf(statistics, *season.catalogue().teamOf("PAN-A"));
  EXPECT_EQ(pan.games, 1);
  ASSERT_EQ(pan.periods.size(), 2U) << "the others were not played";
  EXPECT_EQ(pan.periods[0].pointsFor, 7);
  EXPECT_EQ(pan.periods[0].pointsAgainst, 3);
  EXPECT_EQ(pan.periods[1].pointsFor, 2);
  EXPECT_EQ(pan.paint, 6);
  EXPECT_EQ(pan.fromTurnovers, 2);
  const auto starts = [&](const char* name) {
    return startsOf(statistics, rowOf(statistics.players(), name)->id);
  };
  EXPECT_EQ(starts("Dana Dunn"), 1) << "not in the game of totals";
  EXPECT_EQ(starts("Fay Ford"), 0) << "who came in for her";
  const ShotSums against =
      shotsAgainst(season.catalogue(), statistics.games(), *season.catalogue().teamOf("PAN-A"));
  int made = 0;
  for (const ZoneSum& zone : against.zones)
    made += zone.made;
  EXPECT_EQ(made, 2) << "of Ida alone, in both games";
}

TEST(ShotHexagons, CompareEachPlaceWithWhatAllGetFromThere) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01",
                 "1=10:00,ARRET,IN-04,IN-07\n2=09:00,GFG,0-4,20,100\n3=09:00,GFG,0-4,21,101\n"
                 "4=09:00,GFGA,0-5,20,100\n5=09:00,GFGA,0-5,20,100\n6=08:00,GF3,0-4,100,100\n"
                 "7=08:00,ARRET,IN-04,IN-07\n");
  const SeasonStatistics statistics = season.statistics();
  const SeasonRow& ann = *rowOf(statistics.players(), "Ann Able");
  const ShotSums usual = shotsOfGames(season.catalogue(), statistics.games());
  auto shots =
      hexagonsOfPlayer(season.catalogue(), statistics.resultsOfPlayer(ann.id), ann.id, usual).hexagons();
  ASSERT_EQ(shots.size(), 2U) << "two neighbouring shots are one hexagon";
  std::ranges::sort(shots, {}, &ShotHexagon::attempted);
  EXPECT_EQ(shots[0].points, 3);
  EXPECT_NEAR(shots[0].difference(), 0, 1e-9) << "the only one from there";
  EXPECT_EQ(shots[1].points, 4);
  EXPECT_NEAR(shots[1].difference(), 1, 1e-9) << "two points a shot, one is usual";
  const auto ofTeam = hexagonsOfTeam(season.catalogue(), statistics.games(), ann.team, usual);
  EXPECT_EQ(ofTeam.mostAttempts(), 4) << "her own and those of the others";
  EXPECT_TRUE(hexagonsOfTeam(season.catalogue(), statistics.games(), ann.team + 1, usual).hexagons().empty());
}

} // namespace
