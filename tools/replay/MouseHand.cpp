#include "tools/replay/MouseHand.h"

#include "game/Side.h"
#include "settings/Settings.h"
#include "tools/replay/SeveralPanel.h"

#include <array>
#include <bit>
#include <cmath>

namespace hooptab {

namespace {

constexpr int kOneByOne = 2;     // players who come, at most
constexpr int kClickedOneIn = 8; // answers

using namespace std::chrono_literals;
constexpr auto kOneSpotAgain = 510ms;   // a second press at one spot is one of its own
constexpr auto kQuestionIsRead = 320ms; // a question takes no click in the moment it opens
constexpr auto kLook = 30ms;            // at what a click has changed
constexpr double kOneSpot = 12;         // pixels

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

} // namespace

MouseHand::MouseHand(const Table& table)
    : m_table(table), m_zones(kFirstColours.twoPoints, kFirstColours.box, kFirstColours.threePoints) {}

// A first start does not ask for rebounds.
void MouseHand::prepare() {
  m_table.person.press("F8");
}

void MouseHand::pressClock() {
  m_table.person.press("space");
}

void MouseHand::clearQuestion() {
  if (!m_table.program.isShown("FollowUp"))
    return;
  m_table.person.press("Escape");
  m_table.program.waitUntilGone("FollowUp");
  noteQuestionInTheWay();
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
  if (question.isShown && question.holds(x, y))
    clearQuestion();
  // Behind a window of its own the card is in nobody's way, and Escape would close that.
  const Program::Place card = m_table.program.where("picPERIODEND");
  if (!card.isShown || !card.isActive || !card.holds(x, y))
    return;
  m_table.person.press("Escape");
  m_table.program.waitUntilGone("picPERIODEND");
}

// Two free throws are two however fast they come; anything else that is meant twice takes its time.
void MouseHand::press(const Mark& mark) {
  const bool isOneSpot = std::hypot(mark.x - m_lastMark.x, mark.y - m_lastMark.y) < kOneSpot;
  if (isOneSpot && mark.kind != EventCode::GFT)
    std::this_thread::sleep_until(m_table.person.lastPress() + kOneSpotAgain);
  m_table.person.click(mark.x, mark.y, mark.button);
  m_lastMark = mark;
}

std::vector<Program::Place> MouseHand::targetsOf(Slot slot) {
  std::vector<Program::Place> targets = {m_table.program.where(element("CourtJ", slot.number()))};
  for (const Control& button : kButtons)
    targets.push_back(m_table.program.where(element(button.name, slot.number())));
  std::erase_if(targets, [](const Program::Place& target) { return !target.isShown; });
  return targets;
}

void MouseHand::press(const std::string& control, EventCode kind, Person::Button button) {
  const Program::Place place = m_table.program.where(control);
  if (!place.isShown || !place.isEnabled)
    throw ReplayFailure(control + " cannot be pressed");
  clearAway(place.middleX(), place.middleY());
  press({place.middleX(), place.middleY(), button, kind});
}

// Nothing for a player on the bench.
std::optional<Slot> MouseHand::slotOf(const GameEvent& event) {
  const std::string entry = std::to_string(entryOf(event));
  for (int place = 0; place < Slot::kOfTeam; ++place) {
    const Slot slot(*event.player.team, place);
    if (m_table.program.text(element("lblID", slot.number())) == entry)
      return slot;
  }
  return std::nullopt;
}

int MouseHand::entryOf(const GameEvent& event) const {
  return m_table.recorded.game().roster[*event.player.team].entryOf(event.player.jersey);
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
      press(element(button.name, slot->number()), event.code);
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
  click(element("picROSTER", numberOf(*event.player.team)) + "/" +
        element("cmdJERSEY", numberOf(*event.player.team) * kPlaces + entryOf(event) - 1));
  m_table.program.waitUntilShown("picSELECTED");
  click(isTechnical ? "cmdSELTF" : "cmdSELPF");
  return "foul of the bench";
}

std::string MouseHand::shoot(const GameEvent& event, Slot slot) {
  const auto button = event.isMade ? Person::Button::Left : Person::Button::Right;
  for (const Control& shot : kButtons) {
    if (shot.code == event.code) {
      press(element(shot.name, slot.number()), event.code, button);
      return event.code == EventCode::GFT ? "free throw" : "shot by its button";
    }
  }
  const Program::Place court = m_table.program.where(element("CourtJ", slot.number()));
  const Pixel pixel = courtPixel(court.width, court.height, {event.x, event.y}, event.code,
                                 playsRight(*event.player.team), m_zones);
  clearAway(court.x + pixel.x, court.y + pixel.y);
  press({court.x + pixel.x, court.y + pixel.y, button, event.code});
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
  const int count = isAssist ? Slot::kOfTeam - 1 : 2 * Slot::kOfTeam;
  const int first = event.code == EventCode::SDR ? Slot::kOfTeam : 0;
  const int last = isAssist ? count : first + Slot::kOfTeam;
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
  // Of two equal numbers Enter takes the one who defends, or the one of the team that it confirms.
  const bool isClear = sameNumber == 1 || (event.code == EventCode::SDR &&
                                           event.player.team == m_table.recorded.game().details.mainTeam);
  if (!isClear || clicksAnswer()) {
    clickAnswer(form + element("cmdJERSEY", offered));
    return isAssist ? "assist asked for, clicked" : "rebound asked for, clicked";
  }
  typeAnswer(form, std::string(event.player.jersey));
  return isAssist ? "assist asked for, typed" : "rebound asked for, typed";
}

bool MouseHand::clicksAnswer() {
  return ++m_answers % kClickedOneIn == 0;
}

void MouseHand::clickAnswer(const std::string& button) {
  std::this_thread::sleep_for(kQuestionIsRead);
  const Program::Place place = m_table.program.where(button);
  m_table.person.clickAt(place);
  m_lastMark.x = place.middleX(); // a press on what lay below would be taken for a second one
  m_lastMark.y = place.middleY();
}

// Enter behind a number that its last digit has not taken: another one begins so.
void MouseHand::typeAnswer(const std::string& form, const std::string& jersey) {
  Program& program = m_table.program;
  std::string typed;
  for (const char digit : jersey) {
    typed += digit;
    m_table.person.type({&digit, 1});
    waitUntil("the number is taken, or shown",
              [&] { return !program.isShown("FollowUp") || program.typedIn(form) == typed; });
    if (!program.isShown("FollowUp"))
      return; // no other number begins so
  }
  m_table.person.press("Return");
  program.waitUntilGone("FollowUp");
}

// --- Substitutions

std::string MouseHand::substitute(const OnCourt& wanted) {
  const OnCourt before = m_table.recorded.onCourt();
  int coming = 0;
  for (const Side team : kSides)
    coming += std::popcount(wanted[team] & ~before[team]);
  if (coming <= kOneByOne) {
    substituteOneByOne(wanted);
    return "substitution, one by one";
  }
  return SeveralPanel(m_table).substitute(wanted) ? "substitution, a known line"
                                                  : "substitution, several at once";
}

// While the clock runs, fewer than five are a substitution in the making, and nothing is on disk before its
// end.
void MouseHand::substituteOneByOne(const OnCourt& wanted) {
  m_table.person.press("F6");
  const OnCourt before = m_table.recorded.onCourt();
  for (const Side team : kSides) {
    clickRoster(team, before[team] & ~wanted[team]);
    clickRoster(team, wanted[team] & ~before[team]);
  }
  m_table.recorded.waitUntil("who stands on court",
                             [&](const Game&) { return m_table.recorded.onCourt() == wanted; });
  m_table.person.press("F6");
}

void MouseHand::clickRoster(Side team, unsigned entries) {
  for (const int entry : entriesOf(entries)) {
    const int side = numberOf(team);
    click(element("picROSTER", side) + "/" + element("cmdJERSEY", side * kPlaces + entry - 1));
    std::this_thread::sleep_for(kLook);
  }
}

} // namespace hooptab
