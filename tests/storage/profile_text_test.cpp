// What holds for every profile file, whatever its bytes.
#include "storage/ProfileText.h"
#include "support/SharedGames.h"

#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace hooptab {
namespace {

const std::string kSample =
    "stray=1\r\n[DETAILS]\r\nVERSION=2.0\r\n; a comment\r\nNOTES= \xE9t\xE9 [x] "
    "\r\n\r\n[0]\n05=2,Ann\nalone\n=e\n"
    "[PERIODE1]\r1=10:00,ARRET,IN-,IN-\r2=09:41,GFG,0-5,42,51\r\r\n[details]\r\nVERSION=9";

// Setting every value to what it is changes no byte.
void expectEqualValuesChangeNothing(const std::string& bytes) {
  const ProfileText text(bytes);
  EXPECT_EQ(text.bytes(), bytes);
  for (const std::string_view section : text.sectionNames())
    for (const ProfileText::Line& line : text.section(section)) {
      if (line.kind != ProfileText::Line::Kind::KeyValue)
        continue;
      const auto value = text.value(section, line.name);
      EXPECT_EQ(text.withValue(section, line.name, value.value_or("")).bytes() == bytes, value.has_value())
          << line.name;
    }
}

TEST(ProfileText, LoadAndSaveGivesEqualBytesAndEachSectionOnce) {
  expectEqualValuesChangeNothing(kSample);
  EXPECT_EQ(ProfileText(kSample).sectionNames(), (std::vector<std::string_view>{"DETAILS", "0", "PERIODE1"}));
  for (const auto& path : sharedGames()) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    ASSERT_FALSE(bytes.str().empty());
    expectEqualValuesChangeNothing(bytes.str());
  }
}

// Whatever the bytes, a value that was set reads back, and so does everything that could be read before.
void expectTakesAValue(const std::string& bytes) {
  const ProfileText before(bytes);
  const ProfileText after = before.withValue("PERIODE1", "3", "E09:20,SPF,1-8");
  ASSERT_EQ(after.value("periode1", "3"), "E09:20,SPF,1-8");
  ASSERT_EQ(after.value("PERIODE1", "2"), before.value("PERIODE1", "2"));
  ASSERT_EQ(after.keyList("DETAILS"), before.keyList("DETAILS"));
  ASSERT_EQ(after.withSectionLines("0", {{"07", "1,Bo"}}).keyList("0"), std::string_view("07\0", 3));
}

TEST(ProfileText, SurvivesCutsAndFlippedBits) {
  for (std::size_t length = 0; length <= kSample.size(); ++length)
    expectTakesAValue(kSample.substr(0, length));
  for (std::size_t place = 0; place < kSample.size(); ++place) {
    for (unsigned bit = 0; bit < 8; ++bit) {
      std::string flipped = kSample;
      flipped[place] = static_cast<char>(static_cast<unsigned char>(flipped[place]) ^ 1U << bit);
      expectTakesAValue(flipped);
    }
  }
}

// What a text has found in its bytes, readable in a message.
std::string described(const ProfileText& text) {
  std::ostringstream all;
  for (const std::string_view section : text.sectionNames()) {
    all << '[' << section << "] " << text.section(section).bytes.size() << '\n';
    for (const ProfileText::Line& line : text.section(section))
      all << static_cast<int>(line.kind) << ' ' << line.end - line.begin << ' ' << line.name << '='
          << line.value << '\n';
  }
  return all.str();
}

// An edit parses only what it changes, but the text must be the one that a reader of its bytes has.
TEST(ProfileText, EditedTextsAreThoseOfTheirBytes) {
  const std::string kNames[] = {"DETAILS", "0", "periode1", "new", "[odd", "]", ""};
  const std::string kKeys[] = {"VERSION", "1", "alone", "e", "[x", ";y", "n", ""};
  const std::string kValues[] = {"", "7", "[DETAILS]", "; no comment", "a=b"};
  std::mt19937 dice(5);
  const auto oneOf = [&dice](const auto& texts) { return texts[dice() % std::size(texts)]; };
  for (int round = 0; round < 400; ++round) {
    std::string bytes = kSample.substr(0, dice() % (kSample.size() + 1));
    for (int flip = 0; flip < round % 4 && !bytes.empty(); ++flip)
      bytes[dice() % bytes.size()] = "[]=;\r\n \0"[dice() % 8];
    ProfileText text(bytes);
    for (int step = 0; step < 12; ++step) {
      const std::string section = oneOf(kNames);
      switch (dice() % 4) {
      case 0: text = text.withoutSection(section); break;
      case 1: text = text.withSectionLines(section, {{oneOf(kKeys), oneOf(kValues)}, {"2", "x"}}); break;
      default: text = text.withValue(section, oneOf(kKeys), oneOf(kValues)); break;
      }
      const ProfileText read(text.bytes());
      ASSERT_TRUE(text.hasBytes(read.bytes()));
      ASSERT_EQ(described(text), described(read)) << "round " << round << " step " << step;
    }
    EXPECT_FALSE(text.hasBytes(text.bytes() + "x"));
  }
}

// These take hundredths of a second, in quadratic time a minute.
TEST(ProfileText, TakesLinearTime) {
  constexpr std::size_t kSize = 2 * 1024 * 1024;
  for (const std::string_view piece : {"\r", "\n", "x\r", "x=1\n", "[", "[a]\n", ";", "=", "\x1A"}) {
    std::string bytes = "[A]\n";
    while (bytes.size() < kSize)
      bytes += piece;
    const std::clock_t start = std::clock();
    EXPECT_EQ(ProfileText(bytes).withValue("new", "k", "v").value("NEW", "K"), "v");
    EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 5) << piece;
  }
  std::string bytes = "[A]\r\n";
  for (int line = 0; line < 200; ++line)
    bytes += std::to_string(line) + "=" + std::string(70'000, 'v') + "\r\n";
  const ProfileText text(bytes);
  EXPECT_EQ(text.section("A").end() - text.section("A").begin(), 200);
  EXPECT_EQ(text.value("A", "199")->size(), 70'000u);
}

TEST(ProfileText, WritesASectionsLinesInAGivenOrder) {
  const struct {
    const char* why;
    const char* before;
    ProfileText::KeyValues lines;
    const char* after;
  } kCases[] = {
      {"inserted: all other lines stay byte for byte",
       "[P]\n 1 = a\n2=b\r\n\n[Q]\nq=1",
       {{"1", "a"}, {"7", "n"}, {"2", "b"}},
       "[P]\n 1 = a\n7=n\r\n2=b\r\n\n[Q]\nq=1"},
      {"moved, the last line without line end",
       "[P]\n1=a\n2=b",
       {{"2", "b"}, {"1", "a"}},
       "[P]\n2=b\r\n1=a\n"},
      {"edited and removed", "[P]\n1=a\n2=b\n3=c\n[Q]\n", {{"1", "x"}, {"3", "c"}}, "[P]\n1=x\r\n3=c\n[Q]\n"},
      {"other lines stay where they can",
       "[P]\n;top\n1=a\n;mid\nalone\n2=b\n;end",
       {{"2", "b"}, {"1", "a"}},
       "[P]\n;top\n;mid\nalone\n2=b\n1=a\n;end"},
      {"what would hide a line gives way", "[P]\n1\n1=a\n", {{"1", "b"}}, "[P]\n1=b\r\n"},
      {"an absent section is added", "x", {{"1", "a"}}, "x\r\n[p]\r\n1=a\r\n"},
      {"an empty one is filled", "[P]", {{"1", "a"}}, "[P]\r\n1=a\r\n"},
      {"emptied", "[P]\r\n1=a\r\n\r\n[Q]", {}, "[P]\r\n\r\n[Q]"},
      {"nothing to change", "[P]\n1 =a\n;x\n[Q]", {{"1", "a"}}, "[P]\n1 =a\n;x\n[Q]"},
  };
  for (const auto& test : kCases)
    EXPECT_EQ(ProfileText(test.before).withSectionLines("p", test.lines).bytes(), test.after) << test.why;
}

} // namespace
} // namespace hooptab
