#include "forms/RowOrder.h"

namespace hooptab {

std::vector<bool> outOfOrder(const FormLayout& layout, const std::vector<bool>& isTicked) {
  std::vector<bool> result(isTicked.size());
  for (std::size_t first = 0; first < isTicked.size();) {
    if (layout.cells()[first].kind == FormCell::Kind::JerseyDigit) {
      ++first;
      continue;
    }
    constexpr std::size_t kRow = FormLayout::kCellsInRow; // one behind the other in the layout
    std::size_t length = 0;                               // of the row's marks, were they in order
    int otherwise = 0;                                    // how many cells fit that length less than none
    int fewest = 0;
    for (std::size_t cell = 0; cell < kRow; ++cell) {
      otherwise += isTicked[first + cell] ? -1 : 1;
      if (otherwise <= fewest) {
        fewest = otherwise;
        length = cell + 1;
      }
    }
    for (std::size_t cell = 0; cell < kRow; ++cell)
      result[first + cell] = isTicked[first + cell] != (cell < length);
    first += kRow;
  }
  return result;
}

} // namespace hooptab
