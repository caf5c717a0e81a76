// Sharing the running game on the network: the window in which it is chosen, the server while it is on, and
// the word of it in the status bar. What is shared is the game of the live window that is open; viewers stay
// while it closes and another one opens.
#pragma once

#include "shell/Workshop.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

class QToolButton;
class QWidget;

namespace hooptab {

class CommandBar;
class GameShare;
class WindowArea;
class frmLIVE;
class frmSHARE;
struct GameDetails;
struct ShareChoice;

class ShareDesk : public QObject {
  Q_OBJECT
 public:
  // All must outlive it; `window` is that of the program.
  ShareDesk(const Workshop& workshop, WindowArea& area, QWidget& window);
  ~ShareDesk() override;
  void serve(CommandBar& commands);

  [[nodiscard]] bool isSharing() const { return m_share != nullptr; }
  // Stands in the status bar while the game is shared.
  [[nodiscard]] QWidget* sign() const;
  void relabelDesk();

 signals:
  void changed(); // shared, or no longer

 private:
  void openWindow();
  void switchTo(bool on);
  void followGame();
  void takeFeed();
  void remember(const ShareChoice& choice);
  [[nodiscard]] ShareChoice remembered() const;
  [[nodiscard]] const GameDetails* details() const; // of the game in the live window; null: none is open
  [[nodiscard]] std::string categories() const;     // of the teams that play
  void showState();

  Workshop m_workshop;
  WindowArea& m_area;
  QWidget& m_window;
  std::unique_ptr<ShareChoice> m_choice; // of this run of the program; the pass phrase with it
  std::unique_ptr<GameShare> m_share;    // while it is on
  QPointer<frmLIVE> m_live;              // whose game is followed
  QPointer<frmSHARE> m_dialog;
  QToolButton* m_sign;
  QTimer m_tick;
};

} // namespace hooptab
