#include "MouseHand.h"

#include "storage/Settings.h"

#include <array>
#include <bit>
#include <sstream>
#include <vector>

namespace hooptab {

namespace {

constexpr int kSlotsOfTeam = 5;
constexpr int kPlaces = 15;   // of a team's bench
constexpr int kMostLines = 6; // of a team, in the panel for several
constexpr int kOneByOne = 2;  // players who come, at most

struct Control {
  EventCode code;
  const char* name;
};
constexpr std::array kButtons = {
    Control{EventCode::GFT, "cmdBUTFT"},  Control{EventCode::GLG, "cmdBUTLUG"},
    Control{EventCode::GLD, "cmdBUTLUD"}, Control{EventCode::GPB, "cmdBUTPB"},
    Control{EventCode::GDK, "cmdBUTDK"},  Control{EventCode::SA, "cmdBUTA"},
    Control{EventCode::SBS, "cmdBUTBS"},  Control{EventCode::SDR, "cmdBUTDRB"},
    Control{EventCode::SOR, "cmdBUTORB"}, Control{EventCode::SPF, "cmdBUTF"},
    Control{EventCode::STF, "cmdBUTTF"},  Control{EventCode::SST, "cmdBUTST"},
    Control{EventCode::STO, "cmdBUTTO"},  Control{EventCode::SU1, "cmdBUTU1"},
    Control{EventCode::SU2, "cmdBUTU2"},
};

std::string element(const std::string& array, int index) {
  return array + "(" + std::to_string(index) + ")";
}

std::vector<int> entriesOf(unsigned bits) {
  std::vector<int> entries;
  for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
    if ((bits >> entry & 1U) != 0)
      entries.push_back(entry);
  }
  return entries;
}

} // namespace

MouseHand::MouseHand(const Table& table)
    : m_table(table), m_zones(kFirstColours.twoPoints, kFirstColours.box, kFirstColours.threePoints) {}

// A first start does not ask for rebounds.
void MouseHand::prepare() {
  m_table.person.press("F8");
}

void MouseHand::toggleClock() {
  m_table.person.press("space");
}

void MouseHand::switchSides() {
  const std::string before = m_table.program.text("cmdCOUL(0)");
  click("cmdSWITCH");
  waitUntil("the sides are shown as switched", [&] { return m_table.program.text("cmdCOUL(0)") != before; });
  m_isSwitched = !m_isSwitched;
}

void MouseHand::returnToEndedPeriod() {
  click("cmdRETURN");
}

void MouseHand::click(const std::string& control, Person::Button button) {
  const Program::Place place = m_table.program.where(control);
  if (!place.isShown || !place.isEnabled)
    throw ReplayFailure(control + " cannot be clicked");
  clearAway(place.middleX(), place.middleY());
  m_table.person.clickAt(place, button);
}

void MouseHand::clearAway(int x, int y) {
  const Program::Place question = m_table.program.where("FollowUp");
  if (!question.isShown || !question.holds(x, y))
    return;
  m_table.person.press("Escape");
  m_table.program.waitUntilGone("FollowUp");
  ++m_questionsInTheWay;
}

// Nothing for a player on the bench.
std::optional<int> MouseHand::slotOf(const GameEvent& event) {
  const std::string entry = std::to_string(entryOf(event));
  for (int place = 0; place < kSlotsOfTeam; ++place) {
    const int slot = event.player.team * kSlotsOfTeam + place;
    if (m_table.program.text(element("lblID", slot)) == entry)
      return slot;
  }
  return std::nullopt;
}

int MouseHand::entryOf(const GameEvent& event) const {
  return m_table.recorded.game().roster[event.player.team].entryOf(event.player.jersey);
}

std::string MouseHand::record(const GameEvent& event) {
  if (const auto how = answerQuestion(event))
    return *how;
  const auto slot = slotOf(event);
  if (!slot)
    return recordOnBench(event);
  if (event.isShot())
    return shoot(event, *slot);
  for (const Control& button : kButtons) {
    if (button.code == event.code)
      click(element(button.name, *slot));
  }
  const bool isFollowUp =
      event.code == EventCode::SA || event.code == EventCode::SOR || event.code == EventCode::SDR;
  return isFollowUp ? "assist or rebound by its button" : "action";
}

// Fouls alone are his: his number, then the foul.
std::string MouseHand::recordOnBench(const GameEvent& event) {
  const bool isTechnical = event.code == EventCode::STF;
  if (!isTechnical && event.code != EventCode::SPF)
    throw ReplayFailure("he is not on court");
  click("picBENCH/" + element("cmdJERSEY", event.player.team * kPlaces + entryOf(event) - 1));
  m_table.program.waitUntilShown("picSELECTED");
  click(isTechnical ? "cmdSELTF" : "cmdSELPF");
  return "foul of the bench";
}

std::string MouseHand::shoot(const GameEvent& event, int slot) {
  const auto button = event.isMade ? Person::Button::Left : Person::Button::Right;
  for (const Control& shot : kButtons) {
    if (shot.code == event.code) {
      click(element(shot.name, slot), button);
      return event.code == EventCode::GFT ? "free throw" : "shot by its button";
    }
  }
  const Program::Place court = m_table.program.where(element("CourtJ", slot));
  const bool playsRight = (event.player.team == 1) != m_isSwitched;
  const Pixel pixel =
      courtPixel(court.width, court.height, {event.x, event.y}, event.code, playsRight, m_zones);
  clearAway(court.x + pixel.x, court.y + pixel.y);
  m_table.person.click(court.x + pixel.x, court.y + pixel.y, button);
  return "shot on the court";
}

// The player among those whom the open question offers, by his number or by a click.
std::optional<std::string> MouseHand::answerQuestion(const GameEvent& event) {
  Program& program = m_table.program;
  const bool isAssist = event.code == EventCode::SA && program.isShown("Assist");
  const bool isRebound =
      (event.code == EventCode::SOR || event.code == EventCode::SDR) && program.isShown("frmRebound");
  if (!isAssist && !isRebound)
    return std::nullopt;
  m_table.camera.take(isAssist ? "assist" : "rebound");
  const std::string form = isAssist ? "Assist/" : "frmRebound/";
  const int count = isAssist ? kSlotsOfTeam - 1 : 2 * kSlotsOfTeam;
  const int first = event.code == EventCode::SDR ? kSlotsOfTeam : 0;
  const int last = isAssist ? count : first + kSlotsOfTeam;
  int offered = -1;
  int sameNumber = 0;
  for (int index = 0; index < count; ++index) {
    const std::string button = form + element("cmdJERSEY", index);
    if (!program.isShown(button) || program.text(button) != event.player.jersey)
      continue;
    ++sameNumber;
    if (index >= first && index < last)
      offered = index;
  }
  if (offered < 0)
    return std::nullopt;
  m_typesNext = !m_typesNext;
  if (m_typesNext || sameNumber > 1) {
    m_table.person.clickAt(program.where(form + element("cmdJERSEY", offered)));
    return isAssist ? "assist asked for, clicked" : "rebound asked for, clicked";
  }
  std::string typed;
  for (const char digit : event.player.jersey) {
    typed += digit;
    m_table.person.type({&digit, 1});
    waitUntil("the number is taken, or shown", [&] {
      return !program.isShown("FollowUp") || program.text(form + "lblQUESTION").ends_with(' ' + typed + '_');
    });
    if (!program.isShown("FollowUp"))
      break; // no other number begins so
  }
  return isAssist ? "assist asked for, typed" : "rebound asked for, typed";
}

// --- Substitutions

std::string MouseHand::substitute(const OnCourt& wanted) {
  const OnCourt before = m_table.recorded.onCourt();
  int coming = 0;
  for (std::size_t team = 0; team < 2; ++team)
    coming += std::popcount(wanted[team] & ~before[team]);
  if (coming <= kOneByOne) {
    substituteOneByOne(wanted);
    return "substitution, one by one";
  }
  return substituteSeveral(wanted) ? "substitution, a known line" : "substitution, several at once";
}

void MouseHand::substituteOneByOne(const OnCourt& wanted) {
  m_table.person.press("F6");
  OnCourt now = m_table.recorded.onCourt();
  const OnCourt before = now;
  for (std::size_t team = 0; team < 2; ++team) {
    for (const unsigned moving : {before[team] & ~wanted[team], wanted[team] & ~before[team]}) {
      for (const int entry : entriesOf(moving)) {
        click("picBENCH/" + element("cmdJERSEY", static_cast<int>(team) * kPlaces + entry - 1));
        now[team] ^= 1U << static_cast<unsigned>(entry);
        m_table.recorded.waitUntil("who stands on court",
                                   [&](const Game&) { return m_table.recorded.onCourt() == now; });
      }
    }
  }
  m_table.person.press("F6");
}

bool MouseHand::substituteSeveral(const OnCourt& wanted) {
  const OnCourt before = m_table.recorded.onCourt();
  m_table.person.press("F4");
  m_table.program.waitUntilActive("frmSUBST/cmdOK");
  bool isLineOfUse = false;
  for (std::size_t team = 0; team < 2; ++team) {
    if (std::popcount(wanted[team] & ~before[team]) > 1 && takeKnownLine(team, wanted[team])) {
      isLineOfUse = true;
      continue;
    }
    int chosen = std::popcount(before[team]);
    for (const int entry : entriesOf(wanted[team] ^ before[team])) {
      click("frmSUBST/" + element("cmdJERSEY", static_cast<int>(team) * kPlaces + entry - 1));
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

// As one looks at the panel before one confirms.
void MouseHand::waitForCount(std::size_t team, int count) {
  const std::string label = element("lblCOUNT", static_cast<int>(team));
  const std::string shown = std::to_string(count) + "/5";
  waitUntil(label + " shows " + shown, [&] { return m_table.program.text(label) == shown; });
}

bool MouseHand::takeKnownLine(std::size_t team, unsigned wanted) {
  const Roster& roster = m_table.recorded.game().roster[team];
  for (int line = 0; line < kMostLines; ++line) {
    const std::string button = "frmSUBST/" + element("cmdLINE", static_cast<int>(team) * kMostLines + line);
    if (!m_table.program.isShown(button))
      return false;
    std::istringstream jerseys(m_table.program.text(button));
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
