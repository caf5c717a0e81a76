#include "season/SeriesPicture.h"
#include "season/ZoneChart.h"

#include <QImage>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

constexpr QRectF kArea(0, 0, 600, 300);

QImage paper() {
  QImage image(kArea.size().toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

int countOf(const QImage& image, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      count += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return count;
}

SeriesDrawing margins(std::vector<std::optional<double>> values) {
  SeriesDrawing drawing;
  drawing.style = SeriesDrawing::Style::Margins;
  for (std::size_t i = 0; i < values.size(); ++i)
    drawing.labels << QStringLiteral("01-%1").arg(i);
  drawing.values = std::move(values);
  return drawing;
}

TEST(SeriesPicture, DrawsVictoriesAboveAndDefeatsBelow) {
  const SeriesColours colours = SeriesColours::ofPaper();
  const auto painted = [&](const SeriesDrawing& drawing) {
    QImage image = paper();
    QPainter painter(&image);
    SeriesPicture(colours).paint(painter, kArea, drawing);
    painter.end();
    return image;
  };
  const QImage both = painted(margins({12.0, -6.0, 12.0}));
  const int above = countOf(both, colours.above);
  const int below = countOf(both, colours.below);
  EXPECT_GT(below, 0);
  EXPECT_NEAR(above, 4.0 * below, 0.1 * above) << "two bars, each twice as high";
  EXPECT_EQ(countOf(painted(margins({3.0, 5.0})), colours.below), 0);
  for (const SeriesDrawing& odd : {SeriesDrawing(), margins({}), margins({0.0}), margins({std::nullopt})})
    EXPECT_EQ(countOf(painted(odd), colours.above), 0) << "nothing to draw is no harm";
}

TEST(SeriesPicture, FindsTheGameUnderThePointer) {
  const QImage device = paper();
  const SeriesDrawing drawing = margins({1.0, 2.0, 3.0, 4.0});
  const auto at = [&](double x) { return SeriesPicture::valueAt(device, QFont(), kArea, drawing, {x, 150}); };
  EXPECT_EQ(at(590), 3U);
  EXPECT_FALSE(at(2)) << "the axis";
  std::optional<std::size_t> last = 0;
  for (double x = 60; x < 590; x += 5) { // from left to right, each in turn
    EXPECT_GE(at(x), last);
    last = at(x);
  }
  EXPECT_EQ(last, 3U);
  EXPECT_FALSE(SeriesPicture::valueAt(device, QFont(), kArea, margins({}), {300, 150}));
}

TEST(SeriesPicture, WritesTheAxisInTheStatisticsUnit) {
  using Unit = SeriesDrawing::Unit;
  EXPECT_EQ(SeriesPicture::valueText(12, Unit::Count), QStringLiteral("12"));
  EXPECT_EQ(SeriesPicture::valueText(0.5, Unit::Percent), QStringLiteral("50%"));
  EXPECT_EQ(SeriesPicture::valueText(605, Unit::Time), QStringLiteral("10:05"));
}

TEST(ZoneChart, ColoursZonesByTheirDifference) {
  const Texts texts;
  ShotSums shots;
  ShotSums average;
  shots.zones[0] = {9, 10}; // far above
  shots.zones[1] = {1, 10}; // far below
  shots.zones[2] = {5, 10}; // as usual
  for (ZoneSum& zone : average.zones)
    zone = {50, 100};
  const std::vector<CourtZoneText> zones = zoneTexts(shots, average, texts);
  ASSERT_EQ(zones.size(), 3U) << "zones without attempts are left as they are";
  EXPECT_EQ(zones[0].tint, colourOfDifference(1));
  EXPECT_EQ(zones[1].tint, colourOfDifference(-1));
  EXPECT_NE(zones[0].tint, zones[1].tint);
  EXPECT_DOUBLE_EQ(zones[0].strength, 1);
  EXPECT_LT(zones[2].strength, 0.2);
  EXPECT_EQ(zones[0].upper, QStringLiteral("90.0%"));
  EXPECT_EQ(zones[0].lower, QStringLiteral("9/10"));
  EXPECT_TRUE(zones[1].toolTip.contains(QStringLiteral("-40.0"))) << "said in numbers too";
  // On paper: court, legend and the words below, nothing outside.
  QImage image = paper();
  QPainter painter(&image);
  paintZoneChart(painter, kArea.adjusted(20, 20, -20, -20), shots, average, texts);
  painter.end();
  EXPECT_GT(countOf(image, Qt::black), 0);
  for (int x = 0; x < image.width(); ++x) {
    EXPECT_EQ(image.pixelColor(x, 5), QColor(Qt::white)) << x;
    EXPECT_EQ(image.pixelColor(x, image.height() - 5), QColor(Qt::white)) << x;
  }
}

} // namespace
} // namespace hooptab
