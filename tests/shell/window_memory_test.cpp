#include "shell/WindowMemory.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

class WindowMemoryTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  FileSystem disk;
  ProfileStore store{disk};
  WindowMemory memory{store, folder.path()};

  // What the next start of the program finds.
  WindowMemory next() { return {store, folder.path()}; }
  void expectNothing() {
    EXPECT_EQ(memory.layout("MDI"), "");
    EXPECT_TRUE(memory.recentFiles().empty());
    EXPECT_EQ(memory.colourScheme(), std::nullopt);
    EXPECT_EQ(memory.refreshSeconds(), 0);
  }
};

TEST_F(WindowMemoryTest, NothingIsRememberedAtFirst) {
  expectNothing();
  EXPECT_FALSE(folder.holds("WINDOWS.INI")) << "asking writes nothing";
}

TEST_F(WindowMemoryTest, LayoutsAndChoicesAreThereAtTheNextStart) {
  const std::string long_(2000, 'A');
  memory.rememberLayout("MDI", "AdnQywADAAA=");
  memory.rememberLayout("frmVIEW.columns", long_);
  memory.rememberColourScheme(ColourScheme::Dark);
  memory.rememberRefreshSeconds(30);
  LastChoices choices{{12, 3}, "Main gym, É", "A. Scorer", 9, 2};
  choices.habits[3] = {"", RecordingLevel::Basic};
  EXPECT_EQ(memory.lastGame(), LastChoices());
  memory.rememberLastGame(choices);
  EXPECT_EQ(folder.read("WINDOWS.INI").find("TEAMGAMES"), std::string::npos) << "where nobody chose";
  choices.habits = {{3, {"FIBA", RecordingLevel::League}}, {12, {"", RecordingLevel::Full}}};
  memory.rememberLastGame(choices);
  EXPECT_EQ(next().lastGame(), choices);
  memory.rememberLastGame({{3, 0}, "", "", 2, 0, {{3, {}}}});
  EXPECT_EQ(next().lastGame().habits, (std::map<int, TeamHabit>{{3, {}}, {12, {"", RecordingLevel::Full}}}));
  EXPECT_EQ(next().layout("MDI"), "AdnQywADAAA=");
  EXPECT_EQ(next().layout("frmVIEW.columns"), long_) << "longer than a setting may be";
  EXPECT_EQ(next().colourScheme(), ColourScheme::Dark);
  EXPECT_EQ(next().refreshSeconds(), 30);
  memory.rememberColourScheme(ColourScheme::Light);
  EXPECT_EQ(next().colourScheme(), ColourScheme::Light);
}

TEST_F(WindowMemoryTest, RecentFilesAreTenNewestFirstEachOnceAndThereStill) {
  std::vector<std::string> paths;
  for (int i = 0; i < 12; ++i)
    paths.push_back(folder.write("game " + std::to_string(i) + ".GAM", ""));
  for (const std::string& path : paths)
    memory.rememberFile(path);
  memory.rememberFile(paths[5]);
  std::vector<std::string> expected = {paths[5], paths[11], paths[10], paths[9], paths[8],
                                       paths[7], paths[6],  paths[4],  paths[3], paths[2]};
  EXPECT_EQ(next().recentFiles(), expected);
  std::filesystem::remove(paths[5]);
  expected.erase(expected.begin());
  EXPECT_EQ(next().recentFiles(), expected) << "one that is gone is not listed";
}

TEST_F(WindowMemoryTest, NamesOfFilesMayHoldAnyByte) {
  for (const std::string name : {"Ωμέγα.GAM", "\xFF.GAM", " blanks ", "two\nlines", "50%41", "%", "%4"}) {
    const std::string path = folder.write(name, "");
    memory.rememberFile(path);
    ASSERT_FALSE(next().recentFiles().empty()) << name;
    EXPECT_EQ(next().recentFiles().front(), path);
  }
}

TEST_F(WindowMemoryTest, ASpoiltFileIsReadAsFarAsItMakesSense) {
  folder.write("WINDOWS.INI", "[RECENT]\n1=%\n2=%ZZ\n3=\n4=/\n99=" + folder.write("a.GAM", "") +
                                  "\n[CHOICES]\nCOLOURS=pink\nREFRESH=7\n[LAYOUT]\nMDI");
  expectNothing();
}

} // namespace
} // namespace hooptab
