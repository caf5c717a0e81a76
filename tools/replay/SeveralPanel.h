// The panel that substitutes several at once, worked by clicks: a line that has played before by its button
// where there is one, and everybody else player by player.
#pragma once

#include "game/Side.h"
#include "tools/replay/Hand.h"

namespace hooptab {

class SeveralPanel {
 public:
  explicit SeveralPanel(const Table& table) : m_table(table) {}

  // From the key that opens it until these stand on court on disk. Whether a known line was of use.
  bool substitute(const OnCourt& wanted);

 private:
  void click(const std::string& button);
  void waitForCount(Side team, int count);
  bool takeKnownLine(Side team, unsigned wanted);

  Table m_table;
};

} // namespace hooptab
