// Gives games over the network as web pages, until it is ended.
#pragma once

#include "cli/ExchangeCommands.h"

namespace hooptab {

// Whether it could begin.
[[nodiscard]] bool serveGames(const Options& options, const Texts& texts, Output& output,
                              const Complain& complain);

} // namespace hooptab
