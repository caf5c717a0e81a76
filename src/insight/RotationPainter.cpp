#include "insight/RotationPainter.h"

#include "appearance/Contrast.h"
#include "appearance/relabel.h"
#include "insight/FlowDrawing.h"
#include "insight/SignedText.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kNumberEnd = 30; // from the left
constexpr double kNameBegin = 38;
constexpr double kTeamEdge = 4;
constexpr double kNarrowestWithNumber = 22;
constexpr double kMargin = 8;

} // namespace

double RotationPainter::minutesEnd(double right) const {
  return right - px(kMargin) - m_type.strongMetrics().horizontalAdvance(QStringLiteral("+000")) - px(kMargin);
}

void RotationPainter::drawText(QPainter& painter, const QRectF& box, Qt::Alignment alignment,
                               const QString& text) const {
  painter.drawText(box, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, box.width()));
}

void RotationPainter::paint(QPainter& painter, const RotationLayout& layout, const Frame& frame) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Side team : kSides) {
    const double top = layout.headTop(team);
    paintHead(painter, QRectF(frame.left, top, frame.right - frame.left, layout.rowTop(team, 0) - top), frame,
              team);
    for (std::size_t row = 0; row < m_rows[team].size(); ++row)
      paintRow(painter,
               QRectF(frame.left, layout.rowTop(team, row), frame.right - frame.left, layout.rowHeight()),
               m_rows[team][row]);
  }
  painter.restore();
}

void RotationPainter::paintHead(QPainter& painter, const QRectF& box, const Frame& frame, Side team) const {
  const Look& look = m_palette.look;
  painter.fillRect(box.adjusted(px(1), 0, -px(1), 0), look.raised);
  painter.fillRect(QRectF(box.left() + px(1), box.top(), px(kTeamEdge), box.height()),
                   m_palette.stroke(team));
  painter.setFont(m_type.strong);
  painter.setPen(look.ink);
  drawText(painter, box.adjusted(px(10), 0, -box.width() / 2, 0), Qt::AlignLeft, toQt(frame.titles[team]));
  painter.setFont(m_type.text);
  painter.setPen(look.muted);
  const QRectF end(m_time.plot().right(), box.top(), box.right() - px(kMargin) - m_time.plot().right(),
                   box.height());
  drawText(painter, end, Qt::AlignRight, QStringLiteral("+/−"));
  drawText(painter, QRectF(end.topLeft(), QPointF(minutesEnd(box.right()), box.bottom())), Qt::AlignRight,
           toQt(frame.minutes));
}

void RotationPainter::paintRow(QPainter& painter, const QRectF& box, const RotationRow& row) const {
  const Look& look = m_palette.look;
  painter.setPen(QPen(look.line, px(1)));
  painter.drawLine(box.bottomLeft() + QPointF(px(1), -px(0.5)),
                   box.bottomRight() + QPointF(-px(1), -px(0.5)));
  painter.setPen(look.ink);
  painter.setFont(m_type.strong);
  drawText(painter, QRectF(box.left(), box.top(), px(kNumberEnd), box.height()), Qt::AlignRight,
           toQt(row.number));
  painter.setFont(m_type.text);
  const double name = box.left() + px(kNameBegin);
  drawText(painter, QRectF(name, box.top(), m_time.plot().left - px(4) - name, box.height()), Qt::AlignLeft,
           toQt(row.name));
  const double air = std::max(px(1), box.height() * 0.12);
  for (const Stay& stay : row.stays)
    paintStay(painter,
              QRectF(QPointF(m_time.x(stay.from), box.top() + air),
                     QPointF(m_time.x(stay.to), box.bottom() - air - px(1))),
              stay);
  painter.setFont(m_type.text);
  painter.setPen(look.ink);
  const double right = minutesEnd(box.right());
  drawText(painter, QRectF(QPointF(m_time.plot().right(), box.top()), QPointF(right, box.bottom())),
           Qt::AlignRight, toQt(Module1::clockText(row.seconds)));
  painter.setFont(m_type.strong);
  painter.setPen(row.plusMinus > 0 ? look.made : row.plusMinus < 0 ? look.missed : look.muted);
  drawText(painter, QRectF(QPointF(right, box.top()), QPointF(box.right() - px(kMargin), box.bottom())),
           Qt::AlignRight, toQt(signedText(row.plusMinus)));
}

void RotationPainter::paintStay(QPainter& painter, const QRectF& bar, const Stay& stay) const {
  const QColor fill = m_palette.stay(stay.plusMinus);
  painter.setBrush(fill);
  painter.setPen(
      QPen(stay.plusMinus == 0 ? m_palette.look.line : mix(m_palette.look.ink, fill, 0.15), px(1)));
  painter.drawRoundedRect(bar.adjusted(px(0.5), px(0.5), -px(0.5), -px(0.5)), px(2), px(2));
  const QString number = toQt(signedText(stay.plusMinus));
  if (bar.width() < px(kNarrowestWithNumber) ||
      m_type.strongMetrics().horizontalAdvance(number) + px(8) > bar.width())
    return;
  painter.setFont(m_type.strong);
  painter.setPen(stay.plusMinus == 0 ? m_palette.look.muted : textOn(fill));
  drawText(painter, bar.adjusted(px(5), 0, 0, 0), Qt::AlignLeft, number);
}

} // namespace hooptab
