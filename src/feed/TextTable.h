// A table of text with aligned columns, as a terminal shows it: widths are counted in characters, not bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class TextTable {
 public:
  enum class Align : std::uint8_t { Left, Right };

  void addColumn(std::string header, Align align);
  // As many cells as there are columns.
  void addRow(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }
  // A line of dashes before the next row.
  void addRule() { m_rules.push_back(m_rows.size()); }
  [[nodiscard]] std::string text() const;

 private:
  struct Column {
    std::string header;
    Align align;
  };
  std::vector<Column> m_columns;
  std::vector<std::vector<std::string>> m_rows;
  std::vector<std::size_t> m_rules; // row numbers
};

} // namespace hooptab
