// Rows for spreadsheets: what is written is no formula and no escape code, and comes back as it was.
#include "storage/DelimitedText.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

TEST(DelimitedText, DisarmsFormulasAndLeavesNumbersWithTheirSign) {
  for (const std::string text :
       {"=1+1", "@SUM(A1)", "-2+3", "+A1", "-", "-1.2.3", "+%", "-5-", " =1", "'=1", "''-A1", "' x", "\t1"}) {
    const std::string row = csvRow({text});
    EXPECT_NE(row.find("'" + text), std::string::npos) << row;
    EXPECT_EQ(heldByCell("'" + text), text);
  }
  for (const std::string text : {"-5", "+12", "-0.5", "+3.2%", "-3.", "a=1", "'a", "'-5", "'", "", "5-3"}) {
    EXPECT_EQ(csvRow({text}), text + "\r\n");
    EXPECT_EQ(heldByCell(text), text);
  }
  EXPECT_EQ(csvRow({"-3,2", "a \"b\"", "x\ty", "semi;colon", "é’“”"}),
            "\"-3,2\",\"a \"\"b\"\"\",\"x\ty\",\"semi;colon\",é’“”\r\n");
}

TEST(DelimitedText, FrenchSpreadsheetsTakeSemicolonsAndDecimalCommas) {
  EXPECT_EQ(
      csvRow({"45.2%", "-0.5", "2.30", "12", "v1.2", "1.2.3", "a;b", "a,b", ".5", "=1.5"}, CsvReader::French),
      "45,2%;-0,5;2,30;12;v1.2;1.2.3;\"a;b\";a,b;.5;'=1.5\r\n");
}

TEST(DelimitedText, LeavesControlCharactersOut) {
  EXPECT_EQ(csvRow({"A\x1B[31m\x07", "\x7F\xC2\x9B", "é", "two\r\nlines", "\x01=1"}),
            "A[31m,,é,\"two\r\nlines\",'=1\r\n");
}

TEST(DelimitedText, EndsWhateverTheBytes) {
  for (int seed = 1; seed < 2000; ++seed) {
    std::string text;
    unsigned state = static_cast<unsigned>(seed);
    for (int length = seed % 40; length > 0; --length) {
      state = state * 1664525U + 1013904223U;
      text.push_back("\",;\t\r\n a\xC3"[(state >> 16U) % 9U]);
    }
    const std::vector<DelimitedRow> rows = parseDelimited(text);
    for (std::size_t row = 1; row < rows.size(); ++row)
      EXPECT_GT(rows[row].line, rows[row - 1].line) << text;
  }
}

} // namespace
} // namespace hooptab
