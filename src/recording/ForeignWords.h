// What others did to the file of a game, in words for the one who records it.
#pragma once

#include "game/GameOnDisk.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// Empty when there is nothing that the user must know of.
[[nodiscard]] std::string foreignWords(const ForeignHands& hands, const Texts& texts);

} // namespace hooptab
