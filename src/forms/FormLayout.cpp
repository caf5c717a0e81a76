#include "forms/FormLayout.h"

namespace hooptab {

namespace {

constexpr double kSquare = 3.6; // of the identifier
constexpr double kSquarePitch = 4.4;
constexpr double kIdentifierTop = 1.7;

constexpr double kFirstBlock = 21; // from the top
constexpr double kBlockPitch = 57.2;
constexpr double kBlockHeight = 55.6;
constexpr double kMargin = 2; // inside a block
constexpr double kCell = 3.2;
constexpr double kCellPitch = 4;
constexpr double kRowPitch = 4;
constexpr double kGapOfFive = 1; // behind every fifth cell of a row, so that ticks are counted at a glance
constexpr double kGapBeforeActions = 0.8;

constexpr double kNameWidth = 47;
constexpr double kNameHeight = 22;
constexpr double kDigitsTop = 30; // inside a block
constexpr double kDigitRows = 6;
constexpr double kFirstHalf = 53;
constexpr double kSecondHalf = 123;
constexpr double kLabelWidth = 8.5;

constexpr int kVersionBits = 4;
constexpr int kSheetBits = 3;
constexpr int kTeamBits = 12;
constexpr int kCheckBits = 8;
constexpr int kDataBits = FormIdentifier::kBits - 2 - kCheckBits;
static_assert(kVersionBits + kSheetBits + 1 + kTeamBits == kDataBits);

// The two counters of a row; shots have their made and missed cells side by side.
constexpr Counter kActionRows[][2] = {
    {Counter::OR, Counter::DR}, {Counter::Ast, Counter::TO}, {Counter::ST, Counter::BS},
    {Counter::S1, Counter::S2}, {Counter::PF, Counter::TF},
};

// CRC-8 (polynomial 07), from 1: a row of nothing but white squares does not check.
unsigned checkSum(unsigned data) {
  unsigned sum = 0xFF;
  for (int bit = kDataBits - 1; bit >= 0; --bit) {
    const unsigned in = (data >> bit) & 1U;
    const unsigned out = (sum >> 7) & 1U;
    sum = (sum << 1) & 0xFFU;
    if ((in ^ out) != 0)
      sum ^= 0x07U;
  }
  return sum;
}

} // namespace

std::array<bool, FormIdentifier::kBits> FormIdentifier::bits() const {
  unsigned data = kVersion << kSheetBits; // what has no room in the sheet's bits raises the version
  data += static_cast<unsigned>(sheet);
  data = data << 1 | (isPrepared ? 1U : 0U);
  data = data << kTeamBits | static_cast<unsigned>(team);
  const unsigned all = (1U << (kDataBits + kCheckBits) | data << kCheckBits | checkSum(data)) << 1;
  std::array<bool, kBits> result = {};
  for (int bit = 0; bit < kBits; ++bit)
    result[static_cast<std::size_t>(bit)] = (all >> (kBits - 1 - bit) & 1U) != 0;
  return result;
}

std::optional<FormIdentifier> FormIdentifier::ofBits(const std::array<bool, kBits>& bits) {
  unsigned all = 0;
  for (const bool bit : bits)
    all = all << 1 | (bit ? 1U : 0U);
  if (!bits.front() || bits.back())
    return std::nullopt;
  all = (all >> 1) & ((1U << (kDataBits + kCheckBits)) - 1);
  unsigned data = all >> kCheckBits;
  if (checkSum(data) != (all & 0xFFU))
    return std::nullopt;
  FormIdentifier result;
  result.team = static_cast<int>(data & ((1U << kTeamBits) - 1));
  data >>= kTeamBits;
  result.isPrepared = (data & 1U) != 0;
  data >>= 1;
  result.sheet = static_cast<int>(data) - (kVersion << kSheetBits);
  return result.sheet >= 0 && result.sheet < kMostSheets ? std::optional(result) : std::nullopt;
}

int FormIdentifier::teamNumber(std::string_view abbreviation, std::string_view category) {
  // FNV-1a, folded to the bits that a form has room for.
  std::uint32_t sum = 2166136261U;
  const auto add = [&](std::string_view text) {
    for (const char letter : text)
      sum = (sum ^ static_cast<unsigned char>(letter)) * 16777619U;
  };
  add(abbreviation);
  add("-");
  add(category);
  const std::uint32_t folded = (sum ^ sum >> kTeamBits ^ sum >> (2 * kTeamBits)) & ((1U << kTeamBits) - 1);
  return folded == 0 ? 1 : static_cast<int>(folded);
}

FormLayout::FormLayout() {
  m_marks = {{{0, 0, kMark, kMark},
              {kWidth - kMark, 0, kMark, kMark},
              {0, kHeight - kMark, kMark, kMark},
              {kWidth - kMark, kHeight - kMark, kMark, kMark}}};
  const double row = FormIdentifier::kBits * kSquarePitch;
  double x = (kWidth - row) / 2;
  for (FormRect& square : m_identifier) {
    square = {x, kIdentifierTop, kSquare, kSquare};
    x += kSquarePitch;
  }
  for (int player = 0; player < kPlayers; ++player)
    addPlayer(player);
}

FormRect FormLayout::markHole() const {
  const double edge = (kMark - kMarkHole) / 2;
  return {edge, edge, kMarkHole, kMarkHole};
}

FormRect FormLayout::title() const {
  return {0, 8.5, 120, 6};
}
FormRect FormLayout::sheetText() const {
  return {122, 8.5, kWidth - 122, 6};
}
FormRect FormLayout::hint() const {
  return {0, 15, kWidth, 5};
}

// The last block ends above the lower marks: they stand outside of it, in the white at its sides.
FormRect FormLayout::block(int player) const {
  return {0, kFirstBlock + player * kBlockPitch, kWidth, kBlockHeight};
}

FormRect FormLayout::name(int player) const {
  const FormRect all = block(player);
  return {all.x + kMargin, all.y + kMargin, kNameWidth, kNameHeight};
}

void FormLayout::addPlayer(int player) {
  const FormRect all = block(player);
  const double left = all.x + kMargin;
  const double digits = all.y + kDigitsTop;
  for (int place = 0; place < 3; ++place)
    m_labels.push_back({{left + 10 * kCellPitch, digits + place * kDigitRows, kLabelWidth - 1, kCell},
                        FormLabel::Kind::Place,
                        player,
                        Counter::FGM,
                        place});
  for (int digit = 0; digit <= 9; ++digit) {
    const double x = left + digit * kCellPitch;
    m_labels.push_back({{x, digits - 4, kCell, 3.4}, FormLabel::Kind::Digit, player, Counter::FGM, digit});
    for (int place = 0; place < 3; ++place)
      m_cells.push_back({{x, digits + place * kDigitRows, kCell, kCell},
                         FormCell::Kind::JerseyDigit,
                         player,
                         Counter::FGM,
                         place,
                         digit});
  }

  double y = all.y + kMargin;
  constexpr double kRowWidth = kCellsInRow * kCellPitch + (kCellsInRow / 5) * kGapOfFive;
  m_labels.push_back(
      {{kFirstHalf + kLabelWidth, y, kRowWidth, kCell}, FormLabel::Kind::Made, player, Counter::FGM, 0});
  m_labels.push_back(
      {{kSecondHalf + kLabelWidth, y, kRowWidth, kCell}, FormLabel::Kind::Missed, player, Counter::FGM, 0});
  for (const EventKind& kind : eventKinds()) {
    if (!kind.isShot)
      continue;
    y += kRowPitch;
    addRow(player, FormCell::Kind::Made, kind.counter, kFirstHalf, y);
    addRow(player, FormCell::Kind::Missed, kind.counter, kSecondHalf, y);
  }
  y += kGapBeforeActions;
  for (const auto& [first, second] : kActionRows) {
    y += kRowPitch;
    addRow(player, FormCell::Kind::Count, first, kFirstHalf, y);
    addRow(player, FormCell::Kind::Count, second, kSecondHalf, y);
  }
}

void FormLayout::addRow(int player, FormCell::Kind kind, Counter counter, double x, double y) {
  m_labels.push_back({{x, y, kLabelWidth - 1, kCell}, FormLabel::Kind::Counter, player, counter, 0});
  for (int number = 0; number < kCellsInRow; ++number)
    m_cells.push_back(
        {{x + kLabelWidth + number * kCellPitch + number / 5 * kGapOfFive, y, kCell, kCell}, // whole fives
         kind,
         player,
         counter,
         0,
         number});
}

bool FormLayout::isDigitOf(const FormCell& cell, std::string_view jersey) {
  if (cell.kind != FormCell::Kind::JerseyDigit || jersey.size() > 3)
    return false;
  const int first = 3 - static_cast<int>(jersey.size());
  return cell.place >= first && jersey[static_cast<std::size_t>(cell.place - first)] == '0' + cell.number;
}

} // namespace hooptab
