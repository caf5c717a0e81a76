// Games for input: opens each in the window that its kind needs (live, or totals), of which there is one at a
// time, makes new games, and keeps the lock on a game's file between the windows that hand it on.
#pragma once

#include "keypad/KeypadAssignment.h"
#include "shell/Workshop.h"
#include "storage/GameLock.h"

#include <QObject>

#include <memory>

class QWidget;

namespace hooptab {

class ChildWindow;
class CommandBar;
class PreviewDesk;
class TeamStore;
class WindowArea;
class frmLIVE;
class frmMANUAL;

class InputDesk : public QObject {
  Q_OBJECT
 public:
  // All must outlive it; `window` is in front of which it asks.
  InputDesk(const Workshop& workshop, TeamStore& teams, WindowArea& area, PreviewDesk& preview,
            QWidget& window);
  // Its commands: recording, totals, keys.
  void serve(CommandBar& commands);

  // In the live window, or in manual entry for a game of totals: the window takes the next game, or makes
  // room for the other kind.
  void open(const QString& path);
  // What waits for the disk, for the case that the program goes wrong.
  void writePending();

  [[nodiscard]] frmLIVE* live() const;     // the one that is open, or null
  [[nodiscard]] frmMANUAL* manual() const; // the same

 signals:
  void opened(const QString& path);
  void reported(const QString& message);
  void languageAsked();
  void commandStateChanged();
  void settingsSaved(); // or waiting for the disk

 private:
  [[nodiscard]] bool manualAgreesToClose();
  void replace(const QString& path, GameLock lock = {});
  void openLive(const QString& path, GameLock lock);
  void openManual(const QString& path, GameLock lock);
  static void makeRoom(ChildWindow* window);
  void show(const QString& path, ChildWindow& window, std::unique_ptr<ChildWindow> fresh);
  void makeGame();
  void openSheet(frmLIVE& recording);
  void watch(bool isOn); // the file of the game that is open
  template <class Window>
  void saveCopy(Window& window);
  void openKeys();
  void tellSaved();

  Workshop m_workshop;
  TeamStore& m_teams;
  WindowArea& m_area;
  PreviewDesk& m_preview;
  QWidget& m_window;
  KeypadSetup m_keypad; // for the live window
};

} // namespace hooptab
