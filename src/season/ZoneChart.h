// The season shot chart: attempts and percentages by zone of the court, coloured by how far each is from the
// average it is compared with, with a legend. Drawn by one painter for screen and paper; the sums come from
// outside.
#pragma once

#include "appearance/ShownPicture.h"
#include "court/CourtPicture.h"
#include "season/SeasonShots.h"
#include "settings/Texts.h"

#include <QWidget>

class QLabel;

namespace hooptab {

class CourtView;

// Warm above the average, cold below, stronger the farther; a zone is at its strongest from this many
// percentage points on.
inline constexpr double kFullDifference = 15;
[[nodiscard]] QColor colourOfDifference(double points);
[[nodiscard]] double strengthOfDifference(double points); // 0 to 1
// The zones that have attempts, as CourtPicture draws them.
[[nodiscard]] std::vector<CourtZoneText> zoneTexts(const ShotSums& shots, const ShotSums& average,
                                                   const Texts& texts);
// The scale of colours with its ends, in one line.
void paintDifferenceLegend(QPainter& painter, const QRectF& area, const QColor& textColour);
// All of it on paper: court, zones, legend.
void paintZoneChart(QPainter& painter, const QRectF& area, const ShotSums& shots, const ShotSums& average,
                    const Texts& texts);

class ZoneChart : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  ZoneChart(const QString& name, const Texts& texts, QWidget* parent = nullptr);

  void showShots(const ShotSums& shots, const ShotSums& average);
  void showReason(const QString& reason); // why there is no chart
  void applyColours();

  bool hasPicture() const override;
  QSize pictureSize() const override { return {640, 480}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  const Texts& m_texts;
  ShotSums m_sums;
  ShotSums m_average;
  CourtView* m_court;
  QWidget* m_legend;
  QLabel* m_caption;
  QLabel* m_numbers;
  QLabel* m_reason;
};

} // namespace hooptab
