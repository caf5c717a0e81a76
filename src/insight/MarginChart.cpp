#include "insight/MarginChart.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>

namespace hooptab {

void MarginChart::showGame(std::shared_ptr<const CountedGame> game) {
  m_game = std::move(game);
  m_flow = marginFlowOf(m_game->game);
  update();
}

void MarginChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Look& look = Theme::look();
  const int title = painter.fontMetrics().height() + 4;
  painter.setFont(Theme::font(Type::Body, QFont::DemiBold));
  painter.setPen(look.muted);
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, caption(m_texts, Text::ScoreDifference));
  if (m_game == nullptr || m_flow.steps.empty() || m_flow.length() <= m_flow.periods.front().begin)
    return;
  const QRectF area(30, title, width() - 40, height() - title);
  const int begin = m_flow.periods.front().begin;
  int most = 5;
  for (const MarginFlow::Step& step : m_flow.steps)
    most = std::max(most, std::abs(step.margin()));
  const auto x = [&](int at) {
    return area.left() + area.width() * (at - begin) / (m_flow.length() - begin);
  };
  const auto y = [&](int margin) { return area.center().y() - area.height() / 2 * margin / most; };
  for (std::size_t i = 0; i < m_flow.steps.size(); ++i) {
    const MarginFlow::Step& step = m_flow.steps[i];
    const int end = i + 1 < m_flow.steps.size() ? m_flow.steps[i + 1].at : m_flow.length();
    const Side leader = step.margin() > 0 ? Side::Visitor : Side::Home;
    QColor colour = colourOf(m_game->game.details.teamColour[leader]);
    colour.setAlphaF(0.5F);
    painter.fillRect(QRectF(QPointF(x(step.at), y(step.margin())), QPointF(x(end), y(0))).normalized(),
                     colour);
  }
  painter.setPen(look.ink);
  painter.drawLine(QPointF(area.left(), y(0)), QPointF(area.right(), y(0)));
}

} // namespace hooptab
