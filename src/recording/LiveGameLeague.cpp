// What a live game asks for behind an event, and what a league's sheet holds beside the box score: what a
// team does, details of events, free throws by their number, the possession arrow.
#include "recording/LiveGame.h"

#include "game/EventDetails.h"

#include <algorithm>
#include <utility>

namespace hooptab {

bool LiveGame::recordOfTeam(std::optional<Side> team, EventCode kind, const Details& details) {
  const EventKind* what = kindOf(kind);
  const bool needsTeam = kind != EventCode::XTO;
  if (what == nullptr || !what->isOfTeam || kind == EventCode::XJB || (needsTeam && !team))
    return false;
  std::string text = teamEventText(kind, team);
  for (const auto& [key, value] : details)
    text = withDetail(text, key, value);
  return record(text, what->wordsText);
}

bool LiveGame::setDetailsOf(const EventPlace& event, const Details& details) {
  const GameEvent* found = game().events.find(event);
  if (!canRecord() || found == nullptr || !found->isUnderstood || found->isDeleted)
    return false;
  const std::string old(found->whole());
  std::string line = old;
  for (const auto& [key, value] : details) {
    if (found->detail(key).value_or("") != value)
      line = withDetail(line, key, value);
  }
  if (line == old)
    return true;
  if (readablePart(line).size() < line.size() || !m_log.change({replacement(event, line)}))
    return false;
  if (!m_history.amend(replacement(event, withDeletion(line, true))))
    m_history.add({Text::Edit, event, {replacement(event, old)}, m_log.nextNumber()});
  return true;
}

bool LiveGame::recordFreeThrow(Side team, int player, bool isMade, int number, int awarded) {
  const RosterPlayer* who = game().roster[team].player(player);
  if (who == nullptr ||
      !record(withDetail(eventText(EventCode::GFT, isMade, team, who->jersey), detail_key::kNumberOfThrow,
                         std::to_string(number) + '/' + std::to_string(awarded)),
              kindOf(EventCode::GFT)->wordsText))
    return false;
  m_lastShot = m_lastAdded;
  return true;
}

bool LiveGame::giveToTeam(const EventPlace& turnover) {
  const GameEvent* found = game().events.find(turnover);
  if (found == nullptr || found->code != EventCode::STO)
    return false;
  std::string text = teamEventText(EventCode::XTV, found->player.team);
  if (const auto kind = found->detail(detail_key::kKind))
    text = withDetail(text, detail_key::kKind, *kind);
  return replaceEvent(turnover, found->clockSeconds, text);
}

std::optional<Side> LiveGame::arrow() const {
  const EventList& events = game().events;
  const auto last = std::find_if(events.rbegin(), events.rend(), [](const GameEvent& event) {
    return event.isUnderstood && !event.isDeleted && event.code == EventCode::XAR;
  });
  return last == events.rend() ? std::nullopt : last->player.team;
}

// Every period but the first begins with the ball for the team that has the arrow, which then turns: once,
// also where that start was taken back, and whoever had set it right before.
bool LiveGame::turnsArrow() const {
  if (level() == RecordingLevel::Basic || period() == 1 || !arrow())
    return false;
  const auto events = game().events.ofPeriod(period());
  for (std::size_t place = 0; place < events.size(); ++place) {
    const GameEvent& event = events[place];
    const bool isStart = event.code == EventCode::DEPART && !event.isDeleted;
    const bool hasTurned = event.code == EventCode::XAR && !event.isDeleted && place + 1 < events.size() &&
                           events[place + 1].code == EventCode::DEPART;
    if (isStart || hasTurned)
      return false;
  }
  return true;
}

FreeThrows LiveGame::freeThrows() const {
  FreeThrows throws(hasTime());
  std::size_t place = 0;
  for (const GameEvent& event : game().events.ofPeriod(period()))
    throws.take(event, place++);
  return throws;
}

std::string LiveGame::withNumberOfThrow(std::string eventText, const PlayerReference& thrower) const {
  const FreeThrows throws = freeThrows();
  const FreeThrows::Award* award = throws.next(thrower, period(), clockSeconds());
  if (level() == RecordingLevel::Basic || award == nullptr || !award->awarded)
    return eventText;
  return withDetail(eventText, detail_key::kNumberOfThrow,
                    std::to_string(award->taken + 1) + '/' + std::to_string(*award->awarded));
}

// A block follows the miss that it was, or the rebound of it, or the whistle.
std::string LiveGame::withBlockedShot(std::string eventText, Side team) const {
  if (level() == RecordingLevel::Basic)
    return eventText;
  const auto events = game().events.ofPeriod(period());
  for (auto event = events.rbegin(); event != events.rend(); ++event) {
    if (!event->isUnderstood || event->isDeleted || event->isOfTeam() || event->code == EventCode::SDR ||
        event->code == EventCode::SOR || event->code == EventCode::ARRET)
      continue;
    if (!event->isShot() || event->isMade || event->code == EventCode::GFT || event->player.team == team)
      break;
    return withDetail(eventText, detail_key::kShooter,
                      std::to_string(numberOf(*event->player.team)) + '-' +
                          std::string(event->player.jersey));
  }
  return eventText;
}

LiveGame::FollowUps LiveGame::followUps(Side team, int player, EventCode kind, bool isMade,
                                        bool asksRebounds) const {
  FollowUps result;
  const EventKind* what = kindOf(kind);
  if (what == nullptr)
    return result;
  const bool isOfLeague = level() != RecordingLevel::Basic;
  const bool asksAssist = what->isShot && isMade && what->followUpWhenMade == FollowUp::Assist;
  const bool asksRebound =
      what->isShot && !isMade && asksRebounds && (kind != EventCode::GFT || !isOfLeague || isLastThrow());
  const bool asksOpponent = isOfLeague && (isFoul(kind) || kind == EventCode::STO);
  for (const Slot other : kSlots) {
    if (playerIn(other) == 0)
      continue;
    const bool isOwn = other.team() == team;
    if (asksAssist && isOwn && playerIn(other) != player)
      result.assist.push_back(other);
    if (asksRebound)
      (isOwn ? result.offensiveRebound : result.defensiveRebound).push_back(other);
    if (asksOpponent && !isOwn)
      result.opponents.push_back(other);
  }
  result.asksTeam = isOfLeague && (asksRebound || kind == EventCode::STO);
  result.asksBlock = isOfLeague && asksRebound && kind != EventCode::GFT;
  return result;
}

// Whether the ball is in play behind the free throw that was recorded last; behind those for a technical,
// unsportsmanlike or disqualifying foul it is not.
bool LiveGame::isLastThrow() const {
  const auto events = game().events.ofPeriod(m_lastShot.period);
  FreeThrows throws(hasTime());
  for (std::size_t place = 0; place < events.size(); ++place) {
    const auto link = throws.take(events[place], place);
    if (!link || events[place].key != m_lastShot.key)
      continue;
    if (link->kind == FreeThrows::Link::Kind::NoFoul)
      return true;
    const GameEvent& foul = events[link->foul];
    const auto foulKind = foul.detail(detail_key::kKind);
    return link->isLast() && foul.code == EventCode::SPF && foulKind != "U" && foulKind != "D";
  }
  return true;
}

} // namespace hooptab
