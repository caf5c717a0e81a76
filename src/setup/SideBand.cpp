#include "setup/SideBand.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QPainter>
#include <QStyleOptionButton>

namespace hooptab {

namespace {

constexpr int kFocusWidth = 2;

} // namespace

void BandChoice::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const bool isFocused = option.state.testFlag(QStyle::State_HasFocus);
  option.state &= ~QStyle::State_HasFocus;
  style()->drawControl(QStyle::CE_RadioButton, &option, &painter, this);
  if (!isFocused)
    return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::WindowText), kFocusWidth));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}

SideBand::SideBand(Text caption, BandChoice& choice, QWidget* parent)
    : ColourBand(parent), m_side(new PlainLabel(this)), m_name(new ElidedLabel(this)) {
  const Measure& measure = Theme::measure();
  setTextNumber(*m_side, caption);
  Theme::setType(*m_side, Type::Small);
  Theme::setType(*m_name, Type::Title);
  Theme::setType(choice, Type::Small);
  auto* head = new QHBoxLayout;
  head->addWidget(m_side, 1);
  head->addWidget(&choice);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(measure(12), measure(4), measure(8), measure(4));
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addWidget(m_name);
}

void SideBand::showTeam(const QString& name, const QColor& colour) {
  m_name->setText(name);
  setColour(colour);
}

} // namespace hooptab
