// The window in which a game's totals are entered from a paper sheet: a table of one team's players, the
// court with the chosen player's field goals, and the score beside the official one. Lays out and forwards;
// what counts is decided by the totals, and nothing is on disk before they are saved.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/GameLock.h"
#include "manual/ManualColumns.h"
#include "manual/ManualGame.h"

#include <QTimer>

class QComboBox;
class QLabel;
class QStackedLayout;

namespace hooptab {

class Dialogs;
class ElidedLabel;
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
  frmMANUAL(cinifile& store, Settings& settings, const Texts& texts, Dialogs& dialogs,
            QWidget* parent = nullptr);
  ~frmMANUAL() override;

  // A game that is recorded elsewhere is refused with a message of its own; one that cannot be written is
  // shown for reading. On every problem what was open stays; else its unsaved totals are gone: ask first
  // whether it agrees to close.
  enum class Opening { Opened, Refused, Problem };
  [[nodiscard]] Opening open(const QString& path);
  GameFileProblem problem() const { return m_problem; } // after Problem
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
  void chooseTeam(int team);
  void clearTeam();
  void endForms(int imported);
  void showTotals();
  void showPlayer();
  void showTeams();
  void showDisk();
  void showRefusal(ManualTotals::Typed reason, const ManualColumn& column);
  void showHint(const QString& text, const QColor& colour);

  Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  ManualGame m_game;
  GameFileProblem m_problem = GameFileProblem::None;
  GameLock m_lock;
  int m_team = 0;
  QTimer m_retryOfWrites;

  QLabel* m_notice = nullptr; // lines that the table does not show
  QLabel* m_banner = nullptr; // not on disk, or for reading only
  QStackedLayout* m_pages = nullptr;
  QComboBox* m_teams = nullptr;
  ScoreCheck* m_score = nullptr;
  QLabel* m_entry = nullptr; // lblID
  ElidedLabel* m_player = nullptr;
  ElidedLabel* m_hint = nullptr;
  TotalsTable* m_table = nullptr;
  ShotPanel* m_shots = nullptr;
  frmSCAN* m_forms = nullptr;
};

} // namespace hooptab
