#include "review/frmVIEW.h"

#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "review/EventPanel.h"
#include "scorecard/BoxTable.h"
#include "scorecard/CheckStrip.h"
#include "scorecard/ColumnWords.h"
#include "scorecard/GameDetailsPanel.h"
#include "scorecard/LeagueSheet.h"
#include "scorecard/Scoreboard.h"
#include "scorecard/ScoreboardStrip.h"
#include "scorecard/ShotChartPanel.h"
#include "settings/Settings.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDataStream>
#include <QFileInfo>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTime>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
constexpr int kMillisecondsPerSecond = 1000;
// Shares of the window that its parts begin with.
constexpr int kLeftShare = 1040;
constexpr int kChartShare = 320;
constexpr int kTableShare = 65;
constexpr int kEventShare = 35;
constexpr int kTeamWidth = 280;

// The tables of box scores.
constexpr std::size_t kLeagueSheet = 2;
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

frmVIEW::frmVIEW(ProfileStore& store, const Settings& settings, const Texts& texts, QWidget* parent)
    : ChildWindow(parent), m_store(store), m_settings(settings), m_texts(texts), m_view(texts),
      m_notice(noticeLabel(this)), m_check(new CheckStrip(texts, this)), m_strip(new ScoreboardStrip(this)) {
  setObjectName(QStringLiteral("frmVIEW"));
  m_timer.setObjectName(QStringLiteral("TimerCoach"));
  m_timer.setParent(this);
  m_timer.setTimerType(Qt::PreciseTimer);
  m_chart = new ShotChartPanel(settings, texts, this);

  auto* left = new QSplitter(Qt::Vertical, this);
  left->addWidget(makeTables());
  left->addWidget(makeEventsAndDetails());
  left->setStretchFactor(0, kTableShare);
  left->setStretchFactor(1, kEventShare);
  left->setSizes({kTableShare * 10, kEventShare * 10});
  auto* parts = new QSplitter(Qt::Horizontal, this);
  parts->addWidget(left);
  parts->addWidget(m_chart);
  parts->setStretchFactor(0, 2);
  parts->setStretchFactor(1, 1);
  parts->setSizes({kLeftShare, kChartShare});
  for (QSplitter* splitter : {left, parts})
    splitter->setChildrenCollapsible(false);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addWidget(m_notice);
  layout->addWidget(m_check);
  layout->addWidget(m_strip);
  layout->addWidget(parts, 1);

  connect(&m_timer, &QTimer::timeout, this, &frmVIEW::refreshOnTimer);
  connect(m_chart, &ShotChartPanel::scopeChosen, this, [this](ScorecardView::Scope scope) {
    m_view.setScope(scope);
    showTable();
    showChart();
  });
  connect(m_check, &CheckStrip::eventAsked, this, [this](std::size_t event) {
    m_tabs->setCurrentWidget(m_events);
    m_events->choose(event);
  });
  connect(m_events, &EventPanel::eventChosen, m_chart, &ShotChartPanel::highlight);
  connect(m_events, &EventPanel::copied, this,
          [this] { emit reported(caption(m_texts, Text::TableCopied)); });
  relabelWindow();
}

frmVIEW::~frmVIEW() = default;

QWidget* frmVIEW::makeTables() {
  auto* panel = new QWidget(this);
  m_team = new QComboBox(panel);
  m_team->setObjectName(QStringLiteral("cmbTEAM"));
  m_team->setMinimumWidth(kTeamWidth);
  m_team->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setAccessibleNumber(*m_team, Text::ShownTeam);
  setToolTipNumber(*m_team, Text::ShownTeam);
  auto* copy = new QToolButton(panel);
  copy->setObjectName(QStringLiteral("cmdCOPY"));
  copy->setIcon(icon(QStringLiteral("copy")));
  setToolTipNumber(*copy, Text::CopyTable);
  setAccessibleNumber(*copy, Text::CopyTable);
  m_kind = new PlainLabel(panel);
  m_kind->setObjectName(QStringLiteral("lblVIEW"));
  m_kind->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*m_kind, Text::SummaryByPlayer);
  m_league = new QToolButton(panel);
  m_league->setObjectName(QStringLiteral("cmdLEAGUE"));
  m_league->setCheckable(true);
  setTextNumber(*m_league, Text::LeagueSheet);
  setToolTipNumber(*m_league, Text::LeagueSheetTip);
  connect(m_league, &QToolButton::clicked, this, &frmVIEW::setShowsLeagueSheet);
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
    connect(m_tables[i], &BoxTable::copied, this,
            [this] { emit reported(caption(m_texts, Text::TableCopied)); });
  }

  auto* head = new QHBoxLayout;
  head->addWidget(m_team);
  head->addWidget(m_league);
  head->addWidget(m_kind);
  head->addStretch();
  head->addWidget(copy);
  auto* layout = new QVBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(m_stack, 1);

  connect(m_team, &QComboBox::currentIndexChanged, this, [this](int team) {
    m_view.setTeam(sideOf(team).value_or(Side::Visitor));
    showTable();
    showChart();
  });
  connect(copy, &QToolButton::clicked, this, [this] {
    copyTable(table());
    emit reported(caption(m_texts, Text::TableCopied));
  });
  return panel;
}

QWidget* frmVIEW::makeEventsAndDetails() {
  m_tabs = new QTabWidget(this);
  m_tabs->setObjectName(QStringLiteral("tabs"));
  m_events = new EventPanel(m_texts, m_tabs);
  m_details = new GameDetailsPanel(m_tabs);
  m_tabs->addTab(m_events, QString());
  m_tabs->addTab(m_details, QString());
  auto* corner = new QWidget(m_tabs);
  auto* room = new QHBoxLayout(corner);
  room->setContentsMargins(0, 0, 0, 2);
  QLineEdit* search = &m_events->searchField();
  room->addWidget(search);
  m_tabs->setCornerWidget(corner);
  connect(m_tabs, &QTabWidget::currentChanged, search, [search](int tab) { search->setVisible(tab == 0); });
  return m_tabs;
}

GameFileProblem frmVIEW::open(const QString& path) {
  const std::string file = fromQt(QFileInfo(path).absoluteFilePath());
  FileChange change(m_store.files(), file);
  change.remember();
  auto card = std::make_unique<Scorecard>(m_store, file);
  if (const GameFileProblem problem = card->load(); problem != GameFileProblem::None)
    return problem;
  m_card = std::move(card);
  m_change.emplace(std::move(change));
  m_problem = GameFileProblem::None;
  m_shownTeam.fill(std::nullopt);
  m_view.show(m_card->counted());
  m_view.forgetChecks();
  showGame(true);
  return GameFileProblem::None;
}

QString frmVIEW::path() const {
  return m_card == nullptr ? QString() : toQt(m_card->path());
}

void frmVIEW::refresh() {
  if (m_card == nullptr)
    return;
  readAgain();
  if (m_problem == GameFileProblem::None)
    emit reported(toQt(m_texts.withPlaceholder(
        Text::LastRefresh, fromQt(QTime::currentTime().toString(QStringLiteral("hh:mm:ss"))))));
}

void frmVIEW::refreshOnTimer() {
  if (m_card != nullptr && m_change->mayHaveChanged())
    readAgain();
}

void frmVIEW::readAgain() {
  m_change->remember();
  m_problem = m_card->load();
  if (m_problem == GameFileProblem::None)
    showGame(false);
  else
    showNotice();
}

void frmVIEW::setRefreshMode(RefreshMode mode) {
  m_refreshMode = mode;
  m_timer.stop();
  if (mode != RefreshMode::Manual) {
    m_timer.setInterval(static_cast<int>(mode) * kMillisecondsPerSecond);
    m_timer.start();
  }
  emit commandStateChanged();
}

void frmVIEW::setByLine(bool byLine) {
  showAs(byLine ? BoxView::Lines : BoxView::Players, false);
}

void frmVIEW::setShowsLeagueSheet(bool shows) {
  showAs(BoxView::Players, shows);
}

std::size_t frmVIEW::shownTable() const {
  return m_showsLeagueSheet ? kLeagueSheet : static_cast<std::size_t>(m_view.view());
}

void frmVIEW::showAs(BoxView view, bool asLeagueSheet) {
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
  emit commandStateChanged();
}

void frmVIEW::setHidesMadeAttempted(bool hides) {
  if (hides == hidesMadeAttempted())
    return;
  m_view.setHidesMadeAttempted(hides);
  showTable();
  emit commandStateChanged();
}

void frmVIEW::relabelWindow() {
  relabel(*this, m_texts);
  m_tabs->setTabText(0, caption(m_texts, Text::Events));
  m_tabs->setTabText(1, caption(m_texts, Text::GameDetails));
  m_events->searchField().setPlaceholderText(caption(m_texts, Text::SearchEvents));
  m_events->relabel();
  showHeaders();
  if (m_card != nullptr)
    showGame(false);
  else
    setWindowTitle(caption(m_texts, Text::ViewGameScorecard));
}

void frmVIEW::applyColours() {
  findChild<QToolButton*>(QStringLiteral("cmdCOPY"))->setIcon(icon(QStringLiteral("copy")));
  m_chart->applyColours();
  m_check->applyColours();
  showHeaders(); // whose tool tips name the user's statistics
  for (QWidget* view : findChildren<QAbstractItemView*>())
    view->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"))->update();
}

QByteArray frmVIEW::arrangement() const {
  QByteArray state;
  QDataStream stream(&state, QIODevice::WriteOnly);
  for (const QSplitter* splitter : findChildren<QSplitter*>())
    stream << splitter->saveState();
  return state;
}

void frmVIEW::restoreArrangement(const QByteArray& state) {
  QDataStream stream(state);
  for (QSplitter* splitter : findChildren<QSplitter*>()) {
    QByteArray part;
    stream >> part;
    splitter->restoreState(part);
  }
}

void frmVIEW::showGame(bool isNew) {
  const Game& game = m_card->game();
  m_view.show(m_card->counted());
  setWindowTitle(asTitle(toQt(m_card->title())));
  m_strip->showBoard(scoreboard(*m_card->counted(), m_texts), m_texts);
  m_details->showDetails(game.details, m_texts);
  m_events->showGame(game, isNew);
  m_check->showFindings(*m_card);
  showTeams();
  if (isNew)
    showHeaders();
  showTable();
  showChart();
  showNotice();
}

void frmVIEW::showTeams() {
  const QSignalBlocker noChoice(m_team);
  const GameDetails& details = m_card->game().details;
  for (const Side team : kSides) {
    const QString text = toQt(details.abbreviation[team]) + QStringLiteral(" – ") + toQt(details.name[team]);
    if (m_team->count() <= numberOf(team))
      m_team->addItem(text);
    else
      m_team->setItemText(numberOf(team), text);
  }
  m_team->setCurrentIndex(numberOf(m_view.team()));
}

void frmVIEW::showTable() {
  std::vector<BoxScoreModel::Row> rows;
  if (!m_showsLeagueSheet) {
    for (const BoxRow& row : m_view.rows())
      rows.push_back({row, checkState(m_view.checkMark(row))});
  } else if (m_card != nullptr) {
    for (BoxRow& row : leagueRows(*m_card->counted(), m_view.team(), m_texts))
      rows.push_back({std::move(row)});
  }
  std::optional<Side>& shownTeam = m_shownTeam[shownTable()];
  table().hideMadeAttempted(m_view.hidesMadeAttempted());
  table().showRows(std::move(rows), shownTeam == m_view.team());
  setExportTitle(table(), m_team->currentText());
  shownTeam = m_view.team();
}

void frmVIEW::showChart() {
  if (m_card == nullptr)
    return;
  m_chart->showShots(m_view.shots(), m_card->game(), m_events->model().words());
  setExportTitle(*m_chart, m_team->currentText());
}

void frmVIEW::showHeaders() {
  QStringList headers;
  QStringList toolTips;
  static const std::string kNoLabels[2];
  const auto& labels = m_card == nullptr ? kNoLabels : m_card->game().details.statisticLabel;
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

void frmVIEW::showNotice() {
  QString notice;
  const std::string file = fromQt(QFileInfo(path()).fileName());
  if (m_problem != GameFileProblem::None) {
    notice = toQt(m_texts.withPlaceholder(
        m_problem == GameFileProblem::Absent ? Text::FileIsGone : Text::FileCannotBeReadNow, file));
  } else if (m_card != nullptr && m_card->outOfRange()) {
    const CountOutOfRange& count = *m_card->outOfRange();
    notice = toQt(withPlaceholders(m_texts.text(Text::CountOutOfRange), file,
                                   m_card->game().details.abbreviation[count.team] + ' ' + count.what));
  }
  m_notice->setText(notice);
  m_notice->setVisible(!notice.isEmpty());
}

} // namespace hooptab
