#include "forms/FormReader.h"

#include "forms/FormGrid.h"
#include "forms/FormMarks.h"
#include "forms/InkMeasure.h"
#include "forms/PictureSums.h"
#include "forms/ReadingSteps.h"
#include "forms/TickRule.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace hooptab {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kUsualDots = 300; // per inch; finer pictures are made coarser first
constexpr double kLeastDots = 140; // below it a cell's border is not seen any more
constexpr int kLeastPixels = 300;  // a picture with fewer in one direction shows no form

std::array<bool, FormIdentifier::kBits> identifierBits(const FormLayout& layout, const GrayPicture& picture,
                                                       const FormGrid& grid) {
  std::array<bool, FormIdentifier::kBits> bits = {};
  for (std::size_t bit = 0; bit < bits.size(); ++bit) {
    const FormRect& square = layout.identifier()[bit];
    const FormPoint middle{square.x + square.width / 2, square.y + square.height / 2};
    const auto mean = [&](double up) {
      double sum = 0;
      constexpr int kAround = 4; // quarter millimetres
      for (int y = -kAround; y <= kAround; ++y) {
        for (int x = -kAround; x <= kAround; ++x) {
          const PicturePoint point =
              grid.at({middle.x + x * 0.25, middle.y + y * 0.25 * (up != 0 ? 0.5 : 1) - up});
          sum += shadeAt(picture, point.x, point.y);
        }
      }
      return sum / ((2 * kAround + 1) * (2 * kAround + 1));
    };
    // Above the row there is nothing but paper.
    const double paper = mean(square.height / 2 + 1.2);
    bits[bit] = mean(0) < paper * (1 + grid.black()) / 2;
  }
  return bits;
}

// A cell that the picture cuts off cannot be read with certainty.
bool isWithin(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell) {
  for (const double x : {cell.rect.x, cell.rect.right()}) {
    for (const double y : {cell.rect.y, cell.rect.bottom()}) {
      const PicturePoint at = grid.at(cell.player, {x, y});
      if (at.x < 0 || at.y < 0 || at.x > picture.width || at.y > picture.height)
        return false;
    }
  }
  return true;
}

} // namespace

Text textOf(ScanProblem problem) {
  switch (problem) {
  case ScanProblem::None:
  case ScanProblem::Cancelled: return Text::None;
  case ScanProblem::NotAPicture: return Text::NotAPicture;
  case ScanProblem::TooCoarse: return Text::TooCoarse;
  case ScanProblem::NoUpperLeftMark: return Text::NoUpperLeftMark;
  case ScanProblem::NoTop: return Text::NoTopPosition;
  case ScanProblem::NoLeft: return Text::NoLeftPosition;
  case ScanProblem::NoRight: return Text::NoRightPosition;
  case ScanProblem::NoBottom: return Text::NoBottomPosition;
  case ScanProblem::NotReadable: return Text::ReadError;
  case ScanProblem::NotThisForm: return Text::InvalidFormat;
  case ScanProblem::TooFaint: return Text::ScanTooFaint;
  }
  return Text::None;
}

Text adviceFor(ScanProblem problem) {
  switch (problem) {
  case ScanProblem::NoUpperLeftMark:
  case ScanProblem::NoTop:
  case ScanProblem::NoLeft:
  case ScanProblem::NoRight:
  case ScanProblem::NoBottom: return Text::ScanNoBottom;
  case ScanProblem::NotReadable: return Text::ScanNotReadable;
  case ScanProblem::NotThisForm: return Text::ScanOtherForm;
  case ScanProblem::None:
  case ScanProblem::Cancelled:
  case ScanProblem::NotAPicture:
  case ScanProblem::TooCoarse:
  case ScanProblem::TooFaint: break;
  }
  return Text::None;
}

PicturePoint FormReading::inPicture(double x, double y) const {
  PageMapping mapping;
  std::copy(std::begin(toPicture), std::end(toPicture), std::begin(mapping.m));
  return mapping.at(x, y);
}

FormReading FormReader::read(const GrayPicture& picture, const TaskWatch& watch) const {
  // In the order in which paper comes to lie: a broad picture is a page on its side, or a photo of one that
  // stands; in a high one a page on its side would be too small to read.
  constexpr std::array kBroad = {1, 3, 0, 2};
  constexpr std::array kHigh = {0, 2};
  const std::span<const int> ways =
      picture.width > picture.height ? std::span<const int>(kBroad) : std::span<const int>(kHigh);
  FormReading asItCame;
  ReadingSteps steps(watch);
  for (const int way : ways) {
    FormReading reading = way == 0 ? readUpright(picture, steps) : readUpright(turned(picture, way), steps);
    reading.quarters = way;
    // Another side up may make it a form, where there are the squares of one.
    if (adviceFor(reading.problem) == Text::None || !reading.showsSquares)
      return reading;
    if (way == 0)
      asItCame = std::move(reading);
  }
  return asItCame;
}

FormReading FormReader::readUpright(const GrayPicture& picture, ReadingSteps& steps) const {
  FormReading result;
  const auto refused = [&](ScanProblem problem) {
    result.problem = problem;
    return result;
  };
  if (picture.width <= 0 || picture.height <= 0 ||
      picture.pixels.size() !=
          static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height))
    return refused(ScanProblem::NotAPicture);
  const double across = picture.width / FormLayout::kWidth;
  const double down = picture.height / FormLayout::kHeight;
  if (std::max(across, down) * kMillimetresPerInch < kLeastDots ||
      std::min(picture.width, picture.height) < kLeastPixels)
    return refused(ScanProblem::TooCoarse);

  if (!steps.reach(0))
    return refused(ScanProblem::Cancelled);
  const int factor = std::max(1, static_cast<int>(std::min(across, down) * kMillimetresPerInch / kUsualDots));
  GrayPicture smaller;
  if (factor > 1)
    smaller = reduced(picture, factor);
  const GrayPicture& page = factor > 1 ? smaller : picture;

  const MarkSearch search = findMarks(m_layout, page, steps);
  result.showsSquares = search.showsSquares;
  if (search.problem != ScanProblem::None)
    return refused(search.problem);

  // The first set of marks under which a form's identifier stands is the right one; without any, the best
  // says what is wrong.
  std::optional<FormGrid> grid;
  std::optional<FormIdentifier> identifier;
  for (const MarkSet& marks : search.sets) {
    auto candidate = FormGrid::ofMarks(m_layout, page, marks.centres);
    if (!candidate)
      continue;
    identifier = FormIdentifier::ofBits(identifierBits(m_layout, page, *candidate));
    if (identifier || !grid)
      grid = std::move(candidate);
    if (identifier)
      break;
  }
  if (!grid)
    return refused(ScanProblem::NoUpperLeftMark);
  if (!identifier && !search.sets.front().isHollow)
    return refused(ScanProblem::NoUpperLeftMark);
  const PicturePoint start = grid->at({0, 0});
  const PicturePoint end = grid->at({FormLayout::kWidth, FormLayout::kHeight});
  const double dots = std::hypot(end.x - start.x, end.y - start.y) * factor /
                      std::hypot(FormLayout::kWidth, FormLayout::kHeight) * kMillimetresPerInch;
  if (dots < kLeastDots)
    return refused(ScanProblem::TooCoarse);
  if (!steps.reach(42))
    return refused(ScanProblem::Cancelled);
  if (!grid->followLines(m_layout, page))
    return refused(ScanProblem::NotReadable);
  if (!identifier)
    return refused(ScanProblem::NotThisForm);

  const auto part = [&](std::size_t cells) {
    return static_cast<double>(cells) / static_cast<double>(m_layout.cells().size());
  };
  std::vector<CellInk> inks;
  for (const FormCell& cell : m_layout.cells()) {
    inks.push_back(inkIn(page, *grid, cell));
    if (!steps.reach(50 + 40 * part(inks.size())))
      return refused(ScanProblem::Cancelled);
  }
  const TickRule first(m_layout, inks, identifier->isPrepared, grid->border());
  if (first.isTooFaint())
    return refused(ScanProblem::TooFaint);
  for (std::size_t i = 0; i < inks.size(); ++i) {
    if (first.mayBeTicked(i))
      inks[i] = inkIn(page, *grid, m_layout.cells()[i], first.darkest());
    if (!steps.reach(90 + 10 * part(i + 1)))
      return refused(ScanProblem::Cancelled);
  }
  result.cells = TickRule(m_layout, std::move(inks), identifier->isPrepared, grid->border()).read();
  for (std::size_t i = 0; i < result.cells.size(); ++i) {
    if (!isWithin(page, *grid, m_layout.cells()[i]))
      result.cells[i].isDoubtful = true;
  }
  result.identifier = *identifier;
  const PageMapping mapping = grid->whole().enlarged(factor);
  std::copy(std::begin(mapping.m), std::end(mapping.m), std::begin(result.toPicture));
  return result;
}

} // namespace hooptab
