// The paper input form, in millimetres: where its mark points, identifier and cells stand and what a ticked
// cell means. The page that is printed and the reader of its scan both follow this one description. Draws
// nothing and reads nothing.
#pragma once

#include "game/EventKind.h"
#include "settings/Text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct FormRect {
  double x = 0, y = 0, width = 0, height = 0;
  [[nodiscard]] double right() const { return x + width; }
  [[nodiscard]] double bottom() const { return y + height; }
};

// Which form a sheet is: printed as a row of black and white squares.
struct FormIdentifier {
  static constexpr int kBits =
      30; // the first one black, the last one white: a sheet upside down never checks
  static constexpr int kVersion =
      2; // 1 had no gap behind every fifth cell; 3 is this one's ninth sheet and on
  static constexpr int kMostSheets = 16;

  int sheet = 0; // from 0
  bool isPrepared = false;
  int team = 0; // 12 bits made of the team's name; 0 for a blank form
  friend bool operator==(const FormIdentifier&, const FormIdentifier&) = default;

  [[nodiscard]] std::array<bool, kBits> bits() const; // with version and check sum
  // Nothing for a row of squares that no form has.
  [[nodiscard]] static std::optional<FormIdentifier> ofBits(const std::array<bool, kBits>& bits);
  // 1..4095, equal for equal names.
  [[nodiscard]] static int teamNumber(std::string_view abbreviation, std::string_view category);
};

// The places of a jersey number's digits, in words.
inline constexpr Text kDigitPlaces[] = {Text::Hundreds, Text::Tens, Text::Units};

struct FormCell {
  enum class Kind : std::uint8_t { JerseyDigit, Made, Missed, Count };

  FormRect rect;
  Kind kind = Kind::Count;
  int player = 0;                 // place on the sheet, from 0
  Counter counter = Counter::FGM; // Made and Missed: the kind of shot by its made counter; Count: the counter
  int place = 0;                  // of a digit: 0 hundreds, 1 tens, 2 units
  int number = 0;                 // the digit; else which cell of its row, from 0
};

// A word beside cells: a counter's name, "made", or a digit's place.
struct FormLabel {
  enum class Kind : std::uint8_t { Counter, Made, Missed, Digit, Place };
  FormRect rect;
  Kind kind = Kind::Counter;
  int player = 0;
  Counter counter = Counter::FGM;
  int number = 0; // the digit, or its place
};

class FormLayout {
 public:
  static constexpr int kPlayers = 4; // on one sheet
  static constexpr int kSheets = 4;  // of a team of fifteen; a larger one has more
  static constexpr int kCellsInRow = 14;
  // All positions count from the upper left corner of this area, which stands in the middle of the page: it
  // fits on A4 and on Letter paper.
  static constexpr double kWidth = 192;
  static constexpr double kHeight = 258;

  FormLayout();

  // Black squares in the corners: upper left, upper right, lower left, lower right. The first one is hollow:
  // so a reader knows which side is up.
  static constexpr double kMark = 7;
  static constexpr double kMarkHole = 3;
  [[nodiscard]] const std::array<FormRect, 4>& marks() const { return m_marks; }
  [[nodiscard]] FormRect markHole() const;
  [[nodiscard]] const std::array<FormRect, FormIdentifier::kBits>& identifier() const { return m_identifier; }

  [[nodiscard]] std::span<const FormCell> cells() const { return m_cells; }
  [[nodiscard]] std::span<const FormLabel> labels() const { return m_labels; }
  [[nodiscard]] FormRect title() const;
  [[nodiscard]] FormRect hint() const;
  [[nodiscard]] FormRect sheetText() const;
  [[nodiscard]] FormRect block(int player) const; // everything of one player
  [[nodiscard]] FormRect name(int player) const;

  // The cells of a jersey's digits that are filled in on a prepared form; a jersey of one to three digits.
  [[nodiscard]] static bool isDigitOf(const FormCell& cell, std::string_view jersey);

 private:
  void addPlayer(int player);
  void addRow(int player, FormCell::Kind kind, Counter counter, double x, double y);

  std::array<FormRect, 4> m_marks;
  std::array<FormRect, FormIdentifier::kBits> m_identifier;
  std::vector<FormCell> m_cells;
  std::vector<FormLabel> m_labels;
};

} // namespace hooptab
