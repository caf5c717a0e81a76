#include "review/SignLegend.h"

#include "appearance/Theme.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr int kGap = 4; // between a sign and its words
constexpr int kSignGap = 12;

int widthOf(const QString& text) {
  return QFontMetrics(Theme::font(Type::Small)).horizontalAdvance(text);
}

} // namespace

SignLegend::SignLegend(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void SignLegend::showSigns(std::vector<Sign> signs) {
  m_signs = std::move(signs);
  updateGeometry();
  update();
}

QSize SignLegend::sizeHint() const {
  int width = 0;
  for (const Sign& sign : m_signs)
    width += widthOf(sign.sign) + kGap + widthOf(sign.words) + kSignGap;
  return {width, QFontMetrics(Theme::font(Type::Small)).height()};
}

void SignLegend::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setFont(Theme::font(Type::Small));
  int left = kSignGap;
  const auto write = [&](const QString& text, const QColor& colour) {
    painter.setPen(colour);
    painter.drawText(QRect(left, 0, width() - left, height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    left += widthOf(text);
  };
  for (const Sign& sign : m_signs) {
    write(sign.sign, sign.colour);
    left += sign.sign.isEmpty() ? 0 : kGap;
    write(sign.words, Theme::look().ink);
    left += kSignGap;
  }
}

} // namespace hooptab
