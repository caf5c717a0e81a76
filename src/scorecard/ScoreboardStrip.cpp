#include "scorecard/ScoreboardStrip.h"

#include "appearance/Card.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "scorecard/LeadGrid.h"
#include "scorecard/PeriodGrid.h"
#include "scorecard/TeamPlate.h"

#include <QBoxLayout>

namespace hooptab {

namespace {

constexpr int kPlateWidth = 150;
constexpr int kGap = 8;
constexpr int kPartGap = 18;
constexpr int kInset = 12;

} // namespace

ScoreboardStrip::ScoreboardStrip(QWidget* parent)
    : QWidget(parent), m_plates{new TeamPlate(Side::Visitor, this), new TeamPlate(Side::Home, this)},
      m_clock(new PlainLabel(this)), m_period(new PlainLabel(this)), m_status(new PlainLabel(this)),
      m_points(new PeriodGrid(PeriodGrid::Content::Points, QStringLiteral("lblPOINTS"), Text::None, this)),
      m_fouls(new PeriodGrid(PeriodGrid::Content::Fouls, QStringLiteral("lblFOULS"), Text::TeamFouls, this)),
      m_lead(new LeadGrid(this)) {
  m_clock->setObjectName(QStringLiteral("lbltemps"));
  Theme::setType(*m_clock, Type::Name);
  m_clock->setText(QStringLiteral("00:00"));
  setToolTipNumber(*m_clock, Text::LastClock);
  setToolTipNumber(*m_points, Text::PointsByPeriod);
  setToolTipNumber(*m_fouls, Text::TeamFoulsHint);
  m_period->setObjectName(QStringLiteral("lblPERIODE"));
  m_status->setObjectName(QStringLiteral("lblSTATUS"));
  Theme::setType(*m_status, Type::Body, QFont::DemiBold);

  auto* middle = new Card(this);
  auto* state = new QVBoxLayout;
  state->setSpacing(0);
  state->addStretch();
  for (QLabel* label : {m_status, m_period, m_clock})
    state->addWidget(label);
  state->addStretch();
  auto* parts = new QHBoxLayout(middle);
  parts->setContentsMargins(kInset, 1, kInset, 1);
  parts->setSpacing(kPartGap);
  parts->addLayout(state);
  parts->addWidget(m_points);
  parts->addWidget(m_fouls);
  parts->addWidget(m_lead);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  for (TeamPlate* plate : m_plates)
    plate->setMinimumWidth(kPlateWidth);
  layout->addWidget(m_plates[Side::Visitor], 1);
  layout->addWidget(middle);
  layout->addWidget(m_plates[Side::Home], 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ScoreboardStrip::showBoard(const Scoreboard& board, const Texts& texts) {
  for (const Side team : kSides)
    m_plates[team]->showTeam(board.teams[team],
                             caption(texts, team == Side::Visitor ? Text::Visitor : Text::Home));
  m_clock->setText(toQt(board.clock));
  m_period->setText(toQt(texts.withPlaceholder(Text::PeriodNumber, board.period)));
  m_status->setText(caption(texts, board.isFinished ? Text::Final : Text::InProgress));
  m_points->showPeriods(board);
  m_fouls->showPeriods(board);
  m_lead->showLead(board, texts);
}

} // namespace hooptab
