#include "appearance/ColourBand.h"

#include "appearance/Theme.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr double kRadius = 8; // of the card that it is the head of

} // namespace

void ColourBand::setColour(const QColor& colour) {
  const Look& look = Theme::look();
  m_colour = colour.isValid() ? colour : look.raised;
  QPalette colours = Theme::palette(Theme::current());
  colours.setColor(QPalette::WindowText, colour.isValid() ? textOn(colour) : look.ink);
  setPalette(colours);
  update();
}

void ColourBand::paintEvent(QPaintEvent*) {
  const QColor outline = outlineOf(m_colour, Theme::look().surface);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect());
  painter.setBrush(m_colour);
  painter.setPen(outline);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, kRadius), kRadius, kRadius);
  painter.fillRect(QRect(0, height() - 1, width(), 1), outline);
}

} // namespace hooptab
