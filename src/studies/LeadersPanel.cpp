#include "studies/LeadersPanel.h"

#include "appearance/ElidedLabel.h"
#include "appearance/relabel.h"
#include "season/FilterRow.h"
#include "season/SeasonTables.h"
#include "studies/LeaderCards.h"
#include "studies/MinimumBox.h"
#include "studies/ViewSwitch.h"

#include <QBoxLayout>
#include <QSignalBlocker>
#include <QSplitter>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kGap = 12;

constexpr ChoiceSwitch::Button kForms[] = {{"cmdASCARDS", Text::LeadersAsCards},
                                           {"cmdASTABLE", Text::LeadersAsTable}};

// What most look for first.
int pointsColumn() {
  return seasonColumn("PTS").index;
}

} // namespace

LeadersPanel::LeadersPanel(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_form(new ChoiceSwitch(kForms, this)),
      m_switch(new ViewSwitch(this)), m_minimum(new MinimumBox(this)), m_rule(new ElidedLabel(this)),
      m_title(new ElidedLabel(this)), m_cards(new LeaderCards(settings, texts, this)),
      m_tables(new QSplitter(Qt::Horizontal, this)),
      m_first(new SeasonTableView(QStringLiteral("lvwFIRST"), 0, this)),
      m_leaders(new SeasonTableView(QStringLiteral("lvwLEADERS"), 0, this)), m_column(pointsColumn()) {
  m_title->setObjectName(QStringLiteral("lblSTATISTIC"));
  QFont bold = m_title->font();
  bold.setBold(true);
  m_title->setFont(bold);
  setAccessibleNumber(*m_first, Text::LeadersTab);
  setAccessibleNumber(*m_leaders, Text::LeadersTab);
  auto* head = new QHBoxLayout;
  head->addWidget(m_form);
  head->addSpacing(kGap);
  head->addWidget(m_title, 1);
  head->addStretch(); // where cards have titles of their own
  head->addWidget(m_switch);
  m_rule->setObjectName(QStringLiteral("lblMINIMUM"));
  m_rule->setForegroundRole(QPalette::PlaceholderText);
  m_rule->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* counted = new QHBoxLayout;
  counted->addWidget(m_minimum);
  counted->addSpacing(kGap);
  counted->addWidget(m_rule, 1);
  m_tables->setObjectName(QStringLiteral("leaderParts"));
  m_tables->addWidget(withFilters(*m_first, 0, m_texts, m_tables));
  m_tables->addWidget(withFilters(*m_leaders, 0, m_texts, m_tables));
  m_tables->setChildrenCollapsible(false);
  m_tables->setSizes({560, 640});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addLayout(counted);
  layout->addWidget(m_cards, 1);
  layout->addWidget(m_tables, 1);
  showForm();

  connect(m_form, &ChoiceSwitch::chosen, this, &LeadersPanel::showForm);
  connect(m_switch, &ViewSwitch::viewChosen, this, &LeadersPanel::showAll);
  connect(m_cards, &LeaderCards::personAsked, this, &LeadersPanel::personAsked);
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
  showAll();
}

void LeadersPanel::showMinimum(const Qualification& minimum, std::shared_ptr<const Season> season) {
  m_minimum->showMinimum(minimum);
  m_season = std::move(season);
  showAll();
}

void LeadersPanel::showAll() {
  m_cards->showLeaders(m_season, m_switch->view());
  showFirst();
  showLeaders();
}

bool LeadersPanel::areCards() const {
  return m_form->choice() == 0;
}

void LeadersPanel::showAsCards(bool areCards) {
  m_form->choose(areCards ? 0 : 1);
}

void LeadersPanel::showForm() {
  m_cards->setVisible(areCards());
  m_tables->setVisible(!areCards());
  showTitle();
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
  m_cards->showLeaders(m_season, m_switch->view());
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
  m_title->setVisible(m_season == nullptr || !areCards());
  m_rule->setText(toQt(minimumWords(m_minimum->minimum(), m_switch->view(), m_texts)));
  if (m_season == nullptr)
    return m_title->setText(caption(m_texts, Text::NotGenerated));
  const int column = m_season->leaders(m_switch->view()).statistics()[statistic()].column;
  m_title->setText(statisticName(column, m_settings, m_texts, m_season->statistics().labels()));
  setExportTitle(*m_leaders, m_title->text());
}

} // namespace hooptab
