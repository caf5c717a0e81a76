#include "setup/TeamBand.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QPainter>
#include <QStyleOptionButton>

namespace hooptab {

namespace {

constexpr int kCardRadius = 8;
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

TeamBand::TeamBand(int caption, BandChoice& choice, QWidget* parent)
    : QWidget(parent), m_side(new PlainLabel(this)), m_name(new ElidedLabel(this)) {
  const Measure& measure = Theme::measure();
  setTextNumber(*m_side, caption);
  m_side->setFont(Theme::font(Type::Small));
  m_name->setFont(Theme::font(Type::Title));
  choice.setFont(Theme::font(Type::Small));
  auto* head = new QHBoxLayout;
  head->addWidget(m_side, 1);
  head->addWidget(&choice);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(measure(12), measure(4), measure(8), measure(4));
  layout->setSpacing(0);
  layout->addLayout(head);
  layout->addWidget(m_name);
}

void TeamBand::showTeam(const QString& name, const QColor& colour) {
  m_name->setText(name);
  m_colour = colour.isValid() ? colour : Theme::look().raised;
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, colour.isValid() ? textOn(colour) : Theme::look().ink);
  setPalette(colours);
  update();
}

void TeamBand::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect());
  painter.setPen(outlineOf(m_colour, Theme::look().surface));
  painter.setBrush(m_colour);
  // Round above, where the card is.
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, kCardRadius), kCardRadius, kCardRadius);
  painter.fillRect(QRect(0, height() - 1, width(), 1), outlineOf(m_colour, Theme::look().surface));
}

} // namespace hooptab
