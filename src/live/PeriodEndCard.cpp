#include "live/PeriodEndCard.h"

#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/EventWords.h"
#include "recording/LiveGame.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>
#include <QHideEvent>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include <cstdlib>

namespace hooptab {

namespace {

constexpr int kMargin = 9;
constexpr int kGap = 5;
constexpr int kFrame = 2;
constexpr int kHighestScore = 999;

} // namespace

PeriodEndCard::PeriodEndCard(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_title(new PlainLabel(this)) {
  setObjectName(QStringLiteral("picPERIODEND"));
  setAutoFillBackground(true);
  setAttribute(Qt::WA_NoMousePropagation);
  Theme::setType(*m_title, Type::Count, QFont::DemiBold);
  auto* close = new QToolButton(this);
  close->setObjectName(QStringLiteral("cmdCARDCLOSE"));
  close->setText(QStringLiteral("✕"));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::TabFocus);
  setToolTipNumber(*close, Text::CloseCard);
  setAccessibleNumber(*close, Text::CloseCard);
  connect(close, &QToolButton::clicked, this, &QWidget::hide);
  m_head = new QWidget(this);
  m_head->setAutoFillBackground(true);
  auto* head = new QHBoxLayout(m_head);
  head->setContentsMargins(kMargin, kGap, kGap, kGap);
  head->addWidget(m_title, 1);
  head->addWidget(close);

  m_compared = new PlainLabel(this);
  m_compared->setObjectName(QStringLiteral("lblCOMPARED"));
  m_compared->setWordWrap(true);
  m_events = makeButton("cmdCARDEVENTS", Text::LeadToEvents);
  m_toCheck = new PlainLabel(this);
  m_toCheck->setObjectName(QStringLiteral("lblTOCHECK"));
  m_toCheck->setWordWrap(true);
  m_check = makeButton("cmdCARDCHECK", Text::GoThroughThem);
  m_switch = makeButton("cmdCARDSWITCH", Text::Sides);
  m_substitute = makeButton("cmdCARDSUBST", Text::Substitution);
  setToolTipNumber(*m_switch, Text::SwitchSides);
  setToolTipNumber(*m_substitute, Text::SubstitutionsTip);
  m_next = makeButton("cmdNEXT", Text::None);
  Theme::setType(*m_next, Type::Body, QFont::Bold);
  connect(m_events, &QPushButton::clicked, this, [this] {
    if (m_differs)
      emit eventsAsked(*m_differs);
  });
  connect(m_check, &QPushButton::clicked, this, &PeriodEndCard::checkAsked);
  connect(m_switch, &QPushButton::clicked, this, &PeriodEndCard::switchAsked);
  connect(m_substitute, &QPushButton::clicked, this, &PeriodEndCard::substitutionAsked);
  connect(m_next, &QPushButton::clicked, this, &PeriodEndCard::nextAsked);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kFrame, kFrame, kFrame, kFrame);
  layout->setSpacing(0);
  layout->addWidget(m_head);
  auto* parts = new QVBoxLayout;
  parts->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  parts->setSpacing(kGap);
  parts->addWidget(makeTitle(Text::IsItSo));
  parts->addWidget(makeScore());
  parts->addLayout(makeAnswers());
  parts->addWidget(m_compared);
  parts->addWidget(makeTitle(Text::LookOnce));
  parts->addWidget(m_toCheck);
  parts->addWidget(m_check);
  parts->addWidget(makeTitle(Text::WhatNext));
  m_both = new QBoxLayout(QBoxLayout::LeftToRight);
  m_both->setSpacing(kGap);
  m_both->addWidget(m_switch, 1);
  m_both->addWidget(m_substitute, 1);
  parts->addLayout(m_both);
  parts->addWidget(m_next);
  parts->addStretch();
  layout->addLayout(parts);
  relabel(*this, texts);
  hide();
}

QLabel* PeriodEndCard::makeTitle(Text text) {
  auto* title = new PlainLabel(this);
  Theme::setType(*title, Type::Body, QFont::DemiBold);
  setTextNumber(*title, text);
  return title;
}

QPushButton* PeriodEndCard::makeButton(const char* name, Text text) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoDefault(false);
  if (text != Text::None)
    setTextNumber(*button, text);
  return button;
}

// As the scoreboard of the hall has it.
QWidget* PeriodEndCard::makeScore() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  for (const Side team : kSides) {
    m_names[team] = new PlainLabel(row);
    m_scores[team] = new QLineEdit(row);
    m_scores[team]->setObjectName(QStringLiteral("txtSCORE(%1)").arg(numberOf(team)));
    m_scores[team]->setValidator(new QIntValidator(0, kHighestScore, m_scores[team]));
    m_scores[team]->setAlignment(Qt::AlignCenter);
    Theme::setType(*m_scores[team], Type::Count, QFont::Bold);
    setToolTipNumber(*m_scores[team], Text::ScoreToCompare);
    setAccessibleNumber(*m_scores[team], Text::ScoreToCompare);
    m_scores[team]->installEventFilter(this);
    connect(m_scores[team], &QLineEdit::textChanged, this, &PeriodEndCard::compare);
    layout->addWidget(m_names[team], 1);
    layout->addWidget(m_scores[team]);
  }
  return row;
}

// Whether the board says so: taken over with one click, or typed.
QLayout* PeriodEndCard::makeAnswers() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  QPushButton* same = makeButton("cmdCARDSAME", Text::IsSame);
  m_another = makeButton("cmdCARDANOTHER", Text::IsAnother);
  connect(same, &QPushButton::clicked, this, [this] {
    for (QLineEdit* score : m_scores)
      score->setText(score->placeholderText());
  });
  connect(m_another, &QPushButton::clicked, this, [this] {
    for (QLineEdit* score : m_scores)
      score->clear();
    m_scores[Side::Visitor]->setFocus();
  });
  row->addWidget(same, 1);
  row->addWidget(m_another, 1);
  row->addWidget(m_events, 1); // in its place, once a difference was typed
  return row;
}

void PeriodEndCard::open(const LiveGame& game) {
  m_game = &game;
  m_period = game.endedPeriod();
  for (QLineEdit* score : m_scores)
    score->clear();
  showGame(game);
  show();
  raise();
}

void PeriodEndCard::showGame(const LiveGame& game) {
  m_game = &game;
  if (m_period == 0)
    return;
  if (game.endedPeriod() != m_period) { // begun, or returned to
    hide();
    return;
  }
  relabelCard();
}

void PeriodEndCard::setToCheck(std::size_t findings, std::size_t doubtful) {
  m_findings = findings;
  m_doubtful = doubtful;
  if (m_game != nullptr && m_period > 0)
    relabelCard();
}

void PeriodEndCard::relabelCard() {
  if (m_game == nullptr || m_period == 0)
    return;
  const EventWords words(m_game->game(), m_texts);
  m_title->setText(toQt(m_texts.withPlaceholder(Text::PeriodEndTitle, words.periodText(m_period))));
  for (const Side team : kSides) {
    m_names[team]->setText(toQt(m_game->game().details.abbreviation[team]));
    m_scores[team]->setPlaceholderText(QString::number(m_game->state().points(team)));
  }
  compare();
  const bool isAny = m_findings + m_doubtful > 0;
  m_toCheck->setText(isAny ? toQt(withPlaceholders(m_texts.text(Text::ToCheckAndDoubtful),
                                                   std::to_string(m_findings), std::to_string(m_doubtful)))
                           : caption(m_texts, Text::NothingToCheck));
  m_check->setVisible(isAny);
  for (QPushButton* button : {m_switch, m_substitute})
    button->setVisible(m_game->phase() != LiveGame::Phase::Decided);
  m_switch->setText(caption(m_texts, m_game->isHalfTime() ? Text::SwitchNow : Text::Sides));
  // The question of half-time needs the whole width.
  m_both->setDirection(m_game->isHalfTime() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  const int lock = m_game->startLock();
  QString next;
  switch (m_game->phase()) {
  case LiveGame::Phase::OvertimeAsked: next = caption(m_texts, Text::StartOvertime); break;
  case LiveGame::Phase::Decided: next = caption(m_texts, Text::GameOver); break;
  default: next = toQt(m_texts.withPlaceholder(Text::StartPeriod, words.periodText(m_game->period())));
  }
  const bool isLocked = lock > 0 && m_game->phase() != LiveGame::Phase::Decided;
  m_next->setText(isLocked ? QStringLiteral("%1 (%2 s)").arg(next).arg(lock) : next);
  m_next->setEnabled(!isLocked);
  QPalette colours;
  const bool isOnStart = m_game->phase() != LiveGame::Phase::Decided &&
                         m_game->phase() != LiveGame::Phase::OvertimeAsked; // which is green above
  if (!isLocked && !isOnStart) {
    colours.setColor(QPalette::Button, Theme::made());
    colours.setColor(QPalette::ButtonText, textOn(Theme::made()));
  }
  m_next->setPalette(colours);
}

// A score that nobody has typed is not looked at.
void PeriodEndCard::compare() {
  m_differs.reset();
  bool isSame = true;
  QString words;
  for (const Side team : kSides) {
    if (m_game == nullptr)
      break;
    const QString typed = m_scores[team]->text();
    isSame = isSame && !typed.isEmpty();
    const int more = typed.isEmpty() ? 0 : typed.toInt() - m_game->state().points(team);
    if (more == 0)
      continue;
    isSame = false;
    m_differs = team;
    words = toQt(withPlaceholders(m_texts.text(more > 0 ? Text::MoreOnBoard : Text::FewerOnBoard),
                                  m_game->game().details.abbreviation[team], std::to_string(std::abs(more))));
  }
  if (!m_differs)
    words = caption(m_texts, isSame ? Text::SameScore : Text::ScoreToCompare);
  m_compared->setText(words);
  QPalette colours = palette();
  if (isSame || m_differs)
    colours.setColor(QPalette::WindowText, isSame ? Theme::made() : Theme::missed());
  m_compared->setPalette(colours);
  m_events->setVisible(m_differs.has_value());
  m_another->setVisible(!m_differs);
}

void PeriodEndCard::applyColours() {
  QPalette colours;
  colours.setColor(QPalette::Window, colours.color(QPalette::Base));
  setPalette(colours);
  const Look& look = Theme::look();
  QPalette head;
  head.setColor(QPalette::Window, look.plate);
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
    head.setColor(role, look.plateText);
  m_head->setPalette(head);
  const Measure& measure = Theme::measure();
  for (QLineEdit* score : m_scores)
    score->setFixedSize(measure(52, 66), measure(34, 44));
  m_next->setMinimumHeight(measure(38, 48));
  relabelCard();
}

void PeriodEndCard::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QPen(Theme::accent(), kFrame));
  painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

void PeriodEndCard::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (isHidden()) { // and not the window around it, which comes back
    m_period = 0;
    emit closed();
  }
}

// A score is typed in passing: its end gives the keys back, and the clock's key is the clock's.
bool PeriodEndCard::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
    return QWidget::eventFilter(watched, event);
  const int key = static_cast<const QKeyEvent*>(event)->key();
  const bool isEnd = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!isEnd && key != Qt::Key_Space)
    return QWidget::eventFilter(watched, event);
  event->accept();
  if (event->type() == QEvent::ShortcutOverride)
    return true;
  if (isEnd && watched == m_scores[Side::Visitor])
    m_scores[Side::Home]->setFocus();
  else
    parentWidget()->setFocus();
  if (!isEnd)
    emit clockAsked();
  return true;
}

} // namespace hooptab
