// What becomes of a game that is being recorded when others change its file.
#include "recording/LiveTable.h"

#include <filesystem>
#include <functional>

namespace hooptab {
namespace {

namespace fs = std::filesystem;

class ForeignHandsTest : public LiveTableTest {
 protected:
  void SetUp() override {
    create(regular(), "4 5 10 12 15 7", "4 5 10 12 15 7");
    live.disk().setRescueFolder(rescue.path());
    putFives(); // 2
    score();    // 3
    score();    // 4
  }
  void score() { ASSERT_TRUE(live.recordShot(Side::Visitor, 1, EventCode::GFT, true)); }
  // Another program's way of adding a line, as a text editor would save it.
  void append(const std::string& line) { folder.write("live.GAM", folder.read("live.GAM") + line + "\r\n"); }
  void replace(const std::string& what, const std::string& by) {
    std::string text = folder.read("live.GAM");
    ASSERT_NE(text.find(what), std::string::npos) << what;
    folder.write("live.GAM", text.replace(text.find(what), what.size(), by));
  }
  // Period 1 as another reader finds it: number and code of each.
  std::string found() { return found(path); }
  std::string found(const std::string& file) {
    FileSystem own;
    ProfileStore fresh(own);
    std::string text;
    const PeriodLines lines = linesOfFile(fresh, file)[1];
    for (const auto& [key, line] : lines)
      text += key + line.substr(5, line.starts_with("10:00,ARRET") ? 6 : 20) + ' ';
    return text;
  }
  // What is counted here is what anybody finds who opens the file.
  void expectTruth() {
    FileSystem own;
    ProfileStore fresh(own);
    Game game;
    ASSERT_EQ(GameFile(fresh, path).read(game), GameFileProblem::None);
    EXPECT_EQ(linesOf(game.events), linesOf(live.game().events));
    EXPECT_TRUE(live.log().countsAgree());
    EXPECT_GE(game.details.nextEventNumber, live.log().nextNumber());
  }
  static constexpr const char* kOurs = "1,ARRET 2,ARRET 3,GFT,0-4 4,GFT,0-4 ";
  TemporaryFolder rescue;
};

TEST_F(ForeignHandsTest, AnEventOfTheNextNumberIsTakenInAtTheNextLookAndCollidesAfterwards) {
  append("5=10:00,GFT,1-5");
  EXPECT_TRUE(live.settle());
  EXPECT_EQ(live.takeForeignHands().added, 1);
  EXPECT_EQ(live.state().points(Side::Home), 1);
  score(); // 6
  expectTruth();
  append("7=10:00,GFT,1-5");
  append("8=10:00,SST,1-5");
  append("0=what is this?");
  append("4=10:00,SST,1-5");
  score(); // 7, before anybody has looked
  const ForeignHands hands = live.takeForeignHands();
  EXPECT_EQ(std::pair(hands.added, hands.restored), std::pair(1, 0));
  EXPECT_EQ(hands.gaveWay, (std::vector<EventPlace>{{1, "4"}, {1, "7"}, {1, "0"}}));
  const std::string kept = folder.read(fs::path(hands.keptAs).filename().string());
  EXPECT_NE(kept.find("7=10:00,GFT,1-5"), std::string::npos);
  EXPECT_NE(kept.find("4=10:00,SST,1-5"), std::string::npos) << "behind the line of that number that is read";
  score(); // 9: 8 is theirs
  EXPECT_EQ(found(), std::string(kOurs) + "5,GFT,1-5 6,GFT,0-4 7,GFT,0-4 8,SST,1-5 9,GFT,0-4 ");
  expectTruth();
  EXPECT_TRUE(live.undo() && live.undo()) << "what others added takes nothing away from undoing";
  EXPECT_EQ(live.state().points(Side::Visitor), 3);
  expectTruth();
}

TEST_F(ForeignHandsTest, AnOlderVersionLosesNothingOfOurs) {
  const std::string older = folder.read("live.GAM");
  score();
  live.setTeamColour(Side::Visitor, 255);
  ASSERT_TRUE(live.setDeleted(std::vector<EventPlace>{{1, "3"}}, true));
  live.finish("Notes of ours");
  folder.write("live.GAM", older);
  EXPECT_TRUE(live.settle());
  ForeignHands hands = live.takeForeignHands();
  EXPECT_EQ(hands.restored, 2) << "one line was gone, one not deleted";
  EXPECT_TRUE(live.game().details.isFinished);
  EXPECT_EQ(live.game().details.notes, "Notes of ours");
  EXPECT_EQ(live.game().details.teamColour[Side::Visitor], 255U);
  expectTruth();
  // What others say now is theirs, if it is not what the file said before.
  replace("NOTES=Notes of ours", "NOTES=Theirs");
  EXPECT_TRUE(live.settle());
  hands = live.takeForeignHands();
  EXPECT_EQ(hands.restored + hands.added, 0);
  EXPECT_EQ(live.game().details.notes, "Theirs");
  expectTruth();
}

TEST_F(ForeignHandsTest, PlayersDetailsAndUnknownSectionsAreTheirs) {
  append("; a comment of theirs\r\n[ELSEWHERE]\r\nA=b");
  replace("[0]\r\n4=0,Player 4\r\n", "[0]\r\n9=1,New\r\n");
  replace("5=0,Player 5\r\n10=", "5=1,Bea\r\n10=");
  score();
  (void)live.takeForeignHands();
  const Roster& visitors = live.game().roster[Side::Visitor];
  EXPECT_EQ(visitors.player(1)->jersey, "9");
  EXPECT_EQ(visitors.player(visitors.entryOf("5"))->name, "Bea");
  ASSERT_GT(visitors.entryOf("4"), 0) << "who has scored cannot be missed";
  EXPECT_TRUE(live.slotOf(Side::Visitor, visitors.entryOf("4")) && !live.slotOf(Side::Visitor, 1))
      << "nor leave the court";
  EXPECT_NE(folder.read("live.GAM").find("; a comment of theirs\r\n[ELSEWHERE]\r\nA=b"), std::string::npos);
  expectTruth();
}

// Each makes the file useless in its own way; the next click writes the whole game, and the other file stays.
TEST_F(ForeignHandsTest, AFileThatCannotBeUsedIsWrittenAgainAndTheForeignOneKept) {
  append("[ELSEWHERE]\r\nA=b");
  EXPECT_TRUE(live.settle());
  const std::vector<std::pair<const char*, std::function<void()>>> ways = {
      {"deleted", [&] { fs::remove(path); }},
      {"renamed", [&] { fs::rename(path, folder.path("other.GAM")); }},
      {"empty", [&] { folder.write("live.GAM", ""); }},
      {"cut off", [&] { fs::resize_file(path, fs::file_size(path) / 2); }},
      {"garbage", [&] { folder.write("live.GAM", std::string(5000, '\xA7')); }},
      {"zeros", [&] { folder.write("live.GAM", std::string(5000, '\0')); }},
      {"no game", [&] { replace("VERSION=2.0", "VERSION=9.0"); }},
      {"too large", [&] { fs::resize_file(path, 64U * 1024 * 1024); }},
      {"folder", [&] { fs::remove(path), fs::create_directory(path), folder.write("live.GAM/x", "y"); }},
      {"link", [&] { fs::remove(path), fs::create_symlink("/nowhere/x", path); }},
      {"garbage once more", [&] { folder.write("live.GAM", "x"); }},
      {"hidden lines", [&] { replace("[PERIODE1]\r\n", "[PERIODE1]\r\n4\r\n"); }},
      {"no section", [&] { replace("[PERIODE1]", "[PERIOD1]"); }},
  };
  std::string all = kOurs;
  int number = 5;
  for (const auto& [name, spoil] : ways) {
    SCOPED_TRACE(name);
    spoil();
    score();
    all += std::to_string(number++) + ",GFT,0-4 ";
    EXPECT_TRUE(live.log().isOnDisk());
    EXPECT_EQ(found(), all);
    EXPECT_NE(folder.read("live.GAM").find("A=b"), std::string::npos) << "what others had added before";
    const ForeignHands hands = live.takeForeignHands();
    EXPECT_TRUE(hands.isRewritten || hands.restored > 0);
    const std::string way = name;
    const bool lackedNothing = way == "deleted" || way == "renamed" || way == "empty" || way == "cut off";
    EXPECT_EQ(hands.keptAs.empty(), lackedNothing || way == "no section");
    EXPECT_TRUE(hands.keptAs.empty() || fs::exists(fs::symlink_status(hands.keptAs)));
    expectTruth();
  }
}

TEST_F(ForeignHandsTest, WhatTheDiskRefusesStandsInARescueFileUntilItTakesIt) {
  fs::permissions(path, fs::perms::owner_read);
  score();
  score();
  EXPECT_EQ(live.log().waiting(), 2U);
  const std::string rescued = live.disk().rescuedAs();
  ASSERT_EQ(fs::path(rescued).parent_path(), rescue.path());
  EXPECT_EQ(found(rescued), std::string(kOurs) + "5,GFT,0-4 6,GFT,0-4 ");
  EXPECT_EQ(found(), kOurs);
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  append("5=10:00,SST,1-5"); // and somebody has been there meanwhile
  EXPECT_TRUE(live.settle());
  EXPECT_FALSE(fs::exists(rescued)) << "the game stands where it belongs";
  EXPECT_EQ(live.takeForeignHands().gaveWay.size(), 1U);
  expectTruth();
}

TEST_F(ForeignHandsTest, WhoeverHasLostTheFileWritesNothingThereAnyMore) {
  bool isOurs = true;
  live.disk().setOwnership([&] { return isOurs; });
  score();
  isOurs = false;
  const std::string before = folder.read("live.GAM");
  score();
  isOurs = true; // whoever has it now: it is not given back in silence
  score();
  EXPECT_TRUE(live.disk().isLost());
  EXPECT_EQ(folder.read("live.GAM"), before);
  EXPECT_EQ(found(live.disk().rescuedAs()), std::string(kOurs) + "5,GFT,0-4 6,GFT,0-4 7,GFT,0-4 ");
  EXPECT_TRUE(live.writeCopy(folder.path("copy.GAM")));
  EXPECT_EQ(found(folder.path("copy.GAM")), found(live.disk().rescuedAs()));
}

// As editors save: another file takes the name, at any moment of our own look and write. Only between the
// last look and the change of names can nobody help it.
TEST_F(ForeignHandsTest, WhatComesWhileWritingIsNotCovered) {
  int disturbed = 0;
  for (int call = 0;; ++call) {
    const std::string theirs = "SST,1-5,M" + std::to_string(call) + 'M';
    disk.calls = 0;
    disk.disturbedAt = call;
    const int renames = disk.renames;
    bool isChangeOfNames = false;
    bool hasHappened = false;
    disk.disturbance = [&] {
      hasHappened = true;
      isChangeOfNames = disk.renames > renames;
      const std::string number = std::to_string(1000 * (call + 1));
      folder.write("saved", folder.read("live.GAM") + number + "=10:00," + theirs + "\r\n");
      fs::rename(folder.path("saved"), path);
    };
    score();
    if (!hasHappened)
      break;
    EXPECT_TRUE(live.settle());
    (void)live.takeForeignHands();
    if (!isChangeOfNames) {
      EXPECT_NE(folder.read("live.GAM").find(theirs), std::string::npos) << call;
      ++disturbed;
    }
    expectTruth();
  }
  EXPECT_GT(disturbed, 8);
}

// A file system that fails at any call, while the file has another version that must be kept: either the
// foreign version stands, or ours with theirs beside it; and a second try ends well.
TEST_F(ForeignHandsTest, AnyFailureWhileBringingTogetherLosesNeitherSide) {
  bool failed = true;
  for (int call = 0; failed; ++call) {
    const std::string number = std::to_string(live.log().nextNumber());
    append(number + "=10:00,SST,1-5," + number);
    disk.reset();
    disk.failAt = call;
    score();
    failed = disk.hasFailed;
    disk.reset();
    EXPECT_TRUE(live.settle());
    bool isKept = false;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
      const std::string name = entry.path().filename().string();
      isKept = isKept || folder.read(name).find("SST,1-5," + number) != std::string::npos;
      if (name != "live.GAM")
        fs::remove(entry.path());
    }
    EXPECT_TRUE(isKept) << call;
    (void)live.takeForeignHands();
    expectTruth();
    ASSERT_LT(call, 200);
  }
}

} // namespace
} // namespace hooptab
