#include "insight/MarginPainter.h"

#include "appearance/Contrast.h"
#include "appearance/relabel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <QPainterPath>

namespace hooptab {

namespace {

constexpr double kTimeOutSize = 12;
constexpr double kArrow = 8;   // before the words of who is ahead
constexpr double kDiamond = 4; // from its middle to a corner
constexpr double kBracketDrop = 5;
constexpr double kBracketGap = 2;
constexpr double kCurve = 1.6;
constexpr double kLargeCurve = 2;
constexpr double kTick = 4;
const QString kCertain = QStringLiteral("100%");
const QString kEven = QStringLiteral("50%");
const QString kNever = QStringLiteral("0%");
const QString kTimeOutSign = QStringLiteral("T");

FlowLayout::Plot plotOf(const QRectF& box) {
  return {box.left(), box.top(), box.width(), box.height()};
}

// In the middle of a place on the base line that centres the letters.
void drawCentred(QPainter& painter, QPointF middle, const QString& text, const QFontMetricsF& metrics) {
  painter.drawText(QPointF(middle.x() - metrics.horizontalAdvance(text) / 2,
                           middle.y() + (metrics.ascent() - metrics.descent()) / 2),
                   text);
}

QPen penOf(const QColor& colour, double width) {
  return {colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

} // namespace

void paintTimeOut(QPainter& painter, QPointF middle, const QColor& colour, const QColor& ground,
                  const FlowType& type) {
  const double size = kTimeOutSize * type.pixel;
  painter.setPen(QPen(outlineOf(colour, ground), type.pixel));
  painter.setBrush(colour);
  painter.drawRoundedRect(QRectF(middle.x() - size / 2, middle.y() - size / 2, size, size), 2 * type.pixel,
                          2 * type.pixel);
  painter.setPen(textOn(colour));
  QFont font = type.strong;
  font.setPixelSize(static_cast<int>(std::lround(size * 0.8)));
  painter.setFont(font);
  drawCentred(painter, middle, kTimeOutSign, QFontMetricsF(font));
}

void paintLeadChange(QPainter& painter, QPointF middle, const Look& look, double pixel) {
  const double reach = kDiamond * pixel;
  painter.setPen(QPen(look.ink, pixel));
  painter.setBrush(look.surface);
  const QPointF corners[] = {middle + QPointF(0, -reach), middle + QPointF(reach, 0),
                             middle + QPointF(0, reach), middle + QPointF(-reach, 0)};
  painter.drawPolygon(std::data(corners), std::size(corners));
}

MarginPainter::MarginPainter(const FlowDrawing& drawing, const FlowPalette& palette, const FlowType& type,
                             Detail detail)
    : m_drawing(drawing), m_palette(palette), m_type(type), m_detail(detail) {}

QRectF MarginPainter::plotIn(const QRectF& area) const {
  const QFontMetricsF text = m_type.metrics();
  const double labels = text.horizontalAdvance(QStringLiteral("000")) + px(6);
  const double above =
      m_detail == Detail::Full ? text.height() + px(kBracketDrop + kBracketGap) : text.height() / 2;
  return area.adjusted(labels, above, -px(1), -text.height() - px(4));
}

FlowLayout MarginPainter::layout(const QRectF& plot) const {
  return {m_drawing.flow, plotOf(plot)};
}

void MarginPainter::paintGrid(QPainter& painter, const QRectF& plot) const {
  const Look& look = m_palette.look;
  const FlowLayout layout = this->layout(plot);
  const QFontMetricsF text = m_type.metrics();
  painter.setPen(penOf(look.line, px(1)));
  for (const int margin : layout.gridLines()) {
    const double y = std::round(layout.y(margin)) + px(0.5);
    painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
  }
  painter.setFont(m_type.text);
  painter.setPen(look.muted);
  for (const int margin : layout.labels(text.height() * 1.1)) {
    const QString number = QString::number(std::abs(margin));
    painter.drawText(QPointF(plot.left() - px(6) - text.horizontalAdvance(number),
                             layout.y(margin) + (text.ascent() - text.descent()) / 2),
                     number);
  }
  const auto& periods = m_drawing.flow.periods;
  for (std::size_t i = 0; i < periods.size(); ++i) {
    const double left = layout.x(periods[i].begin);
    const double right = layout.x(periods[i].end);
    if (i > 0) {
      QPen dashed(look.edge, px(1), Qt::CustomDashLine, Qt::FlatCap);
      dashed.setDashPattern({2, 3});
      painter.setPen(dashed);
      painter.drawLine(QPointF(left, plot.top() - px(4)), QPointF(left, plot.bottom()));
    }
    painter.setPen(look.muted);
    for (const std::string& name : {m_drawing.periods[i], m_drawing.shortPeriods[i]}) {
      if (text.horizontalAdvance(toQt(name)) > right - left)
        continue;
      drawCentred(painter, {(left + right) / 2, plot.bottom() + px(3) + text.height() / 2}, toQt(name), text);
      break;
    }
  }
}

void MarginPainter::paintAreas(QPainter& painter, const FlowLayout& layout) const {
  const MarginFlow& flow = m_drawing.flow;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (const Side team : kSides) {
    QPainterPath area;
    for (std::size_t i = 0; i < flow.steps.size(); ++i) {
      const int margin = flow.steps[i].margin();
      if (margin == 0 || (margin > 0) != (team == Side::Visitor))
        continue;
      const double left = layout.x(flow.steps[i].at);
      const double right = layout.x(i + 1 < flow.steps.size() ? flow.steps[i + 1].at : flow.length());
      area.addRect(QRectF(QPointF(left, layout.y(margin)), QPointF(right, layout.y(0))).normalized());
    }
    painter.fillPath(area, m_palette.area(team));
    if (!m_palette.areAlike || team == Side::Visitor)
      continue;
    painter.save();
    painter.setClipPath(area);
    painter.setPen(penOf(m_palette.stroke(team), px(2)));
    const double height = layout.plot().height;
    for (double x = layout.plot().left - height; x < layout.plot().right(); x += px(6) * M_SQRT2)
      painter.drawLine(QPointF(x, layout.plot().bottom()), QPointF(x + height, layout.plot().top));
    painter.restore();
  }
  painter.restore();
}

void MarginPainter::paintCurve(QPainter& painter, const QRectF& plot) const {
  const FlowLayout layout = this->layout(plot);
  const Look& look = m_palette.look;
  paintAreas(painter, layout);
  painter.setPen(penOf(look.ink, px(1)));
  const double zero = std::round(layout.y(0)) + px(0.5);
  painter.drawLine(QPointF(plot.left(), zero), QPointF(plot.right(), zero));
  QPolygonF curve = {{plot.left(), layout.y(0)}};
  for (const MarginFlow::Step& step : m_drawing.flow.steps) {
    curve << QPointF(layout.x(step.at), curve.last().y());
    curve << QPointF(layout.x(step.at), layout.y(step.margin()));
  }
  curve << QPointF(plot.right(), curve.last().y());
  painter.setPen(penOf(look.ink, px(m_detail == Detail::Full ? kLargeCurve : kCurve)));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(curve);
  if (m_detail == Detail::Full) {
    paintLeadChanges(painter, layout);
    paintTimeOuts(painter, layout);
    paintBrackets(painter, layout);
  }
  for (const Side team : kSides)
    paintAhead(painter, plot, team);
}

// At the edge of the half in which the team leads.
QRectF MarginPainter::aheadBox(const FlowLayout& layout, Side team) const {
  const QFontMetricsF metrics = m_type.strongMetrics();
  const QSizeF size(px(kArrow + 4) + metrics.horizontalAdvance(toQt(m_drawing.ahead[team])),
                    metrics.height());
  const double air = px(3);
  const double left = layout.textPlace(team, size.width() + 2 * air, size.height() + air) + air;
  const double top =
      team == Side::Visitor ? layout.plot().top + air : layout.plot().bottom() - air - size.height();
  return {QPointF(left, top), size};
}

void MarginPainter::paintAhead(QPainter& painter, const QRectF& plot, Side team) const {
  const QFontMetricsF metrics = m_type.strongMetrics();
  const QRectF box = aheadBox(layout(plot), team);
  const double middle = box.center().y();
  const double arrow = px(kArrow);
  QColor ground = m_palette.look.surface;
  ground.setAlphaF(0.75F); // where the curve runs there the words stay readable
  painter.fillRect(box, ground);
  const double tip = team == Side::Visitor ? -arrow / 2 : arrow / 2;
  const QPointF corners[] = {
      {box.left(), middle - tip}, {box.left() + arrow, middle - tip}, {box.left() + arrow / 2, middle + tip}};
  painter.setPen(Qt::NoPen);
  painter.setBrush(m_palette.words(team));
  painter.drawPolygon(std::data(corners), std::size(corners));
  painter.setPen(m_palette.words(team));
  painter.setFont(m_type.strong);
  painter.drawText(QPointF(box.left() + arrow + px(3), middle + (metrics.ascent() - metrics.descent()) / 2),
                   toQt(m_drawing.ahead[team]));
}

void MarginPainter::paintResult(QPainter& painter, const QRectF& plot, double leftEnd,
                                double rightEnd) const {
  const QFontMetricsF metrics = m_type.strongMetrics();
  const int margin = m_drawing.flow.steps.empty() ? 0 : m_drawing.flow.steps.back().margin();
  painter.setFont(m_type.strong);
  painter.setPen(margin == 0 ? m_palette.look.ink : m_palette.words(margin > 0 ? Side::Visitor : Side::Home));
  const double left = leftEnd + px(8);
  painter.drawText(QPointF(left, layout(plot).y(margin) + (metrics.ascent() - metrics.descent()) / 2),
                   metrics.elidedText(toQt(m_drawing.result), Qt::ElideRight, rightEnd - left));
}

void MarginPainter::paintBrackets(QPainter& painter, const FlowLayout& layout) const {
  const QFontMetricsF metrics = m_type.strongMetrics();
  const double top = layout.plot().top - px(kBracketDrop);
  painter.setFont(m_type.strong);
  for (const auto& [run, left, right] : layout.brackets(metrics.horizontalAdvance(QStringLiteral("00–0 ")))) {
    painter.setPen(penOf(m_palette.stroke(run->team), px(2)));
    painter.setBrush(Qt::NoBrush);
    const QPointF corners[] = {
        {left, top + px(kBracketDrop)}, {left, top}, {right, top}, {right, top + px(kBracketDrop)}};
    painter.drawPolyline(std::data(corners), std::size(corners));
    painter.setPen(m_palette.words(run->team));
    drawCentred(painter, {(left + right) / 2, top - px(kBracketGap) - metrics.height() / 2},
                QString::number(run->points) + QStringLiteral("–0"), metrics);
  }
}

void MarginPainter::paintTimeOuts(QPainter& painter, const FlowLayout& layout) const {
  const QRectF words = aheadBox(layout, Side::Home);
  const std::vector<int> rows = layout.timeOutRows(px(kTimeOutSize + 2), words.left(), words.right());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const MarginFlow::TimeOut& timeOut = m_drawing.flow.timeOuts[i];
    const QPointF middle(layout.x(timeOut.at),
                         layout.plot().bottom() - px(9) - rows[i] * px(kTimeOutSize + 2));
    paintTimeOut(painter, middle, timeOut.team ? m_palette.teams[*timeOut.team] : m_palette.look.edge,
                 m_palette.look.surface, m_type);
  }
}

void MarginPainter::paintLeadChanges(QPainter& painter, const FlowLayout& layout) const {
  for (const std::size_t step : m_drawing.flow.leadChanges)
    paintLeadChange(painter, {layout.x(m_drawing.flow.steps[step].at), layout.y(0)}, m_palette.look,
                    m_type.pixel);
}

void MarginPainter::paintChances(QPainter& painter, const QRectF& plot,
                                 const std::vector<WinStep>& steps) const {
  const FlowLayout layout = this->layout(plot);
  QPolygonF curve;
  for (const WinStep& step : steps)
    curve << QPointF(layout.x(step.at), plot.top() + plot.height() * step.home);
  painter.setPen(QPen(m_palette.look.accent, px(kLargeCurve), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(curve);
  paintChanceAxis(painter, plot);
}

double MarginPainter::chanceAxisWidth() const {
  const QFontMetricsF text = m_type.metrics();
  return px(kTick + 3) + text.horizontalAdvance(kCertain) + px(3) + 2 * text.height();
}

// In the colour of its curve. The words run down beside the labels, in two lines where one is too short.
void MarginPainter::paintChanceAxis(QPainter& painter, const QRectF& plot) const {
  const QFontMetricsF text = m_type.metrics();
  const QColor colour = m_palette.look.accent;
  const double axis = std::round(plot.right()) + px(0.5);
  const double even = std::round(plot.center().y()) + px(0.5);
  painter.setPen(QPen(colour, px(1), Qt::DotLine, Qt::FlatCap));
  painter.drawLine(QPointF(plot.left(), even), QPointF(axis, even));
  painter.setPen(penOf(colour, px(1)));
  painter.drawLine(QPointF(axis, plot.top()), QPointF(axis, plot.bottom()));
  painter.setFont(m_type.text);
  const double labels = axis + px(kTick + 3);
  const double right = labels + text.horizontalAdvance(kCertain);
  for (const auto& [share, label] : {std::pair(0.0, kCertain), {0.5, kEven}, {1.0, kNever}}) {
    const double y = plot.top() + plot.height() * share;
    painter.drawLine(QPointF(axis, y), QPointF(axis + px(kTick), y));
    painter.drawText(QPointF(right - text.horizontalAdvance(label), y + (text.ascent() - text.descent()) / 2),
                     label);
  }
  painter.save();
  painter.translate(right + px(3) + 2 * text.height(), plot.top());
  painter.rotate(90);
  painter.drawText(QRectF(0, 0, plot.height(), 2 * text.height()),
                   static_cast<int>(Qt::AlignHCenter | Qt::AlignBottom) | Qt::TextWordWrap,
                   toQt(m_drawing.chanceWords));
  painter.restore();
}

void MarginPainter::paint(QPainter& painter, const QRectF& area) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (m_drawing.emptyWords.empty()) {
    const QRectF plot = plotIn(area);
    paintGrid(painter, plot);
    paintCurve(painter, plot);
  } else {
    painter.setFont(m_type.text);
    painter.setPen(m_palette.look.muted);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, toQt(m_drawing.emptyWords));
  }
  painter.restore();
}

} // namespace hooptab
