// The panel that substitutes several at once, worked by clicks: a line that has played before by its button
// where there is one, and everybody else player by player.
#pragma once

#include "tools/replay/Hand.h"

namespace hooptab {

class SeveralPanel {
 public:
  explicit SeveralPanel(const Table& table) : m_table(table) {}

  // From the key that opens it until these stand on court on disk. Whether a known line was of use.
  bool substitute(const OnCourt& wanted);

 private:
  void click(const std::string& button);
  void waitForCount(std::size_t team, int count);
  bool takeKnownLine(std::size_t team, unsigned wanted);

  Table m_table;
};

} // namespace hooptab
