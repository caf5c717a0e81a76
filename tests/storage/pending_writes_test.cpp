#include "storage/PendingWrites.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <string>

namespace hooptab {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

// A disk that can be taken away, with a clock.
class PendingWritesTest : public testing::Test {
 protected:
  bool append(char letter) {
    ProfileBatch batch;
    batch.deleteSection(std::string(1, letter));
    return pending.write(
        std::move(batch),
        [this](const ProfileBatch& own) -> WriteResult {
          const auto& deletion = std::get<ProfileBatch::DeleteSection>(own.operations().front());
          if (deletion.section == refused || error != 0)
            return StorageError{StorageError::Call::Write, error, "A"};
          written += deletion.section;
          return {};
        },
        now);
  }
  int error = 0; // of every write
  std::string refused;
  std::string written;
  std::int64_t now = 100 * kSecond;
  PendingWrites pending;
};

TEST_F(PendingWritesTest, WriteAtOnceOrKeepTheOrderOfWhatFailedAndWriteEachOnce) {
  EXPECT_TRUE(append('0'));
  EXPECT_EQ(written, "0");
  EXPECT_TRUE(pending.isEmpty());
  error = EIO;
  EXPECT_FALSE(append('a'));
  EXPECT_FALSE(append('b'));
  EXPECT_EQ(pending.size(), 2u);
  EXPECT_FALSE(pending.retry(now));
  error = 0;
  EXPECT_TRUE(append('c')) << "what waits goes before a new write";
  EXPECT_EQ(written, "0abc");
  EXPECT_TRUE(pending.retry(now));
  EXPECT_EQ(written, "0abc");
}

TEST_F(PendingWritesTest, StopAtTheFirstFailure) {
  error = EIO;
  refused = "m";
  append('a');
  append('m');
  append('b');
  error = 0;
  EXPECT_FALSE(pending.retry(now));
  EXPECT_EQ(written, "a");
  refused.clear();
  EXPECT_TRUE(pending.retry(now));
  EXPECT_EQ(written, "amb");
}

TEST_F(PendingWritesTest, KnowWhyAndWhenToTryAgain) {
  error = ENOSPC;
  append('a');
  now += 3 * kSecond / 2;
  error = EROFS;
  append('b'); // moves neither the beginning nor the next try
  EXPECT_EQ(pending.why().number, EROFS) << "the last reason";
  EXPECT_EQ(pending.untilRetry(now), kSecond / 2);
  EXPECT_EQ(pending.untilRetry(102 * kSecond), 2 * kSecond);
  EXPECT_EQ(pending.untilRetry(99 * kSecond), kSecond) << "the clock was set back";
  error = 0;
  EXPECT_TRUE(pending.retry(now));
  EXPECT_EQ(pending.why(), StorageError());
  error = EIO;
  append('c');
  EXPECT_EQ(pending.untilRetry(now), 2 * kSecond) << "counted anew";
}

} // namespace
} // namespace hooptab
