// The commands that take games in from other systems' files, and write games as such.
#pragma once

#include "cli/Options.h"
#include "cli/Output.h"
#include "settings/Texts.h"
#include "storage/ProfileStore.h"

#include <functional>
#include <string>

namespace hooptab {

// Faults are told as they are met, and what is to be known beside the result.
using Complain = std::function<void(const std::string&)>;

// Whether every game was imported, differences or not.
[[nodiscard]] bool importGames(const Options& options, ProfileStore& store, const Texts& texts,
                               Output& output, const Complain& complain);
// Whether the game was written.
[[nodiscard]] bool exportGame(const Options& options, ProfileStore& store, const Texts& texts, Output& output,
                              const Complain& complain);

} // namespace hooptab
