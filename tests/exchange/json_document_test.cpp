#include "foreign/ExchangeNote.h"
#include "livedata/JsonDocument.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

ExchangeNote problemWith(std::string_view bytes) {
  try {
    static_cast<void>(parseJson(bytes));
  } catch (const UnreadableGame& unreadable) {
    return unreadable.why();
  }
  return {};
}

std::string utf16(std::string_view ascii, bool bigEndian) {
  std::string bytes;
  for (const char letter : ascii)
    bytes += bigEndian ? std::string{'\0', letter} : std::string{letter, '\0'};
  return bytes;
}

} // namespace

TEST(JsonDocumentTest, ReadsEveryEncodingThatOthersWrite) {
  const std::string text = R"({"name": "Ana"})";
  for (const std::string& bytes : {text, "\xEF\xBB\xBF" + text, utf16(text, false), utf16(text, true),
                                   "\xFF\xFE" + utf16(text, false), "\xFE\xFF" + utf16(text, true)})
    EXPECT_EQ(textOf(parseJson(bytes), "name"), "Ana");
  EXPECT_EQ(textOf(parseJson("{\"name\": \"Ren\xE9\"}"), "name"), "René"); // of the code page
}

TEST(JsonDocumentTest, TellsWhatIsNoJsonAndWhere) {
  EXPECT_EQ(problemWith("{\n\"a\": 1,\n\"b\": }"), (ExchangeNote{Text::NoJson, "3"}));
  EXPECT_EQ(problemWith("{\n\"a\": [1, 2"), (ExchangeNote{Text::JsonCutOff, "2"}));
  EXPECT_EQ(problemWith("").text, Text::JsonCutOff);
  EXPECT_EQ(problemWith(std::string(2'000'000, '[')).text, Text::JsonTooDeep);
  EXPECT_EQ(problemWith(R"({"a": 1e999})").text, Text::NoJson);
}

TEST(JsonDocumentTest, TakesNumbersForTextsAndTextsForNumbers) {
  const Json object =
      parseJson(R"({"a": " 12 ", "b": 7, "c": 7.9, "d": "x", "e": 1e300, "f": null, "g": "1"})");
  EXPECT_EQ(numberOf(object, "a", -1), 12);
  EXPECT_EQ(numberOf(object, "c", -1), 7);
  for (const char* name : {"d", "e", "f", "none"})
    EXPECT_EQ(numberOf(object, name, -1), -1) << name;
  EXPECT_EQ(textOf(object, "b"), "7");
  EXPECT_TRUE(flagOf(object, "g"));
  EXPECT_TRUE(listOf(object, "a").empty());
  EXPECT_TRUE(textOf(Json(), "a").empty());
}
