// What hooptab-cli prints of a game, each as one text. A game that could be read gives every one of them,
// however odd it is.
#pragma once

#include "feed/JsonWriter.h"
#include "scorecard/Scorecard.h"
#include "settings/Texts.h"
#include "storage/DelimitedText.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// All columns of the scorecard, after the team's abbreviation (RFC 4180).
[[nodiscard]] std::string boxCsv(const Scorecard& card, const Texts& texts, CsvReader reader);

[[nodiscard]] std::string eventsText(const Game& game, const Texts& texts);

// One line a finding and one that sums them up, each behind the file's name. Of each kind some are shown, and
// how many more there are.
[[nodiscard]] std::string verifyText(const Scorecard& card, const Texts& texts);
// The same as an object with all of them; the words are those of the language.
void writeVerified(const Scorecard& card, const Texts& texts, JsonWriter& json);

} // namespace hooptab
