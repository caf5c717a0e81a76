#include "studies/TeamPanel.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "season/GamePictures.h"
#include "season/SeriesView.h"
#include "season/ZoneChart.h"
#include "settings/CountWords.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "studies/HexagonChart.h"
#include "studies/StudyTables.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>
#include <utility>

namespace hooptab {

namespace {

constexpr int kTeamWidth = 200;
constexpr int kReaderLetters = 12;

QString balanceText(const SeasonTeamRow& team, const Texts& texts) {
  const auto count = [&](int number, Text one, Text many) {
    return countWords(static_cast<std::size_t>(number), one, many, texts);
  };
  return toQt(count(team.wins, Text::OneWin, Text::TeamWins) + ", " +
              count(team.losses, Text::OneLoss, Text::TeamLosses) + ", " +
              count(team.ties, Text::OneTie, Text::TeamTies)) +
         QStringLiteral("  ·  ") + toQt(Module1::quotientText(team.pointsFor, team.games, 1)) +
         QStringLiteral(" – ") + toQt(Module1::quotientText(team.pointsAgainst, team.games, 1));
}

} // namespace

TeamPanel::TeamPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_team(new QComboBox(this)), m_balance(new PlainLabel(this)) {
  m_team->setObjectName(QStringLiteral("lstTEAM"));
  m_team->setMinimumWidth(kTeamWidth);
  setAccessibleNumber(*m_team, Text::ShownTeam);
  setToolTipNumber(*m_team, Text::ShownTeam);
  m_balance->setObjectName(QStringLiteral("lblBALANCE"));
  auto* pages = new QSplitter(Qt::Vertical, this);
  pages->setObjectName(QStringLiteral("teamPages"));
  pages->setChildrenCollapsible(false);
  auto* parts = new QSplitter(Qt::Horizontal, pages);
  parts->setObjectName(QStringLiteral("teamParts"));
  parts->setChildrenCollapsible(false);
  m_picture = new SeriesView(QStringLiteral("picMARGINS"), parts);
  parts->addWidget(m_picture);
  parts->addWidget(makeShots());
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 2);
  parts->setSizes({760, 540});
  auto* head = new QHBoxLayout;
  head->addWidget(m_team);
  head->addWidget(m_balance);
  head->addStretch();
  head->addWidget(makeScouting());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  pages->addWidget(parts);
  pages->addWidget(makeTables());
  pages->setSizes({280, 300});
  layout->addWidget(pages, 1);
  connect(m_team, &QComboBox::currentIndexChanged, this, &TeamPanel::showTeam);
  connect(m_picture, &SeriesView::valueAsked, this,
          [this](int value) { emit gameAsked(m_margins.points[static_cast<std::size_t>(value)].game); });
}

QWidget* TeamPanel::makeShots() {
  auto* tabs = new QTabWidget(this);
  tabs->setObjectName(QStringLiteral("teamShots"));
  m_hexagons = new HexagonChart(QStringLiteral("picTEAMHEXAGONS"), m_texts, tabs);
  m_shots = new ZoneChart(QStringLiteral("picTEAMSHOTS"), m_texts, tabs);
  for (const auto& [page, text] :
       {std::pair<QWidget*, Text>(m_hexagons, Text::TeamShots), {m_shots, Text::ShotChart}}) {
    tabs->addTab(page, QString());
    setTabTextNumber(*page, text);
  }
  return tabs;
}

QWidget* TeamPanel::makeScouting() {
  auto* part = new QWidget(this);
  m_reader = new QComboBox(part);
  m_reader->setObjectName(QStringLiteral("lstSCOUTFOR"));
  m_reader->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_reader->setMinimumContentsLength(kReaderLetters);
  setAccessibleNumber(*m_reader, Text::ScoutForTeam);
  setToolTipNumber(*m_reader, Text::ScoutForTeam);
  m_scout = iconButton("cmdSCOUT", Text::ScoutReport, Text::ScoutReport, "stprint", part);
  auto* layout = new QHBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(captionFor(*m_reader, Text::ScoutForTeam));
  layout->addWidget(m_reader);
  layout->addWidget(m_scout);
  connect(m_scout, &QPushButton::clicked, this, &TeamPanel::scoutAsked);
  return part;
}

QWidget* TeamPanel::makeTables() {
  auto* tables = new QSplitter(Qt::Horizontal, this);
  tables->setObjectName(QStringLiteral("teamTables"));
  tables->setChildrenCollapsible(false);
  m_lastGames = new SeasonTableView(QStringLiteral("lvwTEAMGAMES"), 0, tables);
  m_lastGames->fillWidth();
  setAccessibleNumber(*m_lastGames, Text::LastGames);
  m_splits = new SeasonTableView(QStringLiteral("lvwSPLITS"), 0, tables);
  m_splits->fillWidth();
  setAccessibleNumber(*m_splits, Text::SplitsTitle);
  auto* right = new QSplitter(Qt::Vertical, tables);
  right->setObjectName(QStringLiteral("teamRight"));
  right->setChildrenCollapsible(false);
  right->addWidget(m_splits);
  right->addWidget(makeTogether());
  right->setSizes({180, 180});
  tables->addWidget(m_lastGames);
  tables->addWidget(right);
  tables->setSizes({600, 750});
  connect(m_lastGames, &SeasonTableView::rowAsked, this,
          [this](int row) { emit gameAsked(m_games[static_cast<std::size_t>(row)]); });
  return tables;
}

QWidget* TeamPanel::makeTogether() {
  auto* part = new QWidget(this);
  m_together = new QComboBox(part);
  m_together->setObjectName(QStringLiteral("lstTOGETHER"));
  setAccessibleNumber(*m_together, Text::BestFivesTitle);
  for (const int size : {5, 3, 2})
    m_together->addItem({}, size);
  m_combinations = new SeasonTableView(QStringLiteral("lvwTOGETHER"), 0, part);
  m_combinations->fillWidth();
  setAccessibleNumber(*m_combinations, Text::BestFivesTitle);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(m_together, 0, Qt::AlignLeft);
  layout->addWidget(m_combinations, 1);
  connect(m_together, &QComboBox::currentIndexChanged, this, &TeamPanel::showTogether);
  return part;
}

void TeamPanel::showSeason(std::shared_ptr<const Season> season) {
  m_season = std::move(season);
  {
    const QSignalBlocker quiet(m_team);
    const QString chosen = m_team->currentText();
    m_team->clear();
    if (m_season != nullptr) {
      for (const SeasonTeamRow& team : m_season->statistics().teams())
        m_team->addItem(toQt(m_season->catalogue().teams()[team.team].key));
      m_team->setCurrentIndex(std::max(m_team->findText(chosen), 0));
    }
  }
  showTeam();
}

// Nothing happens where the statistics do not have it.
void TeamPanel::chooseTeam(SeasonId team) {
  const int place =
      m_season == nullptr ? -1 : m_team->findText(toQt(m_season->catalogue().teams()[team].key));
  if (place >= 0)
    m_team->setCurrentIndex(place);
}

void TeamPanel::relabelPanel() {
  constexpr Text kTogether[] = {Text::BestFivesTitle, Text::TriosTitle, Text::PairsTitle};
  for (int i = 0; i < m_together->count(); ++i)
    m_together->setItemText(i, caption(m_texts, kTogether[i]));
  showTeam();
}

void TeamPanel::applyColours() {
  m_hexagons->update();
  m_shots->applyColours();
  m_picture->update();
}

std::optional<SeasonId> TeamPanel::team() const {
  if (m_season == nullptr || m_team->currentIndex() < 0)
    return std::nullopt;
  return m_season->statistics().teams()[static_cast<std::size_t>(m_team->currentIndex())].team;
}

std::optional<SeasonId> TeamPanel::reader() const {
  const QVariant team = m_reader->currentData();
  return team.isValid() ? std::optional(team.value<SeasonId>()) : std::nullopt;
}

// Every team of the folder but the one that is shown; the chosen one stays.
void TeamPanel::showReaders() {
  const QString chosen = m_reader->currentText();
  m_reader->clear();
  m_reader->addItem(QStringLiteral("–"));
  if (m_season != nullptr) {
    const auto teams = m_season->catalogue().teams();
    for (SeasonId other = 0; other < teams.size(); ++other) {
      if (other != team())
        m_reader->addItem(toQt(teams[other].key), other);
    }
  }
  m_reader->setCurrentIndex(std::max(m_reader->findText(chosen), 0));
  m_reader->setEnabled(team().has_value());
  m_scout->setEnabled(team().has_value());
}

void TeamPanel::showTables() {
  const SeasonStatistics* statistics = team() ? &m_season->statistics() : nullptr;
  const auto show = [](SeasonTableView& view, StudyTable table) {
    view.showColumns(std::move(table.columns));
    view.showRows(std::move(table.rows));
  };
  m_games = statistics == nullptr ? std::vector<std::size_t>() : gamesOfTeam(*statistics, *team());
  show(*m_lastGames, teamGamesTable(statistics, team().value_or(kNobody), m_texts));
  show(*m_splits, splitsTable(statistics, team().value_or(kNobody), m_texts));
  showTogether();
}

void TeamPanel::showTogether() {
  const SeasonStatistics* statistics = team() ? &m_season->statistics() : nullptr;
  StudyTable table =
      combinationsTable(statistics, team().value_or(kNobody), m_together->currentData().toInt(), m_texts);
  m_combinations->showColumns(std::move(table.columns));
  m_combinations->showRows(std::move(table.rows));
}

void TeamPanel::showTeam() {
  showTables();
  showReaders();
  if (m_season == nullptr || m_team->currentIndex() < 0) {
    m_balance->setText(caption(m_texts, Text::NotGenerated));
    m_picture->show({}, {});
    m_hexagons->showReason(caption(m_texts, Text::NotGenerated));
    return m_shots->showShots({}, {});
  }
  const SeasonStatistics& statistics = m_season->statistics();
  const SeasonTeamRow& team = statistics.teams()[static_cast<std::size_t>(m_team->currentIndex())];
  m_balance->setText(balanceText(team, m_texts));
  for (QWidget* each :
       {static_cast<QWidget*>(m_picture), static_cast<QWidget*>(m_hexagons), static_cast<QWidget*>(m_shots)})
    setExportTitle(*each, m_team->currentText());
  m_margins = seriesOfMargins(statistics, team.team);
  SeriesWithToolTips picture = pictureOfMargins(m_margins, team.team, *m_season, m_texts);
  m_picture->show(std::move(picture.drawing), std::move(picture.toolTips));
  m_hexagons->showShots(
      hexagonsOfTeam(m_season->catalogue(), statistics.games(), team.team, m_season->shots()).hexagons());
  m_shots->showShots(shotsOfTeam(m_season->catalogue(), statistics.games(), team.team), m_season->shots());
}

} // namespace hooptab
