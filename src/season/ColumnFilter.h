// What somebody types above a column to see some of its rows alone: a word that stands in the cell, or a
// number with >, <, >=, <= or = in front. Knows no table.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

class ColumnFilter {
 public:
  ColumnFilter() = default; // lets all pass
  // Times are written as they are shown, "12:30"; a percentage as the number before its sign.
  explicit ColumnFilter(std::string_view typed);

  [[nodiscard]] bool isEmpty() const { return m_word.empty() && !m_number; }
  // A cell by its text, and by its number: seconds of a time, 50 for 50 %.
  [[nodiscard]] bool accepts(std::string_view text, double value) const;

 private:
  std::string m_sign; // empty: the word is in the text
  std::string m_word;
  std::optional<double> m_number;
};

} // namespace hooptab
