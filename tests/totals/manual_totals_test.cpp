// The totals of a game: rules of counting, the lines they become, and that those lines give the same totals.
#include "totals/ManualTotals.h"

#include "simulator/SampleSeason.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

using Step = ManualTotals::Step;
using Typed = ManualTotals::Typed;
using Lines = std::vector<std::string>;

Game someGame() {
  return gameOfText(textOfGame(""));
}
ManualTotals loaded(const Game& game, const Lines& lines = {}) {
  EventList events;
  for (const std::string& line : lines)
    events.appendOwned(1, std::to_string(events.size() + 1), line);
  ManualTotals totals;
  totals.load(game.roster[Side::Visitor], game.roster[Side::Home], events);
  return totals;
}
constexpr Counter kEvery[] = {Counter::Ast, Counter::S1, Counter::S2, Counter::BS, Counter::DR,
                              Counter::PF,  Counter::ST, Counter::TF, Counter::TO, Counter::OR};

TEST(ManualTotals, WriteTheLinesOfAPlayerInTheirOrder) {
  ManualTotals totals = loaded(someGame());
  ManualSlot& slot = totals.slot(Side::Home, 3); // number 8
  for (const Counter counter : kEvery)
    slot.counters[counter] = 1;
  for (const EventCode code :
       {EventCode::GDK, EventCode::GPB, EventCode::GLG, EventCode::GLD, EventCode::GFT}) {
    slot.counters[kindOf(code)->counter] = 1;
    slot.counters[kindOf(code)->attempts] = 2;
  }
  slot.twoPointers = {{true, "152,87"}, {false, "1,2"}, {true, ""}};
  slot.threePointers = {{false, "40,200"}, {true, "41,7.5"}};
  const Lines wanted = {
      "00:00,SA,1-8",         "00:00,SU1,1-8",      "00:00,SU2,1-8", "00:00,SBS,1-8",
      "00:00,SDR,1-8",        "00:00,SPF,1-8",      "00:00,SST,1-8", "00:00,STF,1-8",
      "00:00,STO,1-8",        "00:00,SOR,1-8",      "00:00,GDK,1-8", "00:00,GDKA,1-8",
      "00:00,GPB,1-8",        "00:00,GPBA,1-8",     "00:00,GLG,1-8", "00:00,GLGA,1-8",
      "00:00,GLD,1-8",        "00:00,GLDA,1-8",     "00:00,GFT,1-8", "00:00,GFTA,1-8",
      "00:00,GFG,1-8,152,87", "00:00,GFGA,1-8,1,2", "00:00,GFG,1-8", "00:00,GF3A,1-8,40,200",
      "00:00,GF3,1-8,41,7.5",
  };
  EXPECT_EQ(totals.lines(), wanted);
  EXPECT_EQ(loaded(someGame(), wanted), totals);

  // Visitors come first, slots decide within a team; 0 and 00 are two players.
  totals = loaded(someGame());
  for (const int entry : {7, 6, 1})
    totals.press(Side::Visitor, entry, EventCode::SA, true, Step::Up);
  totals.press(Side::Home, 1, EventCode::SA, true, Step::Up);
  EXPECT_EQ(totals.lines(), (Lines{"00:00,SA,0-4", "00:00,SA,0-0", "00:00,SA,0-00", "00:00,SA,1-3"}));
  totals.slot(Side::Visitor, 6).number = ManualSlot::kNobody;
  EXPECT_EQ(totals.lines(), (Lines{"00:00,SA,0-4", "00:00,SA,0-00", "00:00,SA,1-3"}));
  totals.slot(Side::Visitor, 1).counters = {};
  totals.slot(Side::Visitor, 1).counters[Counter::DKM] = 2;
  totals.slot(Side::Visitor, 1).counters[Counter::DKA] = 1;
  EXPECT_EQ(totals.lines().size(), 4u) << "more made than attempted: no line of a miss";
  EXPECT_TRUE(loaded(someGame()).lines().empty());
}

TEST(ManualTotals, CountUpAndDownByButton) {
  ManualTotals totals = loaded(someGame());
  struct Press {
    bool isMade;
    Step step;
    int madeAfter, attemptsAfter;
  };
  const Press presses[] = {
      {true, Step::Down, 0, 0},  {false, Step::Down, 0, 0}, {true, Step::Up, 1, 1},
      {false, Step::Down, 1, 1}, {false, Step::Up, 1, 2},   {true, Step::Up, 2, 3},
      {true, Step::Down, 1, 2},  {false, Step::Down, 1, 1}, {true, Step::Down, 0, 0},
  };
  for (const Press& press : presses) {
    const ManualTotals before = totals;
    const bool isChanged = totals.press(Side::Visitor, 1, EventCode::GFT, press.isMade, press.step);
    EXPECT_EQ(isChanged, totals != before);
    const Counters& counts = totals.slot(Side::Visitor, 1).counters;
    EXPECT_EQ(counts[Counter::FTM], press.madeAfter) << "press " << (&press - presses);
    EXPECT_EQ(counts[Counter::FTA], press.attemptsAfter) << "press " << (&press - presses);
  }
  EXPECT_FALSE(totals.press(Side::Visitor, 1, EventCode::SPF, true, Step::Down));
  totals.slot(Side::Visitor, 1).counters[Counter::PF] = ManualTotals::kLargestCount;
  EXPECT_FALSE(totals.press(Side::Visitor, 1, EventCode::SPF, true, Step::Up));
  EXPECT_FALSE(totals.press(Side::Visitor, 1, EventCode::GFG, true, Step::Up)) << "placed on the court";
}

TEST(ManualTotals, TakeTypedCountsThatCanBe) {
  ManualTotals totals = loaded(someGame());
  const auto type = [&](Counter counter, int count) {
    return totals.setCount(Side::Visitor, 1, counter, count);
  };
  const auto counts = [&](Counter counter) { return int{totals.slot(Side::Visitor, 1).counts()[counter]}; };
  EXPECT_EQ(type(Counter::FTM, 3), Typed::Taken);
  EXPECT_EQ(counts(Counter::FTA), 3) << "made needs attempts";
  EXPECT_EQ(type(Counter::FTA, 2), Typed::UnderMade);
  EXPECT_EQ(type(Counter::FTA, 5), Typed::Taken);
  EXPECT_EQ(type(Counter::FTM, 1), Typed::Taken);
  EXPECT_EQ(counts(Counter::FTA), 5);
  EXPECT_EQ(type(Counter::Ast, -1), Typed::OutOfRange);
  EXPECT_EQ(type(Counter::Ast, 1000), Typed::OutOfRange);
  EXPECT_EQ(type(Counter::Ast, 999), Typed::Taken);
  // Field goals: those with a place stay, the rest comes and goes without one.
  totals.addShot(Side::Visitor, 1, EventCode::GFG, true, 10, 20);
  totals.addShot(Side::Visitor, 1, EventCode::GFG, false, 30, 40);
  EXPECT_EQ(type(Counter::FGM, 4), Typed::Taken);
  EXPECT_EQ(std::pair(counts(Counter::FGM), counts(Counter::FGA)), std::pair(4, 5));
  EXPECT_EQ(type(Counter::FGA, 9), Typed::Taken);
  EXPECT_EQ(type(Counter::FGA, 3), Typed::UnderMade);
  EXPECT_EQ(type(Counter::FGA, 4), Typed::UnderPlaced) << "a missed one has a place";
  EXPECT_EQ(type(Counter::FGM, 0), Typed::UnderPlaced);
  EXPECT_EQ(type(Counter::FGM, 1), Typed::Taken);
  EXPECT_EQ(type(Counter::FGA, 2), Typed::Taken);
  EXPECT_EQ(totals.slot(Side::Visitor, 1).twoPointers,
            (std::vector<ManualShot>{{true, "10,20"}, {false, "30,40"}}));
  EXPECT_EQ(type(Counter::F3A, 1), Typed::Taken);
  EXPECT_EQ(totals.slot(Side::Visitor, 1).threePointers, (std::vector<ManualShot>{{false, ""}}));
  totals.deleteShot(Side::Visitor, 1, EventCode::GFG, 1);
  totals.deleteShot(Side::Visitor, 1, EventCode::GFG, 1);
  EXPECT_EQ(totals.slot(Side::Visitor, 1).twoPointers.size(), 1u);
  EXPECT_EQ(pointsOf(totals.teamCounts(Side::Visitor)), 2 + 1);
}

TEST(ManualTotals, ClearedPlayersComeBackWithTheirFirstCount) {
  ManualTotals totals = loaded(someGame(), {"00:00,SA,0-4", "00:00,GF3,0-00,5,5", "00:00,SA,1-3"});
  totals.clear(Side::Visitor);
  for (int entry = 1; entry <= ManualTotals::kSlots; ++entry)
    EXPECT_EQ(totals.slot(Side::Visitor, entry), ManualSlot());
  EXPECT_EQ(totals.lines(), (Lines{"00:00,SA,1-3"}));
  totals.press(Side::Visitor, 7, EventCode::SPF, true, Step::Up);
  EXPECT_EQ(totals.setCount(Side::Visitor, 2, Counter::FTA, 1), Typed::Taken);
  totals.addShot(Side::Visitor, 1, EventCode::GF3, true, 90, 1);
  EXPECT_EQ(totals.setCount(Side::Visitor, 3, Counter::FTA, 0), Typed::Taken);
  EXPECT_EQ(totals.lines(),
            (Lines{"00:00,GF3,0-4,90,1", "00:00,GFTA,0-5", "00:00,SPF,0-00", "00:00,SA,1-3"}));
  EXPECT_TRUE(totals.slot(Side::Visitor, 3).isEmpty()) << "no count, no number";
}

TEST(ManualTotals, KeepWhatTheyDoNotHold) {
  std::string roster = "[DETAILS]\nVERSION=2.0\n[0]\n[1]\n";
  for (int number = 1; number <= 16; ++number)
    roster += std::to_string(number) + "=0,Player\n";
  const Game game = gameOfText(roster);
  const Lines strange = {"00:00,SA,0-99", "E00:00,SA,1-1", "00:00,SX,1-1",        "05:00,SPF,1-1",
                         "00:00,SA,1-16", "nonsense",      "00:00,ARRET,IN-,IN-", "00:00,SA,1-1,7"};
  Lines mixed = strange;
  mixed.insert(mixed.begin() + 2, "00:00,SST,1-015");
  mixed.insert(mixed.begin(), "00:00,SA,1-1");
  const ManualTotals totals = loaded(game, mixed);
  EXPECT_EQ(totals.linesBeside(), strange.size());
  Lines wanted = {"00:00,SA,1-1", "00:00,SST,1-15"};
  wanted.insert(wanted.end(), strange.begin(), strange.end());
  EXPECT_EQ(totals.lines(), wanted);
  EXPECT_EQ(loaded(game, wanted), totals);
  ManualTotals twoPeriods;
  EventList events;
  events.appendOwned(1, "1", "00:00,SA,1-1");
  events.appendOwned(2, "2", "00:00,SA,1-1");
  twoPeriods.load(game.roster[Side::Visitor], game.roster[Side::Home], events);
  EXPECT_EQ(twoPeriods.lines().size(), 1u);
  EXPECT_EQ(twoPeriods.linesBeside(), 1u);
  const ManualTotals many = loaded(game, Lines(1001, "00:00,GFT,1-1"));
  EXPECT_EQ(many.slot(Side::Home, 1).counters[Counter::FTA], ManualTotals::kLargestCount);
  EXPECT_EQ(many.lines().size(), 1001u) << "more than a cell holds";
}

// Whatever a game holds as totals, its lines give the same totals again, and the tally the same counts.
TEST(ManualTotals, OfSimulatedGamesComeBackFromTheirLines) {
  const SampleSeason season(12, 3);
  for (int number = 0; number < 12; ++number) {
    SCOPED_TRACE(number);
    const Game played = season.game(number).inMemory();
    const GameState counted = tallied(played);
    ManualTotals totals = loaded(played);
    for (const Side team : kSides) {
      for (int entry = 1; entry <= ManualTotals::kSlots; ++entry) {
        totals.slot(team, entry).counters = counted.players[team][static_cast<std::size_t>(entry)].counters;
        for (const Counter counter : {Counter::FGM, Counter::FGA, Counter::F3M, Counter::F3A})
          totals.slot(team, entry).counters[counter] = 0;
      }
    }
    for (const Shot& shot : counted.shots)
      totals.addShot(shot.team, shot.player, shot.isThree ? EventCode::GF3 : EventCode::GFG, shot.isMade,
                     static_cast<int>(shot.x), static_cast<int>(shot.y));
    const Lines lines = totals.lines();
    EXPECT_GT(lines.size(), 200u);
    EXPECT_EQ(loaded(played, lines), totals);

    Game entered = played;
    entered.events = {};
    for (const std::string& line : lines)
      entered.events.appendOwned(1, "1", line);
    const GameState again = tallied(entered);
    for (const Side team : kSides) {
      EXPECT_EQ(again.points(team), counted.points(team));
      for (std::size_t entry = 0; entry < GameState::kPlayerEntries; ++entry)
        EXPECT_EQ(again.players[team][entry].counters, counted.players[team][entry].counters);
    }
  }
}

} // namespace
} // namespace hooptab
