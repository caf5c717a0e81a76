// The flow of a score with the words that its chart shows, in the language in use: what a window and a page
// draw alike. Counts nothing and draws nothing.
#pragma once

#include "game/GameFile.h"
#include "insight/MarginFlow.h"
#include "settings/Texts.h"

#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

struct FlowDrawing {
  MarginFlow flow;
  PerSide<std::string> teams;          // abbreviations
  PerSide<std::uint32_t> colours = {}; // red + 256 * green + 65536 * blue
  PerSide<std::string> ahead;          // "HERON ahead"
  std::string result;                  // "HERON by 4"
  std::string chanceWords;             // "Chance of HERON to win", the visitors
  std::string timeWords;               // of the axes, where they are columns
  std::string differenceWords;
  std::vector<std::string> periods;      // "Period 1", one for each of the flow
  std::vector<std::string> shortPeriods; // "1"
  std::string emptyWords;                // why there is nothing to draw; empty where there is
};
[[nodiscard]] FlowDrawing flowDrawing(const Game& game, const Texts& texts);

// "HERON up to +9", "19 lead changes": what a chart says beside its curve, one thing each.
[[nodiscard]] std::vector<std::string> flowSummary(const FlowDrawing& drawing, const Texts& texts);
// The same, its parts with a dot between two of them.
[[nodiscard]] std::string inOneLine(const std::vector<std::string>& parts);

} // namespace hooptab
