#include "appearance/TeamTag.h"

#include "appearance/Theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace hooptab {

namespace {

constexpr double kRadius = 4;

QFont tagFont() {
  return Theme::font(Type::Body, QFont::Bold);
}
int sideMargin() {
  return Theme::measure()(6);
}

} // namespace

int teamTagWidth() {
  return QFontMetrics(tagFont()).horizontalAdvance(QStringLiteral("COUGARS")) + 2 * sideMargin();
}

int teamTagHeight() {
  return QFontMetrics(tagFont()).height() + Theme::measure()(2);
}

void drawTeamTag(QPainter& painter, const QRect& rect, const QString& abbreviation, const QColor& colour,
                 const QColor& ground) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(colour);
  painter.setPen(outlineOf(colour, ground));
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  const int room = rect.width() - 2 * sideMargin();
  QFont font = tagFont();
  if (QFontMetrics(font).horizontalAdvance(abbreviation) > room)
    font.setFamilies(Theme::font(Type::Dense).families()); // the narrow ones
  painter.setFont(font);
  painter.setPen(textOn(colour));
  painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(abbreviation, Qt::ElideRight, room));
  painter.restore();
}

} // namespace hooptab
