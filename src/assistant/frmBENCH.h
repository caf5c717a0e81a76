// The running game for an assistant on the bench, in a window of its own that can stand on a second screen.
// Follows the game and shows it a little later than the live window does, so that nothing there waits for it;
// takes no keys and no focus. What it says is decided by BenchFigures.
#pragma once

#include "appearance/WidgetsFirst.h"
#include "assistant/BenchRecord.h"
#include "game/Side.h"
#include "recording/GameSession.h"
#include "settings/Texts.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <optional>

class QToolButton;

namespace hooptab {

class BenchFactors;
class BenchHead;
class BenchTable;
class BenchTile;
class ElidedLabel;
struct BenchFigures;

class frmBENCH : public QWidget {
  Q_OBJECT
 public:
  // Both must outlive it.
  frmBENCH(GameSession& session, const Texts& texts, QWidget* parent);

  // Where it was left; else on another screen than the game's, where there is one.
  void open(const QByteArray& geometry);
  // Also one that was minimized.
  void comeToFront();
  // For longer than a double press lasts: whoever presses twice to open it wants it open.
  [[nodiscard]] bool isInSight() const;
  void setTeam(Side team); // whose bench it is for
  [[nodiscard]] Side team() const { return m_us; }
  void relabelWindow();
  void applyColours();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void makeTeams();
  void makeParts();
  void askRefresh();
  void refresh();
  void showTables(const BenchFigures& figures);
  void layOut();

  const LiveGame& m_game;
  const Texts& m_texts;
  Side m_us = Side::Visitor;
  std::optional<BenchRecord> m_record; // none: the game has changed since it was counted
  GameSession::Listening m_listening;
  QTimer m_refresh;
  QTimer m_tick;         // while the clock runs
  QElapsedTimer m_shown; // since it was brought in sight
  PerSide<QToolButton*> m_teams = {};
  BenchHead* m_head = nullptr;
  std::array<BenchTile*, 3> m_tiles = {}; // run, since the last time-out, foul trouble
  BenchTable* m_five = nullptr;
  ElidedLabel* m_thisFive = nullptr;
  BenchTable* m_bench = nullptr;
  BenchFactors* m_factors = nullptr;
  BenchTable* m_fives = nullptr;
  BenchTable* m_theirFive = nullptr;
  int m_benchRows = 0;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
