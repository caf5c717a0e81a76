#include "teams/PlayerCsv.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

std::string players(const CsvPlayers& read) {
  std::string text;
  for (const TeamPlayer& player : read.players)
    text += player.number + '=' + playerValue(player.record) + ' ';
  return text;
}
std::string problems(const CsvPlayers& read) {
  std::string text;
  for (const CsvProblem& problem : read.problems)
    text += std::to_string(problem.line) + ':' + std::to_string(static_cast<int>(problem.text)) + ' ';
  return text;
}

TEST(PlayerCsv, ReadsWhatSpreadsheetsWriteNamesProblemsByLineAndStopsAtTooManyPlayers) {
  const struct {
    std::string text, players, problems;
  } cases[] = {
      {"", "", ""},
      {"5,G,Ann,6ft,170,18,Senior\n", "5=2,Ann,6ft,170,18,Senior, ", ""},
      {"\xEF\xBB\xBF"
       "5;g;Ann\r\n\r\n;;\r\n10;;Bo",
       "5=2,Ann,,,,, 10=9,Bo,,,,, ", ""},
      {"5\t0\tAnn\r6\tAilier\tBo\r", "5=0,Ann,,,,, 6=1,Bo,,,,, ", ""},
      {"name, NUMBER ,shoe,Grade\nAnn,5,44,Senior\n", "5=9,Ann,,,,Senior, ", ""},
      {"Numéro;Position;Nom du joueur;Taille;Poids;Âge;Scolarité\n5;Garde;Zoé;1,80 m;60;18;CÉGEP\n",
       "5=2,Zoé,1 80 m,60,18,CÉGEP, ", ""},
      {"NUMÉRO DE CHANDAIL;nom;ÂGE\n5;Ann;18\n", "5=9,Ann,,,18,, ", ""},
      {"Jersey number,Name\n5,Ann\n", "5=9,Ann,,,,, ", ""},
      {"#,First name,Last Name\n5,Ann,Able\n6,,Bo\n7, ,\n", "5=9,Ann Able,,,,, 6=9,Bo,,,,, ", "4:1173 "},
      {"Nom;Prénom;No\nAble;Ann;5\n", "5=9,Ann Able,,,,, ", ""},
      {"No,First name\n5,Ann\n", "", "1:1844 "},
      {"  \n5;G;\"Ann\"\" ,\"\n6;G;,\n", "5=2,Ann\",,,,, ", "3:1173 "},
      {"5,G,Ann,6'2\"\n6,G,Bo,6'3\",180,18,Sr; x\n", "5=2,Ann,6'2\",,,, 6=2,Bo,6'3\",180,18,Sr; x, ", ""},
      {"5,\"F\",\"Long, \"\"Ann\"\"\r\nMary\"\n6,c,Bo\n7,x,Cy", "5=1,Long  \"Ann\" Mary,,,,, 6=0,Bo,,,,, ",
       "4:1841 "},
      {"5,,\"Ann\n6,,\"Bo\"\n7,,\"Cy\n", "6=9,Bo,,,,, ", "1:1843 3:1843 "},
      {"No,Age\n5,18\n", "", "1:1844 "},
      {"12.0,,Ann\nA1,,Bo\n1234,,Cy\n,,Dee\n5,,\n5,,Eve\n5,,Fay\n05,,Gil\n8,SF/C,Hal\n", "5=9,Eve,,,,, ",
       "1:1171 2:1171 3:1171 4:1171 5:1173 7:1842 8:2461 9:1841 "},
      {"5,,Ann," + std::string(250, 'h') + "\n6,,Bo\x01\x7F\n", "6=9,Bo,,,,, ", "1:1817 "},
  };
  Texts texts;
  for (const auto& each : cases) {
    const CsvPlayers read = parsePlayersCsv(each.text, texts);
    EXPECT_EQ(players(read), each.players) << each.text;
    EXPECT_EQ(problems(read), each.problems) << each.text;
  }
  std::string many;
  for (int number = 0; number < 1200; ++number)
    many +=
        std::to_string(number) + ",,P" + std::to_string(number) + "\n0" + std::to_string(number) + ",,Q\n";
  const CsvPlayers first = parsePlayersCsv(many, texts);
  EXPECT_EQ(first.players.size(), 1000U);
  ASSERT_FALSE(first.problems.empty());
  EXPECT_EQ(first.problems.back().text, Text::TooManyRows);
  texts.setLanguage(Language::French);
  const CsvPlayers wrong = parsePlayersCsv("1,x,Ann", texts);
  ASSERT_EQ(wrong.problems.size(), 1U);
  EXPECT_EQ(problemText(wrong.problems[0], texts), "Ligne 1 : Position inconnue : x");
}

TEST(PlayerCsv, WhatWasExportedIsReadInEitherLanguage) {
  const std::vector<TeamPlayer> exported = {
      {"00", {2, "Ann \"Ace\" Long", "6ft 1in", "170", "18", "Sr; x"}, ""},
      {"5", {9, "Zoé", "", "", "", ""}, ""},
      {"6", {4, "A position without a name", "", "", "", ""}, ""},
      {"7", {9, "=cmd|' /C calc'!A0", "+6ft", "-170", "'=1", "''@x"}, ""},
      {"8", {9, "'Bo", "'", "' x", "-", "+1 2"}, ""}};
  Texts texts;
  const std::string english = playersCsv(exported, texts);
  EXPECT_TRUE(english.starts_with(
      "Number,Position,Player Name,Height,Weight,Age,Grade\r\n00,Guard,\"Ann \"\"Ace\"\" Long\","));
  EXPECT_NE(english.find("\r\n7,N/A,'=cmd|' /C calc'!A0,'+6ft,-170,''=1,'''@x\r\n"), std::string::npos);
  for (const Language language : {Language::French, Language::English}) {
    texts.setLanguage(language);
    EXPECT_EQ(parsePlayersCsv(english, texts).players, exported);
    EXPECT_EQ(parsePlayersCsv(playersCsv(exported, texts), texts).players, exported);
  }
}

} // namespace
} // namespace hooptab
