#include "recording/LiveRepairs.h"

#include "game/EventWords.h"
#include "game/PlayerLookup.h"

#include <algorithm>

namespace hooptab {

namespace {

using What = PastSubstitution::What;

bool isLiveStop(const GameEvent& event) {
  return isStop(event) && !event.isDeleted;
}

LiveRepair insertionBefore(const Game& game, std::size_t event) {
  return {.kind = LiveRepair::Kind::Substitution,
          .text = Text::InsertHere,
          .past = {What::InsertBefore, placeOf(game.events[event])}};
}

LiveRepair otherLists(const Game& game, std::size_t stop) {
  return {.kind = LiveRepair::Kind::Substitution,
          .text = Text::ChangeLists,
          .past = {What::Change, placeOf(game.events[stop])}};
}

LiveRepair change(const Game& game, std::size_t event, Text text) {
  return {.kind = LiveRepair::Kind::Change, .text = text, .event = placeOf(game.events[event])};
}

LiveRepair deletion(const Game& game, std::size_t event) {
  return {.kind = LiveRepair::Kind::Deletion, .text = Text::Delete, .event = placeOf(game.events[event])};
}

// Who starts: the lists of the stop that sent them there, or a substitution where there is none.
LiveRepair fiveAt(const Game& game, std::size_t event) {
  return isLiveStop(game.events[event]) ? otherLists(game, event) : insertionBefore(game, event);
}

// The first stop of the period from which not five were on court; else before its last.
LiveRepair ofTime(const Game& game, std::size_t lastStop, Side team) {
  constexpr std::size_t kFive = 5;
  for (std::size_t event = 0; event < lastStop; ++event) {
    const GameEvent& stop = game.events[event];
    if (stop.period == game.events[lastStop].period && isLiveStop(stop) &&
        playersOfList(stop.onCourt(team), game.roster[team]).size() != kFive)
      return otherLists(game, event);
  }
  return insertionBefore(game, lastStop);
}

} // namespace

std::vector<LiveRepair> repairsOf(const Finding& finding, const Game& game) {
  if (!finding.hasEvent())
    return {};
  const Side team = finding.team.value_or(Side::Visitor);
  switch (finding.kind) {
  case FindingKind::NotOnCourt: {
    LiveRepair substitution = insertionBefore(game, finding.event);
    substitution.team = *finding.team;
    substitution.player = game.roster[team].entryOf(finding.jersey);
    if (substitution.player > 0)
      substitution.text = Text::SubstitutionBefore;
    return {substitution, change(game, finding.event, Text::ChangePlayer)};
  }
  case FindingKind::FewerThanFive:
  case FindingKind::MoreThanFive: return {fiveAt(game, finding.event)};
  case FindingKind::OtherTime: return {ofTime(game, finding.event, team)};
  case FindingKind::Twice:
  case FindingKind::OnCourtNotInRoster: return {otherLists(game, finding.event)};
  case FindingKind::FouledOutBefore:
  case FindingKind::NotInRoster:
    return {change(game, finding.event, Text::ChangePlayer), deletion(game, finding.event)};
  case FindingKind::AssistWithoutBasket:
  case FindingKind::ReboundAfterMade:
  case FindingKind::AfterClose:
  case FindingKind::ThrowWithoutFoul:
  case FindingKind::ThrowBeyondAward:
  case FindingKind::TimeOutTooMany:
  case FindingKind::CoachOutBefore:
    return {change(game, finding.event, Text::Edit), deletion(game, finding.event)};
  case FindingKind::ClockRises:
  case FindingKind::ClockAbovePeriod:
  case FindingKind::Swapped:
  case FindingKind::TwoFromThree:
  case FindingKind::ThreeFromInside:
  case FindingKind::ThrowsMissing: return {change(game, finding.event, Text::Edit)};
  case FindingKind::Burst: return {deletion(game, finding.event)};
  default: return {};
  }
}

std::string wordsOf(const LiveRepair& repair, const Game& game, const Texts& texts) {
  const RosterPlayer* player = game.roster[repair.team].player(repair.player);
  const std::string who =
      player == nullptr ? std::string() : EventWords(game, texts).player({repair.team, player->jersey});
  return texts.withPlaceholder(repair.text, who);
}

} // namespace hooptab
