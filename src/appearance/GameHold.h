// The hold of a window for input on the file of its game: takes the lock; where another program has it,
// watches whether that one still lives, and offers to take the game over from one that does not; and says
// when the file was touched. What is open for reading or recording, and how, is the window's affair.
#pragma once

#include "appearance/FileWatch.h"
#include "settings/Texts.h"
#include "storage/GameLock.h"
#include "storage/LockWatch.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

class QWidget;

namespace hooptab {

class Dialogs;

class GameHold : public QObject {
  Q_OBJECT
 public:
  // All must outlive it.
  GameHold(FileSystem& files, const Texts& texts, Dialogs& dialogs, QWidget& window);

  enum class Access { Ours, HeldElsewhere, ReadOnly };
  // What `path` could be opened for, without giving up what is held: keep() does, once it is open. A lock
  // that was taken before, for this game, is handed over.
  [[nodiscard]] Access request(const QString& path, GameLock handed = {});
  void keep();
  void drop(); // of what was requested

  bool isHeld() const { return m_lock.isHeld(); }
  [[nodiscard]] bool isStillOurs() { return m_lock.isStillOurs(); }
  // Of the game that is kept: links resolved, where it is ours.
  const GameLock& lock() const { return m_lock; }
  // Who records it elsewhere: "hooptab, LAPTOP (1234)".
  [[nodiscard]] QString ownerWords() const;
  [[nodiscard]] static QString ownerWords(const GameLock& lock, const Texts& texts);
  // For tests.
  void setPatience(std::chrono::milliseconds patience, std::chrono::milliseconds interval);

 signals:
  void fileChanged(); // by anybody, this program too
  void taken();       // from here on it is ours; the window opens it once more

 private:
  void look();
  void offer(Text question);

  FileSystem& m_files;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  QWidget& m_window;
  GameLock m_lock;
  struct Request {
    GameLock lock;
    std::string path;
    Access access = Access::ReadOnly;
    bool isNew = true; // false: of the game that is held already
  };
  std::optional<Request> m_request;
  LockWatch m_watch;
  std::chrono::milliseconds m_patience = LockFile::kWatch;
  QTimer m_timer;
  FileWatch m_file;
};

} // namespace hooptab
