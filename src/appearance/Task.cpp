#include "appearance/Task.h"

#include <QPointer>

#include <chrono>
#include <exception>
#include <system_error>
#include <utility>

namespace hooptab {

namespace {

constexpr std::chrono::milliseconds kGlanceInterval{50};

} // namespace

Task::Task(QObject* parent) : QObject(parent) {
  m_glance.setInterval(kGlanceInterval);
  connect(&m_glance, &QTimer::timeout, this, &Task::tellProgress);
}

Task::~Task() {
  cancel();
  wait();
}

void Task::start(Work work) {
  m_watch.cancel();
  m_watch = TaskWatch();
  m_waiting = std::move(work);
  if (!m_isRunning)
    begin();
}

void Task::begin() {
  m_isRunning = true;
  m_glance.start();
  try {
    m_thread = std::thread([this, watch = m_watch, work = std::exchange(m_waiting, nullptr)] {
      Delivery delivery;
      try {
        delivery = work(watch);
      } catch (const std::exception&) { // too much for this computer's memory
        delivery = [this] { emit failed(); };
      }
      endWith(std::move(delivery));
    });
  } catch (const std::system_error&) { // the system has no more threads
    endWith([this] { emit failed(); });
  }
}

void Task::wait() {
  if (m_thread.joinable())
    m_thread.join();
}

// Queued for this object: dropped when it is gone by then, and never before its owner shows that work began.
void Task::endWith(Delivery delivery) {
  QMetaObject::invokeMethod(
      this, [this, delivery = std::move(delivery)] { end(delivery); }, Qt::QueuedConnection);
}

void Task::end(const Delivery& delivery) {
  wait();
  if (m_waiting)
    return begin(); // nobody waits any more for what has come to its end
  m_glance.stop();
  tellProgress();
  m_isRunning = false;
  const QPointer<Task> self(this); // a message that is delivered may outlast its window
  delivery();
  if (self != nullptr && !m_isRunning) // nor has another piece been started
    emit finished();
}

void Task::tellProgress() {
  const auto [done, total] = progress();
  emit progressed(done, total);
}

} // namespace hooptab
