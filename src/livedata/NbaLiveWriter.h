// A game as NBA live data: its play-by-play and its box score, two files of one game. What they cannot hold
// is left out: an assist without a basket or free throw near it, who has the possession arrow, a jump ball of
// which nobody knows who won it, the two user-defined statistics, coaches, captains, competition and round.
// Read again, a lay-up has no side, a foul of no kind is a personal one and one of unknown free throws has
// none, an assist follows its shot, and changes between a foul and its last free throw stand behind that.
#pragma once

#include "foreign/ForeignGame.h"

#include <string>

namespace hooptab {

[[nodiscard]] std::string writeNbaLivePlays(const ForeignGame& game);
[[nodiscard]] std::string writeNbaLiveBox(const ForeignGame& game);

} // namespace hooptab
