#include "feed/CourtJson.h"

#include "court/CourtGeometry.h"
#include "feed/JsonWriter.h"

#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <string_view>

namespace hooptab {

namespace {

using namespace court;

// One command of an SVG path with its numbers, to a hundredth of a unit.
std::string step(std::string_view command, std::initializer_list<double> numbers) {
  std::string text(command);
  for (const double number : numbers) {
    std::array<char, 32> digits = {};
    // An arc's flags are 0 or 1, and no browser takes 1.00 for one.
    const int decimals = std::trunc(number) == number ? 0 : 2;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    text.append(text.size() > command.size() ? " " : "").append(digits.data(), end);
  }
  return text;
}

std::string rectangle(double x, double y, double width, double height) {
  return step("M", {x, y}) + step("h", {width}) + step("v", {height}) + step("h", {-width}) + 'z';
}
// From a point to one below it, bulging into the court.
std::string halfCircle(double x, double radius) {
  return step("M", {x, kBasketY - radius}) + step("A", {radius, radius, 0, 0, 1, x, kBasketY + radius});
}

std::string threePointLine() {
  const double corner = threePointCornerX();
  return step("M", {0, kThreePointSideY}) + step("H", {corner}) +
         step("A", {kThreePointRadius, kThreePointRadius, 0, 0, 1, corner, kWidth - kThreePointSideY}) +
         step("H", {0});
}

} // namespace

std::string courtJson() {
  const std::array paths = {rectangle(0, 0, kLength, kWidth),
                            rectangle(0, kBasketY - kBoxWidth / 2, kBoxLength, kBoxWidth),
                            halfCircle(kBoxLength, kFreeThrowCircleRadius),
                            halfCircle(kBasketX, kNoChargeRadius), threePointLine()};
  JsonWriter json;
  json.beginObject();
  json.member("length", kLength);
  json.member("width", kWidth);
  json.name("paths");
  json.beginArray();
  for (const std::string& path : paths)
    json.value(path);
  json.endArray();
  json.name("rim");
  json.beginObject();
  json.beginLine();
  json.member("x", kBasketX);
  json.member("y", kBasketY);
  json.member("radius", kRimRadius);
  json.endObject();
  json.endLine();
  json.name("backboard");
  json.beginObject();
  json.beginLine();
  json.member("x", kBackboardX);
  json.member("from", kBasketY - kBackboardWidth / 2);
  json.member("to", kBasketY + kBackboardWidth / 2);
  json.endObject();
  json.endLine();
  json.endObject();
  return json.text();
}

} // namespace hooptab
