// A button that records when it is pressed, not when it is let go: an action with the left button, a shot
// made with the left and missed with any other. Shows its counts on itself.
#pragma once

#include <QAbstractButton>
#include <QTimer>

namespace hooptab {

class CountBox;

class StatButton : public QAbstractButton {
  Q_OBJECT
 public:
  enum class Records { Shot, Action };
  StatButton(Records records, const QString& caption, const QStringList& countNames,
             QWidget* parent = nullptr);

  // A second press right behind the first is a slip of the finger; not so of free throws.
  void setCountsOnce(bool countsOnce) { m_countsOnce = countsOnce; }
  bool countsOnce() const { return m_countsOnce; }

  CountBox& counts() { return *m_counts; }
  // One foul is left before the limit, or the limit is reached.
  enum class State { Usual, Warned, Reached };
  void setState(State state);
  void setColour(const QColor& colour); // as the settings have it; worn as the look wears it

 signals:
  void recorded(bool isMade); // actions: always true

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  struct Face {
    QColor fill, border, text, zeros;
  };
  [[nodiscard]] Face face(bool isPressed) const;
  void record(bool isMade);
  void applyFace();

  Records m_records;
  CountBox* m_counts;
  QColor m_colour;
  State m_state = State::Usual;
  QTimer m_feedback; // active for a moment behind a press
  bool m_wasMade = true;
  bool m_countsOnce = true;
};

} // namespace hooptab
