#include "forms/CheckedSheet.h"

#include "totals/ManualTotals.h"

#include <algorithm>

namespace hooptab {

namespace {

struct CounterRows {
  Counter made;     // of an action: its counter
  Counter attempts; // the same for an action
};

// The two counters that the cells of one kind count; that of an action twice.
CounterRows rowsOf(Counter counter) {
  for (const EventKind& kind : eventKinds()) {
    if (kind.counter == counter || (kind.isShot && kind.attempts == counter))
      return {kind.counter, kind.isShot ? kind.attempts : kind.counter};
  }
  return {counter, counter};
}

} // namespace

CheckedSheet::CheckedSheet(std::shared_ptr<const FormLayout> layout, FormReading reading)
    : m_layout(std::move(layout)), m_reading(std::move(reading)) {
  m_reading.cells.resize(m_layout->cells().size());
  for (const ReadCell& cell : m_reading.cells)
    m_cells.push_back({cell.isTicked});
}

std::optional<int>& CheckedSheet::typed(int player, Counter counter) {
  return m_typed[static_cast<std::size_t>(player)][static_cast<std::size_t>(counter)];
}

void CheckedSheet::settle(std::size_t index, bool isTicked) {
  m_cells[index] = {isTicked, true};
  const FormCell& settled = cell(index);
  if (settled.kind == FormCell::Kind::JerseyDigit)
    return;
  const CounterRows rows = rowsOf(settled.counter);
  typed(settled.player, rows.made).reset();
  typed(settled.player, rows.attempts).reset();
}

std::vector<std::size_t> CheckedSheet::doubtfulCells() const {
  std::vector<std::size_t> found;
  for (std::size_t index = 0; index < m_cells.size(); ++index) {
    if (isDoubtful(index))
      found.push_back(index);
  }
  std::ranges::stable_sort(found, {}, [this](std::size_t index) { return cell(index).player; });
  return found;
}

int CheckedSheet::openCells() const {
  int open = 0;
  for (std::size_t index = 0; index < m_cells.size(); ++index)
    open += isOpen(index) ? 1 : 0;
  return open;
}

bool CheckedSheet::isOneWith(const CheckedSheet& other) const {
  if (identifier() != other.identifier() || cellCount() != other.cellCount())
    return false;
  int marks = 0;
  int others = 0;
  for (std::size_t index = 0; index < m_cells.size(); ++index) {
    marks += isTicked(index) ? 1 : 0;
    others += isTicked(index) != other.isTicked(index) ? 1 : 0;
  }
  return marks > 0 && others * 25 <= marks;
}

bool CheckedSheet::hasCorrections() const {
  const auto isTyped = [](const Typed& counts) {
    return std::ranges::any_of(counts, [](const auto& count) { return count.has_value(); });
  };
  return std::ranges::any_of(m_cells, &Cell::isSettled) || std::ranges::any_of(m_typed, isTyped);
}

CheckedSheet::Jersey CheckedSheet::jersey(int player) const {
  Jersey found;
  std::array<std::string, 3> digits; // in each place, hundreds first
  for (std::size_t index = 0; index < m_cells.size(); ++index) {
    const FormCell& digit = cell(index);
    if (digit.kind != FormCell::Kind::JerseyDigit || digit.player != player)
      continue;
    found.isOpen = found.isOpen || isOpen(index);
    found.isCorrected = found.isCorrected || isCorrected(index);
    if (isTicked(index))
      digits[static_cast<std::size_t>(digit.place)] += static_cast<char>('0' + digit.number);
  }
  // Digits stand from the units on, without a gap.
  bool isOdd = false;
  for (std::size_t place = 0; place < digits.size(); ++place) {
    isOdd = isOdd || digits[place].size() > 1 || (digits[place].empty() && !found.number.empty());
    found.number += digits[place];
  }
  if (found.number.empty())
    return found;
  found.state = isOdd ? Jersey::State::Unreadable : Jersey::State::Readable;
  if (isOdd)
    found.number.clear();
  return found;
}

bool CheckedSheet::countsFor(std::size_t index, Counter counter) const {
  const FormCell& counted = cell(index); // known by the made counter of its kind
  const CounterRows rows = rowsOf(counter);
  if (counted.kind == FormCell::Kind::JerseyDigit || counted.counter != rows.made)
    return false;
  return counted.kind != FormCell::Kind::Missed || counter == rows.attempts;
}

CheckedSheet::Count CheckedSheet::count(int player, Counter counter) const {
  Count sum;
  for (std::size_t index = 0; index < m_cells.size(); ++index) {
    if (cell(index).player != player || !countsFor(index, counter))
      continue;
    sum.value += isTicked(index) ? 1 : 0;
    sum.isOpen = sum.isOpen || isOpen(index);
    sum.isCorrected = sum.isCorrected || isCorrected(index);
  }
  const auto& typed = m_typed[static_cast<std::size_t>(player)][static_cast<std::size_t>(counter)];
  if (typed)
    return {*typed, false, true, true};
  return sum;
}

bool CheckedSheet::hasMarks() const {
  bool has = openCells() > 0;
  for (int player = 0; player < FormLayout::kPlayers; ++player)
    has = has || hasCounts(player);
  return has;
}

Counters CheckedSheet::counts(int player) const {
  Counters all;
  for (std::size_t counter = 0; counter < kCounterCount; ++counter)
    all.counts[counter] = static_cast<std::int16_t>(count(player, static_cast<Counter>(counter)).value);
  return all;
}

bool CheckedSheet::typeCount(int player, Counter counter, int value) {
  const CounterRows rows = rowsOf(counter);
  const bool isShot = rows.made != rows.attempts;
  if (value < 0 || value > ManualTotals::kLargestCount)
    return false;
  if (isShot && counter == rows.attempts && value < count(player, rows.made).value)
    return false;
  typed(player, counter) = value;
  if (isShot && count(player, rows.attempts).value < value)
    typed(player, rows.attempts) = value;
  return true;
}

void CheckedSheet::recount() {
  m_typed = {};
}

} // namespace hooptab
