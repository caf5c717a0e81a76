#include "studies/LeaderCards.h"

#include "appearance/Card.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "season/SeasonTables.h"
#include "studies/LeaderRow.h"
#include "studies/RowList.h"
#include "studies/StandingsDelegate.h"

#include <QGridLayout>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kMostColumns = 4;
constexpr int kMargin = 12;
constexpr int kBarHeight = 3;

int least() { // the width of a card
  return Theme::measure()(300, 400);
}

// How much of the first one's value it is, in the colour of the team.
void drawBar(QPainter& painter, const QRect& area, double share, const QColor& colour, const QColor& ground) {
  const QRectF bar(area.left() + 0.5, area.bottom() - kBarHeight - 0.5, (area.width() - 1) * share,
                   kBarHeight);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(colour);
  painter.setPen(outlineOf(colour, ground));
  painter.drawRoundedRect(bar, 1, 1);
  painter.restore();
}

int roomOf(const std::vector<Leader>& leaders) {
  const QFontMetrics metrics(Theme::font(Type::Count, QFont::Bold));
  int room = 0;
  for (const Leader& leader : leaders)
    room = std::max(room, metrics.horizontalAdvance(toQt(leader.value)));
  return room + Theme::measure()(4);
}

} // namespace

LeaderCards::LeaderCards(const Settings& settings, const Texts& texts, QWidget* parent)
    : QScrollArea(parent), m_settings(settings), m_texts(texts) {
  setObjectName(QStringLiteral("leaderCards"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* desk = new QWidget(this);
  auto* layout = new QVBoxLayout(desk);
  layout->setContentsMargins(0, 0, 0, 0);
  m_grid = new QGridLayout;
  m_grid->setSpacing(Theme::measure()(8, 12));
  layout->addLayout(m_grid);
  layout->addStretch(1);
  setWidget(desk);
}

void LeaderCards::addCard() {
  Shown shown;
  shown.card = new Card(widget());
  shown.card->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  shown.title = new ElidedLabel(shown.card);
  Theme::setType(*shown.title, Type::Body, QFont::DemiBold);
  shown.unit = new ElidedLabel(shown.card);
  Theme::setType(*shown.unit, Type::Small);
  shown.unit->setForegroundRole(QPalette::PlaceholderText);
  shown.unit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  shown.list = new RowList(QStringLiteral("lvwCARD(%1)").arg(m_cards.size()), 26, 34, shown.card);
  shown.list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* head = new QHBoxLayout;
  head->addWidget(shown.title, 1);
  head->addWidget(shown.unit);
  auto* layout = new QVBoxLayout(shown.card);
  const int margin = Theme::measure()(kMargin);
  layout->setContentsMargins(margin, Theme::measure()(4, 8), margin, Theme::measure()(6, 10));
  layout->setSpacing(Theme::measure()(0, 2));
  layout->addLayout(head);
  layout->addWidget(shown.list);
  const std::size_t place = m_cards.size();
  connect(shown.list, &QListWidget::itemClicked, this,
          [this, place, list = shown.list](QListWidgetItem* item) { ask(place, list->row(item)); });
  connect(shown.list, &RowList::rowAsked, this, [this, place](int row) { ask(place, row); });
  m_cards.push_back(shown);
}

void LeaderCards::ask(std::size_t place, int row) {
  const std::vector<Leader>& leaders = m_boards[place].leaders;
  if (static_cast<std::size_t>(row) < leaders.size())
    emit personAsked(*leaders[static_cast<std::size_t>(row)].row);
}

void LeaderCards::showLeaders(std::shared_ptr<const Season> season, SeasonView view) {
  m_season = std::move(season);
  m_boards =
      m_season == nullptr ? std::vector<LeaderBoard>() : leaderBoards(*m_season, view, m_settings, m_texts);
  while (m_cards.size() < m_boards.size())
    addCard();
  for (std::size_t i = 0; i < m_cards.size(); ++i) {
    m_cards[i].card->setVisible(i < m_boards.size());
    if (i < m_boards.size())
      showBoard(i);
    else
      m_cards[i].list->showRows({}, {}); // those that it refers to are gone
  }
  layOut();
}

void LeaderCards::showBoard(std::size_t place) {
  const Shown& shown = m_cards[place];
  const LeaderBoard& board = m_boards[place];
  shown.title->setText(capitalisedText(toQt(board.title)));
  shown.unit->setText(toQt(board.unit));
  shown.list->setAccessibleName(shown.title->text());
  shown.list->setFixedHeight(static_cast<int>(LeaderBoard::kShown) * shown.list->rowHeight());
  if (board.leaders.empty())
    return shown.list->showRows({caption(m_texts, Text::LeaderNobody)},
                                [this](QPainter& painter, const QRect& whole, int, const QColor&) {
                                  QRect area = whole;
                                  writeLeft(painter, area, area.width(), caption(m_texts, Text::LeaderNobody),
                                            Theme::look().muted);
                                });
  QStringList words;
  for (const Leader& leader : board.leaders)
    words << QStringLiteral("%1  %2  %3").arg(leader.rank).arg(toQt(leader.row->name), toQt(leader.value));
  shown.list->showRows(words, [this, &leaders = board.leaders, room = roomOf(board.leaders)](
                                  QPainter& painter, const QRect& area, int row, const QColor& ground) {
    const Leader& leader = leaders[static_cast<std::size_t>(row)];
    const SeasonTeam& team = m_season->catalogue().teams()[leader.row->team];
    const LeaderWeight weight = row == 0 ? LeaderWeight::Foremost : LeaderWeight::Plain;
    drawLeader(painter, area.adjusted(0, 0, 0, -kBarHeight - 2), leader, team, room, weight, ground);
    drawBar(painter, area, leader.number / leaders.front().number, seasonTeamColour(team), ground);
  });
}

int LeaderCards::columns() const {
  return std::clamp(viewport()->width() / least(), 1, kMostColumns);
}

void LeaderCards::layOut() {
  m_columns = columns();
  for (const Shown& shown : m_cards)
    m_grid->removeWidget(shown.card);
  for (int column = 0; column < kMostColumns; ++column)
    m_grid->setColumnStretch(column, column < m_columns ? 1 : 0);
  for (std::size_t i = 0; i < m_boards.size(); ++i)
    m_grid->addWidget(m_cards[i].card, static_cast<int>(i) / m_columns, static_cast<int>(i) % m_columns);
}

void LeaderCards::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (m_columns != columns())
    layOut();
}

} // namespace hooptab
