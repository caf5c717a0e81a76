#include "appearance/Task.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <pthread.h>

#include <memory>
#include <string>

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

// Work that is done when it is cancelled.
Task::Work untilCancelled(std::string& said, const std::string& name) {
  return [&said, name](const TaskWatch& watch) {
    watch.progress(1, 2);
    while (!watch.isCancelled())
      std::this_thread::yield();
    said += name + " ends, "; // nothing else runs meanwhile
    return [&said, name] { said += name + " is delivered, "; };
  };
}

bool wait(const Task& task) {
  return QTest::qWaitFor([&] { return !task.isRunning(); });
}

TEST(TaskTest, TellsItsEndAfterItsOwnerHasShownTheBeginning) {
  for (const bool hasThreads : {true, false}) {
    Task task;
    const QSignalSpy failed(&task, &Task::failed);
    const QSignalSpy finished(&task, &Task::finished);
    bool isDelivered = false;
    {
      const auto without = hasThreads ? nullptr : std::make_unique<NoThreads>();
      task.start([&](const TaskWatch&) { return [&isDelivered] { isDelivered = true; }; });
    }
    EXPECT_TRUE(task.isRunning());
    EXPECT_TRUE(finished.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }));
    EXPECT_FALSE(task.isRunning());
    EXPECT_EQ(isDelivered, hasThreads);
    EXPECT_EQ(failed.size(), hasThreads ? 0 : 1);
  }
}

TEST(TaskTest, TellsHowFarItIsAndDeliversWhatIsCancelled) {
  Task task;
  QSignalSpy progressed(&task, &Task::progressed);
  std::string said;
  task.start(untilCancelled(said, "it"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !progressed.isEmpty() && progressed.back()[0] == 1; }));
  EXPECT_EQ(progressed.back()[1], 2);
  EXPECT_EQ(said, "") << "it goes on";
  task.cancel();
  EXPECT_TRUE(wait(task) && task.isCancelled());
  EXPECT_EQ(said, "it ends, it is delivered, ");
}

TEST(TaskTest, WhatIsReplacedEndsFirstAndDeliversNothing) {
  Task task;
  const QSignalSpy finished(&task, &Task::finished);
  std::string said;
  task.start(untilCancelled(said, "old"));
  task.start(untilCancelled(said, "never begun"));
  task.start([&said](const TaskWatch& watch) {
    said += watch.isCancelled() ? "cancelled " : "new begins, ";
    return [&said] { said += "and is delivered"; };
  });
  EXPECT_TRUE(wait(task));
  EXPECT_EQ(said, "old ends, new begins, and is delivered");
  EXPECT_EQ(finished.size(), 1);
}

TEST(TaskTest, GoesAtAnyTime) {
  std::string said;
  auto task = std::make_unique<Task>();
  task->start(untilCancelled(said, "it"));
  task.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(said, "it ends, ") << "and delivers nothing";

  task = std::make_unique<Task>();
  task->start([&task](const TaskWatch&) { return [&task] { task.reset(); }; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return task == nullptr; })) << "by what it delivers";
}

TEST(TaskTest, IsCancelledOrCommittedWhicheverIsFirst) {
  const TaskWatch sent;
  EXPECT_TRUE(sent.canBeCancelled() && sent.commit());
  sent.cancel();
  EXPECT_FALSE(sent.isCancelled() || sent.canBeCancelled());
  const TaskWatch dropped;
  dropped.cancel();
  EXPECT_FALSE(dropped.commit());
  EXPECT_TRUE(dropped.isCancelled());
}

} // namespace
} // namespace hooptab
