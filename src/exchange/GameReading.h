// The other way round: a game of ours in the terms that other systems share, for the writers. Starts and
// stops of the clock become substitutions and the beginning and end of periods; what the tally counts stands
// as official numbers, under the names of exchange/Reconciliation.h.
#pragma once

#include "foreign/ForeignGame.h"
#include "game/CountedGame.h"
#include "storage/ProfileText.h"

namespace hooptab {

// `text` is the file of that game, for ids and wall clocks.
[[nodiscard]] ForeignGame foreignGameOf(const CountedGame& game, const ProfileText& text);

} // namespace hooptab
