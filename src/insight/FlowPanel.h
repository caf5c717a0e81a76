// The page of a game's flow: score difference and rotation on one time axis, the legend below them, and a
// switch for the chances to win. What a chosen stretch does is its owner's.
#pragma once

#include "game/CountedGame.h"
#include "insight/Stretch.h"
#include "settings/Texts.h"

#include <QWidget>

#include <cstddef>
#include <memory>
#include <optional>

class QCheckBox;

namespace hooptab {

class FlowCanvas;
class FlowLegend;

class FlowPanel : public QWidget {
  Q_OBJECT

 public:
  explicit FlowPanel(const Texts& texts, QWidget* parent = nullptr); // the texts must outlive it

  void showGame(std::shared_ptr<const CountedGame> counted); // the whole game
  void showStretch(const std::optional<Stretch>& stretch);   // marks it
  void applyColours();
  void relabelPanel();

 signals:
  void stretchChosen(const hooptab::Stretch& stretch);
  void stretchCleared();
  void eventAsked(std::size_t event); // its place in the game's list

 private:
  const Texts& m_texts;
  FlowCanvas* m_canvas;
  FlowLegend* m_legend;
  QCheckBox* m_chances;
};

} // namespace hooptab
