#include "appearance/BackgroundWork.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <pthread.h>

namespace hooptab {
namespace {

// For as long as it lives no thread can be made: each would need more memory than there are addresses.
class NoThreads {
 public:
  NoThreads() {
    pthread_getattr_default_np(&m_before);
    pthread_attr_t huge;
    pthread_attr_init(&huge);
    pthread_attr_setstacksize(&huge, std::size_t{1} << 50);
    pthread_setattr_default_np(&huge);
    pthread_attr_destroy(&huge);
  }
  ~NoThreads() {
    pthread_setattr_default_np(&m_before);
    pthread_attr_destroy(&m_before);
  }

 private:
  pthread_attr_t m_before;
};

TEST(BackgroundWorkTest, TellsItsEndAfterItsOwnerHasShownTheBeginning) {
  for (const bool hasThreads : {true, false}) {
    BackgroundWork work;
    const QSignalSpy failed(&work, &BackgroundWork::failed);
    const QSignalSpy finished(&work, &BackgroundWork::finished);
    bool isDelivered = false;
    {
      const auto without = hasThreads ? nullptr : std::make_unique<NoThreads>();
      work.start([&isDelivered] { return [&isDelivered] { isDelivered = true; }; });
    }
    EXPECT_TRUE(work.isRunning());
    EXPECT_TRUE(finished.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }));
    EXPECT_FALSE(work.isRunning());
    EXPECT_EQ(isDelivered, hasThreads);
    EXPECT_EQ(failed.size(), hasThreads ? 0 : 1);
  }
}

} // namespace
} // namespace hooptab
