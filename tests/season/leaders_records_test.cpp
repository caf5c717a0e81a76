// Leaders with their ties, and the records of one player over a season.
#include "catalogue/SeasonFolder.h"
#include "season/Leaders.h"
#include "season/Records.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

SeasonRow player(const std::string& name, int assists, int games, int seconds = 600) {
  SeasonRow row;
  row.name = name;
  row.games = games;
  row.numbers.seconds = seconds;
  row.numbers.counters.counts[static_cast<std::size_t>(Counter::Ast)] = assists;
  return row;
}

std::string leadersIn(std::string_view statistic, const std::vector<SeasonRow>& rows, SeasonView view) {
  const Leaders leaders(rows, view, Texts());
  const auto found =
      std::ranges::find(leaders.statistics(), seasonColumn(statistic).index, &StatisticLeaders::column);
  if (found == leaders.statistics().end())
    return "no such statistic";
  std::string text;
  for (const Leader& leader : found->leaders)
    text += std::to_string(leader.rank) + leader.row->name + "=" + leader.value + " ";
  return text;
}

TEST(Leaders, EqualValuesShareARankOrderedByFewerGamesThenName) {
  const std::vector<SeasonRow> rows = {player("Dee", 4, 2), player("Ann", 9, 3), player("Bea", 9, 2),
                                       player("Cyd", 9, 3), player("Eve", 0, 1)};
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::Totals), "1Bea=9 1Ann=9 1Cyd=9 4Dee=4 ");
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::PerGame), "1Bea=4.5 2Ann=3.0 2Cyd=3.0 4Dee=2.0 ");
  // Exact averages are compared, not the rounded ones.
  const std::vector<SeasonRow> thirds = {player("Ann", 33, 100), player("Bea", 1, 3), player("Cyd", 2, 6)};
  EXPECT_EQ(leadersIn("Ast", thirds, SeasonView::PerGame), "1Bea=0.3 1Cyd=0.3 3Ann=0.3 ");
}

TEST(Leaders, APlaceIsAmongThoseWhoHavePlayedEnough) {
  std::vector<SeasonRow> rows = {player("Ann", 9, 3), player("Bea", 20, 3), player("Cyd", 9, 3),
                                 player("Dee", 90, 1), player("Eve", 0, 3)};
  for (SeasonRow& row : rows)
    row.teamGames = 3; // Dee played one of three
  const auto place = [&](std::size_t who) {
    const auto found = placeOf(rows[who], rows, {}, [](const SeasonRow& row) -> std::optional<double> {
      return row.name == "Eve"
                 ? std::nullopt
                 : std::optional(seasonSortValue(row, seasonColumn("Ast").index, SeasonView::PerGame));
    });
    return found ? std::to_string(found->place) + "/" + std::to_string(found->of) : "none";
  };
  EXPECT_EQ(place(0), "2/3");
  EXPECT_EQ(place(1), "1/3");
  EXPECT_EQ(place(2), "2/3");
  EXPECT_EQ(place(3), "none");
  EXPECT_EQ(place(4), "none");
}

TEST(Leaders, TheFirstTenAndThoseTiedWithTheTenth) {
  std::vector<SeasonRow> rows;
  for (int i = 0; i < 9; ++i)
    rows.push_back(player(std::string(1, static_cast<char>('A' + i)), 20 - i, 1));
  for (const char* name : {"x", "y", "z"})
    rows.push_back(player(name, 5, 1));
  rows.push_back(player("last", 4, 1));
  const std::string leaders = leadersIn("Ast", rows, SeasonView::Totals);
  EXPECT_TRUE(leaders.ends_with("10x=5 10y=5 10z=5 ")) << leaders;
}

TEST(Leaders, PerMinuteNeedTimeAndNobodyLeadsInTimeThere) {
  const std::vector<SeasonRow> rows = {player("Ann", 3, 1, 60), player("Bea", 50, 1, 0)};
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::PerMinute), "1Ann=3.00 ");
  EXPECT_EQ(leadersIn("Time", rows, SeasonView::PerMinute), "no such statistic");
  EXPECT_EQ(leadersIn("Time", rows, SeasonView::Totals), "1Ann=01:00 ");
  // A negative rating leads nothing.
  std::vector<SeasonRow> bad = {player("Ann", 0, 1)};
  bad[0].numbers.counters.counts[static_cast<std::size_t>(Counter::TO)] = 2;
  EXPECT_EQ(leadersIn("rating", bad, SeasonView::Totals), "");
}

TEST(Leaders, NeedWhatTheirLeagueAsksFor) {
  std::vector<SeasonRow> rows = {player("Ann", 20, 7, 7 * 600), player("Bea", 9, 1, 8),
                                 player("Cyd", 30, 10, 6600)};
  for (SeasonRow& row : rows)
    row.teamGames = 10;
  const auto shoot = [&](std::size_t row, int made, int attempted) {
    auto& counts = rows[row].numbers.counters.counts;
    counts[static_cast<std::size_t>(Counter::FTM)] = made;
    counts[static_cast<std::size_t>(Counter::FTA)] = attempted;
  };
  shoot(0, 15, 20);
  shoot(1, 1, 1);
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::Totals), "1Cyd=30 2Ann=20 3Bea=9 ");
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::PerGame), "1Cyd=3.0 2Ann=2.9 ");
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::PerMinute), "1Cyd=0.27 ") << "eight seconds are no minutes";
  EXPECT_EQ(leadersIn("Ast", rows, SeasonView::PerForty), "1Cyd=10.9 ");
  EXPECT_EQ(leadersIn("FT%", rows, SeasonView::Totals), "1Ann=75.0% ") << "one of one leads nothing";
  EXPECT_EQ(leadersIn("FTA", rows, SeasonView::Totals), "no such statistic");
  const Qualification none{0, 0, 0};
  EXPECT_FALSE(none.isUnder(rows[1], SeasonTable::Players, SeasonView::PerMinute));
  EXPECT_TRUE(none.isUnder(rows[1], SeasonTable::Lines, SeasonView::PerForty)) << "lines have their own";
}

TEST(Leaders, ARatingOfTheUsersOwnIsAskedOfTheSumsAndAveraged) {
  SeasonRating own{"HEART", "AST + 2*FD", [](const RatedNumbers& of) -> std::optional<double> {
                     return of.extras
                                ? std::optional(of.box.counters[Counter::Ast] + 2.0 * of.extras->foulsDrawn)
                                : std::nullopt;
                   }};
  std::vector<SeasonRow> rows = {player("Ann", 10, 4, 1200), player("Bea", 20, 4), player("Cyd", 0, 4)};
  rows[0].extras = PlayerExtras{6, 0};
  rows[2].extras = PlayerExtras{0, 3};
  EXPECT_EQ(own.text(rows[0], SeasonView::Totals), "22.0");
  EXPECT_EQ(own.text(rows[0], SeasonView::PerGame), "5.5");
  EXPECT_EQ(own.text(rows[0], SeasonView::PerMinute), "1.10");
  EXPECT_EQ(own.text(rows[0], SeasonView::PerForty), "44.0");
  EXPECT_EQ(own.text(rows[1], SeasonView::Totals), "–") << "nobody counted her fouls drawn";
  const Leaders leaders(rows, SeasonView::PerGame, Texts(), {}, own);
  const StatisticLeaders& last = leaders.statistics().back();
  ASSERT_EQ(last.column, kSeasonOwnColumn);
  ASSERT_EQ(last.leaders.size(), 1U) << "0 leads nothing";
  EXPECT_EQ(last.leaders[0].row->name + last.leaders[0].value, "Ann5.5");
}

TEST(Records, KeepTheBestAndSayWhereItWasReachedLast) {
  const std::string start = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";
  const auto stop = [](const std::string& clock) {
    return "99=" + clock + ",ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";
  };
  SeasonFolder season;
  season.addGame("1.GAM", "2026-01-01", start + "3=09:00,GF3,0-4\n4=09:00,STO,0-4\n" + stop("08:30"),
                 "EQUIPE1NOM=Olympians\n");
  season.addGame("2.GAM", "2026-01-02", start + "3=09:00,GFG,0-4\n4=09:00,GFT,0-4\n" + stop("08:30"));
  season.addGame("3.GAM", "2026-01-03", start + "3=09:00,GFT,0-4\n" + stop("08:29"));
  season.addGame("4.GAM", "2026-01-04", start + "3=09:00,GFG,0-5\n"); // four is on court and does nothing
  const SeasonStatistics statistics = season.statistics();
  const SeasonRow& ann = *rowOf(statistics.players(), "Ann Able");
  const std::vector<GameResult> results = statistics.resultsOfPlayer(ann.id);
  ASSERT_EQ(results.size(), 4U);
  const Texts texts;
  Records records;
  for (const Record& record : records.records())
    EXPECT_EQ(record.text() + record.where, "");
  for (const GameResult& result : results)
    records.add(statistics.catalogue(), result, texts);
  const auto text = [&](std::string_view what) {
    const auto found = std::ranges::find(records.records(), what, &Record::what);
    return std::string(found->key) + " " + found->text() + " " + found->where;
  };
  EXPECT_EQ(text("PT"), "R0 3 +2026-01-02 Olympians");
  EXPECT_EQ(text("RAT"), "R1 3 2026-01-02 Olympians") << "the first had a turnover: 2";
  EXPECT_EQ(text("TIME"), "R2 01:31 2026-01-03 Olympians");
  EXPECT_EQ(text("Made"), "R3 2 2026-01-02 Olympians");
  EXPECT_EQ(text("3PT"), "R6 1 2026-01-01 Olympians");
  EXPECT_EQ(text("FT"), "R7 1 +2026-01-03 Olympians");
  EXPECT_EQ(text("FG"), "R8 1 +2026-01-02 Olympians");
  EXPECT_EQ(text("DK"), "R12  ");
  EXPECT_EQ(records.records().back().key, "R21");
  // The rows from which WHERE is taken.
  std::string row;
  for (int column = 1; column <= 8; ++column)
    row += resultHeader(column, texts) + "=" + resultCell(statistics.catalogue(), results[1], column, texts) +
           "|";
  EXPECT_EQ(row, "Date=2026-01-02|Where=Away|Results=W 3-0|Opponent=Olympians|Time=01:30|PF=0|TF=0|Rat.=3|");
  EXPECT_EQ(seasonColumnOfResult(resultColumnCount()), countColumns().back());
  const SeasonRow& line = *rowOf(statistics.lines(), "4-5-10-12-15");
  const std::vector<GameResult> ofLine = statistics.resultsOfLine(line.id);
  ASSERT_EQ(ofLine.size(), 4U);
  EXPECT_EQ(ofLine[3].numbers.points(), 2);
}

} // namespace
