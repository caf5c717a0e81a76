// Whatever the disk refuses, afterwards the file is the old one or the new one, and the result tells which
// call it was.
#include "storage/ProfileStore.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace hooptab {
namespace {

constexpr std::string_view kOld = "[DETAILS]\r\nEVENUM=2\r\n[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n";
constexpr std::string_view kNew =
    "[DETAILS]\r\nEVENUM=3\r\n[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n2=10:00,DEPART\r\n";

ProfileBatch oneEvent() {
  ProfileBatch batch;
  batch.set("PERIODE1", "2", "10:00,DEPART");
  batch.set("DETAILS", "EVENUM", "3");
  return batch;
}

class ProfileFaults : public testing::Test {
 protected:
  std::string fileOrAbsent() const { return folder.holds("A.GAM") ? folder.read("A.GAM") : "absent"; }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
  }
  TemporaryFolder folder;
  FaultyFileSystem files;
  const std::string path = folder.path("A.GAM");
  ProfileStore store{files};
};

// Every call fails in turn, with every kind of failure: once, or for good.
TEST_F(ProfileFaults, LeaveTheOldFileOrTheNewOne) {
  int failures = 0;
  for (const bool existsBefore : {true, false}) {
    const std::string old(existsBefore ? kOld : "absent");
    for (const int error : {EIO, ENOSPC, EROFS, EDQUOT}) {
      for (const bool staysBroken : {false, true}) {
        for (int call = 0;; ++call) {
          SCOPED_TRACE(testing::Message() << "exists " << existsBefore << " errno " << error << " stays "
                                          << staysBroken << " call " << call);
          std::filesystem::remove(folder.path("A.GAM"));
          if (existsBefore)
            folder.write("A.GAM", kOld);
          files.reset();
          ProfileStore fresh(files);
          files.failAt = call;
          files.error = error;
          files.staysBroken = staysBroken;
          ProfileBatch batch;
          batch.set("DETAILS", "EVENUM", "3");
          if (existsBefore)
            batch = oneEvent();
          const std::string wanted(existsBefore ? kNew : "[DETAILS]\r\nEVENUM=3\r\n");
          const ProfileWrite result = fresh.write(path, batch);
          const bool isWritten = result.isOnDisk();
          const bool hasFailed = files.hasFailed;
          EXPECT_EQ(result.error().number, isWritten ? 0 : error) << "cleaning up failed in other ways";
          const std::string standing = fileOrAbsent();
          EXPECT_TRUE(standing == wanted || (standing == old && !isWritten)) << standing;
          EXPECT_TRUE(staysBroken || filesInFolder() <= 1) << "a temporary file was left";
          // The disk works again: the same data are taken, and what had been left is gone.
          files.reset();
          EXPECT_TRUE(fresh.write(path, batch).isOnDisk());
          EXPECT_EQ(fileOrAbsent(), wanted);
          EXPECT_EQ(filesInFolder(), 1u);
          failures += isWritten ? 0 : 1;
          if (!hasFailed)
            break; // there was no such call any more
        }
      }
    }
  }
  EXPECT_GT(failures, 100);
}

TEST_F(ProfileFaults, ReadsThatFailGiveDefaultsAndNeverStaleOrHalfAFile) {
  folder.write("A.GAM", kOld);
  for (int call = 0;; ++call) {
    files.reset();
    files.failAt = call;
    ProfileStore fresh(files);
    const ProfileReading reading = fresh.read(path);
    const bool isRead = reading.outcome == ReadOutcome::Read;
    EXPECT_EQ(reading.text.bytes(), isRead ? kOld : "") << call;
    EXPECT_EQ(reading.error.number, isRead ? 0 : files.error) << call;
    if (!files.hasFailed)
      break;
  }
}

TEST_F(ProfileFaults, ShortAndInterruptedCallsAreContinued) {
  folder.write("A.GAM", kOld);
  files.interrupts = true;
  files.mostBytes = 7;
  EXPECT_TRUE(store.write(path, oneEvent()).isOnDisk());
  EXPECT_EQ(fileOrAbsent(), kNew);
}

// When only the folder's fsync failed the new bytes are there, but not safe.
TEST_F(ProfileFaults, AReplacementThatMayNotLastIsRepeated) {
  folder.write("A.GAM", kOld);
  files.failAt = INT_MAX;
  ASSERT_TRUE(store.write(path, oneEvent()).isOnDisk());
  folder.write("A.GAM", kOld);
  files.failAt = files.calls * 2 - 2; // behind the folder's fsync it is only closed
  ASSERT_FALSE(store.write(path, oneEvent()).isOnDisk());
  ASSERT_EQ(fileOrAbsent(), kNew) << "the call that failed was not the folder's fsync";
  files.reset();
  EXPECT_TRUE(store.write(path, oneEvent()).isOnDisk());
  EXPECT_EQ(files.renames, 1);
  EXPECT_TRUE(store.write(path, oneEvent()).isOnDisk());
  EXPECT_EQ(files.renames, 1) << "what is on disk is not written again";
}

TEST_F(ProfileFaults, AreWhatMayNotBeWritten) {
  using Call = StorageError::Call;
  const auto refusal = [&](const std::string& where) {
    const ProfileWrite result = store.write(where, oneEvent());
    EXPECT_FALSE(result.isOnDisk()) << where;
    return std::pair(result.error().call, result.error().number);
  };
  EXPECT_EQ(refusal(folder.path("none/A.GAM")), std::pair(Call::Open, ENOENT)) << "a folder that is missing";
  EXPECT_EQ(refusal(folder.path()), std::pair(Call::NotAFile, 0)) << "a folder";
  EXPECT_EQ(refusal(""), std::pair(Call::Rename, ENOENT)) << "no path";
  EXPECT_EQ(refusal("/dev/null"), std::pair(Call::NotAFile, 0)) << "a device";
  ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(refusal(folder.path("pipe")), std::pair(Call::NotAFile, 0));
  EXPECT_EQ(store.read(folder.path("pipe")).outcome, ReadOutcome::Failed);
  ASSERT_EQ(::chmod(folder.write("A.GAM", kOld).c_str(), 0444), 0);
  EXPECT_EQ(refusal(path), std::pair(Call::WriteProtected, 0));
  EXPECT_EQ(fileOrAbsent(), kOld);

  std::filesystem::create_symlink(folder.path("taken out"), folder.path("link"));
  EXPECT_EQ(refusal(folder.path("link")), std::pair(Call::Resolve, ENOENT)) << "a link that leads nowhere";
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
  folder.write("large", "[A]");
  std::filesystem::resize_file(folder.path("large"), std::uintmax_t{kLargestProfileFile} + 1);
  EXPECT_EQ(refusal(folder.path("large")), std::pair(Call::TooLarge, 0));
  EXPECT_EQ(std::filesystem::file_size(folder.path("large")), std::uintmax_t{kLargestProfileFile} + 1);
  ProfileBatch tooMuch;
  tooMuch.set("A", "k", std::string(static_cast<std::size_t>(kLargestProfileFile), 'x'));
  EXPECT_EQ(store.write(folder.path("B.GAM"), tooMuch).error().call, Call::TooLarge)
      << "more than could be read again";
  EXPECT_FALSE(folder.holds("B.GAM"));
}

TEST_F(ProfileFaults, ReplacementKeepsModeLinkAndNeighbours) {
  folder.write("real.GAM", kOld);
  ASSERT_EQ(::chmod(folder.path("real.GAM").c_str(), 0640), 0);
  std::filesystem::create_symlink("real.GAM", folder.path("A.GAM"));
  folder.write(".real.GAM.hooptab-new", "left by a kill");
  EXPECT_TRUE(store.write(path, oneEvent()).isOnDisk());
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("A.GAM")));
  EXPECT_EQ(folder.read("real.GAM"), kNew);
  EXPECT_EQ(filesInFolder(), 2u);
  struct stat status = {};
  ASSERT_EQ(::stat(folder.path("real.GAM").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_TRUE(store.write(folder.path(std::string(251, 'x') + ".GAM"), oneEvent()).isOnDisk())
      << "the longest name that a file can have";
}

} // namespace
} // namespace hooptab
