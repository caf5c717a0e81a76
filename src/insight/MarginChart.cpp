#include "insight/MarginChart.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/MarginPainter.h"
#include "storage/Placeholders.h"

#include <QPainter>

#include <utility>

namespace hooptab {

namespace {

constexpr int kSide = 2; // left and right of what is drawn

// As much of the figures as there is room for, the most telling first.
QString fitting(std::vector<std::string> parts, const QFontMetricsF& metrics, double room) {
  while (parts.size() > 1 && metrics.horizontalAdvance(toQt(inOneLine(parts))) > room)
    parts.pop_back();
  return metrics.elidedText(toQt(inOneLine(parts)), Qt::ElideRight, room);
}

} // namespace

MarginChart::MarginChart(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  setObjectName(QStringLiteral("picMARGIN"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void MarginChart::showGame(std::shared_ptr<const CountedGame> counted) {
  m_counted = std::move(counted);
  relabelChart();
}

void MarginChart::relabelChart() {
  if (m_counted == nullptr)
    return;
  m_drawing = flowDrawing(m_counted->game, m_texts);
  const std::string words =
      m_drawing.emptyWords.empty() ? inOneLine(flowSummary(m_drawing, m_texts)) : m_drawing.emptyWords;
  setAccessibleName(caption(m_texts, Text::ScoreDifference));
  setAccessibleDescription(toQt(words));
  setToolTip(toQt(words));
  update();
}

QSize MarginChart::sizeHint() const {
  const Measure& m = Theme::measure();
  return {m(510, 720), m(130, 172)};
}

QSize MarginChart::minimumSizeHint() const {
  const Measure& m = Theme::measure();
  return {m(260), m(100)};
}

FlowType MarginChart::type() {
  return {Theme::font(Type::Small), Theme::font(Type::Small, QFont::Bold), Theme::measure()(10, 12) / 10.0};
}

bool MarginChart::hasPicture() const {
  return m_counted != nullptr && m_drawing.emptyWords.empty();
}

// Larger than it is shown, hence with all its signs.
void MarginChart::paintPicture(QPainter& painter, const QRectF& area) const {
  const FlowPalette palette(lookOf(ColourScheme::Light), m_drawing.colours);
  MarginPainter(m_drawing, palette, type(), MarginPainter::Detail::Full).paint(painter, area);
}

void MarginChart::paintEvent(QPaintEvent*) {
  const Measure& m = Theme::measure();
  QPainter painter(this);
  const Look& look = Theme::look();
  const QRectF head(m(kSide), 0, width() - 2 * m(kSide), m(22, 28));
  const QFont strong = Theme::font(Type::Body, QFont::DemiBold);
  const QString title = caption(m_texts, Text::ScoreDifference);
  painter.setFont(strong);
  painter.setPen(look.ink);
  painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
  const FlowType type = this->type();
  if (hasPicture()) {
    painter.setFont(type.text);
    painter.setPen(look.muted);
    const double room = head.width() - QFontMetricsF(strong).horizontalAdvance(title) - m(16);
    painter.drawText(head, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                     fitting(flowSummary(m_drawing, m_texts), type.metrics(), room));
  }
  const QRectF area(m(kSide), head.bottom(), width() - 2 * m(kSide), height() - head.bottom());
  const FlowPalette palette(look, m_drawing.colours);
  MarginPainter(m_drawing, palette, type, MarginPainter::Detail::Small).paint(painter, area);
}

} // namespace hooptab
