#include "keypad/KeyCodes.h"

#include "storage/Module1.h"

#include <algorithm>
#include <limits>

namespace hooptab::keys {

namespace {

// A key of the keypad: the same key of the main keyboard, with Num Lock on, and with Num Lock off.
struct Row {
  int main;
  int on;
  int off;
  std::string_view suffix;
};
// The digits come first, each at its own place. "HOME" at 3 is how files have it.
constexpr Row kRows[] = {
    {48, 96, 45, "-0-INS"},   {49, 97, 35, "-1-END"},     {50, 98, 40, "-2-DOWN"},   {51, 99, 34, "-3-HOME"},
    {52, 100, 37, "-4-LEFT"}, {53, 101, 12, "-5-CLEAR"},  {54, 102, 39, "-6-RIGHT"}, {55, 103, 36, "-7-HOME"},
    {56, 104, 38, "-8-UP"},   {57, 105, 33, "-9-PAGEUP"}, {0, 107, 0, "-PLUS"},      {8, 0, 0, "-BACK"},
    {0, 106, 0, "-MULT"},     {0, 110, 46, "-.-DELETE"},  {0, 144, 0, "-NUMLOCK"},   {0, 109, 0, "-MINUS"},
    {0, 111, 0, "-DIVISE"},   {13, 0, 0, "-ENTER"},
};

const Row* rowOf(int code) {
  const Row* found = std::ranges::find_if(
      kRows, [code](const Row& row) { return row.main == code || row.on == code || row.off == code; });
  return code == 0 || found == std::end(kRows) ? nullptr : found;
}

} // namespace

std::string text(int code) {
  const Row* row = rowOf(code);
  return std::to_string(code).append(row == nullptr ? "-" : row->suffix);
}

int code(std::string_view text) {
  const std::size_t end = text.find('-');
  const int number = end == std::string_view::npos ? 0 : Module1::leadingNumber(text.substr(0, end));
  return number > 0 && number <= std::numeric_limits<std::int16_t>::max() ? number : 0;
}

std::optional<int> digit(int code, bool isKeypad) {
  const Row* row = rowOf(code);
  if (row == nullptr || row - kRows > 9 || (code != row->main && code != row->on && !isKeypad))
    return std::nullopt;
  return static_cast<int>(row - kRows);
}

int otherCode(int code) {
  const Row* row = rowOf(code);
  if (row == nullptr || code == row->main)
    return 0;
  return code == row->on ? row->off : row->on;
}

} // namespace hooptab::keys
