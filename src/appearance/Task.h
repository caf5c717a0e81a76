// Work that takes its time, on a thread of its own, one piece at a time. It is given a watch, which it asks
// whether it is still wanted and tells how far it is; what it made is handed over on the thread of this
// object. Knows nothing of what the work is.
#pragma once

#include "storage/TaskWatch.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <thread>

namespace hooptab {

class Task : public QObject {
  Q_OBJECT

 public:
  explicit Task(QObject* parent = nullptr);
  ~Task() override; // cancels the work, waits for it, and delivers nothing any more

  // The work runs on the other thread and takes along what it needs; what it returns runs on this one, before
  // finished().
  using Delivery = std::function<void()>;
  using Work = std::function<Delivery(const TaskWatch& watch)>;
  // In the place of a piece that is running: that one is cancelled, delivers nothing, and comes to its end
  // before this one begins.
  void start(Work work);
  void cancel() { m_watch.cancel(); } // it comes to its end soon, and delivers what it returns then
  void wait();                        // until the work is done; it delivers later, in its turn

  bool isRunning() const { return m_isRunning; }
  // Of the piece that was started last.
  bool isCancelled() const { return m_watch.isCancelled(); }
  bool canBeCancelled() const { return m_watch.canBeCancelled(); }
  TaskWatch::Progress progress() const { return m_watch.progress(); }

 signals:
  void progressed(int done, int total); // every now and then, and once more at the end; total 0: not known
  void failed();                        // no memory, or no thread; before finished()
  void finished();                      // nothing is running any more

 private:
  void begin();
  void endWith(Delivery delivery);
  void end(const Delivery& delivery);
  void tellProgress();

  TaskWatch m_watch;
  Work m_waiting; // until the piece before it has come to its end
  std::thread m_thread;
  QTimer m_glance;
  bool m_isRunning = false; // until its end is told
};

} // namespace hooptab
