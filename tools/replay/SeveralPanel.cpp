#include "tools/replay/SeveralPanel.h"

#include "game/Side.h"

#include <bit>
#include <sstream>

namespace hooptab {

namespace {

constexpr int kMostLines = 6; // of a team
const std::string kForm = "frmSUBST/";

} // namespace

bool SeveralPanel::substitute(const OnCourt& wanted) {
  const OnCourt before = m_table.recorded.onCourt();
  m_table.person.press("F4");
  m_table.program.waitUntilActive(kForm + "cmdOK");
  bool isLineOfUse = false;
  for (const Side team : kSides) {
    if (std::popcount(wanted[team] & ~before[team]) > 1 && takeKnownLine(team, wanted[team])) {
      isLineOfUse = true;
      continue;
    }
    int chosen = std::popcount(before[team]);
    for (const int entry : entriesOf(wanted[team] ^ before[team])) {
      click(element("cmdJERSEY", numberOf(team) * kPlaces + entry - 1));
      chosen += (wanted[team] >> entry & 1U) != 0 ? 1 : -1;
      waitForCount(team, chosen);
    }
  }
  m_table.camera.take("several");
  m_table.person.press("Return");
  m_table.recorded.waitUntil("who stands on court",
                             [&](const Game&) { return m_table.recorded.onCourt() == wanted; });
  m_table.program.waitUntilActive("frmLIVE");
  return isLineOfUse;
}

void SeveralPanel::click(const std::string& button) {
  m_table.person.clickAt(m_table.program.where(kForm + button));
}

// As one looks at the panel before one confirms.
void SeveralPanel::waitForCount(Side team, int count) {
  const std::string label = element("lblCOUNT", numberOf(team));
  const std::string shown = std::to_string(count) + "/5";
  waitUntil(label + " shows " + shown, [&] { return m_table.program.text(label) == shown; });
}

bool SeveralPanel::takeKnownLine(Side team, unsigned wanted) {
  const Roster& roster = m_table.recorded.game().roster[team];
  for (int line = 0; line < kMostLines; ++line) {
    const std::string button = element("cmdLINE", numberOf(team) * kMostLines + line);
    if (!m_table.program.isShown(kForm + button))
      return false;
    std::istringstream jerseys(m_table.program.text(kForm + button));
    unsigned players = 0;
    for (std::string jersey; jerseys >> jersey;)
      players |= 1U << static_cast<unsigned>(roster.entryOf(jersey));
    if (players != wanted)
      continue;
    click(button);
    waitForCount(team, std::popcount(wanted));
    return true;
  }
  return false;
}

} // namespace hooptab
