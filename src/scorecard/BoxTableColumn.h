// The columns of the tables that show box scores: of players and lines, and of a league's sheet. Text, order
// and look of a column's cells; headers are told by the window, in its language.
#pragma once

#include "scorecard/BoxScore.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace hooptab {

struct BoxTableColumn {
  QString name;                       // unique, for files
  std::optional<ValueKind> kind = {}; // of a statistic
  bool isText = false;                // sorts by its text
  bool isLeftAligned = false;
  bool isHidden = false;
  bool isMadeOrAttempted = false;
  bool isShaded = false; // tinted, to tell groups of columns apart
  bool isBold = false;
  std::function<QString(const BoxRow&)> text = {};
  std::function<double(const BoxRow&)> sortValue = {}; // of columns that are no text
};

// In creation order, and in the order of the sheet; number and name come first.
[[nodiscard]] std::vector<BoxTableColumn> boxTableColumns();
[[nodiscard]] std::vector<BoxTableColumn> leagueTableColumns();

} // namespace hooptab
