// The page that says on one screen how a game went: both teams' box scores, the score's course, what tells
// the teams apart, and the shots of both. Lays out; what is shown is computed elsewhere.
#pragma once

#include "review/CompactBox.h"
#include "review/CompactWidths.h"
#include "review/ShownGame.h"

#include <QWidget>

#include <memory>
#include <utility>

namespace hooptab {

class CompactBoxTable;
class ComparisonBars;
class MarginChart;
class Settings;
class SignLegend;
class TeamCourt;

class GamePage : public QWidget {
  Q_OBJECT

 public:
  GamePage(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showGame(const ShownGame& game);
  const CompactChoice& columns() const { return m_columns; }
  void setColumns(CompactChoice columns); // shown with the next game
  const CompactWidths& widths() const { return m_widths; }
  void setWidths(const CompactWidths& widths); // of the columns of both boxes
  // Who reads the formula of the user's own rating; without, there is none.
  void setFormulaReader(FormulaReader reader) { m_readFormula = std::move(reader); }
  void applyColours();

 signals:
  void copied();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makeBox(Side team);
  QWidget* makeShots();
  void showBox(const ShownGame& game, Side team);
  void showComparison(const ShownGame& game);
  void fitRows();

  const Settings& m_settings;
  const Texts& m_texts;
  FormulaReader m_readFormula;
  CompactChoice m_columns = usualCompactColumns();
  CompactWidths m_widths;
  PerSide<CompactBoxTable*> m_boxes = {};
  PerSide<QWidget*> m_edges = {}; // the team's colour above its box
  MarginChart* m_chart;
  ComparisonBars* m_comparison;
  SignLegend* m_legend = nullptr;
  PerSide<TeamCourt*> m_courts = {};
};

} // namespace hooptab
