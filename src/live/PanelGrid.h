// The ten players on court: for each team a row of five panels below its roster.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"
#include "recording/Slot.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class QGridLayout;

namespace hooptab {

class PlayerPanel;
class Settings;
class Texts;

class PanelGrid : public QWidget {
  Q_OBJECT
 public:
  using Panels = std::array<PlayerPanel*, kSlots.size()>;

  explicit PanelGrid(QWidget* parent);
  // Once, before anything else: the rosters are children of the grid that others make.
  void fill(const PerSide<QWidget*>& rosters, const Settings& settings, const Texts& texts);

  [[nodiscard]] const Panels& panels() const { return m_panels; } // by slot
  [[nodiscard]] PlayerPanel& panel(Slot slot) const { return *m_panels[slot.index()]; }
  // The panel of that team at that place of the grid.
  [[nodiscard]] std::optional<Slot> slotAt(Side team, const QPoint& place) const;

  // The home team stands above the visitors.
  void setTurned(bool isTurned);
  void setSelected(const std::function<bool(Slot slot)>& isSelected);
  void showGame(const LiveGame& game);
  void showTime(const LiveGame& game);
  void relabelPanels();
  void applyColours();
  void applyMeasure();

 private:
  QGridLayout* m_grid;
  PerSide<QWidget*> m_rosters = {};
  Panels m_panels = {};
};

} // namespace hooptab
