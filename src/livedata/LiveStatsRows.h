// The list of events of a FIBA LiveStats file, and the lists of shots that stand apart, as they are written
// of a game. The file cannot hold the user's own statistics, who has the possession arrow, a jump ball that
// nobody won, free throws awarded beyond three or none, the place of a free throw, and times on the clock of
// the wall.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/ScoreFlow.h"
#include "livedata/JsonDocument.h"

#include <string>
#include <vector>

namespace hooptab {

struct LiveStatsRows {
  OrderedJson events = OrderedJson::array();                                 // the last one first
  PerSide<OrderedJson> shots = {OrderedJson::array(), OrderedJson::array()}; // by team of ours
};
[[nodiscard]] LiveStatsRows liveStatsRows(const ForeignGame& game, const std::vector<ShotOrigin>& origins);

// The members by which the file names a person.
void addPersonTo(OrderedJson& object, const std::string& name);
// "A. Roy"
[[nodiscard]] std::string shortName(const std::string& name);
// The number of a period as the file has it, and its kind: overtimes begin anew with 1.
[[nodiscard]] int periodInLiveStats(const ForeignGame& game, int period);
[[nodiscard]] std::string periodTypeInLiveStats(const ForeignGame& game, int period);

} // namespace hooptab
