#include "tools/replay/Sharing.h"

#include <algorithm>
#include <iostream>

namespace hooptab {

void Sharing::tell(const std::string& word) {
  std::cout << word << std::endl; // which is waited for
  std::string answer;
  if (!std::getline(std::cin, answer))
    throw ReplayFailure("nobody follows any more: " + word);
}

void Sharing::begin() {
  tell("ready " + m_table.recorded.path());
  m_table.person.clickAt(m_table.program.where("button_LIVE"));
  m_table.person.press("Up"); // from no entry to the last one
  m_table.person.press("Return");
  m_table.program.waitUntilActive("frmSHARE");
  // The network of this machine alone: others need the pass phrase for the bench.
  m_table.person.clickAt(m_table.program.where("frmSHARE/cmbNETWORK"));
  m_table.person.type("127");
  m_table.person.press("Return");
  m_table.person.clickAt(m_table.program.where("frmSHARE/spnPORT"));
  m_table.person.press("ctrl+a");
  m_table.person.type(m_choice.port);
  m_table.person.press("Tab");
  pressSwitch();
  waitUntil("the game is shared", [&] { return !m_table.program.text("frmSHARE/txtADDRESS").empty(); });
  const std::string address = m_table.program.text("frmSHARE/txtADDRESS");
  m_table.camera.take("shared");
  close();
  tell("shared " + address);
}

// Its box stands at the left of a field that is wider than its words.
void Sharing::pressSwitch() {
  const Program::Place place = m_table.program.where("frmSHARE/chkSHARE");
  m_table.person.click(place.x + place.height / 2, place.middleY());
}

void Sharing::halt() {
  tell("halted");
}

void Sharing::end() {
  m_table.person.clickAt(m_table.program.where("cmdSHARED"));
  m_table.program.waitUntilActive("frmSHARE");
  pressSwitch();
  m_table.program.waitUntilGone("cmdSHARED");
  close();
  tell("unshared");
}

void Sharing::close() {
  m_table.person.press("Escape");
  m_table.program.waitUntilGone("frmSHARE");
  m_table.program.waitUntilActive("frmLIVE");
}

SharedReplay::SharedReplay(const Game& original, const Table& table, Hand& hand, Sharing& sharing)
    : Replay(original, table, hand), m_sharing(sharing),
      m_part(std::max<std::size_t>(
          original.events.size() / static_cast<std::size_t>(std::max(sharing.choice().halts, 1) + 1), 1)) {}

bool SharedReplay::goesOn() {
  if (m_entered > 0 && m_entered % m_part == 0)
    m_sharing.halt();
  ++m_entered;
  return true;
}

} // namespace hooptab
