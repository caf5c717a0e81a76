#include "review/AllColumnsPage.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "game/EventWords.h"
#include "scorecard/BoxTable.h"
#include "scorecard/ColumnWords.h"
#include "scorecard/LeagueSheet.h"
#include "scorecard/ShotChartPanel.h"
#include "settings/Settings.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>

namespace hooptab {

namespace {

// Shares of the page that its parts begin with.
constexpr int kTableShare = 1040;
constexpr int kChartShare = 320;
constexpr int kTeamWidth = 280;

constexpr std::size_t kLeagueSheet = 2; // among the tables
constexpr Text kTableTexts[] = {Text::SummaryByPlayer, Text::ByLine, Text::SummaryForLeague};
constexpr const char* kTableNames[] = {"lvwSTAT(0)", "lvwSTAT(1)", "lvwLEAGUE"};

Qt::CheckState checkState(ScorecardView::CheckMark mark) {
  switch (mark) {
  case ScorecardView::CheckMark::None: return Qt::Unchecked;
  case ScorecardView::CheckMark::Some: return Qt::PartiallyChecked;
  case ScorecardView::CheckMark::All: break;
  }
  return Qt::Checked;
}

} // namespace

AllColumnsPage::AllColumnsPage(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_view(texts),
      m_chart(new ShotChartPanel(settings, texts, this)), m_parts(new QSplitter(Qt::Horizontal, this)) {
  setObjectName(QStringLiteral("pageCOLUMNS"));
  m_parts->addWidget(makeTables());
  m_parts->addWidget(m_chart);
  m_parts->setStretchFactor(0, 2);
  m_parts->setStretchFactor(1, 1);
  m_parts->setSizes({kTableShare, kChartShare});
  m_parts->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_parts);
  connect(m_chart, &ShotChartPanel::scopeChosen, this, [this](ScorecardView::Scope scope) {
    m_view.setScope(scope);
    showTable();
    showChart();
  });
}

QWidget* AllColumnsPage::makeTables() {
  auto* panel = new QWidget(this);
  m_stack = new QStackedWidget(panel);
  for (std::size_t i = 0; i < m_tables.size(); ++i) {
    m_tables[i] = new BoxTable(QLatin1String(kTableNames[i]),
                               i == kLeagueSheet ? leagueTableColumns() : boxTableColumns(), m_stack);
    if (i != kLeagueSheet)
      m_tables[i]->setOrder(boxDisplayOrder());
    setAccessibleNumber(*m_tables[i], kTableTexts[i]);
    m_stack->addWidget(m_tables[i]);
    connect(m_tables[i], &BoxTable::checkAsked, this, [this](const BoxRow& row, bool isChecked) {
      m_view.check(row, isChecked);
      showTable();
      showChart();
    });
    connect(m_tables[i], &BoxTable::copied, this, &AllColumnsPage::copied);
  }
  makeHead(*panel);
  auto* head = new QHBoxLayout;
  head->addWidget(m_team);
  head->addWidget(m_league);
  head->addWidget(m_kind);
  head->addStretch();
  head->addWidget(m_copy);
  auto* layout = new QVBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(m_stack, 1);
  return panel;
}

void AllColumnsPage::makeHead(QWidget& panel) {
  m_team = new QComboBox(&panel);
  m_team->setObjectName(QStringLiteral("cmbTEAM"));
  m_team->setMinimumWidth(kTeamWidth);
  m_team->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setAccessibleNumber(*m_team, Text::ShownTeam);
  setToolTipNumber(*m_team, Text::ShownTeam);
  m_copy = new QToolButton(&panel);
  m_copy->setObjectName(QStringLiteral("cmdCOPY"));
  m_copy->setIcon(icon(QStringLiteral("copy")));
  setToolTipNumber(*m_copy, Text::CopyTable);
  setAccessibleNumber(*m_copy, Text::CopyTable);
  m_kind = new PlainLabel(&panel);
  m_kind->setObjectName(QStringLiteral("lblVIEW"));
  m_kind->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*m_kind, Text::SummaryByPlayer);
  m_league = new QToolButton(&panel);
  m_league->setObjectName(QStringLiteral("cmdLEAGUE"));
  m_league->setCheckable(true);
  setTextNumber(*m_league, Text::LeagueSheet);
  setToolTipNumber(*m_league, Text::LeagueSheetTip);
  connect(m_league, &QToolButton::clicked, this, [this](bool shows) { showAs(BoxView::Players, shows); });
  connect(m_team, &QComboBox::currentIndexChanged, this, [this](int team) {
    m_view.setTeam(sideOf(team).value_or(Side::Visitor));
    showTable();
    showChart();
  });
  connect(m_copy, &QToolButton::clicked, this, [this] {
    copyTable(table());
    emit copied();
  });
}

std::size_t AllColumnsPage::shownTable() const {
  return m_showsLeagueSheet ? kLeagueSheet : static_cast<std::size_t>(m_view.view());
}

void AllColumnsPage::forgetGame() {
  m_shownTeam.fill(std::nullopt);
  m_view.forgetChecks();
}

void AllColumnsPage::showGame(std::shared_ptr<const CountedGame> game) {
  m_game = std::move(game);
  m_view.show(m_game);
  showTeams();
  showTable();
  showChart();
}

void AllColumnsPage::showAs(BoxView view, bool asLeagueSheet) {
  if (view == m_view.view() && asLeagueSheet == m_showsLeagueSheet)
    return;
  m_view.setView(view);
  m_showsLeagueSheet = asLeagueSheet;
  m_league->setChecked(asLeagueSheet);
  m_stack->setCurrentWidget(&table());
  setTextNumber(*m_kind, kTableTexts[shownTable()]);
  relabel(*m_kind, m_texts);
  showTable();
  showChart();
  emit shownAs();
}

void AllColumnsPage::setHidesMadeAttempted(bool hides) {
  m_view.setHidesMadeAttempted(hides);
  showTable();
}

void AllColumnsPage::highlight(std::optional<std::uint32_t> event) {
  m_chart->highlight(event);
}

void AllColumnsPage::applyColours() {
  m_copy->setIcon(icon(QStringLiteral("copy")));
  m_chart->applyColours();
  showHeaders(); // whose tool tips name the user's statistics
}

void AllColumnsPage::showTeams() {
  const QSignalBlocker noChoice(m_team);
  const GameDetails& details = m_game->game.details;
  for (const Side team : kSides) {
    const QString text = toQt(details.abbreviation[team]) + QStringLiteral(" – ") + toQt(details.name[team]);
    if (m_team->count() <= numberOf(team))
      m_team->addItem(text);
    else
      m_team->setItemText(numberOf(team), text);
  }
  m_team->setCurrentIndex(numberOf(m_view.team()));
}

void AllColumnsPage::showTable() {
  std::vector<BoxScoreModel::Row> rows;
  if (!m_showsLeagueSheet) {
    for (const BoxRow& row : m_view.rows())
      rows.push_back({row, checkState(m_view.checkMark(row))});
  } else if (m_game != nullptr) {
    for (BoxRow& row : leagueRows(*m_game, m_view.team(), m_texts))
      rows.push_back({std::move(row)});
  }
  std::optional<Side>& shownTeam = m_shownTeam[shownTable()];
  table().hideMadeAttempted(m_view.hidesMadeAttempted());
  table().showRows(std::move(rows), shownTeam == m_view.team());
  setExportTitle(table(), m_team->currentText());
  shownTeam = m_view.team();
}

void AllColumnsPage::showChart() {
  if (m_game == nullptr)
    return;
  m_chart->showShots(m_view.shots(), m_game->game, EventWords(m_game->game, m_texts));
  setExportTitle(*m_chart, m_team->currentText());
}

void AllColumnsPage::showHeaders() {
  QStringList headers;
  QStringList toolTips;
  static const std::string kNoLabels[2];
  const auto& labels = m_game == nullptr ? kNoLabels : m_game->game.details.statisticLabel;
  for (const BoxColumn& column : boxColumns()) {
    headers << (column.headerText != Text::None ? caption(m_texts, column.headerText) : toQt(column.header));
    toolTips << toQt(columnWords(column.index, labels, m_settings, m_texts));
  }
  QStringList leagueHeaders = headers.first(2); // number and name
  QStringList leagueToolTips = toolTips.first(2);
  for (const LeagueColumn& column : leagueColumns()) {
    leagueHeaders << toQt(leagueHeader(column, m_texts));
    leagueToolTips << toQt(leagueColumnWords(column, m_texts));
  }
  m_tables[kLeagueSheet]->relabel(leagueHeaders, leagueToolTips);
  toolTips.first() += u'\n' + caption(m_texts, Text::CheckHint);
  for (const BoxView view : {BoxView::Players, BoxView::Lines})
    m_tables[static_cast<std::size_t>(view)]->relabel(headers, toolTips);
}

} // namespace hooptab
