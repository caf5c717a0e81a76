// What a scouting sheet says of a team in sentences: what is too little to be told, and who is named of
// equals.
#include "report/ScoutKeys.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

using Counts = std::vector<std::pair<Counter, int>>;

ScoutedPlayer player(const std::string& name, const Counts& counts, int games = 5, int minutes = 100) {
  ScoutedPlayer made{name, games, {}};
  made.numbers.seconds = minutes * 60;
  for (const auto& [counter, count] : counts)
    made.numbers.counters.counts[static_cast<std::size_t>(counter)] = count;
  return made;
}

class ScoutKeysTest : public testing::Test {
 protected:
  // All sentences, a line each; what is strong stands in brackets.
  std::string said(const std::vector<ScoutedPlayer>& players,
                   const std::vector<TeamCourse::Period>& periods = {}) const {
    std::string words;
    for (const ScoutKeys::Sentence& sentence : ScoutKeys(players, periods, texts).sentences()) {
      for (const ReportSentences::Part& part : sentence)
        words += part.isStrong ? "[" + part.text + "]" : part.text;
      words += "\n";
    }
    return words;
  }
  std::string nothing() const { return std::string(texts.text(Text::ScoutKeysNone)) + ".\n"; }

  Texts texts;
};

TEST_F(ScoutKeysTest, EachSentenceNamesWhomItIsAboutAndTellsItsCounts) {
  const std::vector<ScoutedPlayer> players = {
      player("2 Sark", {{Counter::FGM, 18}, {Counter::FGA, 30}, {Counter::LRA, 10}, {Counter::LLA, 5}}),
      player("14 Peace", {{Counter::F3M, 7}, {Counter::F3A, 15}}),
      player("4 Ibar", {{Counter::FTM, 5}, {Counter::FTA, 8}, {Counter::TO, 10}})};
  EXPECT_EQ(said(players, {{5, 90, 80}, {5, 70, 95}}),
            "[2 Sark] scores 7.2 a game on 9.0 shots (18/45, eFG 40%); layups 67% (10/15) right.\n"
            "[Do not leave 14 Peace] at the line: 7/15 threes (47%). "
            "[Foul 4 Ibar] if you must: 5/8 free throws (63%).\n"
            "[Period 2] is their worst (−25 over 5 games), period 1 their best (+10). "
            "[Press 4 Ibar]: 4.0 turnovers per 40 minutes (10 TO).\n");
}

TEST_F(ScoutKeysTest, OneShotOrGameLessIsToldOfNobody) {
  const auto of = [](Counter made, Counter tried, int attempts, int hits = 0) {
    return player("4 A", {{made, hits}, {tried, attempts}});
  };
  EXPECT_EQ(said({}), nothing());
  EXPECT_EQ(said({of(Counter::FTM, Counter::FTA, 7)}, {{2, 0, 50}}), nothing());
  EXPECT_EQ(said({of(Counter::F3M, Counter::F3A, 14, 14)}), nothing());
  EXPECT_EQ(said({of(Counter::FGM, Counter::FGA, 14, 14)}), nothing());
  EXPECT_EQ(said({player("4 A", {{Counter::TO, 7}, {Counter::OR, 7}})}), nothing());
  EXPECT_NE(said({of(Counter::FTM, Counter::FTA, 8)}), nothing());
  EXPECT_NE(said({of(Counter::F3M, Counter::F3A, 15)}), nothing());
  EXPECT_NE(said({}, {{3, 0, 1}}), nothing());
  EXPECT_NE(said({player("4 A", {{Counter::OR, 8}})}), nothing());
  // Of a poor shooter from afar the contrary is said; of an even period, or a good one at the line, nothing.
  EXPECT_NE(said({of(Counter::F3M, Counter::F3A, 20, 5)}).find("[4 A] may shoot"), std::string::npos);
  EXPECT_EQ(said({of(Counter::FTM, Counter::FTA, 10, 7)}, {{5, 80, 80}}), nothing());
}

TEST_F(ScoutKeysTest, OfEqualOnesMoreAttemptsAreNamedThenTheFirst) {
  const auto thrower = [](const char* name, int made, int tried) {
    return player(name, {{Counter::FTM, made}, {Counter::FTA, tried}});
  };
  EXPECT_NE(said({thrower("4 A", 4, 8), thrower("5 B", 6, 12)}).find("Foul 5 B"), std::string::npos);
  EXPECT_NE(said({thrower("4 A", 4, 8), thrower("5 B", 4, 8)}).find("Foul 4 A"), std::string::npos);
  EXPECT_NE(said({}, {{5, 10, 20}, {5, 10, 20}}).find("[Period 1]"), std::string::npos);
}

TEST_F(ScoutKeysTest, NobodyIsPressedWhoHardlyPlaysOrWhoseTimeNobodyKnows) {
  EXPECT_EQ(said({player("4 A", {{Counter::TO, 20}}, 5, 49), player("5 B", {{Counter::TO, 20}}, 5, 0)}),
            nothing());
  EXPECT_NE(said({player("4 A", {{Counter::TO, 20}}, 5, 50)}).find("Press 4 A"), std::string::npos);
}

TEST_F(ScoutKeysTest, ASideIsToldOfDrivesThatHaveOne) {
  const auto driver = [](int left, int right) {
    return player("4 A", {{Counter::FGA, 20}, {Counter::LLA, left}, {Counter::LRA, right}});
  };
  EXPECT_NE(said({driver(6, 2)}).find("layups 75% (6/8) left"), std::string::npos);
  EXPECT_EQ(said({driver(6, 5)}).find("layups"), std::string::npos) << "hardly a side";
  EXPECT_EQ(said({driver(7, 0)}).find("layups"), std::string::npos);
  EXPECT_EQ(ScoutKeys::driveShare(driver(6, 2).numbers), 0.25);
}

} // namespace
} // namespace hooptab
