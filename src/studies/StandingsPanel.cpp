#include "studies/StandingsPanel.h"

#include "appearance/Card.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Icons.h"
#include "appearance/LanguageLocale.h"
#include "appearance/PlainLabel.h"
#include "appearance/TeamTag.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "season/FilterRow.h"
#include "season/SeasonTables.h"
#include "studies/LeaderRow.h"
#include "studies/RowList.h"
#include "studies/StandingsDelegate.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDate>
#include <QHeaderView>
#include <algorithm>

namespace hooptab {

namespace {

constexpr std::size_t kLastGames = 12;
constexpr std::size_t kToCheckShown = 4; // without scrolling
constexpr int kLeadersShown = 3;
constexpr const char* kBoardStatistics[] = {"PTS", "TR", "Ast"};
constexpr int kCardMargin = 10;

using Column = StandingsColumn;

TableColumn textColumn(const Texts& texts, Text header, const char* name) {
  TableColumn column;
  column.header = caption(texts, header);
  column.name = QLatin1String(name);
  column.isText = column.isLeftAligned = true;
  return column;
}
TableColumn numberColumn(const Texts& texts, Text header, const char* name, const char* longest) {
  TableColumn column;
  column.header = caption(texts, header);
  column.name = QLatin1String(name);
  column.longest = QString::fromUtf8(longest);
  column.kind = TableKind::Number;
  return column;
}

std::vector<TableColumn> standingsColumns(const Texts& texts) {
  TableColumn rank;
  rank.header = rank.name = QStringLiteral("#");
  rank.longest = QStringLiteral("00");
  rank.kind = TableKind::Number;
  std::vector<TableColumn> columns = {
      rank,
      textColumn(texts, Text::Team, "Team"),
      textColumn(texts, Text::Team, "Name"),
      numberColumn(texts, Text::StandingsPlayed, "GP", "00"),
      numberColumn(texts, Text::StandingsWon, "W", "00"),
      numberColumn(texts, Text::StandingsLost, "L", "00"),
      numberColumn(texts, Text::StandingsShare, "PCT", "1.000"),
      numberColumn(texts, Text::StandingsBehind, "GB", "00.0"),
      numberColumn(texts, Text::StandingsHome, "Home", "00–00"),
      numberColumn(texts, Text::StandingsAway, "Away", "00–00"),
      textColumn(texts, Text::StandingsLatest, "Latest"),
      numberColumn(texts, Text::StandingsStreak, "Run", "W00"),
      numberColumn(texts, Text::StandingsFor, "For", "000.0"),
      numberColumn(texts, Text::StandingsAgainst, "Against", "000.0"),
      numberColumn(texts, Text::StandingsDifference, "Difference", "+00.0"),
      numberColumn(texts, Text::StandingsOffence, "Off", "000.0"),
      numberColumn(texts, Text::StandingsDefence, "Def", "000.0"),
      numberColumn(texts, Text::PaceWord, "Pace", "000.0"),
  };
  const auto at = [&columns](Column column) -> TableColumn& {
    return columns[static_cast<std::size_t>(column)];
  };
  at(Column::Name).header.clear();
  at(Column::Name).name = QStringLiteral("Name");
  at(Column::Tag).leastWidth = teamTagWidth();
  at(Column::Won).isBold = true;
  at(Column::Latest).leastWidth = StandingsDelegate::latestWidth();
  at(Column::Difference).leastWidth = StandingsDelegate::differenceWidth();
  for (const Column column : {Column::Home, Column::Away, Column::Streak})
    at(column).kind = TableKind::Text;
  at(Column::Offence).toolTip = caption(texts, Text::RatingPerHundredTip);
  at(Column::Defence).toolTip = at(Column::Offence).toolTip;
  at(Column::Pace).toolTip = caption(texts, Text::PaceTip);
  return columns;
}

std::optional<double> rateOf(const Standing& row, std::string_view name) {
  return rateNamed(name).value(RateBasis::ofAll(kOwnSide, row.counted));
}
const char* rateOfColumn(Column column) {
  return column == Column::Offence ? "offRating" : column == Column::Defence ? "defRating" : "pace";
}

QString latestText(const Standing& row, const Texts& texts) {
  QStringList words; // the latest first
  for (auto outcome = row.latest.rbegin(); outcome != row.latest.rend(); ++outcome)
    words << toQt(outcomeText(*outcome, texts));
  return words.join(u' ');
}

QString standingText(const GameCatalogue& catalogue, const Standing& row, int rank, Column column,
                     const Texts& texts) {
  const auto average = [](double value) { return QString::number(value, 'f', 1); };
  switch (column) {
  case Column::Rank: return QString::number(rank);
  case Column::Tag: return toQt(catalogue.teams()[row.team].abbreviation);
  case Column::Name: return toQt(catalogue.teams()[row.team].name);
  case Column::Played: return QString::number(row.all.games());
  case Column::Won: return QString::number(row.all.wins);
  case Column::Lost: return QString::number(row.all.losses);
  case Column::Share: return toQt(shareText(row));
  case Column::Behind: return toQt(behindText(row));
  case Column::Home: return toQt(balanceText(row.home));
  case Column::Away: return toQt(balanceText(row.away));
  case Column::Latest: return latestText(row, texts);
  case Column::Streak: return toQt(streakText(row, texts));
  case Column::For: return average(row.average(row.pointsFor));
  case Column::Against: return average(row.average(row.pointsAgainst));
  case Column::Difference: return toQt(signedText(row.difference(), 1));
  case Column::Offence:
  case Column::Defence:
  case Column::Pace: break;
  }
  const char* const rate = rateOfColumn(column);
  return toQt(rateText(rateNamed(rate), rateOf(row, rate)));
}

double standingValue(const Standing& row, int rank, Column column) {
  const auto share = [](const Balance& balance) {
    return balance.games() == 0 ? 0.0 : static_cast<double>(balance.wins) / balance.games();
  };
  switch (column) {
  case Column::Rank:
  case Column::Tag:
  case Column::Name:
  case Column::Latest: return rank;
  case Column::Played: return row.all.games();
  case Column::Won: return row.all.wins;
  case Column::Lost: return row.all.losses;
  case Column::Share: return row.share();
  case Column::Behind: return row.halfGamesBehind / 2.0;
  case Column::Home: return share(row.home);
  case Column::Away: return share(row.away);
  case Column::Streak: return row.streak;
  case Column::For: return row.average(row.pointsFor);
  case Column::Against: return row.average(row.pointsAgainst);
  case Column::Difference: return row.difference();
  case Column::Offence:
  case Column::Defence:
  case Column::Pace: break;
  }
  return rateOf(row, rateOfColumn(column)).value_or(-1);
}

QLabel* cardTitle(QWidget* parent, Text text) {
  auto* title = new PlainLabel(parent);
  title->setForegroundRole(QPalette::PlaceholderText);
  Theme::setType(*title, Type::Small, QFont::DemiBold);
  if (text != Text::None)
    setTextNumber(*title, text);
  return title;
}

QVBoxLayout* cardLayout(Card& card) {
  auto* layout = new QVBoxLayout(&card);
  layout->setContentsMargins(kCardMargin, 8, kCardMargin, 8);
  layout->setSpacing(4);
  return layout;
}

} // namespace

StandingsPanel::StandingsPanel(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts),
      m_table(new SeasonTableView(QStringLiteral("lvwSTANDINGS"), 0, this)), m_practice(new QCheckBox(this)),
      m_reason(new ElidedLabel(this)) {
  m_table->setRowHeights(34, 42);
  m_table->fillWidth();
  m_table->setShowGrid(false);
  m_table->setItemDelegate(new StandingsDelegate(*m_table, m_texts));
  setAccessibleNumber(*m_table, Text::StandingsTab);
  QWidget* filtered = withFilters(*m_table, 0, m_texts, this);
  filtered->layout()->setSizeConstraint(QLayout::SetMinAndMaxSize); // as high as the table

  auto* lastCard = new Card(this);
  auto* lastLayout = cardLayout(*lastCard);
  m_lastGames = new RowList(QStringLiteral("lvwLASTGAMES"), 32, 38, lastCard);
  setAccessibleNumber(*m_lastGames, Text::LastGames);
  lastLayout->addWidget(cardTitle(lastCard, Text::LastGames));
  lastLayout->addWidget(m_lastGames, 1);

  auto* below = new QHBoxLayout;
  below->setSpacing(Theme::measure()(8, 12));
  below->addWidget(lastCard, 2);
  below->addWidget(makeSide(), 5);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Theme::measure()(4, 8));
  layout->addLayout(makeHead());
  layout->addWidget(filtered, 4);
  layout->addLayout(below, 3);

  connect(m_table, &SeasonTableView::rowAsked, this,
          [this](int row) { emit teamAsked(m_standings->rows()[static_cast<std::size_t>(row)].team); });
  connect(m_lastGames, &RowList::rowAsked, this,
          [this](int row) { emit gameAsked(m_last[static_cast<std::size_t>(row)]); });
  connect(m_toCheck, &RowList::rowAsked, this,
          [this](int row) { emit gameAsked(m_wrong[static_cast<std::size_t>(row)]); });
}

QLayout* StandingsPanel::makeHead() {
  m_practice->setObjectName(QStringLiteral("chkPRACTICE"));
  setTextNumber(*m_practice, Text::StandingsPractice);
  m_reason->setObjectName(QStringLiteral("lblTIES"));
  m_reason->setForegroundRole(QPalette::PlaceholderText);
  m_reason->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setToolTipNumber(*m_reason, Text::StandingsTiesTip);
  connect(m_practice, &QCheckBox::toggled, this, &StandingsPanel::count);
  auto* head = new QHBoxLayout;
  head->addWidget(m_practice);
  head->addWidget(m_reason, 1);
  return head;
}

bool StandingsPanel::countsPractice() const {
  return m_practice->isChecked();
}

void StandingsPanel::countPractice(bool counts) {
  m_practice->setChecked(counts);
}

void StandingsPanel::count() {
  if (m_catalogue == nullptr)
    return;
  m_standings = std::make_shared<const Standings>(
      *m_catalogue, m_games, countsPractice() ? PracticeGames::Counted : PracticeGames::LeftOut);
  showTable();
}

QWidget* StandingsPanel::makeSide() {
  auto* side = new QWidget(this);
  auto* checkCard = new Card(side);
  auto* checkLayout = cardLayout(*checkCard);
  m_checkTitle = cardTitle(checkCard, Text::None);
  m_checkTitle->setObjectName(QStringLiteral("lblTOCHECK"));
  m_toCheck = new RowList(QStringLiteral("lvwTOCHECK"), 42, 50, checkCard);
  checkLayout->addWidget(m_checkTitle);
  checkLayout->addWidget(m_toCheck, 1);
  m_leaderCard = new Card(side);
  auto* boards = new QHBoxLayout(m_leaderCard);
  boards->setContentsMargins(kCardMargin, 8, kCardMargin, 8);
  boards->setSpacing(Theme::measure()(20, 26));
  for (std::size_t i = 0; i < kBoards; ++i) {
    Board& board = m_boards[i];
    auto* place = new QVBoxLayout;
    place->setSpacing(4);
    board.title = cardTitle(m_leaderCard, Text::None);
    board.list = new RowList(QStringLiteral("lvwBOARD(%1)").arg(i), 32, 38, m_leaderCard);
    place->addWidget(board.title);
    place->addWidget(board.list, 1);
    boards->addLayout(place, 1);
    connect(board.list, &RowList::rowAsked, this, [this, i](int row) {
      const int column = seasonColumn(kBoardStatistics[i]).index;
      const auto& all = m_season->leaders(SeasonView::PerGame).statistics();
      emit personAsked(*std::ranges::find(all, column, &StatisticLeaders::column)
                            ->leaders[static_cast<std::size_t>(row)]
                            .row);
    });
  }
  for (QWidget* card : {static_cast<QWidget*>(checkCard), m_leaderCard})
    card->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Theme::measure()(8, 12));
  layout->addWidget(checkCard);
  layout->addWidget(m_leaderCard);
  layout->addStretch();
  return side;
}

void StandingsPanel::showGames(std::shared_ptr<const GameCatalogue> catalogue,
                               std::vector<std::size_t> games) {
  m_catalogue = std::move(catalogue);
  m_games = std::move(games);
  m_last.assign(m_games.rbegin(),
                m_games.rbegin() + static_cast<std::ptrdiff_t>(std::min(kLastGames, m_games.size())));
  m_wrong.clear();
  std::ranges::copy_if(m_games, std::back_inserter(m_wrong),
                       [this](std::size_t game) { return m_catalogue->games()[game].wrongCount > 0; });
  count();
  showLastGames();
  showToCheck();
}

void StandingsPanel::showSeason(std::shared_ptr<const Season> season) {
  m_season = std::move(season);
  showLeaders();
}

void StandingsPanel::relabelPanel() {
  m_table->showColumns(standingsColumns(m_texts));
  if (m_catalogue != nullptr) {
    showTable();
    showLastGames();
    showToCheck();
  }
  showLeaders();
}

void StandingsPanel::showTable() {
  TableRows rows;
  rows.count = static_cast<int>(m_standings->rows().size());
  rows.text = [this, catalogue = m_catalogue, standings = m_standings](int row, int column) {
    return standingText(*catalogue, standings->rows()[static_cast<std::size_t>(row)], row + 1,
                        static_cast<Column>(column), m_texts);
  };
  rows.sortValue = [standings = m_standings](int row, int column) {
    return standingValue(standings->rows()[static_cast<std::size_t>(row)], row + 1,
                         static_cast<Column>(column));
  };
  static_cast<StandingsDelegate*>(m_table->itemDelegate())->show(m_catalogue, m_standings);
  m_table->showRows(std::move(rows));
  fitTable();
  m_reason->setText(m_standings->rows().empty() ? caption(m_texts, Text::StandingsEmpty)
                                                : toQt(tiesText(m_standings->ties(), m_texts)));
}

// As high as its rows; what is left belongs to the cards.
void StandingsPanel::fitTable() {
  constexpr int kScrollBar = 4;
  const int rows = static_cast<int>(std::max<std::size_t>(m_standings->rows().size(), 2));
  m_table->setMaximumHeight(m_table->horizontalHeader()->sizeHint().height() +
                            rows * m_table->verticalHeader()->defaultSectionSize() + kScrollBar);
}

QString StandingsPanel::dayOf(const ListedGame& game) const {
  const QDate day = QDate::fromString(toQt(game.date), Qt::ISODate);
  return day.isValid() ? localeOf(m_texts.language()).toString(day, QStringLiteral("d MMM"))
                       : toQt(game.date);
}

void StandingsPanel::showLastGames() {
  const auto teamOf = [this](std::size_t row, Side side) -> const SeasonTeam& {
    return m_catalogue->teams()[m_catalogue->games()[m_last[row]].team[side]];
  };
  QStringList words;
  for (std::size_t i = 0; i < m_last.size(); ++i) {
    const ListedGame& game = m_catalogue->games()[m_last[i]];
    words << QStringLiteral("%1  %2 %3 – %4 %5")
                 .arg(dayOf(game), toQt(teamOf(i, Side::Visitor).abbreviation))
                 .arg(game.points[Side::Visitor])
                 .arg(game.points[Side::Home])
                 .arg(toQt(teamOf(i, Side::Home).abbreviation));
  }
  m_lastGames->showRows(
      words, [this, teamOf](QPainter& painter, const QRect& whole, int row, const QColor& ground) {
        const ListedGame& game = m_catalogue->games()[m_last[static_cast<std::size_t>(row)]];
        const Look& look = Theme::look();
        QRect area = whole;
        const auto room = [&painter](const char* text) {
          return painter.fontMetrics().horizontalAdvance(QString::fromUtf8(text)) + Theme::measure()(4);
        };
        const auto points = [&](Side side) {
          const bool isWinner = game.winner() == side;
          painter.setFont(Theme::font(Type::Body, isWinner ? QFont::Bold : QFont::Normal));
          return QString::number(game.points[side]);
        };
        const int figures = room("1990");
        writeLeft(painter, area, room("30 sept. "), dayOf(game), look.muted);
        drawTagLeft(painter, area, teamOf(static_cast<std::size_t>(row), Side::Visitor), ground);
        QRect left(area.left(), area.top(), figures, area.height());
        const QString visitors = points(Side::Visitor);
        writeRight(painter, left, figures, visitors, look.ink);
        area.setLeft(area.left() + figures);
        painter.setFont(Theme::font(Type::Body));
        writeLeft(painter, area, room(" – "), QStringLiteral(" – "), look.muted);
        const QString home = points(Side::Home);
        writeLeft(painter, area, figures, home, look.ink);
        painter.setFont(Theme::font(Type::Body));
        drawTagLeft(painter, area, teamOf(static_cast<std::size_t>(row), Side::Home), ground);
        if (game.overtimes > 0)
          writeLeft(painter, area, area.width(), caption(m_texts, Text::Overtime), look.muted);
      });
}

void StandingsPanel::showToCheck() {
  m_checkTitle->setText(m_wrong.empty()
                            ? caption(m_texts, Text::NothingToCheck)
                            : toQt(m_texts.withPlaceholder(Text::ToCheck, std::to_string(m_wrong.size()))));
  m_toCheck->setAccessibleName(m_checkTitle->text());
  m_toCheck->setVisible(!m_wrong.empty());
  m_toCheck->setFixedHeight(static_cast<int>(std::min(kToCheckShown, m_wrong.size())) *
                            m_toCheck->rowHeight());
  QStringList heads;
  QStringList reasons;
  QStringList words;
  for (const std::size_t place : m_wrong) {
    const ListedGame& game = m_catalogue->games()[place];
    const auto team = [&](Side side) { return toQt(m_catalogue->teams()[game.team[side]].abbreviation); };
    heads << QStringLiteral("%1 %2 – %3 %4   %5")
                 .arg(team(Side::Visitor))
                 .arg(game.points[Side::Visitor])
                 .arg(game.points[Side::Home])
                 .arg(team(Side::Home), dayOf(game));
    reasons << toQt(m_catalogue->whyWrong(game, m_texts));
    words << heads.back() + QStringLiteral(": ") + reasons.back();
  }
  m_toCheck->showRows(words, [heads, reasons](QPainter& painter, const QRect& whole, int row, const QColor&) {
    const Look& look = Theme::look();
    const int sign = Theme::measure()(18, 22);
    icon(QStringLiteral("tocheck")).paint(&painter, whole.left(), whole.center().y() - sign / 2, sign, sign);
    QRect upper = whole.adjusted(sign + Theme::measure()(12), Theme::measure()(2), 0, -whole.height() / 2);
    QRect lower = upper.translated(0, upper.height());
    painter.setFont(Theme::font(Type::Body, QFont::DemiBold));
    writeLeft(painter, upper, upper.width(), heads[row], look.ink);
    painter.setFont(Theme::font(Type::Small));
    writeLeft(painter, lower, lower.width(), reasons[row], look.muted);
  });
}

void StandingsPanel::showLeaders() {
  m_leaderCard->setVisible(m_season != nullptr);
  for (std::size_t i = 0; i < kBoards; ++i) {
    const int column = seasonColumn(kBoardStatistics[i]).index;
    m_boards[i].title->setText(statisticName(column, m_settings, m_texts));
    m_boards[i].list->setAccessibleName(m_boards[i].title->text());
    m_boards[i].list->setFixedHeight(kLeadersShown * m_boards[i].list->rowHeight());
    if (m_season == nullptr) {
      m_boards[i].list->showRows({}, {});
      continue;
    }
    const auto& all = m_season->leaders(SeasonView::PerGame).statistics();
    std::vector<Leader> leaders = std::ranges::find(all, column, &StatisticLeaders::column)->leaders;
    leaders.resize(std::min<std::size_t>(leaders.size(), kLeadersShown));
    QStringList words;
    for (const Leader& leader : leaders)
      words << QStringLiteral("%1  %2  %3").arg(leader.rank).arg(toQt(leader.row->name), toQt(leader.value));
    m_boards[i].list->showRows(words, [season = m_season, leaders](QPainter& painter, const QRect& whole,
                                                                   int row, const QColor& ground) {
      const Leader& leader = leaders[static_cast<std::size_t>(row)];
      painter.setFont(Theme::font(Type::Body, QFont::Bold));
      drawLeader(painter, whole, leader, season->catalogue().teams()[leader.row->team],
                 painter.fontMetrics().horizontalAdvance(QStringLiteral("100.0")), LeaderWeight::Plain,
                 ground);
    });
  }
}

} // namespace hooptab
