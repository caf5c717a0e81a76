#include "season/SeasonDesk.h"

#include "season/GameSeries.h"
#include "season/LeaderBoards.h"
#include "season/SeasonWords.h"
#include "storage/CalendarDay.h"
#include "storage/FileSystem.h"

#include <gtest/gtest.h>
#include <set>

#include "catalogue/SeasonFolder.h"

namespace hooptab {
namespace {

constexpr const char* kInAndStart = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";

// Three games of PAN and OLY; the third is a copy of the second.
class SeasonDeskTest : public testing::Test {
 protected:
  SeasonDeskTest() {
    const std::string start = kInAndStart;
    folder.addGame("a.GAM", "2026-01-10", start + "3=09:50,GFG,0-4,20,100\n4=09:40,GFGA,0-4,20,100\n");
    const std::string later = start + "3=09:00,GF3,1-7,10,5\n4=08:00,GFT,0-4\n";
    folder.addGame("b.GAM", "2026-01-17", later);
    folder.addGame("c.GAM", "2026-01-17", later);
    (void)folder.folder().write("broken.GAM", "no game");
  }
  std::shared_ptr<const GameCatalogue> scanned(const SeasonFolder& of) {
    auto catalogue = std::make_shared<GameCatalogue>(files);
    EXPECT_EQ(catalogue->scan({of.folder().path(), false, 1}), ScanOutcome::Done);
    return catalogue;
  }
  void readAndGenerate() {
    desk.takeCatalogue(scanned(folder));
    generate();
  }
  void generate() {
    const SeasonDesk::Order order = desk.order();
    desk.takeSeason(order.carryOut(texts), order, texts);
  }

  SeasonFolder folder;
  FileSystem files;
  Texts texts;
  SeasonDesk desk;
};

TEST_F(SeasonDeskTest, OffersWhatCanBeDone) {
  EXPECT_FALSE(desk.canGenerate());
  SeasonChoice choice;
  choice.games.team = "PAN-A";
  EXPECT_FALSE(desk.canApply(choice)) << "no folder was read";
  desk.takeCatalogue(scanned(folder));
  EXPECT_EQ(desk.listed().size(), 3U);
  EXPECT_TRUE(desk.canGenerate());
  choice.games.team.clear();
  EXPECT_FALSE(desk.canApply(choice)) << "it is in force already";
  choice.games.countsCopiesOnce = true;
  EXPECT_TRUE(desk.canApply(choice));
  desk.apply(choice);
  EXPECT_EQ(desk.listed().size(), 2U);
  EXPECT_FALSE(desk.canApply(choice));
  choice.games.fromDay = calendarDay("2030-01-01");
  desk.apply(choice);
  EXPECT_FALSE(desk.canGenerate()) << "nothing is listed";
}

TEST_F(SeasonDeskTest, KnowsWhenStatisticsAreOfAnotherSelection) {
  desk.takeCatalogue(scanned(folder));
  EXPECT_FALSE(desk.isOutdated()) << "there are none";
  generate();
  EXPECT_FALSE(desk.isOutdated());
  SeasonChoice choice;
  choice.games.team = "OLY-A"; // every game is of both, but other rows would be shown
  desk.apply(choice);
  EXPECT_TRUE(desk.isOutdated());
  generate();
  EXPECT_FALSE(desk.isOutdated());
  for (const SeasonRow& row : desk.season()->statistics().players())
    EXPECT_EQ(desk.catalogue()->teams()[row.team].key, "OLY-A") << row.name;
  choice.games.countsCopiesOnce = true;
  desk.apply(choice);
  EXPECT_TRUE(desk.isOutdated());
}

TEST_F(SeasonDeskTest, AnotherFolderKeepsTheCriteriaThatHoldThere) {
  readAndGenerate();
  SeasonChoice choice;
  choice.games.team = "PAN-A";
  choice.games.countsCopiesOnce = true;
  desk.apply(choice);
  SeasonFolder other;
  other.addGame("x.GAM", "2026-02-01", kInAndStart, "EQUIPE0ABB=LYNX\n");
  desk.takeCatalogue(scanned(other));
  EXPECT_EQ(desk.choice().games.team, "") << "PAN did not play there";
  EXPECT_TRUE(desk.choice().games.countsCopiesOnce);
  EXPECT_EQ(desk.listed().size(), 1U);
  EXPECT_EQ(desk.season(), nullptr);
}

TEST_F(SeasonDeskTest, SumsShotsByZone) {
  readAndGenerate();
  const Season& season = *desk.season();
  const auto zone = [](const ShotSums& sums, court::ChartZone which) {
    return sums.zones[static_cast<std::size_t>(which)];
  };
  using court::ChartZone;
  EXPECT_EQ(zone(season.shots(), ChartZone::UnderBasket).attempted, 2);
  EXPECT_EQ(zone(season.shots(), ChartZone::UnderBasket).made, 1);
  const auto ofTeam = [&](const char* key) {
    return shotsOfTeam(season.catalogue(), season.statistics().games(), *season.catalogue().teamOf(key));
  };
  const ShotSums visitors = ofTeam("PAN-A"), home = ofTeam("OLY-A");
  EXPECT_EQ(zone(visitors, ChartZone::UnderBasket).attempted, 2);
  EXPECT_EQ(zone(home, ChartZone::UnderBasket).attempted, 0);
  EXPECT_EQ(zone(home, ChartZone::RightCorner).made + zone(home, ChartZone::LeftCorner).made, 2);
  for (std::size_t i = 0; i < home.zones.size(); ++i)
    EXPECT_EQ(visitors.zones[i].attempted + home.zones[i].attempted, season.shots().zones[i].attempted) << i;
  const SeasonRow* able = rowOf(season.statistics().players(), "Ann Able");
  ASSERT_NE(able, nullptr);
  const SeasonPerson person(desk.season(), *able, false, texts);
  ASSERT_TRUE(person.shots);
  EXPECT_EQ(zone(*person.shots, ChartZone::UnderBasket).made, 1);
  EXPECT_EQ(person.results.size(), 3U);
  GameDetails game;
  game.abbreviation = {"PAN", "LYNX"};
  game.category = {"A", "A"};
  EXPECT_EQ(zone(*desk.shotsBeside(game, Side::Visitor), ChartZone::UnderBasket).made, 1);
  EXPECT_FALSE(desk.shotsBeside(game, Side::Home)) << "it did not play here";
  EXPECT_EQ(zone(*desk.shotsBeside(game, std::nullopt), ChartZone::UnderBasket).attempted, 2);
  EXPECT_FALSE(SeasonDesk().shotsBeside(game, std::nullopt));
  EXPECT_DOUBLE_EQ(differenceInPoints({3, 4}, {1, 2}), 25);
  EXPECT_DOUBLE_EQ(differenceInPoints({0, 4}, {1, 2}), -50);
  EXPECT_DOUBLE_EQ(differenceInPoints({0, 0}, {1, 2}), 0) << "no attempts say nothing";
}

TEST_F(SeasonDeskTest, CardsHaveTheFirstOfEachStatistic) {
  FileSystem disk;
  ProfileStore store{disk};
  const Settings settings(store, "/nowhere");
  desk.setMinimum({0, 0, 1}, texts);
  readAndGenerate();
  const auto first = [&](const std::string& title) -> std::string {
    for (const LeaderBoard& board : leaderBoards(*desk.season(), SeasonView::PerGame, settings, texts)) {
      if (board.title == title)
        return board.leaders.empty() ? "nobody" : board.leaders[0].row->name + " " + board.leaders[0].value;
    }
    return "no card";
  };
  EXPECT_EQ(first("2-point %"), "nobody") << "two attempts in three games";
  desk.setMinimum({0, 0, 0}, texts);
  EXPECT_EQ(first("2-point %"), "Ann Able 50.0");
  EXPECT_EQ(first("Your own rating (HEART)"), "no card");
  desk.setOwnRating({"HEART", "FT", [](const RatedNumbers& of) { return of.box.counters[Counter::FTM]; }},
                    texts);
  EXPECT_EQ(first("Your own rating (HEART)"), "Ann Able 0.7");
}

TEST_F(SeasonDeskTest, FollowsAStatisticGameByGame) {
  readAndGenerate();
  const SeasonStatistics& statistics = desk.season()->statistics();
  const SeasonRow* able = rowOf(statistics.players(), "Ann Able");
  ASSERT_NE(able, nullptr);
  const auto results = statistics.resultsOfPlayer(able->id);
  const GameSeries points = seriesOfStatistic(results, seasonColumn("PTS").index);
  ASSERT_EQ(points.points.size(), 3U);
  EXPECT_EQ(points.points[0].value, 2);
  EXPECT_EQ(points.points[2].value, 1);
  EXPECT_DOUBLE_EQ(*points.average, 4 / 3.0);
  const GameSeries percent = seriesOfStatistic(results, seasonColumn("F2%").index);
  EXPECT_EQ(percent.points[0].value, 0.5);
  EXPECT_FALSE(percent.points[1].value) << "no attempts in that game";
  EXPECT_DOUBLE_EQ(*percent.average, 0.5) << "of all attempts, not of the games' percentages";
  EXPECT_FALSE(seriesOfStatistic(results, seasonColumn("DK%").index).average);
  const GameSeries margins = seriesOfMargins(statistics, *desk.catalogue()->teamOf("OLY-A"));
  ASSERT_EQ(margins.points.size(), 3U);
  EXPECT_EQ(margins.points[0].value, -2);
  EXPECT_EQ(margins.points[1].value, 2);
  EXPECT_DOUBLE_EQ(*margins.average, 2 / 3.0);
}

// Every column says what it holds, and no two say the same: they are chosen by these words.
TEST(SeasonWords, TellTheColumnsApart) {
  const TemporaryFolder place;
  FileSystem files;
  ProfileStore store{files};
  const Settings settings(store, place.path());
  Texts texts;
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    std::set<std::string> words;
    for (const SeasonColumn& column : seasonColumns()) {
      const std::string text = seasonColumnWords(column.index, settings, texts);
      EXPECT_GT(text.size(), 3U) << column.name;
      EXPECT_TRUE(words.insert(text).second) << column.name << ": " << text;
    }
  }
}

} // namespace
} // namespace hooptab
