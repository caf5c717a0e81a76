// The rule that is printed on the form: in a row, marks stand from the left without a gap. What breaks it is
// a mark that was not seen, or dirt that was taken for one.
#pragma once

#include "forms/FormLayout.h"

#include <vector>

namespace hooptab {

// The cells that would have to be otherwise for every row to be in order, as few as can be; of a hole and as
// many marks behind it, the hole. Digits of a number stand in no row. One entry for each cell of the layout.
[[nodiscard]] std::vector<bool> outOfOrder(const FormLayout& layout, const std::vector<bool>& isTicked);

} // namespace hooptab
