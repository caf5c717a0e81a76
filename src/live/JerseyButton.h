// A player as a button: his jersey number in his team's colour, with his name where there is room. Shows how
// he stands; what a press means is for its owner to say. Acts on the press (signal pressed()), not when the
// button is let go, and can be dragged.
#pragma once

#include <QAbstractButton>

namespace hooptab {

// The data of a dragged player: "0-12", team and roster entry.
inline constexpr const char* kPlayerMimeType = "application/x-hooptab-player";

class JerseyButton : public QAbstractButton {
 public:
  enum class Move { None, Comes, Leaves };
  struct Look {
    QString jersey = {}; // empty: no such player; the button is hidden and keeps its room
    QString name = {};   // shown under the jersey where it is not empty
    QColor colour = {};
    bool isFilled = false; // on court; outlined otherwise
    bool isFouledOut = false;
    bool isSelected = false;
    Move move = Move::None;
    friend bool operator==(const Look&, const Look&) = default;
  };

  JerseyButton(const QString& name, QSize size, QWidget* parent);

  void setLook(const Look& look); // repaints only what has changed
  const Look& look() const { return m_look; }
  // What a drag carries; empty: it cannot be dragged.
  void setDragText(const QString& text) { m_dragText = text; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void nextCheckState() override {} // whether it is checked follows from what its owner shows

 private:
  void drawBody(QPainter& painter, const QRectF& body) const;
  void drawText(QPainter& painter, const QRectF& body) const;
  void drawSigns(QPainter& painter, const QRectF& body) const;

  Look m_look;
  QString m_dragText;
  QPoint m_pressedAt;
};

// How a jersey button in a row of a panel is named: "cmdJERSEY(3)".
[[nodiscard]] QString jerseyButtonName(int index);

} // namespace hooptab
