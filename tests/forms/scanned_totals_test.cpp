// From what was read from a sheet to the totals of a game: numbers, counts, doubts, corrections, and nothing
// lost on the way.
#include "forms/ScannedTotals.h"
#include "game/GameFile.h"
#include "support/TextGame.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string_view>

namespace hooptab {
namespace {

using Way = ScannedTotals::Way;
using State = CheckedSheet::Jersey::State;

class ScannedTotalsTest : public testing::Test {
 protected:
  ScannedTotalsTest() { reading.cells.resize(layout->cells().size()); }

  std::size_t place(int player, FormCell::Kind kind, Counter counter, int number) const {
    const auto isMeant = [&](const FormCell& cell) {
      return cell.player == player && cell.kind == kind && cell.counter == counter && cell.number == number;
    };
    return static_cast<std::size_t>(std::ranges::find_if(layout->cells(), isMeant) - layout->cells().begin());
  }
  void tick(int player, FormCell::Kind kind, Counter counter, int count) {
    for (int number = 0; number < count; ++number)
      reading.cells.at(place(player, kind, counter, number)).isTicked = true;
  }
  // Digits from the units on; a blank is a place without one, '*' two of them.
  void number(int player, std::string_view digits) {
    for (std::size_t index = 0; index < layout->cells().size(); ++index) {
      const FormCell& cell = layout->cells()[index];
      const int digit = cell.place - 3 + static_cast<int>(digits.size());
      if (cell.player != player || cell.kind != FormCell::Kind::JerseyDigit || digit < 0)
        continue;
      const char wanted = digits[static_cast<std::size_t>(digit)];
      if (wanted == '0' + cell.number || (wanted == '*' && cell.number < 2))
        reading.cells[index].isTicked = true;
    }
  }
  ScannedTotals scanned() const {
    return ScannedTotals(CheckedSheet(layout, reading), Side::Visitor, game.roster[Side::Visitor]);
  }
  static std::vector<int> of(const Counters& counts, auto... counters) { return {counts[counters]...}; }

  std::shared_ptr<const FormLayout> layout = std::make_shared<FormLayout>();
  FormReading reading;
  Game game = gameOfText(textOfGame(""));
  ManualTotals totals = [this] {
    ManualTotals loaded;
    loaded.load(game.roster[Side::Visitor], game.roster[Side::Home], {});
    return loaded;
  }();
};

TEST_F(ScannedTotalsTest, ReadsNumbersAsTheirDigitsAreTicked) {
  const std::tuple<std::string_view, State, std::string_view, int> cases[] = {
      {"", State::None, "", 0},           {"4", State::Readable, "4", 1},   {"04", State::Readable, "04", 1},
      {"15", State::Readable, "15", 5},   {"0", State::Readable, "0", 6},   {"00", State::Readable, "00", 7},
      {"015", State::Readable, "015", 5}, {"99", State::Readable, "99", 0}, {"1 ", State::Unreadable, "", 0},
      {"1 5", State::Unreadable, "", 0},  {"1*", State::Unreadable, "", 0}};
  for (const auto& [digits, state, expected, slot] : cases) {
    reading.cells.assign(layout->cells().size(), {});
    number(2, digits);
    const ScannedTotals read = scanned();
    EXPECT_EQ(read.sheet.jersey(2).state, state) << digits;
    EXPECT_EQ(read.sheet.jersey(2).number, expected) << digits;
    EXPECT_EQ(read.slot(2), slot) << digits;
  }
}

TEST_F(ScannedTotalsTest, CountsTheTickedCellsOfEachRow) {
  tick(1, FormCell::Kind::Made, Counter::F3M, 3);
  tick(1, FormCell::Kind::Missed, Counter::F3M, 14);
  tick(1, FormCell::Kind::Missed, Counter::DKM, 1);
  tick(1, FormCell::Kind::Count, Counter::OR, 5);
  reading.cells[place(1, FormCell::Kind::Count, Counter::OR, 2)].isTicked = false; // a gap
  Counters expected;
  expected[Counter::F3M] = 3;
  expected[Counter::F3A] = 17;
  expected[Counter::DKA] = 1;
  expected[Counter::OR] = 4;
  EXPECT_EQ(CheckedSheet(layout, reading).counts(1), expected);
  EXPECT_FALSE(CheckedSheet(layout, reading).hasCounts(0));
}

TEST_F(ScannedTotalsTest, KeepsDoubtsUntilTheUserHasLooked) {
  tick(0, FormCell::Kind::Made, Counter::FTM, 2);
  const std::size_t third = place(0, FormCell::Kind::Made, Counter::FTM, 2);
  const std::size_t units = place(3, FormCell::Kind::JerseyDigit, Counter::FGM, 7);
  reading.cells[third].isDoubtful = true;
  reading.cells[units].isDoubtful = reading.cells[units].isTicked = true;
  CheckedSheet sheet(layout, reading);
  EXPECT_EQ(sheet.doubtfulCells(), (std::vector<std::size_t>{third, units}));
  EXPECT_TRUE(sheet.count(0, Counter::FTM).isOpen && sheet.count(0, Counter::FTA).isOpen);
  EXPECT_FALSE(sheet.count(0, Counter::F3M).isOpen);
  EXPECT_TRUE(sheet.jersey(3).isOpen);
  EXPECT_FALSE(sheet.hasCorrections());
  sheet.settle(third, false); // as it was read
  EXPECT_EQ(sheet.openCells(), 1);
  EXPECT_FALSE(sheet.count(0, Counter::FTM).isOpen || sheet.count(0, Counter::FTM).isCorrected);
  sheet.settle(third, true);
  EXPECT_EQ(sheet.count(0, Counter::FTM).value, 3);
  EXPECT_TRUE(sheet.count(0, Counter::FTA).isCorrected && sheet.hasCorrections());
  EXPECT_EQ(sheet.doubtfulCells().size(), 2u) << "it can be looked at again";
}

TEST_F(ScannedTotalsTest, TakesTypedCountsUntilTheCellsCountAgain) {
  tick(0, FormCell::Kind::Made, Counter::FTM, 2);
  tick(0, FormCell::Kind::Missed, Counter::FTM, 1);
  CheckedSheet sheet(layout, reading);
  EXPECT_FALSE(sheet.typeCount(0, Counter::FTA, 1)) << "fewer than made";
  EXPECT_FALSE(sheet.typeCount(0, Counter::Ast, ManualTotals::kLargestCount + 1));
  EXPECT_FALSE(sheet.typeCount(0, Counter::Ast, -1));
  EXPECT_TRUE(sheet.typeCount(0, Counter::FTM, 20));
  EXPECT_EQ(sheet.count(0, Counter::FTA).value, 20) << "made shots are attempts";
  EXPECT_TRUE(sheet.typeCount(0, Counter::Ast, 15));
  EXPECT_TRUE(sheet.count(0, Counter::Ast).isTyped);
  sheet.settle(place(0, FormCell::Kind::Missed, Counter::FTM, 5), true);
  EXPECT_EQ(sheet.count(0, Counter::FTM).value, 2);
  EXPECT_EQ(sheet.count(0, Counter::FTA).value, 4);
  EXPECT_EQ(sheet.count(0, Counter::Ast).value, 15) << "another row";
  sheet.recount();
  EXPECT_EQ(sheet.count(0, Counter::Ast).value, 0);
  EXPECT_TRUE(sheet.isTicked(place(0, FormCell::Kind::Missed, Counter::FTM, 5))) << "corrections stay";
}

TEST_F(ScannedTotalsTest, BelongsToATeamOfTheGame) {
  game.details.category[Side::Home] = "AAA ";
  using Teams = PerSide<bool>;
  EXPECT_EQ(teamsOf({0, false, 0}, game.details), (Teams{true, true}));
  EXPECT_EQ(teamsOf({1, true, FormIdentifier::teamNumber("PAN", "")}, game.details), (Teams{true, false}));
  EXPECT_EQ(teamsOf({1, true, FormIdentifier::teamNumber("OLY", "AAA")}, game.details), (Teams{false, true}));
  EXPECT_EQ(teamsOf({1, true, FormIdentifier::teamNumber("OLY", "")}, game.details), (Teams{false, false}));
}

TEST_F(ScannedTotalsTest, AddsOrReplacesForThePlayersOfTheSheetAlone) {
  number(0, "5");
  tick(0, FormCell::Kind::Made, Counter::FGM, 2);
  tick(0, FormCell::Kind::Missed, Counter::FGM, 1);
  tick(0, FormCell::Kind::Count, Counter::PF, 3);
  number(1, "12");
  totals.addShot(Side::Visitor, 2, EventCode::GFG, true, 10, 20);
  ASSERT_TRUE(totals.press(Side::Visitor, 2, EventCode::SPF, true, ManualTotals::Step::Up));
  ASSERT_TRUE(totals.press(Side::Visitor, 4, EventCode::SA, true, ManualTotals::Step::Up));
  ASSERT_TRUE(totals.press(Side::Visitor, 1, EventCode::SA, true, ManualTotals::Step::Up));
  const ScannedTotals read = scanned();
  const auto added = read.outcome(Way::Add, totals);
  EXPECT_EQ(of(added.totals.slot(Side::Visitor, 2).counts(), Counter::FGM, Counter::FGA, Counter::PF),
            (std::vector{3, 4, 4}));
  EXPECT_EQ(added.totals.slot(Side::Visitor, 2).twoPointers.front().place, "10,20");
  EXPECT_EQ(added.totals.slot(Side::Visitor, 4).counts()[Counter::Ast], 1);
  EXPECT_EQ(added.placedShotsGone, 0);
  const auto replaced = read.outcome(Way::Replace, totals);
  EXPECT_EQ(of(replaced.totals.slot(Side::Visitor, 2).counts(), Counter::FGM, Counter::FGA, Counter::PF),
            (std::vector{2, 3, 3}));
  EXPECT_EQ(replaced.totals.slot(Side::Visitor, 2).twoPointers.front().place, "10,20")
      << "the place stays known";
  EXPECT_EQ(replaced.totals.slot(Side::Visitor, 4).counts()[Counter::Ast], 0) << "on the sheet, with nothing";
  EXPECT_EQ(replaced.totals.slot(Side::Visitor, 1).counts()[Counter::Ast], 1) << "not on the sheet";
  EXPECT_EQ(replaced.totals.slot(Side::Home, 2).counts(), Counters{});
}

TEST_F(ScannedTotalsTest, SaysWhichPlacedShotsWouldGo) {
  number(0, "5");
  tick(0, FormCell::Kind::Made, Counter::F3M, 1);
  for (int shot = 0; shot < 3; ++shot)
    totals.addShot(Side::Visitor, 2, EventCode::GF3, true, 100 + shot, 20);
  totals.addShot(Side::Visitor, 2, EventCode::GF3, false, 90, 20);
  ASSERT_EQ(totals.setCount(Side::Visitor, 2, Counter::F3M, 5), ManualTotals::Typed::Taken);
  const auto replaced = scanned().outcome(Way::Replace, totals);
  EXPECT_EQ(replaced.placedShotsGone, 3) << "those without place go without a word";
  EXPECT_EQ(replaced.totals.slot(Side::Visitor, 2).threePointers,
            (std::vector<ManualShot>{{true, "100,20"}}));
  EXPECT_EQ(scanned().outcome(Way::Add, totals).placedShotsGone, 0);
}

TEST_F(ScannedTotalsTest, NamesWhomItDoesNotKnowAndAddsWhoIsThereTwice) {
  number(0, "99");
  tick(0, FormCell::Kind::Count, Counter::ST, 2);
  number(1, "98");                                // without counts: nobody misses him
  tick(2, FormCell::Kind::Count, Counter::ST, 1); // without number
  number(3, "10");
  tick(3, FormCell::Kind::Count, Counter::ST, 4);
  ScannedTotals read = scanned();
  EXPECT_EQ(read.outcome(Way::Add, totals).unknown, (std::vector<int>{0, 2}));
  read.assign(0, ScannedTotals::kNobody);
  read.assign(2, 3);
  const auto outcome = read.outcome(Way::Replace, totals);
  EXPECT_TRUE(outcome.unknown.empty());
  EXPECT_EQ(outcome.twice, (std::vector<int>{3}));
  EXPECT_EQ(outcome.totals.slot(Side::Visitor, 3).counts()[Counter::ST], 5);
  // Corrected digits find another player; who was assigned stays.
  for (std::size_t index = 0; index < layout->cells().size(); ++index) {
    const FormCell& cell = layout->cells()[index];
    if (cell.player == 3 && cell.kind == FormCell::Kind::JerseyDigit && cell.place == 2)
      read.sheet.settle(index, cell.number == 5);
  }
  read.match();
  EXPECT_EQ(read.slot(3), 5) << "15, no longer 10";
  EXPECT_EQ(read.slot(2), 3);
  read.setTeam(Side::Home, game.roster[Side::Home]);
  EXPECT_EQ(read.slot(2), ScannedTotals::kNobody);
}

TEST_F(ScannedTotalsTest, NeverGoesBeyondTheLargestCount) {
  number(0, "4");
  tick(0, FormCell::Kind::Count, Counter::ST, 1);
  number(1, "5");
  tick(1, FormCell::Kind::Count, Counter::TO, 2);
  ASSERT_EQ(totals.setCount(Side::Visitor, 2, Counter::TO, ManualTotals::kLargestCount - 1),
            ManualTotals::Typed::Taken);
  const auto outcome = scanned().outcome(Way::Add, totals);
  EXPECT_EQ(outcome.tooMany, 2);
  EXPECT_EQ(outcome.totals, totals) << "for the first player neither";
  EXPECT_EQ(scanned().outcome(Way::Replace, totals).tooMany, ScannedTotals::kNobody);
}

} // namespace
} // namespace hooptab
