#include "season/SeriesPicture.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/Module1.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

using Unit = SeriesDrawing::Unit;
using Style = SeriesDrawing::Style;

constexpr double kPale = 0.42; // of the colour, of bars that do not stand out

// The least of 1, 2, 5, 10, 20 ... (of times 60, 120, 300 ...; of percentages 10 and up) that leaves at most
// so many steps.
double stepOf(double span, int mostSteps, Unit unit) {
  const double base = unit == Unit::Time ? 60 : unit == Unit::Percent ? 0.1 : 1;
  for (double scale = base;; scale *= 10) {
    for (const double factor : {1.0, 2.0, 5.0}) {
      if (span <= factor * scale * mostSteps)
        return factor * scale;
    }
  }
}

// Where everything stands; the same for drawing and for finding a value under the pointer.
struct Layout {
  QRectF plot;
  double low = 0, high = 1, step = 1;
  double slot = 1; // width of a value's place

  [[nodiscard]] double x(std::size_t value) const {
    return plot.left() + (static_cast<double>(value) + 0.5) * slot;
  }
  [[nodiscard]] double y(double value) const {
    return plot.bottom() - (value - low) / (high - low) * plot.height();
  }
};

Layout layOut(const QFontMetricsF& metrics, const QRectF& area, const SeriesDrawing& drawing) {
  Layout layout;
  double low = 0;
  double high = 0;
  for (const auto& value : drawing.values) {
    low = std::min(low, value.value_or(0));
    high = std::max(high, value.value_or(0));
  }
  const double lineHeight = metrics.height();
  const double top = area.top() + 2.2 * lineHeight;
  const bool hasNumbersBelow = drawing.style == Style::Margins && low < 0; // under the lowest bar
  const double bottom = area.bottom() - (hasNumbersBelow ? 2.7 : 1.8) * lineHeight;
  const int mostSteps = std::clamp(static_cast<int>((bottom - top) / (1.6 * lineHeight)), 1, 8);
  layout.step =
      stepOf(std::max(high - low, drawing.unit == Unit::Percent ? 0.1 : 1.0), mostSteps, drawing.unit);
  layout.low = std::floor(low / layout.step) * layout.step;
  layout.high = std::max(std::ceil(high / layout.step) * layout.step, layout.low + layout.step);
  double labels = 0;
  for (const double value : {layout.low, layout.high})
    labels = std::max(labels, metrics.horizontalAdvance(SeriesPicture::valueText(value, drawing.unit)));
  const double edge = lineHeight * 0.5;
  layout.plot = QRectF(QPointF(area.left() + labels + 2 * edge, top), QPointF(area.right() - edge, bottom));
  layout.slot = layout.plot.width() / static_cast<double>(std::max<std::size_t>(drawing.values.size(), 1));
  return layout;
}

void paintAxes(QPainter& painter, const SeriesColours& colours, const Layout& layout,
               const SeriesDrawing& drawing, const QRectF& area) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double half = metrics.height() / 2;
  const int steps = static_cast<int>(std::lround((layout.high - layout.low) / layout.step));
  for (int i = 0; i <= steps; ++i) {
    const double value = layout.low + i * layout.step;
    const double y = layout.y(value);
    const bool isZero = std::abs(value) < layout.step / 2;
    painter.setPen(QPen(isZero ? colours.muted : colours.grid, 0));
    painter.drawLine(QPointF(layout.plot.left(), y), QPointF(layout.plot.right(), y));
    painter.setPen(colours.muted);
    painter.drawText(QRectF(area.left(), y - half, layout.plot.left() - area.left() - half, 2 * half),
                     Qt::AlignRight | Qt::AlignVCenter, SeriesPicture::valueText(value, drawing.unit));
  }
  // As many labels as have room, none over its neighbour.
  double free = area.left();
  for (std::size_t i = 0; i < drawing.values.size() && i < static_cast<std::size_t>(drawing.labels.size());
       ++i) {
    const QString& label = drawing.labels[static_cast<qsizetype>(i)];
    const double width = metrics.horizontalAdvance(label);
    const double left = layout.x(i) - width / 2;
    if (left < free || left + width > area.right())
      continue;
    painter.drawText(QRectF(left, area.bottom() - 3 * half, width + 1, 2 * half), Qt::AlignCenter, label);
    free = left + width + half * 2;
  }
}

void paintAverage(QPainter& painter, const SeriesColours& colours, const Layout& layout,
                  const SeriesDrawing& drawing, double pixel) {
  if (!drawing.average || drawing.values.empty())
    return;
  const double y = layout.y(*drawing.average);
  painter.setPen(QPen(colours.average, 1.6 * pixel, Qt::DashLine));
  painter.drawLine(QPointF(layout.plot.left(), y), QPointF(layout.plot.right(), y));
}

void paintLine(QPainter& painter, const SeriesColours& colours, const Layout& layout,
               const SeriesDrawing& drawing, double pixel) {
  QPainterPath path;
  bool isDrawing = false;
  for (std::size_t i = 0; i < drawing.values.size(); ++i) {
    const auto& value = drawing.values[i];
    if (value) {
      const QPointF place(layout.x(i), layout.y(*value));
      if (isDrawing)
        path.lineTo(place);
      else
        path.moveTo(place);
    }
    isDrawing = value.has_value();
  }
  painter.setPen(QPen(colours.line, 2 * pixel));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
  const double radius = std::clamp(layout.slot * 0.25, 1.0 * pixel, 4.0 * pixel);
  painter.setPen(QPen(colours.ground, pixel));
  painter.setBrush(colours.line);
  for (std::size_t i = 0; i < drawing.values.size(); ++i) {
    if (drawing.values[i])
      painter.drawEllipse(QPointF(layout.x(i), layout.y(*drawing.values[i])), radius, radius);
  }
}

// A bar, and its number where there is room.
void paintBars(QPainter& painter, const SeriesColours& colours, const Layout& layout,
               const SeriesDrawing& drawing, double pixel) {
  const double width = std::clamp(layout.slot * 0.7, 0.5 * pixel, 26 * pixel);
  const QFontMetricsF metrics(painter.font(), painter.device());
  const bool hasNumbers = layout.slot > metrics.horizontalAdvance(QStringLiteral("+00"));
  const bool isMargins = drawing.style == Style::Margins;
  const std::size_t latest = drawing.values.size() - std::min(drawing.latest, drawing.values.size());
  for (std::size_t i = 0; i < drawing.values.size(); ++i) {
    if (!drawing.values[i] && !isMargins)
      continue;
    const double value = drawing.values[i].value_or(0);
    const QColor colour = !isMargins  ? mix(colours.line, colours.ground, i < latest ? kPale : 1)
                          : value < 0 ? colours.below
                                      : colours.above;
    const QRectF bar = QRectF(QPointF(layout.x(i) - width / 2, layout.y(value)),
                              QPointF(layout.x(i) + width / 2, layout.y(0)))
                           .normalized();
    painter.fillRect(bar, colour);
    if (!hasNumbers)
      continue;
    const double height = metrics.height();
    const QRectF room(layout.x(i) - layout.slot / 2, value < 0 ? bar.bottom() : bar.top() - height,
                      layout.slot, height);
    painter.setPen(colours.text);
    painter.drawText(room, Qt::AlignCenter,
                     (value > 0 && isMargins ? QStringLiteral("+") : QString()) +
                         SeriesPicture::valueText(value, drawing.unit));
  }
}

} // namespace

SeriesColours SeriesColours::ofScreen() {
  const QPalette palette = QGuiApplication::palette();
  return {palette.color(QPalette::Base),
          palette.color(QPalette::Text),
          Theme::muted(),
          palette.color(QPalette::Mid),
          Theme::accent(),
          palette.color(QPalette::Text),
          Theme::made(),
          Theme::missed()};
}

SeriesColours SeriesColours::ofPaper() {
  const QPalette palette = Theme::palette(ColourScheme::Light);
  return {Qt::white,
          Qt::black,
          QColor(0x50, 0x50, 0x50),
          QColor(0xD0, 0xD0, 0xD0),
          palette.color(QPalette::Link),
          Qt::black,
          QColor(0x0A, 0x59, 0x2D),
          QColor(0xCA, 0x2C, 0x20)};
}

QString SeriesPicture::valueText(double value, Unit unit) {
  constexpr int kPercent = 100;
  switch (unit) {
  case Unit::Count: return QString::number(std::lround(value));
  case Unit::Percent: return QString::number(std::lround(value * kPercent)) + u'%';
  case Unit::Time: break;
  }
  return toQt(Module1::clockText(static_cast<int>(std::lround(value))));
}

void SeriesPicture::paint(QPainter& painter, const QRectF& area, const SeriesDrawing& drawing,
                          std::optional<std::size_t> highlighted) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(area, m_colours.ground);
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double pixel = metrics.height() / 16; // of a common screen, also on paper
  const Layout layout = layOut(metrics, area, drawing);

  QFont bold = painter.font();
  bold.setBold(true);
  const QRectF head(area.left() + metrics.height() / 2, area.top(), area.width() - metrics.height(),
                    metrics.height() * 1.8);
  painter.setPen(m_colours.text);
  painter.drawText(head, Qt::AlignRight | Qt::AlignVCenter, drawing.averageText);
  const double room = head.width() - metrics.horizontalAdvance(drawing.averageText) - metrics.height();
  painter.setFont(bold);
  painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter,
                   QFontMetricsF(bold, painter.device()).elidedText(drawing.title, Qt::ElideRight, room));
  QFont plain = bold;
  plain.setBold(false);
  painter.setFont(plain);

  if (highlighted && *highlighted < drawing.values.size()) {
    QColor mark = m_colours.muted;
    mark.setAlphaF(0.25F);
    const double width = std::max(layout.slot, 3 * pixel);
    painter.fillRect(
        QRectF(layout.x(*highlighted) - width / 2, layout.plot.top(), width, layout.plot.height()), mark);
  }
  paintAxes(painter, m_colours, layout, drawing, area);
  if (drawing.style != Style::Line)
    paintBars(painter, m_colours, layout, drawing, pixel);
  else
    paintLine(painter, m_colours, layout, drawing, pixel);
  paintAverage(painter, m_colours, layout, drawing, pixel);
  painter.restore();
}

std::optional<std::size_t> SeriesPicture::valueAt(const QPaintDevice& device, const QFont& font,
                                                  const QRectF& area, const SeriesDrawing& drawing,
                                                  const QPointF& place) {
  const Layout layout = layOut(QFontMetricsF(font, &device), area, drawing);
  if (drawing.values.empty() || !layout.plot.adjusted(0, -area.height(), 0, area.height()).contains(place))
    return std::nullopt;
  const auto slot = static_cast<std::size_t>((place.x() - layout.plot.left()) / layout.slot);
  return std::min(slot, drawing.values.size() - 1);
}

} // namespace hooptab
