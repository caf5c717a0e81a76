#include "live/LostStopStrip.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/Module1.h"

#include <QBoxLayout>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr int kGap = 6;

} // namespace

LostStopStrip::LostStopStrip(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_text(new PlainLabel(this)), m_last(makeButton("cmdLASTCLOCK")),
      m_runOn(makeButton("cmdRUNONCLOCK")) {
  setObjectName(QStringLiteral("picLOSTSTOP"));
  setAutoFillBackground(true);
  m_text->setObjectName(QStringLiteral("lblLOSTSTOP"));
  m_text->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->setSpacing(kGap / 2);
  for (QWidget* part :
       {static_cast<QWidget*>(m_text), static_cast<QWidget*>(m_last), static_cast<QWidget*>(m_runOn)})
    layout->addWidget(part);
  connect(m_last, &QPushButton::clicked, this, [this] { emit clockChosen(m_lost.lastClock); });
  connect(m_runOn, &QPushButton::clicked, this, [this] { emit clockChosen(*m_lost.runOnClock); });
}

QPushButton* LostStopStrip::makeButton(const char* name) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void LostStopStrip::offer(const LostStop& lost, bool wasClosed) {
  m_lost = lost;
  m_wasClosed = wasClosed;
  m_runOn->setVisible(lost.runOnClock.has_value());
  relabelPanel();
}

void LostStopStrip::relabelPanel() {
  const auto clock = [this](Text text, int seconds) {
    return toQt(m_texts.withPlaceholder(text, Module1::clockText(seconds)));
  };
  const Text ran = m_wasClosed ? Text::WasClosed : Text::ClockRan;
  m_text->setText(caption(m_texts, m_lost.isPeriodOver ? Text::PeriodOver : ran));
  m_last->setText(clock(Text::LastEventClock, m_lost.lastClock));
  m_runOn->setText(clock(Text::RunOnClock, m_lost.runOnClock.value_or(0)));
}

void LostStopStrip::applyColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, Theme::accent());
  m_text->setForegroundRole(QPalette::WindowText);
  colours.setColor(QPalette::WindowText, textOn(Theme::accent()));
  setPalette(colours);
}

} // namespace hooptab
