// The menu bar: every command of the table has an entry here, beside what only menus offer (recent and sample
// games, colours, the order of the windows, leaving). Lays out and labels; whoever is asked for something is
// told by the actions' own signals.
#pragma once

#include "appearance/ColourScheme.h"

#include <QObject>

class QAction;
class QMainWindow;
class QMdiArea;
class QMenu;

namespace hooptab {

class CommandBar;
class GameMenu;

class MainMenu : public QObject {
  Q_OBJECT

 public:
  MainMenu(QMainWindow& window, QMdiArea& area, const CommandBar& commands, GameMenu& recent,
           GameMenu& samples, QMenu& tables);

  void showColours(ColourScheme scheme);

 signals:
  void coloursChosen(ColourScheme scheme);
  void fileMenuShown(); // about to be, so that `tables` can be filled

 private:
  QMenu& addMenu(int text, std::initializer_list<const char*> keys);
  QMenu& coloursMenu();
  void addWindowMenu(QMdiArea& area);
  QAction& addAction(QMenu& menu, const char* name, int text, const QString& shortcut = {});

  QMainWindow& m_window;
  const CommandBar& m_commands;
  QAction* m_light = nullptr;
  QAction* m_dark = nullptr;
};

} // namespace hooptab
