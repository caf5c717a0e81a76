#include "court/CourtPicture.h"

#include "appearance/Theme.h"

#include <QImage>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using court::ChartZone;
using court::Place;
using Turn = CourtPicture::Turn;

const CourtColours kColours = {QColor(0xCE, 0xBD, 0x8A), QColor(0x9A, 0x9A, 0x9A), QColor(0xFF, 0xFF, 0x80)};

class CourtPictureTest : public testing::TestWithParam<Turn> {
 protected:
  // A picture at so many pixels for a unit, painted on by `paint`.
  template <class Paint>
  QImage painted(double pixelsPerUnit, Paint paint) const {
    const QSizeF court(court::kLength * pixelsPerUnit, court::kWidth * pixelsPerUnit);
    const QSize size = (GetParam() == Turn::BaselineLeft ? court : court.transposed()).toSize();
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    paint(painter, QRectF(QPointF(0, 0), size));
    return image;
  }
  QPointF pixelOf(Place place, const QImage& image) const {
    return CourtPicture::fromCourt(QRectF(image.rect()), GetParam()).map(QPointF(place.x, place.y));
  }
  QColor at(Place place, const QImage& image) const {
    return image.pixelColor(pixelOf(place, image).toPoint());
  }
  QImage court(double pixelsPerUnit, const CourtColours& colours = kColours) const {
    return painted(pixelsPerUnit, [&](QPainter& painter, const QRectF& fitted) {
      CourtPicture(colours).paintCourt(painter, fitted, GetParam());
    });
  }
  QImage withMark(double pixelsPerUnit, const CourtMark& mark) const {
    return painted(pixelsPerUnit, [&](QPainter& painter, const QRectF& fitted) {
      const CourtPicture picture(kColours);
      picture.paintCourt(painter, fitted, GetParam());
      picture.paintMarks(painter, fitted, GetParam(), {mark});
    });
  }
};

INSTANTIATE_TEST_SUITE_P(BothWays, CourtPictureTest, testing::Values(Turn::BaselineLeft, Turn::BaselineTop));

TEST_P(CourtPictureTest, PaintsEachZoneInItsColourAtAnySize) {
  for (const double scale : {0.87, 1.0, 2.5, 8.0}) {
    const QImage image = court(scale);
    EXPECT_EQ(at({55, 80}, image), kColours.box) << scale;
    EXPECT_EQ(at({30, 30}, image), kColours.twoPoints) << scale;
    EXPECT_EQ(at({120, 150}, image), kColours.threePoints) << scale;
    EXPECT_EQ(at({20, 6}, image), kColours.threePoints) << scale;
  }
}

// What is painted and what is decided are the same court: only near lines may a pixel have another colour.
TEST_P(CourtPictureTest, ShowsTheZonesThatDecideThePoints) {
  const QImage image = court(4);
  for (double x = 1; x < court::kLength; x += 1.5) {
    for (double y = 1; y < court::kWidth; y += 1.5) {
      const QColor colour = at({x, y}, image);
      const court::ColourZone zone = court::colourZone({x, y});
      if (zone == court::ColourZone::Line)
        continue;
      for (const auto& [other, otherColour] :
           {std::pair(court::ColourZone::Box, kColours.box),
            std::pair(court::ColourZone::TwoPoints, kColours.twoPoints),
            std::pair(court::ColourZone::ThreePoints, kColours.threePoints)})
        ASSERT_TRUE(zone == other || colour != otherColour) << x << ", " << y;
    }
  }
}

TEST_P(CourtPictureTest, DrawsLinesThatStandOutFromDarkAndLightCourts) {
  const Place onLine = {40, court::kBasketY - court::kBoxWidth / 2};
  const CourtColours dark = {QColor(20, 30, 80), QColor(110, 10, 10), QColor(0, 60, 30)};
  EXPECT_LT(at(onLine, court(6)).lightness(), 80);
  EXPECT_GT(at(onLine, court(6, dark)).lightness(), 140);
}

// In shades of grey a made shot is a filled disc, a missed one a cross with the court between its arms.
TEST_P(CourtPictureTest, TellsMadeFromMissedWithoutColour) {
  const Place place = {95, 60};
  for (const double scale : {0.87, 2.0, 6.0}) {
    const QImage plain = court(scale).convertToFormat(QImage::Format_Grayscale8);
    const QImage made = withMark(scale, {place, true}).convertToFormat(QImage::Format_Grayscale8);
    const QImage missed = withMark(scale, {place, false}).convertToFormat(QImage::Format_Grayscale8);
    int dark[2] = {0, 0};
    int apart = 0;
    for (int y = 0; y < plain.height(); ++y) {
      for (int x = 0; x < plain.width(); ++x) {
        const int before = qGray(plain.pixel(x, y));
        dark[0] += qGray(made.pixel(x, y)) < before - 40 ? 1 : 0;
        dark[1] += qGray(missed.pixel(x, y)) < before - 40 ? 1 : 0;
        apart += qAbs(qGray(made.pixel(x, y)) - qGray(missed.pixel(x, y))) > 40 ? 1 : 0;
      }
    }
    EXPECT_GT(dark[0], 0) << scale;
    EXPECT_GT(dark[1], 0) << scale;
    EXPECT_GT(apart, std::max(dark[0], dark[1]) / 2) << scale;
  }
}

TEST_P(CourtPictureTest, DrawsMarksFromOutsideAtTheEdge) {
  const QImage plain = court(3);
  const QImage marked = withMark(3, {{500, 150}, true});
  EXPECT_EQ(at({100, 150}, marked), at({100, 150}, plain));
  EXPECT_NE(at({court::kLength - 0.8, 150}, marked), at({court::kLength - 0.8, 150}, plain));
}

TEST_P(CourtPictureTest, TurnsTheShootersLeftToTheLeft) {
  const QRectF fitted(0, 0, 400, 252);
  if (GetParam() == Turn::BaselineTop) {
    const QTransform transform = CourtPicture::fromCourt(fitted, Turn::BaselineTop);
    EXPECT_LT(transform.map(QPointF(50, 190)).x(), 50);
    EXPECT_NEAR(transform.map(QPointF(0, 100)).y(), 0, 1e-9);
  } else {
    const QTransform transform = CourtPicture::fromCourt(QRectF(10, 20, 126, 200), Turn::BaselineLeft);
    EXPECT_EQ(transform.map(QPointF(0, 0)), QPointF(10, 20));
    EXPECT_EQ(transform.map(QPointF(126, 200)), QPointF(136, 220));
  }
  const QRectF area(5, 5, 300, 300);
  const QRectF shape = CourtPicture::fitted(area, GetParam());
  EXPECT_TRUE(area.contains(shape));
  EXPECT_NEAR(std::max(shape.width(), shape.height()) / std::min(shape.width(), shape.height()), 200.0 / 126,
              1e-6);
}

TEST_P(CourtPictureTest, TintsAZoneByItsStrengthAndOnlyThatZone) {
  const auto withZone = [&](double strength) {
    return painted(3, [&](QPainter& painter, const QRectF& fitted) {
      const CourtPicture picture(kColours);
      picture.paintCourt(painter, fitted, GetParam());
      picture.paintZones(painter, fitted, GetParam(),
                         {{ChartZone::LeftWing, QStringLiteral("3/7"), QStringLiteral("42.9%"), strength}});
    });
  };
  const Place inWing = {115, 150};
  const Place elsewhere = {115, 50};
  EXPECT_EQ(at(inWing, withZone(0)), kColours.threePoints);
  EXPECT_NE(at(inWing, withZone(0.5)), kColours.threePoints);
  EXPECT_NE(at(inWing, withZone(1)), at(inWing, withZone(0.5)));
  EXPECT_EQ(at(elsewhere, withZone(1)), kColours.threePoints);
  EXPECT_EQ(withZone(7), withZone(1)); // never stronger than the strongest
}

} // namespace
} // namespace hooptab
