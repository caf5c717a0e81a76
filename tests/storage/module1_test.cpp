// The shared text procedures: forms that files and tables depend on.
#include "storage/Module1.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

TEST(Module1, FieldsCountFromOneAndMissingOnesAreEmpty) {
  EXPECT_EQ(Module1::field("a,b,,d", 1), "a");
  EXPECT_EQ(Module1::field("a,b,,d", 3), "");
  EXPECT_EQ(Module1::field("a,b,,d", 4), "d");
  EXPECT_EQ(Module1::field("a,b,,d", 5), "");
  EXPECT_EQ(Module1::field("", 1), "");
}

TEST(Module1, NumbersAreReadLeniently) {
  const std::pair<const char*, int> cases[] = {{"12", 12},
                                               {" 7x", 7},
                                               {"-3", -3},
                                               {"+4", 4},
                                               {"", 0},
                                               {"abc", 0},
                                               {"1-2", 1},
                                               {"99999999999999999999", 2147483647},
                                               {"-99999999999", -2147483647 - 1},
                                               {"13-ENTER", 13}};
  for (const auto& [text, number] : cases)
    EXPECT_EQ(Module1::leadingNumber(text), number) << text;
  for (const char* on : {"True", "TRUE", "true", "1", "-1", "2"})
    EXPECT_TRUE(Module1::flag(on)) << on;
  for (const char* off : {"", "False", "0", "no", "truely"})
    EXPECT_FALSE(Module1::flag(off)) << off;
}

TEST(Module1, ClockTextHasTwoDigitsEach) {
  EXPECT_EQ(Module1::clockText(0), "00:00");
  EXPECT_EQ(Module1::clockText(605), "10:05");
  EXPECT_EQ(Module1::clockText(6065), "101:05");
  EXPECT_EQ(Module1::clockText(-5), "00:00");
  EXPECT_EQ(Module1::clockSeconds("09:41"), 581);
  for (const char* bad : {"", "9:41", "09:60", "009:41", "09.41", "09:4", "-9:41", "ab:cd", " 9:41"})
    EXPECT_EQ(Module1::clockSeconds(bad), std::nullopt) << bad;
}

TEST(Module1, OnCourtListsAreSortedAndTwoDigits) {
  EXPECT_EQ(Module1::onCourtList({"12", "4", "33"}), "IN-04-12-33");
  EXPECT_EQ(Module1::onCourtList({}), "IN-");
  EXPECT_EQ(Module1::onCourtList({"5"}), "IN-05");
  EXPECT_EQ(Module1::onCourtList({"000", "00", "7"}), "IN-00-000-07");
}

TEST(Module1, OnCourtListsAreReadByOneGrammar) {
  const auto joined = [](const Module1::JerseysOfList& jerseys) {
    std::string text;
    for (const std::string_view jersey : jerseys)
      text.append(jersey).append(" ");
    return text;
  };
  const std::pair<const char*, const char*> lists[] = {
      {"IN", ""}, {"IN-", ""}, {"IN-4", "4 "}, {"IN-04-12", "04 12 "}, {"IN-1-2-3-4-5-6", "1 2 3 4 5 6 "}};
  for (const auto& [list, jerseys] : lists) {
    EXPECT_TRUE(Module1::isOnCourtList(list)) << list;
    EXPECT_EQ(joined(Module1::JerseysOfList(list)), jerseys) << list;
  }
  EXPECT_EQ(joined(Module1::countedJerseys("IN-1-2-3-4-5-6")), "1 2 3 4 5 ");
  for (const char* other :
       {"", "I", "in-4", "OUT-04", "IN14", "IN14-05", "IN 4", "IN--4", "IN-4-", "IN-4--5", "IN--"}) {
    EXPECT_FALSE(Module1::isOnCourtList(other)) << other;
    EXPECT_EQ(joined(Module1::JerseysOfList(other)), "") << other;
  }
}

TEST(Module1, RoundingIsHalfAwayFromZero) {
  EXPECT_EQ(Module1::percentText(3, 7), "42.9%");
  EXPECT_EQ(Module1::percentText(1, 16), "6.3%");
  EXPECT_EQ(Module1::percentText(5, 5), "100.0%");
  EXPECT_EQ(Module1::percentText(0, 0), "0.0%");
  EXPECT_EQ(Module1::quotientText(9, 4, 1), "2.3");
  EXPECT_EQ(Module1::quotientText(-9, 4, 1), "-2.3");
  EXPECT_EQ(Module1::quotientText(1, 3, 2), "0.33");
  EXPECT_EQ(Module1::quotientText(-1, 1000, 1), "0.0");
  EXPECT_EQ(Module1::quotientText(5, 2, 0), "3");
}

} // namespace
