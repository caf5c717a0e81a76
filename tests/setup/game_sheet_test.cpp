#include "setup/GameSheet.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

TEST(GameSheet, TellsWhatIsNewAndClearsWhatWasEmptied) {
  GameDetails details;
  details.competition = "Coupe ";
  details.referees = "A. Whistle, B. Card";
  details.coach[Side::Home] = "Zoë Tactic";
  details.targetScore = 21;
  details.level = RecordingLevel::League;
  const GameSheet before = GameSheet::of(details);
  EXPECT_EQ(before.targetScore, "21");
  GameSheet sheet = before;
  sheet.competition = "Coupe";
  sheet.targetScore = "021";
  EXPECT_EQ(sheet.changedFrom(before), GameSheet::KeysAndValues()) << "as the file has it already";
  sheet.referees = " ";
  sheet.round = " final ";
  sheet.coach[Side::Home].clear();
  sheet.captain[Side::Visitor] = "7";
  sheet.targetScore.clear();
  sheet.ruleSet = "NBA";
  sheet.level = RecordingLevel::Basic;
  const GameSheet::KeysAndValues changes = sheet.changedFrom(before);
  EXPECT_EQ(changes, (GameSheet::KeysAndValues{{"RONDE", "final"},
                                               {"ARBITRES", ""},
                                               {"ENTRAINEUR1", ""},
                                               {"CAPITAINE0", "7"},
                                               {"SCORECIBLE", ""},
                                               {"REGLES", "NBA"},
                                               {"NIVEAU", "BASIC"}}));
  for (const auto& [key, value] : changes)
    setDetail(details, key, value);
  EXPECT_EQ(sheet.changedFrom(GameSheet::of(details)), GameSheet::KeysAndValues()) << "each key is a detail";
  for (const auto& [typed, isTarget] :
       {std::pair("", true), {"0", true}, {"100", true}, {"1000", false}, {"-1", false}, {"1 ", false}})
    EXPECT_EQ(GameSheet::isTargetScore(typed), isTarget) << typed;
}

TEST(GameSheet, TheCaptainIsOneOfThePlayersOrTheJerseyThatIsThereAlready) {
  const std::vector<RosterPlayer> players = {
      {"5", 0, "Ann Able"}, {"05", 0, ""}, {"0", 0, "Bea"}, {"00", 0, "Cy"}};
  const std::vector<CaptainChoice> choices = captainChoices(players, "005");
  ASSERT_EQ(choices.size(), 5U) << "005 is there";
  EXPECT_EQ(choices[1].words + '|' + choices[2].words, "5 Ann Able|05");
  for (const auto& [captain, position] :
       {std::pair("", 0U), {"5", 1U}, {"05", 2U}, {"005", 1U}, {"00", 4U}, {"9", 0U}})
    EXPECT_EQ(positionOf(captain, choices), position) << captain;
  const std::vector<CaptainChoice> gone = captainChoices(players, "9");
  ASSERT_EQ(gone.size(), 6U);
  EXPECT_EQ(gone[positionOf("9", gone)].words, "9");
}

} // namespace
} // namespace hooptab
