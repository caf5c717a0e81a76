#include "review/GamePage.h"

#include "appearance/Card.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/MarginChart.h"
#include "review/CompactBoxTable.h"
#include "review/ComparisonBars.h"
#include "review/SignLegend.h"
#include "review/TeamCourt.h"
#include "settings/Settings.h"

#include <QBoxLayout>
#include <QScrollBar>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kGap = 5;
constexpr int kInset = 10; // of a card's content
constexpr int kEdge = 4;
constexpr int kLeastChart = 90;
// Shares of the page's width, and of the height of its right half.
constexpr int kBoxShare = 60;
constexpr int kChartShare = 40;
constexpr int kMarginShare = 5;
constexpr int kCourtShare = 7;

QVBoxLayout* cardLayout(QWidget& card) {
  auto* layout = new QVBoxLayout(&card);
  layout->setContentsMargins(kInset, kInset - 4, kInset, kInset - 4);
  layout->setSpacing(4);
  return layout;
}

} // namespace

GamePage::GamePage(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_chart(new MarginChart(texts, this)),
      m_comparison(new ComparisonBars(this)) {
  setObjectName(QStringLiteral("pageGAME"));
  m_chart->setObjectName(QStringLiteral("picMARGIN"));
  m_chart->setMinimumHeight(Theme::measure()(kLeastChart));
  m_comparison->setObjectName(QStringLiteral("picFACTORS"));
  setAccessibleNumber(*m_chart, Text::ScoreDifference);
  setAccessibleNumber(*m_comparison, Text::FourFactors);
  auto* boxes = new QVBoxLayout;
  boxes->setSpacing(kGap);
  for (const Side team : kSides)
    boxes->addWidget(makeBox(team), 1);
  boxes->addStretch();

  auto* right = new QVBoxLayout;
  right->setSpacing(kGap);
  auto* margin = new Card(this);
  cardLayout(*margin)->addWidget(m_chart);
  auto* comparison = new Card(this);
  cardLayout(*comparison)->addWidget(m_comparison);
  right->addWidget(margin, kMarginShare);
  right->addWidget(comparison);
  right->addWidget(makeShots(), kCourtShare);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(boxes, kBoxShare);
  layout->addLayout(right, kChartShare);
}

QWidget* GamePage::makeBox(Side team) {
  auto* card = new Card(this);
  auto* layout = new QVBoxLayout(card);
  layout->setContentsMargins(1, 0, 1, 1);
  layout->setSpacing(0);
  m_edges[team] = new QWidget(card);
  m_edges[team]->setFixedHeight(kEdge);
  m_edges[team]->setAutoFillBackground(true);
  m_boxes[team] = new CompactBoxTable(QStringLiteral("lvwBOX(%1)").arg(numberOf(team)), m_texts, card);
  layout->addWidget(m_edges[team]);
  layout->addWidget(m_boxes[team], 1);
  connect(m_boxes[team], &CompactBoxTable::copied, this, &GamePage::copied);
  connect(m_boxes[team], &CompactBoxTable::widthsChosen, this, &GamePage::setWidths);
  connect(m_boxes[team]->horizontalScrollBar(), &QScrollBar::rangeChanged, this, &GamePage::fitRows);
  return card;
}

QWidget* GamePage::makeShots() {
  auto* card = new Card(this);
  QVBoxLayout* layout = cardLayout(*card);
  auto* title = new PlainLabel(card);
  setTextNumber(*title, Text::Shots);
  Theme::setType(*title, Type::Body, QFont::DemiBold);
  title->setForegroundRole(QPalette::PlaceholderText);
  m_legend = new SignLegend(card);
  auto* head = new QHBoxLayout;
  head->addWidget(title, 1);
  head->addWidget(m_legend);
  auto* courts = new QHBoxLayout;
  courts->setSpacing(kGap);
  for (const Side team : kSides) {
    m_courts[team] = new TeamCourt(QStringLiteral("GAME"), team, m_settings, m_texts, card);
    courts->addWidget(m_courts[team], 1);
  }
  layout->addLayout(head);
  layout->addLayout(courts, 1);
  return card;
}

void GamePage::setColumns(CompactChoice columns) {
  m_columns = std::move(columns);
}

void GamePage::setWidths(const CompactWidths& widths) {
  m_widths = widths;
  for (CompactBoxTable* box : m_boxes)
    box->setWidths(m_widths);
}

void GamePage::showGame(const ShownGame& game) {
  const CountedGame& shown = *game.shown();
  int name = 0;
  for (const Side team : kSides) {
    showBox(game, team);
    name = std::max(name, m_boxes[team]->longestName());
    const ShotSelection all{team, BoxView::Players, true, {}};
    m_courts[team]->showShots(toQt(shown.game.details.abbreviation[team]), selectedShots(shown.state, all),
                              shown);
  }
  for (CompactBoxTable* box : m_boxes)
    box->setNameWidth(name);
  m_chart->showGame(game.whole()); // a stretch has its place in the course of the whole
  showComparison(game);
  applyColours();
  fitRows();
}

void GamePage::showBox(const ShownGame& game, Side team) {
  const GameDetails& details = game.whole()->game.details;
  CompactBoxTable& box = *m_boxes[team];
  const OwnRatingChoice& choice = m_settings.ownRating;
  const OwnRating ownRating = m_readFormula ? m_readFormula(choice.formula).rating : OwnRating();
  const bool isRated = ownRating != nullptr;
  box.setOwnRating(isRated ? toQt(choice.name) : QString(),
                   isRated ? toQt(m_texts.withPlaceholder(Text::OwnRatingTip, choice.formula)) : QString());
  box.showRows(
      toQt(details.abbreviation[team]),
      compactRows(*game.shown(), game.insight(), game.starters(team), team, m_columns, m_texts, ownRating),
      m_columns);
  box.setAccessibleName(toQt(details.name[team]));
  setExportTitle(box, toQt(details.name[team]));
  QPalette own = palette();
  own.setColor(QPalette::Window, colourOf(details.teamColour[team]));
  m_edges[team]->setPalette(own);
}

void GamePage::showComparison(const ShownGame& game) {
  const GameDetails& details = game.whole()->game.details;
  ComparisonBars::Head head{.title = caption(m_texts, Text::FourFactors)};
  if (game.insight().isFromEvents)
    head.middle =
        toQt(m_texts.withPlaceholder(Text::PossessionsCount, std::to_string(possessionsOf(game.insight()))));
  for (const Side team : kSides) {
    head.name[team] = toQt(details.abbreviation[team]);
    head.colour[team] = colourOf(details.teamColour[team]);
  }
  m_comparison->showRows(std::move(head), compareTeams(game.insight(), m_texts));
}

void GamePage::applyColours() {
  m_legend->showSigns({{QStringLiteral("●"), Theme::made(), caption(m_texts, Text::Made)},
                       {QStringLiteral("✕"), Theme::missed(), caption(m_texts, Text::Missed)}});
  for (TeamCourt* court : m_courts)
    court->applyColours();
  update();
}

void GamePage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fitRows();
}

// Where both boxes do not fit whole, each scrolls; where there is room, their rows take some of it.
void GamePage::fitRows() {
  const Measure& measure = Theme::measure();
  int heads = kGap;
  int rows = 0;
  for (const CompactBoxTable* box : m_boxes) {
    heads += box->heightOf(0) + kEdge + 1;
    rows += box->heightOf(1) - box->heightOf(0);
  }
  const int room = (height() - heads) / std::max(rows, 1);
  const int rowHeight = std::clamp(room, measure(20), measure(20, 29));
  for (CompactBoxTable* box : m_boxes) {
    box->setRowHeight(rowHeight);
    box->setMaximumHeight(box->heightOf(rowHeight));
    box->parentWidget()->setMaximumHeight(box->heightOf(rowHeight) + kEdge + 1);
  }
}

} // namespace hooptab
