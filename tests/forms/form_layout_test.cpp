#include "forms/FormLayout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <tuple>

namespace hooptab {
namespace {

bool overlap(const FormRect& one, const FormRect& other) {
  return one.x < other.right() && other.x < one.right() && one.y < other.bottom() && other.y < one.bottom();
}

TEST(FormLayout, KeepsEveryMarkAndCellApartAndOnThePage) {
  const FormLayout layout;
  std::vector<FormRect> all(layout.marks().begin(), layout.marks().end());
  all.insert(all.end(), layout.identifier().begin(), layout.identifier().end());
  for (const FormCell& cell : layout.cells())
    all.push_back(cell.rect);
  for (int player = 0; player < FormLayout::kPlayers; ++player)
    all.push_back(layout.name(player));
  for (const FormLabel& label : layout.labels())
    all.push_back(label.rect);
  for (const FormRect& text : {layout.title(), layout.hint(), layout.sheetText()})
    all.push_back(text);
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_GE(std::min(all[i].x, all[i].y), 0);
    EXPECT_LE(all[i].right(), FormLayout::kWidth);
    EXPECT_LE(all[i].bottom(), FormLayout::kHeight);
    for (std::size_t other = 0; other < i; ++other)
      ASSERT_FALSE(overlap(all[i], all[other])) << i << ' ' << other;
  }
  // What a reader looks for must not stand inside a player's frame.
  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    for (const FormRect& mark : layout.marks())
      EXPECT_FALSE(overlap(layout.block(player), mark)) << player;
  }
  // Letter is the narrower of the two heights, A4 the narrower of the two widths.
  EXPECT_LE(FormLayout::kWidth, 210 - 2 * 8);
  EXPECT_LE(FormLayout::kHeight, 279.4 - 2 * 8);
}

TEST(FormLayout, HasOneRowForEachCounterOfEachPlayer) {
  std::map<std::tuple<int, FormCell::Kind, Counter>, int> rows;
  std::map<int, int> digits;
  const FormLayout layout;
  for (const FormCell& cell : layout.cells()) {
    if (cell.kind == FormCell::Kind::JerseyDigit)
      ++digits[cell.player];
    else
      ++rows[{cell.player, cell.kind, cell.counter}];
  }
  constexpr int kRows = 7 * 2 + 10; // made and missed of seven kinds, ten counters
  EXPECT_EQ(rows.size(), static_cast<std::size_t>(FormLayout::kPlayers * kRows));
  for (const auto& [row, count] : rows)
    EXPECT_EQ(count, FormLayout::kCellsInRow);
  EXPECT_EQ(digits, (std::map<int, int>{{0, 30}, {1, 30}, {2, 30}, {3, 30}}));
}

TEST(FormLayout, DistinguishesJerseysByTheirFilledDigits) {
  std::set<std::set<std::pair<int, int>>> patterns;
  const FormLayout layout;
  for (const char* jersey : {"0", "00", "000", "5", "05", "15", "51", "150"}) {
    std::set<std::pair<int, int>> filled;
    for (const FormCell& cell : layout.cells()) {
      if (cell.player == 0 && FormLayout::isDigitOf(cell, jersey))
        filled.insert({cell.place, cell.number});
    }
    EXPECT_EQ(filled.size(), std::string(jersey).size());
    EXPECT_TRUE(patterns.insert(filled).second) << jersey;
  }
}

TEST(FormIdentifier, ComesBackFromItsSquaresAndNoOtherRowIsTaken) {
  for (const bool isPrepared : {false, true}) {
    for (const int sheet : {0, 3, 7, 8, FormIdentifier::kMostSheets - 1}) {
      for (const int team : {0, 1, 2047, 4095}) {
        const FormIdentifier identifier{sheet, isPrepared, team};
        auto bits = identifier.bits();
        EXPECT_EQ(FormIdentifier::ofBits(bits), identifier);
        std::ranges::reverse(bits);
        EXPECT_EQ(FormIdentifier::ofBits(bits), std::nullopt) << "upside down";
        std::ranges::reverse(bits);
        for (std::size_t one = 0; one < bits.size(); ++one) {
          bits[one] = !bits[one];
          EXPECT_EQ(FormIdentifier::ofBits(bits), std::nullopt) << one;
          for (std::size_t two = one + 1; two < bits.size(); ++two) {
            bits[two] = !bits[two];
            EXPECT_EQ(FormIdentifier::ofBits(bits), std::nullopt) << one << ' ' << two;
            bits[two] = !bits[two];
          }
          bits[one] = !bits[one];
        }
      }
    }
  }
  EXPECT_EQ(FormIdentifier::ofBits({}), std::nullopt);
}

TEST(FormIdentifier, NumbersTeamsByTheirName) {
  EXPECT_NE(FormIdentifier::teamNumber("LYNX", "AAA"), FormIdentifier::teamNumber("LYNX", "AA"));
  std::set<int> numbers;
  for (int team = 0; team < 100; ++team) {
    const int number = FormIdentifier::teamNumber("T" + std::to_string(team), "");
    EXPECT_TRUE(number >= 1 && number <= 4095);
    numbers.insert(number);
  }
  EXPECT_GE(numbers.size(), 95U) << "teams of a league rarely share one";
}

} // namespace
} // namespace hooptab
