#include "appearance/WriteRetry.h"

#include "appearance/relabel.h"
#include "settings/StorageWords.h"

#include <QPointer>
#include <QWidget>
#include <chrono>
#include <utility>

namespace hooptab {

WriteRetry::WriteRetry(const PendingWrites& pending, FileSystem& files, QObject* parent)
    : QObject(parent), m_pending(pending), m_files(files) {
  m_timer.setSingleShot(true);
  m_timer.setTimerType(Qt::PreciseTimer); // one that comes too early would try twice
  connect(&m_timer, &QTimer::timeout, this, [this] {
    const QPointer<WriteRetry> self(this); // what is written may end what waits for it
    emit due();
    if (self != nullptr)
      wait();
  });
}

void WriteRetry::refresh() {
  const bool waited = std::exchange(m_waits, !m_pending.isEmpty());
  wait();
  if (m_waits)
    emit waits(!waited);
  else
    emit allIsOnDisk();
}

void WriteRetry::wait() {
  if (m_pending.isEmpty())
    return m_timer.stop();
  if (m_timer.isActive())
    return;
  const std::chrono::nanoseconds left(m_pending.untilRetry(m_files.nowNanoseconds()));
  m_timer.start(std::chrono::ceil<std::chrono::milliseconds>(left));
}

QString WriteRetry::reason(const Texts& texts) const {
  return toQt(storageWords(m_pending.why(), texts));
}

void showReason(QWidget& widget, const QString& reason) {
  widget.setToolTip(reason);
  widget.setAccessibleDescription(reason);
}

} // namespace hooptab
