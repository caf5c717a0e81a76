#include "report/SeasonReports.h"

#include "catalogue/SeasonFolder.h"
#include "report/ReportGame.h"
#include "report/ReportText.h"
#include "report/ReportWords.h"
#include "season/Leaders.h"
#include "season/SeasonColumns.h"
#include "storage/DelimitedText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace hooptab {
namespace {

class SeasonReportTest : public testing::Test {
 protected:
  SeasonReportTest() {
    folder.addGame("a.GAM", "2026-10-02",
                   "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=09:00,GFG,0-4,40,50\n"
                   "3=08:00,GF3,0-5,100,90\n4=07:00,SPF,1-3\n5=00:00,ARRET,IN-,IN-\n");
    folder.addGame("b.GAM", "2026-10-09",
                   "1=10:00,ARRET,IN-04-05-10-12-00,IN-03-07-08-11-22\n2=09:00,GFG,0-4,40,50\n"
                   "3=08:30,GFGA,0-4,40,50\n4=08:00,GFT,1-7\n5=04:00,ARRET,IN-,IN-\n");
  }
  static const ReportCell& cell(const ReportTable& table, const ReportRow& row, std::string_view column) {
    const auto found = std::ranges::find(table.columns, column, &ReportColumn::name);
    EXPECT_NE(found, table.columns.end()) << column;
    return row.cells.at(static_cast<std::size_t>(found - table.columns.begin()));
  }

  SeasonFolder folder;
  FileSystem files;
  ProfileStore store{files};
  Settings settings{store, "/nowhere"};
  Texts texts;
};

// Between two reports every counted column stands once, each cell as the season's table shows it.
TEST_F(SeasonReportTest, TheRowsOfPlayersAndLinesAreThoseOfTheSeason) {
  const SeasonStatistics season = folder.statistics();
  const SeasonReportChoice everybody = {std::nullopt, std::nullopt, {0, 0, 0}}; // under no minimum
  for (const auto& [shots, other, rows] :
       {std::tuple(SeasonReport::PlayerShots, SeasonReport::PlayerOther, season.players()),
        std::tuple(SeasonReport::LineShots, SeasonReport::LineOther, season.lines())}) {
    std::set<std::string> counted;
    for (const SeasonReport which : {shots, other}) {
      const Report report = seasonReport(which, season, everybody, settings, texts);
      ASSERT_EQ(tables(report).size(), rows.data() == season.players().data() ? 4U : 3U);
      for (const SeasonView view : kSeasonViews) {
        if (static_cast<std::size_t>(view) >= tables(report).size())
          break;
        const ReportTable& table = *tables(report)[static_cast<std::size_t>(view)];
        ASSERT_EQ(table.rows.size(), rows.size());
        std::vector<std::string> printed(rows.size());
        std::vector<std::string> shown(rows.size());
        for (const ReportColumn& column : table.columns) {
          if (column.isRepeated)
            continue;
          const int index = seasonColumn(column.name).index;
          if (index > kGamesColumn && view == SeasonView::Totals) {
            EXPECT_TRUE(counted.insert(column.name).second) << column.name;
          }
          for (std::size_t row = 0; row < rows.size(); ++row) {
            printed[row] += cell(table, table.rows[row], column.name).text + '|';
            shown[row] += seasonCell(rows[row], index, view, texts) + '|';
          }
        }
        if (view != SeasonView::Totals) { // those are ranked anew
          if (which == SeasonReport::PlayerShots) {
            EXPECT_TRUE(std::ranges::is_sorted(table.rows, std::ranges::greater(), [&](const ReportRow& row) {
              return std::stod(cell(table, row, "PTS").text);
            })) << table.title;
          }
          std::ranges::sort(printed);
          std::ranges::sort(shown);
        }
        EXPECT_EQ(printed, shown);
        for (const ReportRow& row : table.rows)
          ASSERT_EQ(row.cells.size(), table.columns.size());
      }
    }
    EXPECT_EQ(counted.size(), countColumns().size());
  }
}

TEST_F(SeasonReportTest, EveryReportHasItsRowsInBothLanguages) {
  const SeasonStatistics season = folder.statistics();
  SeasonReportChoice choice;
  choice.team = folder.scan().teamOf("PAN-A");
  choice.minimum = {0, 0, 0}; // these games are short
  const SeasonReportChoice nobody = {std::nullopt, std::nullopt, choice.minimum};
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    for (const SeasonReportName& name : seasonReports()) {
      const bool isOfLine = name.report == SeasonReport::Line;
      const bool isOfOne = isOfPerson(name.report) || isOfTeam(name.report);
      choice.chosen = isOfLine ? season.lines().front().id : season.players().front().id;
      const Report report = seasonReport(name.report, season, choice, settings, texts);
      EXPECT_FALSE(tables(report).empty()) << name.word;
      EXPECT_NE(report.subject.find("2026-10-02 – 2026-10-09"), std::string::npos) << report.subject;
      for (const ReportTable* table : tables(report)) {
        EXPECT_FALSE(table->rows.empty()) << table->title;
        for (const ReportRow& row : table->rows)
          ASSERT_EQ(row.cells.size(), table->columns.size()) << table->title;
      }
      EXPECT_EQ(tables(seasonReport(name.report, season, nobody, settings, texts)).empty(), isOfOne);
      for (const ReportFile& file : reportCsv(report))
        EXPECT_GE(parseDelimited(file.bytes).size(), 2U);
    }
  }
}

TEST_F(SeasonReportTest, ThePerformanceOfAPlayerHoldsHisGamesAndRecords) {
  const SeasonStatistics season = folder.statistics();
  const SeasonReportChoice ann = {std::nullopt, rowOf(season.players(), "Ann Able")->id, {}};
  const Report report = seasonReport(SeasonReport::Player, season, ann, settings, texts);
  EXPECT_EQ(report.title, texts.text(Text::PlayerPerformance));
  const ReportTable& results = *tables(report).back();
  ASSERT_EQ(results.rows.size(), 2U);
  EXPECT_EQ(cell(results, results.rows[0], "Date").text, "2026-10-02");
  EXPECT_EQ(cell(results, results.rows[1], "F2A").text, "2");
  EXPECT_DOUBLE_EQ(cell(results, results.rows[1], "F2%").value, 0.5);
  const auto ofAnn = tables(report);
  const auto isOfRecords = [&](const ReportTable* table) {
    return table->title == texts.text(Text::PersonalRecords);
  };
  EXPECT_TRUE(std::ranges::any_of(ofAnn, isOfRecords));
  const Report leaders = seasonReport(SeasonReport::LeadersTotal, season, ann, settings, texts);
  const auto all = tables(leaders);
  const auto of = std::ranges::find(all, "Points scored", &ReportTable::title);
  ASSERT_NE(of, all.end());
  const ReportTable& points = **of;
  EXPECT_EQ(points.rows[0].cells[1].text, "4 Ann Able");
  EXPECT_EQ(reportCsv(leaders).size(), 1U) << "one table of text for all statistics";
  EXPECT_EQ(points.rows[0].emphasis, ReportRow::Emphasis::Highlighted);
  EXPECT_EQ(points.rows[1].emphasis, ReportRow::Emphasis::None);
}

TEST_F(SeasonReportTest, APlayersPageSplitsHisGamesAndMarksTheBestOfEach) {
  const SeasonStatistics season = folder.statistics();
  const SeasonReportChoice ann = {std::nullopt, rowOf(season.players(), "Ann Able")->id, {}};
  const Report report = seasonReport(SeasonReport::PlayerSheet, season, ann, settings, texts);
  EXPECT_TRUE(report.isOnePage);
  const auto all = tables(report);
  ASSERT_EQ(all.size(), 5U);
  EXPECT_EQ(cell(*all[0], all[0]->rows[0], "PTS").text, "2.0");
  EXPECT_EQ(cell(*all[0], all[0]->rows[0], "eFG%").text, "66.7%");
  EXPECT_EQ(cell(*all[1], all[1]->rows[1], "2P").text, "1/2");
  EXPECT_FALSE(cell(*all[1], all[1]->rows[1], "rating").isStrong);
  EXPECT_TRUE(cell(*all[1], all[1]->rows[0], "rating").isStrong);
  EXPECT_EQ(cell(*all[2], all[2]->rows[0], "pointsPerShot").text, "1.33");
  std::string splits;
  for (const ReportRow& row : all[3]->rows)
    splits += row.cells[0].text + ' ' + row.cells[1].text + ';';
  EXPECT_EQ(splits, "Away 2;In wins 2;");
  EXPECT_EQ(cell(*all[1], all[1]->rows[0], "plusMinus").text, "+5");
  EXPECT_EQ(all[1]->columns.at(all[1]->chart->firstColumn).name, "PTS");
  const ReportTable& onOff = *all[4];
  EXPECT_EQ(cell(onOff, onOff.rows[0], "plusMinus").text, cell(*all[3], all[3]->rows[0], "plusMinus").text);
  EXPECT_EQ(cell(onOff, onOff.rows[0], "netRating").text.front(), '+');
  EXPECT_EQ(cell(onOff, onOff.rows[1], "netRating").text, "–") << "they never sat";
}

TEST_F(SeasonReportTest, AScoutingSheetTellsATeamFromItsGamesAndDashesWhatTotalsDoNot) {
  folder.addGame("c.GAM", "2026-10-16", "1=00:00,GFG,0-4\n2=00:00,GFG,0-4\n3=00:00,GFG,1-7\n",
                 "INPUTTYPE=1\n");
  const SeasonStatistics season = folder.statistics();
  const SeasonReportChoice pan = {
      folder.catalogue().teamOf("PAN-A"), std::nullopt, {}, folder.catalogue().teamOf("OLY-A")};
  const Report report = seasonReport(SeasonReport::Scout, season, pan, settings, texts);
  EXPECT_TRUE(report.isOnePage);
  const auto& head = std::get<ReportParagraph>(report.blocks.at(1));
  EXPECT_EQ(head.text, "Scouting Sheet · 3 games · 3 won, 0 lost · last: W 5–0 OLY, W 2–1 OLY, W 4–2 OLY");
  EXPECT_EQ(head.beside, "for: OLY");
  const auto all = tables(report);
  ASSERT_EQ(all.size(), 4U);
  const auto tile = [&](const char* name) { return cell(*all[0], all[0]->rows[0], name).text; };
  EXPECT_EQ(tile("Points"), "3.7");
  EXPECT_EQ(tile("Against"), "1.0");
  EXPECT_EQ(tile("secondChance"), "0.0") << "of the two games whose events are known";
  const ReportRow& ann = all[1]->rows.at(0);
  EXPECT_EQ(cell(*all[1], ann, "Name").text, "Ann Able") << "by minutes, then by points";
  EXPECT_EQ(cell(*all[1], ann, "GP").text + cell(*all[1], ann, "GS").text, "32");
  EXPECT_EQ(cell(*all[1], ann, "2P%").text, "80%");
  EXPECT_TRUE(ann.isPale) << "ten minutes in two games of three";
  EXPECT_EQ(all[2]->rows.at(4).cells[0].text, "3.5") << "points in the first period";
  EXPECT_EQ(all[3]->rows.at(0).cells[0].text, "4 · 5 · 10 · 12 · 15");
  EXPECT_EQ(all[3]->rows.at(0).cells[4].text, "–") << "a rating of few possessions";

  SeasonFolder entered;
  entered.addGame("c.GAM", "2026-10-16", "1=00:00,GFG,0-4\n2=00:00,GFGA,1-7\n", "INPUTTYPE=1\n");
  const SeasonStatistics totals = entered.statistics();
  const Report ofTotals = seasonReport(SeasonReport::Scout, totals, pan, settings, texts);
  std::string dashes;
  for (const ReportCell& each : tables(ofTotals).at(0)->rows[0].cells)
    dashes += each.text + ' ';
  EXPECT_EQ(dashes, "2.0 0.0 – – – – – – ");
  EXPECT_EQ(cell(*tables(ofTotals)[1], tables(ofTotals)[1]->rows.at(0), "GS").text, "–");
  EXPECT_FALSE(tables(ofTotals)[1]->rows[0].isPale) << "nobody's time is known";
}

TEST_F(SeasonReportTest, ARatingOfTheUsersOwnStandsBesideTheBuiltInOne) {
  const SeasonStatistics season = folder.statistics();
  SeasonReportChoice choice = {std::nullopt, rowOf(season.players(), "Ann Able")->id, {0, 0, 0}};
  choice.ownRating = {"HEART", "3*PTS", [](const RatedNumbers& of) { return 3.0 * of.box.points(); }};
  for (const SeasonReport which : {SeasonReport::TeamDetail, SeasonReport::PlayerOther, SeasonReport::Player,
                                   SeasonReport::PlayerSheet}) {
    const Report report = seasonReport(which, season, choice, settings, texts);
    int tablesWithIt = 0;
    for (const ReportTable* table : tables(report)) {
      const auto own = std::ranges::find(table->columns, "HEART", &ReportColumn::header);
      if (own == table->columns.end())
        continue;
      ++tablesWithIt;
      EXPECT_EQ((own - 1)->header, texts.text(Text::Rating));
      for (const ReportRow& row : table->rows)
        EXPECT_EQ(row.cells.size(), table->columns.size());
    }
    EXPECT_GT(tablesWithIt, 1) << static_cast<int>(which);
  }
  const Report others = seasonReport(SeasonReport::PlayerOther, season, choice, settings, texts);
  EXPECT_EQ(cell(*tables(others)[1], tables(others)[1]->rows[0], "own").text, "6.0") << "twelve in two games";
  const Report leaders = seasonReport(SeasonReport::LeadersTotal, season, choice, settings, texts);
  EXPECT_EQ(tables(leaders).back()->title, "Your own rating (HEART)");
  EXPECT_EQ(tables(leaders).back()->rows[0].cells.back().value, 12);
}

TEST_F(SeasonReportTest, FilesNameTheirColumnsAndHoldNoTimeWhereNoneIsShown) {
  const SeasonStatistics season = folder.statistics();
  const Report games = seasonReport(SeasonReport::TeamSummary, season, {}, settings, texts);
  EXPECT_TRUE(reportCsv(games)[0].bytes.starts_with(
      "Date,Type,Result,Visitor,VisitorPTS,Home,HomePTS,Input,Location\r\n"));
  Report report = seasonReport(SeasonReport::PlayerShots, season, {}, settings, texts);
  const auto view = static_cast<std::size_t>(SeasonView::PerMinute);
  const ReportTable& minutes = *tables(report)[view];
  EXPECT_EQ(cell(minutes, minutes.rows[0], "Time").kind, ReportCell::Kind::Text);
  EXPECT_EQ(cell(minutes, minutes.rows[0], "Team").text, "PAN-A") << "without a chosen team";
  EXPECT_TRUE(cell(minutes, minutes.rows[0], "Name").text.ends_with(" *")) << "under the minimum";
  texts.setLanguage(Language::French);
  report = seasonReport(SeasonReport::PlayerShots, season, {}, settings, texts);
  const std::string french = reportCsv(report, CsvReader::French)[0].bytes;
  EXPECT_TRUE(french.starts_with("\xEF\xBB\xBFTableau;Équipe;No;Nom du joueur;Temps;P;TGM;"));
  EXPECT_NE(french.find(";100,0%;"), std::string::npos);
  const std::size_t all = rankedRows(report);
  SeasonReportChoice choice;
  choice.chosen = season.players().back().id;
  report = seasonReport(SeasonReport::PlayerShots, season, choice, settings, texts);
  keepBest(report, 2, texts);
  ASSERT_EQ(tables(report)[0]->rows.size(), 3U) << "the highlighted one stays";
  EXPECT_NE(tables(report)[0]->title.find(std::to_string(all)), std::string::npos);
  EXPECT_EQ(proposedFileName("LYNX  12 Smith, Jr: a"), "LYNX 12 Smith, Jr- a");
}

} // namespace
} // namespace hooptab
