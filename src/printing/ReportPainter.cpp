#include "printing/ReportPainter.h"

#include "appearance/Contrast.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtPicture.h"
#include "insight/MarginPainter.h"
#include "printing/FormPainter.h"
#include "printing/ZoneCircles.h"
#include "season/ZoneChart.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr double kHeadGap = 85; // between the head's line and the page's content
constexpr double kFootGap = 45;
constexpr double kThinLine = 4;
constexpr double kScreenPixel = kUnitsPerInch / 96;

QColor grey(double value) {
  return QColor::fromRgbF(static_cast<float>(value), static_cast<float>(value), static_cast<float>(value));
}

CourtPicture paperCourt() {
  return CourtPicture({Qt::white, grey(0.92), Qt::white, grey(0.35)}, kScreenPixel);
}

// Its colour tells how far a zone is from the average, a sign too where there is no colour.
CourtZoneText comparedText(const ZoneWords& zone, double points) {
  CourtZoneText text{zone.zone, toQt(zone.fraction), toQt(zone.percent), strengthOfDifference(points)};
  text.tint = colourOfDifference(points);
  if (points != 0)
    text.lower += points > 0 ? QStringLiteral(" +") : QStringLiteral(" −");
  return text;
}

void paintShots(QPainter& painter, const ShotDrawing& drawing, const QRectF& area, const PageFonts& fonts) {
  constexpr auto kTurn = CourtPicture::Turn::BaselineTop;
  if (drawing.areCircles)
    return paintZoneCircles(painter, drawing, area);
  const bool isCompared = drawing.hasLegend();
  const double legend = isCompared ? legendHeight(area.width()) : 0;
  const QRectF box = area.adjusted(0, 0, 0, -legend);
  const CourtPicture court =
      isCompared ? CourtPicture({Qt::white, Qt::white, Qt::white, grey(0.35)}, kScreenPixel) : paperCourt();
  const QRectF fitted = CourtPicture::fitted(box, kTurn);
  court.paintCourt(painter, fitted, kTurn);
  std::vector<CourtMark> marks;
  for (const ShotDrawing::Mark& mark : drawing.marks)
    marks.push_back({mark.place, mark.isMade});
  court.paintMarks(painter, fitted, kTurn, marks);
  std::vector<CourtZoneText> zones;
  for (std::size_t i = 0; i < drawing.zones.size(); ++i) {
    const ZoneWords& zone = drawing.zones[i];
    zones.push_back(isCompared
                        ? comparedText(zone, drawing.differences[i])
                        : CourtZoneText{zone.zone, toQt(zone.fraction), toQt(zone.percent), zone.strength});
  }
  painter.setFont(fonts.font(PageFont::Cell));
  if (!zones.empty())
    court.paintZones(painter, fitted, kTurn, zones);
  if (isCompared)
    paintDifferenceLegend(painter, area.adjusted(0, area.height() - legend, 0, 0), Qt::black);
}

// A round step that gives at most so many lines of a grid.
double gridStep(double most, int lines) {
  const double least = most / lines;
  for (double step = 1;; step *= 10) {
    for (const double factor : {1.0, 2.0, 5.0}) {
      if (step * factor >= least)
        return step * factor;
    }
  }
}

void paintLines(QPainter& painter, const LineDrawing& drawing, const QRectF& box, const PageFonts& fonts) {
  double right = 1;
  double most = 1;
  for (const LineDrawing::Line& line : drawing.lines) {
    for (const auto& [x, y] : line.points) {
      right = std::max(right, x);
      most = std::max(most, y);
    }
  }
  const double text = fonts.lineHeight(PageFont::Cell);
  const double step = gridStep(most, 6);
  const double top = std::ceil(most / step) * step;
  double nameWidth = 0;
  for (const LineDrawing::Line& line : drawing.lines)
    nameWidth = std::max(nameWidth, fonts.width(PageFont::BoldCell, toQt(line.name)));
  const double numberWidth = fonts.width(PageFont::Cell, QString::number(top));
  const QRectF plot = box.adjusted(numberWidth + text / 2, text / 2, -nameWidth - text, -text * 1.5);
  const auto at = [&](double x, double y) {
    return QPointF(plot.left() + x / right * plot.width(), plot.bottom() - y / top * plot.height());
  };

  painter.setFont(fonts.font(PageFont::Cell));
  const double ascent = fonts.ascent(PageFont::Cell);
  for (double y = 0; y <= top; y += step) {
    painter.setPen(QPen(grey(y == 0 ? 0 : 0.75), kThinLine));
    painter.drawLine(at(0, y), at(right, y));
    painter.setPen(Qt::black);
    const QString number = QString::number(y);
    painter.drawText(QPointF(plot.left() - text / 3 - fonts.width(PageFont::Cell, number),
                             at(0, y).y() + ascent / 2 - ascent * 0.1),
                     number);
  }
  for (std::size_t i = 0; i < drawing.ticks.size(); ++i) {
    const LineDrawing::Tick& tick = drawing.ticks[i];
    painter.setPen(QPen(grey(0.55), kThinLine, i == 0 ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(at(tick.at, 0), at(tick.at, top));
    if (i + 1 == drawing.ticks.size())
      break;
    painter.setPen(Qt::black);
    const QString name = toQt(tick.text);
    const double middle = (at(tick.at, 0).x() + at(drawing.ticks[i + 1].at, 0).x()) / 2;
    painter.drawText(
        QPointF(middle - fonts.width(PageFont::Cell, name) / 2, plot.bottom() + ascent + text / 4), name);
  }

  // The first line solid, the second one dashed: without any colour.
  painter.setFont(fonts.font(PageFont::BoldCell));
  double previousName = -text * 10;
  for (std::size_t i = 0; i < drawing.lines.size(); ++i) {
    const LineDrawing::Line& line = drawing.lines[i];
    QPolygonF polygon;
    for (const auto& [x, y] : line.points)
      polygon << at(x, y);
    QPen pen(Qt::black, i == 0 ? 16 : 11, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    if (i > 0)
      pen.setDashPattern({3, 1.6});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(polygon);
    if (polygon.isEmpty())
      continue;
    // Two names do not stand on each other where the score is close.
    double y = std::clamp(polygon.last().y() + ascent / 2, box.top() + ascent, box.bottom() - text);
    if (std::abs(y - previousName) < text)
      y = previousName + (y >= previousName ? text : -text);
    previousName = y;
    painter.setPen(Qt::black);
    painter.drawText(QPointF(plot.right() + text / 2, y), toQt(line.name));
  }
}

void paintFlow(QPainter& painter, const FlowDrawing& drawing, const QRectF& box, const PageFonts& fonts) {
  const FlowPalette palette(lookOf(ColourScheme::Light), drawing.colours);
  const FlowType type{fonts.font(PageFont::Cell), fonts.font(PageFont::BoldCell), kScreenPixel};
  MarginPainter(drawing, palette, type, MarginPainter::Detail::Full).paint(painter, box);
}

void paintTag(QPainter& painter, const PageTag& tag, const PageFonts& fonts) {
  constexpr double kRadius = 20;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(tag.colour);
  painter.setPen(QPen(outlineOf(tag.colour, Qt::white), kThinLine));
  painter.drawRoundedRect(tag.box, kRadius, kRadius);
  painter.setFont(fonts.font(PageFont::BoldBody));
  painter.setPen(textOn(tag.colour));
  const double width = fonts.width(PageFont::BoldBody, tag.text);
  painter.drawText(
      QPointF(tag.box.center().x() - width / 2, tag.box.top() + fonts.ascent(PageFont::BoldBody)), tag.text);
  painter.restore();
}

void paintFrame(QPainter& painter, const PageFrame& frame) {
  constexpr double kRadius = 25;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(grey(0.35), kThinLine));
  painter.drawRoundedRect(frame.box, kRadius, kRadius);
  painter.restore();
}

void paintHeadAndFoot(QPainter& painter, const ReportLayout& layout, std::size_t page,
                      const PagesAround& around) {
  const PageFonts& fonts = layout.fonts();
  const QRectF body = layout.body();
  const Report& report = layout.report();
  const double line = fonts.lineHeight(PageFont::Cell);
  const auto draw = [&](PageFont font, const QString& text, double x, double top) {
    painter.setFont(fonts.font(font));
    painter.drawText(QPointF(x, top + fonts.ascent(font)), text);
  };
  const auto drawAtRight = [&](PageFont font, const QString& text, double top) {
    draw(font, text, body.right() - fonts.width(font, text), top);
  };
  painter.setPen(Qt::black);
  const double headTop = body.top() - kHeadGap - line;
  const QString title = fonts.elided(PageFont::Cell, toQt(report.title), body.width() / 2 - line);
  const double besideTitle = body.width() - fonts.width(PageFont::Cell, title) - 2 * line;
  draw(PageFont::BoldCell, fonts.elided(PageFont::BoldCell, toQt(report.subject), besideTitle), body.left(),
       headTop);
  drawAtRight(PageFont::Cell, title, headTop);
  const double footTop = body.bottom() + kFootGap;
  draw(PageFont::Cell, QStringLiteral("HOOPTAB Basketball"), body.left(), footTop);
  const std::string pages = layout.isDone()
                                ? std::to_string(around.before + layout.pages().size() + around.behind)
                                : std::string("…"); // more are to come
  const std::string number = std::to_string(around.before + page + 1);
  drawAtRight(PageFont::Cell, toQt(withPlaceholders(report.pageWords, number, pages)), footTop);
  painter.setPen(QPen(Qt::black, kThinLine));
  painter.drawLine(QPointF(body.left(), headTop + line + kHeadGap / 5),
                   QPointF(body.right(), headTop + line + kHeadGap / 5));
}

} // namespace

void paintDrawing(QPainter& painter, const ReportPicture& picture, const QRectF& box,
                  const PageFonts& fonts) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (const auto* shots = std::get_if<ShotDrawing>(&picture.drawing))
    paintShots(painter, *shots, box, fonts);
  else if (const auto* flow = std::get_if<FlowDrawing>(&picture.drawing))
    paintFlow(painter, *flow, box, fonts);
  else
    paintLines(painter, std::get<LineDrawing>(picture.drawing), box, fonts);
  painter.restore();
}

void paintPage(QPainter& painter, const ReportLayout& layout, std::size_t page, const PagesAround& around) {
  const ReportPage& content = layout.pages()[page];
  const PageFonts& fonts = layout.fonts();
  painter.save();
  if (content.form != nullptr) {
    paintForm(painter, *content.form, layout.size(), fonts);
    painter.restore();
    return;
  }
  paintHeadAndFoot(painter, layout, page, around);
  for (const PageFill& fill : content.fills)
    painter.fillRect(fill.box, fill.colour.isValid() ? fill.colour : grey(fill.grey));
  for (const PageFrame& frame : content.frames)
    paintFrame(painter, frame);
  for (const PageLine& line : content.lines) {
    painter.setPen(QPen(Qt::black, line.width, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(line.from, line.to);
  }
  for (const PageTag& tag : content.tags)
    paintTag(painter, tag, fonts);
  for (const PagePicture& picture : content.pictures)
    paintDrawing(painter, *picture.picture, picture.box, fonts);
  constexpr double kPale = 0.42; // seen on a grey row as well
  for (const PageFont font : {PageFont::Title, PageFont::Heading, PageFont::Body, PageFont::BoldBody,
                              PageFont::Cell, PageFont::BoldCell}) {
    painter.setFont(fonts.font(font)); // once each: changing it is dear
    for (const PageText& text : content.texts) {
      if (text.font != font)
        continue;
      painter.setPen(text.isPale ? grey(kPale) : QColor(Qt::black));
      painter.drawText(QPointF(text.box.left(), text.box.top() + fonts.ascent(font)), text.text);
    }
  }
  painter.restore();
}

} // namespace hooptab
