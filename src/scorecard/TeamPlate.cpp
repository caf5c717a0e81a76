#include "scorecard/TeamPlate.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QGridLayout>
#include <QPainter>

namespace hooptab {

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 8;
constexpr double kRadius = 8;

} // namespace

TeamPlate::TeamPlate(Side team, QWidget* parent)
    : QWidget(parent), m_name(new ElidedLabel(this)), m_side(new ElidedLabel(this)),
      m_score(new PlainLabel(this)) {
  setObjectName(QStringLiteral("plate(%1)").arg(numberOf(team)));
  m_score->setObjectName(QStringLiteral("lblSCORE(%1)").arg(numberOf(team)));
  Theme::setType(*m_score, Type::Score);
  Theme::setType(*m_name, Type::Title, QFont::Bold);
  Theme::setType(*m_side, Type::Small);

  // The scores stand next to the middle, the names outside.
  const Qt::Alignment outside = team == Side::Visitor ? Qt::AlignLeft : Qt::AlignRight;
  m_name->setAlignment(outside | Qt::AlignBottom);
  m_side->setAlignment(outside | Qt::AlignTop);
  m_score->setAlignment(Qt::AlignCenter);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(kMargin, 0, kMargin, 0);
  layout->setVerticalSpacing(0);
  layout->setHorizontalSpacing(kGap);
  const int names = team == Side::Visitor ? 0 : 1;
  layout->addWidget(m_name, 0, names);
  layout->addWidget(m_side, 1, names);
  layout->addWidget(m_score, 0, 1 - names, 2, 1);
  layout->setRowStretch(0, 3);
  layout->setRowStretch(1, 2);
  layout->setColumnStretch(names, 1);
}

void TeamPlate::showTeam(const Scoreboard::Team& team, const QString& side) {
  const QColor colour = colourOf(team.colour);
  QPalette own = palette();
  own.setColor(QPalette::Window, colour);
  own.setColor(QPalette::WindowText, textOn(colour));
  setPalette(own);
  // Under a style sheet children do not take over the colours of their parent.
  for (QLabel* label : {static_cast<QLabel*>(m_name), static_cast<QLabel*>(m_side), m_score})
    label->setPalette(own);
  m_name->setText(toQt(team.name.empty() ? team.abbreviation : team.name));
  m_side->setText(side + QStringLiteral(" · ") + toQt(team.abbreviation));
  m_score->setText(QString::number(team.points));
}

void TeamPlate::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = palette().color(QPalette::Window);
  painter.setBrush(colour);
  painter.setPen(outlineOf(colour, Theme::look().desk));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

} // namespace hooptab
