// One of several choices in a row that are joined into one control: the chosen one is filled with the accent.
#pragma once

#include <QAbstractButton>

#include <cstdint>

namespace hooptab {

class SegmentButton : public QAbstractButton {
 public:
  enum class Place : std::uint8_t { First, Middle, Last };

  explicit SegmentButton(Place place, QWidget* parent = nullptr);
  void setPlace(Place place);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Place m_place;
};

} // namespace hooptab
