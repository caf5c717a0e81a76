#include "scoreboard/FoulCard.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/TimeOuts.h"
#include "recording/LiveFigures.h"
#include "recording/LiveGame.h"
#include "recording/LiveWords.h"
#include "recording/ScoreText.h"
#include "scoreboard/LeagueButtons.h"
#include "storage/Placeholders.h"

#include <QPainter>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
constexpr int kTeamEdge = 3;
constexpr double kRadius = 7;
constexpr int kTimeOutSeconds = 60;
constexpr int kTimeOutTick = 250; // milliseconds

} // namespace

FoulCard::FoulCard(Side team, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_team(team), m_texts(texts), m_title(new PlainLabel(this)),
      m_count(new PlainLabel(this)), m_words(new PlainLabel(this)) {
  m_count->setObjectName(QStringLiteral("lblFTE%1").arg(numberOf(team)));
  m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_words->setObjectName(QStringLiteral("lblBONUS(%1)").arg(numberOf(team)));
  setTextNumber(*m_title, Text::TeamFouls);
  makeLeague();
}

void FoulCard::makeLeague() {
  m_timeOuts = new TimeOutButton(this);
  m_timeOuts->setObjectName(QStringLiteral("cmdTIMEOUT(%1)").arg(numberOf(m_team)));
  connect(m_timeOuts, &QAbstractButton::pressed, this, [this] { emit timeOutAsked(m_team); });
  m_arrow = new ArrowButton(this);
  m_arrow->setObjectName(QStringLiteral("cmdARROW(%1)").arg(numberOf(m_team)));
  connect(m_arrow, &QAbstractButton::pressed, this, [this] { emit arrowAsked(m_team); });
  m_menu = new QToolButton(this);
  m_menu->setObjectName(QStringLiteral("cmdTEAMMENU(%1)").arg(numberOf(m_team)));
  m_menu->setText(QStringLiteral("…"));
  m_menu->setFocusPolicy(Qt::TabFocus);
  setToolTipNumber(*m_menu, Text::TeamMenu);
  setAccessibleNumber(*m_menu, Text::TeamMenu);
  connect(m_menu, &QToolButton::pressed, this, [this] {
    m_menu->setDown(false);
    emit menuAsked(m_team, m_menu->mapToGlobal(m_menu->rect().bottomLeft()));
  });
  m_timeOutTick.setInterval(kTimeOutTick);
  connect(&m_timeOutTick, &QTimer::timeout, this, &FoulCard::showTimeOut);
  for (QWidget* button :
       {static_cast<QWidget*>(m_timeOuts), static_cast<QWidget*>(m_arrow), static_cast<QWidget*>(m_menu)})
    button->hide();
}

int FoulCard::heightFor(const LiveGame& game) {
  return game.level() == RecordingLevel::Basic ? Theme::measure()(44, 54) : Theme::measure()(72, 90);
}

void FoulCard::setSide(bool standsLeft, bool playsRight, const LiveGame& game) {
  m_standsLeft = standsLeft;
  m_playsRight = playsRight;
  showLeague(game);
}

void FoulCard::beginTimeOut() {
  m_takenAtBegin = m_takenInGame;
  m_timeOut.start();
  m_timeOutTick.start();
  showTimeOut();
}

// While it runs the seconds stand in the place of those that are left.
void FoulCard::showTimeOut() {
  const int left = kTimeOutSeconds - static_cast<int>(m_timeOut.isValid() ? m_timeOut.elapsed() / 1000 : 0);
  if (left < 0)
    m_timeOutTick.stop();
  if (!m_timeOutTick.isActive()) {
    m_timeOuts->setLook({.caption = caption(m_texts, Text::TimeOuts),
                         .shortCaption = caption(m_texts, Text::TimeOutsShort),
                         .left = m_left,
                         .taken = m_taken});
    return;
  }
  const QString clock = QStringLiteral("%1:%2").arg(left / 60).arg(left % 60, 2, 10, QLatin1Char('0'));
  m_timeOuts->setLook({.caption = caption(m_texts, Text::TimeOutRuns) + QLatin1Char(' ') + clock,
                       .shortCaption = clock,
                       .isEmphasized = true});
}

void FoulCard::showLeague(const LiveGame& game) {
  const bool isOfLeague = game.level() != RecordingLevel::Basic;
  if (isOfLeague != m_isOfLeague) {
    m_isOfLeague = isOfLeague;
    for (QWidget* button :
         {static_cast<QWidget*>(m_timeOuts), static_cast<QWidget*>(m_arrow), static_cast<QWidget*>(m_menu)})
      button->setVisible(isOfLeague);
    resizeEvent(nullptr);
  }
  if (!isOfLeague)
    return;
  m_takenInGame = game.state().teamRows[m_team].timeOuts;
  if (game.phase() == LiveGame::Phase::Running || m_takenInGame < m_takenAtBegin) // or it was taken back
    m_timeOutTick.stop();
  const auto left =
      timeOutsOf(game.game().details, game.game().events, m_team, game.period(), game.clockSeconds());
  m_left = left ? left->left : 0;
  m_taken = left ? left->taken : m_takenInGame;
  const std::string& name = game.game().details.abbreviation[m_team];
  const std::string key = m_standsLeft ? "Ctrl+←" : "Ctrl+→";
  std::string hint = withPlaceholders(m_texts.text(Text::TakeTimeOut), name, key);
  if (left)
    hint += '\n' + withPlaceholders(m_texts.text(Text::TimeOutsLeft), std::to_string(left->taken),
                                    std::to_string(left->left));
  m_timeOuts->setToolTip(toQt(hint));
  m_timeOuts->setAccessibleName(toQt(hint));
  const bool hasArrow = game.arrow() == m_team;
  m_arrow->setLook(hasArrow, m_playsRight);
  m_arrow->setToolTip(
      toQt(withPlaceholders(m_texts.text(hasArrow ? Text::HasArrow : Text::GivesArrow), name, "Ctrl+↑")));
  m_arrow->setAccessibleName(m_arrow->toolTip());
  for (QWidget* button :
       {static_cast<QWidget*>(m_timeOuts), static_cast<QWidget*>(m_arrow), static_cast<QWidget*>(m_menu)})
    button->setEnabled(game.canRecord());
  showTimeOut();
}

void FoulCard::showGame(const LiveGame& game) {
  const QColor colour = colourOf(game.game().details.teamColour[m_team]);
  const bool isInBonus = LiveFigures(game).isInBonus(m_team);
  m_count->setText(QString::number(LiveFigures(game).teamFouls(m_team)));
  m_words->setText(toQt(foulWords(game, m_team, m_texts)));
  QString hint =
      caption(m_texts, Text::TeamFouls) + u'\n' + toQt(shownByPeriod(game, m_team, ByPeriod::Fouls, m_texts));
  if (isInBonus)
    hint += u'\n' + caption(m_texts, Text::InBonus);
  m_count->setToolTip(hint);
  m_words->setToolTip(hint);
  showLeague(game);
  if (colour == m_colour && isInBonus == m_isInBonus)
    return;
  m_colour = colour;
  m_isInBonus = isInBonus;
  applyColours();
}

void FoulCard::applyColours() {
  const Look& look = Theme::look();
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, m_isInBonus ? look.missed : look.ink);
  m_count->setPalette(colours);
  m_words->setPalette(colours);
  m_title->setFont(Theme::font(Type::Small));
  m_count->setFont(Theme::font(Type::Count, QFont::Bold));
  m_words->setFont(Theme::font(Type::Small, m_isInBonus ? QFont::Bold : QFont::Normal));
  resizeEvent(nullptr);
  update();
}

void FoulCard::resizeEvent(QResizeEvent*) {
  const int margin = Theme::measure()(kMargin);
  const QRect inner = rect().adjusted(margin, kTeamEdge, -margin, -2);
  const int menuWidth = m_isOfLeague ? Theme::measure()(24, 30) : 0;
  const int row = m_isOfLeague ? Theme::measure()(27, 34) : 0;
  const int half = (inner.height() - row) / 2;
  const int countWidth = m_count->fontMetrics().horizontalAdvance(QStringLiteral("00"));
  m_title->setGeometry(inner.left(), inner.top(), inner.width() - countWidth, half);
  m_count->setGeometry(inner.right() + 1 - countWidth, inner.top(), countWidth, half);
  m_words->setGeometry(inner.left(), inner.top() + half, inner.width() - menuWidth,
                       m_isOfLeague ? half : inner.height() - half);
  m_menu->setGeometry(inner.right() + 1 - menuWidth, inner.top() + half, menuWidth, half);
  const int left = Theme::measure()(3);
  const QRect line(left, inner.bottom() - row + 2, width() - 2 * left, row - 1);
  const int arrow = Theme::measure()(24, 32);
  m_timeOuts->setGeometry(line.adjusted(0, 0, -arrow - left, 0));
  m_arrow->setGeometry(line.right() + 1 - arrow, line.top(), arrow, line.height());
}

void FoulCard::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(look.line);
  painter.setBrush(look.surface);
  painter.drawRoundedRect(card, kRadius, kRadius);
  painter.setClipRect(QRect(0, 0, width(), kTeamEdge));
  painter.setPen(outlineOf(m_colour, look.surface));
  painter.setBrush(m_colour);
  painter.drawRoundedRect(card, kRadius, kRadius);
}

} // namespace hooptab
