#include "teams/PlayerCsv.h"

#include "storage/Placeholders.h"

#include <gtest/gtest.h>
#include <map>
#include <tuple>

namespace hooptab {
namespace {

std::string players(const CsvPlayers& read) {
  std::string text;
  for (const TeamPlayer& player : read.players)
    text += player.number + '=' + playerValue(player.record) + ' ';
  return text;
}
const std::map<CsvProblem::Kind, std::string> kKinds = {{CsvProblem::Kind::IncompleteHeader, "header"},
                                                        {CsvProblem::Kind::OpenQuote, "quote"},
                                                        {CsvProblem::Kind::NoJersey, "jersey"},
                                                        {CsvProblem::Kind::UnknownPosition, "position"},
                                                        {CsvProblem::Kind::NoName, "name"},
                                                        {CsvProblem::Kind::NumberAgain, "again"},
                                                        {CsvProblem::Kind::NumberWrittenOtherwise, "05"},
                                                        {CsvProblem::Kind::TooLong, "long"}};
std::string problems(const CsvPlayers& read) {
  std::string text;
  for (const CsvProblem& problem : read.problems)
    text += std::to_string(problem.line) + ':' + kKinds.at(problem.kind) + ' ';
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
      {"#,First name,Last Name\n5,Ann,Able\n6,,Bo\n7, ,\n", "5=9,Ann Able,,,,, 6=9,Bo,,,,, ", "4:name "},
      {"Nom;Prénom;No\nAble;Ann;5\n", "5=9,Ann Able,,,,, ", ""},
      {"No,First name\n5,Ann\n", "", "1:header "},
      {"  \n5;G;\"Ann\"\" ,\"\n6;G;,\n", "5=2,Ann\",,,,, ", "3:name "},
      {"5,G,Ann,6'2\"\n6,G,Bo,6'3\",180,18,Sr; x\n", "5=2,Ann,6'2\",,,, 6=2,Bo,6'3\",180,18,Sr; x, ", ""},
      {"5,\"F\",\"Long, \"\"Ann\"\"\r\nMary\"\n6,c,Bo\n7,x,Cy", "5=1,Long  \"Ann\" Mary,,,,, 6=0,Bo,,,,, ",
       "4:position "},
      {"5,,\"Ann\n6,,\"Bo\"\n7,,\"Cy\n", "6=9,Bo,,,,, ", "1:quote 3:quote "},
      {"No,Age\n5,18\n", "", "1:header "},
      {"12.0,,Ann\nA1,,Bo\n1234,,Cy\n,,Dee\n5,,\n5,,Eve\n5,,Fay\n05,,Gil\n8,SF/C,Hal\n", "5=9,Eve,,,,, ",
       "1:jersey 2:jersey 3:jersey 4:jersey 5:name 7:again 8:05 9:position "},
      {"5,,Ann," + std::string(250, 'h') + "\n6,,Bo\x01\x7F\n", "6=9,Bo,,,,, ", "1:long "},
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
  EXPECT_EQ(first.problems.back().kind, CsvProblem::Kind::TooManyRows);
  EXPECT_EQ(problemText(first.problems.back(), texts),
            "Line 1998: More than 1000 players: the rest was not read.");
  const auto words = [&texts](Text text, const std::string& detail) {
    return withPlaceholders(texts.text(Text::LineRefused), "1", texts.withPlaceholder(text, detail));
  };
  const std::tuple<CsvProblem::Kind, std::string, Text> sentences[] = {
      {CsvProblem::Kind::IncompleteHeader, "", Text::IncompleteHeader},
      {CsvProblem::Kind::OpenQuote, "", Text::OpenQuote},
      {CsvProblem::Kind::NoJersey, "", Text::InvalidNumber},
      {CsvProblem::Kind::NoName, "", Text::NoName},
      {CsvProblem::Kind::NumberAgain, "5", Text::NumberAgain},
      {CsvProblem::Kind::NumberWrittenOtherwise, "5", Text::NumberWrittenOtherwise},
      {CsvProblem::Kind::TooLong, "", Text::PlayerTooLong}};
  for (const auto& [kind, detail, text] : sentences)
    EXPECT_EQ(problemText({1, kind, detail}, texts), words(text, detail));
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
