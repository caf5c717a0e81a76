// The columns of the season tables in words, for tool tips and for choosing a statistic.
#pragma once

#include "season/Qualification.h"
#include "settings/Settings.h"

#include <array>
#include <string>

namespace hooptab {

// What the games call the user's own two statistics; empty: as the settings do.
using OwnLabels = std::array<std::string, 2>;
// `column` is a creation index.
[[nodiscard]] std::string seasonColumnWords(int column, const Settings& settings, const Texts& texts,
                                            const OwnLabels& labels = {});

// What the mark of a row of averages means: "* Under the minimum: ..."; empty for a view that marks none.
[[nodiscard]] std::string markWords(const Qualification& minimum, SeasonTable table, SeasonView view,
                                    const Texts& texts);
// What players need to lead.
[[nodiscard]] std::string minimumWords(const Qualification& minimum, SeasonView view, const Texts& texts);
// "Same game as ...", and whether the two files differ; empty for a game that is no copy.
[[nodiscard]] std::string copyWords(const GameCatalogue& catalogue, const ListedGame& game,
                                    const Texts& texts);

} // namespace hooptab
