// What the check of a game names, at which event and how gravely, and what it leaves alone.
#include "checks/FindingWords.h"
#include "checks/GameCheck.h"

#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

constexpr const char* kOnCourt =
    "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
    "3=10:00,DEPART\n";
constexpr const char* kStop = "=00:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";

using Named = std::vector<std::string>;

// "4: The clock rises ...", with "wrong " before what cannot be so; "-" for what is no event's.
Named words(const Game& game, const std::vector<Finding>& findings) {
  const Texts texts;
  Named all;
  for (const Finding& finding : findings)
    all.push_back((finding.isWrong() ? "wrong " : "") +
                  (finding.hasEvent() ? std::string(game.events[finding.event].key) : "-") + ": " +
                  wordsOf(finding, game, texts));
  return all;
}
Named named(const std::string& text) {
  const Game game = gameOfText(text);
  return words(game, checkGame(game));
}
Named namedOfFile(const std::string& text) {
  const ProfileText profile(text);
  Game game;
  readGame(profile, game);
  return words(game, checkGame(game, profile, {}));
}
Named namedAfterTipOff(const std::string& events, const std::string& details = {}) {
  return named(textOfGame(kOnCourt + events, details));
}

TEST(GameCheck, LeavesAGoodGameAlone) {
  const std::string events =
      "4=09:41,GFG,0-4,30,100\n5=09:41,SA,0-05\n6=09:20,GF3A,1-22,118,100\n7=09:20,SOR,1-7\n"
      "8=09:10,STF,0-0\n" // the bench, too, is given technical fouls
      "9=08:00,ARRET,IN-00-04-05-10-12,IN-03-07-08-11-22\n10=08:00,DEPART\n11=07:00,STO,0-0\n"
      "12=00:00,ARRET,IN-00-04-05-10-12,IN-03-07-08-11-22\n13=00:00,SPF,1-3\n14=00:00,GFTA,0-4\n15=00:00,SDR,"
      "1-3\n"
      "[PERIODE2]\n16=10:00,DEPART\n17=E12:00,GFG,0-99,30,100\n18=Enonsense\n19=09:00,SOR,0-4\n";
  EXPECT_EQ(namedOfFile(textOfGame(kOnCourt + events, "EVENUM=20\n")), Named{});
  EXPECT_EQ(namedOfFile(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n")), Named{}) << "a new game";
  // A later version's or another program's sections and keys.
  EXPECT_EQ(namedOfFile(textOfGame(kOnCourt + events, "EVENUM=20\nLIGUE=4\n") +
                        "[SECRETAIRE]\n1=x\n[2]\nnothing\n[REPRISE1]\n1=y\n"),
            Named{});
}

TEST(GameCheck, NamesEachLineThatCannotBeUnderstoodAndLetsItMoveNothing) {
  EXPECT_EQ(
      namedAfterTipOff("4=9:41,GFG,0-4\n5=12:00,GFX,0-4\n6=09:00,GFG,2-4\n7=09:00,IN,0-4\nx=09:00,SA,0-4\n"
                       "8=01:00,ARRET,OUT-4,IN-\n9=\n10=08:00,STO,0-4\n11=07:00,ARRET,IN14,IN-\n"),
      (Named{"wrong 4: Cannot be understood: the clock is not mm:ss",
             "wrong 5: Cannot be understood: there is no code \"GFX\"",
             "wrong 6: Cannot be understood: the player is not 0- or 1- and a jersey",
             "wrong 7: Cannot be understood: there is no code \"IN\"",
             "wrong x: The key x is no event number",
             "wrong 8: Cannot be understood: an on-court list is not IN- and jerseys with - between",
             "wrong 9: Cannot be understood: the clock is not mm:ss",
             "wrong 11: Cannot be understood: an on-court list is not IN- and jerseys with - between"}));
}

TEST(GameCheck, NamesNumbersThatAreNotOnceEach) {
  EXPECT_EQ(
      namedOfFile(textOfGame(std::string(kOnCourt) +
                                 "4=09:00,STO,0-4\n4=08:00,STO,0-5\nNOTHING\n7=08:00,STO,0-5\n"
                                 "10=00:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                                 "[PERIODE2]\n9=10:00,DEPART\n7=09:00,STO,0-4\n",
                             "EVENUM=10\n")),
      (Named{"wrong -: A line without \"=\" in section [PERIODE1] is not read: NOTHING",
             "wrong -: EVENUM is 10, but there is an event 10", "wrong 4: The number 4 stands twice",
             "7: No event has the number 5–6: lines may be missing",
             "9: No event has the number 8: lines may be missing", "wrong 7: The number 7 stands twice"}));
  const std::string cut = textOfGame(std::string(kOnCourt) + "4=09:00,STO,0-4\n", "EVENUM=300\n");
  EXPECT_EQ(namedOfFile(cut),
            (Named{"-: EVENUM is 300, but the last event is 4: lines may be missing at the end"}));
}

TEST(GameCheck, NamesSectionsThatAreNearlyOursAndThoseThatStandTwice) {
  const std::string periods = std::string(kOnCourt) + "[PERIOD2]\n[PERIODE02]\n[periode 3]\n[Detail]\n[00]\n"
                                                      "[periode1]\n4=09:00,STO,0-4\n[1]\n";
  EXPECT_EQ(namedOfFile(textOfGame(periods, "EVENUM=4\n")),
            (Named{"-: Section [PERIOD2] is not read; [PERIODE2] may be meant",
                   "-: Section [PERIODE02] is not read; [PERIODE2] may be meant",
                   "-: Section [periode 3] is not read; [PERIODE3] may be meant",
                   "-: Section [Detail] is not read; [DETAILS] may be meant",
                   "-: Section [00] is not read; [0] may be meant",
                   "-: Section [periode1] stands twice; only the first is read",
                   "-: Section [1] stands twice; only the first is read"}));
}

TEST(GameCheck, NamesRostersAndDetailsThatCannotBeSo) {
  std::string text = "[DETAILS]\nVERSION=2.0\nEQUIPE0ABB=PAN\nDATE=2026-02-30\nDUREE=100\nTERMINE=1\n[0]\n";
  for (int jersey = 1; jersey <= 16; ++jersey)
    text += std::to_string(jersey) + "=0,Player\n";
  text += "05=0,Other\n7=1,Hidden\n";
  EXPECT_EQ(namedOfFile(text),
            (Named{"wrong -: DUREE is 100 minutes; a clock shows 0 to 99, and it is read as 99",
                   "-: There is no such date: 2026-02-30", "-: Home: the team has no name",
                   "-: The game is finished and tied, 0-0",
                   "-: PAN: 17 players; those behind the fifteenth are counted together",
                   "wrong -: PAN: two players wear 05", "wrong -: Home has no players",
                   "wrong -: PAN: two players wear 7"}));
}

TEST(GameCheck, NamesPeriodsThatAreMissingOrNotClosed) {
  const std::string cut = std::string(kOnCourt) +
                          "4=09:00,GFT,0-4\n5=00:10,ARRET,IN-04-05-10-12-15,"
                          "IN-03-07-08-11-22\n[PERIODE3]\n6=10:00,DEPART\n7=09:00,STO,0-4\n";
  EXPECT_EQ(named(textOfGame(cut)), Named{"wrong 6: Period 2 is missing"}) << "more may come";
  EXPECT_EQ(
      named(textOfGame(cut, "TERMINE=1\n")),
      (Named{"wrong -: The game is finished after 3 of 4 periods", "5: Period 1 ends at 00:10, not at 00:00",
             "wrong 6: Period 2 is missing", "7: The game ends without a STOP"}));
  EXPECT_EQ(namedAfterTipOff("4=09:00,STO,0-4\n[PERIODE2]\n5=10:00,DEPART\n"),
            Named{"wrong 4: Period 1 was not closed: there is no STOP behind its last START"});
  // Behind the stop a free throw and what follows it may come; what comes first may not.
  EXPECT_EQ(
      namedAfterTipOff("4" + std::string(kStop) +
                       "5=00:00,STO,1-3\n6=00:00,GFT,0-4\n7=00:00,STO,0-4\n[PERIODE2]\n8=10:00,DEPART\n"),
      Named{"5: Recorded after the period was closed"});
  EXPECT_EQ(
      named(textOfGame("[PERIODE1]\n1=00:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=00:00,STO,0-4\n"
                       "[PERIODE2]\n3=00:00,STO,0-4\n",
                       "DUREE=0\n")),
      Named{})
      << "a game without time closes nothing";
}

TEST(GameCheck, KnowsPeriodsThatNoGameHas) {
  EXPECT_EQ(
      named(textOfGame("[PERIODE1]\n1=10:00,ARRET\n[PERIODE255]\n2=05:00,DEPART,x\n"
                       "[PERIODE300]\n4=E05:00,SA,0-4\n5=05:00,SA,0-0004\n"
                       "[PERIODE256]\n3=05:00,ARRET\n",
                       "INPUTTYPE=1\n")),
      (Named{"wrong 3: Section PERIODE256 lies behind the 255 periods that a game can have; it counts with "
             "period 8",
             "wrong 4: Section PERIODE300 lies behind the 255 periods that a game can have; it counts with "
             "period 8"}));
}

TEST(GameCheck, NamesPlayersWhoAreNotInTheRosterOrNotOnCourt) {
  EXPECT_EQ(namedAfterTipOff("4=09:00,SST,0-99\n5=09:00,SPF,0-0\n6=09:00,GFTA,1-4\n"
                             "7=08:00,ARRET,IN-04-05-10-12-77,IN-03-07-08-11-22\n8=08:00,SPF,0-15\n"),
            (Named{"4: PAN 99 is not in the roster", "5: PAN 0 Fay Ford acts, but is not on court",
                   "6: OLY 4 is not in the roster", "7: PAN 77 is on court and not in the roster",
                   "8: PAN 15 Eve Ellis acts, but is not on court"}));
  // Those after the fifteenth are players like any other; totals and sides without players have no line-ups.
  std::string text = "[DETAILS]\nVERSION=2.0\nNBREPERIODE=4\nDUREE=10\n[0]\n";
  for (int jersey = 1; jersey <= 17; ++jersey)
    text += std::to_string(jersey) + "=0,Player\n";
  EXPECT_EQ(named(text + "[1]\n0=9,OLY\n[PERIODE1]\n1=10:00,ARRET,IN-01-02-03-16-17,IN-00\n2=10:00,DEPART\n"
                         "3=09:00,SST,0-16\n4=09:00,SST,0-04\n5=09:00,SST,1-0\n"),
            (Named{"-: Visitor: 17 players; those behind the fifteenth are counted together",
                   "4: Visitor 4 Player acts, but is not on court"}));
  EXPECT_EQ(
      named(textOfGame("[PERIODE1]\n1=00:00,SA,0-4\n2=00:00,GFT,1-3\n3=00:00,SPF,0-99\n", "INPUTTYPE=1\n")),
      Named{"3: PAN 99 is not in the roster"});
}

TEST(GameCheck, NamesAClockThatRisesAndNeighboursThatAreSwapped) {
  EXPECT_EQ(namedAfterTipOff("4=09:00,STO,0-4\n5=05:00,STO,0-4\n6=08:50,STO,0-4\n7=08:40,STO,0-4\n"
                             "8=10:01,STO,0-4\n9=05:40,STO,0-4\n10=06:40,STO,0-4\n11=05:30,STO,0-4\n"),
            (Named{"6: The clock rises from 05:00 to 08:50",
                   "8: The clock of 10:01 exceeds the period's length of 10:00",
                   "10: The neighbours 9 and 10 are swapped"}));
  EXPECT_EQ(namedAfterTipOff("4=09:00,SA,0-5\n5=09:00,GFG,0-4\n6=08:00,SDR,1-3\n7=08:00,GFGA,0-4\n"),
            (Named{"4: The neighbours 4 and 5 are swapped", "6: The neighbours 6 and 7 are swapped"}));
  // An overtime is as long as it begins.
  EXPECT_EQ(
      named(textOfGame(std::string(kOnCourt) + "4" + kStop + "[PERIODE2]\n5" + kStop + "[PERIODE3]\n6" +
                       kStop + "[PERIODE4]\n7" + kStop + "[PERIODE5]\n8=45:00,DEPART\n9=45:01,STO,0-4\n")),
      Named{"9: The neighbours 8 and 9 are swapped"})
      << "an overtime is as long as it begins";
}

TEST(GameCheck, NamesLineUpsAtTheStopThatCausedThem) {
  EXPECT_EQ(
      named(textOfGame("[PERIODE1]\n1=10:00,DEPART\n2=09:00,ARRET,IN-04-05,IN-03-07-08-11-22\n"
                       "3=09:00,ARRET,IN-04-05-10-12-15-00,IN-03-07-08-11-22\n4=09:00,DEPART\n"
                       "5=08:00,ARRET,IN-04-04-05-10-12-15,IN-03-77-08-77-22-77\n6=08:00,DEPART\n"
                       "7=08:00,DEPART\n8=07:00,ARRET,IN-04-05-10-12,IN-03-07-08-11-22\n9=07:00,DEPART\n"
                       "10=07:00,DEPART\n")),
      (Named{"1: The clock starts with players of PAN on court: 0",
             "1: The clock starts with players of OLY on court: 0",
             "wrong 3: The clock runs with more than five players of PAN on court: 6",
             "wrong 5: PAN 4 Ann Able is twice on court", "5: OLY 77 is on court and not in the roster",
             "wrong 5: OLY 77 is twice on court", "5: The clock starts with players of OLY on court: 4",
             "8: The clock starts with players of PAN on court: 4",
             "8: PAN: players' time in this period 09:00 instead of 15:00",
             "8: OLY: players' time in this period 08:00 instead of 15:00"}));
}

TEST(GameCheck, KnowsWhatBelongsToAShot) {
  EXPECT_EQ(
      namedAfterTipOff("4=09:50,GFG,0-4,30,100\n5=09:50,SA,0-5\n6=09:50,SA,0-10\n" // a second one
                       "7=09:30,GFTA,1-3\n8=09:30,SA,1-7\n"
                       "9=09:20,GFT,1-3\n18=09:20,XTO,0\n19=09:20,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                       "10=09:20,GFTA,1-3\n11=09:20,SA,1-7\n20=09:20,DEPART\n" // for the one that was made
                       "12=09:10,GDK,1-3\n13=09:10,SA,1-3\n"                   // his own basket
                       "14=09:00,GDK,1-3\n15=09:00,SDR,0-4\n16=08:00,GFTA,1-3\n17=08:00,SOR,1-3\n"),
      (Named{"6: Assist by PAN 10 Cleo Carter without a basket just before",
             "8: Assist by OLY 7 Ida Ivers without a basket just before",
             "13: Assist by OLY 3 Hana Hart without a basket just before",
             "15: Rebound by PAN 4 Ann Able after a made shot"}));
}

TEST(GameCheck, DoubtsShotsFromThePlaceOfTheOtherKindByTheGamesOwnLine) {
  const std::string shots = "4=09:00,GFG,0-4,120,100\n5=09:00,GF3A,0-4,30,100\n6=09:00,GF3,0-4\n"
                            "7=09:00,GFG,0-4,111,100\n8=09:00,GF3,0-4,111,100\n" // on the line
                            "9=08:00,GF3,0-4,107,100\n10=08:00,GF3,0-4,20,190\n11=07:00,GF3,0-4,20,184\n";
  EXPECT_EQ(
      namedAfterTipOff(shots),
      (Named{"4: A shot for 2 points from the 3-point zone", "5: A shot for 3 points from inside the line",
             "9: A shot for 3 points from inside the line", "11: A shot for 3 points from inside the line"}));
  EXPECT_EQ(namedAfterTipOff(shots, "LIGNE3=625\n"), (Named{"4: A shot for 2 points from the 3-point zone",
                                                            "5: A shot for 3 points from inside the line",
                                                            "7: A shot for 2 points from the 3-point zone"}));
}

TEST(GameCheck, NamesFoulsOfWhoIsOutAndWhatNobodyCanType) {
  EXPECT_EQ(
      namedAfterTipOff("4=09:10,SPF,1-8\n5=E09:10,SPF,1-8\n6=09:10,SPF,1-8\n7=09:10,STF,1-8\n", "PFMAX=2\n"),
      Named{"7: Foul by OLY 8 Jo Jones, already fouled out"});
  std::string events;
  std::string withoutTime = "[PERIODE1]\n1=00:00,ARRET,IN-04-05-10-12-15,IN-\n";
  for (int number = 4; number < 19; ++number) {
    events += std::to_string(number) + "=09:00,GFTA,0-4\n";
    withoutTime += std::to_string(number - 2) + "=00:00,GFTA,0-4\n";
  }
  EXPECT_EQ(namedAfterTipOff(events), Named{"16: 15 of this kind at one second"});
  EXPECT_EQ(named(textOfGame(withoutTime, "DUREE=0\n")), Named{}) << "there all is at one second";
}

TEST(GameCheck, HoldsThrowsAgainstTheFoulsThatAwardedThemWhereTheSheetAsksForBoth) {
  const std::string events =
      "4=09:00,SPF,0-4,F=2\n5=09:00,GFT,1-3\n6=09:00,GFT,1-3\n7=09:00,GFTA,1-3\n8=08:00,SPF,0-4,F=3\n"
      "9=08:00,GFT,1-7\n10=08:00,GFTA,1-7\n11=07:00,GFT,0-5\n12=06:30,GFT,1-8\n13=06:30,SPF,0-4,F=1\n"
      "14=06:00,SPF,0-5,F=2\n15=06:00,GFT,1-3\n";
  const Named named = {"7: OLY 3 Hana Hart takes free throw 3 of a foul that awarded 2",
                       "8: OLY: of the free throws that this foul awarded (3), 2 taken",
                       "11: Free throw by PAN 5 Bea Baker that no foul explains"};
  EXPECT_EQ(namedAfterTipOff(events, "NIVEAU=LEAGUE\n"), named) << "the last one is still to come";
  EXPECT_EQ(namedAfterTipOff(events), Named{});
  const std::string over = namedAfterTipOff(events + "16" + kStop, "NIVEAU=FULL\n").back();
  EXPECT_EQ(over, "14: OLY: of the free throws that this foul awarded (2), 1 taken");
}

TEST(GameCheck, KnowsWhatTheRulesOfTheGameLeave) {
  const std::string events = "4=09:00,XTO,0\n5=08:00,XTO,0,K=FULL\n6=07:00,XTO,1\n7=06:00,XTO,,K=MEDIA\n"
                             "8=05:00,XTO,0\n9=04:00,XCF,1,K=B\n10=04:00,XCF,1,K=C\n11=04:00,XCF,1,K=C\n"
                             "12=03:00,XCF,1,K=C\n";
  EXPECT_EQ(namedAfterTipOff(events, "REGLES=FIBA\n"),
            (Named{"8: Time-out of PAN where the rules leave none; taken before: 2",
                   "12: Technical foul of the coach of OLY, who is already out"}));
  EXPECT_EQ(namedAfterTipOff(events), Named{});
}

TEST(GameCheck, SumsUpWhatComesOften) {
  std::vector<Finding> findings(8, {.kind = FindingKind::NotOnCourt, .event = 3});
  findings.push_back({.kind = FindingKind::Twice, .event = 4});
  const FindingSummary summary = summaryOf(findings, 2);
  ASSERT_EQ(summary.rows.size(), 3U);
  const std::array more{summary.rows[0].more, summary.rows[1].more, summary.rows[2].more};
  EXPECT_EQ(more, (std::array<std::size_t, 3>{0, 6, 0}));
  const Texts texts;
  EXPECT_EQ(countsText(summary, texts), "1 wrong, 8 doubtful");
  EXPECT_EQ(countsText(summaryOf({findings[0]}), texts), "good, 1 doubtful");
}

// Recorded by people who did it well: a check that cries wolf would be of no use at the table.
TEST(GameCheckOfRealGames, IsQuiet) {
  FileSystem disk;
  ProfileStore store(disk);
  std::size_t events = 0;
  std::size_t doubtful = 0;
  for (const auto& path : sharedGames()) {
    Game game;
    GameFile file(store, path.string());
    ASSERT_EQ(file.read(game), GameFileProblem::None);
    events += game.events.size();
    for (const Finding& finding : checkGame(game, file.text(), {})) {
      EXPECT_FALSE(finding.isWrong()) << path << ": " << words(game, {finding})[0];
      ++doubtful;
    }
  }
  EXPECT_LE(doubtful * 100, events);
}

} // namespace
