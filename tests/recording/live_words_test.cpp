// Words and figures beside the scoreboard: fouls, runs, periods, who plays well together, and which dialogs
// are offered for what a check has found.
#include "recording/LiveWords.h"

#include "checks/GameCheck.h"
#include "game/RunningScore.h"
#include "recording/Fives.h"
#include "recording/LiveRepairs.h"
#include "recording/LiveTable.h"
#include "recording/ScoreText.h"
#include "support/SharedGames.h"

#include <map>

namespace hooptab {
namespace {

class LiveWordsTest : public LiveTableTest {
 protected:
  std::string fouls() {
    std::string text;
    for (const FoulNumber& foul : foulNumbers(live.game()))
      text += foul.ofPlayer == 0 ? "" : foulText(foul, texts) + "; ";
    return text;
  }
};

TEST_F(LiveWordsTest, FoulsNameWhoProfitsAndWhichOneEachIs) {
  open(textOfGame(
      kBegin + "2=09:00,SPF,0-4\n3=09:00,STF,0-04\n4=08:00,SPF,1-3\n5=E07:00,SPF,0-4\n6=07:00,SPF,0-4\n"
               "[PERIODE2]\n7=05:00,SPF,0-99\n8=04:00,SPF,0-4\n[PERIODE4]\n9=05:00,SPF,0-99\n"
               "[PERIODE5]\n10=05:00,SPF,0-5\n[PERIODE6]\n11=05:00,SPF,0-5\n",
      "BONUS=3\nKEEPBONUS=1\n"));
  EXPECT_EQ(fouls(),
            "1st, team 1; 1st, team 2; 1st, team 1; 2nd, team 3; 1st, team 1; 3rd, team 2; 2nd, team 1; "
            "1st, team 2; 2nd, team 3; ");
  EXPECT_EQ(foulWords(live, Side::Visitor, texts) + ' ' + foulWords(live, Side::Home, texts),
            "OLY shoot 2 3 to give");
  texts.setLanguage(Language::French);
  EXPECT_EQ(foulWords(live, Side::Visitor, texts) + ' ' + foulWords(live, Side::Home, texts),
            "2 lancers : OLY 3 à donner");
  EXPECT_EQ(ordinalText(1, texts) + ordinalText(2, texts) + ordinalText(21, texts), "1re2e21e");
  texts.setLanguage(Language::English);
  EXPECT_EQ(ordinalText(11, texts) + ordinalText(13, texts) + ordinalText(22, texts), "11th13th22nd");
  open(textOfGame("[PERIODE3]\n1=05:00,SPF,0-4\n[PERIODE4]\n2=05:00,SST,0-4\n[PERIODE5]\n3=04:00,SPF,0-4\n",
                  "KEEPBONUS=1\n"));
  EXPECT_EQ(fouls(), "1st, team 1; 2nd, team 1; ") << "none of the last regular period";
  EXPECT_EQ(foulWords(live, Side::Visitor, texts), "") << "no limit";
}

TEST_F(LiveWordsTest, TheRunAndTheFiveFollowTheGame) {
  open(textOfGame(kBegin));
  EXPECT_FALSE(lastRun(live.game().events));
  putFives();
  run(59);
  ASSERT_TRUE(live.recordShot(Side::Visitor, 1, EventCode::GF3, true) &&
              live.recordShot(Side::Home, 1, EventCode::GDK, true));
  EXPECT_EQ(Fives::of(live).current[Side::Visitor], (FivePlay{kFive, "4 5 10 12 15", 59, 3, 2}));
  EXPECT_FALSE(Fives::of(live).best(Side::Visitor));
  time.now += 1;
  EXPECT_EQ(Fives::of(live).best(Side::Visitor)->plusMinus(), 1);
  live.stop();
  ASSERT_TRUE(live.setOnCourt({0b1111010, kFive}));
  run(100);
  ASSERT_TRUE(live.recordShot(Side::Home, 1, EventCode::GFT, true) &&
              live.recordShot(Side::Visitor, 1, EventCode::GF3, false));
  EXPECT_EQ(lastRun(live.game().events)->team, Side::Home);
  EXPECT_EQ(runText(*lastRun(live.game().events)), "3–0");
  EXPECT_EQ(Fives::of(live).current[Side::Visitor], (FivePlay{0b1111010, "0 4 10 12 15", 100, 0, 1}));
  EXPECT_EQ(Fives::of(live).best(Side::Visitor)->seconds, 60);
}

TEST_F(LiveWordsTest, RepairsLeadToTheEventThatIsToBlame) {
  const Game game = gameOfText(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:50,SA,0-5\n"
      "4=09:40,SST,0-0\n5=09:00,ARRET,IN-04-05-10-12,IN-03-03-07-08-11-22\n6=09:00,DEPART\n"
      "7=08:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n8=08:00,DEPART\n"));
  std::vector<std::string> words; // "Words > key of the event" of what mends each finding
  for (const Finding& finding : checkGame(game)) {
    for (const LiveRepair& repair : repairsOf(finding, game)) {
      const bool isSubstitution = repair.kind == LiveRepair::Kind::Substitution;
      words.push_back(wordsOf(repair, game, texts) + " > " +
                      (isSubstitution ? repair.past.event.key : repair.event.key));
    }
  }
  EXPECT_EQ(words, (std::vector<std::string>{
                       "Edit > 3", "Delete > 3", "Substitution Before: 0 Fay Ford Comes In > 4",
                       "Change Player > 4", "Change Players In and Out > 5", "Change Players In and Out > 5",
                       "Change Players In and Out > 5", "Change Players In and Out > 5"}));
}

// Counted here from the lists as they are written and from the score as it grew.
TEST_F(LiveWordsTest, RealGamesAddUp) {
  for (const auto& file : sharedGames()) {
    SCOPED_TRACE(file);
    ASSERT_EQ(live.open(file.string(), LiveGame::Access::Reading), GameFileProblem::None);
    const Game& game = live.game();
    const auto score = runningScore(game.events);
    const auto fouls = foulNumbers(game);
    PerSide<std::string> lists;
    PerSide<std::map<std::string, int>> plusMinus;
    PerSide<std::map<int, int>> personal;        // by entry
    PerSide<std::map<std::size_t, int>> ofTeams; // by period
    for (std::size_t place = 1; place < game.events.size(); ++place) {
      const GameEvent& event = game.events[place];
      for (const Side team : kSides) {
        if (event.code == EventCode::ARRET)
          lists[team] = event.onCourt(team);
        plusMinus[team][lists[team]] += score[place][team] - score[place - 1][team] -
                                        score[place][otherSide(team)] + score[place - 1][otherSide(team)];
      }
      if (fouls[place].ofTeam == 0)
        continue;
      const Side team = *event.player.team;
      ofTeams[team][static_cast<std::size_t>(event.period)] = fouls[place].ofTeam;
      if (event.code == EventCode::SPF)
        personal[team][game.roster[team].entryOf(event.player.jersey)] = fouls[place].ofPlayer;
    }
    const ScoreByPeriod byPeriod = scoreByPeriod(live, texts);
    const Fives fives = Fives::of(live);
    for (const Side team : kSides) {
      for (const auto& [entry, count] : personal[team])
        EXPECT_EQ(count,
                  live.state().players[team].at(static_cast<std::size_t>(entry)).counters[Counter::PF]);
      int points = 0;
      for (std::size_t row = 0; row < byPeriod.periods.size(); ++row) {
        points += byPeriod.periods[row].ofTeam[team].points;
        EXPECT_EQ(byPeriod.periods[row].ofTeam[team].fouls, ofTeams[team][row + 1]) << row;
      }
      EXPECT_EQ(points, score.back()[team]);
      int best = -1000;
      for (const LineEntry& line : live.state().lines[team])
        best = std::max(best, line.seconds >= Fives::kShortest ? plusMinus[team][line.list] : best);
      EXPECT_EQ(fives.best(team)->plusMinus(), best);
      EXPECT_EQ(plusMinus[team][game.roster[team].listOf(fives.best(team)->players)], best);
    }
  }
}

} // namespace
} // namespace hooptab
