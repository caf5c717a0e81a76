// Keeps what other programs read of the running game up to date (publish/LiveExportFiles), as long as the
// game is recorded: after each change, and every second while its clock runs, where that is shown.
#pragma once

#include "publish/LiveExportFiles.h"
#include "recording/GameSession.h"

#include <QObject>
#include <QTimer>

namespace hooptab {

class LiveExport : public QObject {
  Q_OBJECT

 public:
  explicit LiveExport(QObject* parent);

  // In the place of what was written before. The session must outlive it, or be stopped before it goes.
  void start(GameSession& session, const LiveExportTarget& target, Language language);
  void stop();
  [[nodiscard]] bool isRunning() const { return m_session != nullptr; }

 signals:
  void failed(int errorNumber); // files cannot be written; they are tried again
  void recovered();

 private:
  void tick();

  GameSession* m_session = nullptr;
  GameSession::Following m_following;
  LiveExportFiles::LastError m_lastError;
  bool m_showsClock = false;
  bool m_hasFailed = false;
  QTimer m_timer;
};

} // namespace hooptab
