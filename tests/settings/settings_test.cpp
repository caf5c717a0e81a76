#include "settings/Settings.h"

#include "storage/Module1.h"
#include "storage/PathText.h"
#include "storage/cinifile.h"
#include "storage/codepage.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>

namespace hooptab {
namespace {

// A disk that can be full, and can refuse from some replacement of a file on (counted from 1; 0: never).
class Disk : public FileSystem {
 public:
  bool isFull = false;
  int failsFrom = 0;
  int replacements = 0;
  ssize_t write(int descriptor, const char* bytes, std::size_t size) override {
    errno = ENOSPC;
    return isFull ? -1 : FileSystem::write(descriptor, bytes, size);
  }
  int rename(const std::string& from, const std::string& to) override {
    ++replacements;
    errno = EIO;
    return failsFrom != 0 && replacements >= failsFrom ? -1 : FileSystem::rename(from, to);
  }
};

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() { file.Path(folder.path("CONFIG.INI")); }
  TemporaryFolder folder;
  Disk disk;
  ProfileStore store{disk};
  cinifile file{store};
  Texts texts;
  Settings settings{store, folder.path()};

  using Colours = std::vector<std::uint32_t>;
  Colours colours() const {
    return {settings.twoPointColour, settings.boxColour, settings.threePointColour, settings.buttonColour};
  }
  std::string value(const std::string& section, const std::string& key) {
    file.Section(section);
    file.Key(key);
    return file.Value();
  }
};

TEST_F(SettingsTest, AFirstStartWritesTheSettingsAndTeamsInTheirOrderAndASecondOneNothing) {
  ASSERT_EQ(settings.prepare(texts), Settings::Preparation::FirstRun);
  EXPECT_EQ(disk.replacements, 1) << "all of it or nothing";
  const std::string expected =
      "[CONFIGURATION]\r\nCOULEUR2PTS=9092558\r\nCOULEURBOX=10132122\r\nCOULEUR3PTS=8454143\r\n"
      "COULEURBUT=8421504\r\nSTATU1=U1----\r\nSTATU2=U2----\r\nLANGUE=0\r\nSAVEREBOUND=False\r\n"
      "CLOCK=13-ENTER\r\nOK0=8-BACK\r\nCLR=107-PLUS\r\nPF=105-9-PAGEUP\r\nTF=102-6-RIGHT\r\n"
      "BS=103-7-HOME\r\nST=104-8-UP\r\nDR=98-2-DOWN\r\nOR=97-1-END\r\nTO=99-3-HOME\r\nA=110-.-DELETE\r\n"
      "IN=111-DIVISE\r\nOUT=106-MULT\r\nAll=96-0-INS\r\nOK1=109-MINUS\r\nKEYPAD=True\r\nU1=100-4-LEFT\r\n"
      "U2=101-5-CLEAR\r\nLASTPATHGAME=" +
      folder.path() + "\r\nLASTPATHBMP=" + folder.path() +
      "\r\n[TEAM]\r\n1=LYNX,AAA ,Basketball College ,U1----,U2----,2,4,5,5,2,8438015,0\r\n"
      "2=COUGAR,AA ,State College ,U1-U1 Field,U2-U2 Field,4,4,5,5,2,12303223,0\r\n"
      "3=JAGUAR,AAAA ,Virtual College ,U1----,U2----,3,4,5,5,2,10329599,0\r\n"
      "4=LION,A ,Somewhere College ,U1-U1 Field,U2-U2 Field,8,4,5,5,2,16749608,0\r\n"
      "5=TIGER,BB ,Small School ,U1----,U2----,1,4,5,5,2,16759671,0\r\n"
      "6=PUMA,CCC ,Very Small School ,U1----,U2----,2,4,5,5,2,11140947,0\r\n[1]\r\n";
  const std::string before = folder.read("CONFIG.INI");
  EXPECT_EQ(codepage::toUtf8(before).substr(0, expected.size()), expected);
  EXPECT_EQ(colours(), (Colours{9092558, 10132122, 8454143, 8421504}));
  EXPECT_EQ(settings.statisticLabel[1], "U2----");
  EXPECT_EQ(settings.language, Language::English);
  EXPECT_FALSE(settings.asksRebounds);
  EXPECT_TRUE(settings.keypadIsActive);
  EXPECT_EQ(settings.lastGameFolder, folder.path());
  Settings second(store, folder.path());
  EXPECT_EQ(second.prepare(texts), Settings::Preparation::AlreadyThere);
  EXPECT_EQ(disk.replacements, 1);
  EXPECT_EQ(folder.read("CONFIG.INI"), before);
  EXPECT_EQ(second.buttonColour, 8421504U);
}

TEST_F(SettingsTest, AFirstStartWritesFiftyOnePlayersWhoseRecordsHaveAllFields) {
  ASSERT_EQ(settings.prepare(texts), Settings::Preparation::FirstRun);

  const std::map<std::string, std::pair<std::string, std::string>> teams = {
      {"1", {"1 2 3 4 5 10 11 12 13 14 20 21 22 23 24 90 91 92 93 94 ", "Senior"}},
      {"2", {"1 2 3 4 5 10 11 12 13 14 90 91 92 93 94 ", "Junior"}},
      {"3", {"1 2 3 4 5 10 11 12 13 14 ", "Virtual"}},
      {"4", {"0 1 2 3 4 5 ", "College"}},
      {"5", {}},
      {"6", {}}};
  std::set<std::string> names, heights;
  int otherGrades = 0;
  for (const auto& [id, jerseysAndGrade] : teams) {
    const auto& [expected, grade] = jerseysAndGrade;
    file.Section(id);
    std::string jerseys = file.INISection();
    std::ranges::replace(jerseys, '\0', ' ');
    EXPECT_EQ(jerseys, expected) << id;
    std::istringstream list(jerseys);
    for (std::string jersey; list >> jersey;) {
      const std::string record = value(id, jersey);
      SCOPED_TRACE(record);
      EXPECT_EQ(std::ranges::count(record, ','), 6);
      EXPECT_TRUE(record.ends_with(','));
      EXPECT_TRUE(std::set<std::string_view>({"0", "1", "2"}).contains(Module1::field(record, 1)));
      EXPECT_FALSE(Module1::field(record, 2).empty());
      names.emplace(Module1::field(record, 2));
      heights.emplace(Module1::field(record, 3));
      EXPECT_TRUE(Module1::field(record, 4).ends_with("lbs"));
      EXPECT_GT(Module1::leadingNumber(Module1::field(record, 5)), 15);
      EXPECT_EQ(record.find('?'), std::string::npos) << "a letter that the file cannot hold";
      otherGrades += Module1::field(record, 6) != grade;
      EXPECT_TRUE(Module1::field(record, 6) == grade || (id == "3" && Module1::field(record, 6) == "Virual"));
    }
  }
  EXPECT_EQ(names.size(), 51U);
  EXPECT_EQ(otherGrades, 1);
  for (const char* irregular : {"6ft11in", "7ft", "7pi 4in"})
    EXPECT_TRUE(heights.contains(irregular)) << irregular;
}

TEST_F(SettingsTest, AFileThatHoldsNearlyNothingIsKeptAsideAndCompletedAndAnEmptyOneIsNotKept) {
  const TemporaryFolder other;
  other.write("CONFIG.INI", "");
  EXPECT_EQ(Settings(store, other.path()).prepare(texts), Settings::Preparation::FirstRun);
  EXPECT_FALSE(other.holds("CONFIG.INI.1"));
  const std::string old =
      "; mine\r\n[CONFIGURATION]\r\nLANGUE=4000\r\n[TEAM]\r\n1=OLD,A ,Old,,,8,4,5,5,2,1,0\r\n"
      "9=NINE,A ,Nine,,,8,4,5,5,2,1,0\r\n";
  folder.write("CONFIG.INI", old);
  folder.write("CONFIG.INI.1", "an older one");
  EXPECT_EQ(settings.prepare(texts), Settings::Preparation::FirstRunKeptOld);
  EXPECT_EQ(settings.keptAs(), folder.path("CONFIG.INI.2"));
  EXPECT_EQ(folder.read("CONFIG.INI.2"), old);
  EXPECT_EQ(folder.read("CONFIG.INI.1"), "an older one");
  EXPECT_EQ(value("CONFIGURATION", "LANGUE"), "0");
  EXPECT_TRUE(value("TEAM", "1").starts_with("LYNX,"));
  EXPECT_TRUE(value("TEAM", "9").starts_with("NINE,")) << "teams of other numbers stay";
}

TEST_F(SettingsTest, AreReadLeniently) {
  folder.write(
      "CONFIG.INI",
      "[configuration]\nCOULEUR2PTS=\nCOULEURBOX=blue\nCOULEUR3PTS= 255 red\nCOULEURBUT=-5\n"
      "LANGUE=1000\nSAVEREBOUND=TRUE\nKEYPAD=1\nLASTPATHGAME=/no/such/folder\nSITEFR=https://fr.example\n");
  EXPECT_EQ(settings.prepare(texts), Settings::Preparation::AlreadyThere);
  EXPECT_EQ(colours(), (Colours{0, 0, 255, 0}));
  EXPECT_EQ(settings.statisticLabel[0], "");
  EXPECT_EQ(settings.language, Language::French);
  EXPECT_TRUE(settings.asksRebounds);
  EXPECT_TRUE(settings.keypadIsActive);
  EXPECT_EQ(settings.lastGameFolder, folder.path());
  EXPECT_EQ(settings.lastScanFolder, folder.path());
  EXPECT_EQ(settings.webPage[0], std::nullopt);
  EXPECT_EQ(settings.webPage[1], "https://fr.example");
  EXPECT_EQ(disk.replacements, 0) << "single missing keys are not made again";
}

TEST_F(SettingsTest, TheOldFrenchOffsetIsWrittenAnewAtTheNextSwitches) {
  folder.write("CONFIG.INI", "[CONFIGURATION]\r\nLANGUE=1000\r\nKEYPAD=True\r\n");
  ASSERT_EQ(settings.prepare(texts), Settings::Preparation::AlreadyThere);
  EXPECT_TRUE(settings.saveLanguage(Language::English));
  EXPECT_EQ(folder.read("CONFIG.INI"), "[CONFIGURATION]\r\nLANGUE=0\r\nKEYPAD=True\r\n");
  EXPECT_TRUE(settings.saveLanguage(Language::French));
  EXPECT_EQ(folder.read("CONFIG.INI"), "[CONFIGURATION]\r\nLANGUE=4000\r\nKEYPAD=True\r\n");
  EXPECT_EQ(settings.language, Language::French);
}

TEST_F(SettingsTest, SavedChoicesAndFoldersAreThereAtTheNextStart) {
  ASSERT_EQ(settings.prepare(texts), Settings::Preparation::FirstRun);
  EXPECT_TRUE(settings.saveAsksRebounds(true));
  EXPECT_TRUE(settings.saveKeypadIsActive(false));
  EXPECT_EQ(value("CONFIGURATION", "SAVEREBOUND"), "True");
  EXPECT_EQ(value("CONFIGURATION", "KEYPAD"), "False");
  for (const char* name : {"Été 100%", "Матчи 💡", "%41", " blanks "}) {
    settings.lastGameFolder = folder.path(name);
    std::filesystem::create_directory(settings.lastGameFolder);
    ASSERT_TRUE(settings.saveLastFolders());
    ProfileStore otherStore(disk);
    Settings next(otherStore, folder.path());
    EXPECT_EQ(next.prepare(texts), Settings::Preparation::AlreadyThere);
    EXPECT_EQ(next.lastGameFolder, folder.path(name));
    EXPECT_TRUE(next.asksRebounds && !next.keypadIsActive);
  }
  EXPECT_EQ(pathValue("/home/é/games"), "/home/é/games") << "as others read it, where the file holds it";
}

TEST_F(SettingsTest, AFirstStartOnAFullDiskGoesOnInMemoryAndIsWrittenLaterInOrder) {
  disk.isFull = true;
  EXPECT_EQ(settings.prepare(texts), Settings::Preparation::WriteFailed);
  EXPECT_FALSE(folder.holds("CONFIG.INI"));
  EXPECT_EQ(settings.twoPointColour, 9092558U);
  EXPECT_TRUE(settings.keypadIsActive);
  EXPECT_FALSE(settings.saveLanguage(Language::French));
  EXPECT_FALSE(settings.isOnDisk());
  EXPECT_EQ(settings.language, Language::French);
  disk.isFull = false;
  EXPECT_TRUE(settings.saveLastFolders());
  EXPECT_TRUE(settings.isOnDisk());
  EXPECT_EQ(value("CONFIGURATION", "LANGUE"), "4000");
  EXPECT_TRUE(value("TEAM", "6").starts_with("PUMA,"));
}

TEST_F(SettingsTest, AFileThatCannotBeReadIsLeftAlone) {
  std::filesystem::create_directory(folder.path("CONFIG.INI"));
  EXPECT_EQ(settings.prepare(texts), Settings::Preparation::CannotBeRead);
  EXPECT_FALSE(settings.saveLanguage(Language::French));
  EXPECT_FALSE(settings.content().hasSection("TEAM")) << "the sample teams are no picture of what it holds";
  // Once it is readable again, what it holds counts, and what was chosen meanwhile is added to it.
  std::filesystem::remove(folder.path("CONFIG.INI"));
  folder.write("CONFIG.INI", "[CONFIGURATION]\r\nLANGUE=0\r\nCOULEUR2PTS=1\r\n");
  EXPECT_TRUE(settings.retry());
  EXPECT_EQ(folder.read("CONFIG.INI"), "[CONFIGURATION]\r\nLANGUE=4000\r\nCOULEUR2PTS=1\r\n");
}

TEST_F(SettingsTest, AnOldFileIsNotTouchedBeforeItIsKeptAside) {
  const std::string old = "[CONFIGURATION]\r\nLANGUE=0\r\n";
  folder.write("CONFIG.INI", old);
  disk.failsFrom = 1;
  EXPECT_EQ(settings.prepare(texts), Settings::Preparation::WriteFailed);
  EXPECT_EQ(folder.read("CONFIG.INI"), old);
  EXPECT_TRUE(settings.keptAs().empty());
  // The copy is made, the settings are not: the next try does not make another copy.
  disk.failsFrom = disk.replacements + 2;
  EXPECT_FALSE(settings.retry());
  EXPECT_EQ(folder.read("CONFIG.INI"), old);
  EXPECT_EQ(folder.read("CONFIG.INI.1"), old);
  disk.failsFrom = 0;
  EXPECT_TRUE(settings.retry());
  EXPECT_FALSE(folder.holds("CONFIG.INI.2"));
  EXPECT_TRUE(value("TEAM", "1").starts_with("LYNX,"));
}

TEST(SettingsLabels, AreShownWithoutTheirPrefix) {
  for (const auto& [label, shown] : std::map<std::string, std::string>{{"U1-Deflections", "Deflections"},
                                                                       {"U2----", "---"},
                                                                       {"U1-", ""},
                                                                       {"", ""},
                                                                       {"Screens", "Screens"}})
    EXPECT_EQ(Settings::shownLabel(label), shown);
}

TEST_F(SettingsTest, TheDiagnosticDisplayIsAskedForByTheFirstLabel) {
  const std::string head = "[CONFIGURATION]\r\nLANGUE=0\r\nKEYPAD=True\r\nSTATU1=";
  for (const auto& [label, asked] : {std::pair("WW-DEBUG", true), std::pair("WW-DEBUGGING", true),
                                     std::pair("WW-DEBU", false), std::pair("U1-WW-DEBUG", false)}) {
    folder.write("CONFIG.INI", head + label);
    settings.read();
    EXPECT_EQ(settings.asksForTextNumbers(), asked) << label;
  }
}

TEST(CustomColours, AreSixteenDifferentOnes) {
  const std::set<std::uint32_t> colours(customColours().begin(), customColours().end());
  EXPECT_EQ(colours.size(), 16U);
  EXPECT_EQ(customColours().front(), 8438015U);
  EXPECT_EQ(customColours().back(), 16749608U);
}

} // namespace
} // namespace hooptab
