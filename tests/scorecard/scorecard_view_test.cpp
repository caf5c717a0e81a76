#include "scorecard/ColumnWords.h"
#include "scorecard/FileChange.h"
#include "scorecard/Scoreboard.h"
#include "scorecard/Scorecard.h"
#include "scorecard/ScorecardView.h"

#include <gtest/gtest.h>

#include "support/ViewedGame.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <set>

namespace hooptab {
namespace {

class ScorecardViewTest : public testing::Test {
 protected:
  void SetUp() override { readAgain(); }
  void readAgain() {
    ASSERT_EQ(card.load(), GameFileProblem::None);
    view.show(card.counted());
  }
  const BoxRow& rowOf(std::string_view number) const {
    return *std::ranges::find(view.rows(), number, &BoxRow::number);
  }
  const BoxRow& total() const { return view.rows().back(); }

  ViewedGame game;
  Texts texts;
  Scorecard card{game.store, game.file.path()};
  ScorecardView view{texts};
};

using CheckMark = ScorecardView::CheckMark;
using Scope = ScorecardView::Scope;

TEST_F(ScorecardViewTest, EverybodyIsCheckedAtFirstAndAMarkDecidesOverChartAndTotal) {
  EXPECT_EQ(view.checkMark(total()), CheckMark::All);
  const auto [two, three] = shotSummary(view.shots());
  EXPECT_EQ((std::array{two.made, two.attempted, three.made, three.attempted}), (std::array{2, 2, 0, 1}));
  EXPECT_EQ(total().numbers.points(), 4);
  view.check(rowOf("12"), false);
  EXPECT_EQ(view.checkMark(rowOf("12")), CheckMark::None);
  EXPECT_EQ(view.checkMark(rowOf("4")), CheckMark::All);
  EXPECT_EQ(view.checkMark(total()), CheckMark::Some);
  EXPECT_EQ(view.shots().size(), 2U);
  EXPECT_EQ(total().numbers.points(), 2);
  EXPECT_EQ(total().name, "Selected (3)");
  EXPECT_EQ(total().numbers.counters[Counter::PF], 0) << "both fouls were number 12's";
  view.setScope(Scope::All);
  EXPECT_EQ(view.shots().size(), 3U);
  EXPECT_EQ(total().name, "TOTAL");
  EXPECT_EQ(total().numbers.points(), 4);
  EXPECT_EQ(view.checkMark(rowOf("12")), CheckMark::None) << "the mark itself stays";
}

TEST_F(ScorecardViewTest, MarksAreKeptByTeamAndViewAndThroughANewReading) {
  view.check(rowOf("4"), false);
  view.setTeam(Side::Home);
  EXPECT_EQ(view.checkMark(total()), CheckMark::All);
  EXPECT_EQ(view.shots().size(), 1U);
  view.setTeam(Side::Visitor);
  view.setView(BoxView::Lines);
  ASSERT_EQ(view.rows().size(), 3U) << "two lines and the total";
  view.check(rowOf("1"), false);
  EXPECT_EQ(view.shots().size(), 1U) << "the team's shots while the second line was on court";

  game.add(1, 500, {stopText("IN-05-23", "IN-07-08"), startText()});
  game.add(1, 490, {",GF3A,0-5,110,90"});
  readAgain();
  ASSERT_EQ(view.rows().size(), 4U);
  EXPECT_EQ(view.checkMark(rowOf("1")), CheckMark::None);
  EXPECT_EQ(view.checkMark(rowOf("3")), CheckMark::All) << "a new line is checked";
  view.setView(BoxView::Players);
  EXPECT_EQ(view.checkMark(rowOf("4")), CheckMark::None);
  view.forgetChecks();
  EXPECT_EQ(view.checkMark(total()), CheckMark::All);
}

TEST_F(ScorecardViewTest, TheBoardShowsScorePeriodsFoulsAndLead) {
  Scoreboard board = scoreboard(*card.counted(), texts);
  EXPECT_EQ(std::pair(board.teams[Side::Visitor].points, board.teams[Side::Home].points), std::pair(4, 3));
  ASSERT_EQ(board.periods.size(), 4U);
  EXPECT_EQ(board.periods[0].points[Side::Visitor], 4);
  EXPECT_EQ(board.periods[0].fouls[Side::Visitor], 2);
  EXPECT_TRUE(board.periods[0].isInBonus[Side::Visitor]);
  EXPECT_FALSE(board.periods[0].isInBonus[Side::Home]);
  EXPECT_TRUE(board.periods[0].isPlayed);
  EXPECT_FALSE(board.periods[1].isPlayed);
  EXPECT_EQ(board.clock, "09:00");
  EXPECT_EQ(board.period, "1");
  EXPECT_FALSE(board.isFinished);
  // Tied 10 s, team 0 ahead 20 s, then team 1 for 30 s until the last basket.
  EXPECT_EQ(board.leads[0].time + board.leads[1].time + board.leads[2].time, "00:2000:3000:10");
  EXPECT_EQ(std::pair(board.leads[0].times, board.leads[1].times), std::pair(2, 1));
  game.add(5, 300, {",GFT,1-7"});
  readAgain();
  board = scoreboard(*card.counted(), texts);
  ASSERT_EQ(board.periods.size(), 5U);
  EXPECT_EQ(board.periods[4].label, "OT1") << "the only overtime has its number, as at the table";
  EXPECT_EQ(board.period, "OT1");
  game.add(6, 300, {",GFT,1-7"});
  game.add(10, 300, {",GFT,1-7"});
  readAgain();
  board = scoreboard(*card.counted(), texts);
  ASSERT_EQ(board.periods.size(), 8U);
  EXPECT_NE(board.periods[4].label, board.periods[5].label);
  EXPECT_TRUE(board.periods[7].label.ends_with('+')) << "periods from 8 on share a column";
  EXPECT_EQ(board.periods[7].points[Side::Home], 1);
}

TEST_F(ScorecardViewTest, EveryColumnHasItsOwnWords) {
  Settings settings(game.store, game.folder.path());
  settings.statisticLabel[1] = "U2-Deflections";
  const auto& labels = card.game().details.statisticLabel;
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    std::set<std::string> words;
    for (const BoxColumn& column : boxColumns()) {
      if (column.widthTwips > 0) {
        EXPECT_TRUE(words.insert(columnWords(column.index, labels, settings, texts)).second) << column.name;
      }
    }
    EXPECT_FALSE(words.contains("PTS"));
  }
  const std::string ofGame = columnWords(31, labels, settings, texts);
  EXPECT_NE(ofGame.find("Charges"), std::string::npos);
  EXPECT_EQ(ofGame.find("U1-"), std::string::npos) << "without its prefix";
  EXPECT_NE(columnWords(32, labels, settings, texts).find("Deflections"), std::string::npos);
  const std::string none[2];
  settings.statisticLabel[0].clear();
  EXPECT_EQ(columnWords(31, none, settings, texts), "Première statistique personnalisée") << "and no colon";
  settings.ownRating = {"PTS + 2 * ST", "MOI"};
  EXPECT_TRUE(columnWords(34, none, settings, texts).ends_with("\nLa vôtre : MOI = PTS + 2 * ST"));
}

TEST(FileChangeTest, SeesWritingRemovalAndReturn) {
  using namespace std::chrono_literals;
  namespace fs = std::filesystem;
  TemporaryFolder folder;
  FileSystem files;
  const std::string path = folder.write("a.GAM", "one");
  FileChange change(files, path);
  EXPECT_TRUE(change.mayHaveChanged()) << "never read";
  change.remember();
  EXPECT_TRUE(change.mayHaveChanged()) << "written a moment ago: an equal stamp proves nothing yet";
  fs::last_write_time(path, fs::file_time_type::clock::now() - 10s);
  change.remember();
  EXPECT_FALSE(change.mayHaveChanged());
  folder.write("a.GAM", "two");
  EXPECT_TRUE(change.mayHaveChanged());
  fs::last_write_time(path, fs::file_time_type::clock::now() - 10s);
  change.remember();
  fs::remove(path);
  EXPECT_TRUE(change.mayHaveChanged());
  change.remember();
  folder.write("a.GAM", "two");
  EXPECT_TRUE(change.mayHaveChanged()) << "it is back";
}

} // namespace
} // namespace hooptab
