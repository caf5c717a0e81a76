#include "live/CountBox.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"

#include <QPainter>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kMargin = 3; // left and right, in pixels

QFont fontOf(double pixels, bool isBold) {
  QFont font = Theme::figures(9, isBold);
  font.setPixelSize(std::max(8, static_cast<int>(pixels)));
  return font;
}

} // namespace

CountBox::CountBox(const QString& caption, const QStringList& countNames, QWidget* parent)
    : QWidget(parent), m_caption(caption) {
  for (const QString& name : countNames) {
    auto* const label = new PlainLabel(this);
    label->setObjectName(name);
    label->setForegroundRole(QPalette::WindowText); // on a button it would be that of buttons
    m_counts.push_back(label);
  }
  if (isShot()) {
    m_counts[0]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_counts[1]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }
  m_counts.back()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void CountBox::setCaption(const QString& caption) {
  if (caption == m_caption)
    return;
  m_caption = caption;
  update();
}

void CountBox::setCounts(const QStringList& texts) {
  for (qsizetype i = 0; i < m_counts.size(); ++i)
    m_counts[i]->setText(texts.value(i)); // nothing happens where it is the same
}

void CountBox::setTextColour(const QColor& colour) {
  QPalette changed = palette();
  changed.setColor(QPalette::WindowText, colour);
  setPalette(changed);
}

void CountBox::setBold(bool isBold) {
  if (isBold == m_isBold)
    return;
  m_isBold = isBold;
  update();
}

QFont CountBox::captionFont() const {
  return isShot() ? fontOf(std::min(height() * 0.33, width() * 0.27), m_isBold)
                  : fontOf(std::min(height() * 0.38, width() * 0.26), m_isBold);
}

QFont CountBox::countFont(bool isBold) const {
  return isShot() ? fontOf(std::min(height() * 0.42, width() * 0.31), isBold)
                  : fontOf(std::min(height() * 0.46, width() * 0.32), isBold);
}

QRect CountBox::captionRect() const {
  const int lineHeight = isShot() ? height() * 45 / 100 : height();
  return {kMargin, 0, width() - 2 * kMargin, lineHeight};
}

void CountBox::resizeEvent(QResizeEvent*) {
  if (!isShot()) {
    m_counts[0]->setFont(countFont(true));
    m_counts[0]->setGeometry(captionRect());
    return;
  }
  const QRect top = captionRect();
  const int slash = std::max(2, QFontMetrics(countFont(false)).horizontalAdvance(u'/'));
  const int half = (width() - slash) / 2;
  const int countHeight = height() - top.height();
  m_counts[0]->setFont(countFont(true));
  m_counts[0]->setGeometry(0, top.height(), half, countHeight);
  m_counts[1]->setFont(countFont(false));
  m_counts[1]->setGeometry(half + slash, top.height(), width() - half - slash, countHeight);
  m_counts[2]->setFont(captionFont());
  m_counts[2]->setGeometry(top);
}

void CountBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(captionFont());
  painter.drawText(captionRect(), Qt::AlignLeft | Qt::AlignVCenter, m_caption);
  if (!isShot())
    return;
  painter.setFont(countFont(false));
  painter.drawText(rect().adjusted(0, captionRect().height(), 0, 0), Qt::AlignCenter, QStringLiteral("/"));
}

} // namespace hooptab
