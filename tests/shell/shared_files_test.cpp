#include "shell/SharedFiles.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

class SharedFilesTest : public testing::Test {
 protected:
  SharedFilesTest() {
    for (const char* name : {"bin", "share/hooptab"})
      std::filesystem::create_directories(root.path(name));
  }

  const TemporaryFolder root;
  const SharedFiles files{root.path("bin")};
};

TEST_F(SharedFilesTest, LooksBesideTheExecutableBeforeTheInstalledFolder) {
  EXPECT_EQ(files.find("guide.pdf"), std::nullopt);
  root.write("share/hooptab/guide.pdf", "installed");
  EXPECT_EQ(files.find("guide.pdf"), root.path("share/hooptab/guide.pdf"));
  root.write("bin/guide.pdf", "portable");
  EXPECT_EQ(files.find("guide.pdf"), root.path("bin/guide.pdf"));
}

TEST_F(SharedFilesTest, ProvidesAFileOnceAndNeverReplacesTheUsersOwn) {
  const std::string folder = root.path("program");
  EXPECT_FALSE(files.provide("guide.pdf", folder)) << "nothing is shipped";
  root.write("share/hooptab/guide.pdf", "guide");
  EXPECT_FALSE(files.provide("guide.pdf", folder)) << "the folder is missing";
  std::filesystem::create_directory(folder);
  EXPECT_TRUE(files.provide("guide.pdf", folder));
  EXPECT_EQ(root.read("program/guide.pdf"), "guide");
  root.write("program/guide.pdf", "the user's own");
  EXPECT_TRUE(files.provide("guide.pdf", folder));
  EXPECT_EQ(root.read("program/guide.pdf"), "the user's own");
}

} // namespace
} // namespace hooptab
