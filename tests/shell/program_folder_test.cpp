#include "shell/ProgramFolder.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

class ProgramFolderTest : public testing::Test {
 protected:
  ProgramFolderTest() {
    for (const char* name : {"named", "environment", "portable", "data", "home"})
      std::filesystem::create_directory(folder.path(name));
    folder.write("portable/CONFIG.INI", "");
  }
  TemporaryFolder folder;
  ProgramFolderSources sources{folder.path("named"), folder.path("environment"), folder.path("portable"),
                               folder.path("data"), folder.path("home")};
};

TEST_F(ProgramFolderTest, TheFirstPlaceThatAppliesIsTaken) {
  EXPECT_EQ(findProgramFolder(sources).path, folder.path("named"));
  sources.commandLine.reset();
  EXPECT_EQ(findProgramFolder(sources).path, folder.path("environment"));
  sources.environment.clear();
  EXPECT_EQ(findProgramFolder(sources).path, folder.path("portable"));
  std::filesystem::remove(folder.path("portable/CONFIG.INI"));
  EXPECT_EQ(findProgramFolder(sources).path, folder.path("data/hooptab"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.path("data/hooptab"))) << "made when missing";
  sources.dataHome = "relative";
  EXPECT_EQ(findProgramFolder(sources).path, folder.path("home/.local/share/hooptab"));
  EXPECT_EQ(findProgramFolder(sources).problem, ProgramFolderProblem::None);
  sources.home.clear();
  EXPECT_EQ(findProgramFolder(sources).problem, ProgramFolderProblem::NoHome);
}

TEST_F(ProgramFolderTest, OneFolderHasOneName) {
  std::filesystem::create_directory_symlink(folder.path("named"), folder.path("link"));
  sources.commandLine = folder.path("link/./");
  EXPECT_EQ(findProgramFolder(sources).path, folder.path("named"));
}

TEST_F(ProgramFolderTest, WhatCannotBeUsedIsSaidAndNeverReplacedByAnotherPlace) {
  const auto problem = [&](const std::string& named) {
    sources.commandLine = named;
    const ProgramFolder found = findProgramFolder(sources);
    EXPECT_EQ(found.path, named);
    EXPECT_NE(message(found, Texts()).find(named), std::string::npos);
    return found.problem;
  };
  EXPECT_EQ(problem(folder.path("mistyped")), ProgramFolderProblem::Absent);
  EXPECT_FALSE(folder.holds("mistyped"));
  EXPECT_EQ(problem(folder.path("portable/CONFIG.INI")), ProgramFolderProblem::NotAFolder);
  sources = {std::nullopt, "", "", folder.write("file", ""), ""};
  const ProgramFolder notMade = findProgramFolder(sources);
  EXPECT_EQ(notMade.problem, ProgramFolderProblem::CannotMake);
  EXPECT_NE(message(notMade, Texts()), "");
}

} // namespace
} // namespace hooptab
