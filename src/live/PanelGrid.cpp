#include "live/PanelGrid.h"

#include "appearance/Theme.h"
#include "live/PlayerPanel.h"

#include <QGridLayout>

namespace hooptab {

namespace {

constexpr int kTeamRows = 2; // of the grid: the roster and the panels

} // namespace

PanelGrid::PanelGrid(QWidget* parent) : QWidget(parent), m_grid(new QGridLayout(this)) {
  m_grid->setContentsMargins(0, 0, 0, 0);
}

void PanelGrid::fill(const PerSide<QWidget*>& rosters, const Settings& settings, const Texts& texts) {
  m_rosters = rosters;
  for (const Slot slot : kSlots)
    m_panels[slot.index()] = new PlayerPanel(slot, settings, texts, this);
  for (int column = 0; column < Slot::kOfTeam; ++column)
    m_grid->setColumnStretch(column, 1);
  setTurned(false);
}

std::optional<Slot> PanelGrid::slotAt(Side team, const QPoint& place) const {
  for (const Slot slot : kSlots) {
    if (slot.team() == team && panel(slot).geometry().contains(place))
      return slot;
  }
  return std::nullopt;
}

void PanelGrid::setTurned(bool isTurned) {
  for (const Side team : kSides) {
    const int row = numberOf(isTurned ? otherSide(team) : team) * kTeamRows;
    m_grid->addWidget(m_rosters[team], row, 0, 1, Slot::kOfTeam);
    for (int place = 0; place < Slot::kOfTeam; ++place)
      m_grid->addWidget(&panel(Slot(team, place)), row + 1, place);
    m_grid->setRowStretch(row + 1, 1);
  }
}

void PanelGrid::setSelected(const std::function<bool(Slot slot)>& isSelected) {
  for (const Slot slot : kSlots)
    panel(slot).setSelected(isSelected(slot));
}

void PanelGrid::showGame(const LiveGame& game) {
  for (PlayerPanel* panel : m_panels)
    panel->showGame(game);
}

void PanelGrid::showTime(const LiveGame& game) {
  for (PlayerPanel* panel : m_panels)
    panel->showTime(game);
}

void PanelGrid::relabelPanels() {
  for (PlayerPanel* panel : m_panels)
    panel->relabelPanel();
}

void PanelGrid::applyColours() {
  for (PlayerPanel* panel : m_panels)
    panel->applyColours();
}

void PanelGrid::applyMeasure() {
  const Measure& measure = Theme::measure();
  m_grid->setHorizontalSpacing(measure(5, 9));
  m_grid->setVerticalSpacing(measure(3, 6));
}

} // namespace hooptab
