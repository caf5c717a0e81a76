#include "recording/EventCorrection.h"

#include "game/EventDetails.h"
#include "game/EventWords.h"
#include "game/ShotFollowUp.h"
#include "recording/JerseyMatch.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <array>
#include <span>

namespace hooptab {

namespace {

constexpr std::size_t kMostDigits = 4; // one more than any jersey: a slip is seen, and shown

bool canBeCorrected(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted && event.isOfPlayer();
}

const Roster& rosterOf(const LiveGame& game, Side team) {
  return game.game().roster[team];
}

} // namespace

bool EventCorrection::canCorrect(const LiveGame& game, const EventPlace& event) {
  const GameEvent* found = game.game().events.find(event);
  return game.canRecord() && found != nullptr && canBeCorrected(*found);
}

std::optional<EventPlace> EventCorrection::lastOf(const LiveGame& game) {
  const EventList& events = game.game().events;
  const auto last = std::find_if(events.rbegin(), events.rend(), canBeCorrected);
  if (!game.canRecord() || last == events.rend())
    return std::nullopt;
  return placeOf(*last);
}

bool EventCorrection::begin(GameSession& session, const EventPlace& event) {
  end();
  if (!canCorrect(session.game(), event))
    return false;
  m_session = &session;
  m_game = &session.game();
  m_event = event;
  return true;
}

void EventCorrection::end() {
  *this = {};
}

bool EventCorrection::isActive() const {
  return m_game != nullptr && canCorrect(*m_game, m_event);
}

std::size_t EventCorrection::index() const {
  return *m_game->game().events.indexOf(m_event);
}

EventCorrection::Said EventCorrection::saidBy(const GameEvent& event) {
  return {event.code, event.isShot() && event.isMade, *event.player.team, std::string(event.player.jersey),
          event.hasPlace ? std::optional(CourtPlace(event.x, event.y)) : std::nullopt};
}

EventCorrection::Said EventCorrection::said() const {
  return saidBy(m_game->game().events[index()]);
}

EventCorrection::Who EventCorrection::player() const {
  const Said now = said();
  return {now.team, rosterOf(*m_game, now.team).entryOf(now.jersey)};
}

bool EventCorrection::canToggleMade() const {
  return isActive() && kindOf(said().code)->isShot;
}

bool EventCorrection::canToggleThree() const {
  return isActive() && kindOf(said().code)->hasPlace;
}

std::string EventCorrection::question(const Texts& texts) const {
  return isActive()
             ? texts.withPlaceholder(Text::WhoseNumber, EventWords(m_game->game(), texts).words(index()))
             : std::string();
}

// --- What follows a shot

bool EventCorrection::isSamePlayer(const Said& left, const Said& right) const {
  if (left.team != right.team)
    return false;
  const Roster& roster = rosterOf(*m_game, left.team);
  const int entry = roster.entryOf(left.jersey);
  return entry > 0 ? entry == roster.entryOf(right.jersey) : left.jersey == right.jersey;
}

bool EventCorrection::fits(const Said& shot, const Said& followUp) const {
  const EventKind& kind = *kindOf(shot.code);
  if (!kind.isShot)
    return false;
  if (shot.isMade)
    return followUp.code == EventCode::SA && kind.followUpWhenMade == FollowUp::Assist &&
           followUp.team == shot.team && !isSamePlayer(shot, followUp);
  return followUp.code == (followUp.team == shot.team ? EventCode::SOR : EventCode::SDR);
}

// Shooter and passer were taken for each other, or the rebound's team was right and the shot's was not.
std::optional<EventCorrection::Said> EventCorrection::adapted(const Said& old, const Said& wanted,
                                                              const Said& followUp) const {
  Said other = followUp;
  if (followUp.code == EventCode::SA)
    other.jersey = old.team == followUp.team ? old.jersey : followUp.jersey;
  else
    other.code = followUp.code == EventCode::SOR ? EventCode::SDR : EventCode::SOR;
  return fits(wanted, other) ? std::optional(other) : std::nullopt;
}

// --- Steps

EditPlan EventCorrection::planOf(const EventPlace& event, const Said& wanted) const {
  const GameEvent* found = m_game->game().events.find(event);
  if (found == nullptr)
    return {};
  return m_game->editing().replacement(
      event, found->clockSeconds,
      withDetailsOf(*found, eventText(wanted.code, wanted.isMade, wanted.team, wanted.jersey, wanted.place),
                    wanted.code, wanted.team));
}

EventCorrection::Outcome EventCorrection::refuse(Refusal refusal) {
  m_refusal = std::move(refusal);
  return Outcome::Refused;
}

EventCorrection::Outcome EventCorrection::take(const EditPlan& plan) {
  if (!m_session->change()->take(plan))
    return refuse({.text = Text::CannotRecord});
  m_typed.clear();
  return Outcome::Changed;
}

EventCorrection::Outcome EventCorrection::change(const Said& wanted) {
  m_asked.reset();
  m_refusal.reset();
  const Said old = said();
  if (wanted == old)
    return Outcome::Same;
  m_session->change()->writePending();
  const EventList& events = m_game->game().events;
  if (const auto behind = followUpOf(events, index())) {
    const Said followUp = saidBy(events[*behind]);
    if (fits(old, followUp) && !fits(wanted, followUp)) {
      m_asked = Asked{wanted, placeOf(events[*behind]), adapted(old, wanted, followUp)};
      return Outcome::Asks;
    }
  }
  return take(planOf(m_event, wanted));
}

EventCorrection::Outcome EventCorrection::decide(Remedy remedy) {
  const std::optional<Asked> asked = std::exchange(m_asked, std::nullopt);
  if (!asked || !isActive() || (remedy == Remedy::Adapt && !asked->adapted))
    return Outcome::None;
  m_session->change()->writePending();
  EditPlan plan = planOf(m_event, asked->wanted);
  if (remedy != Remedy::Keep) {
    const EditPlan more = remedy == Remedy::Delete
                              ? m_game->editing().deletion(std::span(&asked->followUp, 1), true)
                              : planOf(asked->followUp, *asked->adapted);
    plan.isPossible = plan.isPossible && more.isPossible;
    plan.steps.insert(plan.steps.end(), more.steps.begin(), more.steps.end());
    plan.back.insert(plan.back.end(), more.back.begin(), more.back.end()); // of two lines: in any order
  }
  return take(plan);
}

// An assist stays with the shooter's team, and is not his own; a rebound's kind follows from whose it is.
EventCorrection::Outcome EventCorrection::takePlayer(const Who& who) {
  if (!isActive())
    return Outcome::None;
  const RosterPlayer* player = rosterOf(*m_game, who.team).player(who.player);
  if (player == nullptr)
    return refuse({.text = Text::NobodyHereHasNumber, .jersey = m_typed});
  if (who == this->player()) {
    m_asked.reset();
    m_typed.clear();
    return Outcome::Same;
  }
  const Said old = said();
  Said wanted = old;
  wanted.team = who.team;
  wanted.jersey = player->jersey;
  const EventList& events = m_game->game().events;
  if (const auto before = shotOf(events, index())) {
    const Said shot = saidBy(events[*before]);
    const bool didFit = fits(shot, old);
    if (didFit && old.code == EventCode::SA && isSamePlayer(shot, wanted))
      return refuse({.text = Text::IsShooter, .jersey = wanted.jersey});
    if (didFit && old.code == EventCode::SA && shot.team != wanted.team)
      return refuse({.text = Text::OfOtherTeam,
                     .jersey = wanted.jersey,
                     .team = m_game->game().details.abbreviation[wanted.team]});
    if (didFit && old.code != EventCode::SA)
      wanted.code = wanted.team == shot.team ? EventCode::SOR : EventCode::SDR;
  }
  return change(wanted);
}

EventCorrection::Outcome EventCorrection::toggleMade() {
  if (!canToggleMade())
    return Outcome::None;
  Said wanted = said();
  wanted.isMade = !wanted.isMade;
  return change(wanted);
}

EventCorrection::Outcome EventCorrection::toggleThree() {
  if (!canToggleThree())
    return Outcome::None;
  Said wanted = said();
  wanted.code = wanted.code == EventCode::GFG ? EventCode::GF3 : EventCode::GFG;
  return change(wanted);
}

std::string EventCorrection::followUpQuestion(const Texts& texts) const {
  const auto found = m_asked ? m_game->game().events.indexOf(m_asked->followUp) : std::nullopt;
  return found ? texts.withPlaceholder(Text::NoLongerFits, EventWords(m_game->game(), texts).words(*found))
               : std::string();
}

std::string EventCorrection::adaptedWords(const Texts& texts) const {
  if (!canAdapt())
    return {};
  const Said& wanted = *m_asked->adapted;
  const std::string player = EventWords(m_game->game(), texts).player({wanted.team, wanted.jersey});
  return player + ": " + std::string(texts.text(kindOf(wanted.code)->wordsText));
}

// --- A number

std::optional<EventCorrection::Who> EventCorrection::meant() const {
  if (m_typed.empty() || !isActive())
    return std::nullopt;
  const Side team = said().team;
  const OnCourt onCourt = m_game->onCourt();
  struct Group {
    Side team;
    bool isWanted[2]; // on the bench, on court
  };
  for (const auto& [side, isWanted] :
       {Group{team, {false, true}}, Group{team, {true, false}}, Group{otherSide(team), {true, true}}}) {
    std::vector<std::string> jerseys(Roster::kLargestEntry + 1); // by entry
    for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
      const RosterPlayer* player = rosterOf(*m_game, side).player(entry);
      if (player != nullptr && isWanted[onCourt[side] >> entry & 1U])
        jerseys[static_cast<std::size_t>(entry)] = player->jersey;
    }
    const std::vector<FittingJersey> fitting = fittingJerseys(jerseys, m_typed);
    const auto whole = std::ranges::count_if(fitting, &FittingJersey::isWhole);
    if (whole == 1 || (whole > 1 && jerseys[fitting[0].place] == m_typed))
      return Who{side, static_cast<int>(fitting[0].place)};
  }
  return std::nullopt;
}

bool EventCorrection::canGoOn() const {
  std::vector<std::string> jerseys;
  for (const Side team : kSides)
    std::ranges::transform(rosterOf(*m_game, team).players(), std::back_inserter(jerseys),
                           &RosterPlayer::jersey);
  return goesOn(jerseys, m_typed);
}

EventCorrection::Outcome EventCorrection::takeTyped(const Who& who) {
  const Outcome outcome = takePlayer(who);
  if (outcome != Outcome::Refused)
    m_typed.clear();
  return outcome;
}

EventCorrection::Outcome EventCorrection::type(int digit) {
  if (!isActive())
    return Outcome::None;
  m_refusal.reset();
  if (m_typed.size() < kMostDigits)
    m_typed += static_cast<char>('0' + digit);
  if (canGoOn())
    return Outcome::None;
  return enter();
}

EventCorrection::Outcome EventCorrection::enter() {
  m_refusal.reset();
  if (m_typed.empty() || !isActive())
    return Outcome::None;
  const auto who = meant();
  return who ? takeTyped(*who) : refuse({.text = Text::NobodyHereHasNumber, .jersey = m_typed});
}

void EventCorrection::takeBackDigit() {
  m_refusal.reset();
  if (!m_typed.empty())
    m_typed.pop_back();
}

std::string EventCorrection::reason(const Texts& texts) const {
  if (!m_refusal)
    return {};
  return withPlaceholders(texts.text(m_refusal->text), m_refusal->jersey, m_refusal->team);
}

} // namespace hooptab
