#include "shell/SharedFiles.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace hooptab {
namespace {

namespace fs = std::filesystem;

class SharedFilesTest : public testing::Test {
 protected:
  SharedFilesTest() { fs::create_directories(root / "bin"); }
  ~SharedFilesTest() override { fs::remove_all(root); }
  void write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
  }
  std::string read(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  const fs::path root = fs::temp_directory_path() / ("hooptab_shared_files_" + std::to_string(getpid()));
  const SharedFiles files{(root / "bin").string()};
};

TEST_F(SharedFilesTest, LooksBesideTheExecutableBeforeTheInstalledFolder) {
  EXPECT_EQ(files.find("guide.pdf"), std::nullopt);

  write(root / "share/hooptab/guide.pdf", "installed");
  EXPECT_EQ(files.find("guide.pdf"), (root / "share/hooptab/guide.pdf").string());

  write(root / "bin/guide.pdf", "portable");
  EXPECT_EQ(files.find("guide.pdf"), (root / "bin/guide.pdf").string());
}

TEST_F(SharedFilesTest, ProvidesAFileOnceAndNeverReplacesTheUsersOwn) {
  const fs::path folder = root / "program";
  EXPECT_FALSE(files.provide("guide.pdf", folder.string())) << "nothing is shipped";

  write(root / "share/hooptab/guide.pdf", "guide");
  EXPECT_FALSE(files.provide("guide.pdf", folder.string())) << "the folder is missing";
  fs::create_directories(folder);
  EXPECT_TRUE(files.provide("guide.pdf", folder.string()));
  EXPECT_EQ(read(folder / "guide.pdf"), "guide");

  write(folder / "guide.pdf", "the user's own");
  EXPECT_TRUE(files.provide("guide.pdf", folder.string()));
  EXPECT_EQ(read(folder / "guide.pdf"), "the user's own");
}

} // namespace
} // namespace hooptab
