#include "report/LeagueBox.h"

#include "report/GameReports.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

std::string rowText(const ReportRow& row) {
  std::string text;
  for (const ReportCell& cell : row.cells)
    text += (text.empty() ? "" : " ") + (cell.text.empty() ? "-" : cell.text);
  return text;
}

TEST(LeagueBox, HasARowForWhatNoPlayerDidAndATotalWithIt) {
  const ReportTable table = leagueTable(
      *counted(gameOfText(textOfGame(
          "[PERIODE1]\n1=10:00,ARRET,IN-,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:00,GDK,1-3\n"
          "4=08:50,SPF,0-4,D=1-3\n5=08:40,SPF,1-3\n6=08:30,STF,1-3\n7=08:20,SDR,1-7\n8=08:10,XDR,1\n"
          "9=08:00,XOR,1\n10=07:50,XTV,1\n11=07:40,XCF,1,K=B\n12=07:30,GF3A,1-3\n13=07:30,SBS,0-4,S=1-3\n"
          "14=07:00,ARRET,IN-,IN-03-07-08-11-22\n"))),
      Side::Home, Texts());
  std::string headers;
  for (const ReportColumn& column : table.columns)
    headers += column.header + ' ';
  EXPECT_EQ(headers, "No Name Time PTS 2PM 2PA 3PM 3PA FTM FTA OR DR TR Ast TO ST BS BA PF FD ");
  ASSERT_EQ(table.rows.size(), 7U);
  EXPECT_EQ(rowText(table.rows[0]), "3 Hana Hart 03:00 2 1 1 0 1 0 0 0 0 0 0 0 0 0 1 2 1");
  EXPECT_EQ(rowText(table.rows[5]), "- Team / Coach - 0 0 0 0 0 0 0 1 1 2 0 1 0 0 0 1 0");
  EXPECT_EQ(rowText(table.rows[6]), "- TOTAL 15:00 2 1 1 0 1 0 0 1 2 3 0 1 0 0 1 3 1");
}

TEST(LeagueBox, NamesTheOfficialsTheCoachesAndTheCaptain) {
  const auto game =
      counted(gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-05,IN-\n",
                                    "COMPETITION=Coupe\nRONDE=\nARBITRES=A. Whistle\nASSISTANCE=120\n"
                                    "ENTRAINEUR1=Bo Tactic\nCAPITAINE0=05\n")));
  std::string words;
  for (const ReportBlock& block : leagueReport(*game, Texts()).blocks) {
    if (const auto* paragraph = std::get_if<ReportParagraph>(&block))
      words += paragraph->text + '|';
  }
  EXPECT_NE(words.find("|Competition: Coupe.  Referees: A. Whistle.  Attendance: 120|"), std::string::npos)
      << words;
  EXPECT_NE(words.find("|Coach: Bo Tactic|"), std::string::npos) << words;
  EXPECT_EQ(leagueTable(*game, Side::Visitor, Texts()).rows[1].cells[1].text, "Bea Baker (C)");
  EXPECT_EQ(leagueTable(*game, Side::Home, Texts()).rows[0].cells[1].text, "Hana Hart");
}

} // namespace
} // namespace hooptab
