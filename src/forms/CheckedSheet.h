// What was read from one sheet of the paper input form, with the user's corrections: for each of its players
// the number and the counts, and where they are in doubt. Knows neither the game nor its players.
#pragma once

#include "forms/FormLayout.h"
#include "forms/FormReader.h"
#include "game/GameState.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

class CheckedSheet {
 public:
  CheckedSheet() = default; // of nothing
  // A reading without problem, and the layout it follows.
  CheckedSheet(std::shared_ptr<const FormLayout> layout, FormReading reading);

  const FormReading& reading() const { return m_reading; }
  const FormIdentifier& identifier() const { return m_reading.identifier; }

  // --- Its cells, by their place in the layout
  std::size_t cellCount() const { return m_cells.size(); }
  const FormCell& cell(std::size_t cell) const { return m_layout->cells()[cell]; }
  bool isTicked(std::size_t cell) const { return m_cells[cell].isTicked; }
  bool wasRead(std::size_t cell) const { return m_reading.cells[cell].isTicked; } // as ticked
  // Read with doubt; and whether nobody has looked at it yet.
  bool isDoubtful(std::size_t cell) const { return m_reading.cells[cell].isDoubtful; }
  bool isOpen(std::size_t cell) const { return isDoubtful(cell) && !m_cells[cell].isSettled; }
  bool isCorrected(std::size_t cell) const { return isTicked(cell) != wasRead(cell); }
  // The user says what the cell is: it is in doubt no more, and what was typed for its row counts no more.
  void settle(std::size_t cell, bool isTicked);
  // Player by player; those that were settled stay among them.
  [[nodiscard]] std::vector<std::size_t> doubtfulCells() const;
  [[nodiscard]] int openCells() const;
  // The same paper, though it may have been scanned twice: hardly a mark is another.
  [[nodiscard]] bool isOneWith(const CheckedSheet& other) const;
  [[nodiscard]] bool hasCorrections() const; // something here is the user's work

  // --- What they say
  struct Jersey {
    enum class State { None, Readable, Unreadable }; // unreadable: no number, or two digits in one place
    State state = State::None;
    std::string number; // of Readable, as its digits are ticked: "05" is not "5"
    bool isOpen = false;
    bool isCorrected = false;
  };
  [[nodiscard]] Jersey jersey(int player) const;

  struct Count {
    int value = 0;
    bool isOpen = false; // a cell of its row is
    bool isCorrected = false;
    bool isTyped = false;
  };
  // Attempts are made and missed shots together.
  [[nodiscard]] bool countsFor(std::size_t cell, Counter counter) const;
  [[nodiscard]] Count count(int player, Counter counter) const;
  [[nodiscard]] Counters counts(int player) const;
  [[nodiscard]] bool hasMarks() const; // somebody of the sheet has counts, or a cell is in doubt
  [[nodiscard]] bool hasCounts(int player) const { return counts(player).hasAny(); }

  // A count that the cells do not give, say of more events than a row has cells. Made shots raise the
  // attempts they need. False, and nothing is changed, for attempts under made and for what is out of range.
  bool typeCount(int player, Counter counter, int count);
  void recount(); // the cells alone count again

 private:
  struct Cell {
    bool isTicked = false;
    bool isSettled = false;
  };
  using Typed = std::array<std::optional<int>, kCounterCount>;
  std::optional<int>& typed(int player, Counter counter);

  std::shared_ptr<const FormLayout> m_layout;
  FormReading m_reading;
  std::vector<Cell> m_cells;
  std::array<Typed, FormLayout::kPlayers> m_typed;
};

} // namespace hooptab
