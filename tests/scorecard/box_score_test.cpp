// The box score: derived numbers, the column table, the rows of players and lines and what they add up to.
#include "scorecard/BoxScore.h"
#include "settings/ChoiceTexts.h"

#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

using namespace hooptab;

namespace {

int columnNamed(std::string_view name) {
  for (const BoxColumn& column : boxColumns()) {
    if (column.name == name)
      return column.index;
  }
  ADD_FAILURE() << "no column " << name;
  return 1;
}

std::string cell(const BoxRow& row, std::string_view name) {
  return boxCell(row, columnNamed(name));
}
double sortValue(const BoxRow& row, std::string_view name) {
  return boxSortValue(row, columnNamed(name));
}

BoxRow rowWith(const std::map<Counter, std::int32_t>& counts, std::int32_t seconds = 0) {
  BoxRow row;
  for (const auto& [counter, count] : counts)
    row.numbers.counters.counts[static_cast<std::size_t>(counter)] = count;
  row.numbers.seconds = seconds;
  return row;
}

TEST(BoxCells, OfARowWithoutAnythingAreZeros) {
  const BoxRow row = rowWith({});
  for (const std::string_view name : {"%", "FG%", "F3%", "LL%", "FT%", "LR%", "PB%", "DK%"})
    EXPECT_EQ(cell(row, name), "0.0%") << name;
  for (const std::string_view name : {"M", "A", "PTS", "FGM", "FGPTS", "DKPTS", "rating", "TF"})
    EXPECT_EQ(cell(row, name), "0") << name;
  EXPECT_EQ(cell(row, "Time"), "00:00");
  EXPECT_EQ(cell(row, "seconds"), "000000");
}

TEST(BoxCells, FollowFromTheCounts) {
  const BoxRow threes = rowWith({{Counter::F3M, 2}, {Counter::F3A, 5}}, 6067);
  EXPECT_EQ(cell(threes, "F3%"), "40.0%");
  EXPECT_EQ(cell(threes, "F3PTS"), "6");
  EXPECT_EQ(cell(threes, "M") + "/" + cell(threes, "A") + " " + cell(threes, "%"), "2/5 40.0%");
  EXPECT_EQ(cell(threes, "PTS"), "6");
  EXPECT_EQ(cell(threes, "Time"), "101:07");
  EXPECT_EQ(cell(threes, "seconds"), "006067");
  // A missed free throw counts against the rating like any other shot.
  const BoxRow throws = rowWith({{Counter::FTM, 1}, {Counter::FTA, 4}, {Counter::TO, 3}});
  EXPECT_EQ(cell(throws, "rating"), "-5");
  // Every kind with another count, so that no two can be mistaken for each other.
  const BoxRow all = rowWith({{Counter::FGM, 1}, {Counter::FGA, 3},  {Counter::FTM, 2}, {Counter::FTA, 5},
                              {Counter::F3M, 3}, {Counter::F3A, 7},  {Counter::LLM, 4}, {Counter::LLA, 9},
                              {Counter::LRM, 5}, {Counter::LRA, 11}, {Counter::PBM, 6}, {Counter::PBA, 13},
                              {Counter::DKM, 7}, {Counter::DKA, 15}, {Counter::Ast, 1}, {Counter::BS, 2},
                              {Counter::ST, 3},  {Counter::TO, 4},   {Counter::OR, 5},  {Counter::DR, 6},
                              {Counter::S1, 7},  {Counter::S2, 8},   {Counter::PF, 9},  {Counter::TF, 10}});
  const std::map<std::string_view, std::string> expected = {
      {"FGM", "1"},     {"FGA", "3"},    {"FG%", "33.3%"}, {"FGPTS", "2"},  {"FTM", "2"},     {"FTA", "5"},
      {"FT%", "40.0%"}, {"FTPTS", "2"},  {"F3M", "3"},     {"F3A", "7"},    {"F3%", "42.9%"}, {"F3PTS", "9"},
      {"LLM", "4"},     {"LLA", "9"},    {"LL%", "44.4%"}, {"LLPTS", "8"},  {"LRM", "5"},     {"LRA", "11"},
      {"LR%", "45.5%"}, {"LRPTS", "10"}, {"PBM", "6"},     {"PBA", "13"},   {"PB%", "46.2%"}, {"PBPTS", "12"},
      {"DKM", "7"},     {"DKA", "15"},   {"DK%", "46.7%"}, {"DKPTS", "14"}, {"M", "28"},      {"A", "63"},
      {"%", "44.4%"},   {"PTS", "57"},   {"Ast", "1"},     {"BS", "2"},     {"ST", "3"},      {"TO", "4"},
      {"OR", "5"},      {"DR", "6"},     {"S1", "7"},      {"S2", "8"},     {"PF", "9"},      {"TF", "10"},
      {"rating", "35"}}; // 57 + 11 + 1 + 3 + 2 - (35 + 4)
  for (const auto& [name, text] : expected)
    EXPECT_EQ(cell(all, name), text) << name;
}

TEST(BoxCells, SortByWhatTheyStandFor) {
  const auto made = [](int shots, int attempts) {
    return rowWith({{Counter::FGM, shots}, {Counter::FGA, attempts}});
  };
  EXPECT_LT(sortValue(made(0, 0), "FG%"), sortValue(made(0, 4), "FG%")) << "no attempt comes below 0%";
  EXPECT_LT(sortValue(made(333, 1000), "FG%"), sortValue(made(1, 3), "FG%")) << "both read 33.3%";
  EXPECT_LT(sortValue(rowWith({}, 599), "Time"), sortValue(rowWith({}, 6000), "Time"));
  EXPECT_LT(sortValue(made(9, 9), "FGM"), sortValue(made(10, 10), "FGM"));

  double before = -1;
  for (const char* jersey : {"0", "00", "000", "4", "5", "05", "10", "100", "A1", "B", ""}) {
    BoxRow row;
    row.number = jersey;
    EXPECT_GT(sortValue(row, "No"), before) << jersey;
    before = sortValue(row, "No");
  }
  std::set<std::string_view> texts;
  for (const BoxColumn& column : boxColumns()) {
    if (boxColumnIsText(column.index))
      texts.insert(column.name);
  }
  EXPECT_EQ(texts, (std::set<std::string_view>{"Name", "Pos"}));
}

TEST(BoxColumns, HideOnlyTheSortKeyAndMarkEveryMadeAndAttempted) {
  const std::set<int> madeOrAttempted = {5, 6, 9, 10, 13, 14, 17, 18, 21, 22, 35, 36, 39, 40, 44, 45};
  int index = 0;
  for (const BoxColumn& column : boxColumns()) {
    EXPECT_EQ(column.index, ++index);
    EXPECT_EQ(column.widthTwips == 0, column.index == kTimeSortColumn) << column.name;
    EXPECT_EQ(column.isMadeOrAttempted, madeOrAttempted.contains(column.index)) << column.name;
    EXPECT_EQ(column.isLeftAligned, column.index <= 2) << column.name;
    EXPECT_EQ(column.header == "PTS", column.name.ends_with("PTS")) << column.name;
  }
}

// 4, 5, 10, 12, 15 play three minutes, then 0 comes for 15; a stranger and a player without list score.
const char* const kTwoLines =
    "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
    "3=10:00,DEPART\n4=09:00,GFG,0-4,30,100\n5=08:30,GF3A,0-05,110,100\n"
    "6=07:00,ARRET,IN-00-04-05-10-12,IN-03-07-08-11-22\n7=07:00,DEPART\n"
    "8=06:00,GFT,0-0\n9=05:30,GDK,0-99\n10=05:00,SPF,0-00\n"
    "11=05:00,ARRET,IN-,IN-03-07-08-11-22\n12=04:00,STF,0-4\n";

TEST(BoxRows, OfPlayersShowTheWholeRosterThenOthersThenTheTotal) {
  const Game game = gameOfText(textOfGame(kTwoLines));
  const GameState state = tallied(game);
  Texts texts;
  const auto rows = boxRows({game, state}, Side::Visitor, BoxView::Players, texts);
  std::vector<std::string> shown;
  for (const BoxRow& row : rows)
    shown.push_back(row.number + "|" + row.name + "|" + row.position + "|" + cell(row, "Time") + "|" +
                    cell(row, "PTS"));
  EXPECT_EQ(shown, (std::vector<std::string>{"4|Ann Able|Center|05:00|2", "5|Bea Baker|Forward|05:00|0",
                                             "10|Cleo Carter|Guard|05:00|0", "12|Dana Dunn|N/A|05:00|0",
                                             "15|Eve Ellis|Center|03:00|0", "0|Fay Ford|Forward|02:00|1",
                                             "00|Gia Grant|Guard|00:00|0", "|others|na|00:00|2",
                                             "|TOTAL|na|25:00|5"}));
  EXPECT_EQ(rows.back().kind, BoxRowKind::Total);
  EXPECT_EQ(rows.back().entry, -1);
  EXPECT_EQ(cell(rows.back(), "PF") + cell(rows.back(), "TF"), "11");
  texts.setLanguage(Language::French);
  const auto french = boxRows({game, state}, Side::Visitor, BoxView::Players, texts);
  EXPECT_EQ(french[0].position, "Centre");
  EXPECT_EQ(french[3].position, "N/D");
  EXPECT_EQ(french[7].name, "autres");
}

TEST(BoxRows, OfLinesAddUpToTheSameTotal) {
  const Game game = gameOfText(textOfGame(kTwoLines));
  const GameState state = tallied(game);
  const auto rows = boxRows({game, state}, Side::Visitor, BoxView::Lines, Texts());
  std::vector<std::string> shown;
  for (const BoxRow& row : rows)
    shown.push_back(row.number + "|" + row.name + "|" + cell(row, "Time") + "|" + cell(row, "PTS"));
  EXPECT_EQ(shown, (std::vector<std::string>{"1|4-5-10-12-15|03:00|2", "2|0-4-5-10-12|02:00|3",
                                             "|other lines|00:00|0", "|TOTAL|05:00|5"}));
  EXPECT_EQ(rows.back().numbers.counters,
            boxRows({game, state}, Side::Visitor, BoxView::Players, Texts()).back().numbers.counters);
}

TEST(BoxRows, TotalIsWiderThanASingleCount) {
  const Game game = gameOfText(textOfGame(""));
  GameState state = tallied(game);
  for (PlayerEntry& player : state.players[Side::Visitor]) {
    player.counters[Counter::F3M] = 32767;
    player.seconds = -5; // a clock that was set back; nobody plays less than nothing
  }
  state.players[Side::Visitor][1].seconds = 90;
  const BoxRow total = boxRows({game, state}, Side::Visitor, BoxView::Players, Texts()).back();
  EXPECT_EQ(total.numbers.counters[Counter::F3M], 8 * 32767) << "seven players and the others";
  EXPECT_EQ(cell(total, "PTS"), std::to_string(8 * 32767 * 3));
  EXPECT_EQ(cell(total, "Time"), "01:30") << "the sum of the times shown";
}

TEST(BoxRows, OfLinesLeaveOutThoseThatNeitherPlayedNorCounted) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-\n"
                                          "2=10:00,ARRET,IN-00-04-05-10-12,IN-\n3=09:00,ARRET,IN-,IN-\n"));
  const auto rows = boxRows({game, tallied(game)}, Side::Visitor, BoxView::Lines, Texts());
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].name + " " + cell(rows[0], "Time"), "0-4-5-10-12 01:00");
  EXPECT_EQ(rows[1].kind, BoxRowKind::Total);
}

// What the command line takes as a type is what the table of texts names.
TEST(Choices, OfTypeWithoutANameReadOtherAndOfPositionNa) {
  Texts texts;
  for (int type = -1; type <= kChoiceCount; ++type) {
    const bool isNamed = !choiceName(kFirstGameTypeText, type, texts).empty();
    EXPECT_EQ(gameTypeOf(type), isNamed ? type : kOtherGameType) << type;
  }
  EXPECT_EQ(gameTypeText(7, texts), "Other");
  EXPECT_EQ(positionText(2, texts), "Guard");
  EXPECT_EQ(positionText(9, texts), "N/A");
  for (const int position : {-1, 3, 8, 10, 2147483647})
    EXPECT_EQ(positionText(position, texts), "na") << position;
  texts.setLanguage(Language::French);
  EXPECT_EQ(gameTypeText(77, texts), "Autre");
}

} // namespace
