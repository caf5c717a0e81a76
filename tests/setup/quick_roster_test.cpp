#include "setup/SetupWords.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

TEST(QuickRoster, TakesNumbersWithAnySeparatorsInTheirOrder) {
  using Jerseys = std::vector<std::string>;
  EXPECT_EQ(quickRoster("\n 23,7;;00 ,0\t105\r\n").jerseys, (Jerseys{"23", "7", "00", "0", "105"}));
  EXPECT_EQ(quickRoster("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15").jerseys.size(), 15U);
  EXPECT_TRUE(quickRoster(" ,\n").jerseys.empty() && quickRoster("").problem == QuickRoster::Problem::None);
}

TEST(QuickRoster, NamesTheFirstPartThatIsWrongAndWhereItStands) {
  const Texts texts;
  const auto wrong = [&](std::string_view typed) {
    const QuickRoster roster = quickRoster(typed);
    EXPECT_TRUE(roster.jerseys.empty()) << typed;
    EXPECT_EQ(typed.substr(roster.place, roster.part.size()), roster.part) << typed;
    return std::to_string(roster.place) + ": " + wordsOf(roster, texts);
  };
  EXPECT_EQ(wrong("4 x5 7 7"), "2: \"x5\" is no number of a player: one to three digits.");
  for (const char* typed : {"1234", "-5", "5.7", "5\xC3\xA9", "４"})
    EXPECT_TRUE(wrong(typed).starts_with("0: \"")) << typed;
  EXPECT_EQ(wrong("4,7;4"), "4: Number 4 is there twice.");
  EXPECT_EQ(wrong("5 05"), "2: 05 is 5 written otherwise: one number is one player in a team.");
  EXPECT_EQ(wrong("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16"),
            "36: 16 is one too many: fifteen players at most.");
}

} // namespace
} // namespace hooptab
