#include "checks/Finding.h"

#include <algorithm>
#include <map>

namespace hooptab {

bool Finding::isWrong() const {
  return kind == FindingKind::Twice ||
         (kind >= FindingKind::UnknownClock && kind <= FindingKind::CountOutOfRange);
}

FindingSummary summaryOf(const std::vector<Finding>& findings, std::size_t shownOfAKind) {
  FindingSummary summary;
  std::map<FindingKind, std::size_t> counts;
  std::map<FindingKind, std::size_t> lastRows;
  for (const Finding& finding : findings) {
    ++(finding.isWrong() ? summary.wrong : summary.doubtful);
    if (++counts[finding.kind] > shownOfAKind)
      continue;
    lastRows[finding.kind] = summary.rows.size();
    summary.rows.push_back({finding});
  }
  for (const auto& [kind, row] : lastRows)
    summary.rows[row].more = counts[kind] - std::min(counts[kind], shownOfAKind);
  return summary;
}

} // namespace hooptab
