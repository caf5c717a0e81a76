// Which foul a free throw is for, and how many time-outs the rules leave.
#include "game/FreeThrows.h"
#include "game/TimeOuts.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

// Each throw as "1/2@4" (of the foul of that key), "?" without a foul, "3!2@4" beyond the award; at the end
// what the last event leaves open: "4:1/2", and how many throws count for no foul.
std::string linksOf(const std::string& events, bool hasTime = true) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n" + events));
  FreeThrows throws(hasTime);
  std::string text;
  const auto awarded = [](const std::optional<int>& number) {
    return number ? std::to_string(*number) : std::string("-");
  };
  for (std::size_t place = 0; place < game.events.size(); ++place) {
    const auto link = throws.take(game.events[place], place);
    if (!link)
      continue;
    using Kind = FreeThrows::Link::Kind;
    text += link->kind == Kind::NoFoul
                ? "? "
                : std::to_string(link->number) + (link->kind == Kind::OfFoul ? "/" : "!") +
                      awarded(link->awarded) + '@' + std::string(game.events[link->foul].key) + ' ';
  }
  for (const FreeThrows::Award& award : throws.stand().awards) {
    if (award.isOpen())
      text += std::string(game.events[award.foul].key) + ':' + std::to_string(award.taken) + '/' +
              awarded(award.awarded) + ' ';
  }
  return text + std::to_string(throws.stand().loose.size());
}

TEST(FreeThrows, AreThoseOfTheFoulsAtTheirClock) {
  const std::string two = "1=05:00,SPF,0-4,F=2\n2=05:00,GFT,1-3\n";
  EXPECT_EQ(linksOf(two), "1/2@1 1:1/2 0");
  EXPECT_EQ(linksOf(two + "3=04:58,XTO,0\n4=05:00,ARRET\n5=05:00,XAR,1\n6=05:00,GFTA,1-3\n7=05:00,GFT,1-3\n"),
            "1/2@1 2/2@1 3!2@1 1")
      << "time-out and substitution between them";
  EXPECT_EQ(linksOf(two + "3=E05:00,GFT,1-3\n4=05:00,GFT,0-5\n5=04:44,GFT,1-3\n"), "1/2@1 ? ? 1");
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4\n2=05:00,STF,1-3,F=1\n3=05:00,XCF,0,K=C,F=1\n4=05:00,GFT,1-3\n"
                    "5=05:00,GFT,0-4\n6=05:00,GFT,1-3\n7=05:00,GFT,1-3\n"),
            "1/1@3 1/1@2 1/-@1 2/-@1 1:2/- 0")
      << "a known award before one of which nobody said how many";
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,D=1-3\n2=05:00,SPF,0-5,D=1-07\n3=05:00,GFT,1-7\n"),
            "1/-@2 1:0/- 2:1/- 0")
      << "7 is who drew a foul as 07";
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,F=0\n2=E05:00,SPF,0-4,F=2\n3=05:00,GFT,1-3\n"), "? 1");
}

TEST(FreeThrows, CountForAFoulThatIsRecordedBehindThem) {
  EXPECT_EQ(linksOf("1=05:00,GFT,1-3\n2=05:00,SPF,0-4,F=2\n3=05:00,GFT,1-3\n"), "? 2/2@2 0");
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,F=1\n2=05:00,GFT,1-3\n3=05:00,GFT,1-3\n4=05:00,STF,0-5,F=1\n"),
            "1/1@1 2!1@1 0");
}

TEST(FreeThrows, WaitForTheStopThatComesLate) {
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,F=1\n2=04:57,ARRET\n3=04:57,GFT,1-3\n"), "1/1@1 0");
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,F=1\n2=04:50,ARRET\n3=04:50,GFT,1-3\n"), "1/1@1 0");
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4\n2=04:50,ARRET\n3=04:50,GFT,1-3\n"), "? 1") << "nobody said how many";
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,F=2\n2=05:03,GFT,1-3\n3=04:57,GFTA,1-3\n"), "1/2@1 2/2@1 0")
      << "set right";
  EXPECT_EQ(linksOf("1=05:00,SPF,0-4,F=1\n2=05:00,DEPART\n3=04:57,ARRET\n4=04:57,GFT,1-3\n"), "? 1");
}

TEST(FreeThrows, LastWithoutTimeUntilTheBallIsInPlay) {
  const std::string one = "1=00:00,SPF,0-4,F=2\n2=00:00,GFT,1-3\n";
  EXPECT_EQ(linksOf(one + "3=00:00,GFTA,1-3\n", false), "1/2@1 2/2@1 0");
  EXPECT_EQ(linksOf(one + "3=00:00,SDR,0-4\n4=00:00,GFT,1-3\n", false), "1/2@1 ? 1");
}

// Left for team 0 in a period with so many seconds to play, after time-outs given as "PERIODE1 lines".
int leftAt(std::string_view rules, const std::string& periods, int period, int clockSeconds,
           const std::string& details = {}) {
  const Game game = gameOfText(textOfGame(periods, "REGLES=" + std::string(rules) + '\n' + details));
  const auto left = timeOutsOf(game.details, game.events, Side::Visitor, period, clockSeconds);
  return left ? left->left : -1;
}

TEST(TimeOuts, AreLeftAsTheRulesOfTheGameSay) {
  const std::string first =
      "[PERIODE1]\n1=09:00,XTO,0\n2=08:00,XTO,,K=MEDIA\n3=E08:00,XTO,0\n4=07:00,XTO,1\n";
  EXPECT_EQ(leftAt("FIBA", first, 2, 600), 1);
  EXPECT_EQ(leftAt("FIBA", first + "[PERIODE2]\n5=05:00,XTO,0\n", 2, 300), 0);
  EXPECT_EQ(leftAt("FIBA", first, 3, 600), 3) << "nothing is taken along";
  EXPECT_EQ(leftAt("FIBA", first, 4, 121), 3);
  EXPECT_EQ(leftAt("FIBA", first, 4, 120), 2) << "the third had to be taken before";
  EXPECT_EQ(leftAt("FIBA", first, 4, 0, "DUREE=0\n"), 3) << "no clock tells when";
  const std::string late = first + "[PERIODE4]\n5=03:00,XTO,0\n6=02:00,XTO,0\n7=01:00,XTO,0\n";
  EXPECT_EQ(leftAt("FIBA", late, 4, 60), 0);
  EXPECT_EQ(leftAt("FIBA", late, 5, 300), 1) << "of each overtime its own";
  EXPECT_EQ(leftAt("NBA", late, 4, 60), 0) << "two in the last three minutes: 3:00 is in them";
  EXPECT_EQ(leftAt("NBA", first, 4, 600), 4);
  EXPECT_EQ(leftAt("NBA", late, 5, 300), 2);
  const std::string college = "[PERIODE1]\n1=09:00,XTO,0\n[PERIODE2]\n2=05:00,XTO,0\n";
  EXPECT_EQ(leftAt("NCAA", college, 3, 300, "NBREPERIODE=2\n"), 3) << "two that were kept, and one more";
  EXPECT_EQ(leftAt("NCAA", college + "[PERIODE3]\n3=04:00,XTO,0\n4=03:00,XTO,0\n", 4, 300, "NBREPERIODE=2\n"),
            2);
  EXPECT_EQ(leftAt("", late, 4, 60), -1);
  EXPECT_EQ(leftAt("OTHER", late, 4, 60), -1);
}

} // namespace
} // namespace hooptab
