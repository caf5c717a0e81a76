#include "forms/FormReader.h"
#include "forms/PictureSums.h"
#include "report/GameReports.h"
#include "report/ReportGame.h"
#include "support/TemporaryFolder.h"
#include "tools/forms/Drawn.h"
#include "tools/forms/FormScore.h"
#include "tools/forms/PrintedForm.h"
#include "tools/forms/Scanner.h"

#include <gtest/gtest.h>
#include <set>
#include <string_view>

namespace hooptab {
namespace {

constexpr int kWidest = 2480, kTallest = 3508; // A4 at 300 dots per inch

// What the texts for the user can say of a page that cannot be read.
const std::set kTexts = {
    Text::NoUpperLeftMark,  Text::NoTopPosition, Text::NoLeftPosition, Text::ReadError, Text::NoRightPosition,
    Text::NoBottomPosition, Text::InvalidFormat, Text::NotAPicture,    Text::TooCoarse, Text::ScanTooFaint};

template <class Shade>
GrayPicture painted(int width, int height, Shade shade) {
  GrayPicture picture = {width, height, {}};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x)
      picture.pixels.push_back(static_cast<std::uint8_t>(shade(x, y)));
  }
  return picture;
}
// The same picture with other dots: of a place in the new one, `from` says which old one it shows.
template <class From>
GrayPicture remade(const GrayPicture& picture, int width, int height, From from) {
  return painted(width, height, [&](int x, int y) {
    const auto [oldX, oldY] = from(x, y);
    const bool isInside = oldX >= 0 && oldY >= 0 && oldX < picture.width && oldY < picture.height;
    return isInside ? picture.at(oldX, oldY) : std::uint8_t{255};
  });
}
GrayPicture part(const GrayPicture& picture, int left, int top, int width, int height) {
  return remade(picture, width, height, [=](int x, int y) { return std::pair(x + left, y + top); });
}
class FormFaultsTest : public testing::Test {
 protected:
  FormFaultsTest() : form(printForm(random)), sheet(Scanner().scan(form.paper, random)) {}

  static FormReading read(const GrayPicture& picture) {
    static const FormLayout kLayout;
    return FormReader(kLayout).read(picture);
  }
  // Nothing is taken from it, and the user is told why.
  static void expectRefused(const char* what, const FormReading& reading) {
    EXPECT_NE(reading.problem, ScanProblem::None) << what;
    EXPECT_TRUE(kTexts.contains(textOf(reading.problem))) << what;
    EXPECT_TRUE(reading.cells.empty()) << what;
  }
  static void expectRefused(const char* what, const GrayPicture& picture) {
    expectRefused(what, read(picture));
  }
  // Told so, or read rightly none the less.
  void expectNoFalseReading(const char* what, const GrayPicture& picture) const {
    const FormReading reading = read(picture);
    if (reading.problem != ScanProblem::None)
      return expectRefused(what, reading);
    EXPECT_EQ(reading.identifier, form.identifier) << what;
    const FormLayout layout;
    ASSERT_EQ(reading.cells.size(), layout.cells().size()) << what;
    for (std::size_t index = 0; index < layout.cells().size(); ++index) {
      const FormCell& cell = layout.cells()[index];
      const bool isDigit = FormLayout::isDigitOf(cell, form.jerseys[static_cast<std::size_t>(cell.player)]);
      EXPECT_TRUE(reading.cells[index].isTicked == isDigit || reading.cells[index].isDoubtful)
          << what << ", cell " << index;
    }
  }

  Random random{7};
  PrintedForm form;
  GrayPicture sheet; // scanned well
};

TEST_F(FormFaultsTest, PaperWithoutAFormIsRefused) {
  expectRefused(
      "slope", painted(kWidest, kTallest, [](int x, int y) { return (x + y) * 255 / (kWidest + kTallest); }));
  expectRefused("chess board",
                painted(kWidest, kTallest, [](int x, int y) { return (x / 83 + y / 83) % 2 * 255; }));
  expectRefused("lines", painted(kWidest, kTallest, [](int, int y) { return y / 20 % 3 == 0 ? 0 : 255; }));
  // A sky above hills and their windows: large dark shapes and small bright ones.
  expectRefused("landscape", painted(kWidest, kTallest, [&](int x, int y) {
                  const double ridge = 1500 + 300 * std::sin(x / 310.0) + 90 * std::sin(x / 57.0);
                  const bool isWindow = y > 2200 && x % 400 < 90 && y % 500 < 90 && x % 400 > 7;
                  const double shade = isWindow ? 240 : y < ridge ? 235 - y * 0.05 : 90 - (y - ridge) * 0.03;
                  return static_cast<int>(std::clamp(shade + 6 * normal(random), 0.0, 255.0));
                }));
}

TEST_F(FormFaultsTest, OtherPagesOfOursAreRefused) {
  const TemporaryFolder folder;
  FileSystem files;
  ProfileStore store(files);
  const Settings settings(store, folder.path());
  const Texts texts;
  const Game game = crowdedGame(1);
  const Report report = scorecardReport(counted(game), ScorecardView(texts), settings, texts);
  ReportLayout layout(report, {});
  layout.finish();
  ASSERT_GE(layout.pages().size(), 2U);
  for (std::size_t page = 0; page < 2; ++page)
    expectRefused("scorecard", Scanner().scan(PaperSheet(printedPage(layout, page)), random));
}

TEST_F(FormFaultsTest, ASheetThatIsTurnedIsReadAndAMirroredOneRefused) {
  const int width = sheet.width, height = sheet.height;
  for (const int quarters : {0, 1, 2, 3}) {
    const GrayPicture lying = turned(sheet, (4 - quarters) % 4);
    EXPECT_EQ(read(lying).problem, ScanProblem::None);
    EXPECT_EQ(read(lying).quarters, quarters);
    expectNoFalseReading("turned", lying);
  }
  expectRefused("seen from behind",
                remade(sheet, width, height, [=](int x, int y) { return std::pair(width - 1 - x, y); }));
  expectRefused("as a negative", painted(width, height, [&](int x, int y) { return 255 - sheet.at(x, y); }));
}

TEST_F(FormFaultsTest, APartOfASheetIsRefused) {
  const int width = sheet.width, height = sheet.height;
  expectRefused("upper half", part(sheet, 0, 0, width, height / 2));
  expectRefused("lower half", part(sheet, 0, height / 2, width, height / 2));
  expectRefused("left half", part(sheet, 0, 0, width / 2, height));
  expectRefused("right half", part(sheet, width / 2, 0, width / 2, height));
  expectRefused("upper half on a whole page", remade(sheet, width, height, [=](int x, int y) {
                  return std::pair(x, y < height / 2 ? y : -1);
                }));
  for (const std::string_view name : {"upper left", "upper right", "lower left", "lower right"}) {
    const GrayPicture torn = remade(sheet, width, height, [&](int x, int y) {
      const int fromX = name.ends_with("right") ? width - 1 - x : x;
      const int fromY = name.starts_with("lower") ? height - 1 - y : y;
      return fromX + fromY < 600 ? std::pair(-1, -1) : std::pair(x, y);
    });
    expectNoFalseReading(name.data(), torn);
  }
}

// A row of squares that somebody blackened or crossed out is no other form.
TEST_F(FormFaultsTest, AFormWhoseSquaresAreScrawledOverIsNotTakenForAnother) {
  const FormLayout layout;
  for (const std::size_t square : {1U, 17U, 29U}) {
    PaperSheet paper = form.paper;
    paper.change(layout.identifier()[square], [](Place, double) { return 20.0; });
    expectNoFalseReading("a square blackened", Scanner().scan(paper, random));
  }
  PaperSheet paper = form.paper;
  const FormRect& first = layout.identifier()[3];
  paper.change({first.x, first.y - 1, 60, 6}, [](Place, double) { return 40.0; });
  expectRefused("half of the squares blackened", Scanner().scan(paper, random));
}

TEST_F(FormFaultsTest, PicturesOfAnySizeAreRefused) {
  EXPECT_EQ(read(remade(sheet, 8, 12, [](int x, int y) { return std::pair(x * 300, y * 300); })).problem,
            ScanProblem::TooCoarse)
      << "one dot per inch";
  expectRefused("20,000 dots wide", painted(20000, 3000, [](int x, int y) {
                  return x / 90 % 5 == 0 && y / 90 % 4 == 0 ? 0 : 255;
                }));
}

} // namespace
} // namespace hooptab
