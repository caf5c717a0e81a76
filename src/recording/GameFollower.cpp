#include "recording/GameFollower.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace hooptab {

namespace {

constexpr std::chrono::seconds kPatience{1};
constexpr std::chrono::seconds kUntilNextTry{2};

} // namespace

// What the thread and its owner share; it lives as long as the longer of both.
struct GameFollower::Desk {
  Work work;
  std::mutex mutex;
  std::condition_variable changed;
  std::shared_ptr<const RunningGame> next;
  bool isLeaving = false;
  bool isDone = false;

  void run() {
    std::unique_lock lock(mutex);
    while (!isLeaving || next != nullptr) {
      if (next == nullptr) {
        changed.wait(lock);
        continue;
      }
      const auto game = std::exchange(next, nullptr);
      lock.unlock();
      const bool isDoneWell = succeeds(*game);
      lock.lock();
      if (isDoneWell || isLeaving)
        continue;
      changed.wait_for(lock, kUntilNextTry, [this] { return isLeaving; });
      if (next == nullptr)
        next = game;
    }
    isDone = true;
    changed.notify_all();
  }
  bool succeeds(const RunningGame& game) const {
    try {
      return work(game);
    } catch (...) { // whatever it is: the recorder goes on
      return false;
    }
  }
};

GameFollower::GameFollower(Work work) : m_desk(std::make_shared<Desk>()) {
  m_desk->work = std::move(work);
  std::thread([desk = m_desk] { desk->run(); }).detach(); // one that hangs cannot be waited for
}

GameFollower::~GameFollower() {
  std::unique_lock lock(m_desk->mutex);
  m_desk->isLeaving = true;
  m_desk->changed.notify_all();
  m_desk->changed.wait_for(lock, kPatience, [this] { return m_desk->isDone; });
  m_desk->next = nullptr;
}

void GameFollower::take(std::shared_ptr<const RunningGame> game) {
  {
    const std::scoped_lock lock(m_desk->mutex);
    m_desk->next = std::move(game);
  }
  m_desk->changed.notify_all();
}

} // namespace hooptab
