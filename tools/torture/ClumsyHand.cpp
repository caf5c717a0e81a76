#include "ClumsyHand.h"

#include "game/CourtClick.h"

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr auto kGlance = 120ms; // at what has come of it
constexpr int kMostDigits = 4;

void sleepFor(std::chrono::milliseconds duration) {
  std::this_thread::sleep_for(duration);
}

} // namespace

void ClumsyHand::arm(Slip slip) {
  m_armed = slip;
  m_hasSlipped = false;
}

void ClumsyHand::slipped() {
  m_hasSlipped = true;
  m_armed = Slip::None;
  sleepFor(kGlance);
  m_screen.look();
}

// --- Presses

void ClumsyHand::press(const Mark& mark) {
  if (m_armed == Slip::BesideTheMark)
    pressBeside();
  MouseHand::press(mark);
  switch (m_armed) {
  case Slip::DoublePress: return pressAgain(mark, m_dice.milliseconds(60, 200));
  case Slip::TwoFreeThrows: return pressAgain(mark, m_dice.milliseconds(150, 400));
  case Slip::ClickOnOpening: return clickOpeningQuestion(mark);
  default: return;
  }
}

void ClumsyHand::pressAgain(const Mark& mark, std::chrono::milliseconds behind) {
  std::this_thread::sleep_until(table().person.lastPress() + behind);
  table().person.click(mark.x, mark.y, mark.button);
  slipped();
}

// The second half of a double click, on the part of the question that is nearest.
void ClumsyHand::clickOpeningQuestion(const Mark& mark) {
  constexpr int kMargin = 8;
  const auto end = std::chrono::steady_clock::now() + 500ms;
  Program::Place question;
  do {
    question = table().program.where("FollowUp");
  } while (!question.isShown && std::chrono::steady_clock::now() < end);
  if (!question.isShown)
    return;
  sleepFor(m_dice.milliseconds(0, 80));
  table().person.click(std::clamp(mark.x, question.x + kMargin, question.x + question.width - kMargin),
                       std::clamp(mark.y, question.y + kMargin, question.y + question.height - kMargin),
                       mark.button);
  slipped();
}

void ClumsyHand::pressBeside() {
  const Slot slot = m_dice.oneOf(kSlots);
  switch (m_dice.between(0, 3)) {
  case 0:
  case 1: pressGap(slot); break;
  case 2: pressLine(slot); break;
  default: pressPlate(slot.team()); break;
  }
}

// Beside a button or the court, where no other one is.
void ClumsyHand::pressGap(Slot slot) {
  const std::vector<Program::Place> targets = targetsOf(slot);
  std::vector<Pixel> gaps;
  for (const Program::Place& target : targets) {
    for (const Pixel pixel :
         {Pixel{target.x + target.width, target.middleY()}, Pixel{target.x - 1, target.middleY()},
          Pixel{target.middleX(), target.y + target.height}}) {
      if (std::ranges::none_of(targets, [&](const auto& other) { return other.holds(pixel.x, pixel.y); }))
        gaps.push_back(pixel);
    }
  }
  if (gaps.empty())
    return;
  const Pixel& pixel = m_dice.oneOf(gaps);
  table().person.click(pixel.x, pixel.y);
  slipped();
}

// Where two zones meet, whichever way the court is turned: a line is a pixel wide, and turning it rounds.
void ClumsyHand::pressLine(Slot slot) {
  const Program::Place court = table().program.where(element("CourtJ", slot.number()));
  std::vector<Pixel> line;
  for (int y = 0; court.isShown && y < court.height; ++y) {
    for (int x = 0; x < court.width; ++x) {
      const auto shown = placeShownAt(court.width, court.height, {x, y});
      if (shown && !CourtClick::of(*shown, false, zones()) && !CourtClick::of(*shown, true, zones()))
        line.push_back({x, y});
    }
  }
  if (line.empty())
    return;
  const Pixel& pixel = m_dice.oneOf(line);
  table().person.click(court.x + pixel.x, court.y + pixel.y);
  slipped();
}

// Which asks for a colour: who did not mean it, closes that.
void ClumsyHand::pressPlate(Side team) {
  Program& program = table().program;
  table().person.clickAt(program.where(element("pictTEAM", numberOf(team))));
  slipped();
  const auto end = std::chrono::steady_clock::now() + 600ms;
  while (program.where("frmLIVE").isActive && std::chrono::steady_clock::now() < end)
    sleepFor(5ms);
  if (program.where("frmLIVE").isActive)
    return;
  sleepFor(kGlance);
  table().person.press("Escape");
  program.waitUntilActive("frmLIVE");
}

void ClumsyHand::pressClock() {
  if (m_armed != Slip::HeldSpace)
    return MouseHand::pressClock();
  table().person.holdDown("space", m_dice.milliseconds(500, 1000));
  slipped();
}

void ClumsyHand::actByMistake(Slot slot) {
  MouseHand::press(element("cmdBUTTO", slot.number()), EventCode::STO);
}

// --- Substitutions

void ClumsyHand::beginSubstitution(const OnCourt& before, const OnCourt& wanted) {
  table().person.press("F6");
  for (const Side team : kSides)
    clickRoster(team, before[team] & ~wanted[team]);
  slipped();
}

void ClumsyHand::endSubstitution(const OnCourt& before, const OnCourt& wanted) {
  for (const Side team : kSides)
    clickRoster(team, wanted[team] & ~before[team]);
  sleepFor(kGlance);
  m_screen.look();
  table().person.press("F6");
}

// --- Numbers

void ClumsyHand::typeAnswer(const std::string& form, const std::string& jersey) {
  Person& person = table().person;
  switch (m_armed) {
  case Slip::WrongDigits: typeByHeart(wrongNumber(jersey)); break;
  case Slip::EnterByHabit:
    typeByHeart(jersey);
    if (table().program.isShown("FollowUp")) // where Enter is no habit, but needed
      return lookAndAnswer(form, jersey);
    break;
  case Slip::HeldKey:
    if (m_dice.chance(50)) {
      typeByHeart(jersey.substr(0, jersey.size() - 1));
      person.holdDown(jersey.substr(jersey.size() - 1), m_dice.milliseconds(500, 1000));
      slipped();
    } else {
      typeByHeart(jersey);
      person.holdDown("Return", m_dice.milliseconds(500, 1000));
      slipped();
    }
    return lookAndAnswer(form, jersey);
  default: return MouseHand::typeAnswer(form, jersey);
  }
  person.press("Return");
  slipped();
  lookAndAnswer(form, jersey);
}

// A team mate's on the bench, nobody's, or the right one with a digit too many.
std::string ClumsyHand::wrongNumber(const std::string& jersey) {
  const Game& game = table().recorded.game();
  const OnCourt onCourt = table().recorded.onCourt();
  const auto isOnCourt = [&](const std::string& number) { // with either team: it would be a right answer
    for (const Side team : kSides) {
      if ((onCourt[team] >> game.roster[team].entryOf(number) & 1U) != 0)
        return true;
    }
    return false;
  };
  const int way = m_dice.between(0, 2);
  if (way == 0) {
    std::vector<std::string> bench;
    for (const Side team : kSides) {
      const Roster& roster = game.roster[team];
      if (roster.entryOf(jersey) == 0)
        continue;
      for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
        const RosterPlayer* player = roster.player(entry);
        if (player != nullptr && !isOnCourt(player->jersey))
          bench.push_back(player->jersey);
      }
    }
    if (!bench.empty())
      return m_dice.oneOf(bench);
  }
  if (way == 1) {
    for (int tries = 0; tries < 100; ++tries) {
      const std::string number = std::to_string(m_dice.between(10, 99));
      if (game.roster[Side::Visitor].entryOf(number) == 0 && game.roster[Side::Home].entryOf(number) == 0)
        return number;
    }
  }
  return std::to_string(m_dice.between(1, 9)) + jersey;
}

// Without a look at the screen.
void ClumsyHand::typeByHeart(const std::string& digits) {
  for (const char digit : digits) {
    sleepFor(m_dice.milliseconds(30, 110));
    table().person.type({&digit, 1});
  }
  sleepFor(m_dice.milliseconds(60, 250));
}

// What is gone is taken for done; what is open still is typed once more, with care.
void ClumsyHand::lookAndAnswer(const std::string& form, const std::string& jersey) {
  Program& program = table().program;
  sleepFor(kGlance);
  m_screen.look();
  if (!program.isShown("FollowUp"))
    return;
  if (program.typedIn(form) == jersey)
    return table().person.press("Return"); // the right number, and only Enter is missing
  for (int digit = 0; digit < kMostDigits && program.isShown("FollowUp") && !program.typedIn(form).empty();
       ++digit) {
    table().person.press("BackSpace");
    sleepFor(kGlance / 2);
    m_screen.look();
  }
  if (!program.isShown("FollowUp"))
    return;
  if (program.typedIn(form).empty())
    MouseHand::typeAnswer(form, jersey);
  else
    clearQuestion(); // which does not listen
}

} // namespace hooptab
