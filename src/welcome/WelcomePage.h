// What fills the main window while no child window is open: the game that goes on, the games that were open
// last, and the ways to everything else. Owns no command; it triggers those it is given and says which game
// was asked for. The games are read each time it is shown, on a thread of their own: a slow disk does not
// hold up the page. Closing the program waits for the file that is being read.
#pragma once

#include "appearance/Task.h"
#include "settings/Texts.h"
#include "welcome/RecentGames.h"

#include <QWidget>

#include <array>
#include <functional>
#include <string>
#include <vector>

class QAction;
class QBoxLayout;
class QLabel;
class QMenu;
class QPushButton;
class QScrollArea;

namespace hooptab {

class RecentGameRow;
class StartCard;
class UnfinishedPlate;

struct StartCommands {
  QAction &newGame, &openGame, &season, &teams, &guide, &language;
  QMenu& sampleGames;
};

class WelcomePage : public QWidget {
  Q_OBJECT

 public:
  // The paths of the games that were open last, newest first, whether they are there or not.
  using RecentPaths = std::function<std::vector<std::string>()>;
  // All must outlive it.
  WelcomePage(const StartCommands& commands, RecentPaths recentPaths, FileSystem& files, const Texts& texts,
              QWidget* parent = nullptr);

  void relabelPage(); // behind relabel()
  void applyLook();   // colours and measure

 signals:
  void gameAsked(const QString& path);  // as a scorecard
  void inputAsked(const QString& path); // to go on recording
  void folderAsked(const QString& path);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QBoxLayout* makeHead(const StartCommands& commands);
  QBoxLayout* makeGames();
  QBoxLayout* makeCards(const StartCommands& commands);
  void read();
  void showGames(const RecentGames& games);
  void showLanguage();

  RecentPaths m_recentPaths;
  FileSystem& m_files;
  const Texts& m_texts;
  RecentGames m_games;
  std::vector<RecentGameRow*> m_rows;
  std::vector<StartCard*> m_cards;

  QScrollArea* m_scroll;
  QLabel* m_ball = nullptr;
  QLabel* m_title = nullptr;
  QLabel* m_tongues = nullptr;
  std::array<QPushButton*, kLanguages.size()> m_languages = {};
  UnfinishedPlate* m_unfinished = nullptr;
  QLabel* m_listTitle = nullptr;
  QLabel* m_nothing = nullptr;
  QWidget* m_list = nullptr; // of the rows, made anew with them
  QBoxLayout* m_listLayout = nullptr;
  QBoxLayout* m_page = nullptr;
  QBoxLayout* m_body = nullptr;
  QBoxLayout* m_left = nullptr;
  QBoxLayout* m_right = nullptr;
  bool m_isStale = false; // to be read once more
  Task m_task;            // the last: it waits for its thread before all else goes
};

} // namespace hooptab
