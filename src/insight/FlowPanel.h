// The flow of a game as a page, in which a stretch is chosen.
#pragma once

#include "game/CountedGame.h"
#include "insight/Stretch.h"
#include "settings/Texts.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace hooptab {

class MarginChart;

class FlowPanel : public QWidget {
  Q_OBJECT
 public:
  explicit FlowPanel(const Texts& texts, QWidget* parent = nullptr);
  void showGame(std::shared_ptr<const CountedGame> game);
  void showStretch(const std::optional<Stretch>& stretch);
  void applyColours() { update(); }
  void relabelPanel() { update(); }

 signals:
  void stretchChosen(const hooptab::Stretch& stretch);
  void stretchCleared();
  void eventAsked(std::size_t event);

 private:
  MarginChart* m_chart;
  std::optional<Stretch> m_stretch;
};

} // namespace hooptab
