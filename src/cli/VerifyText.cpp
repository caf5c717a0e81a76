#include "cli/Reports.h"
#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

std::string verifyText(const Game& game, const std::vector<GameFinding>& findings) {
  const auto counted = [](std::ptrdiff_t count, const std::string& word) {
    return std::to_string(count) + ' ' + word + (count == 1 ? "" : "s");
  };
  const std::string file = printable(game.path) + ": ";
  std::string text;
  for (const GameFinding& finding : findings) {
    text += file + (finding.isWarning ? "warning: " : "");
    if (!finding.key.empty())
      text += "period " + std::to_string(finding.period) + ", event " + printable(finding.key) + " (" +
              printable(finding.line) + "): ";
    text += printable(finding.problem) + '\n';
  }
  const auto warnings = std::ranges::count_if(findings, &GameFinding::isWarning);
  const auto faults = std::ssize(findings) - warnings;
  return text + file + (faults == 0 ? "good" : counted(faults, "finding")) +
         (warnings == 0 ? "" : ", " + counted(warnings, "warning")) + '\n';
}

} // namespace hooptab
