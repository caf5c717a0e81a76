// Which cells pass what is typed above their column.
#include "season/ColumnFilter.h"

#include <gtest/gtest.h>

using namespace hooptab;

TEST(ColumnFilter, TakesWordsAndNumbersWithASign) {
  struct Case {
    const char* typed;
    const char* text;
    double value;
    bool passes;
  };
  const Case cases[] = {
      {"", "12", 12, true},
      {"emo", "Ann Émond", 0, true},
      {"able", "Ann Émond", 0, false},
      {"= ANN", "Ann", 0, true},
      {"=Ann", "Anne", 0, false},
      {">10", "12", 12, true},
      {"> 12", "12", 12, false},
      {">=12", "12", 12, true},
      {"<-2,5", "-3.0", -3, true},
      {"<12:30", "12:29", 749, true},
      {"<12:30", "12:30", 750, false},
      {">45%", "45.5%", 45.5, true},
      {"=45.5", "45.5%", 45.4545, true},
      {"=45", "45.5%", 45.4545, false},
      {">", "12", 12, true},
      {">x", "x", 0, false},
  };
  for (const Case& each : cases)
    EXPECT_EQ(ColumnFilter(each.typed).accepts(each.text, each.value), each.passes)
        << each.typed << " | " << each.text;
}
