// What is taken out of a game, as kinds of an export beside the formats of other systems.
#pragma once

#include "exchange/ExportKinds.h"
#include "settings/Texts.h"

#include <string>
#include <vector>

namespace hooptab {

// The texts must outlive them.
[[nodiscard]] std::vector<ExportKind> extractKinds(const Texts& texts);

} // namespace hooptab
