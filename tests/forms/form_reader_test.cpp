// The reader of scanned forms: pages turned, moved and stretched, hands of all kinds, and what is no form.
#include "forms/FormReader.h"

#include "forms/PictureSums.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>
#include <random>
#include <thread>

namespace hooptab {
namespace {

// Only what a test asks for is wrong with pictures of this scanner.
struct IdealScan {
  double dots = 300;             // per inch
  double turn = 0;               // degrees, clockwise
  double shiftX = 0, shiftY = 0; // millimetres
  double stretchX = 1, stretchY = 1;
  double perspective = 0; // how much smaller the right edge is
  int lightest = 255, darkest = 0;
  double paperWidth = 210, paperHeight = 297;
};

// A clean form, drawn without fonts.
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

const FormIdentifier kSheet{1, false, 77};
const IdealScan kQuick{.dots = 200};

FormReading readOf(const GrayPicture& picture) {
  return FormReader(FormLayout()).read(picture);
}
FormReading readOf(const DrawnForm& form, const IdealScan& scan = kQuick) {
  return readOf(form.scanned(scan));
}

// What somebody does to a cell, given its upper left corner.
using Hand = std::function<void(DrawnForm&, double x, double y)>;
Hand cross(int shade) {
  return [shade](DrawnForm& form, double x, double y) {
    form.stroke(x + 0.5, y + 0.6, x + 2.6, y + 2.8, 0.4, shade);
    form.stroke(x + 2.7, y + 0.4, x + 0.6, y + 2.7, 0.4, shade);
  };
}
Hand stroke(int shade) {
  return [shade](DrawnForm& form, double x, double y) {
    form.stroke(x + 0.6, y + 2.9, x + 2.5, y + 0.2, 0.35, shade);
  };
}
// Goes on into the cell above and the one on the right of it.
Hand checkMark(int shade) {
  return [shade](DrawnForm& form, double x, double y) {
    form.stroke(x + 0.5, y + 1.4, x + 1.4, y + 2.7, 0.4, shade);
    form.stroke(x + 1.4, y + 2.7, x + 3.4, y - 1.2, 0.4, shade);
  };
}
Hand dot(int shade) {
  return [shade](DrawnForm& form, double x, double y) {
    form.stroke(x + 1.8, y + 1.5, x + 1.9, y + 1.6, 0.9, shade);
  };
}
Hand filled(int shade, double width = 3.2) {
  return [shade, width](DrawnForm& form, double x, double y) { form.fill({x, y, width, 3.2}, shade); };
}

// A form on which every cell `isTicked` names was ticked.
struct FilledForm {
  DrawnForm form{kSheet};
  std::vector<bool> truth = std::vector<bool>(form.layout().cells().size());

  void tick(const Hand& hand, unsigned part, unsigned seed = 1) {
    std::minstd_rand random(seed);
    for (std::size_t i = 0; i < truth.size(); ++i) {
      if (truth[i] || random() % part != 0)
        continue;
      truth[i] = true;
      touch(i, hand);
    }
  }
  void touch(std::size_t cell, const Hand& hand) {
    const FormRect& rect = form.layout().cells()[cell].rect;
    hand(form, rect.x, rect.y);
  }
  // How many cells were read wrong, how many of these as if there were no doubt, and how many are doubtful.
  struct Faults {
    int wrong = 0, sure = 0, doubtful = 0;
  };
  [[nodiscard]] Faults faults(const FormReading& reading) const {
    EXPECT_EQ(reading.problem, ScanProblem::None);
    EXPECT_EQ(reading.identifier, kSheet);
    Faults result;
    if (reading.cells.size() != truth.size())
      return {-1, -1, -1};
    for (std::size_t i = 0; i < truth.size(); ++i) {
      const ReadCell& cell = reading.cells[i];
      result.wrong += cell.isTicked != truth[i] ? 1 : 0;
      result.sure += cell.isTicked != truth[i] && !cell.isDoubtful ? 1 : 0;
      result.doubtful += cell.isDoubtful ? 1 : 0;
    }
    return result;
  }
  void expectRight(const FormReading& reading) const {
    const Faults found = faults(reading);
    EXPECT_EQ(found.wrong, 0);
    EXPECT_EQ(found.doubtful, 0);
  }
};

TEST(FormReader, ReadsAPageHoweverItLay) {
  FilledForm page;
  page.tick(stroke(0x60), 12);
  const IdealScan scans[] = {
      {},
      {.dots = 200, .turn = 5},
      {.dots = 200, .turn = -5, .stretchX = 1.03, .stretchY = 0.97, .paperWidth = 216},
      {.dots = 150, .turn = 7, .paperWidth = 230, .paperHeight = 300},
      {.dots = 600, .turn = 1},
      {.dots = 200, .turn = -1, .shiftX = -6, .shiftY = 10},
      {.dots = 200, .shiftX = 5, .shiftY = -5, .paperWidth = 215.9, .paperHeight = 279.4},
      {.dots = 200, .shiftX = 20, .shiftY = -20, .paperWidth = 297, .paperHeight = 420},
      {.dots = 200, .shiftX = 9, .shiftY = 20}, // cuts a part of the marks off
      {.dots = 200, .perspective = 0.02},
      {.dots = 200, .lightest = 255, .darkest = 130},
      {.dots = 200, .lightest = 110, .darkest = 5},
      {.dots = 200, .lightest = 145, .darkest = 105},
      {.dots = 200, .turn = 180, .shiftX = 4},
      {.dots = 200, .turn = 92, .paperWidth = 297, .paperHeight = 210},
      {.dots = 200, .turn = -90, .perspective = 0.03, .paperWidth = 310, .paperHeight = 230}};
  for (const IdealScan& scan : scans) {
    SCOPED_TRACE(&scan - scans);
    const GrayPicture picture = page.form.scanned(scan);
    const FormReading reading = readOf(picture);
    page.expectRight(reading);
    if (reading.problem != ScanProblem::None)
      continue;
    const GrayPicture upright = turned(picture, reading.quarters);
    const auto isDark = [&](double x, double y) {
      const PicturePoint at = reading.inPicture(x, y);
      return upright.at(std::clamp(static_cast<int>(at.x), 0, upright.width - 1),
                        std::clamp(static_cast<int>(at.y), 0, upright.height - 1)) <
             (scan.lightest + scan.darkest) / 2;
    };
    EXPECT_TRUE(isDark(5.8, 5.8) && isDark(187, 253) && isDark(96, FormLayout().block(2).y));
    EXPECT_FALSE(isDark(3.5, 3.5) || isDark(184, 253));
  }
}

TEST(FormReader, KnowsEveryHand) {
  // With pens, pencils and a felt pen.
  const Hand hands[] = {cross(0x10),     cross(0x90), stroke(0x30), stroke(0x80),      checkMark(0),
                        checkMark(0x80), dot(0x20),   dot(0x90),    filled(0x70, 1.7), filled(0)};
  for (const Hand& hand : hands) {
    SCOPED_TRACE(&hand - hands);
    FilledForm page;
    page.tick(hand, 10);
    // Rubbed out again, and dirt.
    std::minstd_rand random(7);
    for (std::size_t cell = 0; cell < page.truth.size(); ++cell) {
      if (page.truth[cell] || random() % 30 != 0)
        continue;
      if (cell % 2 == 0) {
        page.touch(cell, filled(0xE8));
        page.touch(cell, stroke(0xD8));
      } else {
        const FormRect& rect = page.form.layout().cells()[cell].rect;
        page.form.stroke(rect.x + 1.2, rect.y + 1.9, rect.x + 1.3, rect.y + 2, 0.3, 0);
      }
    }
    page.expectRight(readOf(page.form));
  }
}

TEST(FormReader, SaysWhereItIsNotSure) {
  // Two people: what one writes is faint beside the other.
  FilledForm two;
  two.tick(cross(0), 12);
  two.tick(stroke(0x90), 60, 2);
  EXPECT_EQ(two.faults(readOf(two.form)).sure, 0);
  // Neither a tick nor none.
  FilledForm page;
  page.tick(cross(0x10), 12);
  const std::size_t cell = static_cast<std::size_t>(
      std::find(page.truth.begin() + 40, page.truth.end(), false) - page.truth.begin());
  page.touch(cell, dot(0x98));
  const FormReading reading = readOf(page.form);
  ASSERT_EQ(reading.problem, ScanProblem::None);
  EXPECT_TRUE(reading.cells[cell].isDoubtful);
  EXPECT_EQ(page.faults(reading).doubtful, 1);
}

TEST(FormReader, ReadsALightPencilOrSaysThatItCannot) {
  std::minstd_rand random(11);
  for (const int shade : {0xA8, 0xC4, 0xD4, 0xE8}) {
    SCOPED_TRACE(shade);
    FilledForm page;
    for (std::size_t cell = 0; cell < page.truth.size(); ++cell) { // five marks in each second row
      const FormCell& at = page.form.layout().cells()[cell];
      if (at.kind == FormCell::Kind::JerseyDigit || static_cast<int>(at.rect.y) % 2 != 0 || at.number >= 5)
        continue;
      page.truth[cell] = true;
      page.touch(cell, stroke(shade));
    }
    GrayPicture picture = page.form.scanned(kQuick);
    for (std::size_t at = 0; at < picture.pixels.size(); ++at) { // tinted paper under a lamp, and noise
      const double light = 0.75 + 0.2 * static_cast<double>(at) / static_cast<double>(picture.pixels.size());
      const auto noise = static_cast<double>(random() % 9) - 4;
      picture.pixels[at] = static_cast<std::uint8_t>(picture.pixels[at] * light + 5 + noise);
    }
    const FormReading reading = readOf(picture);
    if (shade > 0xD4 && reading.problem == ScanProblem::TooFaint)
      continue;
    const auto faults = page.faults(reading);
    EXPECT_EQ(faults.sure, 0);
    EXPECT_EQ(faults.wrong, 0);
    EXPECT_LT(faults.doubtful, 30);
  }
}

TEST(FormReader, DoubtsWhatIsNotInOrder) {
  FilledForm page;
  const auto row = [&](Counter counter) { // of the third player
    const auto cells = page.form.layout().cells();
    const auto isFirst = [counter](const FormCell& cell) {
      return cell.player == 2 && cell.counter == counter && cell.kind == FormCell::Kind::Count;
    };
    return static_cast<std::size_t>(std::ranges::find_if(cells, isFirst) - cells.begin());
  };
  for (const std::size_t number : {0U, 1U, 2U, 4U, 5U})
    page.touch(row(Counter::PF) + number, cross(0x40));
  page.touch(row(Counter::TF) + 9, cross(0x40));
  const FormReading reading = readOf(page.form);
  ASSERT_EQ(reading.problem, ScanProblem::None);
  std::vector<std::size_t> doubtful;
  for (std::size_t cell = 0; cell < reading.cells.size(); ++cell) {
    if (reading.cells[cell].isDoubtful)
      doubtful.push_back(cell);
  }
  // The hole, and one mark far from the left.
  EXPECT_EQ(doubtful, (std::vector{row(Counter::PF) + 3, row(Counter::TF) + 9}));
}

TEST(FormReader, NeedsNoCertainNumberOfTicks) {
  FilledForm page;
  page.expectRight(readOf(page.form));
  page.truth[100] = true;
  page.touch(100, stroke(0x30));
  page.expectRight(readOf(page.form));
  page.tick(cross(0x50), 1);
  page.expectRight(readOf(page.form));
  FilledForm smudged; // what is left of an eraser may be all that there is
  smudged.touch(100, stroke(0xB0));
  const ReadCell cell = readOf(smudged.form).cells.at(100);
  EXPECT_TRUE(!cell.isTicked || cell.isDoubtful);
}

FormRect markAt(int mark) {
  return FormLayout().marks()[static_cast<std::size_t>(mark)];
}

TEST(FormReader, FindsMarksThatAreNotClean) {
  FilledForm page;
  page.tick(stroke(0x40), 12);
  for (int mark = 0; mark < 4; ++mark) {
    const FormRect rect = markAt(mark);
    page.form.stroke(rect.x - 5, rect.y + 8, rect.x + 5, rect.y + 5, 0.6, 0x30); // a scribble
    page.form.stroke(rect.x + 6, rect.y - 4, rect.x + 6.6, rect.y + 3, 0.4, 0x30);
    page.form.fill({rect.x, rect.bottom() - 1.6, 2.2, 1.6}, 255);                       // a worn corner
    page.form.fill({rect.x + 40 + mark * 10, mark < 2 ? -9.0 : 260.0, 7, 7}, 0);        // other squares
    page.form.stroke(rect.x + 5.6, rect.y + 5.6, rect.x + 5.7, rect.y + 5.7, 0.5, 255); // a hole
  }
  page.form.fill(FormLayout().title(), 0);
  page.expectRight(readOf(page.form, {.dots = 200, .turn = 2}));
}

TEST(FormReader, SaysWhatIsMissing) {
  const auto without = [](std::initializer_list<int> marks) {
    DrawnForm form(kSheet);
    for (const int mark : marks)
      form.fill(markAt(mark), 255);
    return readOf(form, {.dots = 200, .turn = 1}).problem;
  };
  EXPECT_EQ(without({0}), ScanProblem::NoUpperLeftMark);
  EXPECT_EQ(without({1}), ScanProblem::NoTop);
  EXPECT_EQ(without({2}), ScanProblem::NoLeft);
  EXPECT_EQ(without({3}), ScanProblem::NoRight);
  EXPECT_EQ(without({1, 3}), ScanProblem::NoRight);
  EXPECT_EQ(without({2, 3}), ScanProblem::NoBottom);
  EXPECT_EQ(without({0, 1, 2, 3}), ScanProblem::NoUpperLeftMark);
  DrawnForm form(kSheet);
  EXPECT_EQ(readOf(form, {.dots = 300, .shiftY = 74, .paperHeight = 148}).problem, ScanProblem::NoBottom);
  EXPECT_EQ(readOf(form, {.dots = 300, .shiftX = 52, .paperWidth = 105}).problem, ScanProblem::NoRight);
  EXPECT_EQ(readOf(form, {.dots = 300, .shiftX = -52, .paperWidth = 105}).problem,
            ScanProblem::NoUpperLeftMark);
  EXPECT_EQ(readOf(form, {.dots = 72}).problem, ScanProblem::TooCoarse);
  EXPECT_EQ(readOf(form, {.dots = 120}).problem, ScanProblem::TooCoarse);
  for (const std::size_t square : {12U, 13U, 14U})
    form.fill(form.layout().identifier()[square], 0);
  EXPECT_EQ(readOf(form).problem, ScanProblem::NotThisForm);
  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    const FormRect block = form.layout().block(player);
    form.fill({block.x - 1, block.y - 1, block.width + 2, block.height + 2}, 255);
  }
  EXPECT_EQ(readOf(form).problem, ScanProblem::NotReadable);
}

GrayPicture plain(int width, int height, int shade) {
  GrayPicture result{width, height, {}};
  result.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                       static_cast<std::uint8_t>(shade));
  return result;
}

TEST(FormReader, RefusesWhatIsNoForm) {
  EXPECT_EQ(readOf(GrayPicture{}).problem, ScanProblem::NotAPicture);
  EXPECT_EQ(readOf(GrayPicture{-5, -5, std::vector<std::uint8_t>(25)}).problem, ScanProblem::NotAPicture);
  EXPECT_EQ(readOf(GrayPicture{2480, 3508, std::vector<std::uint8_t>(99)}).problem, ScanProblem::NotAPicture);
  for (const auto& [width, height] : {std::pair{1, 1}, {20000, 1}, {1, 20000}, {20000, 200}, {600, 800}})
    EXPECT_EQ(readOf(plain(width, height, 255)).problem, ScanProblem::TooCoarse) << width;
  for (const auto& [width, height] : {std::pair{2480, 3508}, {20000, 1000}, {1240, 20000}}) {
    for (const int shade : {0, 10, 128, 255})
      EXPECT_EQ(readOf(plain(width, height, shade)).problem, ScanProblem::NoUpperLeftMark) << width;
  }
  // Noise, squares of every size, and stripes.
  std::minstd_rand random(3);
  GrayPicture picture = plain(1700, 2200, 255);
  for (std::uint8_t& pixel : picture.pixels)
    pixel = static_cast<std::uint8_t>(random() >> 8);
  EXPECT_NE(readOf(picture).problem, ScanProblem::None);
  for (const std::size_t size : {8U, 25U, 60U, 100U}) {
    for (std::size_t i = 0; i < picture.pixels.size(); ++i)
      picture.pixels[i] = (i % 1700 / size % 2 == 0 && i / 1700 / size % 2 == 0) ? 0 : 255;
    EXPECT_NE(readOf(picture).problem, ScanProblem::None) << size;
  }
}

TEST(FormReader, SurvivesAnyDamage) {
  const GrayPicture clean = DrawnForm(kSheet).scanned({.dots = 150});
  std::minstd_rand random(5);
  const auto upTo = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
  int refused = 0;
  for (int round = 0; round < 15; ++round) {
    GrayPicture picture = clean;
    for (int patch = 0; patch < 1 + round; ++patch) {
      const int left = upTo(picture.width), top = upTo(picture.height);
      const int right = std::min(picture.width, left + upTo(400));
      const int bottom = std::min(picture.height, top + upTo(400));
      const int from = upTo(picture.width * picture.height / 2);
      const bool isCopy = random() % 2 == 0;
      for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
          const std::size_t at = static_cast<std::size_t>(y * picture.width + x);
          picture.pixels[at] = isCopy ? picture.pixels[static_cast<std::size_t>(from) + at % 999999 / 2]
                                      : static_cast<std::uint8_t>(random() >> 20);
        }
      }
    }
    const FormReading reading = readOf(picture);
    refused += reading.problem != ScanProblem::None ? 1 : 0;
    EXPECT_EQ(reading.cells.empty(), reading.problem != ScanProblem::None);
    EXPECT_TRUE(reading.problem != ScanProblem::None || reading.identifier == kSheet);
  }
  EXPECT_GT(refused, 0);
}

TEST(FormReader, TellsHowFarItIsAndStops) {
  const DrawnForm form(kSheet);
  const GrayPicture picture = form.scanned({.dots = 150});
  const FormReader reader(form.layout());
  FormReading reading;
  std::vector<int> steps;
  const auto readUntil = [&](int stop) {
    const TaskWatch watch;
    std::atomic<bool> isRead = false;
    std::thread work([&] {
      reading = reader.read(picture, watch);
      isRead = true;
    });
    for (steps.clear(); !isRead; std::this_thread::yield()) {
      steps.push_back(watch.progress().done);
      if (steps.back() >= stop)
        watch.cancel();
    }
    work.join();
    return watch.progress();
  };
  EXPECT_EQ(readUntil(101), (TaskWatch::Progress{100, 100}));
  EXPECT_EQ(reading.problem, ScanProblem::None);
  EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
  for (const int stop : {0, 5, 42, 60}) {
    constexpr int kTries = 20; // where the one who stops it does not get a turn in time
    TaskWatch::Progress reached = readUntil(stop);
    for (int i = 1; i < kTries && reading.problem == ScanProblem::None; ++i)
      reached = readUntil(stop);
    EXPECT_EQ(reading.problem, ScanProblem::Cancelled) << stop;
    EXPECT_TRUE(reading.cells.empty());
    EXPECT_LT(reached.done, 100);
  }
}

TEST(FormReader, NamesItsProblems) {
  for (const ScanProblem none : {ScanProblem::None, ScanProblem::Cancelled})
    EXPECT_EQ(textOf(none), Text::None);
  using Texts = std::vector<std::pair<ScanProblem, Text>>;
  const Texts texts = {
      {ScanProblem::NotAPicture, Text::NotAPicture},   {ScanProblem::TooCoarse, Text::TooCoarse},
      {ScanProblem::NoTop, Text::NoTopPosition},       {ScanProblem::NoUpperLeftMark, Text::NoUpperLeftMark},
      {ScanProblem::NoLeft, Text::NoLeftPosition},     {ScanProblem::NoRight, Text::NoRightPosition},
      {ScanProblem::NoBottom, Text::NoBottomPosition}, {ScanProblem::NotReadable, Text::ReadError},
      {ScanProblem::NotThisForm, Text::InvalidFormat}, {ScanProblem::TooFaint, Text::ScanTooFaint}};
  for (const auto& [problem, text] : texts)
    EXPECT_EQ(textOf(problem), text);
}

} // namespace
} // namespace hooptab
