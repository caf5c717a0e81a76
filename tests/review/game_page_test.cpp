// What the page of a game says: rows of the compact box, what tells the teams apart, and both of a stretch.
#include "review/CompactBox.h"
#include "review/Comparison.h"
#include "review/ShownGame.h"
#include "scorecard/Scorecard.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "support/ViewedGame.h"

namespace hooptab {
namespace {

using Emphasis = CompactCell::Emphasis;

class GamePageTest : public testing::Test {
 protected:
  void SetUp() override { readAgain(); }
  void readAgain() {
    ASSERT_EQ(card.load(), GameFileProblem::None);
    shown.show(card.counted());
  }
  std::vector<CompactRow> rows(Side team, const CompactChoice& choice = usualCompactColumns()) const {
    return compactRows(*shown.shown(), shown.insight(), shown.starters(team), team, choice, texts);
  }
  static std::string line(const CompactRow& row) {
    std::string text = (row.isStarter ? "*" : "") + row.number + ' ' + row.name + ' ' + row.position;
    for (const CompactCell& cell : row.cells)
      text += ' ' + cell.text;
    return text;
  }
  static const ComparisonRow& rowOf(const std::vector<ComparisonRow>& rows, std::string_view words) {
    const auto found = std::ranges::find(rows, words, &ComparisonRow::words);
    EXPECT_NE(found, rows.end()) << words;
    return *found;
  }

  ViewedGame game;
  Texts texts;
  Scorecard card{game.store, game.file.path()};
  ShownGame shown;
};

TEST_F(GamePageTest, ARowSaysWhoStartedWhoIsOutAndWhoDidNotPlay) {
  ASSERT_EQ(game.file.setDetails({{"PFMAX", "2"}}), GameFileProblem::None);
  readAgain();
  const std::vector<CompactRow> visitors = rows(Side::Visitor);
  ASSERT_EQ(visitors.size(), 5U);
  EXPECT_EQ(line(visitors[0]), "*4 Ann Able C 00:50 2 1/1 – – 0 0 0 0 0 0 0 0 −1 2");
  EXPECT_EQ(line(visitors[2]), "12 Cleo Carter G 00:00 2 1/1 – – 0 0 0 0 0 0 0 2 out +2 2");
  EXPECT_EQ(line(visitors[3]), "23 Dana Dunn ");
  EXPECT_TRUE(visitors[3].didNotPlay);
  EXPECT_EQ(line(visitors[4]), " TOTAL  01:40 4 2/2 0/1 – 0 0 0 0 0 0 0 2  3");
  const auto emphasisOf = [&](const CompactRow& row, std::size_t place) { return row.cells[place].emphasis; };
  EXPECT_EQ(emphasisOf(visitors[0], 3), Emphasis::Faint);
  EXPECT_EQ(emphasisOf(visitors[0], 13), Emphasis::Down);
  EXPECT_EQ(emphasisOf(visitors[2], 13), Emphasis::Up);
  EXPECT_EQ(emphasisOf(visitors[2], 12), Emphasis::Out);
  const std::vector<CompactRow> home = rows(Side::Home);
  EXPECT_EQ(emphasisOf(home[1], 8), Emphasis::Best) << "the only assist";
  EXPECT_EQ(emphasisOf(home[0], 8), Emphasis::Faint);
}

TEST_F(GamePageTest, TheColumnsAreThoseChosenAndKeptAsText) {
  EXPECT_EQ(choiceOfText(textOfChoice(usualCompactColumns())), usualCompactColumns());
  EXPECT_EQ(textOfChoice(choiceOfText("PTS,nothing,MIN,PTS,TS%")), "PTS,MIN,TS%");
  EXPECT_EQ(choiceOfText("nothing"), usualCompactColumns());
  const CompactChoice choice = choiceOfText("eFG%,USG%,PIR,ORTG");
  EXPECT_EQ(line(rows(Side::Visitor, choice)[0]), "*4 Ann Able C 100.0 50.0 2 66.7");
  EXPECT_EQ(line(rows(Side::Visitor, choice)[4]), " TOTAL  66.7   133.3") << "of players only, or of all";
}

TEST_F(GamePageTest, AStretchIsCountedAloneAndStaysChosenWhenTheFileGrows) {
  shown.choose(Stretch{1, 560, 1, 0}); // from 09:20
  EXPECT_EQ(scoreWords(*shown.shown()), "LYNX 2–0 PUMA");
  EXPECT_EQ(scoreWords(*shown.whole()), "LYNX 4–3 PUMA");
  EXPECT_EQ(stretchWords(shown.whole()->game, *shown.stretch(), texts), "Period 1, 09:20 to 00:00");
  const std::vector<CompactRow> visitors = rows(Side::Visitor);
  EXPECT_EQ(visitors[2].cells[1].text, "2");
  EXPECT_TRUE(visitors[0].isStarter) << "of the whole game";
  EXPECT_FALSE(visitors[2].isStarter) << "though he begins what is left";
  game.add(1, 500, {",GF3,1-8,60,20"});
  readAgain();
  EXPECT_EQ(scoreWords(*shown.shown()), "LYNX 2–3 PUMA");
  // Events are known by their places in the whole game.
  const std::size_t last = shown.whole()->game.events.size() - 1;
  const auto place = shown.shownPlace(last);
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(shown.shown()->game.events[*place].key, shown.whole()->game.events[last].key);
  EXPECT_FALSE(shown.shownPlace(3).has_value());
  shown.choose(std::nullopt);
  EXPECT_EQ(shown.shown(), shown.whole());
}

TEST_F(GamePageTest, AStretchIsNamedByItsPeriodsAndClocks) {
  const Game& whole = shown.whole()->game;
  EXPECT_EQ(stretchWords(whole, Stretch::ofPeriods(3, 3), texts), "Period 3");
  EXPECT_EQ(stretchWords(whole, Stretch::ofPeriods(1, 5), texts), "Period 1 to Period OT1");
  EXPECT_EQ(stretchWords(whole, {1, Stretch::kPeriodBegin, 2, 300}, texts),
            "Period 1, 10:00 to Period 2, 05:00");
}

TEST_F(GamePageTest, ComparedAreTheFourFactorsThenWhatElseTellsTheTeamsApart) {
  game.add(1, 500, {",STO,0-5", ",STO,0-5", ",STO,1-8"});
  readAgain();
  const std::vector<ComparisonRow> teams = compareTeams(shown.insight(), texts);
  const ComparisonRow& effective = teams[0];
  EXPECT_EQ(effective.text[Side::Visitor], "66.7");
  EXPECT_EQ(effective.text[Side::Home], "150.0");
  EXPECT_NEAR(effective.share[Side::Visitor], 0.667, 0.001);
  EXPECT_EQ(effective.share[Side::Home], 1) << "no bar is longer than its room";
  EXPECT_EQ(effective.better, Side::Home);
  const ComparisonRow& turnovers = teams[1];
  EXPECT_EQ(turnovers.better, Side::Visitor) << "40.0 of a hundred against 50.0: the fewer the better";
  const ComparisonRow& bench = rowOf(teams, texts.text(Text::FromTheBench));
  EXPECT_EQ(bench.text[Side::Visitor], "2");
  EXPECT_DOUBLE_EQ(bench.share[Side::Visitor], 0.8)
      << "a count's bar has a quarter more room than the larger";
  EXPECT_FALSE(rowOf(teams, texts.text(Text::TotalRebounds)).better.has_value()) << "nobody has one";
}

TEST_F(GamePageTest, TheTeamsAreComparedWhereItWasCloseAtTheEnd) {
  const auto clutch = [this](bool isFinished) {
    GameDetails details = shown.whole()->game.details;
    details.isFinished = isFinished;
    return compareClutch(shown.insight(), details, texts);
  };
  EXPECT_TRUE(clutch(false).empty()) << "nobody knows yet";
  EXPECT_EQ(clutch(true).at(0).words, "Last 5 minutes, within 5 points: never");
  game.add(4, 300, {",GFG,0-5"});
  game.add(4, 240, {",GF3,1-7"});
  readAgain();
  EXPECT_EQ(clutch(false).at(0).words, "Last 5 minutes, within 5 points · 01:00");
  EXPECT_EQ(clutch(false).at(1).text, (PerSide<std::string>{"2", "3"}));
}

TEST_F(GamePageTest, PlayersAreComparedByCountsAndRates) {
  const auto basis = [&](int player) {
    return basisOfPlayer(*shown.shown(), shown.insight(), Side::Visitor, player);
  };
  const std::vector<ComparisonRow> players = comparePlayers(basis(1), basis(3), texts);
  const ComparisonRow& fouls = rowOf(players, "Personal foul");
  EXPECT_EQ(fouls.text[Side::Home], "2");
  EXPECT_EQ(fouls.better, Side::Visitor);
  const ComparisonRow& margin = rowOf(players, texts.text(Text::ScoreDifference));
  EXPECT_EQ(margin.text[Side::Visitor], "−1");
  EXPECT_EQ(margin.better, Side::Home);
  EXPECT_FALSE(rowOf(players, texts.text(Text::TimeToolTip)).better.has_value());
}

} // namespace
} // namespace hooptab
