#include "report/GameReports.h"
#include "report/ReportText.h"
#include "report/TeamReports.h"
#include "storage/DelimitedText.h"

#include "report/ReportGame.h"
#include "storage/ProfileStore.h"
#include "support/SharedGames.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace hooptab {
namespace {

class ReportTextTest : public testing::Test {
 protected:
  Report scorecard(const Game& game) {
    return scorecardReport(counted(game), ScorecardView(texts), settings, texts);
  }

  FileSystem files;
  ProfileStore store{files};
  Texts texts;
  Settings settings{store, "/nowhere"};
};

// What a spreadsheet reads of the file is what the scorecard shows, cell by cell.
TEST_F(ReportTextTest, TheTableOfARealGameHoldsTheCellsOfTheBoxScore) {
  for (const auto& path : realOrSampleGames()) {
    SCOPED_TRACE(path.string());
    Game game;
    ASSERT_EQ(GameFile(store, path.string()).read(game), GameFileProblem::None);
    const GameState state = tallied(game);
    const auto rows = parseDelimited(reportCsv(scorecard(game)).front().bytes);
    std::size_t line = 1;
    for (const Side team : kSides) {
      for (const BoxRow& row : boxRows({game, state}, team, BoxView::Players, texts)) {
        ASSERT_LT(line, rows.size());
        std::size_t field = 1;
        for (const int column : boxDisplayOrder()) {
          if (column != kTimeSortColumn) {
            EXPECT_EQ(rows[0].fields[field], boxColumns()[static_cast<std::size_t>(column - 1)].name);
            EXPECT_EQ(rows[line].fields[field++], boxCell(row, column)) << row.name;
          }
        }
        EXPECT_EQ(rows[line++].fields.size(), field);
      }
    }
    EXPECT_EQ(line, rows.size());
  }
}

TEST_F(ReportTextTest, NamesStayTextInATableAndInAPage) {
  const Game game = crowdedGame();
  const Report report = scorecard(game);
  const auto csv = reportCsv(report);
  ASSERT_GE(csv.size(), 4U) << "the box scores, points, fouls and leaders";
  EXPECT_TRUE(csv.front().suffix.empty());
  std::set<std::string> suffixes;
  for (const ReportFile& file : csv) {
    EXPECT_TRUE(suffixes.insert(file.suffix).second) << "two files would share a name";
    for (const DelimitedRow& row : parseDelimited(file.bytes)) {
      EXPECT_FALSE(row.hasOpenQuote);
      EXPECT_EQ(row.fields.size(), parseDelimited(file.bytes).front().fields.size());
      for (const std::string& field : row.fields) {
        const bool isNumber = field.find_first_not_of("-0123456789.:%") == std::string::npos;
        EXPECT_TRUE(isNumber || field.empty() ||
                    std::string_view("=+-@").find(field[0]) == std::string_view::npos)
            << field;
      }
    }
  }
  EXPECT_NE(csv.front().bytes.find("\"'@At\"\"quote\""), std::string::npos);
  const std::string html =
      reportHtml(report, "en", [](const ReportPicture&) { return std::string("\x89PNG"); });
  EXPECT_EQ(html.find("<script"), std::string::npos);
  EXPECT_NE(html.find("<td class=\"left\">&lt;script&gt;</td>"), std::string::npos);
  EXPECT_NE(html.find("Side &lt;b&gt;&amp;"), std::string::npos);
  EXPECT_NE(html.find("base64,iVBORw==") == std::string::npos ? html.find("base64,iVBORw") : 0,
            std::string::npos);
  for (const char* outside : {"http:", "https:", "<link", "url("})
    EXPECT_EQ(html.find(outside), std::string::npos) << "the page needs nothing beside it";
}

TEST_F(ReportTextTest, PercentagesAndTimesAreNumbersBehindTheirText) {
  const Game game =
      gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05,IN-03-07\n2=09:00,GFG,0-4,40,50\n"
                            "3=08:00,GFGA,0-4,40,50\n4=07:00,STO,0-5\n5=05:00,ARRET,IN-04,IN-03\n"));
  const Report report = scorecard(game);
  const auto all = tables(report);
  const auto first = std::ranges::find(all, false, &ReportTable::isSummary);
  ASSERT_NE(first, all.end());
  const ReportTable* const box = *first;
  const auto cell = [&](std::size_t row, std::string_view column) {
    const auto found = std::ranges::find(box->columns, column, &ReportColumn::name);
    return box->rows[row].cells[static_cast<std::size_t>(found - box->columns.begin())];
  };
  EXPECT_EQ(cell(0, "FG%").text, "50.0%");
  EXPECT_DOUBLE_EQ(cell(0, "FG%").value, 0.5);
  EXPECT_EQ(cell(0, "Time").text, "05:00");
  EXPECT_DOUBLE_EQ(cell(0, "Time").value, 300);
  EXPECT_DOUBLE_EQ(cell(1, "rating").value, -1) << "a number below 0 is no formula";
  EXPECT_EQ(cell(1, "F3%").value, 0) << "no attempts";
  EXPECT_EQ(cell(6, "No").text, "00");
  EXPECT_EQ(cell(6, "No").kind, ReportCell::Kind::Text) << "00 is another jersey than 0";
  std::size_t grouped = 0;
  for (const ReportColumnGroup& group : box->groups)
    grouped += group.columns;
  EXPECT_EQ(grouped, box->columns.size());
}

// The chart follows the check marks, the tables hold everybody.
TEST_F(ReportTextTest, TheChartShowsTheCheckedPlayersOnly) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n1=09:00,GFG,0-4,40,50\n2=08:00,GFGA,0-5,60,50\n"
                                          "3=07:00,GF3,1-3,100,90\n4=E06:30,GFG,0-4,1,1\n"));
  ScorecardView view(texts);
  view.show(counted(game));
  view.check(view.rows()[1], false);
  view.setHidesMadeAttempted(true);
  const Report report = scorecardReport(counted(game), view, settings, texts);
  std::vector<std::size_t> marks;
  for (const ReportBlock& block : report.blocks) {
    const auto* picture = std::get_if<ReportPicture>(&block);
    const auto* shots = picture == nullptr ? nullptr : std::get_if<ShotDrawing>(&picture->drawing);
    if (shots != nullptr && shots->zones.empty()) {
      marks.push_back(shots->marks.size());
      if (marks.size() == 1) {
        EXPECT_NE(picture->caption.find("4, 10, 12, 15, 0, 00"), std::string::npos) << picture->caption;
      }
    }
  }
  EXPECT_EQ(marks, (std::vector<std::size_t>{1, 1}));
  for (const ReportTable* table : tables(report)) {
    EXPECT_TRUE(
        std::ranges::none_of(table->columns, [](const auto& column) { return column.name == "FGM"; }));
    if (table->title.starts_with("PAN")) {
      EXPECT_EQ(table->rows.size(), 8U);
      EXPECT_EQ(table->rows.back().emphasis, ReportRow::Emphasis::Total);
    }
  }
}

TEST_F(ReportTextTest, ThePlayByPlayLeavesOutWhatIsDeletedAndEndsWithTheScore) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n1=09:00,GFG,0-4,40,50\n2=E08:00,GF3,1-3,40,50\n"
                                          "3=what is this\n[PERIODE2]\n4=05:00,GFT,1-3\n"
                                          "5=04:00,DEPART\n6=04:00,ARRET,IN-04,IN-03\n"));
  const Report report = playByPlayReport({game, tallied(game)}, texts);
  const ReportTable& table = *tables(report).front();
  ASSERT_EQ(table.rows.size(), 4U);
  const auto cells = [&](std::size_t row) {
    std::vector<std::string> words;
    for (const ReportCell& cell : table.rows[row].cells)
      words.push_back(cell.text);
    return words;
  };
  using Words = std::vector<std::string>;
  EXPECT_EQ(cells(0), (Words{"1", "09:00", "4 Ann Able: 2 points made", "2-0", ""}));
  EXPECT_NE(table.rows[1].cells[2].text.find("what is this"), std::string::npos);
  EXPECT_EQ(cells(2), (Words{"2", "05:00", "", "2-1", "3 Hana Hart: free throw made"}));
  EXPECT_EQ(cells(3), (Words{"2", "04:00", "in 4 Ann Able", "", "in 3 Hana Hart"}));
  EXPECT_TRUE(table.rows[2].beginsSection);
}

// What a report says in French has a blank before each colon, and the codes of columns are told in words.
TEST_F(ReportTextTest, WordsOfReportsFollowTheLanguage) {
  texts.setLanguage(Language::French);
  const Game game = gameOfText(textOfGame("[PERIODE1]\n1=09:00,GFG,0-4,40,50\n",
                                          "DATE=2026-01-02\nENDROIT=Ici\nBONUS=5\nSUPP0=U1-Charges\n"));
  TeamRecord team;
  team.periods = "4";
  std::string words;
  for (const Report& report :
       {scorecard(game), playByPlayReport({game, tallied(game)}, texts), rosterReport(team, {}, texts)}) {
    for (const ReportBlock& block : report.blocks) {
      if (const auto* paragraph = std::get_if<ReportParagraph>(&block))
        words += paragraph->text + '\n';
    }
  }
  for (std::size_t colon = words.find(": "); colon != std::string::npos; colon = words.find(": ", colon + 1))
    EXPECT_EQ(words[colon - 1], ' ') << words.substr(0, colon + 1);
  EXPECT_NE(words.find("Bonus après : 5"), std::string::npos) << words;
  EXPECT_NE(words.find("PF = faute personnelle"), std::string::npos);
  EXPECT_NE(words.find("Charges"), std::string::npos);
  EXPECT_NE(words.find("Smash"), std::string::npos) << "nobody tried one";
  EXPECT_EQ(words.find("Panier de 2 pts"), std::string::npos) << "somebody tried one";
}

TEST_F(ReportTextTest, FormsHoldEveryPlayerOnceAndATeamWithoutPlayersGetsASheet) {
  TeamRecord team;
  team.abbreviation = "LYNX";
  team.category = "AAA ";
  EXPECT_EQ(preparedForms(team, {}, texts).blocks.size(), 1U);
  EXPECT_EQ(rosterReport(team, {}, texts).blocks.size(), 2U);
  std::vector<TeamPlayer> players;
  for (const char* number : {"0", "00", "4", "12", "coach", "103"}) {
    TeamPlayer& player = players.emplace_back();
    player.number = number;
    player.record.name = std::string("Name ") + number;
  }
  const Report forms = preparedForms(team, players, texts);
  std::vector<std::string> jerseys;
  for (const ReportBlock& block : forms.blocks) {
    const auto& sheet = std::get<FormSheet>(block);
    EXPECT_EQ(sheet.identifier.team, FormIdentifier::teamNumber("LYNX", "AAA"));
    for (const std::string& jersey : sheet.jerseys) {
      if (!jersey.empty())
        jerseys.push_back(jersey);
    }
  }
  EXPECT_EQ(jerseys, (std::vector<std::string>{"0", "00", "4", "12", "103"}));
  players.assign(18, players.front());
  const Report many = preparedForms(team, players, texts);
  ASSERT_EQ(many.blocks.size(), 5U) << "as many sheets as it takes";
  EXPECT_EQ(std::get<FormSheet>(many.blocks[4]).identifier.sheet, 4);
  EXPECT_NE(std::get<FormSheet>(many.blocks[4]).jerseys[1], "");
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    EXPECT_EQ(blankForms(texts).blocks.size(), static_cast<std::size_t>(FormLayout::kSheets));
  }
}

} // namespace
} // namespace hooptab
