#include "scoreboard/StartButton.h"

#include "appearance/Theme.h"

#include <QKeySequence>
#include <QPainter>

namespace hooptab {

namespace {

constexpr double kRadius = 6;
constexpr int kGap = 8;

} // namespace

StartButton::StartButton(QWidget* parent) : QPushButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setAutoDefault(false);
  setAttribute(Qt::WA_Hover);
}

void StartButton::show(Shown what, const QString& words, bool isRefused) {
  if (m_shown == what && m_isRefused == isRefused && text() == words)
    return;
  m_shown = what;
  m_isRefused = isRefused;
  setText(words);
  update();
}

QSize StartButton::sizeHint() const {
  return {Theme::measure()(120), Theme::measure()(38, 48)};
}

void StartButton::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  struct {
    QColor fill, border, text;
    double width = 1;
  } face;
  switch (m_shown) {
  case Shown::Start: face = {look.start, look.start, look.onStart}; break;
  case Shown::Stop: face = {look.surface, look.ink, look.ink, 2}; break;
  case Shown::Locked: face = {look.raised, look.edge, look.muted}; break;
  case Shown::Nothing: face = {look.raised, look.line, look.edge}; break;
  }
  if (m_isRefused)
    face = {look.warningGround, look.warningBar, look.warningText, 2};
  if (isEnabled() && (underMouse() || isDown()))
    face.fill = mix(face.text, face.fill, isDown() ? 0.2 : 0.1);
  painter.setBrush(face.fill);
  painter.setPen(QPen(face.border, face.width));
  const QRectF body =
      QRectF(rect()).adjusted(face.width / 2, face.width / 2, -face.width / 2, -face.width / 2);
  painter.drawRoundedRect(body, kRadius, kRadius);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(lineOn(look.accent, face.fill, kRecognisable), 2));
    painter.drawRoundedRect(body.adjusted(2, 2, -2, -2), kRadius - 2, kRadius - 2);
  }
  painter.setPen(face.text);
  QFont words = Theme::font(Type::Points);
  words.setPixelSize(words.pixelSize() * 3 / 4);
  painter.setFont(words);
  if (m_shown != Shown::Start && m_shown != Shown::Stop)
    return painter.drawText(rect(), Qt::AlignCenter, text());
  const QFont small = Theme::font(Type::Caption, QFont::Normal);
  const QString key = QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText);
  const int wordsWidth = painter.fontMetrics().horizontalAdvance(text());
  const int keyWidth = QFontMetrics(small).horizontalAdvance(key) + kGap;
  const int left = (width() - wordsWidth - kGap - keyWidth) / 2;
  painter.drawText(QRect(left, 0, wordsWidth + 1, height()), Qt::AlignLeft | Qt::AlignVCenter, text());
  painter.setFont(small);
  QRectF plate(left + wordsWidth + kGap + 0.5, 0, keyWidth, QFontMetrics(small).height() + 1);
  plate.moveTop((height() - static_cast<int>(plate.height())) / 2 + 0.5);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(face.text, 1));
  painter.drawRoundedRect(plate, 3, 3);
  painter.drawText(plate, Qt::AlignCenter, key);
}

} // namespace hooptab
