#include "tools/forms/FormScore.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

const FormLayout& layout() {
  static const FormLayout kLayout;
  return kLayout;
}

// Six pages with each pen, one with each kind of mark: the share of the 200 pages of form_bench for which
// there is time in every run.
class FormTruthTest : public testing::TestWithParam<Pen::Kind> {};

TEST_P(FormTruthTest, WhatPeopleTickedIsRead) {
  FormScore score(layout());
  const FormReader reader(layout());
  for (int mark = 0; mark < Hand::kMarks; ++mark) {
    const ScannedSheet sheet = scannedSheet(static_cast<int>(GetParam()) * Hand::kMarks + mark, layout());
    ASSERT_EQ(sheet.pen, GetParam());
    score.add(sheet, reader.read(sheet.picture));
  }
  EXPECT_TRUE(score.isGood());
  if (HasFailure())
    score.print(stdout);
}

INSTANTIATE_TEST_SUITE_P(Pens, FormTruthTest,
                         testing::Values(Pen::Kind::BlackBallpoint, Pen::Kind::BlueBallpoint,
                                         Pen::Kind::Pencil, Pen::Kind::FeltPen),
                         [](const auto& each) {
                           std::string name = Pen::name(each.param);
                           std::erase(name, ' ');
                           return name;
                         });

// The lightest pencils that can be told from paper: what is read is right or doubtful, and most is read.
TEST(LightPencilTest, NoMarkOfALightPencilIsLostWithoutAWord) {
  const FormReader reader(layout());
  int ticked = 0;
  int found = 0;
  int page = 1000;
  for (const auto& [radius, darkness] : {std::pair{0.12, 0.4}, {0.18, 0.25}, {0.27, 0.2}}) {
    const Pen pen{Pen::Kind::Pencil, radius, darkness, 0.4, 0.05};
    const ScannedSheet sheet = scannedSheet(++page, layout(), pen);
    const FormReading reading = reader.read(sheet.picture);
    ASSERT_EQ(reading.problem, ScanProblem::None) << darkness;
    for (std::size_t cell = 0; cell < sheet.cells.size(); ++cell) {
      if (sheet.cells[cell] != CellTruth::Ticked)
        continue;
      ++ticked;
      found += reading.cells[cell].isTicked ? 1 : 0;
      EXPECT_TRUE(reading.cells[cell].isTicked || reading.cells[cell].isDoubtful) << darkness << ' ' << cell;
    }
  }
  EXPECT_GT(found * 10, ticked * 9);
}

// A score that finds no fault in faulty readings would make everything above worthless.
TEST(FormScoreTest, EveryKindOfFaultIsCounted) {
  ScannedSheet sheet;
  sheet.identifier = {2, true, 17};
  sheet.cells.assign(layout().cells().size(), CellTruth::Empty);
  sheet.cells[5] = CellTruth::Ticked;
  sheet.cells[6] = CellTruth::TakenBack;
  FormReading right;
  right.identifier = sheet.identifier;
  right.cells.resize(sheet.cells.size());
  right.cells[5].isTicked = true;
  const auto isGood = [&](const FormReading& reading) {
    FormScore score(layout());
    score.add(sheet, reading);
    return score.isGood();
  };
  EXPECT_TRUE(isGood(right));
  EXPECT_FALSE(FormScore(layout()).isGood()) << "nothing was read";
  for (const std::size_t cell : {4U, 5U, 6U}) {
    FormReading wrong = right;
    wrong.cells[cell].isTicked = !wrong.cells[cell].isTicked;
    EXPECT_FALSE(isGood(wrong)) << "sure of a wrong cell";
    wrong.cells[cell].isDoubtful = true;
    EXPECT_TRUE(isGood(wrong));
    wrong.cells[100].isTicked = wrong.cells[100].isDoubtful = true;
    EXPECT_FALSE(isGood(wrong)) << "two wrong cells of a page are above one of a thousand";
  }
  FormReading doubting = right;
  for (std::size_t cell = 0; cell < 15; ++cell)
    doubting.cells[cell].isDoubtful = true;
  EXPECT_FALSE(isGood(doubting)) << "more than one of a hundred";
  FormReading ofOther = right;
  ofOther.identifier.sheet = 1;
  EXPECT_FALSE(isGood(ofOther));
  FormReading failed;
  failed.problem = ScanProblem::NoTop;
  EXPECT_FALSE(isGood(failed));
}

} // namespace
} // namespace hooptab
