#include "storage/GameLock.h"
#include "storage/LockWatch.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Outcome = LockFile::Outcome;
using State = LockWatch::State;

// Runs in another process, and returns what it says.
int elsewhere(const std::function<int()>& act) {
  const pid_t child = fork();
  if (child == 0)
    _exit(act());
  int status = 0;
  waitpid(child, &status, 0);
  return WEXITSTATUS(status);
}

TEST(LockFileTest, OfThisComputerItLivesAsLongAsItsProcess) {
  const TemporaryFolder folder;
  const std::string path = folder.path("A.lock");
  ASSERT_EQ(elsewhere([&]() -> int {
              LockFile left(path);
              const bool isHeld = left.acquire() == Outcome::Held;
              _exit(isHeld ? 7 : 1); // as a crash leaves it
            }),
            7);
  ASSERT_TRUE(fs::exists(path));
  {
    LockFile lock(path);
    EXPECT_EQ(lock.acquire(), Outcome::Held) << "its process is gone";
    EXPECT_EQ(elsewhere([&] { return LockFile(path).acquire() == Outcome::HeldElsewhere ? 7 : 1; }), 7);
    EXPECT_TRUE(lock.isStillOurs());
  }
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(LockFile(folder.path("none/A.lock")).acquire(), Outcome::CannotBeMade);
  folder.write("A.lock", "77\nhooptab\nDEADLAPTOP\n0123\n4567\n");
  EXPECT_EQ(LockFile(path).acquire(), Outcome::HeldElsewhere) << "nobody can ask another computer";
  folder.write("A.lock", "");
  EXPECT_EQ(LockFile(path).acquire(), Outcome::HeldElsewhere);
  EXPECT_FALSE(LockFile::ownerOf(LockFile(path).look()).isKnown);
}

TEST(LockFileTest, IsRenewedMadeAgainAndLostToWhoeverTakesIt) {
  const TemporaryFolder folder;
  const std::string path = folder.path("A.lock");
  LockFile lock(path, 20ms);
  ASSERT_EQ(lock.acquire(), Outcome::Held);
  const LockFile::Sight first = lock.look();
  for (int i = 0; i < 200 && lock.look() == first; ++i)
    std::this_thread::sleep_for(20ms);
  EXPECT_NE(lock.look(), first) << "renewed by itself";
  fs::remove(path);
  EXPECT_TRUE(lock.isStillOurs());
  EXPECT_TRUE(fs::exists(path)) << "made again";
  LockFile other(path, 1h);
  EXPECT_EQ(other.takeOver(first), Outcome::HeldElsewhere) << "it has changed since";
  Outcome outcome = Outcome::HeldElsewhere;
  for (int i = 0; i < 100 && outcome == Outcome::HeldElsewhere; ++i)
    outcome = other.takeOver(other.look());
  ASSERT_EQ(outcome, Outcome::Held);
  const LockFile::Sight taken = other.look();
  std::this_thread::sleep_for(60ms);
  EXPECT_EQ(other.look(), taken) << "whoever has lost it keeps no foreign lock alive";
}

// Both names lead to one file, and a link that is moved elsewhere does not change which file is locked.
TEST(LockFileTest, AGameIsLockedByWhatItsFileIs) {
  const TemporaryFolder folder;
  FileSystem files;
  fs::create_directory(folder.path("games"));
  const std::string game = folder.write("games/A.GAM", "x");
  fs::create_symlink(game, folder.path("link.GAM"));
  fs::create_directory_symlink(folder.path("games"), folder.path("other"));
  GameLock lock;
  ASSERT_EQ(lock.acquire(files, folder.path("link.GAM")), GameLock::Outcome::Held);
  EXPECT_EQ(lock.game(), game);
  EXPECT_TRUE(fs::exists(game + ".lock"));
  for (const char* name : {"games/A.GAM", "other/A.GAM", "link.GAM", "games/../link.GAM"})
    EXPECT_EQ(GameLock().acquire(files, folder.path(name)), GameLock::Outcome::HeldElsewhere) << name;
  GameLock made;
  EXPECT_EQ(made.acquire(files, folder.path("other/new.GAM")), GameLock::Outcome::Held);
  EXPECT_EQ(made.game(), folder.path("games/new.GAM"));
  fs::create_hard_link(game, folder.path("hard.GAM"));
  GameLock hard;
  EXPECT_EQ(hard.acquire(files, folder.path("hard.GAM")), GameLock::Outcome::Held)
      << "the first save parts them";
  EXPECT_EQ(hard.names(), 2u);
}

TEST(LockWatchTest, StandsStillOnlyWhenNobodyRenewsIt) {
  LockWatch watch(25s);
  LockFile::Sight sight;
  sight.isThere = true;
  EXPECT_EQ(watch.look(sight, 100s), State::Watching);
  EXPECT_EQ(watch.look(sight, 124s), State::Watching);
  sight.renewedNanoseconds = -5; // clocks of other computers say anything
  EXPECT_EQ(watch.look(sight, 125s), State::Renewed);
  EXPECT_EQ(watch.look(sight, 149s), State::Watching);
  EXPECT_EQ(watch.look(sight, 150s), State::StandsStill);
  EXPECT_EQ(watch.look(sight, 200s), State::Watching) << "said once";
  sight.text = "another's";
  EXPECT_EQ(watch.look(sight, 201s), State::Renewed);
  EXPECT_EQ(watch.look({}, 202s), State::Free);
}

} // namespace
} // namespace hooptab
