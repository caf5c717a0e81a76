#include "review/PeriodFilter.h"

#include "appearance/relabel.h"
#include "review/SegmentButton.h"
#include "review/StretchChip.h"

#include <QHBoxLayout>

namespace hooptab {

namespace {

constexpr std::size_t kMostPeriods = GameState::kPeriodRows - 1; // the last one is for all from there on

} // namespace

PeriodFilter::PeriodFilter(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_chip(new StretchChip(this)),
      m_whole(new SegmentButton(SegmentButton::Place::First, this)) {
  m_chip->setObjectName(QStringLiteral("cmdSTRETCH"));
  m_chip->hide();
  m_whole->setObjectName(QStringLiteral("cmdWHOLE"));
  setTextNumber(*m_whole, Text::WholeGame);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_chip);
  layout->addSpacing(8);
  layout->addWidget(m_whole);
  for (std::size_t i = 0; i < kMostPeriods; ++i) {
    auto* button = new SegmentButton(SegmentButton::Place::Middle, this);
    button->setObjectName(QStringLiteral("cmdPERIOD(%1)").arg(i + 1));
    setToolTipNumber(*button, Text::PeriodFilterTip);
    button->hide();
    layout->addWidget(button);
    m_periods.push_back(button);
    connect(button, &QAbstractButton::clicked, this, [this, i] { emit asked(stretchOf(i + 1)); });
  }
  connect(m_whole, &QAbstractButton::clicked, this, [this] { emit asked(std::nullopt); });
  connect(m_chip, &QAbstractButton::clicked, this, [this] { emit asked(std::nullopt); });
}

Stretch PeriodFilter::stretchOf(std::size_t period) {
  const auto number = static_cast<int>(period);
  return Stretch::ofPeriods(number, period == kMostPeriods ? kLastPeriod : number);
}

void PeriodFilter::showPeriods(const Scoreboard& board) {
  for (std::size_t i = 0; i < m_periods.size(); ++i) {
    const bool isThere = i < board.periods.size();
    m_periods[i]->setVisible(isThere);
    if (!isThere)
      continue;
    m_periods[i]->setText(toQt(board.periods[i].label));
    m_periods[i]->setAccessibleName(
        toQt(m_texts.withPlaceholder(Text::PeriodNumber, board.periods[i].label)));
    m_periods[i]->setEnabled(board.periods[i].isPlayed);
    m_periods[i]->setPlace(i + 1 == board.periods.size() ? SegmentButton::Place::Last
                                                         : SegmentButton::Place::Middle);
  }
}

void PeriodFilter::showStretch(const std::optional<Stretch>& stretch, const QString& words) {
  m_whole->setChecked(!stretch);
  for (std::size_t i = 0; i < m_periods.size(); ++i)
    m_periods[i]->setChecked(stretch == stretchOf(i + 1));
  m_chip->setVisible(stretch.has_value());
  m_chip->setText(words);
  m_chip->setToolTip(words + u'\n' + caption(m_texts, Text::StretchClear));
  m_chip->setAccessibleDescription(caption(m_texts, Text::StretchClear));
  m_chip->updateGeometry();
}

} // namespace hooptab
