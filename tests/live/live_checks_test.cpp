// What the quiet checks find in a recorded game, and what they leave alone.
#include "live/LiveChecks.h"
#include "live/LiveRepairs.h"

#include "storage/EventWords.h"
#include "support/SharedGames.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

class LiveChecksTest : public testing::Test {
 protected:
  void SetUp() override {
    game.details.periods = 4;
    game.details.minutesPerPeriod = 10;
    game.details.personalFoulLimit = 2;
    game.details.technicalFoulLimit = 0;
    game.details.abbreviation[0] = "LYNX";
    game.details.abbreviation[1] = "PUMA";
    for (Roster& roster : game.roster) {
      for (const char* jersey : {"4", "5", "6", "7", "8", "9"})
        roster.add({jersey, 1, std::string("N") + jersey});
    }
    add("10:00,ARRET,IN-04-05-06-07-08,IN-04-05-06-07-08");
    add("10:00,DEPART");
  }
  void add(const std::string& line, int period = 1) {
    game.events.appendOwned(static_cast<std::uint8_t>(period), std::to_string(game.events.size() + 1), line);
  }
  // "3: words" of every finding.
  std::vector<std::string> found() const {
    std::vector<std::string> words;
    for (const LiveFinding& finding : checkRecorded(game))
      words.push_back(std::to_string(finding.event) + ": " + wordsOf(finding, game, texts));
    return words;
  }
  // "Words > key of the event" of what mends each finding.
  std::vector<std::string> repairs() const {
    std::vector<std::string> words;
    for (const LiveFinding& finding : checkRecorded(game)) {
      for (const LiveRepair& repair : repairsOf(finding, game)) {
        const bool isSubstitution = repair.kind == LiveRepair::Kind::Substitution;
        words.push_back(wordsOf(repair, game, texts) + " > " +
                        (isSubstitution ? repair.past.event.key : repair.event.key));
      }
    }
    return words;
  }
  using Words = std::vector<std::string>;

  Game game;
  Texts texts;
};

TEST_F(LiveChecksTest, PlayersAndAssists) {
  add("09:50,GFG,0-4,10,10");
  add("09:50,SA,0-5");
  add("09:50,SA,0-6");  // a second one
  add("09:40,SST,0-9"); // on the bench
  add("09:40,STF,0-9"); // may be there
  add("E09:40,SST,0-9");
  add("09:30,GFTA,1-4");
  add("09:30,SA,1-5");
  add("09:30,GFT,1-4");
  add("09:30,GFTA,1-4");
  add("09:30,SA,1-5"); // for the one that was made
  add("09:20,GDK,1-4");
  add("09:20,SA,1-4"); // his own basket
  add("09:10,SPF,1-8");
  add("E09:10,SPF,1-8");
  add("09:10,SPF,1-8");
  add("09:10,STF,1-8");
  EXPECT_EQ(found(), (Words{"4: Assist by LYNX 6 N6 without a basket just before",
                            "5: LYNX 9 N9 acts, but is not on court",
                            "9: Assist by PUMA 5 N5 without a basket just before",
                            "14: Assist by PUMA 4 N4 without a basket just before",
                            "18: Foul by PUMA 8 N8, already fouled out"}));
  const Words mended = repairs();
  ASSERT_EQ(mended.size(), 10U);
  EXPECT_EQ(mended[0], "Edit > 5");
  EXPECT_EQ(mended[1], "Delete > 5");
  EXPECT_EQ(mended[2], "Substitution Before: 9 N9 Comes In > 6");
  EXPECT_EQ(mended[3], "Change Player > 6");
  EXPECT_EQ(mended[8], "Change Player > 19");
}

TEST_F(LiveChecksTest, FiveOnCourtAndTheirTimes) {
  add("09:00,ARRET,IN-04-05-06-07,IN-04-04-05-06-07-08"); // 2
  add("09:00,DEPART");
  add("08:00,ARRET,IN-04-05-06-07-08,IN-04-05-06-07-08"); // 4
  add("08:00,DEPART");
  add("00:00,ARRET,IN-04-05-06-07-08,IN-04-05-06-07-08"); // 6
  add("10:00,DEPART", 2);
  add("09:00,STO,0-4", 2);
  EXPECT_EQ(found(),
            (Words{"2: PUMA 4 N4 is twice on court", "3: The clock starts with players of LYNX on court: 4",
                   "6: LYNX: players' time in this period 49:00 instead of 50:00"}));
  EXPECT_EQ(repairs(), (Words{"Change Players In and Out > 3", "Change Players In and Out > 3",
                              "Change Players In and Out > 3"}))
      << "one stop is to blame for all";
  game.details.inputType = 1;
  EXPECT_EQ(found(), Words{"2: PUMA 4 N4 is twice on court"}) << "totals have no court";
}

// Recorded by people who did it well: a check that cries wolf would be of no use at the table.
TEST(LiveChecksOfRealGames, AreQuiet) {
  FileSystem disk;
  cinifile store(disk);
  std::size_t events = 0;
  std::size_t findings = 0;
  for (const auto& path : sharedGames()) {
    Game game;
    ASSERT_EQ(GameFile(store, path.string()).read(game), GameFileProblem::None);
    events += game.events.size();
    findings += checkRecorded(game).size();
  }
  EXPECT_LE(findings * 1000, events);
}

} // namespace
} // namespace hooptab
