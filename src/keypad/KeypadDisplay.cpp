#include "keypad/KeypadDisplay.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"

#include <QApplication>
#include <QBoxLayout>
#include <QPainter>

#include <chrono>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr auto kFlash = 350ms;
constexpr auto kReading = 4s;
constexpr int kMargin = 8;

} // namespace

KeypadDisplay::KeypadDisplay(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("KeypadDisplay"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAutoFillBackground(true);
  m_typed = new PlainLabel(this);
  m_typed->setObjectName(QStringLiteral("txtACTION"));
  Theme::setType(*m_typed, Type::Points);
  m_words = new PlainLabel(this);
  m_words->setObjectName(QStringLiteral("lblACTION"));
  Theme::setType(*m_words, Type::Count, QFont::Bold);
  m_words->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(m_typed);
  layout->addWidget(m_words);
  layout->addStretch();
  m_end.setSingleShot(true);
  m_end.setInterval(kReading);
  connect(&m_end, &QTimer::timeout, this, &KeypadDisplay::clear);
  m_flash.setSingleShot(true);
  m_flash.setInterval(kFlash);
  connect(&m_flash, &QTimer::timeout, this,
          [this] { paintIn(QApplication::palette().color(QPalette::Base)); });
  hide();
}

void KeypadDisplay::show(const QString& typed, const QString& words, Tone tone, bool flashes) {
  m_typed->setText(typed);
  m_typed->setVisible(!typed.isEmpty());
  m_words->setText(words);
  setAccessibleName(words);
  m_flash.stop();
  m_end.stop();
  const bool isFlash = flashes && tone != Tone::Plain;
  paintIn(!isFlash                 ? QApplication::palette().color(QPalette::Base)
          : tone == Tone::Recorded ? Theme::made()
                                   : Theme::missed());
  if (isFlash)
    m_flash.start();
  if (typed.isEmpty())
    m_end.start();
  // As wide as the parent, as high as the words need, and never past its end.
  const int width = parentWidget()->width();
  const int height = layout()->totalHeightForWidth(width);
  setGeometry(0, 0, width, std::min(height, parentWidget()->height()));
  raise();
  setVisible(!typed.isEmpty() || !words.isEmpty());
}

void KeypadDisplay::clear() {
  m_flash.stop();
  m_end.stop();
  m_typed->clear();
  m_words->clear();
  hide();
}

void KeypadDisplay::paintIn(const QColor& background) {
  QPalette colours = QApplication::palette();
  colours.setColor(QPalette::Window, background);
  colours.setColor(QPalette::WindowText, textOn(background));
  setPalette(colours);
}

void KeypadDisplay::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  QPainter painter(this);
  painter.setPen(QPen(Theme::accent(), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

} // namespace hooptab
