// A label of one line that cuts its text with an ellipsis where there is no room, and then shows the whole of
// it as tool tip.
#pragma once

#include "appearance/PlainLabel.h"

namespace hooptab {

class ElidedLabel : public PlainLabel {
  Q_OBJECT

 public:
  using PlainLabel::PlainLabel;

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool isCut() const;
};

} // namespace hooptab
