// The score difference of a game as a small chart under a line of figures, which say at a glance how the game
// went. For a card of its owner's.
#pragma once

#include "appearance/ShownPicture.h"
#include "game/CountedGame.h"
#include "insight/FlowDrawing.h"
#include "insight/FlowPalette.h"

#include <QWidget>

#include <memory>

namespace hooptab {

class MarginChart : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  explicit MarginChart(const Texts& texts, QWidget* parent = nullptr); // the texts must outlive it

  void showGame(std::shared_ptr<const CountedGame> counted);
  void applyColours() { update(); }
  void relabelChart(); // in the language in use

  [[nodiscard]] bool hasPicture() const override;
  [[nodiscard]] QSize pictureSize() const override { return {800, 300}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] static FlowType type();

  const Texts& m_texts;
  std::shared_ptr<const CountedGame> m_counted;
  FlowDrawing m_drawing;
};

} // namespace hooptab
