// The import of games of other systems: the files, the games that were found in them with what is known of
// each, and the way of the chosen ones into a folder of ours. Lays out and forwards; how a game stands is
// said by exchange/ImportList.h, and all that takes its time is done on a thread of its own, which can be
// cancelled.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/Task.h"
#include "appearance/WidgetsFirst.h"
#include "exchange/ImportList.h"
#include "exchange/ImportRun.h"
#include "exchange/TeamsOfGames.h"
#include "settings/Settings.h"

#include <QStringList>
#include <QTimer>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace hooptab {

class Dialogs;
class ImportDetails;
class NamesPanel;
class NoticeStrip;
class RowTable;

class frmIMPORT : public ChildWindow {
  Q_OBJECT
 public:
  // All must outlive it.
  frmIMPORT(FileSystem& files, const Settings& settings, const Texts& texts, Dialogs& dialogs,
            QWidget* parent = nullptr);

  // Files and folders, beside those that were added before.
  void add(const QStringList& paths);
  [[nodiscard]] bool isBusy() const { return m_task.isRunning(); }
  void tell(const QString& text); // above the list, until it is dismissed

  void relabelWindow() override;
  void applyColours() override;
  QByteArray arrangement() const override; // splitter, column widths
  void restoreArrangement(const QByteArray& state) override;

 signals:
  void gameAsked(const QString& path); // to be opened as a scorecard
  void teamsAsked(const hooptab::TeamsOfGames& teams);

 private:
  QWidget* makeSources();
  QWidget* makeTarget();
  QWidget* makeProgress();
  QWidget* makeGames();
  QWidget* makeButtons();
  void connectEverything();

  void addFiles();
  void addFolder();
  void browse();
  void lookAtPaths();
  void lookAgain(); // at the games that are listed, as after another folder was chosen
  void takeLooked(LookedAt looked);
  void chooseFile(const QString& file);
  void saveNames();
  void importChecked();
  void takeImported(const std::vector<std::size_t>& places, std::vector<ImportedGame> games);
  void takeTeams();
  void open(int row);

  [[nodiscard]] std::optional<ImportRequest> request(); // nothing: a field says nothing that is of use
  [[nodiscard]] bool isChecked(const ImportedGame& game) const;
  void checkAll(bool isOn);
  [[nodiscard]] std::vector<std::size_t> checkedThat(bool (*fits)(ImportState state, bool replaces)) const;
  [[nodiscard]] const ImportedGame* currentGame() const;

  void startWork(Text progress, Task::Work work);
  void showProgress();
  void endWork();
  void showGames();
  void showCurrent();
  void showState();
  void showNames();
  [[nodiscard]] QString cell(const ImportedGame& game, int column) const;

  FileSystem& m_files;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  std::vector<std::string> m_paths; // as they were given
  FileChoices m_choices;
  std::vector<ImportedGame> m_games;
  std::map<std::string, bool> m_checks; // by a game's first file: what the user chose
  LookedAt m_looked;                    // names alone
  std::string m_lookedFolder;           // what the games were looked at with
  std::string m_lookedDate;
  Text m_progressText = Text::None;
  bool m_hasMore = false; // paths that were added while there was work under way
  QString m_namesTab;     // without the count behind it
  QTimer m_stateLater;    // many rows may be checked at once

  QLineEdit* m_folder = nullptr;
  QLineEdit* m_date = nullptr;
  QCheckBox* m_replaces = nullptr;
  QCheckBox* m_all = nullptr;
  QLabel* m_progressLabel = nullptr;
  QProgressBar* m_progress = nullptr;
  QPushButton* m_cancel = nullptr;
  QLabel* m_counts = nullptr;
  NoticeStrip* m_notice = nullptr;
  RowTable* m_table = nullptr;
  QTabWidget* m_tabs = nullptr;
  ImportDetails* m_details = nullptr;
  NamesPanel* m_names = nullptr;
  Task m_task;                        // goes before what its work refers to
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
