// Draws the half court, shots and zone sums with a QPainter, at any scale, on screen and on paper alike.
#pragma once

#include "appearance/Theme.h"
#include "court/CourtGeometry.h"
#include "settings/Settings.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <cstdint>
#include <vector>

namespace hooptab {

struct CourtColours {
  QColor twoPoints, box, threePoints;
  QColor line = {};        // not valid: dark or light, whichever stands out from the zones
  QColor halo = Qt::white; // around the crosses
  friend bool operator==(const CourtColours&, const CourtColours&) = default;
};

// The colours of the settings as the look wears them: calm, so that marks and teams stand out, or as they
// were set. On paper they are never worn.
[[nodiscard]] CourtColours wornCourt(const ChosenColours& chosen,
                                     CourtStrength strength = Theme::courtStrength());

struct CourtMark {
  court::Place place;
  bool isMade = false;
  bool isHighlighted = false;
  friend bool operator==(const CourtMark&, const CourtMark&) = default;
};

struct CourtZoneText {
  court::ChartZone zone = court::ChartZone::Paint;
  QString upper;       // "5/12"
  QString lower;       // "41.7%"
  double strength = 0; // 0..1, how strongly the zone is tinted
  QString toolTip = {};
  QColor tint = {}; // not valid: the usual one
  friend bool operator==(const CourtZoneText&, const CourtZoneText&) = default;
};

class CourtPicture {
 public:
  // `pixel` is the size of a common screen's pixel where the painter's own units are others, as on a page
  // that is scaled.
  explicit CourtPicture(const CourtColours& colours, double pixel = 0) : m_colours(colours), m_pixel(pixel) {}

  // The largest rectangle of the court's shape in `area`, centred; and the transform from court units into
  // it. The picture stands upright as stored (baseline at the left) or turned so that the baseline is at the
  // top.
  enum class Turn { BaselineLeft, BaselineTop };
  static QRectF fitted(const QRectF& area, Turn turn);
  static QTransform fromCourt(const QRectF& fitted, Turn turn);
  // Upright or turned, whichever makes the picture in `area` larger.
  static Turn largerTurn(const QRectF& area);

  void paintCourt(QPainter& painter, const QRectF& fitted, Turn turn) const;
  // Made shots are filled circles in green, missed ones crosses in red, each with what parts it from any
  // ground.
  void paintMarks(QPainter& painter, const QRectF& fitted, Turn turn,
                  const std::vector<CourtMark>& marks) const;
  // Each zone tinted, with its texts on a plate. Where there is no room for both texts, the upper ones alone.
  void paintZones(QPainter& painter, const QRectF& fitted, Turn turn,
                  const std::vector<CourtZoneText>& zones) const;

 private:
  void paintLines(QPainter& painter, double scale) const;
  [[nodiscard]] QColor lineColour() const;

  [[nodiscard]] double pixelOf(const QPainter& painter) const;

  CourtColours m_colours;
  double m_pixel;
};

} // namespace hooptab
