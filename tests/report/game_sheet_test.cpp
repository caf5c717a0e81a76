// A game on one page: who stands where in the boxes, and which value of two is the better one.
#include "report/GameSheet.h"

#include "report/GameReports.h"
#include "report/ReportText.h"
#include "support/TextGame.h"

#include "report/ReportGame.h"
#include <gtest/gtest.h>
#include <string>

namespace hooptab {
namespace {

// Five of each side begin; Gia Grant comes in for Ann Able, Fay Ford never.
const std::string kGame =
    "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:00,GF3,0-5,60,60\n"
    "4=08:00,GFGA,0-4,40,50\n5=07:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-22\n6=07:00,DEPART\n"
    "7=06:00,STO,1-3\n8=05:00,GLG,1-7\n9=04:00,STO,0-5\n10=03:00,STO,0-5\n101=02:00,STO,0-12\n"
    "11=00:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-22\n";

class GameSheetTest : public testing::Test {
 protected:
  Report sheet(const std::string& details = {}, const std::string& more = {}) const {
    const Game game = gameOfText(textOfGame(kGame + more, details));
    return gameSheet({game, tallied(game)}, texts);
  }
  static std::string cell(const ReportTable& table, std::size_t row, std::string_view column) {
    const auto found = std::ranges::find(table.columns, column, &ReportColumn::name);
    return found == table.columns.end()
               ? "none"
               : table.rows.at(row).cells[static_cast<std::size_t>(found - table.columns.begin())].text;
  }

  Texts texts;
};

TEST_F(GameSheetTest, StartersStandFirstThenTheBenchAndWhoDidNotPlayInOneRow) {
  const Report report = sheet();
  const ReportTable& box = *tables(report).at(1);
  ASSERT_EQ(box.rows.size(), 8U); // six players, one row for who did not play, the total
  EXPECT_EQ(cell(box, 0, "No"), "5*");
  EXPECT_EQ(cell(box, 4, "No"), "4*"); // the shortest of those who began
  EXPECT_EQ(cell(box, 4, "Time"), "03:00");
  EXPECT_EQ(cell(box, 5, "No"), "00");
  EXPECT_TRUE(box.rows[6].isNote);
  EXPECT_EQ(cell(box, 6, "Name"), "Did not play: 0 Fay Ford");
  EXPECT_EQ(cell(box, 0, "plusMinus"), "+1");
  EXPECT_EQ(cell(box, 5, "plusMinus"), "−2");
  EXPECT_EQ(cell(box, 0, "3P"), "1/1");
  EXPECT_EQ(cell(box, 7, "PTS"), "3");
  EXPECT_EQ(cell(box, 0, "TF"), "none");
  const Report withTechnical = sheet({}, "12=00:00,SPF,0-5\n13=00:00,STF,0-5\n14=00:00,XCF,0,K=C\n");
  const ReportTable& fouls = *tables(withTechnical).at(1);
  EXPECT_EQ(cell(fouls, 0, "PF") + cell(fouls, 0, "TF"), "11");
  EXPECT_EQ(cell(fouls, 8, "PF") + cell(fouls, 8, "TF"), "12") << "the coach's are the team's";
}

TEST_F(GameSheetTest, TheBetterValueIsStrongAlsoWhereLessIsBetter) {
  const Report report = sheet();
  const ReportTable& compared = *tables(report).back();
  const auto better = [&](Text words) {
    for (const ReportRow& row : compared.rows) {
      if (row.cells[1].text == texts.text(words))
        return std::string(row.cells[0].isStrong ? "visitors" : "") + (row.cells[2].isStrong ? "home" : "");
    }
    return std::string("missing");
  };
  EXPECT_EQ(better(Text::EffectiveFieldGoals), "home"); // 2 of 2 points against 3 of 4
  EXPECT_EQ(better(Text::TurnoversPerHundred), "home"); // one in two against three in five
  EXPECT_EQ(better(Text::InThePaint), "home");
  EXPECT_EQ(better(Text::BiggestLead), "visitors");
  EXPECT_EQ(better(Text::SecondChance), "");
}

TEST_F(GameSheetTest, AGameOfTotalsSaysThatItHasNoFlowAndNothingThatNeedsOne) {
  const Report report = sheet("INPUTTYPE=1\n");
  const auto all = tables(report);
  EXPECT_EQ(cell(*all.at(1), 0, "plusMinus"), "none");
  EXPECT_EQ(all.at(1)->note, "");
  const auto flow = std::ranges::find_if(report.blocks, [](const ReportBlock& block) {
    const auto* picture = std::get_if<ReportPicture>(&block);
    return picture != nullptr && std::holds_alternative<FlowDrawing>(picture->drawing);
  });
  ASSERT_NE(flow, report.blocks.end());
  EXPECT_EQ(std::get<FlowDrawing>(std::get<ReportPicture>(*flow).drawing).emptyWords,
            texts.text(Text::NoOrderInTotals));
}

TEST_F(GameSheetTest, AWebPageMarksTheBetterValuesAndLetsANoteRunOn) {
  const std::string page = reportHtml(sheet(), "en", [](const ReportPicture&) { return std::string(); });
  EXPECT_NE(page.find(" colspan=\"16\">Did not play"), std::string::npos);
  EXPECT_NE(page.find("<b>"), std::string::npos);
  EXPECT_EQ(gameReports().front().word, "sheet");
}

} // namespace
} // namespace hooptab
