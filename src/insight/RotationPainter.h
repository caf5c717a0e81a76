// Draws who was on court when: a row for each player, a bar for each stay in the colour of its plus-minus,
// on the time axis of the chart above it. On screen and on paper alike.
#pragma once

#include "insight/FlowLayout.h"
#include "insight/FlowPalette.h"
#include "insight/RotationLayout.h"

#include <QPainter>
#include <QRectF>
#include <QString>

#include <string>
#include <vector>

namespace hooptab {

class RotationPainter {
 public:
  // All must outlive it. `time` says where a time stands.
  RotationPainter(const PerSide<std::vector<RotationRow>>& rows, const FlowLayout& time,
                  const FlowPalette& palette, const FlowType& type)
      : m_rows(rows), m_time(time), m_palette(palette), m_type(type) {}

  // `titles` are the teams' names, `minutes` the head of the column of times. The names stand left of the
  // time axis, time on court and plus-minus right of it, all within `left` and `right`.
  struct Frame {
    double left = 0;
    double right = 0;
    PerSide<std::string> titles;
    std::string minutes;
  };
  void paint(QPainter& painter, const RotationLayout& layout, const Frame& frame) const;

 private:
  void paintHead(QPainter& painter, const QRectF& box, const Frame& frame, Side team) const;
  void paintRow(QPainter& painter, const QRectF& box, const RotationRow& row) const;
  void paintStay(QPainter& painter, const QRectF& bar, const Stay& stay) const;
  void drawText(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text) const;
  [[nodiscard]] double minutesEnd(double right) const;
  [[nodiscard]] double px(double pixels) const { return pixels * m_type.pixel; }

  const PerSide<std::vector<RotationRow>>& m_rows;
  const FlowLayout& m_time;
  const FlowPalette& m_palette;
  const FlowType& m_type;
};

} // namespace hooptab
