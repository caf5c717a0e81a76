// The reader of scanned forms: pages turned, moved and stretched, hands of all kinds, and what is no form.
#include "manual/FormReader.h"

#include "manual/DrawnForm.h"

#include <gtest/gtest.h>
#include <random>

namespace hooptab {
namespace {

const FormIdentifier kSheet{1, false, 77};

FormReading readOf(const GrayPicture& picture) {
  return FormReader(FormLayout()).read(picture);
}

struct Ticked {
  DrawnForm form{kSheet};
  std::vector<bool> truth;
};
Ticked someTicks() {
  Ticked result;
  std::minstd_rand random(1);
  for (const FormCell& cell : result.form.layout().cells()) {
    const bool isTicked = random() % 12 == 0;
    result.truth.push_back(isTicked);
    if (isTicked)
      result.form.stroke(cell.rect.x + 0.5, cell.rect.y + 0.5, cell.rect.x + 2.7, cell.rect.y + 2.7, 0.4,
                         0x60);
  }
  return result;
}

TEST(FormReader, ReadsAPageHoweverItLay) {
  const Ticked page = someTicks();
  const IdealScan scans[] = {
      {},
      {.dots = 200, .turn = 5},
      {.dots = 200, .turn = -5, .stretchX = 1.03, .stretchY = 0.97},
      {.dots = 150, .turn = 7, .paperWidth = 230, .paperHeight = 300},
      {.dots = 600, .turn = 1},
      {.dots = 200, .turn = -1, .shiftX = -6, .shiftY = 10},
      {.dots = 200, .shiftX = 5, .shiftY = -5, .paperWidth = 215.9, .paperHeight = 279.4},
      {.dots = 200, .shiftX = 20, .shiftY = -20, .paperWidth = 297, .paperHeight = 420},
      {.dots = 200, .perspective = 0.02},
      {.dots = 200, .lightest = 255, .darkest = 130},
      {.dots = 200, .lightest = 110, .darkest = 5},
  };
  for (const IdealScan& scan : scans) {
    SCOPED_TRACE(&scan - scans);
    const FormReading reading = readOf(page.form.scanned(scan));
    ASSERT_EQ(reading.problem, ScanProblem::None);
    EXPECT_EQ(reading.identifier, kSheet);
    ASSERT_EQ(reading.cells.size(), page.truth.size());
    for (std::size_t i = 0; i < page.truth.size(); ++i) {
      EXPECT_EQ(reading.cells[i].isTicked, page.truth[i]) << i;
      EXPECT_FALSE(reading.cells[i].isDoubtful) << i;
    }
  }
}

} // namespace
} // namespace hooptab
