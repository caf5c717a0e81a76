// The parsed copy that the store keeps is never older than the file, and is used as long as it can be.
#include "storage/cinifile.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

// A drive whose clock counts in steps of two seconds, as those of USB sticks do, and has just ticked.
class CoarseFileSystem : public FileSystem {
 public:
  bool stamp(const std::string& path, FileStamp& result) override {
    return FileSystem::stamp(path, result) && coarsen(result);
  }
  bool stamp(int descriptor, FileStamp& result) override {
    return FileSystem::stamp(descriptor, result) && coarsen(result);
  }
  std::int64_t nowNanoseconds() override { return now; }
  std::int64_t now = 1'000'000'000'000;

 private:
  static bool coarsen(FileStamp& stamp) {
    stamp.modifiedNanoseconds = 1'000'000'000'000;
    return true;
  }
};

class ProfileCopy : public testing::Test {
 protected:
  ProfileCopy() { store.Path(path); }
  static std::string value(cinifile& store) {
    store.Section("A");
    store.Key("k");
    return store.Value();
  }
  TemporaryFolder folder;
  std::string path = folder.write("A.GAM", "[A]\nk=1\n");
  FaultyFileSystem files;
  ProfileStore profiles{files};
  cinifile store{profiles};
};

TEST_F(ProfileCopy, SeesEveryChangeFromOutside) {
  using std::filesystem::file_time_type;
  std::filesystem::last_write_time(path, file_time_type::clock::now() - std::chrono::seconds(10));
  EXPECT_EQ(value(store), "1");
  files.reads = 0;
  EXPECT_EQ(value(store), "1");
  EXPECT_EQ(files.reads, 0) << "a file that rests is not read again";

  for (int round = 0; round < 50; ++round) { // faster than any clock of a file system ticks
    const std::string digit = std::to_string(round % 10);
    folder.write("A.GAM", "[A]\nk=" + digit + "\n");
    EXPECT_EQ(value(store), digit) << "same size, written in place";
    store.Value("own");
    folder.write("A.GAM", "[A]\nk=not\r\n");
    EXPECT_EQ(value(store), "not") << "same size, right after a write of our own";
  }
  folder.write("B.GAM", "[A]\nk=3\n");
  std::filesystem::rename(folder.path("B.GAM"), path);
  EXPECT_EQ(value(store), "3");
  std::filesystem::remove(path);
  EXPECT_EQ(value(store), "");
  EXPECT_EQ(profiles.read(path).outcome, ReadOutcome::Absent);
  folder.write("A.GAM", "[A]\nk=4\n");
  EXPECT_EQ(value(store), "4");
}

TEST_F(ProfileCopy, TrustsACoarseClockOnlyAfterItMustHaveTicked) {
  CoarseFileSystem coarse;
  ProfileStore drive(coarse);
  cinifile onDrive(drive);
  onDrive.Path(path);
  EXPECT_EQ(value(onDrive), "1");
  onDrive.Value("6");
  folder.write("A.GAM", "[A]\nk=7\r\n");
  EXPECT_EQ(value(onDrive), "7") << "right after a write of our own";
  coarse.now += 1'999'999'999;
  folder.write("A.GAM", "[A]\nk=2\n");
  EXPECT_EQ(value(onDrive), "2");
  folder.write("A.GAM", "[A]\nk=3\n");
  coarse.now += 1; // from now on a change would show in the stamp
  EXPECT_EQ(value(onDrive), "3");
}

TEST_F(ProfileCopy, WritesOnTopOfWhatOthersWrote) {
  EXPECT_EQ(value(store), "1");
  folder.write("A.GAM", "[A]\nj=2\n");
  store.Value("3");
  EXPECT_EQ(folder.read("A.GAM"), "[A]\nj=2\nk=3\r\n");
}

TEST_F(ProfileCopy, WritesNothingUponWhatIsNoLongerThere) {
  const ProfileReading before = profiles.read(path);
  folder.write("A.GAM", "[A]\nk=10\n");
  for (const char* value : {"2", "1"}) { // the second one would change nothing in what was read
    ProfileBatch batch;
    batch.set("A", "k", value);
    const ProfileWrite written = profiles.write(path, batch, before);
    EXPECT_EQ(written.error(), (StorageError{StorageError::Call::ChangedMeanwhile, 0, path})) << value;
    EXPECT_EQ(folder.read("A.GAM"), "[A]\nk=10\n");
    EXPECT_TRUE(profiles.write(path, batch, profiles.read(path)).isOnDisk());
    EXPECT_EQ(before.text.value("A", "k"), "1") << "what was read stays as it was";
    folder.write("A.GAM", "[A]\nk=10\n");
  }
}

TEST_F(ProfileCopy, AnUnchangedValueTouchesNothing) {
  EXPECT_EQ(value(store), "1");
  store.Value("1");
  EXPECT_NE(store.LastReturnCode(), 0);
  EXPECT_EQ(files.renames, 0);
  EXPECT_EQ(folder.read("A.GAM"), "[A]\nk=1\n");
}

TEST_F(ProfileCopy, AFailedWriteIsNotInTheCopy) {
  EXPECT_EQ(value(store), "1");
  files.failAt = files.calls + 12;
  files.staysBroken = true;
  store.Value("2");
  EXPECT_EQ(store.LastReturnCode(), 0);
  files.reset();
  EXPECT_EQ(value(store), "1");
  EXPECT_EQ(store.LastReturnCode(), 0) << "reading does not change the return code";
}

TEST_F(ProfileCopy, ManyFilesDoNotDisturbEachOther) {
  for (int round = 0; round < 2; ++round) {
    for (int file = 0; file < 200; ++file) {
      const std::string name = std::to_string(file) + ".GAM";
      if (round == 0)
        folder.write(name, "[A]\nk=" + name + "\n");
      store.Path(folder.path(name));
      EXPECT_EQ(value(store), name);
    }
  }
}

} // namespace
} // namespace hooptab
