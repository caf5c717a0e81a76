#include "events/CountBox.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"

#include <QPainter>

#include <algorithm>

namespace hooptab {

CountBox::CountBox(Place place, const QString& caption, const QStringList& countNames, QWidget* parent)
    : QWidget(parent), m_place(place), m_caption(caption) {
  for (const QString& name : countNames) {
    auto* const label = new PlainLabel(this);
    label->setObjectName(name);
    label->setForegroundRole(QPalette::WindowText); // on a button it would be that of buttons
    m_counts.push_back(label);
  }
  if (isShot()) {
    m_counts[0]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_counts[1]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_counts[2]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  } else {
    m_counts[0]->setAlignment(Qt::AlignRight | Qt::AlignBottom);
  }
}

void CountBox::setCaption(const QString& caption) {
  if (caption == m_caption)
    return;
  m_caption = caption;
  update();
}

// Of a shot nobody has tried there is nothing; of any other count, nothing yet.
bool CountBox::isZero() const {
  return m_counts[isShot() ? 1 : 0]->text() == QStringLiteral("0");
}

void CountBox::setCounts(const QStringList& texts) {
  const bool wasZero = isZero();
  for (qsizetype i = 0; i < m_counts.size(); ++i)
    m_counts[i]->setText(texts.value(i)); // nothing happens where it is the same
  if (isZero() != wasZero)
    showCounts();
}

void CountBox::setColours(const QColor& text, const QColor& zeros) {
  if (text == m_text && zeros == m_zeros)
    return;
  m_text = text;
  m_zeros = zeros;
  showCounts();
}

QFont CountBox::countFont() const {
  const QFont::Weight weight = isZero()                    ? QFont::Normal
                               : m_place == Place::InPanel ? QFont::DemiBold
                                                           : QFont::Bold;
  return Theme::font(!isShot() ? Type::Count : m_place == Place::InPanel ? Type::Name : Type::Body, weight);
}

void CountBox::showCounts() {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, isZero() ? m_zeros : m_text);
  const QFont font = countFont();
  for (qsizetype i = 0; i < std::min<qsizetype>(m_counts.size(), 2); ++i) {
    m_counts[i]->setPalette(colours);
    m_counts[i]->setFont(font);
  }
  if (isShot()) {
    // Of what was never tried it would only be one more zero.
    m_counts[2]->setVisible(!isZero() || m_place == Place::InPanel);
    colours.setColor(QPalette::WindowText, m_place == Place::InPanel ? Theme::muted() : m_text);
    m_counts[2]->setPalette(colours);
    m_counts[2]->setFont(Theme::font(m_place == Place::InPanel ? Type::Small : Type::Caption, QFont::Normal));
  }
  update();
}

// The made count ends where the slash begins, at a place that has room for two digits before it.
void CountBox::layOut() {
  const Measure& measure = Theme::measure();
  const int margin = m_place == Place::InPanel ? 0 : measure(4);
  const int right = width() - margin;
  const QFontMetrics caption(Theme::font(m_place == Place::InPanel ? Type::Small : Type::Caption));
  const int top = m_place == Place::InPanel ? 0 : measure(2);
  if (!isShot()) {
    m_captionRect = QRect(margin, top, right - margin, caption.height());
    const QFontMetrics count(Theme::font(Type::Count));
    m_counts[0]->setGeometry(margin, height() - count.height() + count.descent() / 2 - 1, right - margin,
                             count.height());
    return showCounts();
  }
  m_captionRect = QRect(margin, top, right - margin, caption.height());
  const QFontMetrics counts(Theme::font(m_place == Place::InPanel ? Type::Name : Type::Body, QFont::Bold));
  const int slash = counts.horizontalAdvance(u'/') + 1;
  const int twoDigits = counts.horizontalAdvance(QStringLiteral("00"));
  const int left = m_place == Place::InPanel ? twoDigits : (width() - slash) / 2;
  const int line = std::min(counts.height(), height() - m_captionRect.bottom());
  const int y = height() - line;
  m_slash = QRect(left, y, slash, line);
  m_counts[0]->setGeometry(0, y, left, line);
  m_counts[1]->setGeometry(left + slash, y, width() - left - slash, line);
  m_counts[2]->setGeometry(m_captionRect);
  showCounts();
}

void CountBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(m_place == Place::InPanel ? Theme::muted() : m_text);
  painter.setFont(Theme::font(m_place == Place::InPanel ? Type::Small : Type::Caption));
  painter.drawText(m_captionRect, Qt::AlignLeft | Qt::AlignVCenter, m_caption);
  if (!isShot())
    return;
  painter.setFont(countFont());
  painter.setPen(isZero() ? m_zeros : m_text);
  painter.drawText(m_slash, Qt::AlignCenter, QStringLiteral("/"));
}

} // namespace hooptab
