#include "live/LiveNotices.h"

#include "appearance/NoticeStrip.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/WriteRetry.h"
#include "events/MessageLine.h"
#include "live/LostStopStrip.h"

#include <QBoxLayout>

namespace hooptab {

namespace {

constexpr int kGap = 4;

} // namespace

LiveNotices::LiveNotices(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_notOnDisk(new PlainLabel(this)), m_foreign(new NoticeStrip("picFOREIGN", this)),
      m_lostStop(new LostStopStrip(texts, this)), m_message(new MessageLine(parent)) {
  m_notOnDisk->setObjectName(QStringLiteral("lblNOTONDISK"));
  m_notOnDisk->setAutoFillBackground(true);
  m_notOnDisk->setAlignment(Qt::AlignCenter);
  m_notOnDisk->setWordWrap(true);
  m_notOnDisk->setContentsMargins(2 * kGap, kGap, 2 * kGap, kGap);
  m_notOnDisk->hide();
  m_lostStop->hide();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  for (QWidget* part : {static_cast<QWidget*>(m_lostStop), static_cast<QWidget*>(m_notOnDisk),
                        static_cast<QWidget*>(m_foreign)})
    layout->addWidget(part);
  connect(m_foreign, &NoticeStrip::dismissed, this, &LiveNotices::place);
  connect(m_message, &MessageLine::changed, m_message, &QWidget::raise);
  connect(m_lostStop, &LostStopStrip::clockChosen, this, [this](int seconds) {
    m_lostStop->hide();
    place();
    emit clockChosen(seconds);
  });
  hide();
}

void LiveNotices::showNotOnDisk(const QString& words, const QString& reason) {
  m_notOnDisk->setText(words);
  showReason(*m_notOnDisk, reason);
  m_notOnDisk->setVisible(!words.isEmpty());
  place();
}

void LiveNotices::tellForeign(const QString& words) {
  m_foreign->tell(words);
  place();
}

void LiveNotices::offerClock(const LostStop& lost, bool wasClosed) {
  m_lostStop->offer(lost, wasClosed);
}

void LiveNotices::showLostStop(bool isLost) {
  if (isLost == !m_lostStop->isHidden())
    return;
  m_lostStop->setVisible(isLost);
  place();
}

void LiveNotices::forget() {
  m_foreign->hide();
  m_message->withdraw();
  place();
}

void LiveNotices::relabelNotices() {
  m_lostStop->relabelPanel();
  place();
}

void LiveNotices::applyColours() {
  QPalette colours = m_notOnDisk->palette();
  colours.setColor(QPalette::Window, Theme::missed());
  colours.setColor(QPalette::WindowText, textOn(Theme::missed()));
  m_notOnDisk->setPalette(colours);
  m_foreign->applyColours();
  m_lostStop->applyColours();
  m_message->applyColours();
}

void LiveNotices::placeIn(const QRect& column, const QRect& line) {
  m_column = column;
  m_message->setGeometry(line);
  place();
}

void LiveNotices::place() {
  bool isAny = false;
  for (const QWidget* part : {static_cast<QWidget*>(m_lostStop), static_cast<QWidget*>(m_notOnDisk),
                              static_cast<QWidget*>(m_foreign)})
    isAny = isAny || !part->isHidden();
  setVisible(isAny);
  layout()->invalidate();
  const int high = layout()->totalHeightForWidth(m_column.width());
  setGeometry(m_column.left(), m_column.bottom() + 1 - high, m_column.width(), high);
  raise();
}

} // namespace hooptab
