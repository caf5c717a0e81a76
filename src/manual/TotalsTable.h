// The table of one team's totals, a page at a time: a row for each player, a column for each count, the
// buttons that count for the chosen player above their columns. Cells are reached and typed in by keyboard as
// in a spreadsheet. What can be counted is decided by the totals.
#pragma once

#include "appearance/TableContent.h"
#include "game/Side.h"
#include "totals/ManualColumns.h"
#include "totals/ManualTotals.h"

#include <QWidget>

#include <array>

class QLabel;

namespace hooptab {

class CountButton;
class CountCell;
class ElidedLabel;
class ManualGame;
class Settings;
class Texts;

class TotalsTable : public QWidget, public ShownTable {
  Q_OBJECT
 public:
  // All must outlive it.
  TotalsTable(ManualGame& game, const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void setTeam(Side team);                // nobody is chosen then
  int player() const { return m_player; } // slot, 0 for nobody
  int page() const { return m_page; }
  void nextPage();
  void showTotals();
  void relabelTable();
  void applyColours();
  [[nodiscard]] TableContent tableContent() const override; // of all pages

  // Ends typing in a cell as if it had been left. False when what was typed cannot be; it is given up then.
  bool takeTyped();

 signals:
  void totalsChanged();
  void typedRefused(ManualTotals::Typed reason, const ManualColumn& column);
  void playerChanged();
  void pageAsked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  struct Row {
    ElidedLabel* number;
    ElidedLabel* name;
    std::array<CountCell*, kManualColumns.size()> counts;
    CountCell* points;
  };
  void makeHeader();
  Row makeRow(int slot);
  void showPage();
  void showRow(int slot);
  [[nodiscard]] int players() const; // of the team
  [[nodiscard]] bool isOnPage(int column) const;
  [[nodiscard]] QString words(int column) const;
  void choose(int player, int column);
  void press(const ManualColumn& column, ManualTotals::Step step); // for the chosen player
  bool setCount(const ManualColumn& column, int count);
  bool moveAlong(int by); // to the next or previous cell, on to the next or previous player
  bool typeInto(const QKeyEvent& event);
  [[nodiscard]] QString typedText(int slot, int column) const;

  ManualGame& m_game;
  const Settings& m_settings;
  const Texts& m_texts;
  Side m_team = Side::Visitor;
  int m_page = 1;
  int m_player = 0;
  int m_column = 0; // index of kManualColumns
  bool m_isTyping = false;
  QString m_typed;

  std::array<QLabel*, kManualColumns.size()> m_groups = {}; // of a pair of columns, or of one
  std::array<QLabel*, kManualColumns.size()> m_captions = {};
  std::array<CountButton*, kManualColumns.size()> m_buttons = {};
  std::array<Row, ManualTotals::kSlots + 1> m_rows = {}; // 0 is the team's
  QLabel* m_nameHeader = nullptr;
  QLabel* m_pointsHeader = nullptr;
};

} // namespace hooptab
