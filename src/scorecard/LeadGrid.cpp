#include "scorecard/LeadGrid.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QGridLayout>

namespace hooptab {

namespace {

constexpr int kTied = static_cast<int>(LeadState::Tied);
constexpr std::array<int, 3> kOrder = {0, kTied, 1}; // the tie between the two teams

} // namespace

LeadGrid::LeadGrid(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("lead"));
  setToolTipNumber(*this, Text::TimeInLeadHint);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setHorizontalSpacing(10);
  layout->setVerticalSpacing(0);
  for (std::size_t place = 0; place < kOrder.size(); ++place) {
    const int state = kOrder[place];
    Row& row = m_rows[static_cast<std::size_t>(state)];
    row = {new ElidedLabel(this), new PlainLabel(this), new PlainLabel(this)};
    row.time->setObjectName(QStringLiteral("lblLEAD(%1)").arg(state));
    row.times->setObjectName(QStringLiteral("lblLEADTIMES(%1)").arg(state));
    Theme::setType(*row.time, Type::Name);
    Theme::setType(*row.times, Type::Name, QFont::Normal);
    row.time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.times->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    int column = 0;
    for (QLabel* label : {row.name, row.time, row.times})
      layout->addWidget(label, static_cast<int>(place), column++);
  }
  layout->setRowStretch(3, 1);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
}

void LeadGrid::showLead(const Scoreboard& board, const Texts& texts) {
  for (std::size_t state = 0; state < m_rows.size(); ++state) {
    const std::optional<Side> leader = sideOf(static_cast<int>(state));
    m_rows[state].name->setText(leader ? toQt(board.teams[*leader].abbreviation)
                                       : caption(texts, Text::LeadTied));
    m_rows[state].time->setText(board.hasTime ? toQt(board.leads[state].time) : QStringLiteral("--:--"));
    m_rows[state].times->setText(u'×' + QString::number(board.leads[state].times));
  }
}

} // namespace hooptab
