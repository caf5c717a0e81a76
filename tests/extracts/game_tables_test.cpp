// The five tables: columns as they are documented, and what stands in them.
#include "extracts/GameTables.h"

#include "storage/DelimitedText.h"
#include "storage/Module1.h"
#include "support/TextGame.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace hooptab;

namespace {

struct Tables {
  explicit Tables(const std::string& text) : Tables(std::vector{text}) {}
  explicit Tables(const std::vector<std::string>& games) {
    std::array<std::ostringstream, kGameTableCount> files;
    TableWriter::Sinks sinks = {};
    for (std::size_t table = 0; table < kGameTableCount; ++table)
      sinks[table] = &files[table];
    TableWriter writer(sinks);
    for (const std::string& text : games) {
      Game game = gameOfText(text);
      game.path = "/season/A.GAM";
      const auto read = counted(game);
      writer.append(extractSource(*read, ProfileText(text)));
    }
    for (std::size_t table = 0; table < kGameTableCount; ++table)
      rows[table] = parseDelimited(files[table].str());
  }
  [[nodiscard]] const std::vector<DelimitedRow>& of(GameTable table) const {
    return rows[static_cast<std::size_t>(table)];
  }
  // Of a row from 1, behind the header row.
  [[nodiscard]] std::string cell(GameTable table, std::size_t row, const std::string& name) const {
    const std::vector<std::string>& names = of(table)[0].fields;
    const auto column = std::ranges::find(names, name);
    return column == names.end()
               ? "no column " + name
               : of(table).at(row).fields.at(static_cast<std::size_t>(column - names.begin()));
  }
  [[nodiscard]] std::string cells(GameTable table, std::size_t row, const std::string& names) const {
    std::istringstream each(names);
    std::string all;
    for (std::string name; each >> name;)
      all += cell(table, row, name) + '|';
    return all;
  }
  std::array<std::vector<DelimitedRow>, kGameTableCount> rows;
};

TEST(GameTables, HaveTheColumnsThatAreDocumented) {
  std::ifstream file(std::string(HOOPTAB_TESTS) + "/../docs/formats/tables.md");
  std::vector<std::string> documented; // "games.csv" and the columns behind it
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("## `") || line.starts_with("| `"))
      documented.emplace_back(Module1::field(line, 2, '`'));
  }
  std::vector<std::string> columns;
  for (const GameTable table : kGameTables) {
    columns.emplace_back(tableFileName(table));
    std::ranges::copy(tableColumns(table), std::back_inserter(columns));
  }
  EXPECT_EQ(columns, documented);
}

TEST(GameTables, TellAGameItsPlayersAndItsEvents) {
  const Tables tables(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:40,GF3,0-4,110,"
      "40\n"
      "4=09:40,SA,0-05\n5=E09:30,GFG,1-7\n6=09:20,GDKA,1-7,X=30,Y=94.5,K=ALLEYOOP,Q=F\n7=09:20,SBS,0-12,S=1-"
      "07\n"
      "8=09:19,XDR,0\n9=09:00,SPF,1-8,D=0-4,F=2,K=S\n10=09:00,GFTA,0-4,N=1/2\n"
      "11=09:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
      "[HORLOGE]\nPARTIE=abc\n2=1763790000123\n[JOUEURS0]\n4=LIC=QC-1,ID=77\n",
      "IDPARTIE=abc\nENDROIT==SUM(A1)\nTYPE=2\nCOMPETITION=Cup, \"Final\"\n"));
  EXPECT_EQ(tables.cells(GameTable::Games, 1,
                         "game file type competition recorded seconds visitor home visitor_points "
                         "home_points visitor_possessions home_possessions"),
            "abc|A.GAM|season|Cup, \"Final\"|live|60|PAN|OLY|3|0|2|1|");
  EXPECT_EQ(tables.cell(GameTable::Games, 1, "place"), "'=SUM(A1)") << "no spreadsheet runs it";
  EXPECT_EQ(tables.cells(GameTable::Players, 1,
                         "side team row jersey name position licence foreign_id starter played seconds "
                         "points fg3_made ft_attempted fouls_drawn plus_minus"),
            "visitor|PAN|player|4|Ann Able|centre|QC-1|77|1|1|60|3|1|1|1|3|");
  EXPECT_EQ(tables.cells(GameTable::Players, 6, "jersey starter played seconds plus_minus"), "0|0|0|0|0|");
  EXPECT_EQ(tables.cells(GameTable::Players, 8, "row jersey defensive_rebounds seconds"), "team||1||");
  EXPECT_EQ(tables.cells(GameTable::Players, 10, "side jersey fg2_attempted blocks_against plus_minus"),
            "home|7|1|1|-3|");

  EXPECT_EQ(tables.of(GameTable::Events).size(), 11U) << "the deleted one is left out";
  EXPECT_EQ(tables.cells(GameTable::Events, 3,
                         "event row period clock elapsed_seconds code kind made points side jersey player x "
                         "y visitor_before visitor_after visitor_on_court stint possession possession_side"),
            "3|3|1|09:40|20|GF3|three_pointer|1|3|visitor|4|Ann Able|110|40|0|3|4 5 10 12 15|1|1|visitor|");
  EXPECT_EQ(tables.cell(GameTable::Events, 2, "wall_clock_ms"), "1763790000123");
  EXPECT_EQ(tables.cells(GameTable::Events, 5, "code detail fast_break x y"), "GDKA|ALLEYOOP|1|30|94.50|");
  EXPECT_EQ(tables.cells(GameTable::Events, 6, "kind side jersey other_jersey other_player"),
            "block|visitor|12|7|Ida Ivers|");
  EXPECT_EQ(tables.cells(GameTable::Events, 8, "kind other_jersey free_throws detail"),
            "personal_foul|4|2|S|");
  EXPECT_EQ(tables.cells(GameTable::Events, 9, "code throw throws"), "GFTA|1|2|");
  EXPECT_EQ(tables.cells(GameTable::Stints, 1,
                         "stint period start_clock end_clock end_elapsed seconds home_on_court "
                         "visitor_points home_possessions"),
            "1|1|10:00|09:00|60|60|3 7 8 11 22|3|1|");
}

TEST(GameTables, TellWhereAShotWasTakenAndWhoHadAPartInIt) {
  const Tables tables(textOfGame(
      "[PERIODE1]\n1=09:40,GF3,0-4,21,190\n2=09:40,SPF,1-7\n3=09:40,SA,0-05\n4=09:20,SBS,0-12,S=1-07\n5=09:"
      "20,GFGA,"
      "1-7,21,100\n"
      "6=09:10,GFGA,1-7,61,100\n7=09:10,SDR,0-4\n8=09:09,SBS,0-10\n9=09:00,GFG,0-4\n10=09:00,GFT,0-4\n"));
  const char* const names = "event value made assisted_by blocked_by metres_out metres_right metres zone";
  ASSERT_EQ(tables.of(GameTable::Shots).size(), 5U) << "free throws have no place in it";
  EXPECT_EQ(tables.cells(GameTable::Shots, 1, names), "1|3|1|5||0.00|-6.75|6.75|left_corner|");
  EXPECT_EQ(tables.cells(GameTable::Shots, 2, names), "5|2|0||12|0.00|0.00|0.00|under_basket|");
  EXPECT_EQ(tables.cells(GameTable::Shots, 3, names), "6|2|0||10|3.00|0.00|3.00|paint|");
  EXPECT_EQ(tables.cells(GameTable::Shots, 4, names), "9|2|1|||||||");
}

TEST(GameTables, TakeManyGamesAndThoseOfTotals) {
  const Tables tables(
      {textOfGame("[PERIODE1]\n1=09:40,GF3,0-4\n"),
       textOfGame("[PERIODE1]\n1=00:00,SA,0-5\n2=00:00,GF3,0-4\n3=00:00,SA,0-10\n4=00:00,GFG,0-99\n",
                  "INPUTTYPE=1\n")});
  ASSERT_EQ(tables.of(GameTable::Games).size(), 3U);
  EXPECT_EQ(tables.cells(GameTable::Games, 2, "game recorded visitor_possessions seconds"),
            "A.GAM|totals|||");
  EXPECT_EQ(tables.cells(GameTable::Events, 3, "code period clock elapsed_seconds possession"), "GF3|||||");
  EXPECT_EQ(tables.cell(GameTable::Shots, 2, "assisted_by"), "") << "totals have no order";
  EXPECT_EQ(tables.cells(GameTable::Players, 20, "row side points"), "others|visitor|2|");
  std::ostringstream full;
  full.setstate(std::ios::badbit);
  EXPECT_FALSE(TableWriter({&full, &full, &full, &full, &full}).isGood());
}

} // namespace
