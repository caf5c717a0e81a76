// Events in words, in both languages, as every list of events shows them.
#include "game/EventWords.h"

#include "support/TextGame.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

std::vector<std::string> allWords(const Game& game, Language language) {
  Texts texts;
  texts.setLanguage(language);
  const EventWords words(game, texts);
  std::vector<std::string> all;
  for (std::size_t i = 0; i < game.events.size(); ++i)
    all.push_back(words.words(i));
  return all;
}

TEST(EventWords, NamePlayerAndActionInBothLanguages) {
  const Game game =
      gameOfText(textOfGame("[PERIODE1]\n1=09:00,GFG,0-4,30,100\n2=09:00,GFTA,1-07\n3=08:50,SDR,1-22\n"
                            "4=08:40,SPF,0-99\n5=E08:30,GLG,0-00\n6=08:20,SU1,0-4\n7=08:10,SU2,0-4\n"
                            "8=08:00,DEPART\n9=07:59,WHAT,0-4\n",
                            "SUPP0=U1-Charges\nSUPP1=U2----\n"));
  EXPECT_EQ(
      allWords(game, Language::English),
      (std::vector<std::string>{"PAN 4 Ann Able: 2 points made", "OLY 7 Ida Ivers: free throw missed",
                                "OLY 22 Lea Lang: defensive rebound", "PAN 99 unknown player: personal foul",
                                "PAN 00 Gia Grant: left layup made", "PAN 4 Ann Able: Charges",
                                "PAN 4 Ann Able: Other 2", "START", "07:59,WHAT,0-4"}));
  EXPECT_EQ(allWords(game, Language::French),
            (std::vector<std::string>{
                "PAN 4 Ann Able : tir de 2 points réussi", "OLY 7 Ida Ivers : lancer franc raté",
                "OLY 22 Lea Lang : rebond défensif", "PAN 99 joueur inconnu : faute personnelle",
                "PAN 00 Gia Grant : double-pas gauche réussi", "PAN 4 Ann Able : Charges",
                "PAN 4 Ann Able : Autre 2", "DÉPART", "07:59,WHAT,0-4"}));
}

TEST(EventWords, TellWhoWentInAndOut) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n"
                                          "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                                          "3=E09:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n"
                                          "4=08:00,ARRET,IN-15-12-10-5-4,IN-03-07-08-11-22\n"
                                          "5=07:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-99\n"
                                          "6=06:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-99\n"));
  const auto english = allWords(game, Language::English);
  EXPECT_EQ(english[0], "STOP");
  EXPECT_EQ(english[1],
            "Substitution - PAN: in 4 Ann Able, 5 Bea Baker, 10 Cleo Carter, 12 Dana Dunn, 15 Eve Ellis - "
            "OLY: in 3 Hana Hart, 7 Ida Ivers, 8 Jo Jones, 11 Kim Knox, 22 Lea Lang");
  EXPECT_EQ(english[2], "Substitution - PAN: in 0 Fay Ford; out 4 Ann Able") << "a deleted one is told, too";
  EXPECT_EQ(english[3], "STOP") << "the same players in another order, and the deleted lists do not count";
  EXPECT_EQ(english[4],
            "Substitution - PAN: in 0 Fay Ford; out 4 Ann Able - OLY: in 99 unknown player; out 22 Lea Lang");
  EXPECT_EQ(english[5], "Substitution - PAN: in 00 Gia Grant; out 0 Fay Ford")
      << "0 is listed as 00, and 00 as 000";
  const Game tooMany = gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-04-05-10-12-15,IN14\n"
                                             "2=10:00,ARRET,IN-04-04-05-10-12-00-15,IN-\n"));
  EXPECT_EQ(allWords(tooMany, Language::English),
            (std::vector<std::string>{
                "10:00,ARRET,IN-04-04-05-10-12-15,IN14",
                "Substitution - PAN: in 4 Ann Able, 5 Bea Baker, 10 Cleo Carter, 12 Dana Dunn"}))
      << "the first five count, each once";
  EXPECT_EQ(allWords(game, Language::French)[2], "Remplacement - PAN : entrée 0 Fay Ford; sortie 4 Ann Able");
}

TEST(EventWords, OfATeamWithoutPlayersNameTheTeamOnce) {
  const Game game = gameOfText("[DETAILS]\nVERSION=2.0\nEQUIPE0ABB=PAN\n[0]\n0=9,PAN\n[1]\n0=9,Visitors\n"
                               "[PERIODE1]\n1=00:00,GFT,0-0\n2=00:00,GFT,1-0\n");
  EXPECT_EQ(allWords(game, Language::English),
            (std::vector<std::string>{"PAN: free throw made", "Home Visitors: free throw made"}));
}

TEST(EventWords, ShowClockAndPeriod) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n1=09:05,DEPART\n2=9:05,DEPART\n"));
  Texts texts;
  const EventWords words(game, texts);
  EXPECT_EQ(words.clock(0), "09:05");
  EXPECT_EQ(words.clock(1), "");
  EXPECT_EQ(words.periodText(4), "4");
  EXPECT_EQ(words.periodText(5) + " " + words.periodText(6), "OT1 OT2");
  texts.setLanguage(Language::French);
  EXPECT_EQ(words.periodText(6), "PROL.2");

  const Game timeless = gameOfText("[DETAILS]\nVERSION=2.0\n[PERIODE5]\n1=00:00,DEPART\n");
  const EventWords timelessWords(timeless, texts);
  EXPECT_EQ(timelessWords.clock(0), "--:--");
  EXPECT_EQ(timelessWords.periodText(5), "5") << "how many periods are regular is not known";
}

} // namespace
