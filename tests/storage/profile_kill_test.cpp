// A writer killed at a random moment loses no event that it had acknowledged, and leaves nothing torn.
#include "storage/cinifile.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {
namespace {

std::string lineOf(int number) {
  return std::to_string(number % 10) + std::to_string(number * 7 % 10) + ":17,GFG,0-12,42," +
         std::to_string(number);
}

// Appends events from where the file ends; each is acknowledged once its write has returned.
[[noreturn]] void appendUntilKilled(const std::string& path, int acknowledgements) {
  FileSystem files;
  ProfileStore store(files);
  cinifile key(store);
  key.Path(path);
  key.Section("DETAILS");
  key.Key("EVENUM");
  const std::string first = key.Value();
  for (int number = first.empty() ? 1 : std::stoi(first);; ++number) {
    ProfileBatch batch;
    batch.set("PERIODE1", std::to_string(number), lineOf(number));
    batch.set("DETAILS", "EVENUM", std::to_string(number + 1));
    if (!store.write(path, batch).isOnDisk() ||
        ::write(acknowledgements, &number, sizeof number) != sizeof number)
      ::_exit(1);
  }
}

TEST(ProfileKill, LosesNoAcknowledgedEventAndTearsNothing) {
  constexpr int kRounds = 300;
  constexpr int kRoundsPerFile = 20; // so that files stay as long as real ones
  TemporaryFolder folder;
  FileSystem files;
  std::mt19937 random(20240107);                               // fixed, so that a failure can be looked into
  std::uniform_int_distribution<useconds_t> moment(0, 20'000); // in microseconds
  int last = 0, total = 0;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    if (round % kRoundsPerFile == 0) {
      std::filesystem::remove(folder.path("A.GAM"));
      last = 0;
    }
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(ends[0]);
      appendUntilKilled(folder.path("A.GAM"), ends[1]);
    }
    ::close(ends[1]);
    ::usleep(moment(random));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a write failed";
    int acknowledged = last;
    for (int number = 0; ::read(ends[0], &number, sizeof number) == sizeof number;)
      acknowledged = number;
    ::close(ends[0]);
    // The file holds the acknowledged events, and at most the one that was just being written.
    const ProfileText text(folder.holds("A.GAM") ? folder.read("A.GAM") : "");
    const auto next = text.value("DETAILS", "EVENUM");
    const int written = next ? std::stoi(std::string(*next)) - 1 : 0;
    ASSERT_GE(written, acknowledged);
    ASSERT_LE(written, acknowledged + 1);
    std::string expected;
    if (written > 0) {
      expected = "[PERIODE1]\r\n";
      for (int number = 1; number <= written; ++number)
        expected += std::to_string(number) + "=" + lineOf(number) + "\r\n";
      expected += "[DETAILS]\r\nEVENUM=" + std::to_string(written + 1) + "\r\n";
    }
    ASSERT_EQ(text.bytes(), expected);
    total += written - last;
    last = written;
  }
  EXPECT_GT(total, kRounds) << "too slow a disk to have tested anything";
  // What the last kill may have left is gone with the next write.
  ProfileStore profiles(files);
  cinifile store(profiles);
  store.Path(folder.path("A.GAM"));
  store.Section("DETAILS");
  store.Key("TERMINE");
  store.Value("1");
  EXPECT_NE(store.LastReturnCode(), 0);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

} // namespace
} // namespace hooptab
