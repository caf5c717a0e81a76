// The sign that something is still to be done: a triangle on amber, beside the words that tell what.
#pragma once

#include "appearance/Theme.h"

#include <QPainter>
#include <QWidget>

namespace hooptab {

class WarningChip : public QWidget {
 public:
  explicit WarningChip(QWidget* parent = nullptr) : QWidget(parent) {
    setFixedSize(Theme::measure()(28, 34), Theme::measure()(20, 24));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Look& look = Theme::look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.warningGround);
    painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    painter.translate(QRectF(rect()).center());
    painter.scale(height() / 20.0, height() / 20.0);
    painter.setPen(QPen(look.warningText, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF({QPointF(0, -5.5), QPointF(6, 5), QPointF(-6, 5)}));
    painter.drawLine(QPointF(0, -1.5), QPointF(0, 1));
    painter.drawPoint(QPointF(0, 3));
  }
};

} // namespace hooptab
