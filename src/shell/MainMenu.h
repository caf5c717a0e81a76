// The menu bar: every command of the table has an entry here, beside what only menus offer (recent and sample
// games, colours, the order of the windows, leaving). Lays out and labels; whoever is asked for something is
// told by the actions' own signals.
#pragma once

#include "appearance/ColourScheme.h"
#include "settings/Text.h"
#include "shell/Commands.h"

#include <QObject>

#include <initializer_list>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;
class QMenuBar;

namespace hooptab {

class CommandBar;
class GameMenu;
class WindowArea;

class MainMenu : public QObject {
  Q_OBJECT

 public:
  MainMenu(QMainWindow& window, QMenuBar& bar, WindowArea& area, const CommandBar& commands, GameMenu& recent,
           GameMenu& samples, QMenu& tables);

  // Behind relabelling, which takes the letters away.
  void giveLetters();
  void showColours(ColourScheme scheme);
  void showZoom(int percent);
  // Of the window in front: whether there is one, and whether a command of its own closes it.
  void showFront(bool isThere, bool hasClose);

 signals:
  void zoomChosen(int percent);
  void coloursChosen(ColourScheme scheme);
  void fileMenuShown(); // about to be, so that `tables` can be filled

 private:
  QMenu& addMenu(Text text, std::initializer_list<CommandId> ids);
  QMenu& coloursMenu();
  QMenu& zoomMenu();
  void addWindowMenu(WindowArea& area);
  QAction& addAction(QMenu& menu, const char* name, Text text, const QString& shortcut = {});

  QMainWindow& m_window;
  QMenuBar& m_bar;
  const CommandBar& m_commands;
  QAction* m_light = nullptr;
  QAction* m_dark = nullptr;
  QAction* m_close = nullptr;
  QActionGroup* m_zooms = nullptr;
};

} // namespace hooptab
