#include "recording/FollowUpQuestion.h"

#include "recording/LiveFigures.h"
#include "storage/Placeholders.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::size_t kMostDigits = 4; // one more than any jersey: a slip is seen, and shown

} // namespace

void FollowUpQuestion::ask(const LiveGame& game, const LiveGame::FollowUps& followUps, Side team, int shooter,
                           EventCode kind) {
  m_game = &game;
  m_asks = !followUps.assist.empty()                          ? Asks::Assist
           : followUps.opponents.empty()                      ? Asks::Rebound
           : kind == EventCode::STO                           ? Asks::Steal
           : kind == EventCode::STF || kind == EventCode::XCF ? Asks::Shooter
                                                              : Asks::DrawnBy;
  m_hasTeam = followUps.asksTeam;
  m_canBlock = followUps.asksBlock;
  m_isBlock = false;
  m_shooterTeam = team;
  m_shooter = shooter;
  m_choices.clear();
  m_typed.clear();
  for (const std::vector<Slot>* slots :
       {&followUps.assist, &followUps.offensiveRebound, &followUps.defensiveRebound, &followUps.opponents}) {
    if (isAssist() && slots != &followUps.assist)
      continue;
    for (const Slot slot : *slots) {
      const int player = game.playerIn(slot);
      const RosterPlayer* entry = game.game().roster[slot.team()].player(player);
      if (entry != nullptr)
        m_choices.push_back({slot, player, entry->jersey});
    }
  }
  narrow();
}

EventCode FollowUpQuestion::codeFor(const Answer& answer) const {
  const bool isOffensive = answer.team == m_shooterTeam;
  switch (m_asks) {
  case Asks::Assist: return EventCode::SA;
  case Asks::Steal: return answer.player == 0 ? EventCode::XTV : EventCode::SST;
  case Asks::DrawnBy:
  case Asks::Shooter: return EventCode::Unknown;
  case Asks::Rebound: break;
  }
  if (m_isBlock)
    return EventCode::SBS;
  if (answer.player == 0)
    return isOffensive ? EventCode::XOR : EventCode::XDR;
  return isOffensive ? EventCode::SOR : EventCode::SDR;
}

std::optional<FollowUpQuestion::Answer> FollowUpQuestion::teamOf(Side team) const {
  if (!m_hasTeam || m_isBlock || (m_asks == Asks::Steal && team != m_shooterTeam))
    return std::nullopt;
  return Answer{.team = team};
}

void FollowUpQuestion::askBlock(bool isOn) {
  m_isBlock = isOn && m_canBlock;
  m_typed.clear();
  narrow();
}

// The defensive rebound is the more frequent one: of two equal numbers Enter takes his.
void FollowUpQuestion::narrow() {
  m_refusal.reset();
  m_wayOut.reset();
  std::vector<std::string> jerseys;
  std::ranges::transform(m_choices, std::back_inserter(jerseys), &Choice::jersey);
  m_fitting = fittingJerseys(jerseys, m_typed);
  if (m_isBlock)
    std::erase_if(m_fitting, [this](const FittingJersey& fitting) {
      return m_choices[fitting.place].team() == m_shooterTeam;
    });
  std::ranges::stable_sort(m_fitting, [&](const FittingJersey& left, const FittingJersey& right) {
    return left.isWhole && right.isWhole && m_choices[left.place].team() != m_shooterTeam &&
           m_choices[right.place].team() == m_shooterTeam;
  });
  m_mark.reset();
  if (!m_fitting.empty() && m_fitting[0].isWhole)
    m_mark = 0;
  if (m_fitting.empty() && !m_choices.empty())
    refuse();
}

std::optional<std::size_t> FollowUpQuestion::marked() const {
  return m_mark ? std::optional(m_fitting[*m_mark].place) : std::nullopt;
}

// Whether a number of those who could be meant, on court or not, begins with what was typed and goes on.
bool FollowUpQuestion::canGoOn() const {
  std::vector<std::string> jerseys;
  for (const Side team : kSides) {
    if (!isOfOneTeam() || team == teamAsked())
      std::ranges::transform(m_game->game().roster[team].players(), std::back_inserter(jerseys),
                             &RosterPlayer::jersey);
  }
  return goesOn(jerseys, m_typed);
}

FollowUpQuestion::Answer FollowUpQuestion::answer(const FittingJersey& fitting) const {
  const Choice& choice = m_choices[fitting.place];
  return {choice.team(), choice.player};
}

std::optional<FollowUpQuestion::Answer> FollowUpQuestion::type(int digit) {
  if (m_typed.size() < kMostDigits)
    m_typed += static_cast<char>('0' + digit);
  narrow();
  if (m_fitting.size() == 1 && m_fitting[0].isWhole && !canGoOn())
    return answer(m_fitting[0]);
  return std::nullopt;
}

std::optional<FollowUpQuestion::Answer> FollowUpQuestion::enter(std::optional<Side> team) {
  if (m_wayOut)
    return take(*m_wayOut);
  const auto isOfTeam = [&](const FittingJersey& fitting) {
    return fitting.isWhole && m_choices[fitting.place].team() == team;
  };
  const auto found = team && !m_typed.empty() ? std::ranges::find_if(m_fitting, isOfTeam) : m_fitting.end();
  if (found != m_fitting.end())
    return answer(*found);
  if (m_mark)
    return answer(m_fitting[*m_mark]);
  if (!m_typed.empty())
    refuse();
  return std::nullopt;
}

std::optional<FollowUpQuestion::Answer> FollowUpQuestion::choose(std::size_t choice) const {
  if (m_isBlock && m_choices[choice].team() == m_shooterTeam)
    return std::nullopt;
  return Answer{m_choices[choice].team(), m_choices[choice].player};
}

std::optional<FollowUpQuestion::Answer> FollowUpQuestion::take(WayOut way) const {
  if (!m_refusal || !m_refusal->stranger || (way == WayOut::ComesIn && !m_refusal->canComeIn))
    return std::nullopt;
  Answer answer = *m_refusal->stranger;
  answer.comesIn = way == WayOut::ComesIn;
  return answer;
}

void FollowUpQuestion::takeBackDigit() {
  if (!m_typed.empty())
    m_typed.pop_back();
  narrow();
}

void FollowUpQuestion::clearTyped() {
  m_typed.clear();
  narrow();
}

// Among those who fit; of a refused number among the ways out.
void FollowUpQuestion::moveMark(int step) {
  if (m_refusal && m_refusal->stranger) {
    const bool toComesIn = m_refusal->canComeIn && (m_wayOut ? *m_wayOut == WayOut::AllTheSame : step < 0);
    m_wayOut = toComesIn ? WayOut::ComesIn : WayOut::AllTheSame;
    return;
  }
  const auto count = static_cast<int>(m_fitting.size());
  if (count == 0)
    return;
  const int from = m_mark ? static_cast<int>(*m_mark) : (step > 0 ? -1 : count);
  m_mark = static_cast<std::size_t>((from + step + count) % count);
}

// Whose number it is, among those who are not offered; the teams of the question first.
void FollowUpQuestion::refuse() {
  m_refusal = Refusal{.text = Text::NobodyHereHasNumber};
  std::vector<Answer> strangers;
  for (const Side team : {m_shooterTeam, otherSide(m_shooterTeam)}) {
    const int player = m_game->game().roster[team].entryOf(m_typed);
    if (player == 0 || m_game->slotOf(team, player))
      continue;
    if (isOfOneTeam() && team != teamAsked())
      continue;
    strangers.push_back({.team = team, .player = player, .isOnCourt = false});
  }
  const Side other = otherSide(isOfOneTeam() ? teamAsked() : m_shooterTeam);
  if (isAssist() && m_shooter > 0 && m_game->game().roster[m_shooterTeam].entryOf(m_typed) == m_shooter)
    m_refusal = Refusal{.text = Text::IsShooter};
  else if (isOfOneTeam() && strangers.empty() && m_game->game().roster[other].entryOf(m_typed) > 0)
    m_refusal = Refusal{.text = Text::OfOtherTeam, .team = m_game->game().details.abbreviation[other]};
  else if (!strangers.empty()) {
    const bool isOut = LiveFigures(*m_game).isFouledOut(strangers[0].team, strangers[0].player);
    m_refusal = Refusal{.text = isOut ? Text::HasFouledOut : onBenchText(),
                        .stranger = strangers.size() == 1 ? std::optional(strangers[0]) : std::nullopt,
                        .canComeIn = strangers.size() == 1 && !isOut};
  }
}

Text FollowUpQuestion::onBenchText() const {
  switch (m_isBlock ? Asks::Steal : m_asks) {
  case Asks::Assist: return Text::OnBenchAssist;
  case Asks::Rebound: return Text::OnBenchRebound;
  default: return Text::OnBench;
  }
}

std::string FollowUpQuestion::reason(const Texts& texts) const {
  if (!m_refusal)
    return {};
  return withPlaceholders(texts.text(m_refusal->text), m_typed, m_refusal->team);
}

} // namespace hooptab
