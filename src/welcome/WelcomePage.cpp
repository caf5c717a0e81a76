#include "welcome/WelcomePage.h"

#include "appearance/ArrowFocus.h"
#include "appearance/Card.h"
#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "welcome/RecentGameRow.h"
#include "welcome/StartCard.h"
#include "welcome/UnfinishedPlate.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <utility>

namespace hooptab {

namespace {

constexpr int kWideMarginZoom = 110; // percent; above, texts need the room

// Where games can be dropped; the main window takes them wherever they fall.
class DropHint : public PlainLabel {
 public:
  explicit DropHint(QWidget* parent) : PlainLabel(parent) {
    setAlignment(Qt::AlignCenter);
    setForegroundRole(QPalette::PlaceholderText);
    setWordWrap(true);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::look().edge, 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
    painter.end();
    PlainLabel::paintEvent(event);
  }
};

} // namespace

WelcomePage::WelcomePage(const StartCommands& commands, RecentPaths recentPaths, FileSystem& files,
                         const Texts& texts, QWidget* parent)
    : QWidget(parent), m_recentPaths(std::move(recentPaths)), m_files(files), m_texts(texts),
      m_scroll(new QScrollArea(this)) {
  setObjectName(QStringLiteral("welcome"));
  connect(&m_task, &Task::finished, this, [this] {
    if (m_isStale)
      read();
  });
  m_scroll->setFrameShape(QFrame::NoFrame);
  m_scroll->setWidgetResizable(true);
  m_scroll->setFocusPolicy(Qt::NoFocus);
  auto* content = new QWidget(m_scroll);
  m_page = new QVBoxLayout(content);
  m_body = new QHBoxLayout;
  m_page->addLayout(makeHead(commands));
  m_page->addLayout(m_body, 1);
  m_body->addLayout(makeGames(), 3);
  m_body->addLayout(makeCards(commands), 2);
  m_scroll->setWidget(content);
  m_scroll->viewport()->setAutoFillBackground(false); // the desk is the window's
  content->setAutoFillBackground(false);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(m_scroll);

  connect(qApp, &QApplication::focusChanged, this, [this, content](QWidget*, QWidget* now) {
    if (now != nullptr && content->isAncestorOf(now))
      m_scroll->ensureWidgetVisible(now);
  });
  applyLook();
}

QBoxLayout* WelcomePage::makeHead(const StartCommands& commands) {
  m_ball = new PlainLabel(this);
  m_title = new PlainLabel(QStringLiteral("HOOPTAB Basketball"), this);
  m_tongues = new PlainLabel(this);
  auto* head = new QHBoxLayout;
  head->addWidget(m_ball);
  head->addWidget(m_title);
  head->addStretch();
  head->addWidget(m_tongues);
  auto* choice = new QHBoxLayout;
  choice->setSpacing(0);
  for (std::size_t i = 0; i < m_languages.size(); ++i) {
    auto* button = new QPushButton(this);
    m_languages[i] = button;
    button->setObjectName(QStringLiteral("optLANGUAGE(%1)").arg(i));
    button->setCheckable(true);
    setToolTipNumber(*button, Text::LanguageTip);
    const Language own = kLanguages[i].language;
    button->setText(toQt(m_texts.text(Text::LanguageName, nextLanguage(own))));
    connect(button, &QPushButton::clicked, &commands.language, [this, own, &language = commands.language] {
      if (m_texts.language() != own)
        language.trigger();
      showLanguage();
    });
    choice->addWidget(button);
  }
  head->addLayout(choice);
  new ArrowFocus({m_languages.begin(), m_languages.end()}, this);
  return head;
}

QBoxLayout* WelcomePage::makeGames() {
  m_unfinished = new UnfinishedPlate(m_texts, this);
  m_unfinished->hide();
  const auto pathOfUnfinished = [this] { return toQt(m_unfinished->game().path); };
  connect(m_unfinished, &UnfinishedPlate::continueAsked, this,
          [this, pathOfUnfinished] { emit inputAsked(pathOfUnfinished()); });
  connect(m_unfinished, &UnfinishedPlate::scorecardAsked, this,
          [this, pathOfUnfinished] { emit gameAsked(pathOfUnfinished()); });
  connect(m_unfinished, &UnfinishedPlate::folderAsked, this,
          [this, pathOfUnfinished] { emit folderAsked(pathOfUnfinished()); });

  auto* card = new Card(this);
  m_listTitle = new PlainLabel(card);
  setTextNumber(*m_listTitle, Text::RecentGames);
  m_nothing = new PlainLabel(card);
  m_nothing->setObjectName(QStringLiteral("lblNOTHING"));
  m_nothing->setForegroundRole(QPalette::PlaceholderText);
  m_nothing->setWordWrap(true);
  m_nothing->hide(); // until it is known
  setTextNumber(*m_nothing, Text::GamesWillBeListed);
  m_listLayout = new QVBoxLayout(card);
  m_listLayout->setSpacing(0);
  m_listLayout->addWidget(m_listTitle);
  m_listLayout->addWidget(m_nothing);

  auto* hint = new DropHint(this);
  hint->setObjectName(QStringLiteral("lblHINT"));
  setTextNumber(*hint, Text::DropHint);

  m_left = new QVBoxLayout;
  m_left->addWidget(m_unfinished);
  m_left->addWidget(card);
  m_left->addWidget(hint);
  m_left->addStretch(1);
  return m_left;
}

QBoxLayout* WelcomePage::makeCards(const StartCommands& commands) {
  m_cards = {new StartCard(commands.newGame, Text::LineNew, m_texts, this),
             new StartCard(commands.openGame, Text::LineOpen, m_texts, this),
             new StartCard(commands.season, Text::LineSeason, m_texts, this),
             new StartCard(commands.teams, Text::LineTeams, m_texts, this),
             new StartCard(commands.sampleGames, Text::LineSamples, m_texts, this),
             new StartCard(commands.guide, Text::LineGuide, m_texts, this)};
  m_right = new QVBoxLayout;
  for (StartCard* card : m_cards)
    m_right->addWidget(card);
  m_right->addStretch(1);
  new ArrowFocus({m_cards.begin(), m_cards.end()}, this);
  return m_right;
}

void WelcomePage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QTimer::singleShot(0, this, &WelcomePage::read); // once the window stands
}

void WelcomePage::read() {
  m_isStale = m_task.isRunning(); // on a slow disk what is being read is shown first
  if (m_isStale)
    return;
  m_task.start([this, &files = m_files, paths = m_recentPaths()](const TaskWatch& watch) -> Task::Delivery {
    return [this, games = readRecentGames(files, paths, watch)] { showGames(games); };
  });
}

void WelcomePage::showGames(const RecentGames& games) {
  const bool isFirst = m_list == nullptr;
  if (!isFirst && games == m_games)
    return;
  m_games = games;
  m_unfinished->setVisible(games.unfinished.has_value());
  if (games.unfinished)
    m_unfinished->showGame(*games.unfinished);
  m_nothing->setVisible(!games.unfinished && games.others.empty());

  delete m_list;
  m_list = new QWidget(m_listTitle->parentWidget());
  m_rows.clear();
  auto* rows = new QVBoxLayout(m_list);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  QWidget* before = &m_unfinished->lastButton();
  for (const RecentGame& game : games.others) {
    auto* row = new RecentGameRow(game, m_texts, m_list);
    row->setObjectName(QStringLiteral("recent(%1)").arg(m_rows.size()));
    connect(row, &QAbstractButton::clicked, this, [this, path = toQt(game.path)] { emit gameAsked(path); });
    rows->addWidget(row);
    setTabOrder(before, row);
    before = row;
    m_rows.push_back(row);
  }
  new ArrowFocus({m_rows.begin(), m_rows.end()}, m_list);
  m_listLayout->addWidget(m_list);
  m_list->show();
  // At the start Qt has put the focus on the first thing of the page.
  if (isVisible() && (isFirst || window()->focusWidget() == nullptr))
    (games.unfinished ? static_cast<QWidget*>(&m_unfinished->firstButton()) : m_cards.front())->setFocus();
}

void WelcomePage::showLanguage() {
  for (std::size_t i = 0; i < m_languages.size(); ++i) {
    const bool isOn = m_texts.language() == kLanguages[i].language;
    m_languages[i]->setChecked(isOn);
    m_languages[i]->setDefault(isOn); // in the accent
  }
}

void WelcomePage::relabelPage() {
  showLanguage();
  for (StartCard* card : m_cards)
    card->relabelCard();
  for (RecentGameRow* row : m_rows)
    row->relabelRow();
  m_unfinished->relabelPlate();
}

void WelcomePage::applyLook() {
  const Measure& measure = Theme::measure();
  const int side = measure.zoom() > kWideMarginZoom ? measure(16) : measure(40, 64);
  m_page->setContentsMargins(side, measure(16, 28), side, measure(16, 28));
  m_page->setSpacing(measure(16, 24));
  m_body->setSpacing(measure(20, 28));
  for (QBoxLayout* column : {m_left, m_right})
    column->setSpacing(measure(12, 16));
  const int margin = measure(16);
  m_listTitle->setContentsMargins(margin, measure(9), margin, measure(9));
  m_nothing->setContentsMargins(margin, 0, margin, measure(14));
  m_listLayout->setContentsMargins(0, 1, 0, measure(6)); // the corners are round
  findChild<QLabel*>(QStringLiteral("lblHINT"))->setMinimumHeight(measure(44, 56));
  const int ball = measure(34, 42);
  m_ball->setPixmap(icon(QStringLiteral("hooptab")).pixmap(ball));
  const int sign = measure(20, 24);
  m_tongues->setPixmap(icon(QStringLiteral("tblangue")).pixmap(sign));
  m_title->setFont(Theme::font(Type::Title, QFont::Bold));
  m_listTitle->setFont(Theme::font(Type::Name));
  m_unfinished->applyLook();
}

} // namespace hooptab
