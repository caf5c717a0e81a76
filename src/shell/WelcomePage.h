// What fills the main window while no child window is open: a calm hint and the three ways to a first game.
// Owns no command; it shows the ones it is given.
#pragma once

#include "storage/Texts.h"

#include <QWidget>

class QAction;
class QMenu;

namespace hooptab {

class WelcomePage : public QWidget {
  Q_OBJECT

 public:
  WelcomePage(QAction& openGame, QMenu& recentGames, QMenu& sampleGames, QWidget* parent = nullptr);
};

} // namespace hooptab
