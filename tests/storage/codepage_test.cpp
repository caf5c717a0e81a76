#include "storage/NameOrder.h"
#include "storage/codepage.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace hooptab::codepage {
namespace {

TEST(CodePage, EveryByteComesBackTheSame) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_EQ(fromUtf8(toUtf8(one)), one) << byte;
    all += one;
  }
  EXPECT_EQ(fromUtf8(toUtf8(all)), all);
  EXPECT_EQ(toUtf8("\x80\x8A\x99\x9F\xA0\xE9\xFF"), "€Š™Ÿ\u00A0éÿ");
  EXPECT_EQ(toUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

// Composed and decomposed forms of one letter are stored the same, in whichever order the marks come.
TEST(CodePage, ComposesAccents) {
  const char* const letters[][2] = {
      {"a\u0300", "à"},       {"E\u0301", "É"},       {"o\u0302", "ô"},       {"N\u0303", "Ñ"},
      {"y\u0308", "ÿ"},       {"Y\u0308", "Ÿ"},       {"A\u030A", "Å"},       {"c\u0327", "ç"},
      {"s\u030C", "š"},       {"Z\u030C", "Ž"},       {"e\u0341", "é"},       {"\u212B", "Å"},
      {"c\u030C", "č"},       {"e\u0302\u0301", "ế"}, {"a\u0323\u0302", "ậ"}, {"a\u0302\u0323", "ậ"},
      {"c\u0301\u0327", "ḉ"}, {"c\u0327\u0301", "ḉ"}, {"s\u0323\u0307", "ṩ"}, {"\u00C5\u0301", "Ǻ"},
      {"\u00E6\u0301", "ǽ"},
  };
  for (const auto& [decomposed, composed] : letters)
    EXPECT_EQ(fromUtf8(decomposed), fromUtf8(composed)) << composed;
  EXPECT_EQ(storedForm("E\u0301ric Co\u0302te\u0301"), "Éric Côté");
  EXPECT_EQ(storedForm("x\u0301 \u0301 1\u0301"), "x  1") << "a mark that fits nowhere is dropped";
}

TEST(CodePage, LettersBeyondItBecomeTheNearest) {
  const char* const names[][2] = {
      {"Dončić Šarić", "Doncic Šaric"},
      {"Đoković đ", "Dokovic d"},
      {"Łukasz Żółw", "Lukasz Zólw"},
      {"Şengün, Ağ, ıİ", "Sengün, Ag, iI"},
      {"Ţepeş Țepeș Ă", "Tepes Tepes A"},
      {"Erdős ű", "Erdos u"},
      {"Nguyễn Đức Thịnh", "Nguyen Duc Thinh"},
      {"Ģirts Ķ ļ Ņ ū ė į", "Girts K l N u e i"},
      {"Əliyev ə", "Eliyev e"},
      {"ǅ Ǽ ﬁn ẞ Ĳ", "Dz Æ fin ß IJ"},
      {"−3 ‐ ‑ 1⁄2 5′ Ｗ", "-3 - - 1/2 5' W"},
      {"a\u202Fb\u2009c\u3000d", "a\u00A0b c d"},
      {"\uFEFFa\u200Bb\u200D", "ab"},
      {"Янис 李 🏀", "???? ? ?"},
      {"“ok” – ‘ok’ — … œ €", "“ok” – ‘ok’ — … œ €"},
  };
  for (const auto& [text, stored] : names) {
    EXPECT_EQ(storedForm(text), stored);
    EXPECT_EQ(storedForm(stored), stored) << "stored once, it does not change again";
  }
}

TEST(CodePage, InvalidUtf8IsMarkedByteByByte) {
  EXPECT_EQ(fromUtf8("a\xFF\x62"), "a?b");
  EXPECT_EQ(fromUtf8("\xC3"), "?");                // cut
  EXPECT_EQ(fromUtf8("\xC0\xAF"), "??");           // overlong
  EXPECT_EQ(fromUtf8("\xED\xA0\x80"), "???");      // half of a pair
  EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), "????"); // beyond the last character
  EXPECT_EQ(fromUtf8("\xE2\x82\x65"), "??e");
}

TEST(CodePage, NamesCompareWithoutRegardToCase) {
  EXPECT_TRUE(equalNames("D\xC9TAILS \x8A\x8C\x8E\x9F", "d\xE9tails \x9A\x9C\x9E\xFF"));
  EXPECT_FALSE(equalNames("\xD7", "\xF7")) << "times and division are no letters";
  EXPECT_FALSE(equalNames("stra\xDF\x65", "strasse"));
  EXPECT_FALSE(equalNames("0", "00"));
  EXPECT_FALSE(equalNames("e", "\xE9"));
  EXPECT_FALSE(equalNames("[", "{"));
}

TEST(NameOrder, LettersWithoutAccentsFirstThenAccentsThenCase) {
  std::vector<std::string> names = {"Zoé",    "abel",   "Émile",        "Eve",         "Abel",
                                    "Zoe",    "O'Neil", "Œuvre",        "Olaf",        "de la",
                                    "Côté B", "Côté A", "Saint-Pierre", "Saint Pierre"};
  std::ranges::sort(names, {}, nameOrderKey);
  const std::vector<std::string> ordered = {"abel",         "Abel",         "Côté A", "Côté B", "de la",
                                            "Émile",        "Eve",          "O'Neil", "Œuvre",  "Olaf",
                                            "Saint Pierre", "Saint-Pierre", "Zoe",    "Zoé"};
  EXPECT_EQ(names, ordered);
}

} // namespace
} // namespace hooptab::codepage
