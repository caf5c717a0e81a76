// A map of shots as hexagons over the half court: size for how often, colour for points a shot against what
// is usual from there. Drawn alike on screen and on paper; the sums come from outside.
#pragma once

#include "appearance/ShownPicture.h"
#include "season/ShotHexagons.h"
#include "settings/Texts.h"

#include <QWidget>

namespace hooptab {

class HexagonChart : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  HexagonChart(const QString& name, const Texts& texts, QWidget* parent = nullptr);

  void showShots(std::vector<ShotHexagon> hexagons);
  void showReason(const QString& reason); // why there is no map

  bool hasPicture() const override { return !m_hexagons.empty(); }
  QSize pictureSize() const override { return {640, 480}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override;

  QSize sizeHint() const override { return {360, 240}; }
  QSize minimumSizeHint() const override { return {180, 130}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paint(QPainter& painter, const QRectF& area, const QColor& ground, const QColor& muted) const;
  void paintLegend(QPainter& painter, const QRectF& area, const QColor& ground, const QColor& muted) const;

  const Texts& m_texts;
  std::vector<ShotHexagon> m_hexagons;
  QString m_reason;
};

} // namespace hooptab
