// What the bench is told of the running game: tiles, players, factors and fives, in words and in figures.
#include "assistant/BenchFigures.h"

#include "insight/SignedText.h"
#include "recording/LiveTable.h"

namespace hooptab {
namespace {

constexpr const char* kRules = "PFMAX=5\nBONUS=5\n";

class BenchFiguresTest : public LiveTableTest {
 protected:
  BenchFigures of(Side us) { return BenchFigures::of(live, BenchRecord(live), us, texts); }
  static std::string words(const BenchFigures::Tile& tile) {
    std::string text = tile.title + " | " + tile.figure;
    for (const std::string& line : tile.lines)
      text += " | " + line;
    return text + (tile.isAlarm ? " !" : "");
  }
  static std::string words(const std::vector<BenchFigures::Player>& players) {
    std::string text;
    for (const BenchFigures::Player& player : players) {
      if (player.hasPlayed)
        text += player.jersey + " " + player.name + " " + std::to_string(player.fouls) + "f " +
                player.minutes + " " + signedText(player.plusMinus) + " " + std::to_string(player.points) +
                "p " + player.stay + (player.isLong ? " long" : "") + (player.isInTrouble ? " !" : "") + "; ";
      else
        text += player.jersey + " " + player.stay + "; ";
    }
    return text;
  }
  static std::string words(const std::vector<BenchFigures::Factor>& factors) {
    std::string text;
    for (const BenchFigures::Factor& factor : factors)
      text += factor.ours + ":" + factor.theirs + (factor.costsMost ? "! " : " ");
    return text;
  }
  static std::string words(const std::vector<BenchFigures::Five>& fives) {
    std::string text;
    for (const BenchFigures::Five& five : fives)
      text += five.jerseys + " " + five.minutes + " " + signedText(five.plusMinus) + " " + five.net +
              (five.isNow ? " now; " : "; ");
    return text;
  }

  // A basket each, a substitution, and behind a time-out of PAN seven points of OLY.
  static inline const std::string kRun =
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n"
      "3=09:40,GDK,0-4\n4=09:20,GDKA,1-3\n5=09:18,SDR,0-5\n6=09:00,SPF,1-3\n7=08:40,SPF,1-3\n"
      "8=08:30,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n9=08:30,DEPART\n"
      "10=08:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n11=08:00,XTO,0\n12=08:00,DEPART\n"
      "13=07:30,STO,0-5\n14=07:20,GDK,1-3\n15=07:00,GDKA,0-5\n16=06:58,SDR,1-7\n17=06:40,GF3,1-3,30,20\n"
      "18=06:00,XTV,0\n19=05:40,GDK,1-7\n20=05:30,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n";
};

TEST_F(BenchFiguresTest, TilesSayTheRunTheTimeOutAndTheFoulsFromEitherSide) {
  open(textOfGame(kRun, kRules));
  BenchFigures ours = of(Side::Visitor);
  EXPECT_EQ(words(ours.run), "Run · OLY | 0–7 | in 01:50 | 3 Hart 5 | 7 Ivers 2 !");
  EXPECT_EQ(words(ours.sinceTimeOut),
            "Since the last time-out (1st 08:00) | 0–7 | Shots 0/1 – 3/3 | TO 2 – 0 !");
  EXPECT_EQ(words(ours.foulTrouble), "Foul trouble |  | Nobody");
  EXPECT_EQ(ours.us.name + std::to_string(ours.us.points) + ours.clock + ours.period, "PAN205:301st");
  EXPECT_EQ(ours.them.foulWords, "3 to give");
  const BenchFigures theirs = of(Side::Home);
  EXPECT_EQ(words(theirs.run), "Run · OLY | 7–0 | in 01:50 | 3 Hart 5 | 7 Ivers 2");
  EXPECT_EQ(words(theirs.foulTrouble), "Foul trouble |  | 3 Hart – 2 · on court !")
      << "two in the first period";
  texts.setLanguage(Language::French);
  ours = of(Side::Visitor);
  EXPECT_EQ(words(ours.sinceTimeOut),
            "Depuis le dernier temps mort (1re 08:00) | 0–7 | Tirs 0/1 – 3/3 | TO 2 – 0 !");
  texts.setLanguage(Language::English);
  open(textOfGame(kBegin, kRules));
  ours = of(Side::Visitor);
  EXPECT_EQ(words(ours.run), "Run | – | No run");
  EXPECT_EQ(words(ours.sinceTimeOut), "Since the beginning | 0–0 | Shots 0/0 – 0/0 | TO 0 – 0");
}

TEST_F(BenchFiguresTest, PlayersHaveTheirTimeHereAndInAll) {
  open(textOfGame(kRun, kRules));
  run(31); // 04:59
  BenchFigures ours = of(Side::Visitor);
  EXPECT_EQ(words(ours.five), "5 Baker 0f 05:01 −5 0p 05:01; 10 Carter 0f 05:01 −5 0p 05:01; "
                              "12 Dunn 0f 05:01 −5 0p 05:01; 15 Ellis 0f 05:01 −5 0p 05:01; "
                              "0 Ford 0f 03:31 −7 0p 03:31; ");
  EXPECT_EQ(words(ours.bench), "4 Able 0f 01:30 +2 2p 03:31; 00 –; ");
  EXPECT_EQ(words(ours.theirFive).substr(0, 33), "3 Hart 2f 05:01 +5 5p 05:01 !; 7 ");
  EXPECT_EQ(ours.thisFive, "together  03:31   +/−  −7   net few");
  live.stop();
  ASSERT_TRUE(live.setOnCourt({0b111100, kFive}) && live.setOnCourt({0b1111100, kFive}));
  run(180); // 01:59
  ours = of(Side::Visitor);
  EXPECT_TRUE(words(ours.five).starts_with("5 Baker 0f 08:01 −5 0p 08:01 long; "));
  EXPECT_TRUE(words(ours.five).ends_with("0 Ford 0f 06:31 −7 0p 06:31; "))
      << "he came back before anybody played";
  EXPECT_TRUE(words(ours.bench).starts_with("4 Able 0f 01:30 +2 2p 06:31; "));
}

TEST_F(BenchFiguresTest, AGameWithoutTimeSaysNone) {
  std::string game = textOfGame(kRun, kRules);
  game.replace(game.find("DUREE=10"), 8, "DUREE=0");
  open(game);
  const BenchFigures ours = of(Side::Visitor);
  EXPECT_EQ(words(ours.run), "Run · OLY | 0–7 | 3 Hart 5 | 7 Ivers 2 !");
  EXPECT_EQ(ours.sinceTimeOut.title, "Since the last time-out (1st)");
  EXPECT_TRUE(words(ours.five).starts_with("5 Baker 0f – −5 0p –; "));
  EXPECT_EQ(ours.thisFive, "together  –   +/−  −7   net few");
}

TEST_F(BenchFiguresTest, WhoHasMoreFoulsThanPeriodsIsInTroubleUntilHeIsOut) {
  std::string game = kRun + "[PERIODE2]\n21=10:00,DEPART\n22=09:00,SPF,0-5\n23=09:00,SPF,0-5\n";
  open(textOfGame(game, kRules));
  EXPECT_EQ(words(of(Side::Visitor).foulTrouble), "Foul trouble |  | Nobody") << "two in the second period";
  game += "24=08:50,SPF,0-5\n25=08:40,SPF,0-4\n26=08:40,SPF,0-4\n27=08:40,SPF,0-4\n28=08:40,SPF,0-4\n";
  open(textOfGame(game, kRules));
  EXPECT_EQ(words(of(Side::Visitor).foulTrouble),
            "Foul trouble |  | 5 Baker – 3 · on court | 4 Able – 4 · one left !");
  game += "29=08:30,SPF,0-4\n30=08:30,ARRET,IN-00-10-12-15,IN-\n";
  open(textOfGame(game, kRules));
  EXPECT_EQ(words(of(Side::Visitor).foulTrouble), "Foul trouble |  | 4 Able – 5 · out | 5 Baker – 3");
  open(textOfGame(game));
  EXPECT_EQ(words(of(Side::Visitor).foulTrouble), "Foul trouble |  | Nobody") << "no limit";
}

TEST_F(BenchFiguresTest, TheFactorThatCostsMostIsOfTheTimeSinceTheTimeOutOnceThatTellsEnough) {
  std::string game = "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n"
                     "3=09:50,GDK,0-4\n4=09:40,GF3A,1-3,30,20\n5=09:38,SOR,1-7\n6=09:35,GDK,1-7\n"
                     "7=09:30,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n8=09:30,XTO,1\n9=09:30,DEPART\n";
  int key = 10;
  const auto exchange = [&](int clock) { // PAN loses the ball, OLY scores
    game += std::to_string(key++) + "=0" + std::to_string(clock) + ":50,STO,0-5\n";
    game += std::to_string(key++) + "=0" + std::to_string(clock) + ":30,GDK,1-3\n";
  };
  for (int minute = 8; minute > 0; --minute)
    exchange(minute);
  open(textOfGame(game));
  EXPECT_EQ(of(Side::Visitor).factorsOf, "Whole game") << "seven possessions since then";
  EXPECT_EQ(words(of(Side::Visitor).factors), "100:90 89:0! –:100 0:0 ");
  EXPECT_EQ(words(of(Side::Home).factors), "90:100! 0:89 100:– 0:0 ");
  exchange(0);
  open(textOfGame(game));
  const BenchFigures ours = of(Side::Visitor);
  EXPECT_EQ(ours.factorsOf, "1st 09:30 to 00:30");
  EXPECT_EQ(words(ours.factors), "–:100 100:0! –:– –:0 ");
  EXPECT_DOUBLE_EQ(ours.factors[1].ourLength, 1);
  EXPECT_EQ(ours.thisFive, "together  09:30   +/−  −18   net −180");
}

TEST_F(BenchFiguresTest, TheBestAndTheWorstFivesStandAboveTheOneOnCourt) {
  const std::string stops[] = {"10:00,ARRET,IN-04-05-10-12-15", "09:00,ARRET,IN-00-05-10-12-15",
                               "08:00,ARRET,IN-00-04-10-12-15", "07:00,ARRET,IN-00-04-05-12-15",
                               "06:00,ARRET,IN-00-04-05-10-15", "05:00,ARRET,IN-00-04-05-10-12"};
  const std::string scores[] = {"09:30,GDK,0-4", "08:30,GF3,0-5,30,20", "07:30,GFTA,0-4",
                                "06:30,GDK,1-3", "05:30,GF3,1-3,30,20", "04:45,GFTA,0-4"};
  std::string game = "[PERIODE1]\n";
  int key = 1;
  for (std::size_t i = 0; i < std::size(stops); ++i) {
    game += std::to_string(key++) + "=" + stops[i] + ",IN-03-07-08-11-22\n";
    open(textOfGame(game));
    if (i == 1) {
      EXPECT_EQ(words(of(Side::Visitor).fives), "4 5 10 12 15 01:00 +2 few; 0 5 10 12 15 00:00 0 few now; ");
    }
    game += std::to_string(key++) + "=" + scores[i] + "\n";
  }
  open(textOfGame(game));
  EXPECT_EQ(words(of(Side::Visitor).fives),
            "0 5 10 12 15 01:00 +3 few; 4 5 10 12 15 01:00 +2 few; 0 4 5 12 15 01:00 −2 few; "
            "0 4 5 10 15 01:00 −3 few; 0 4 5 10 12 00:00 0 few now; ");
}

} // namespace
} // namespace hooptab
