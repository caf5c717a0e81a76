// The main window: the frame in which every child window opens. It opens scorecards, teams and the season,
// serves their commands, and switches language and colours. Games for input are its InputDesk's, reports its
// PreviewDesk's; what is enabled, how commands look and where things are remembered is decided by the classes
// it is made of.
#pragma once

#include "appearance/ColourScheme.h"
#include "game/GameFile.h"
#include "settings/Settings.h"
#include "shell/CommandState.h"
#include "shell/DialogLanguage.h"
#include "shell/HelpPages.h"
#include "shell/Workshop.h"
#include "teams/TeamStore.h"

#include <QMainWindow>

class QMenuBar;
class QStackedWidget;

namespace hooptab {

class CommandBar;
class ExchangeDesk;
class ShareDesk;
class InputDesk;
class MainMenu;
class PreviewDesk;
class ReportOutput;
class UnsavedSettings;
class WelcomePage;
class WindowArea;
class WindowExports;
class frmSTATS;
class frmVIEW;

class MDI : public QMainWindow {
  Q_OBJECT

 public:
  explicit MDI(const Workshop& workshop);
  ~MDI() override;

  // Opens a game as a scorecard, or brings the scorecard to the front that shows it already. A game that
  // cannot be opened is refused with a message, and everything open stays.
  void openGame(const QString& path);
  // The same for games that a second start of the program brings, in front of other programs. A live window
  // in front stays there, with its clock and its question, and is told what was refused.
  void openFromElsewhere(const QStringList& games);
  // Writes what still waits for the disk, and says that something went wrong inside the program.
  void tellFailure(const QString& what);
  // Tells what the preparation of the settings has to say to the user, if anything.
  void report(Settings::Preparation preparation);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void serveCommands();
  [[nodiscard]] GameFileProblem showGame(const QString& path);
  void rememberPlace(const QString& path);
  void openTeams();
  void openSeason();                    // one at a time
  void openFolder(const QString& path); // of a game, with the system's own program
  void openColours();
  void openRating();
  void switchLanguage();
  void switchColours(ColourScheme scheme);
  void switchZoom(int percent);
  void applyMeasure();
  void applyLook(); // to all that keep colours or lengths
  QWidget* makeTop(QMenuBar& bar);
  void showRoom(); // beside the menus, to the tools
  void showTitle();
  void showStatusBar();
  [[nodiscard]] CommandGroup groupInFront() const;
  void relabelEverything();

  void addScorecard(frmVIEW* view);
  void showMessage(const QString& message); // in the status bar, for a while
  [[nodiscard]] frmSTATS* season() const;   // the one that is open, or null
  [[nodiscard]] frmVIEW* scorecard() const; // the one in front, or null
  void showCommands();
  void restorePlace();

  Workshop m_workshop;
  TeamStore m_teams;
  DialogLanguage m_dialogLanguage;
  HelpPages m_help;

  CommandBar* m_commands = nullptr;
  MainMenu* m_menu = nullptr;
  QMenuBar* m_bar = nullptr;
  WindowArea* m_area = nullptr;
  WelcomePage* m_welcome = nullptr;
  QStackedWidget* m_pages = nullptr;
  UnsavedSettings* m_unsaved = nullptr;
  ReportOutput* m_output = nullptr; // in the status bar while it is at work
  PreviewDesk* m_previews = nullptr;
  InputDesk* m_input = nullptr;
  ExchangeDesk* m_exchange = nullptr;
  ShareDesk* m_share = nullptr;
  WindowExports* m_exports = nullptr;
};

} // namespace hooptab
