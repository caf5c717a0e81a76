#include "teams/TeamSheet.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

using Effect = TeamSheet::Effect;

PlayerFields player(const std::string& number, const std::string& name) {
  return {number, 1, name, {}, {}, {}, {}};
}

class TeamSheetTest : public testing::Test {
 protected:
  void SetUp() override {
    sheet.load({{"5", {2, "Ann", "6ft", "", "", ""}, "2,Ann,6ft,,,,"},
                {"10", {0, "Bo", "", "", "", ""}, "0,Bo,,,,,"}});
  }
  std::string rows() const {
    std::string text;
    for (const TeamPlayer& each : sheet.players())
      text += each.number + ' ' + each.record.name + ' ' + std::to_string(each.record.position) + "; ";
    return text;
  }
  Texts texts;
  TeamSheet sheet;
};

TEST_F(TeamSheetTest, APlayerIsRenumberedByNameAndRenamedByNumber) {
  const struct {
    PlayerFields fields;
    Effect effect;
    const char *words, *after;
  } cases[] = {
      {player("7", "Cy"), Effect::Adds, "Adds a player: 7 Cy", "5 Ann 2; 10 Bo 0; 7 Cy 1; "},
      {player("5", "Ann"), Effect::Changes, "Changes 5 Ann", "5 Ann 1; 10 Bo 0; "},
      {player(" 8 ", " Bo "), Effect::Renumbers, "Gives Bo number 8 in place of 10", "5 Ann 2; 8 Bo 1; "},
      {player("10", "Bob, Jr."), Effect::Renames, "Renames number 10: Bob  Jr. in place of Bo",
       "5 Ann 2; 10 Bob  Jr. 1; "},
      {player("05", "Dee"), Effect::WritesOtherwise,
       "05 is 5 written otherwise, which Ann wears: one number is one player in a team. Nothing is changed.",
       "5 Ann 2; 10 Bo 0; "},
      {player("05", "Ann"), Effect::Renumbers, "Gives Ann number 05 in place of 5", "05 Ann 1; 10 Bo 0; "},
      {player("5", "bo"), Effect::Renames, "Renames number 5: bo in place of Ann", "5 bo 1; 10 Bo 0; "},
      {player("5", "Bo"), Effect::Conflicts,
       "Number 5 belongs to Ann, but the name to 10 Bo. Correct the number or the name: nothing is changed.",
       "5 Ann 2; 10 Bo 0; "},
  };
  for (const auto& each : cases) {
    SetUp();
    EXPECT_EQ(sheet.target(each.fields).effect, each.effect) << each.words;
    EXPECT_EQ(sheet.announcement(each.fields, texts), each.words);
    const bool isPut = sheet.put(each.fields) >= 0;
    EXPECT_NE(isPut, TeamSheet::isRefused(each.effect));
    EXPECT_EQ(rows(), each.after);
    EXPECT_EQ(sheet.isChanged(), isPut);
  }
  EXPECT_EQ(sheet.announcement(player("", "Ann"), texts), "");
  // Letters that the file lacks are compared as it keeps them.
  sheet.put(player("77", "Đorđe Čić"));
  EXPECT_EQ(sheet.players().back().record.name, "Dorde Cic");
  EXPECT_EQ(sheet.target(player("7", "Đorđe Čić")).effect, Effect::Renumbers);
}

TEST_F(TeamSheetTest, WhatStandsAgainstAddingComesInOrder) {
  using Problem = TeamSheet::Problem;
  PlayerFields fields;
  EXPECT_EQ(TeamSheet::problem(fields), Problem::NoJersey);
  for (const char* number : {"x", "-1", "1234", "1.5", "A1"}) {
    fields.number = number;
    EXPECT_EQ(TeamSheet::problem(fields), Problem::NoJersey) << number;
  }
  fields.number = "00";
  EXPECT_EQ(TeamSheet::problem(fields), Problem::NoPosition);
  fields.position = 9;
  fields.name = " ";
  EXPECT_EQ(TeamSheet::problem(fields), Problem::NoName);
  fields.name = std::string(247, 'n');
  EXPECT_EQ(TeamSheet::problem(fields), Problem::None) << "254 with position and commas";
  fields.age = "1";
  EXPECT_EQ(TeamSheet::problem(fields), Problem::TooLong);
}

TEST_F(TeamSheetTest, RemovedAndSortedPlayers) {
  EXPECT_FALSE(sheet.remove(""));
  EXPECT_FALSE(sheet.remove("6"));
  sheet.sort(PlayerColumn::Name, texts, std::greater<>());
  EXPECT_EQ(rows(), "10 Bo 0; 5 Ann 2; ");
  EXPECT_FALSE(sheet.isChanged()) << "the order is no change";
  EXPECT_TRUE(sheet.remove("10"));
  EXPECT_EQ(rows(), "5 Ann 2; ");
  EXPECT_TRUE(sheet.isChanged());
}

TEST_F(TeamSheetTest, APositionWithoutANameReadsNaAndARepeatedNumberCanBeMended) {
  sheet.load({{"5", {4, "Ann", "", "", "", ""}, ""},
              {"6", {12, "Bo", "", "", "", ""}, ""},
              {"7", {9, "Cy", "", "", "", ""}, ""}});
  for (const auto& [row, shown] : {std::pair(0, "na"), std::pair(1, "na"), std::pair(2, "N/A")})
    EXPECT_EQ(sheet.text(row, PlayerColumn::Position, texts), shown);
  sheet.load({{"5", {2, "Ann", "", "", "", ""}, ""}, {"5", {0, "Bo", "", "", "", ""}, ""}});
  EXPECT_EQ(sheet.repeatedNumber(), "5");
  EXPECT_EQ(sheet.target(player("5", "Bo")).row, 1);
  EXPECT_EQ(sheet.put(player("6", "Bo")), 1);
  EXPECT_EQ(sheet.repeatedNumber(), "");
}

} // namespace
} // namespace hooptab
