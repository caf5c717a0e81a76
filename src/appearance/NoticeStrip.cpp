#include "appearance/NoticeStrip.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kGap = 6;

} // namespace

NoticeStrip::NoticeStrip(const char* name, QWidget* parent)
    : QFrame(parent), m_text(new PlainLabel(this)), m_dismiss(new QToolButton(this)) {
  setObjectName(QLatin1String(name));
  setAutoFillBackground(true);
  m_text->setWordWrap(true);
  m_dismiss->setObjectName(QStringLiteral("cmdDISMISS"));
  m_dismiss->setText(QStringLiteral("✕"));
  m_dismiss->setAutoRaise(true);
  m_dismiss->setFocusPolicy(Qt::TabFocus);
  setToolTipNumber(*m_dismiss, Text::HideMessage);
  setAccessibleNumber(*m_dismiss, Text::HideMessage);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kGap, kGap / 3, kGap, kGap / 3);
  layout->setSpacing(kGap);
  layout->addWidget(m_text, 1);
  layout->addWidget(m_dismiss);
  connect(m_dismiss, &QToolButton::clicked, this, [this] {
    hide();
    emit dismissed();
  });
  hide();
}

void NoticeStrip::tell(const QString& text) {
  m_text->setText(text);
  show();
}

void NoticeStrip::applyColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, Theme::accent());
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText})
    colours.setColor(role, textOn(Theme::accent()));
  setPalette(colours);
}

} // namespace hooptab
