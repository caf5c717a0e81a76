#include "tools/forms/Scanner.h"

#include "tools/forms/Drawn.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <array>
#include <numbers>

namespace hooptab {

namespace {

constexpr double kDegree = std::numbers::pi / 180;

// The light that falls on the sensor, 0 to 1, row by row.
struct Light {
  int width = 0, height = 0;
  std::vector<float> values;
  [[nodiscard]] std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }
};

// Weights of neighbours at distance 0, 1, 2 ...
std::vector<float> bell(double sigma) {
  std::vector<float> weights;
  double sum = 0;
  for (int away = 0; away <= static_cast<int>(3 * sigma) + 1; ++away) {
    weights.push_back(static_cast<float>(std::exp(-away * away / (2 * sigma * sigma))));
    sum += (away == 0 ? 1 : 2) * static_cast<double>(weights.back());
  }
  for (float& weight : weights)
    weight /= static_cast<float>(sum);
  return weights;
}

// Along rows or columns.
Light blurred(const Light& light, const std::vector<float>& weights, bool isDown) {
  Light result = light;
  const int reach = static_cast<int>(weights.size()) - 1;
  for (int y = 0; y < light.height; ++y) {
    for (int x = 0; x < light.width; ++x) {
      float sum = 0;
      for (int away = -reach; away <= reach; ++away) {
        const int nearX = isDown ? x : std::clamp(x + away, 0, light.width - 1);
        const int nearY = isDown ? std::clamp(y + away, 0, light.height - 1) : y;
        sum += weights[static_cast<std::size_t>(std::abs(away))] * light.values[light.index(nearX, nearY)];
      }
      result.values[light.index(x, y)] = sum;
    }
  }
  return result;
}

GrayPicture throughJpeg(const GrayPicture& picture, int quality) {
  const QImage image(picture.pixels.data(), picture.width, picture.height, picture.width,
                     QImage::Format_Grayscale8);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadWrite);
  QImageWriter writer(&buffer, "jpg");
  writer.setQuality(quality);
  writer.write(image);
  buffer.seek(0);
  const QImage read = QImageReader(&buffer, "jpg").read().convertToFormat(QImage::Format_Grayscale8);
  GrayPicture result = {read.width(), read.height(), {}};
  for (int y = 0; y < read.height(); ++y)
    result.pixels.insert(result.pixels.end(), read.constScanLine(y), read.constScanLine(y) + read.width());
  return result;
}

} // namespace

Scanner Scanner::some(Random& random, Damages& damages) {
  Scanner scanner;
  // Most sheets lie nearly straight, but each angle up to five degrees comes.
  scanner.degrees = random.chance(400) ? real(random, -1, 1) : real(random, -5, 5);
  scanner.dotsPerInch = real(random, 290, 310);
  scanner.scaleX = real(random, 0.97, 1.03);
  scanner.scaleY = real(random, 0.97, 1.03);
  scanner.shear = real(random, -0.004, 0.004);
  scanner.keystoneX = real(random, -0.006, 0.006);
  scanner.keystoneY = real(random, -0.006, 0.006);
  scanner.feed = real(random, 0, 0.2);
  scanner.feedLength = real(random, 60, 250);
  scanner.shift = {real(random, -4, 4), real(random, -4, 4)};
  damages.add(Damage::Turned, std::abs(scanner.degrees) > 2.5);
  damages.add(Damage::Stretched, std::abs(scanner.scaleX / scanner.scaleY - 1) > 0.01);

  if (random.chance(250)) {
    scanner.lid = random.chance(500) ? 0.05 : real(random, 0.3, 0.8);
    damages.add(Damage::BlackLid, scanner.lid < 0.1);
  }
  if (random.chance(350)) {
    damages.add(Damage::Uneven);
    scanner.slopeX = real(random, -0.18, 0.18);
    scanner.slopeY = real(random, -0.18, 0.18);
    scanner.bulge = real(random, 0, 0.15);
  }
  if (random.chance(250)) {
    damages.add(Damage::EdgeShadow);
    scanner.edgeShadow = real(random, 0.2, 0.6);
    scanner.edgeReach = real(random, 4, 14);
  }
  if (random.chance(200)) {
    damages.add(Damage::GlassLines);
    for (int count = random.between(1, 4); count > 0; --count) {
      const double place = real(random, 0.05, 0.95);
      const double width = real(random, 0.6, 2.5);
      scanner.glassLines.push_back({place, width, real(random, 0.1, 0.5)});
    }
  }

  scanner.blur = random.chance(250) ? real(random, 1, 1.6) : real(random, 0.4, 1);
  scanner.sharpen = random.chance(300) ? real(random, 0.3, 1) : 0;
  scanner.noise = random.chance(250) ? real(random, 7, 13) : real(random, 1, 7);
  switch (random.below(6)) {
  case 0:
    damages.add(Damage::Light);
    // Not so light that the cells' frames are gone from a blurred page: nobody could count any more.
    scanner.blur = std::min(scanner.blur, 1.0);
    scanner.gain = real(random, 1.05, 1.15);
    scanner.gamma = real(random, 0.7, 0.9);
    scanner.white = 255;
    scanner.black = real(random, 10, 50);
    break;
  case 1:
    damages.add(Damage::Dark);
    scanner.white = real(random, 140, 190);
    scanner.black = real(random, 0, 15);
    scanner.gamma = real(random, 1, 1.4);
    break;
  case 2:
    damages.add(Damage::Flat);
    scanner.white = real(random, 180, 215);
    scanner.black = real(random, 60, 100);
    break;
  default:
    scanner.white = real(random, 225, 255);
    scanner.black = real(random, 5, 40);
    scanner.gamma = real(random, 0.85, 1.15);
  }
  scanner.jpegQuality = random.between(30, 80);
  damages.add(Damage::Blur, scanner.blur > 1);
  damages.add(Damage::Noise, scanner.noise > 7);
  damages.add(Damage::Jpeg, scanner.jpegQuality < 45);
  return scanner;
}

GrayPicture Scanner::scan(const PaperSheet& paper, Random& random) const {
  const double perPixelX = 25.4 / dotsPerInch / scaleX; // millimetres
  const double perPixelY = 25.4 / dotsPerInch / scaleY;
  const double cosine = std::cos(degrees * kDegree);
  const double sine = std::sin(degrees * kDegree);

  // As large as the sheet, or larger where the form, turned and shifted, needs it.
  constexpr double kRoom = 2.5; // millimetres around the form
  const double formX = FormLayout::kWidth * cosine + FormLayout::kHeight * std::abs(sine);
  const double formY = FormLayout::kHeight * cosine + FormLayout::kWidth * std::abs(sine);
  const double wide = std::max(paper.width(), formX * 1.01 + 2 * (kRoom + std::abs(shift.x)));
  const double high = std::max(paper.height(), formY * 1.01 + 2 * (kRoom + std::abs(shift.y)));
  Light light = {static_cast<int>(wide / perPixelX), static_cast<int>(high / perPixelY), {}};
  light.values.resize(static_cast<std::size_t>(light.width) * static_cast<std::size_t>(light.height));

  const Place formMiddle = {FormLayout::kWidth / 2, FormLayout::kHeight / 2};
  const auto paperAt = [&](double column, double row) { // the place on the sheet under a point of the picture
    const double x = (column - light.width / 2.0) * perPixelX - shift.x;
    const double y = (row - light.height / 2.0) * perPixelY - shift.y;
    const double depth = 1 + keystoneX * x / 150 + keystoneY * y / 150;
    const double turnedX = (x * cosine + y * sine) / depth + shear * y;
    const double turnedY = (y * cosine - x * sine) / depth;
    return Place{formMiddle.x + turnedX,
                 formMiddle.y + turnedY + feed * std::sin(turnedY / feedLength * 2 * std::numbers::pi)};
  };
  const GrayPicture& dots = paper.picture();
  const auto reflected = [&](Place dot) {
    if (dot.x < 0 || dot.y < 0 || dot.x >= dots.width || dot.y >= dots.height)
      return lid;
    return dots.at(static_cast<int>(dot.x), static_cast<int>(dot.y)) / 255.0;
  };
  // From the middle of a pixel to the middle of its quarters, in dots of the paper.
  const double quarterX = perPixelX * PaperSheet::kDotsPerMillimetre / 4;
  const double quarterY = perPixelY * PaperSheet::kDotsPerMillimetre / 4;

  // Where the lamp shines best it is as bright as an even one.
  const double brightest = 1 + std::abs(slopeX) + std::abs(slopeY);
  std::vector<double> columnLight(static_cast<std::size_t>(light.width));
  for (int x = 0; x < light.width; ++x) {
    double& falls = columnLight[static_cast<std::size_t>(x)];
    falls = (1 - edgeShadow * std::exp(-x * perPixelX / edgeReach)) / brightest;
    for (const GlassLine& line : glassLines) {
      const double away = std::abs(x - line.place * light.width) - line.width / 2;
      falls *= 1 - line.darkness * std::clamp(0.5 - away, 0.0, 1.0);
    }
  }
  for (int y = 0; y < light.height; ++y) {
    const double v = 2.0 * y / light.height - 1;
    for (int x = 0; x < light.width; ++x) {
      const double u = 2.0 * x / light.width - 1;
      const Place middle = paper.dot(paperAt(x + 0.5, y + 0.5));
      double sum = 0;
      for (const double right : {-quarterX, quarterX}) {
        for (const double down : {-quarterY, quarterY})
          sum +=
              reflected({middle.x + right * cosine + down * sine, middle.y + down * cosine - right * sine});
      }
      const double falls = 1 + slopeX * u + slopeY * v - bulge * (u * u + v * v) / 2;
      light.values[light.index(x, y)] =
          static_cast<float>(sum / 4 * falls * columnLight[static_cast<std::size_t>(x)]);
    }
  }
  const std::vector<float> weights = bell(blur);
  light = blurred(blurred(light, weights, false), weights, true);
  Light soft;
  if (sharpen > 0) {
    const std::vector<float> wider = bell(1.2);
    soft = blurred(blurred(light, wider, false), wider, true);
  }

  std::array<float, 4096> noises;
  for (float& each : noises)
    each = static_cast<float>(noise * normal(random));
  GrayPicture picture = {light.width, light.height, {}};
  picture.pixels.resize(light.values.size());
  for (std::size_t index = 0; index < light.values.size(); ++index) {
    double value = static_cast<double>(light.values[index]);
    if (sharpen > 0)
      value += sharpen * (value - static_cast<double>(soft.values[index]));
    const double shade = black + (white - black) * std::pow(std::clamp(value * gain, 0.0, 1.0), gamma) +
                         static_cast<double>(noises[random.next() % noises.size()]);
    picture.pixels[index] = static_cast<std::uint8_t>(std::clamp(shade, 0.0, 255.0) + 0.5);
  }
  return throughJpeg(picture, jpegQuality);
}

} // namespace hooptab
