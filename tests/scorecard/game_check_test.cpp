// What a check of a game file names, and what it leaves alone.
#include "scorecard/GameCheck.h"

#include "support/TextGame.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

constexpr const char* kOnCourt =
    "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
    "3=10:00,DEPART\n";

// "4: the clock rises ...", with "warning " before those that are only that.
std::vector<std::string> named(const Game& game) {
  std::vector<std::string> all;
  for (const GameFinding& finding : checkGame(game))
    all.push_back((finding.isWarning ? "warning " : "") + finding.key + ": " + finding.problem);
  return all;
}
std::vector<std::string> namedAfterTipOff(const std::string& events) {
  return named(gameOfText(textOfGame(kOnCourt + events)));
}
using Named = std::vector<std::string>;

TEST(GameCheck, LeavesAGoodGameAlone) {
  EXPECT_EQ(namedAfterTipOff(
                "4=09:41,GFG,0-4,30,100\n5=09:41,SA,0-05\n6=09:20,GF3A,1-22,118,100\n7=09:20,SOR,1-7\n"
                "8=09:10,STF,0-0\n" // the bench, too, is given technical fouls
                "9=08:00,ARRET,IN-00-04-05-10-12,IN-03-07-08-11-22\n10=08:00,DEPART\n11=07:00,STO,0-0\n"
                "12=00:00,ARRET,IN-00-04-05-10-12,IN-03-07-08-11-22\n"
                "[PERIODE2]\n13=10:00,DEPART\n[PERIODE5]\n14=05:00,DEPART\n15=04:59,GFT,0-4\n"),
            Named{});
}

TEST(GameCheck, NamesEachLineThatCannotBeUnderstoodAndLetsItMoveNothing) {
  EXPECT_EQ(
      namedAfterTipOff("4=9:41,GFG,0-4\n5=12:00,GFX,0-4\n6=09:00,GFG,2-4\n7=09:00,IN,0-4\nx=09:00,SA,0-4\n"
                       "8=01:00,ARRET,OUT-4,IN-\n9=\n10=08:00,SA,0-4\n11=07:00,ARRET,IN14,IN-\n"),
      (Named{"4: cannot be understood: the clock is not mm:ss",
             "5: cannot be understood: there is no code GFX",
             "6: cannot be understood: the player is not 0- or 1- and a jersey",
             "7: cannot be understood: there is no code IN", "x: the key is no event number",
             "8: cannot be understood: an on-court list does not begin with IN",
             "9: cannot be understood: the clock is not mm:ss",
             "11: cannot be understood: an on-court list is not IN- and jerseys with - between"}));
}

TEST(GameCheck, NamesALengthThatNoClockShowsAndPeriodsThatNoGameHas) {
  EXPECT_EQ(
      named(gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET\n[PERIODE255]\n2=05:00,DEPART,x\n"
                                  "[PERIODE300]\n3=E05:00,SA,0-4\n4=05:00,SA,0-0004\n"
                                  "[PERIODE256]\n5=05:00,ARRET\n",
                                  "INPUTTYPE=1\n"))),
      (Named{
          ": section PERIODE256 lies behind the 255 periods that a game can have; it counts with period 8",
          ": section PERIODE300 lies behind the 255 periods that a game can have; it counts with period 8"}));
  for (const char* minutes : {"100", "2147483647", "-1"}) {
    const std::string text = std::string("[DETAILS]\nVERSION=2.0\nNBREPERIODE=1\nDUREE=") + minutes + "\n";
    const std::string shown = *minutes == '-' ? "0" : "99";
    EXPECT_EQ(named(gameOfText(text)),
              (Named{std::string(": DUREE is ") + minutes +
                     " minutes; a clock shows 0 to 99, and it is read as " + shown}));
  }
}

TEST(GameCheck, SkipsDeletedEvents) {
  EXPECT_EQ(namedAfterTipOff(
                "4=E12:00,GFG,0-99,30,100\n5=Enonsense\n6=E09:00,ARRET,IN-04-04,IN-\n7=09:00,SA,0-4\n"),
            Named{});
}

TEST(GameCheck, NamesPlayersWhoAreNotInTheRosterOrNotOnCourt) {
  EXPECT_EQ(namedAfterTipOff("4=09:00,SA,0-99\n5=09:00,SPF,0-0\n6=09:00,GFTA,1-4\n"
                             "7=08:00,ARRET,IN-04-05-10-12-77,IN-03-07-08-11-22\n8=08:00,SPF,0-15\n"),
            (Named{"4: player 99 of PAN is not in the roster", "5: player 0 of PAN is not on court",
                   "6: player 4 of OLY is not in the roster",
                   "7: player 77 of PAN is on court and not in the roster",
                   "8: player 15 of PAN is not on court"}));
}

TEST(GameCheck, KnowsPlayersAfterTheFifteenth) {
  std::string text = "[DETAILS]\nVERSION=2.0\nEQUIPE0ABB=PAN\nNBREPERIODE=4\nDUREE=10\n[0]\n";
  for (int jersey = 1; jersey <= 17; ++jersey)
    text += std::to_string(jersey) + "=0,Player\n";
  text += "[1]\n3=0,A\n7=1,B\n8=2,C\n11=9,D\n22=0,E\n[PERIODE1]\n1=10:00,ARRET,IN-01-02-03-16-17,IN-03-07-08-"
          "11-22\n"
          "2=10:00,DEPART\n3=09:00,SA,0-16\n4=09:00,SA,0-04\n";
  EXPECT_EQ(named(gameOfText(text)), (Named{"4: player 4 of PAN is not on court"}));
}

TEST(GameCheck, NamesAClockThatRisesOrExceedsThePeriod) {
  EXPECT_EQ(namedAfterTipOff("4=09:00,SA,0-4\n5=09:30,SA,0-4\n6=09:00,SA,0-4\n7=10:01,SA,0-4\n"
                             "[PERIODE2]\n8=12:00,SA,0-4\n[PERIODE5]\n9=45:00,SA,0-4\n10=45:01,SA,0-4\n"),
            (Named{"5: the clock rises from 09:00 to 09:30",
                   "7: the clock of 10:01 exceeds the period's length of 10:00",
                   "8: the clock of 12:00 exceeds the period's length of 10:00",
                   "10: the clock rises from 45:00 to 45:01"}));
}

TEST(GameCheck, NamesListsThatAreNotFiveWhenTheClockStarts) {
  EXPECT_EQ(
      named(gameOfText(textOfGame("[PERIODE1]\n1=10:00,DEPART\n2=09:00,ARRET,IN-04-05,IN-03-07-08-11-22\n"
                                  "3=09:00,ARRET,IN-04-05-10-12-15-00,IN-03-07-08-11-22\n4=09:00,DEPART\n"))),
      (Named{"1: the clock starts with 0 players of PAN on court",
             "1: the clock starts with 0 players of OLY on court",
             "4: the clock starts with 6 players of PAN on court"}));
}

TEST(GameCheck, NamesAPlayerWhoIsTwiceInAListOnce) {
  EXPECT_EQ(namedAfterTipOff("4=09:00,ARRET,IN-04-4-04-12-15,IN-03-77-08-77-22\n5=09:00,SA,0-4\n"),
            (Named{"4: player 4 of PAN is twice in the list",
                   "4: player 77 of OLY is on court and not in the roster",
                   "4: player 77 of OLY is twice in the list"}));
}

TEST(GameCheck, WarnsOfAShotFromThePlaceOfTheOtherKind) {
  EXPECT_EQ(namedAfterTipOff("4=09:00,GFG,0-4,120,100\n5=09:00,GF3A,0-4,30,100\n6=09:00,GF3,0-4\n"
                             "7=09:00,GFG,0-4,111,100\n8=09:00,GF3,0-4,111,100\n"), // on the line
            (Named{"warning 4: a shot for 2 points from the 3-point zone",
                   "warning 5: a shot for 3 points from inside the line"}));
}

TEST(GameCheck, AsksForNobodyOnCourtWhereNobodyCanBe) {
  // Totals entered after the game.
  EXPECT_EQ(named(gameOfText(textOfGame("[PERIODE1]\n1=00:00,SA,0-4\n2=00:00,GFT,1-3\n3=00:00,SPF,0-99\n",
                                        "INPUTTYPE=1\n"))),
            (Named{"3: player 99 of PAN is not in the roster"}));
  // A side that is its own one player.
  EXPECT_EQ(named(gameOfText(
                "[DETAILS]\nVERSION=2.0\nNBREPERIODE=4\nDUREE=10\n[0]\n0=9,PAN\n[1]\n0=9,OLY\n"
                "[PERIODE1]\n1=10:00,ARRET,IN-00,IN-\n2=10:00,DEPART\n3=09:00,SA,0-0\n4=09:00,SA,1-0\n")),
            Named{});
}

} // namespace
