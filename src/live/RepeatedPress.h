// A finger that presses twice makes one shot, not two: a second press of the same button of the mouse, on the
// same control and spot, right behind one that has recorded a shot, is held back and told; whoever meant two
// can have it carried out. Free throws follow each other as fast as one can click, and count.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>

#include <memory>

class QMouseEvent;
class QWidget;

namespace hooptab {

class RepeatedPress : public QObject {
  Q_OBJECT
 public:
  static constexpr quint64 kWithin = 500;  // milliseconds
  static constexpr double kSameSpot = 3.0; // court units

  explicit RepeatedPress(QWidget& window); // sees to the presses inside of it
  ~RepeatedPress() override;

  void noteRecorded(); // the press that is being delivered has recorded something
  void carryOut();     // the one held back last, as if it had not been

 signals:
  void heldBack();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isRepeat(const QWidget& pressed, const QMouseEvent& event) const;

  QWidget& m_window;
  QPointer<QWidget> m_pressed;
  std::unique_ptr<QMouseEvent> m_press; // the last on m_pressed
  bool m_hasRecorded = false;
  QPointer<QWidget> m_heldBackOn;
  std::unique_ptr<QMouseEvent> m_heldBack;
};

} // namespace hooptab
