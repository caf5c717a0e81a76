#include "settings/StorageWords.h"
#include "settings/Texts.h"

#include "resources/tables.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "storage/codepage.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {
namespace {

const Texts& carried() {
  static const Texts texts;
  return texts;
}

std::string_view english(int number) {
  return carried().text(static_cast<Text>(number), Language::English);
}
std::string_view french(int number) {
  return carried().text(static_cast<Text>(number), Language::French);
}

std::size_t occurrences(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
    ++count;
  return count;
}

// The English numbers and the names that a table's lines carry, as often as they occur.
std::multiset<std::pair<int, std::string>> namesOf(std::string_view table, int offset) {
  std::multiset<std::pair<int, std::string>> names;
  std::istringstream lines{std::string(table)};
  for (std::string line; std::getline(lines, line);)
    if (!line.empty() && line[0] >= '0' && line[0] <= '9')
      names.emplace(std::stoi(line) - offset, line.substr(5, line.find(' ', 5) - 5));
  return names;
}

TEST(TextTables, HoldEveryNumberOnceInBothLanguagesAndFillNoGap) {
  const std::set<int> gaps = {1084, 1085, 1152, 1153, 1154, 1178, 1249, 1318,
                              1319, 1324, 1332, 1378, 1379, 1434, 1437};
  int original = 0;
  for (const int number : carried().numbers()) {
    EXPECT_FALSE(gaps.contains(number)) << number;
    EXPECT_TRUE(number <= 1438 || number >= 1501) << number;
    EXPECT_FALSE(french(number).empty()) << number + factsOf(Language::French).offset;
    original += number <= 1438;
  }
  EXPECT_EQ(original, 423);
  const auto names = namesOf(englishTable(), 0);
  EXPECT_EQ(namesOf(frenchTable(), factsOf(Language::French).offset), names);
  EXPECT_EQ(names.size(), carried().numbers().size()) << "a number twice, or a line without a text";
}

TEST(TextTables, KeepThePartsThatProgramsReadEqualInBothLanguages) {
  for (const int number : carried().numbers()) {
    SCOPED_TRACE(number);
    const std::string_view one = english(number);
    const std::string_view other = french(number);
    for (const char* part : {"XXX", "YYY", "ZZZ", "|"})
      EXPECT_EQ(occurrences(one, part), occurrences(other, part)) << part;
    EXPECT_EQ(one.find_first_not_of(' '), other.find_first_not_of(' '));
    EXPECT_EQ(one.size() - one.find_last_not_of(' '), other.size() - other.find_last_not_of(' '));
    EXPECT_TRUE(one == other || !one.starts_with("---")) << other;
    // Of a file filter, "NAME|PATTERN|NAME|PATTERN", only the names are translated.
    for (std::size_t field = 2; field <= occurrences(one, "|") + 1; field += 2)
      EXPECT_EQ(Module1::field(one, field, '|'), Module1::field(other, field, '|'));
  }
}

TEST(TextTables, SayTheSameMouseHintInTheSameWords) {
  std::map<std::string_view, std::string_view> translations;
  for (const int number : carried().numbers()) {
    SCOPED_TRACE(number);
    const std::string_view hint =
        english(number).substr(std::min(english(number).find("(MOUSE"), english(number).size()));
    if (hint.empty())
      continue;
    ASSERT_NE(french(number).rfind('('), std::string_view::npos);
    const std::string_view translated = french(number).substr(french(number).rfind('('));
    const auto [known, isNew] = translations.emplace(hint, translated);
    EXPECT_EQ(known->second, translated);
    for (const char* part : {"=", "+1", "-1"})
      EXPECT_EQ(occurrences(hint, part), occurrences(translated, part)) << part;
  }
  EXPECT_EQ(translations.size(), 3U) << "made or missed, one more, one more or less";
}

TEST(TextTables, UseOnlyLettersOfTheFilesCodePageAndLeaveNoTextInTheOtherLanguage) {
  // Codes of statistics, names, and words that both languages share.
  const std::set<int> shared = {1070, 1313, 1342, 1343, 1344, 1345, 1346, 1347, 1348, 1349, 1350, 1351, 1352,
                                1353, 1354, 1355, 1356, 1357, 1360, 1361, 1365, 1366, 1371, 1372, 1540, 1550,
                                1839, 2520, 2521, 2564, 2572, 2645, 2754, 2935, 2949, 2950, 3180, 3244, 3334,
                                3336, 3374, 3430, 3449, 3462, 3468, 3473, 3530, 3567, 3638, 3647, 3658, 3666,
                                3669, 3681, 3702, 3723, 3737, 3748, 3751, 3770, 3778, 3835, 3840};
  for (const int number : carried().numbers()) {
    for (const std::string_view text : {english(number), french(number)}) {
      EXPECT_EQ(codepage::storedForm(text), text) << number;
      EXPECT_TRUE(std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) < ' '; }))
          << number;
    }
    EXPECT_TRUE(english(number).starts_with("---") ||
                (english(number) == french(number)) == shared.contains(number))
        << number << ' ' << french(number);
  }
}

TEST(TextTables, HoldTheFixedTexts) {
  std::string fixed;
  for (const int number :
       {1001, 1002, 1003, 1005, 1008, 1009, 1016, 1019, 1022, 1023, 1024, 1025, 1026, 1027, 1028,
        1044, 1074, 1075, 1080, 1145, 1194, 1200, 1201, 1202, 1245, 1260, 1261, 1262, 1269, 1303})
    fixed += std::string(french(number)) + '|';
  EXPECT_EQ(fixed,
            "Au jeu - Saisie des statistiques|Tableau d'affichage des parties|(PF) F. personnelle|"
            "Efficacité|(TO) Retournement|(ST) Récupération|Endroit|Fautes|PROL.|Nom du joueur|Temps|"
            "Ren.|Ligne|Visiteur|Receveur|Partie terminée|English|DÉPART|ARRÊT|"
            "Sauvegarder la note et fermer la partie|P|Receveur|Visiteur|Résultats|Nouveau|Centre|Ailier|"
            "Garde|N/D|Saisie|");
  EXPECT_EQ(english(1074), "Français");

  // The first English texts never change: another sum (FNV-1a) means that one was reworded.
  std::uint64_t sum = 0xcbf29ce484222325;
  for (const int number : carried().numbers())
    if (number <= 1438)
      for (const char c : std::to_string(number) + ' ' + std::string(english(number)) + '\n')
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  EXPECT_EQ(sum, 0xb3293fe74c5460dbU);
}

TEST(Texts, AreReadFromATableAsItsFormSays) {
  const Texts texts(
      "# a comment\n\n1001 One \"One\"\n1002 \"Say \"\"two\"\" \"  # the text ends at the last quote\n"
      "1003 Three\n1004 \"\"\nword \"x\"\n900 \"low\"\n99999999999 \"high\"\n4001 \"beyond\"\n1005 \"last\"",
      "5001 \"Un\"\r\n5002 \"Deux\"\n1005 \"English number\"");
  EXPECT_EQ(texts.text(static_cast<Text>(1001)), "One");
  EXPECT_EQ(texts.text(static_cast<Text>(1002)), "Say \"\"two\"\" ");
  EXPECT_EQ(texts.text(static_cast<Text>(1005)), "last") << "the last line needs no line end";
  EXPECT_EQ(texts.numbers(), (std::vector<int>{1001, 1002, 1005}));
  EXPECT_EQ(texts.text(static_cast<Text>(1001), Language::French), "Un");
  for (const int number : {-1, 0, 900, 1000, 1003, 1004, 2500, 4001, 6501})
    EXPECT_EQ(texts.text(static_cast<Text>(number)), "") << number;
  EXPECT_EQ(texts.text(static_cast<Text>(1005), Language::French), "");
}

TEST(Texts, FollowTheLanguageInUseAndFillEveryPlaceOnce) {
  Texts texts;
  EXPECT_EQ(texts.text(Text::Start), "START");
  texts.setLanguage(Language::French);
  EXPECT_EQ(texts.text(Text::Start), "DÉPART");
  EXPECT_EQ(texts.offset(), 4000);
  EXPECT_EQ(texts.caption(Text::Start), "DÉPART");
  texts.showNumbers(true);
  EXPECT_EQ(texts.caption(Text::Start), "5075 DÉPART");
  texts.setLanguage(Language::English);
  EXPECT_EQ(texts.caption(Text::Start), "1075 START");
  EXPECT_EQ(texts.withPlaceholder(Text::LoadingGames, "12"), "Loading the 12 Games Found...");
  EXPECT_EQ(withPlaceholders(english(1801), "YYY", "XXX"), "YYY: XXX");
  EXPECT_EQ(withPlaceholders("ZZZ of XXX, XXXX, YY", "YYYY", "-", "XXX"), "XXX of YYYY, YYYYX, YY");
}

TEST(Texts, SayWhyTheDiskRefused) {
  using Call = StorageError::Call;
  const Texts texts;
  EXPECT_EQ(storageWords({}, texts), "");
  EXPECT_EQ(storageWords({Call::Read, ENXIO, "/a"}, texts), "Reason: error 6 of the system (/a).");
  const std::vector<std::pair<std::string, std::vector<StorageError>>> kinds = {
      {"full", {{Call::Write, ENOSPC, "/a"}, {Call::Sync, EDQUOT, "/a"}}},
      {"permit", {{Call::Open, EACCES, "/a"}, {Call::Rename, EPERM, "/a"}, {Call::WriteProtected, 0, "/a"}}},
      {"read-only", {{Call::Open, EROFS, "/a"}}},
      {"fails", {{Call::Read, EIO, "/a"}}},
      {"no longer there",
       {{Call::Open, ENOENT, "/a"}, {Call::Stamp, ENODEV, "/a"}, {Call::Open, ENOTDIR, "/a"}}}};
  for (const auto& [word, errors] : kinds) {
    for (const StorageError& error : errors)
      EXPECT_NE(storageWords(error, texts).find(word), std::string::npos) << storageWords(error, texts);
  }
}

TEST(Texts, TakeTheOldOffsetForFrench) {
  EXPECT_EQ(Texts::languageOfOffset(4000), Language::French);
  EXPECT_EQ(Texts::languageOfOffset(1000), Language::French);
  for (const int offset : {0, -4000, 1, 3999, 5000})
    EXPECT_EQ(Texts::languageOfOffset(offset), Language::English) << offset;
}

} // namespace
} // namespace hooptab
