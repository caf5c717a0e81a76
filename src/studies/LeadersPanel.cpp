#include "studies/LeadersPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "season/SeasonTables.h"
#include "studies/MinimumBox.h"
#include "studies/ViewSwitch.h"

#include <QBoxLayout>
#include <QSignalBlocker>
#include <QSplitter>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kGap = 12;

// What most look for first.
int pointsColumn() {
  return seasonColumn("PTS").index;
}

} // namespace

LeadersPanel::LeadersPanel(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_switch(new ViewSwitch(this)),
      m_minimum(new MinimumBox(this)), m_rule(new PlainLabel(this)), m_title(new PlainLabel(this)),
      m_first(new SeasonTableView(QStringLiteral("lvwFIRST"), 0, this)),
      m_leaders(new SeasonTableView(QStringLiteral("lvwLEADERS"), 0, this)), m_column(pointsColumn()) {
  m_title->setObjectName(QStringLiteral("lblSTATISTIC"));
  QFont bold = m_title->font();
  bold.setBold(true);
  m_title->setFont(bold);
  setAccessibleNumber(*m_first, Text::LeadersTab);
  setAccessibleNumber(*m_leaders, Text::LeadersTab);
  auto* head = new QHBoxLayout;
  head->addWidget(m_title);
  m_rule->setObjectName(QStringLiteral("lblMINIMUM"));
  m_rule->setForegroundRole(QPalette::PlaceholderText);
  head->addStretch();
  head->addWidget(m_minimum);
  head->addSpacing(kGap);
  head->addWidget(m_switch);
  auto* parts = new QSplitter(Qt::Horizontal, this);
  parts->setObjectName(QStringLiteral("leaderParts"));
  parts->addWidget(m_first);
  parts->addWidget(m_leaders);
  parts->setChildrenCollapsible(false);
  parts->setSizes({560, 640});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(parts, 1);
  layout->addWidget(m_rule);

  connect(m_switch, &ViewSwitch::viewChosen, this, [this] {
    showFirst();
    showLeaders();
  });
  connect(m_minimum, &MinimumBox::minimumChanged, this, &LeadersPanel::minimumChosen);
  connect(m_first, &SeasonTableView::currentRowChanged, this, [this](int row) {
    if (row < 0)
      return;
    m_column = m_season->leaders(m_switch->view()).statistics()[static_cast<std::size_t>(row)].column;
    showLeaders();
  });
  connect(m_leaders, &SeasonTableView::rowAsked, this, [this](int row) {
    const auto& leaders = m_season->leaders(m_switch->view()).statistics()[statistic()].leaders;
    emit personAsked(*leaders[static_cast<std::size_t>(row)].row);
  });
}

void LeadersPanel::showSeason(std::shared_ptr<const Season> season) {
  m_season = std::move(season);
  m_column = pointsColumn();
  showFirst();
  showLeaders();
}

void LeadersPanel::showMinimum(const Qualification& minimum, std::shared_ptr<const Season> season) {
  m_minimum->showMinimum(minimum);
  m_season = std::move(season);
  showFirst();
  showLeaders();
}

SeasonView LeadersPanel::view() const {
  return m_switch->view();
}

// Where a view lacks the statistic that is chosen, its points are shown, and the choice waits for another
// view.
std::size_t LeadersPanel::statistic() const {
  const auto statistics = m_season->leaders(m_switch->view()).statistics();
  auto found = std::ranges::find(statistics, m_column, &StatisticLeaders::column);
  if (found == statistics.end())
    found = std::ranges::find(statistics, pointsColumn(), &StatisticLeaders::column);
  return static_cast<std::size_t>(found - statistics.begin());
}

void LeadersPanel::relabelPanel() {
  m_first->showColumns(firstLeaderColumns(m_texts));
  m_leaders->showColumns(leaderColumns(m_texts));
  m_minimum->relabelBox(m_texts);
  showTitle();
}

void LeadersPanel::showFirst() {
  m_first->showRows(m_season == nullptr ? TableRows()
                                        : firstLeaderRows(m_season, m_switch->view(), m_settings, m_texts));
  if (m_season != nullptr) {
    const auto chosen = static_cast<int>(statistic());
    const QSignalBlocker noChoice(m_first);
    m_first->setCurrentIndex(m_first->content().index(m_first->content().shownRow(chosen), 0));
  }
}

void LeadersPanel::showLeaders() {
  m_leaders->showRows(m_season == nullptr ? TableRows()
                                          : leaderRows(m_season, m_switch->view(), statistic(), m_texts));
  showTitle();
}

void LeadersPanel::showTitle() {
  m_rule->setText(toQt(minimumWords(m_minimum->minimum(), m_switch->view(), m_texts)));
  if (m_season == nullptr)
    return m_title->setText(caption(m_texts, Text::NotGenerated));
  const int column = m_season->leaders(m_switch->view()).statistics()[statistic()].column;
  m_title->setText(statisticName(column, m_settings, m_texts, m_season->statistics().labels()));
  setExportTitle(*m_leaders, m_title->text());
}

} // namespace hooptab
