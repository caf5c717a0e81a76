// Scanned forms on their way into the totals: reads page after page in the background, shows each with what
// was read from it, lets the user look at what is doubtful and correct it, and adds the counts to the game or
// puts them in their place. Stands in the window of the totals and changes these alone; nothing is saved
// here.
#pragma once

#include "appearance/Task.h"
#include "forms/PageDecoder.h"
#include "forms/ScannedTotals.h"
#include "game/Side.h"
#include "settings/Settings.h"
#include "settings/Texts.h"
#include "totals/ManualGame.h"

#include <QStringList>
#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSplitter;
class QStackedWidget;

namespace hooptab {

class Dialogs;
class DoubtList;
class ElidedLabel;
class ScannedTable;
class ScanView;

class frmSCAN : public QWidget {
  Q_OBJECT

 public:
  // All must outlive it.
  frmSCAN(ManualGame& game, const Settings& settings, const Texts& texts, Dialogs& dialogs,
          QWidget* parent = nullptr);
  ~frmSCAN() override;

  // Behind those that wait already. A blank form is taken for that team's until the user says otherwise.
  void read(const QStringList& files, Side team);
  bool isOpen() const { return m_isOpen; }
  void beginGame();      // another one: nothing was imported into it yet
  void forgetTaken();    // the totals are others than its imports made them
  int pagesLeft() const; // that are known of, the one in sight included
  void close();          // without a question

  // In place of the program itself.
  void decodeWith(const PageDecoder& decoder) { m_decoder = decoder; }

  void relabelPanel();
  void applyColours();
  QByteArray arrangement() const; // of the splitter
  void restoreArrangement(const QByteArray& state);

 signals:
  void imported(hooptab::Side team); // its totals have changed
  void finished(int imported);       // pages; the totals are to be shown again
  void reportAsked(const ScannedTotals& scanned, const QString& source);

 private:
  struct Result; // of reading one page
  QWidget* makeProgressPage();
  QWidget* makeSheetPage(const Settings& settings);
  QWidget* makePagePart();
  QWidget* makeCountPart(const Settings& settings);
  QWidget* makeImportBox(QWidget* parent);
  void connectEverything();

  void readNext();
  void startReading();
  void showProgress(int percent, int whole);
  void takeResult();
  void refuse(const QString& reason); // this page; the next one is read
  void tellRefusals();
  void forgetSheet();
  void finish();
  void showSheet();
  void leave(); // after a question

  void toggle(std::size_t cell);
  void settle(std::size_t cell, bool isTicked);
  void settleCurrent(bool isTicked);
  void chooseTeam(Side team);
  void assign(int player, int choice);
  void recount();
  void import(ScannedTotals::Way way);
  [[nodiscard]] QString concerns(const ScannedTotals::Outcome& outcome,
                                 ScannedTotals::Way way) const; // empty: nothing to ask

  [[nodiscard]] QString source() const; // file, page and sheet
  [[nodiscard]] QString playerWords(int player) const;
  [[nodiscard]] QString cellWords(std::size_t cell) const;

  ManualGame& m_game;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  std::shared_ptr<const FormLayout> m_layout;
  PageDecoder m_decoder;
  bool m_isOpen = false;
  Side m_team = Side::Visitor; // of blank forms
  int m_imported = 0;

  QStringList m_files; // those that wait; the first is being read
  int m_page = 0;      // of the first file
  int m_pagesInFile = 1;
  std::shared_ptr<Result> m_reading; // being filled in the background
  std::shared_ptr<const Result> m_result;
  QStringList m_refusals; // that were not told yet
  ScannedTotals m_scanned;
  std::vector<CheckedSheet> m_taken; // imported into this game, by this window

  QStackedWidget* m_pages = nullptr;
  QWidget* m_sheetPage = nullptr;
  QLabel* m_step = nullptr;
  QProgressBar* m_progress = nullptr;
  ElidedLabel* m_source = nullptr;
  QComboBox* m_teams = nullptr;
  QSplitter* m_splitter = nullptr;
  ScanView* m_view = nullptr;
  ScannedTable* m_table = nullptr;
  DoubtList* m_doubts = nullptr;
  ElidedLabel* m_hint = nullptr;
  QPushButton* m_skip = nullptr;
  Task m_task; // goes first, before what its work refers to
};

} // namespace hooptab
