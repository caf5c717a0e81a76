// The window in which a game's totals are entered from a paper sheet: a table of one team's players, the
// court with the chosen player's field goals, and the score beside the official one. Lays out and forwards;
// what counts is decided by the totals, and nothing is on disk before they are saved.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/GameHold.h"
#include "appearance/WidgetsFirst.h"
#include "appearance/WriteRetry.h"
#include "game/Side.h"
#include "totals/ManualColumns.h"
#include "totals/ManualGame.h"

#include <QUndoStack>

class QComboBox;
class QLabel;
class QStackedLayout;

namespace hooptab {

class Dialogs;
class ElidedLabel;
class NoticeStrip;
class ScannedTotals;
class ScoreCheck;
class Settings;
class ShotPanel;
class Texts;
class TotalsTable;
class frmSCAN;

class frmMANUAL : public ChildWindow {
  Q_OBJECT
 public:
  // All must outlive it.
  frmMANUAL(ProfileStore& store, Settings& settings, const Texts& texts, Dialogs& dialogs,
            QWidget* parent = nullptr);

  // A game that is recorded elsewhere, or cannot be written, is shown for reading. A lock that was taken
  // before, for a game that was just made, is handed over. False on a problem, and what was open stays; else
  // its unsaved totals are gone: ask first whether it agrees to close.
  [[nodiscard]] bool open(const QString& path, GameLock lock = {});
  // Whether the file is looked after; not while a new game may take its place.
  void setWatching(bool isOn) { m_game.setWatching(isOn); }
  bool writeCopy(const QString& path);
  void writePending() { m_game.settle(); }
  GameFileProblem problem() const { return m_problem; } // after that
  QString path() const;

  const GameDetails& details() const { return m_game.details(); }

  void save();
  void openForms(); // scanned ones, chosen by the user

  void relabelWindow() override;
  void applyColours() override;
  bool mayClose() override;
  QByteArray arrangement() const override;
  void restoreArrangement(const QByteArray& state) override;

 signals:
  void saved(); // and on disk
  // For the verification report of a scanned form.
  void scanReportAsked(const ScannedTotals& scanned, const QString& source);

 private:
  QWidget* makeTotalsPage();
  QWidget* makeHead(QWidget* page);
  QWidget* makePlayerBar(QWidget* page);
  void connectEverything();
  void chooseTeam(Side team);
  void clearTeam();
  void import(Side team);
  // Everything that changes the totals ends here, with words for it; nothing when it changed nothing.
  void keepChange(const QString& words);
  enum class Step { Undo, Redo };
  void go(Step step);
  void endForms(int imported);
  void showTotals();
  void showChanges(); // what can be taken back
  void showPlayer();
  void showTeams();
  void showDisk();
  void showBanner();
  QString diskWords() const; // empty when all is well
  void settle();
  void tellForeignHands();
  void showRefusal(ManualTotals::Typed reason, const ManualColumn& column);
  void showHint(const QString& text, const QColor& colour);

  Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  ManualGame m_game;
  GameFileProblem m_problem = GameFileProblem::None;
  GameHold* m_hold;
  bool m_isHeldElsewhere = false;
  Side m_team = Side::Visitor;
  ManualTotals m_before; // the totals before the change that is being made
  QUndoStack m_changes;
  WriteRetry m_retry;

  QLabel* m_notice = nullptr; // lines that the table does not show
  QLabel* m_banner = nullptr; // not on disk, or for reading only
  NoticeStrip* m_foreign = nullptr;
  QStackedLayout* m_pages = nullptr;
  QComboBox* m_teams = nullptr;
  ScoreCheck* m_score = nullptr;
  QLabel* m_entry = nullptr; // lblID
  ElidedLabel* m_player = nullptr;
  ElidedLabel* m_hint = nullptr;
  TotalsTable* m_table = nullptr;
  ShotPanel* m_shots = nullptr;
  frmSCAN* m_forms = nullptr;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
