#include "recording/JerseyMatch.h"
#include "recording/LiveTable.h"
#include "recording/SubstitutionLine.h"

namespace hooptab {
namespace {

class SubstitutionTest : public LiveTableTest {
 protected:
  void SetUp() override {
    GameDetails details = regular();
    details.personalFoulLimit = 5;
    create(details, "1 2 3 4 5 6 7 8 9 10 11 0", "1 2 3 4 5 6 7 8 9 10 11 0");
  }
  void play(unsigned visitors, int seconds) {
    ASSERT_TRUE(live.setOnCourt({visitors, kFive}));
    run(seconds);
    live.stop();
  }
  static constexpr unsigned kNextFive = kFive << 5;
};

TEST_F(SubstitutionTest, FiveAreExchangedInElevenClicksInAnyOrder) {
  putFives();
  for (const bool comeFirst : {false, true}) {
    Substitution choice(live);
    EXPECT_FALSE(choice.canAccept()) << "nothing is changed yet";
    for (const bool comes : {comeFirst, !comeFirst}) {
      for (int player = 1; player <= 5; ++player) // ten clicks, and OK
        choice.toggle(Side::Visitor, comes ? player + 5 : player);
      EXPECT_EQ(choice.canAccept(), choice.count(Side::Visitor) <= 5) << choice.count(Side::Visitor);
    }
    EXPECT_EQ(choice.onCourt(), (OnCourt{kNextFive, kFive}));
    EXPECT_TRUE(choice.wasOnCourt(Side::Visitor, 1) && !choice.isChosen(Side::Visitor, 1) &&
                choice.isChosen(Side::Visitor, 6));
  }
}

TEST_F(SubstitutionTest, TooManyAreRefusedAndFewerAreNot) {
  putFives();
  Substitution choice(live);
  choice.toggle(Side::Home, 13); // nobody
  EXPECT_EQ(choice.count(Side::Home), 5);
  choice.toggle(Side::Home, 12);
  EXPECT_EQ(choice.count(Side::Home), 6);
  choice.toggle(Side::Visitor, 1);
  EXPECT_FALSE(choice.canAccept());
  choice.toggle(Side::Home, 12);
  EXPECT_TRUE(choice.canAccept()) << "four of the visitors";
  EXPECT_TRUE(live.setOnCourt(choice.onCourt()));
}

TEST_F(SubstitutionTest, LinesThatHavePlayedAreOfferedMostPlayedFirst) {
  for (int line = 0; line < 7; ++line)
    play(0b11110U | 1U << (5 + line), 10 + line);
  play(0b11110, 60); // four players are no line to take
  play(kNextFive, 5);
  Substitution choice(live);
  ASSERT_EQ(choice.lines(Side::Visitor).size(), Substitution::kMostLines);
  EXPECT_EQ(choice.lines(Side::Visitor)[0], (Substitution::Line{0b11110U | 1U << 11U, 16, "1 2 3 4 11"}));
  EXPECT_EQ(choice.lines(Side::Visitor)[1].jerseys, "1 2 3 4 10");
  EXPECT_TRUE(choice.lines(Side::Home).empty()) << "only those who stand there";
  choice.toggle(Side::Visitor, 12);
  choice.takeLine(Side::Visitor, 1);
  EXPECT_EQ(choice.onCourt(), (OnCourt{choice.lines(Side::Visitor)[1].players, kFive}));
  EXPECT_TRUE(choice.canAccept());
  for (int foul = 0; foul < 5; ++foul)
    EXPECT_TRUE(live.recordAction(Side::Visitor, 11, EventCode::SPF));
  EXPECT_EQ(Substitution(live).lines(Side::Visitor)[0].jerseys, "1 2 3 4 10")
      << "without the one who fouled out";
}

// "|" ends a number, "/" changes the team, "<" takes back, "=" is Enter. Gives who moves, "1-12 1+32 " for
// two of the home team, what is left of a number, "?" where it is refused, "!" behind an Enter that may
// accept.
TEST_F(SubstitutionTest, ANumberIsTakenWhenItCannotGoOnAndElseByASeparatorOrEnter) {
  GameDetails details;
  details.mainTeam = Side::Home;
  create(details, "4 14 21 22 23 24 30 77 9", "1 12 13 14 15 00 0 32 50 7");
  putFives();
  const auto typed = [this](std::string_view keys) {
    Substitution choice(live);
    SubstitutionLine line(live, choice);
    bool mayAccept = false;
    for (const char key : keys) {
      mayAccept = key == '=' && line.enter();
      key == '|' ? line.separate() : key == '/' ? line.changeTeam() : key == '<' ? line.takeBack() : void();
      if (key >= '0' && key <= '9')
        line.type(key - '0');
    }
    std::string result;
    for (int place = 1; place <= 20; ++place) {
      const Side team = place > 10 ? Side::Home : Side::Visitor;
      const int player = place - 10 * numberOf(team);
      if (choice.isChosen(team, player) != choice.wasOnCourt(team, player))
        result += std::to_string(numberOf(team)) + (choice.isChosen(team, player) ? '+' : '-') +
                  live.game().roster[team].player(player)->jersey + ' ';
    }
    return result + line.typed() + (line.isRefused() ? "?" : "") + (mayAccept ? "!" : "");
  };
  const std::pair<const char*, const char*> cases[] = {{"121315325000", "1-12 1-13 1-15 1+00 1+32 1+50 "},
                                                       {"1", "1"},
                                                       {"1|", "1-1 "},
                                                       {"1=", "1-1 !"},
                                                       {"0|", "1+0 "},
                                                       {"00", "1+00 "},
                                                       {"7", "7"},
                                                       {"7=", "1+7 !"},
                                                       {"77", "0+77 "},
                                                       {"09", "0+9 "},
                                                       {"14", "1-14 "},
                                                       {"/14/14", "0-14 1-14 "},
                                                       {"1212", ""},
                                                       {"5=", "1+50 "},
                                                       {"3=", "3?"},
                                                       {"2|", "2?"},
                                                       {"2|1", "0-21 "},
                                                       {"8=", "8?"},
                                                       {"812345", "8123?"},
                                                       {"812<<<12", "1-12 "},
                                                       {"1232<", "1-12 "},
                                                       {"1232<<<", ""}};
  for (const auto& [keys, result] : cases)
    EXPECT_EQ(typed(keys), result) << keys;
}

TEST(JerseyMatch, WaitsWhileSeveralFit) {
  using Fitting = std::vector<FittingJersey>;
  const std::vector<std::string> jerseys = {"12", "1", "", "30", "00", "0", "30", "09"};
  EXPECT_EQ(fittingJerseys(jerseys, "1"), (Fitting{{1, true}, {0, false}})) << "the exact one first";
  EXPECT_EQ(fittingJerseys(jerseys, "12"), (Fitting{{0, true}}));
  EXPECT_EQ(fittingJerseys(jerseys, "3"), (Fitting{{3, false}, {6, false}})) << "one of each team";
  EXPECT_EQ(fittingJerseys(jerseys, "0"), (Fitting{{5, true}, {4, true}, {7, false}}));
  EXPECT_EQ(fittingJerseys(jerseys, "00"), (Fitting{{4, true}}));
  EXPECT_EQ(fittingJerseys(jerseys, "9"), (Fitting{{7, true}}));
  EXPECT_EQ(fittingJerseys(jerseys, "2"), Fitting{});
  EXPECT_EQ(fittingJerseys(jerseys, "").size(), 7U);
}

} // namespace
} // namespace hooptab
