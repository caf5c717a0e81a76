#include "storage/WriteQueue.h"

#include <gtest/gtest.h>
#include <string>

namespace hooptab {
namespace {

// A disk that can be taken away.
class WriteQueueTest : public testing::Test {
 protected:
  WriteQueue::Write append(char letter) {
    return [this, letter] {
      if (diskIsThere)
        written += letter;
      return diskIsThere;
    };
  }
  bool diskIsThere = true;
  std::string written;
  WriteQueue queue;
};

TEST_F(WriteQueueTest, WritesAtOnceOrKeepsTheOrderOfWhatFailedAndWritesEachOnce) {
  EXPECT_TRUE(queue.write(append('0')));
  EXPECT_EQ(written, "0");
  EXPECT_TRUE(queue.isEmpty());
  diskIsThere = false;
  EXPECT_FALSE(queue.write(append('a')));
  EXPECT_FALSE(queue.write(append('b')));
  EXPECT_EQ(queue.size(), 2u);
  EXPECT_FALSE(queue.retry());
  diskIsThere = true;
  EXPECT_TRUE(queue.write(append('c'))) << "what waits goes before a new write";
  EXPECT_EQ(written, "0abc");
  EXPECT_TRUE(queue.retry());
  EXPECT_EQ(written, "0abc");
}

TEST_F(WriteQueueTest, StopsAtTheFirstFailure) {
  bool middleWorks = false;
  diskIsThere = false;
  queue.write(append('a'));
  queue.write([&] {
    if (middleWorks)
      written += 'm';
    return middleWorks;
  });
  queue.write(append('b'));
  diskIsThere = true;
  EXPECT_FALSE(queue.retry());
  EXPECT_EQ(written, "a");
  middleWorks = true;
  EXPECT_TRUE(queue.retry());
  EXPECT_EQ(written, "amb");
}

} // namespace
} // namespace hooptab
