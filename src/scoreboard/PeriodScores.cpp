#include "scoreboard/PeriodScores.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/EventWords.h"
#include "recording/LiveGame.h"
#include "recording/ScoreText.h"

#include <QPainter>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kRows = 4;
constexpr int kMargin = 8;
constexpr double kRadius = 7;
constexpr int kTiedPlace = static_cast<int>(LeadState::Tied);

} // namespace

PeriodScores::PeriodScores(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  for (int state = 0; state < static_cast<int>(m_leads.size()); ++state) {
    Lead& lead = m_leads[static_cast<std::size_t>(state)];
    const auto make = [&](const char* name, Qt::Alignment alignment) {
      auto* label = new ElidedLabel(this);
      label->setObjectName(QLatin1String(name) + QStringLiteral("(%1)").arg(state));
      label->setAlignment(alignment | Qt::AlignVCenter);
      setToolTipNumber(*label, Text::TimeInLeadHint);
      return label;
    };
    lead.title = make("lblPOS", Qt::AlignLeft);
    lead.time = make("txtPOSTemps", Qt::AlignRight);
    lead.times = make("txtPOSNb", Qt::AlignLeft);
  }
}

QSize PeriodScores::sizeHint() const {
  return {Theme::measure()(200), Theme::measure()(70, 82)};
}

void PeriodScores::showGame(const LiveGame& game) {
  const EventWords words(game.game(), m_texts);
  const ScoreByPeriod score = scoreByPeriod(game, m_texts);
  std::vector<Column> columns;
  for (const ScoreByPeriod::Row& row : score.periods)
    columns.push_back({toQt(row.period),
                       {QString::number(row.ofTeam[Side::Visitor].points),
                        QString::number(row.ofTeam[Side::Home].points)}});
  for (int period = static_cast<int>(columns.size()) + 1; period <= game.game().details.periods; ++period)
    columns.push_back({toQt(words.periodText(period)), {QStringLiteral("·"), QStringLiteral("·")}});
  columns.push_back(
      {caption(m_texts, Text::TotalColumn),
       {QString::number(score.points[Side::Visitor]), QString::number(score.points[Side::Home])}});
  for (std::size_t state = 0; state < m_leads.size(); ++state) {
    Lead& lead = m_leads[state];
    const std::optional<Side> leader = sideOf(static_cast<int>(state));
    lead.title->setText(leader ? toQt(game.game().details.abbreviation[*leader])
                               : caption(m_texts, Text::LeadTied));
    lead.time->setText(toQt(leadTimeShown(game, static_cast<LeadState>(state))));
    lead.times->setText(u'×' + QString::number(game.state().lead.times[state]));
  }
  if (columns == m_columns)
    return;
  m_columns = std::move(columns);
  update();
}

void PeriodScores::showTime(const LiveGame& game) {
  const LeadState now = game.state().lead.state;
  m_leads[static_cast<std::size_t>(now)].time->setText(toQt(leadTimeShown(game, now)));
}

void PeriodScores::setTurned(bool isTurned) {
  if (isTurned == m_isTurned)
    return;
  m_isTurned = isTurned;
  layOut();
  update();
}

void PeriodScores::applyColours() {
  const Look& look = Theme::look();
  const auto wear = [](QLabel& label, const QColor& colour, QFont::Weight weight) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, colour);
    label.setPalette(colours);
    label.setFont(Theme::font(Type::Small, weight));
  };
  for (std::size_t state = 0; state < m_leads.size(); ++state) {
    wear(*m_leads[state].title, state == kTiedPlace ? look.muted : look.ink,
         state == kTiedPlace ? QFont::Normal : QFont::DemiBold);
    wear(*m_leads[state].time, look.ink, QFont::Normal);
    wear(*m_leads[state].times, look.muted, QFont::Normal);
  }
  updateGeometry();
  layOut();
  update();
}

QRect PeriodScores::rowRect(int row) const {
  const int margin = Theme::measure()(kMargin);
  const int top = 3 + (height() - 6) * row / kRows;
  return {margin, top, width() - 2 * margin, 3 + (height() - 6) * (row + 1) / kRows - top};
}

void PeriodScores::layOut() {
  const QFontMetrics metrics(Theme::font(Type::Small, QFont::DemiBold));
  const int timesWidth = metrics.horizontalAdvance(QStringLiteral("×00")) + 2;
  const int timeWidth = metrics.horizontalAdvance(QStringLiteral("00:00")) + 2;
  for (std::size_t state = 0; state < m_leads.size(); ++state) {
    const int place = static_cast<int>(state);
    const QRect row = rowRect(place == kTiedPlace ? 3 : 1 + (m_isTurned ? 1 - place : place));
    const Lead& lead = m_leads[state];
    lead.times->setGeometry(row.right() + 1 - timesWidth, row.top(), timesWidth, row.height());
    lead.time->setGeometry(lead.times->x() - timeWidth - 3, row.top(), timeWidth, row.height());
    const int nameWidth = metrics.horizontalAdvance(QStringLiteral("OTTERSX"));
    lead.title->setGeometry(row.left(), row.top(), nameWidth, row.height());
  }
}

void PeriodScores::resizeEvent(QResizeEvent*) {
  layOut();
}

void PeriodScores::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(look.line);
  painter.setBrush(look.surface);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  const QFont usual = Theme::font(Type::Small);
  const QFont bold = Theme::font(Type::Small, QFont::Bold);
  const QFontMetrics metrics(usual);
  const Lead& lead = m_leads[0];
  painter.setPen(look.muted);
  painter.setFont(usual);
  const QRect head = rowRect(0);
  painter.drawText(head, Qt::AlignRight | Qt::AlignVCenter, caption(m_texts, Text::Ahead));
  // From the right: the sum, then the last period, and so on while there is room.
  const int sumWidth = metrics.horizontalAdvance(QStringLiteral("000")) + 4;
  const int width = metrics.horizontalAdvance(QStringLiteral("00")) + Theme::measure()(8);
  int right = lead.time->x() - Theme::measure()(6);
  const int left = lead.title->geometry().right();
  for (std::size_t back = 0; back < m_columns.size(); ++back) {
    const Column& column = m_columns[m_columns.size() - 1 - back];
    const int columnWidth = back == 0 ? sumWidth : width;
    if (right - columnWidth < left)
      break;
    const auto draw = [&](int row, const QString& text) {
      const QRect place = rowRect(row);
      painter.drawText(QRect(right - columnWidth, place.top(), columnWidth, place.height()),
                       Qt::AlignRight | Qt::AlignVCenter, text);
    };
    painter.setPen(look.muted);
    painter.setFont(usual);
    draw(0, column.name);
    painter.setPen(look.ink);
    painter.setFont(back == 0 ? bold : usual);
    for (const Side team : kSides)
      draw(1 + static_cast<int>(m_isTurned ? otherSide(team) : team), column.points[team]);
    right -= columnWidth;
  }
}

} // namespace hooptab
