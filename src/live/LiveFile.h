// The file of the live window's game: opens it for recording or reading, looks again when others wrote it or
// the disk refused, and says what waits, where it was rescued to, and who else records it.
#pragma once

#include "appearance/GameHold.h"
#include "appearance/WriteRetry.h"
#include "game/GameFile.h"
#include "recording/GameSession.h"

#include <QObject>

class QLabel;

namespace hooptab {

class Dialogs;
class LiveNotices;
class NowStrip;
class Texts;

class LiveFile : public QObject {
  Q_OBJECT
 public:
  // All must outlive it.
  LiveFile(GameSession& session, FileSystem& files, const Texts& texts, Dialogs& dialogs, NowStrip& now,
           LiveNotices& notices, QWidget& window);

  // On every problem what was open stays. A lock that was taken before is handed over.
  [[nodiscard]] GameFileProblem open(const QString& path, GameLock lock);
  void tell(const ForeignHands& foreign); // what others wrote
  void show();
  // What waits is written, or the user lets it go.
  [[nodiscard]] bool mayLeave();

  [[nodiscard]] QLabel& strip() { return m_strip; } // why the game is open for reading alone
  [[nodiscard]] GameHold& hold() { return m_hold; }

 signals:
  void taken(); // from here on it is ours; open it once more

 private:
  void look();
  void showStrip();
  void showWaiting();

  GameSession& m_session;
  const LiveGame& m_game;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  NowStrip& m_now;
  LiveNotices& m_notices;
  QWidget& m_window;
  QLabel& m_strip;
  GameHold& m_hold;
  WriteRetry m_retry;
  bool m_isHeldElsewhere = false;
};

} // namespace hooptab
