#include "live/FoulCard.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "recording/LiveFigures.h"
#include "recording/LiveGame.h"
#include "recording/LiveWords.h"
#include "recording/ScoreText.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
constexpr int kTeamEdge = 3;
constexpr double kRadius = 7;

} // namespace

FoulCard::FoulCard(int team, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_team(team), m_texts(texts), m_title(new PlainLabel(this)),
      m_count(new PlainLabel(this)), m_words(new PlainLabel(this)) {
  m_count->setObjectName(QStringLiteral("lblFTE%1").arg(team));
  m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_words->setObjectName(QStringLiteral("lblBONUS(%1)").arg(team));
  setTextNumber(*m_title, Text::TeamFouls);
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
  const int half = inner.height() / 2;
  const int countWidth = m_count->fontMetrics().horizontalAdvance(QStringLiteral("00"));
  m_title->setGeometry(inner.left(), inner.top(), inner.width() - countWidth, half);
  m_count->setGeometry(inner.right() + 1 - countWidth, inner.top(), countWidth, half);
  m_words->setGeometry(inner.left(), inner.top() + half, inner.width(), inner.height() - half);
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
