// Words with a number, in the singular where the language has it: "1 game", "2 games"; "0 partie",
// "2 parties".
#pragma once

#include "settings/Texts.h"

#include <cstddef>
#include <string>

namespace hooptab {

// "XXX" of both texts is the count.
[[nodiscard]] std::string countWords(std::size_t count, Text one, Text many, const Texts& texts);

} // namespace hooptab
