#include "teams/TeamBand.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"

#include <QBoxLayout>
#include <QPainter>

namespace hooptab {

namespace {

constexpr double kRadius = 8; // of the card that it is the head of

} // namespace

TeamBand::TeamBand(QWidget* parent)
    : QWidget(parent), m_abbreviation(new ElidedLabel(this)), m_name(new ElidedLabel(this)),
      m_layout(new QHBoxLayout(this)) {
  setObjectName(QStringLiteral("band"));
  m_layout->addWidget(m_abbreviation);
  m_layout->addWidget(m_name, 1);
}

void TeamBand::showTeam(const QString& abbreviation, const QString& name) {
  m_abbreviation->setText(abbreviation);
  m_abbreviation->setMinimumWidth(m_abbreviation->fontMetrics().horizontalAdvance(abbreviation) + 2);
  m_name->setText(name);
}

void TeamBand::setColour(const QColor& colour) {
  m_colour = colour;
  const Measure& measure = Theme::measure();
  const int side = measure(14);
  m_layout->setContentsMargins(side, measure(6), side, measure(6));
  m_layout->setSpacing(measure(14));
  m_abbreviation->setFont(Theme::font(Type::Title, QFont::Bold));
  m_name->setFont(Theme::font(Type::Count));
  QPalette own = Theme::palette(Theme::current());
  own.setColor(QPalette::WindowText, textOn(colour));
  for (QLabel* label : {m_abbreviation, m_name})
    label->setPalette(own);
  showTeam(m_abbreviation->text(), m_name->text());
  update();
}

void TeamBand::addButton(QWidget& button) {
  m_layout->addWidget(&button);
}

// Round above alone: the card goes on below.
void TeamBand::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(rect());
  painter.setBrush(m_colour);
  painter.setPen(outlineOf(m_colour, Theme::look().desk));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, kRadius), kRadius, kRadius);
}

} // namespace hooptab
