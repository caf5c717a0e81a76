#include "scorecard/TeamPlate.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QGridLayout>

namespace hooptab {

TeamPlate::TeamPlate(Side team, Text side, QWidget* parent)
    : QWidget(parent), m_side(new PlainLabel(this)), m_name(new ElidedLabel(this)),
      m_abbreviation(new ElidedLabel(this)), m_score(new PlainLabel(this)) {
  setObjectName(QStringLiteral("plate(%1)").arg(numberOf(team)));
  setAutoFillBackground(true);
  setTextNumber(*m_side, side);
  m_score->setObjectName(QStringLiteral("lblSCORE(%1)").arg(numberOf(team)));
  Theme::setType(*m_score, Type::Score);
  Theme::setType(*m_abbreviation, Type::Title, QFont::Bold);

  // The scores stand next to the clock, the names outside.
  const Qt::Alignment outside = team == Side::Visitor ? Qt::AlignLeft : Qt::AlignRight;
  for (QLabel* label : {m_side, static_cast<QLabel*>(m_name), m_abbreviation})
    label->setAlignment(outside | Qt::AlignVCenter);
  m_score->setAlignment(Qt::AlignCenter);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(12, 4, 12, 4);
  layout->setVerticalSpacing(0);
  layout->setHorizontalSpacing(8);
  const int names = team == Side::Visitor ? 0 : 1;
  layout->addWidget(m_side, 0, names);
  layout->addWidget(m_abbreviation, 1, names);
  layout->addWidget(m_name, 2, names);
  layout->addWidget(m_score, 0, 1 - names, 3, 1);
  layout->setColumnStretch(names, 1);
}

void TeamPlate::showTeam(const Scoreboard::Team& team) {
  const QColor colour = colourOf(team.colour);
  QPalette own = palette();
  own.setColor(QPalette::Window, colour);
  own.setColor(QPalette::WindowText, textOn(colour));
  setPalette(own);
  // Under a style sheet children do not take over the colours of their parent.
  for (QLabel* label : {m_side, static_cast<QLabel*>(m_name), m_abbreviation, m_score})
    label->setPalette(own);
  m_abbreviation->setText(toQt(team.abbreviation));
  m_name->setText(toQt(team.name));
  m_score->setText(QString::number(team.points));
}

} // namespace hooptab
