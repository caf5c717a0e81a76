#include "publish/LiveExport.h"

#include <chrono>

namespace hooptab {

LiveExport::LiveExport(QObject* parent) : QObject(parent) {
  m_timer.setInterval(std::chrono::seconds(1));
  connect(&m_timer, &QTimer::timeout, this, &LiveExport::tick);
}

void LiveExport::start(GameSession& session, const LiveExportTarget& target, Language language) {
  stop();
  const auto files = std::make_shared<LiveExportFiles>(target, language);
  m_session = &session;
  m_lastError = files->lastError();
  m_showsClock = !target.format;
  m_following = session.follow([files](const RunningGame& game) { return files->write(game); });
  m_timer.start();
}

void LiveExport::stop() {
  m_timer.stop();
  m_following.reset();
  m_session = nullptr;
  m_hasFailed = false;
}

void LiveExport::tick() {
  const int error = m_lastError->load();
  if ((error != 0) != m_hasFailed) {
    m_hasFailed = error != 0;
    if (m_hasFailed)
      emit failed(error);
    else
      emit recovered();
  }
  const LiveGame& game = m_session->game();
  if (m_showsClock && game.phase() == LiveGame::Phase::Running)
    m_following->take(std::make_shared<const RunningGame>(RunningGame::of(game)));
}

} // namespace hooptab
