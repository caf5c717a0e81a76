#include "studies/MinimumBox.h"

#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace hooptab {

namespace {

constexpr Text kUnits[] = {Text::PercentOfGames, Text::MinutesAGame, Text::AttemptsAGame};
constexpr Text kHints[] = {Text::GamesMinimumTip, Text::MinutesMinimumTip, Text::AttemptsMinimumTip};

} // namespace

MinimumBox::MinimumBox(QWidget* parent) : QWidget(parent) {
  constexpr const char* kNames[] = {"txtMINGAMES", "txtMINMINUTES", "txtMINATTEMPTS"};
  constexpr int kMost[] = {Qualification::kMostPercent, Qualification::kMostMinutes,
                           Qualification::kMostAttempts};
  auto* label = new PlainLabel(this);
  setTextNumber(*label, Text::Minimum);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(label);
  for (std::size_t i = 0; i < m_fields.size(); ++i) {
    QSpinBox* field = m_fields[i] = new QSpinBox(this);
    field->setObjectName(QLatin1String(kNames[i]));
    field->setRange(0, kMost[i]);
    field->setKeyboardTracking(false); // a number is whole before it counts
    setAccessibleNumber(*field, kHints[i]);
    setToolTipNumber(*field, kHints[i]);
    layout->addWidget(field);
  }
  showMinimum({});
  for (QSpinBox* field : m_fields)
    connect(field, &QSpinBox::valueChanged, this, [this] { emit minimumChanged(minimum()); });
}

Qualification MinimumBox::minimum() const {
  return {m_fields[0]->value(), m_fields[1]->value(), m_fields[2]->value()};
}

void MinimumBox::showMinimum(const Qualification& minimum) {
  const int values[] = {minimum.gamesPercent, minimum.minutes, minimum.attempts};
  for (std::size_t i = 0; i < m_fields.size(); ++i) {
    const QSignalBlocker quiet(m_fields[i]);
    m_fields[i]->setValue(values[i]);
  }
}

void MinimumBox::relabelBox(const Texts& texts) {
  for (std::size_t i = 0; i < m_fields.size(); ++i)
    m_fields[i]->setSuffix(u' ' + caption(texts, kUnits[i]));
}

} // namespace hooptab
