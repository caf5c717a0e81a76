#include "tools/forms/ScannedSheet.h"

#include "tools/forms/Drawn.h"
#include "tools/forms/PrintedForm.h"
#include "tools/forms/Scanner.h"
#include "tools/forms/Wear.h"

#include <string>

namespace hooptab {

namespace {

// Fills in one form: knows the truth.
class Filling {
 public:
  Filling(PrintedForm& form, const FormLayout& layout, const Hand& hand, Random& random)
      : m_form(form), m_layout(layout), m_hand(hand), m_random(random), m_takesBack(random.chance(400)),
        m_likesOrder(random.chance(850)), m_truth(layout.cells().size(), CellTruth::Empty) {}

  std::vector<CellTruth> fill(bool isPrepared) {
    for (int player = 0; player < FormLayout::kPlayers; ++player) {
      std::string& jersey = m_form.jerseys[static_cast<std::size_t>(player)];
      const bool isPrinted = !jersey.empty();
      if (!isPrinted && (isPrepared || m_random.chance(150)))
        continue; // nobody plays in this place
      if (!isPrinted)
        jersey = name(player);
      for (std::size_t index = 0; index < m_truth.size(); ++index) {
        const FormCell& cell = m_layout.cells()[index];
        if (cell.player != player || !FormLayout::isDigitOf(cell, jersey))
          continue;
        m_truth[index] = CellTruth::Ticked;
        if (!isPrinted)
          m_hand.tick(m_form.paper, cell.rect, m_random);
      }
      m_activity = m_random.between(100, 800);
      fillRows(player);
    }
    if (m_random.chance(300)) // the game's date and opponent, beside the title
      m_hand.write(m_form.paper, {88, 13}, 30, real(m_random, 1.4, 2), m_random);
    if (m_random.chance(300)) { // a signature between the lower marks
      const double x = real(m_random, 30, 110);
      m_hand.write(m_form.paper, {x, 255}, real(m_random, 25, 60), 2, m_random);
    }
    return std::move(m_truth);
  }
  [[nodiscard]] bool hasTakenBack() const { return m_hasTakenBack; }

 private:
  // Writes a name on the line and gives the player a number.
  std::string name(int player) {
    const FormRect place = m_layout.name(player);
    const Place start = {place.x + 1, place.y + place.height / 2 - real(m_random, 0, 1)};
    const double width = place.width * real(m_random, 0.6, 0.95);
    m_hand.write(m_form.paper, start, width, real(m_random, 1.8, 2.8), m_random);
    return std::to_string(m_random.chance(100) ? m_random.between(100, 999) : m_random.below(100));
  }

  // Row by row: the cells of one counter follow each other in the layout.
  void fillRows(int player) {
    for (std::size_t first = 0; first < m_truth.size();) {
      const FormCell& cell = m_layout.cells()[first];
      if (cell.player != player || cell.kind == FormCell::Kind::JerseyDigit) {
        ++first;
        continue;
      }
      fillRow(first);
      first += FormLayout::kCellsInRow;
    }
  }
  void fillRow(std::size_t first) {
    constexpr int kCells = FormLayout::kCellsInRow;
    if (!m_random.chance(m_activity))
      return;
    const int count = m_random.chance(60) ? kCells - m_random.below(3) : m_random.between(1, 6);
    const bool isInOrder = m_likesOrder || m_random.chance(500);
    for (int ticked = 0; ticked < count; ++ticked) {
      std::size_t index = first + static_cast<std::size_t>(isInOrder ? ticked : m_random.below(kCells));
      const FormRect& cell = m_layout.cells()[index].rect;
      if (m_truth[index] != CellTruth::Empty)
        continue;
      // Most often the last mark of a row was the one too many.
      const bool isWrong = m_takesBack && m_random.chance(ticked + 1 == count ? 120 : 15);
      m_truth[index] = isWrong ? CellTruth::TakenBack : CellTruth::Ticked;
      m_hasTakenBack = m_hasTakenBack || isWrong;
      if (isWrong)
        m_hand.takeBack(m_form.paper, cell, m_random);
      else
        m_hand.tick(m_form.paper, cell, m_random);
    }
  }

  PrintedForm& m_form;
  const FormLayout& m_layout;
  const Hand& m_hand;
  Random& m_random;
  const bool m_takesBack;
  const bool m_likesOrder;
  int m_activity = 0; // of the player: in how many rows of a thousand something happened
  bool m_hasTakenBack = false;
  std::vector<CellTruth> m_truth;
};

} // namespace

ScannedSheet scannedSheet(int number, const FormLayout& layout, const std::optional<Pen>& pen) {
  Random random(static_cast<std::uint64_t>(number) + 1);
  ScannedSheet sheet;
  sheet.number = number;
  sheet.mark = static_cast<Hand::Mark>(number % Hand::kMarks);
  sheet.pen = pen ? pen->kind : static_cast<Pen::Kind>(number / Hand::kMarks % Pen::kKinds);
  PrintedForm form = printForm(random);
  sheet.damages.add(Damage::Halftone, form.isHalftoned);
  sheet.identifier = form.identifier;
  const Hand hand(sheet.mark, pen ? *pen : Pen::some(sheet.pen, random), random);
  Filling filling(form, layout, hand, random);
  sheet.cells = filling.fill(form.identifier.isPrepared);
  sheet.damages.add(Damage::TakenBack, filling.hasTakenBack());
  wear(form.paper, random, sheet.damages);
  const Scanner scanner = Scanner::some(random, sheet.damages);
  sheet.dotsPerInch = scanner.dotsPerInch;
  sheet.picture = scanner.scan(form.paper, random);
  return sheet;
}

} // namespace hooptab
