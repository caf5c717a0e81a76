// A season in JSON: games, players, lines, leaders and teams, the same in every language.
#pragma once

#include "feed/FeedGame.h"
#include "season/Qualification.h"

#include <optional>
#include <string>

namespace hooptab {

// What everybody may see of it: names as far as they may be told, no figures of line-ups, and of the
// machine's files no more than their names.
struct PublicSeason {
  NameForm names = NameForm::Full;
};
// Keys, positions and reasons in English. All of it, unless it is for the public.
[[nodiscard]] std::string seasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                                     const Qualification& minimum,
                                     const std::optional<PublicSeason>& isPublic = {});

[[nodiscard]] std::string skipReasonInEnglish(SkipReason reason);

} // namespace hooptab
