#include "welcome/UnfinishedPlate.h"

#include "appearance/Fields.h"
#include "appearance/LanguageLocale.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/Side.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "welcome/RecentGameWords.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace hooptab {

namespace {

constexpr double kRadius = 8;

struct Heights {
  int margin = Theme::measure()(20, 26);
  int line = QFontMetrics(Theme::font(Type::Body)).height();
  int gap = Theme::measure()(8);
  int teams = QFontMetrics(Theme::font(Type::Score)).height() + Theme::measure()(4);
  [[nodiscard]] int head() const { return margin + line + gap + teams + 2 * gap; }
};

} // namespace

UnfinishedPlate::UnfinishedPlate(const Texts& texts, QWidget* parent)
    : QWidget(parent),
      m_texts(texts), m_buttons{
                          iconButton("cmdCONTINUE", Text::Continue, Text::Continue, "", this),
                          iconButton("cmdSCORECARD", Text::OpenAsScorecard, Text::OpenAsScorecard, "", this),
                          iconButton("cmdFOLDER", Text::ShowInFolder, Text::ShowInFolder, "", this)} {
  setObjectName(QStringLiteral("unfinished"));
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : m_buttons)
    buttons->addWidget(button);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(buttons);
  connect(m_buttons[0], &QPushButton::clicked, this, &UnfinishedPlate::continueAsked);
  connect(m_buttons[1], &QPushButton::clicked, this, &UnfinishedPlate::scorecardAsked);
  connect(m_buttons[2], &QPushButton::clicked, this, &UnfinishedPlate::folderAsked);
  applyLook();
}

void UnfinishedPlate::showGame(const RecentGame& game) {
  m_game = game;
  relabelPlate();
}

void UnfinishedPlate::relabelPlate() {
  QString whole = wholeText(m_game, m_texts);
  if (m_game.hasTime)
    whole += QStringLiteral(", %1, %2")
                 .arg(periodText(m_game, m_texts), toQt(Module1::clockText(m_game.clockSeconds)));
  setAccessibleName(whole);
  widenButtons();
  update();
}

void UnfinishedPlate::widenButtons() {
  for (QPushButton* button : m_buttons) {
    const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    button->setMinimumWidth(text + Theme::measure()(button == m_buttons.front() ? 44 : 26));
  }
}

void UnfinishedPlate::applyLook() {
  const Look& look = Theme::look();
  const Heights heights;
  const int side = Theme::measure()(22, 28);
  layout()->setContentsMargins(side, heights.head(), side, heights.margin);
  const Look& onPlate = lookOf(ColourScheme::Dark); // the plate is dark in both
  for (QPushButton* button : m_buttons) {
    const bool isFirst = button == m_buttons.front();
    QPalette own = Theme::palette(Theme::current());
    own.setColor(QPalette::Button, isFirst ? onPlate.accent : look.plate);
    own.setColor(QPalette::ButtonText, isFirst ? onPlate.onAccent : look.plateText);
    button->setPalette(own);
    button->setFont(isFirst ? Theme::font(Type::Count, QFont::DemiBold) : Theme::font(Type::Body));
    button->setMinimumHeight(Theme::measure()(40, 48));
  }
  widenButtons();
  update();
}

void UnfinishedPlate::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  const Measure& measure = Theme::measure();
  const Heights heights;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(look.plate);
  painter.setPen(look.plate == look.desk ? look.line : look.plate);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);

  const int side = layout()->contentsMargins().left();
  const int room = width() - 2 * side;
  painter.setFont(Theme::font(Type::Body, QFont::Bold));
  painter.setPen(look.clockStands);
  const QString state = caption(m_texts, Text::NotFinishedCapital);
  QRect line(side, heights.margin, room, heights.line);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, state);
  line.setLeft(line.left() + painter.fontMetrics().horizontalAdvance(state) + measure(12));
  painter.setFont(Theme::font(Type::Body));
  painter.setPen(look.plateMuted);
  const QLocale locale = localeOf(m_texts.language());
  const QString written =
      locale.toString(QDateTime::fromSecsSinceEpoch(m_game.changed), QStringLiteral("d MMM yyyy, HH:mm"));
  const QString saved =
      toQt(withPlaceholders(m_texts.text(Text::EventsSaved), std::to_string(m_game.events), fromQt(written)));
  painter.drawText(line, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(saved, Qt::ElideRight, line.width()));

  // The clock between the teams, who get what is left of the room at most.
  const int top = line.bottom() + 1 + heights.gap;
  const QFont figures = Theme::font(Type::Score);
  const int clock = QFontMetrics(figures).horizontalAdvance(QStringLiteral("00:00")) + 2 * measure(20, 30);
  const int scores = QFontMetrics(figures).horizontalAdvance(QStringLiteral("199"));
  const int names = QFontMetrics(Theme::font(Type::Count, QFont::Bold)).horizontalAdvance(u'W') * 7;
  const int plate = std::min((room - clock) / 2, scores + names + measure(36));
  paintTeam(painter, QRect(side, top, plate, heights.teams), Side::Visitor);
  paintTeam(painter, QRect(side + plate + clock, top, plate, heights.teams), Side::Home);
  if (!m_game.hasPeriods)
    return;
  const QRect middle(side + plate, top, clock, heights.teams);
  const QFont small = Theme::font(Type::Small);
  painter.setFont(small);
  painter.setPen(look.plateMuted);
  const int label = painter.fontMetrics().height();
  painter.drawText(middle.left(), top - label / 3, clock, label, Qt::AlignCenter,
                   periodText(m_game, m_texts));
  if (!m_game.hasTime)
    return;
  painter.setFont(figures);
  painter.setPen(look.clockStands);
  painter.drawText(middle.adjusted(0, label / 2, 0, label / 2), Qt::AlignCenter,
                   toQt(Module1::clockText(m_game.clockSeconds)));
}

void UnfinishedPlate::paintTeam(QPainter& painter, const QRect& rect, Side team) const {
  const QColor colour = colourOf(m_game.teams[team].colour);
  painter.setBrush(colour);
  painter.setPen(outlineOf(colour, Theme::look().plate));
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  painter.setPen(textOn(colour));
  // The scores stand next to the clock, the names outside.
  const int side = Theme::measure()(12);
  const QRect inner = rect.adjusted(side, 0, -side, 0);
  const Qt::Alignment outside = team == Side::Visitor ? Qt::AlignLeft : Qt::AlignRight;
  const Qt::Alignment inside = team == Side::Visitor ? Qt::AlignRight : Qt::AlignLeft;
  const QString points = QString::number(m_game.teams[team].points);
  painter.setFont(Theme::font(Type::Score));
  painter.drawText(inner, static_cast<int>(inside | Qt::AlignVCenter), points);
  const int left = inner.width() - painter.fontMetrics().horizontalAdvance(points) - side;
  painter.setFont(Theme::font(Type::Count, QFont::Bold));
  painter.drawText(
      inner, static_cast<int>(outside | Qt::AlignVCenter) | Qt::TextSingleLine,
      painter.fontMetrics().elidedText(toQt(m_game.teams[team].abbreviation), Qt::ElideRight, left));
}

} // namespace hooptab
