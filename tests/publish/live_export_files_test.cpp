#include "publish/ExtractKinds.h"
#include "publish/LiveExportFiles.h"
#include "recording/LiveTable.h"

using namespace hooptab;

namespace {

class LiveExportFilesTest : public LiveTableTest {
 protected:
  void SetUp() override {
    create(regular(), "4 5 10 12 15", "3 7 8 11 22");
    std::filesystem::create_directory(folder.path("out"));
  }
  [[nodiscard]] RunningGame now() const { return RunningGame::of(live); }
  [[nodiscard]] std::string out(const std::string& name) const { return folder.read("out/" + name); }
};

} // namespace

TEST_F(LiveExportFilesTest, AnOverlayFollowsTheGameAndItsClock) {
  LiveExportFiles files({folder.path("out"), std::nullopt}, Language::English);
  ASSERT_TRUE(files.write(now()));
  EXPECT_EQ(out("visitor_score.txt"), "0");
  const auto clockBefore = std::filesystem::last_write_time(folder.path("out/home_score.txt"));
  RunningGame later = now();
  later.phase = LiveGame::Phase::Running;
  later.clockSeconds = 595;
  ASSERT_TRUE(files.write(later));
  EXPECT_EQ(out("clock.txt"), "09:55");
  EXPECT_EQ(std::filesystem::last_write_time(folder.path("out/home_score.txt")), clockBefore); // as it was
}

TEST_F(LiveExportFilesTest, AGameOfAnotherSystemIsWhole) {
  LiveExportFiles files({folder.path("out"), GameFormat::LiveStats}, Language::English);
  ASSERT_TRUE(files.write(now()));
  EXPECT_FALSE(out("live.json").empty());
  folder.write("out/other.json", "an original");
  RunningGame other = now();
  other.counted.game.path = folder.path("other.GAM"); // opened in the same window: nobody was asked
  EXPECT_TRUE(files.write(other));
  EXPECT_EQ(out("other.json"), "an original");
}

TEST_F(LiveExportFilesTest, WhatIsNotWrittenIsToldAndWrittenLater) {
  LiveExportFiles files({folder.path("gone"), std::nullopt}, Language::English);
  EXPECT_FALSE(files.write(now()));
  EXPECT_EQ(files.lastError()->load(), ENOENT);
  std::filesystem::create_directory(folder.path("gone"));
  EXPECT_TRUE(files.write(now()));
  EXPECT_EQ(files.lastError()->load(), 0);
  EXPECT_EQ(folder.read("gone/home_score.txt"), "0");
}
