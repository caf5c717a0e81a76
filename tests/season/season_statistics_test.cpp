// Who is one player, team or line over a season, and what its cells show in totals and averages.
#include "catalogue/SeasonFolder.h"
#include "season/GameColumns.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

const std::string kStart = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";
const std::string kStop = "99=05:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";

std::string cell(const SeasonRow& row, std::string_view column, SeasonView view) {
  return seasonCell(row, seasonColumn(column).index, view, Texts());
}
std::string shown(const SeasonRow& row, std::string_view column) {
  return cell(row, column, SeasonView::Totals) + " " + cell(row, column, SeasonView::PerGame) + " " +
         cell(row, column, SeasonView::PerMinute);
}
// A game of one team against nobody in particular, with a roster of its own.
std::string gameWith(const std::string& date, const std::string& roster, const std::string& events) {
  return "[DETAILS]\nVERSION=2.0\nTERMINE=1\nDUREE=10\nDATE=" + date +
         "\nEQUIPE0ABB=PAN\nEQUIPE0CAT=A\nEQUIPE1ABB=OLY\nEQUIPE1CAT=A\n[0]\n" + roster +
         "[1]\n7=0,Ida\n[PERIODE1]\n" + events;
}

TEST(SeasonTable, DividesTheTotalsInEachView) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", kStart + "3=09:00,SA,0-4\n4=09:00,SA,0-4\n5=09:00,SA,0-4\n" + kStop);
  season.addGame("2.GAM", "2026-01-02",
                 kStart +
                     "3=09:00,SA,0-4\n4=09:00,GF3,0-4\n5=09:00,GF3A,0-4\n6=08:00,GFG,0-4\n"
                     "7=08:00,GFTA,0-4\n8=07:00,SOR,0-4\n9=07:00,SDR,0-4\n" +
                     kStop);
  season.addGame("3.GAM", "2026-01-03", kStart + "3=09:00,STO,0-4\n4=09:00,GFT,0-12\n" + kStop);
  const SeasonStatistics statistics = season.statistics();
  const SeasonRow& ann = *rowOf(statistics.players(), "Ann Able");
  const std::pair<const char*, const char*> cells[] = {
      {"Ast", "4 1.3 0.27"},      {"G", "3 3 3"},           {"Time", "15:00 05:00 --"},
      {"PTS", "5 1.7 0.33"},      {"TGM", "2 0.7 0.13"},    {"TGA", "4 1.3 0.27"},
      {"%", "50.0% 50.0% 50.0%"}, {"FGM", "2 0.7 0.13"},    {"FG%", "66.7% 66.7% 66.7%"},
      {"FGPTS", "5 1.7 0.33"},    {"F2PTS", "2 0.7 0.13"},  {"DK%", "0.0% 0.0% 0.0%"},
      {"TR", "2 0.7 0.13"},       {"rating", "8 2.7 0.53"}, {"#", "1 1 1"}};
  for (const auto& [column, text] : cells)
    EXPECT_EQ(shown(ann, column), text) << column;
  EXPECT_FALSE(ann.isShort());
  const SeasonRow& hana = *rowOf(statistics.players(), "Hana Hart");
  EXPECT_EQ(shown(hana, "rating"), "0 0.0 0.00");
  SeasonRow clumsy = hana; // a negative average rounds away from zero as well
  clumsy.numbers.counters.counts[static_cast<std::size_t>(Counter::TO)] = 1;
  clumsy.games = 4;
  EXPECT_EQ(cell(clumsy, "rating", SeasonView::PerGame), "-0.3");
}

TEST(SeasonTable, GamesWithoutTimeCountWhoWasOnCourtAndDivideByNothing) {
  SeasonFolder season;
  season.addGame("n.GAM", "2026-01-01", "1=00:00,ARRET,IN-04-05-10-12-15,IN-03\n2=00:00,GFG,0-4\n",
                 "DUREE=0\n");
  const SeasonStatistics statistics = season.statistics();
  const SeasonRow& ann = *rowOf(statistics.players(), "Ann Able");
  EXPECT_EQ(shown(ann, "PTS"), "2 2.0 0.00");
  EXPECT_EQ(shown(ann, "Time"), "00:00 00:00 --");
  EXPECT_TRUE(ann.isShort());
  EXPECT_EQ(rowOf(statistics.players(), "Bea Baker")->games, 1) << "on court, without a count";
  EXPECT_EQ(rowOf(statistics.players(), "Fay Ford"), nullptr) << "in the roster alone is no game";
  ASSERT_EQ(statistics.lines().size(), 1U) << "a line without time and count is none";
  EXPECT_EQ(statistics.lines()[0].name, "4-5-10-12-15");
}

TEST(SeasonRows, APlayerIsHisTeamJerseyAndName) {
  SeasonFolder season;
  const std::string basket = "1=10:00,ARRET,IN-05,IN-07\n2=09:00,GFG,0-5\n3=08:00,GFG,1-7\n";
  season.add("1.GAM", gameWith("2026-01-01", "5=0,Bea \xC9mond\n", basket));
  season.add("2.GAM", gameWith("2026-01-02", "05=1,BEA \xE9MOND\n", basket)); // the same
  season.add("3.GAM", gameWith("2026-01-03", "05=1,Cleo Carter\n", basket));  // her jersey on another
  season.add("4.GAM", gameWith("2026-01-04", "6=1,Bea \xC9mond\n",            // she changed it
                               "1=10:00,ARRET,IN-06,IN-07\n2=09:00,GF3,0-6\n"));
  season.add("5.GAM", gameWith("2026-01-05", "5=2,bea \xE9mond\n", basket));
  const SeasonStatistics statistics = season.statistics();
  ASSERT_EQ(statistics.players().size(), 4U);
  const SeasonRow& bea = *rowOf(statistics.players(), "Bea \xC3\x89mond");
  EXPECT_EQ(bea.number, "5");
  EXPECT_EQ(bea.games, 3);
  EXPECT_EQ(bea.numbers.points(), 6);
  EXPECT_EQ(cell(bea, "Pos", SeasonView::Totals), "Guard") << "of the latest game";
  EXPECT_EQ(cell(bea, "PosHist", SeasonView::Totals), "Center/Forward/Guard");
  EXPECT_EQ(std::ranges::count(statistics.players(), std::string("6"), &SeasonRow::number), 1);
  EXPECT_EQ(rowOf(statistics.players(), "Cleo Carter")->games, 1);
  EXPECT_EQ(rowOf(statistics.players(), "Ida")->games, 5);
}

TEST(SeasonRows, APlayerWhoChangedTeamHasARowInEach) {
  SeasonFolder season;
  std::string game = gameWith("2026-01-01", "5=0,Bea\n", "1=10:00,ARRET,IN-05,IN-07\n");
  season.add("1.GAM", game);
  season.add("2.GAM", game.replace(game.find("CAT=A"), 5, "CAT=B"));
  const SeasonStatistics statistics = season.statistics();
  EXPECT_EQ(std::ranges::count(statistics.players(), std::string("Bea"), &SeasonRow::name), 2);
  EXPECT_EQ(statistics.teams().size(), 3U);
  const SeasonStatistics ofOne = season.statistics({}, {"PAN-B", std::nullopt});
  ASSERT_EQ(ofOne.players().size(), 1U);
  EXPECT_EQ(ofOne.catalogue().teams()[ofOne.players()[0].team].key, "PAN-B");
  EXPECT_EQ(ofOne.teams().size(), 1U);
  EXPECT_TRUE(season.statistics({}, {"NONE-A", std::nullopt}).players().empty());
}

TEST(SeasonRows, ZeroAndDoubleZeroAreTwoPlayersAlsoInLines) {
  SeasonFolder season;
  const std::string roster = "0=0,Zoe\n00=0,Dora\n4=0,Ann\n";
  season.add("1.GAM", gameWith("2026-01-01", roster,
                               "1=10:00,ARRET,IN-00-04,IN-07\n2=09:00,GFG,0-0\n"
                               "3=08:00,ARRET,IN-000-04,IN-07\n4=07:00,GF3,0-00\n"
                               "5=06:00,ARRET,IN-000-04,IN-07\n"));
  // A roster that holds 00 alone: a list writes it with two digits.
  season.add("2.GAM", gameWith("2026-01-02", "00=0,Dora\n04=0,Ann\n",
                               "1=10:00,ARRET,IN-00-04,IN-07\n2=09:00,GF3,0-00\n"
                               "3=09:00,ARRET,IN-00-04,IN-07\n"));
  const SeasonStatistics statistics = season.statistics();
  EXPECT_EQ(rowOf(statistics.players(), "Zoe")->numbers.points(), 2);
  EXPECT_EQ(rowOf(statistics.players(), "Dora")->numbers.points(), 6);
  EXPECT_EQ(rowOf(statistics.players(), "Ann")->games, 2);
  const SeasonRow& withDora = *rowOf(statistics.lines(), "00-4");
  EXPECT_EQ(withDora.games, 2);
  EXPECT_EQ(withDora.numbers.seconds, 180);
  EXPECT_EQ(statistics.catalogue().lines()[withDora.id].list, "IN-000-04");
  const SeasonRow& withZoe = *rowOf(statistics.lines(), "0-4");
  EXPECT_EQ(statistics.catalogue().lines()[withZoe.id].list, "IN-00-04");
  EXPECT_EQ(withZoe.numbers.points(), 2);
}

TEST(SeasonRows, OthersHaveNoRowButTheTeamKeepsTheirPoints) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", kStart + "3=09:00,GFG,0-77\n4=09:00,GF3,0-4\n" + kStop);
  const SeasonStatistics statistics = season.statistics();
  EXPECT_EQ(statistics.players().size(), 10U);
  EXPECT_EQ(statistics.teams()[0].numbers.points(), 5);
  EXPECT_EQ(statistics.teams()[0].pointsFor, 5);
  EXPECT_EQ(statistics.teams()[0].wins, 1);
  EXPECT_EQ(statistics.teams()[1].losses, 1);
  EXPECT_EQ(statistics.teams()[1].pointsAgainst, 5);
  // More different lines than a game keeps: what comes later has no row either.
  std::string roster, events;
  int number = 0;
  for (int a = 1; a <= 15; ++a) {
    roster += std::to_string(a) + "=0,P" + std::to_string(a) + "\n";
    for (int b = a + 1; b <= 15; ++b) {
      const std::string first = std::to_string(a);
      events += std::to_string(++number) + "=10:00,ARRET,IN-" + first + "-" + std::to_string(b) + ",IN-\n";
      events += std::to_string(++number) + "=10:00,SA,0-" + first + "\n";
    }
  }
  SeasonFolder many;
  many.add("m.GAM", gameWith("2026-01-01", roster, events));
  const SeasonStatistics ofMany = many.statistics();
  EXPECT_EQ(ofMany.lines().size(), 100U);
  int assists = 0;
  for (const SeasonRow& row : ofMany.players())
    assists += row.numbers.counters[Counter::Ast];
  EXPECT_EQ(assists, 105);
}

TEST(SeasonRows, RankIsByPointsThenRatingThenNameAndPositionsNarrow) {
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01",
                 kStart + "3=09:00,GFG,0-12\n4=09:00,GFG,0-4\n5=09:00,GFG,0-5\n6=09:00,SA,0-5\n" + kStop);
  const SeasonStatistics all = season.statistics();
  std::vector<std::string> first;
  for (const SeasonRow& row : all.players().first(4))
    first.push_back(std::to_string(row.rank) + " " + row.name);
  EXPECT_EQ(first, (std::vector<std::string>{"1 Bea Baker", "2 Ann Able", "3 Dana Dunn", "4 Cleo Carter"}));
  const SeasonStatistics centers = season.statistics({}, {{}, 0});
  ASSERT_EQ(centers.players().size(), 4U);
  EXPECT_EQ(centers.players()[0].name, "Ann Able");
  EXPECT_EQ(centers.players()[0].rank, 1);
}

TEST(SeasonRows, AnImpossibleClockOrPlaceDoesNoHarm) {
  SeasonFolder season;
  season.addGame("1.GAM", "not a day",
                 "1=05:00,ARRET,IN-04-05,IN-03\n2=09:00,ARRET,IN-04-05,IN-03\n"
                 "3=09:00,GFG,0-4,-5,900\n4=nonsense\n");
  const SeasonStatistics statistics = season.statistics();
  EXPECT_EQ(rowOf(statistics.players(), "Ann Able")->numbers.seconds, 0);
  const SeasonShot& shot = season.scan().games()[0].shots.at(0);
  EXPECT_EQ(int{shot.x}, 0);
  EXPECT_EQ(int{shot.y}, 200);
  EXPECT_TRUE(shot.isMade);
}

TEST(SeasonColumns, AreThoseOfTheTables) {
  const Texts texts;
  std::string headers;
  for (const char* column : {"No", "Name", "Time", "rating", "TGM", "F3%", "F3PTS", "PosHist"})
    headers += seasonHeader(seasonColumn(column).index, SeasonTable::Players, texts) + " ";
  EXPECT_EQ(headers, "No Player Name Time Rat. TGM F3% PTS PosHist ");
  EXPECT_EQ(seasonHeader(kNameColumn, SeasonTable::Lines, texts), texts.text(Text::Line));
  EXPECT_EQ(seasonWidthTwips(kNameColumn, SeasonTable::Lines), 3087);
}

} // namespace
