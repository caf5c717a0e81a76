// Tries again, when it is time, what a disk has not taken, and tells a window how it stands. Owns the timer;
// what waits is somebody else's, and so are the words for it.
#pragma once

#include "storage/FileSystem.h"
#include "storage/PendingWrites.h"

#include <QObject>
#include <QTimer>

class QWidget;

namespace hooptab {

class Texts;

class WriteRetry : public QObject {
  Q_OBJECT
 public:
  // Both must outlive it.
  WriteRetry(const PendingWrites& pending, FileSystem& files, QObject* parent);

  // After anything that may have written.
  void refresh();
  // Why something waits, for whoever rests on the words about it; empty when nothing does.
  [[nodiscard]] QString reason(const Texts& texts) const;

 signals:
  void due();             // to be tried once more
  void waits(bool isNew); // after each look that finds something; new is what waits since then
  void allIsOnDisk();     // after each look that finds nothing

 private:
  void wait();

  const PendingWrites& m_pending;
  FileSystem& m_files;
  QTimer m_timer;
  bool m_waits = false;
};

// The reason on what says that something is not on disk, for a pointer and for a screen reader.
void showReason(QWidget& widget, const QString& reason);

} // namespace hooptab
