// Reads a game in <bbgame>, the XML in which the colleges of the United States hand on a game: teams, rules
// and box score. What happened in it, play by play, is left to BbGamePlays.
#pragma once

#include "bbgame/XmlDocument.h"
#include "foreign/ForeignGame.h"
#include "foreign/SourcePart.h"

#include <optional>

namespace hooptab {

[[nodiscard]] std::optional<SourcePart> recogniseBbGame(const XmlDocument& document);
// Complete or in progress. Throws UnreadableGame where there are not two teams.
[[nodiscard]] ForeignGame readBbGame(const XmlDocument& document);

} // namespace hooptab
