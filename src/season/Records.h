// The personal records of one player or line: the best value of each statistic in a single game, and where it
// was reached. Fed with the games in their order.
#pragma once

#include "season/GameColumns.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

struct Record {
  std::string_view key;  // "R0" to "R21"
  std::string_view what; // "PT"
  int column = 0;        // of the season tables
  int value = 0;         // seconds for the time; 0: nothing yet
  std::string where;     // date and opponent; "+" in front when the record was reached more than once

  [[nodiscard]] std::string text() const; // empty before the first record
};

class Records {
 public:
  static constexpr std::size_t kCount = 22;

  Records();
  // One game of the player or line, later than those before it.
  void add(const GameCatalogue& catalogue, const GameResult& result, const Texts& texts);
  std::span<const Record, kCount> records() const { return m_records; }

 private:
  std::array<Record, kCount> m_records;
};

} // namespace hooptab
