#include "tools/replay/LeagueHand.h"

#include "game/EventDetails.h"
#include "game/Rules.h"
#include "game/Tally.h"

namespace hooptab {

namespace {

constexpr int kOfTeam = 5; // on court
constexpr int kMostThrows = 3;
using namespace std::chrono_literals;
constexpr auto kQuestionIsRead = 320ms; // a question takes no click in the moment it opens

} // namespace

std::string LeagueHand::record(const GameEvent& event) {
  if (event.isOfTeam())
    return ofTeam(event);
  if (event.code == EventCode::GFT) {
    if (const auto how = freeThrow(event))
      return *how;
  }
  if (const auto how = answerByClick(event))
    return *how;
  // Where it lies over a panel that is to be pressed, the strip has had its use.
  if (table().program.isShown("FreeThrows") && event.code != EventCode::GFT) {
    click("cmdNOTHROWS");
    table().program.waitUntilGone("FreeThrows");
  }
  return event.code == EventCode::SPF ? foul(event) : MouseHand::record(event);
}

// His panel, then that of whoever drew it, anywhere; the kind where it is not the usual one. The free throws
// are events of their own.
std::string LeagueHand::foul(const GameEvent& event) {
  const std::string how = MouseHand::record(event);
  const auto drawnBy = PlayerReference::read(event.detail(detail_key::kDrawnBy).value_or(""));
  const std::string kind(event.detail(detail_key::kKind).value_or(""));
  if (!drawnBy || how != "action")
    return how;
  table().program.waitUntilShown("FollowUp");
  const bool isImplied = kind.empty() || (kind == "S" && event.detail(detail_key::kFreeThrows) &&
                                          !wasInBonus(*event.player.team));
  if (!isImplied) {
    std::this_thread::sleep_for(kQuestionIsRead);
    table().person.clickAt(table().program.where("FollowUp/cmdKIND(" + kind + ")"));
  }
  GameEvent who = event;
  who.player = *drawnBy;
  if (const auto slot = slotOf(who)) {
    const Program::Place head = table().program.where(element("lblNom", slot->number()));
    const Program::Place question = table().program.where("FollowUp");
    if (question.holds(head.middleX(), head.middleY()))
      throw ReplayFailure("the question lies over an opponent");
    table().person.clickAt(head);
  } else {
    table().person.press("Escape");
    return "foul, drawn by nobody on court";
  }
  table().recorded.waitUntil("who drew it", [&](const Game& game) {
    return game.events[game.events.size() - 1].detail(detail_key::kDrawnBy).has_value();
  });
  return isImplied ? "foul with who drew it" : "foul with who drew it and kind";
}

// Before the foul that was recorded last.
bool LeagueHand::wasInBonus(Side team) {
  const Game& game = table().recorded.game();
  GameState state;
  (void)Tally::run(state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]);
  const bool isCounted = game.events[game.events.size() - 1].code == EventCode::SPF;
  return isInBonus(game.details, teamFouls(game.details, state, team, state.period) - (isCounted ? 1 : 0));
}

std::optional<std::string> LeagueHand::freeThrow(const GameEvent& event) {
  Program& program = table().program;
  const bool isAsked =
      program.isShown("FollowUp") && program.isShown("Assist"); // who shoots for a technical foul
  if (const auto slot = isAsked ? slotOf(event) : std::nullopt) {
    table().person.clickAt(program.where(element("lblNom", slot->number())));
    program.waitUntilShown("FreeThrows");
  }
  if (!program.isShown("FreeThrows"))
    return std::nullopt;
  const std::string number(event.detail(detail_key::kNumberOfThrow).value_or("1/1"));
  const int place = number[0] - '1';
  const int of = number.back() - '0';
  std::string how = "free throw on the strip";
  if (place == 0) {
    // More or fewer than it proposes: as many marks are enabled as throws are asked for.
    int proposed = 0;
    for (int each = 0; each < kMostThrows; ++each)
      proposed += program.where(element("lblTHROW", each)).isEnabled ? 1 : 0;
    if (proposed != of) {
      click(element("cmdAWARDED", of - 1));
      how = "free throw on the strip, with their number";
    }
  }
  click(element(event.isMade ? "cmdMADE" : "cmdMISSED", place));
  return how;
}

// A block, a steal, and rebounds of a question with a team's button.
std::optional<std::string> LeagueHand::answerByClick(const GameEvent& event) {
  Program& program = table().program;
  if (event.code == EventCode::SBS && program.isShown("cmdBLOCK")) {
    std::this_thread::sleep_for(kQuestionIsRead);
    table().person.clickAt(program.where("cmdBLOCK"));
    clickJersey("frmRebound/", kOfTeam, 2 * kOfTeam, event.player.jersey);
    return "block asked for, clicked";
  }
  if (event.code == EventCode::SST && program.isShown("Assist")) {
    std::this_thread::sleep_for(kQuestionIsRead);
    clickJersey("Assist/", 0, kOfTeam, event.player.jersey);
    return "steal asked for, clicked";
  }
  return std::nullopt;
}

void LeagueHand::clickJersey(const std::string& form, int first, int count, std::string_view jersey) {
  for (int index = first; index < count; ++index) {
    const std::string button = form + element("cmdJERSEY", index);
    if (table().program.isShown(button) && table().program.text(button) == jersey)
      return table().person.clickAt(table().program.where(button));
  }
  throw ReplayFailure("nobody wears " + std::string(jersey) + " in the question");
}

// What has a place in an open question, or a button, is clicked; else the line without a number is typed.
std::string LeagueHand::ofTeam(const GameEvent& event) {
  Program& program = table().program;
  const bool isRebound = event.code == EventCode::XOR || event.code == EventCode::XDR;
  if (isRebound && program.isShown("frmRebound")) {
    std::this_thread::sleep_for(kQuestionIsRead);
    table().person.clickAt(
        program.where("frmRebound/" + element("cmdTEAM", event.code == EventCode::XOR ? 0 : 1)));
    return "team rebound asked for, clicked";
  }
  switch (event.code) {
  case EventCode::XTO:
    if (!event.player.team)
      break;
    click(element("cmdTIMEOUT", numberOf(*event.player.team)));
    return "time-out";
  case EventCode::XAR: click(element("cmdARROW", numberOf(*event.player.team))); return "possession arrow";
  default: break;
  }
  const std::string line = lineOf(event);
  if (line.empty())
    throw ReplayFailure("no hand enters this");
  clearQuestion();
  table().person.type(line);
  table().person.press(event.player.team == table().recorded.game().details.mainTeam ? "Return"
                                                                                     : "shift+Return");
  return "of the team, typed";
}

// By the letters as they are at first.
std::string LeagueHand::lineOf(const GameEvent& event) {
  switch (event.code) {
  case EventCode::XOR: return "o";
  case EventCode::XDR: return "d";
  case EventCode::XTV: return "v";
  default: return {};
  }
}

} // namespace hooptab
