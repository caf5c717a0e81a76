// The main window: the frame in which every child window opens, and the dispatch of the commands. It opens
// games, hands scorecard commands to the scorecard in front, and switches language and colours. What is
// enabled, how commands look and where things are remembered is decided by the classes it is made of.
#pragma once

#include "appearance/ColourScheme.h"
#include "game/GameFile.h"
#include "keypad/KeypadAssignment.h"
#include "report/SeasonReports.h"
#include "settings/Settings.h"
#include "shell/CommandState.h"
#include "shell/DialogLanguage.h"
#include "shell/HelpPages.h"
#include "storage/GameLock.h"
#include "teams/TeamStore.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <memory>

class QLabel;
class QMdiSubWindow;
class QMenuBar;
class QStackedWidget;

namespace hooptab {

class ChildWindow;
class CommandBar;
class Dialogs;
class MainMenu;
class Printers;
class ReportOutput;
class SharedFiles;
class TimeSource;
class WelcomePage;
class WindowArea;
class WindowExports;
class WindowMemory;
class frmLIVE;
class frmMANUAL;
class frmSTATS;
class frmVIEW;
struct ReportOffer;

// What the main window works with; made by main, which keeps it alive.
struct Workshop {
  cinifile& store;
  Settings& settings;
  Texts& texts;
  WindowMemory& memory;
  Dialogs& dialogs;
  const SharedFiles& files;
  TimeSource& time;
  Printers& printers;
};

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
  void carryOut(const QString& key);
  [[nodiscard]] GameFileProblem showGame(const QString& path);
  void rememberPlace(const QString& path);
  [[nodiscard]] bool mayLeaveSettings();
  [[nodiscard]] QString askForGame(Text title); // empty when cancelled
  void chooseGame();
  void chooseGameForInput();
  // In the live window, or in manual entry for a game of totals. One window for input at a time: it takes the
  // next game, or makes room for the other.
  void openForInput(const QString& path);
  void openLive(const QString& path, GameLock lock);
  void openManual(const QString& path, GameLock lock);
  void replaceInput(const QString& path, GameLock lock = {});
  void closeInput(ChildWindow* window);
  void showInput(const QString& path, ChildWindow& window, std::unique_ptr<ChildWindow> fresh);
  [[nodiscard]] bool manualAgreesToClose();
  void makeGame();
  void watchInput(bool isOn); // the file of the game that is open for input
  void saveCopy();
  void openTeams();
  void openSeason(); // one at a time
  void printSeason(frmSTATS& window);
  void preview(std::vector<ReportOffer> offers); // in the print preview that is open, or a new one
  void openFolder(const QString& path);          // of a game, with the system's own program
  void openColours();
  void openKeys();
  void switchKeypad();
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
  [[nodiscard]] frmLIVE* live() const;      // the one that is open, or null
  [[nodiscard]] frmMANUAL* manual() const;  // the same
  [[nodiscard]] frmSTATS* season() const;   // the one that is open, or null
  [[nodiscard]] frmVIEW* scorecard() const; // the one in front, or null
  void showCommands();
  void refuse(GameFileProblem problem, const QString& path);
  [[nodiscard]] QString refusal(GameFileProblem problem, const QString& path) const;

  void showWhatIsUnsaved();
  [[nodiscard]] QString notSaved() const;
  void restorePlace();

  Workshop m_workshop;
  TeamStore m_teams;
  KeypadSetup m_keypad; // for the live window
  QTimer m_retryOfWrites;
  SeasonReport m_seasonReport = SeasonReport::TeamSummary; // chosen last
  DialogLanguage m_dialogLanguage;
  HelpPages m_help;

  CommandBar* m_commands = nullptr;
  MainMenu* m_menu = nullptr;
  QMenuBar* m_bar = nullptr;
  WindowArea* m_area = nullptr;
  WelcomePage* m_welcome = nullptr;
  QStackedWidget* m_pages = nullptr;
  QLabel* m_unsaved = nullptr;
  QPointer<QMdiSubWindow> m_previewedFrom; // comes back to the front when the preview closes
  ReportOutput* m_output = nullptr;        // in the status bar while it is at work
  WindowExports* m_exports = nullptr;
};

} // namespace hooptab
