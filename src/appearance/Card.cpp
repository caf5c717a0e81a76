#include "appearance/Card.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace hooptab {

void Card::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameGroupBox, &option, &painter, this);
}

} // namespace hooptab
