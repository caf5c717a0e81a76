#include "feed/TextTable.h"

#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::string_view kGap = "  ";

std::size_t widthOf(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) {
    takeCodePoint(text);
    ++width;
  }
  return width;
}

void append(std::string& line, std::string_view cell, std::size_t width, TextTable::Align align) {
  const std::string padding(width - widthOf(cell), ' ');
  if (align == TextTable::Align::Right)
    line += padding;
  line += cell;
  if (align == TextTable::Align::Left)
    line += padding;
}

} // namespace

void TextTable::addColumn(std::string header, Align align) {
  m_columns.push_back({std::move(header), align});
}

std::string TextTable::text() const {
  std::vector<std::size_t> widths;
  for (std::size_t column = 0; column < m_columns.size(); ++column) {
    std::size_t width = widthOf(m_columns[column].header);
    for (const std::vector<std::string>& row : m_rows)
      width = std::max(width, widthOf(row[column]));
    widths.push_back(width);
  }
  std::string text;
  const auto addLine = [&](const auto& cellOf) {
    std::string line;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
      line += column == 0 ? std::string_view() : kGap;
      append(line, cellOf(column), widths[column], m_columns[column].align);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  };
  std::size_t whole = kGap.size() * (widths.size() - 1);
  for (const std::size_t width : widths)
    whole += width;

  addLine([&](std::size_t column) -> std::string_view { return m_columns[column].header; });
  for (std::size_t row = 0; row < m_rows.size(); ++row) {
    if (std::ranges::find(m_rules, row) != m_rules.end())
      text += std::string(whole, '-') + '\n';
    addLine([&](std::size_t column) -> std::string_view { return m_rows[row][column]; });
  }
  return text;
}

} // namespace hooptab
