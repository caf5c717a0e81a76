// Draws the score difference of a game as steps over its time, with the areas in which each team led, on
// screen and on paper alike: small as a curve alone, or with runs, time-outs and lead changes.
#pragma once

#include "insight/FlowDrawing.h"
#include "insight/FlowLayout.h"
#include "insight/FlowPalette.h"
#include "insight/WinProbability.h"

#include <QPainter>
#include <QRectF>

#include <optional>
#include <vector>

namespace hooptab {

class MarginPainter {
 public:
  enum class Detail { Small, Full };
  // All must outlive it.
  MarginPainter(const FlowDrawing& drawing, const FlowPalette& palette, const FlowType& type, Detail detail);

  // The rectangle of the curve, around which the labels of the axes and the runs stand.
  [[nodiscard]] QRectF plotIn(const QRectF& area) const;
  [[nodiscard]] FlowLayout layout(const QRectF& plot) const;

  // What lies below everything, then the curve with its signs. The result stands between
  // both ends, at the right of the plot.
  void paintGrid(QPainter& painter, const QRectF& plot) const;
  void paintCurve(QPainter& painter, const QRectF& plot) const;
  void paintResult(QPainter& painter, const QRectF& plot, double leftEnd, double rightEnd) const;
  // How likely each team was to win: the higher, the likelier for the visitors. Its axis stands at the right
  // of the plot and takes that width.
  [[nodiscard]] double chanceAxisWidth() const;
  void paintChances(QPainter& painter, const QRectF& plot, const std::vector<WinStep>& steps) const;
  // All of it with nothing chosen; or the words of a chart that has nothing to show.
  void paint(QPainter& painter, const QRectF& area) const;

 private:
  void paintAreas(QPainter& painter, const FlowLayout& layout) const;
  [[nodiscard]] QRectF aheadBox(const FlowLayout& layout, Side team) const;
  void paintAhead(QPainter& painter, const QRectF& plot, Side team) const;
  void paintBrackets(QPainter& painter, const FlowLayout& layout) const;
  void paintTimeOuts(QPainter& painter, const FlowLayout& layout) const;
  void paintChanceAxis(QPainter& painter, const QRectF& plot) const;
  void paintLeadChanges(QPainter& painter, const FlowLayout& layout) const;
  [[nodiscard]] double px(double pixels) const { return pixels * m_type.pixel; }

  const FlowDrawing& m_drawing;
  const FlowPalette& m_palette;
  const FlowType& m_type;
  Detail m_detail;
};

// The sign of a time-out, centred there: a letter on the team's colour.
void paintTimeOut(QPainter& painter, QPointF middle, const QColor& colour, const QColor& ground,
                  const FlowType& type);
// The sign of a lead change.
void paintLeadChange(QPainter& painter, QPointF middle, const Look& look, double pixel);

} // namespace hooptab
