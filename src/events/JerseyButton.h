// A player as a button: his jersey number, in his team's colour where he is on court, with his name or with
// what he has so far. Shows how he stands; what a press means is for its owner to say. Acts on the press
// (signal pressed()), not when the button is let go, and can be dragged.
#pragma once

#include <QAbstractButton>

#include <array>

namespace hooptab {

// The kind of data that a dragged player is: "0-12", team and roster entry. Of this program as it runs: in
// another one the entry would be somebody else.
[[nodiscard]] QString playerMimeType();

class JerseyButton : public QAbstractButton {
 public:
  enum class Move { None, Comes, Leaves };
  struct Look {
    QString jersey = {}; // empty: no such player; the button is hidden and keeps its room
    QString name = {};   // beside the jersey where it is not empty
    // Two short lines beside the jersey, "8 p" and "2f 15′"; none where both are empty.
    std::array<QString, 2> lines = {};
    QColor colour = {};
    bool isFilled = false; // on court; outlined otherwise
    bool isWarned = false; // foul trouble
    bool isFouledOut = false;
    bool isSelected = false;
    Move move = Move::None;
    friend bool operator==(const Look&, const Look&) = default;
  };

  // A size that is empty leaves it to its owner to lay the button out.
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
  void drawNumber(QPainter& painter, const QRectF& room, const QColor& text, Qt::Alignment alignment) const;
  [[nodiscard]] bool isInColour() const;
  [[nodiscard]] QColor ground() const;

  Look m_look;
  QString m_dragText;
  QPoint m_pressedAt;
};

// How a jersey button in a row of a panel is named: "cmdJERSEY(3)".
[[nodiscard]] QString jerseyButtonName(int index);

// A name where there may be no room for all of it; the family name counts: "Cleo Carter", "C. Carter",
// "C. Cart...".
[[nodiscard]] QString shortenedName(const QString& name, const QFontMetrics& metrics, int width);

} // namespace hooptab
