// Games as five tables for people who work on with the data in a program of their own: games, players, events
// with line-ups and possession, stints, and shots, each a CSV file with a header row, whose columns
// docs/formats/tables.md describes. Of a season each game's rows are appended as it is read, and none is
// kept.
#pragma once

#include "extracts/ExtractSource.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

enum class GameTable : std::uint8_t { Games, Players, Events, Stints, Shots };
inline constexpr std::size_t kGameTableCount = 5;
inline constexpr std::array kGameTables = {GameTable::Games, GameTable::Players, GameTable::Events,
                                           GameTable::Stints, GameTable::Shots};

[[nodiscard]] std::string_view tableFileName(GameTable table); // "games.csv"
[[nodiscard]] std::vector<std::string> tableColumns(GameTable table);
// The rows of one game, without the header row.
[[nodiscard]] std::array<std::vector<std::vector<std::string>>, kGameTableCount>
tableRows(const ExtractSource& source);

class TableWriter {
 public:
  using Sinks = std::array<std::ostream*, kGameTableCount>; // in the order of kGameTables

  // Writes the header rows. The sinks must outlive it.
  explicit TableWriter(const Sinks& sinks);
  void append(const ExtractSource& source);
  // False when one of the sinks has not taken all, as on a full disk.
  [[nodiscard]] bool isGood() const;

 private:
  Sinks m_sinks;
};

} // namespace hooptab
