// Whatever the disk refuses, afterwards the file is the old one or the new one, and the return code tells.
#include "storage/cinifile.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
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
  ProfileFaults() { store.Path(folder.path("A.GAM")); }
  std::string fileOrAbsent() const { return folder.holds("A.GAM") ? folder.read("A.GAM") : "absent"; }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
  }
  TemporaryFolder folder;
  FaultyFileSystem files;
  cinifile store{files};
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
          cinifile fresh(files);
          fresh.Path(folder.path("A.GAM"));
          files.failAt = call;
          files.error = error;
          files.staysBroken = staysBroken;
          ProfileBatch batch;
          batch.set("DETAILS", "EVENUM", "3");
          if (existsBefore)
            batch = oneEvent();
          const std::string wanted(existsBefore ? kNew : "[DETAILS]\r\nEVENUM=3\r\n");
          const bool isWritten = fresh.write(batch);
          const bool hasFailed = files.hasFailed;
          EXPECT_EQ(isWritten, fresh.LastReturnCode() != 0);
          const std::string standing = fileOrAbsent();
          EXPECT_TRUE(standing == wanted || (standing == old && !isWritten)) << standing;
          EXPECT_TRUE(staysBroken || filesInFolder() <= 1) << "a temporary file was left";
          // The disk works again: the same data are taken, and what had been left is gone.
          files.reset();
          EXPECT_TRUE(fresh.write(batch));
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
    cinifile fresh(files);
    fresh.Path(folder.path("A.GAM"));
    fresh.Section("DETAILS");
    fresh.Key("EVENUM");
    const std::string value = fresh.Value(); // before what came of it is asked
    EXPECT_EQ(value, fresh.readOutcome() == ReadOutcome::Read ? "2" : "") << call;
    if (!files.hasFailed)
      break;
  }
}

TEST_F(ProfileFaults, ShortAndInterruptedCallsAreContinued) {
  folder.write("A.GAM", kOld);
  files.interrupts = true;
  files.mostBytes = 7;
  EXPECT_TRUE(store.write(oneEvent()));
  EXPECT_EQ(fileOrAbsent(), kNew);
}

// When only the folder's fsync failed the new bytes are there, but not safe.
TEST_F(ProfileFaults, AReplacementThatMayNotLastIsRepeated) {
  folder.write("A.GAM", kOld);
  files.failAt = INT_MAX;
  ASSERT_TRUE(store.write(oneEvent()));
  folder.write("A.GAM", kOld);
  files.failAt = files.calls * 2 - 2; // behind the folder's fsync it is only closed
  ASSERT_FALSE(store.write(oneEvent()));
  ASSERT_EQ(fileOrAbsent(), kNew) << "the call that failed was not the folder's fsync";
  files.reset();
  EXPECT_TRUE(store.write(oneEvent()));
  EXPECT_EQ(files.renames, 1);
  EXPECT_TRUE(store.write(oneEvent()));
  EXPECT_EQ(files.renames, 1) << "what is on disk is not written again";
}

TEST_F(ProfileFaults, AreWhatMayNotBeWritten) {
  const auto isRefused = [&](const std::string& path) {
    store.Path(path);
    return !store.write(oneEvent()) && store.LastReturnCode() == 0;
  };
  EXPECT_TRUE(isRefused(folder.path("none/A.GAM"))) << "a folder that is missing";
  EXPECT_TRUE(isRefused(folder.path())) << "a folder";
  EXPECT_TRUE(isRefused("")) << "no path";
  EXPECT_TRUE(isRefused("/dev/null")) << "a device";
  ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(isRefused(folder.path("pipe")));
  EXPECT_EQ(store.readOutcome(), ReadOutcome::Failed);
  ASSERT_EQ(::chmod(folder.write("A.GAM", kOld).c_str(), 0444), 0);
  EXPECT_TRUE(isRefused(folder.path("A.GAM"))) << "no write permission bit";
  EXPECT_EQ(fileOrAbsent(), kOld);

  std::filesystem::create_symlink(folder.path("taken out"), folder.path("link"));
  EXPECT_TRUE(isRefused(folder.path("link"))) << "a link that leads nowhere";
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
  folder.write("large", "[A]");
  std::filesystem::resize_file(folder.path("large"), std::uintmax_t{kLargestProfileFile} + 1);
  EXPECT_TRUE(isRefused(folder.path("large")));
  EXPECT_EQ(store.readOutcome(), ReadOutcome::TooLarge);
  EXPECT_EQ(std::filesystem::file_size(folder.path("large")), std::uintmax_t{kLargestProfileFile} + 1);
  std::filesystem::remove(folder.path("A.GAM"));
  store.Path(folder.path("B.GAM"));
  store.Section("A");
  store.Key("k");
  store.Value(std::string(static_cast<std::size_t>(kLargestProfileFile), 'x'));
  EXPECT_EQ(store.LastReturnCode(), 0) << "more than could be read again";
  EXPECT_FALSE(folder.holds("B.GAM"));
}

TEST_F(ProfileFaults, ReplacementKeepsModeLinkAndNeighbours) {
  folder.write("real.GAM", kOld);
  ASSERT_EQ(::chmod(folder.path("real.GAM").c_str(), 0640), 0);
  std::filesystem::create_symlink("real.GAM", folder.path("A.GAM"));
  folder.write(".real.GAM.hooptab-new", "left by a kill");
  EXPECT_TRUE(store.write(oneEvent()));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("A.GAM")));
  EXPECT_EQ(folder.read("real.GAM"), kNew);
  EXPECT_EQ(filesInFolder(), 2u);
  struct stat status = {};
  ASSERT_EQ(::stat(folder.path("real.GAM").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  store.Path(folder.path(std::string(251, 'x') + ".GAM"));
  EXPECT_TRUE(store.write(oneEvent())) << "the longest name that a file can have";
}

} // namespace
} // namespace hooptab
