#include "scorecard/ScoreboardStrip.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "scorecard/LeadGrid.h"
#include "scorecard/PeriodGrid.h"
#include "scorecard/TeamPlate.h"

#include <QBoxLayout>
#include <QFrame>

namespace hooptab {

namespace {

constexpr int kPlateWidth = 190;
constexpr int kWidestPlate = 440;
constexpr int kGap = 18;

} // namespace

ScoreboardStrip::ScoreboardStrip(QWidget* parent)
    : QWidget(parent), m_plates{new TeamPlate(Side::Visitor, Text::Visitor, this),
                                new TeamPlate(Side::Home, Text::Home, this)},
      m_clock(new PlainLabel(this)), m_period(new PlainLabel(this)), m_status(new PlainLabel(this)),
      m_points(new PeriodGrid(PeriodGrid::Content::Points, QStringLiteral("lblPOINTS"), Text::PointsByPeriod,
                              this)),
      m_fouls(new PeriodGrid(PeriodGrid::Content::Fouls, QStringLiteral("lblFOULS"), Text::TeamFouls, this)),
      m_lead(new LeadGrid(this)) {
  m_clock->setObjectName(QStringLiteral("lbltemps"));
  Theme::setType(*m_clock, Type::Points);
  m_clock->setText(QStringLiteral("00:00"));
  setToolTipNumber(*m_clock, Text::LastClock);
  setToolTipNumber(*m_fouls, Text::TeamFoulsHint);
  m_period->setObjectName(QStringLiteral("lblPERIODE"));
  m_status->setObjectName(QStringLiteral("lblSTATUS"));
  m_status->setForegroundRole(QPalette::PlaceholderText);

  auto* middle = new QVBoxLayout;
  middle->setSpacing(0);
  middle->addStretch();
  for (QLabel* label : {m_period, m_clock, m_status}) {
    label->setAlignment(Qt::AlignCenter);
    middle->addWidget(label);
  }
  middle->addStretch();

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  for (TeamPlate* plate : m_plates) {
    plate->setMinimumWidth(kPlateWidth);
    plate->setMaximumWidth(kWidestPlate);
  }
  layout->addWidget(m_plates[Side::Visitor], 1);
  layout->addLayout(middle);
  layout->addWidget(m_plates[Side::Home], 1);
  layout->addStretch();
  layout->addWidget(m_points);
  layout->addWidget(m_fouls);
  layout->addWidget(m_lead);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ScoreboardStrip::showBoard(const Scoreboard& board, const Texts& texts) {
  for (const Side team : kSides)
    m_plates[team]->showTeam(board.teams[team]);
  m_clock->setText(toQt(board.clock));
  m_period->setText(toQt(texts.withPlaceholder(Text::PeriodNumber, board.period)));
  m_status->setText(caption(texts, board.isFinished ? Text::Final : Text::InProgress));
  m_points->showPeriods(board);
  m_fouls->showPeriods(board);
  m_lead->showLead(board, texts);
}

} // namespace hooptab
