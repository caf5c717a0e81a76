// A clean paper form drawn without fonts, that tests write on and put under an ideal scanner: only what a
// test asks for is wrong with its pictures.
#pragma once

#include "forms/FormLayout.h"
#include "forms/GrayPicture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace hooptab {

struct IdealScan {
  double dots = 300;             // per inch
  double turn = 0;               // degrees, clockwise
  double shiftX = 0, shiftY = 0; // millimetres
  double stretchX = 1, stretchY = 1;
  double perspective = 0; // how much smaller the right edge is
  int lightest = 255, darkest = 0;
  double paperWidth = 210, paperHeight = 297;
};

class DrawnForm {
 public:
  explicit DrawnForm(const FormIdentifier& identifier) {
    m_paper.width = static_cast<int>(kPaperWidth * kDots);
    m_paper.height = static_cast<int>(kPaperHeight * kDots);
    m_paper.pixels.assign(static_cast<std::size_t>(m_paper.width) * static_cast<std::size_t>(m_paper.height),
                          255);
    for (const FormRect& mark : m_layout.marks())
      fill(mark, 0);
    fill(m_layout.markHole(), 255);
    const auto bits = identifier.bits();
    for (std::size_t bit = 0; bit < bits.size(); ++bit) {
      frame(m_layout.identifier()[bit], 0.25, 0);
      if (bits[bit])
        fill(m_layout.identifier()[bit], 0);
    }
    for (int player = 0; player < FormLayout::kPlayers; ++player)
      frame(m_layout.block(player), 0.5, 0);
    for (const FormCell& cell : m_layout.cells())
      frame(cell.rect, 0.25, 0x80);
    for (const FormLabel& label : m_layout.labels()) // words
      fill({label.rect.x + 1, label.rect.y + 1, label.rect.width - 2, 0.4}, 0);
  }

  [[nodiscard]] const FormLayout& layout() const { return m_layout; }

  void fill(const FormRect& rect, int shade) {
    for (int y = pixel(rect.y); y < pixel(rect.bottom()); ++y) {
      for (int x = pixel(rect.x); x < pixel(rect.right()); ++x)
        set(x, y, shade);
    }
  }
  // A stroke of a pen with a round point.
  void stroke(double x0, double y0, double x1, double y1, double width, int shade) {
    const double length = std::max(1e-9, std::hypot(x1 - x0, y1 - y0));
    for (int y = pixel(std::min(y0, y1) - width); y <= pixel(std::max(y0, y1) + width); ++y) {
      for (int x = pixel(std::min(x0, x1) - width); x <= pixel(std::max(x0, x1) + width); ++x) {
        const double dx = (x + 0.5) / kDots - x0;
        const double dy = (y + 0.5) / kDots - y0;
        const double along = std::clamp((dx * (x1 - x0) + dy * (y1 - y0)) / length, 0.0, length);
        if (std::hypot(dx - along * (x1 - x0) / length, dy - along * (y1 - y0) / length) <= width / 2)
          set(x, y, shade);
      }
    }
  }
  void frame(const FormRect& rect, double line, int shade) {
    const double half = line / 2;
    fill({rect.x - half, rect.y - half, rect.width + line, line}, shade);
    fill({rect.x - half, rect.bottom() - half, rect.width + line, line}, shade);
    fill({rect.x - half, rect.y - half, line, rect.height + line}, shade);
    fill({rect.right() - half, rect.y - half, line, rect.height + line}, shade);
  }

  [[nodiscard]] GrayPicture scanned(const IdealScan& scan = {}) const {
    const double dots = scan.dots / 25.4;
    GrayPicture result;
    result.width = static_cast<int>(scan.paperWidth * dots);
    result.height = static_cast<int>(scan.paperHeight * dots);
    result.pixels.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    const double turn = scan.turn * std::numbers::pi / 180;
    const double across = std::cos(turn) * kDots;
    const double down = std::sin(turn) * kDots;
    for (int y = 0; y < result.height; ++y) {
      for (int x = 0; x < result.width; ++x) {
        int sum = 0;
        for (const double part : {0.25, 0.75}) {
          // Back from the picture to the paper's middle.
          const double u0 = (x + part) / dots - scan.paperWidth / 2 - scan.shiftX;
          const double depth = 1 - scan.perspective * u0 / scan.paperWidth;
          const double u = u0 / (depth * scan.stretchX);
          const double v = ((y + part) / dots - scan.paperHeight / 2 - scan.shiftY) / (depth * scan.stretchY);
          sum += shade(static_cast<int>(u * across + v * down + kPaperWidth * kDots / 2),
                       static_cast<int>(v * across - u * down + kPaperHeight * kDots / 2));
        }
        result.pixels.push_back(
            static_cast<std::uint8_t>(scan.darkest + (scan.lightest - scan.darkest) * sum / 2 / 255));
      }
    }
    return result;
  }

 private:
  static constexpr double kDots = 16; // on a millimetre
  static constexpr double kPaperWidth = 230;
  static constexpr double kPaperHeight = 310;

  static int pixel(double millimetres) { return static_cast<int>(std::floor(millimetres * kDots + 0.5)); }
  // The form's own area stands in the middle of the paper.
  void set(int x, int y, int shade) {
    x += pixel((kPaperWidth - FormLayout::kWidth) / 2);
    y += pixel((kPaperHeight - FormLayout::kHeight) / 2);
    if (x >= 0 && y >= 0 && x < m_paper.width && y < m_paper.height)
      m_paper.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_paper.width) +
                     static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(shade);
  }
  [[nodiscard]] int shade(int x, int y) const {
    return x < 0 || y < 0 || x >= m_paper.width || y >= m_paper.height ? 255 : m_paper.at(x, y);
  }

  FormLayout m_layout;
  GrayPicture m_paper;
};

} // namespace hooptab
