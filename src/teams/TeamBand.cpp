#include "teams/TeamBand.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"

#include <QBoxLayout>

namespace hooptab {

TeamBand::TeamBand(QWidget* parent)
    : ColourBand(parent), m_abbreviation(new ElidedLabel(this)), m_name(new ElidedLabel(this)),
      m_layout(new QHBoxLayout(this)) {
  setObjectName(QStringLiteral("band"));
  Theme::setType(*m_abbreviation, Type::Title, QFont::Bold);
  Theme::setType(*m_name, Type::Count);
  m_layout->addWidget(m_abbreviation);
  m_layout->addWidget(m_name, 1);
}

void TeamBand::showTeam(const QString& abbreviation, const QString& name) {
  m_abbreviation->setText(abbreviation);
  m_abbreviation->setMinimumWidth(m_abbreviation->fontMetrics().horizontalAdvance(abbreviation) + 2);
  m_name->setText(name);
}

void TeamBand::applyMeasure() {
  const Measure& measure = Theme::measure();
  const int side = measure(14);
  m_layout->setContentsMargins(side, measure(6), side, measure(6));
  m_layout->setSpacing(measure(14));
  showTeam(m_abbreviation->text(), m_name->text());
}

void TeamBand::addButton(QWidget& button) {
  m_layout->addWidget(&button);
}

} // namespace hooptab
