// Work that takes its time, on a thread of its own, one piece at a time; what it made is handed over on the
// thread of this object. Knows nothing of what the work is, nor how it is cancelled.
#pragma once

#include <QObject>

#include <functional>
#include <thread>

namespace hooptab {

class BackgroundWork : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  ~BackgroundWork() override; // waits for the work, and delivers nothing any more

  // Runs on the other thread; what it returns runs on this one, before finished().
  using Delivery = std::function<void()>;
  // Not while another piece is running.
  void start(std::function<Delivery()> work);
  bool isRunning() const { return m_isRunning; }

 signals:
  void finished();
  void failed(); // no memory, or no thread; before finished()

 private:
  void endWith(Delivery delivery);

  std::thread m_thread;
  bool m_isRunning = false; // until its end is told
};

} // namespace hooptab
