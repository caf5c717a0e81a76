#include "live/LiveRepairs.h"

#include "storage/EventWords.h"
#include "storage/PlayerLookup.h"

namespace hooptab {

namespace {

constexpr int kDelete = 1081;
constexpr int kEdit = 1912;
constexpr int kChangeLists = 1880;
constexpr int kComesIn = 1881;
constexpr int kInsertHere = 1882;
constexpr int kChangePlayer = 1883;

using What = PastSubstitution::What;

EventPlace placeOf(const Game& game, std::size_t event) {
  return {game.events[event].period, std::string(game.events[event].key)};
}

bool isStop(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted && event.code == EventCode::ARRET;
}

LiveRepair insertionBefore(const Game& game, std::size_t event) {
  return {.kind = LiveRepair::Kind::Substitution,
          .text = kInsertHere,
          .past = {What::InsertBefore, placeOf(game, event)}};
}

LiveRepair otherLists(const Game& game, std::size_t stop) {
  return {.kind = LiveRepair::Kind::Substitution,
          .text = kChangeLists,
          .past = {What::Change, placeOf(game, stop)}};
}

LiveRepair change(const Game& game, std::size_t event, int text) {
  return {.kind = LiveRepair::Kind::Change, .text = text, .event = placeOf(game, event)};
}

LiveRepair deletion(const Game& game, std::size_t event) {
  return {.kind = LiveRepair::Kind::Deletion, .text = kDelete, .event = placeOf(game, event)};
}

// Who starts: the lists of the stop just before the start of the clock, or a substitution where there is
// none.
LiveRepair beforeStart(const Game& game, std::size_t start) {
  for (std::size_t event = start; event > 0 && game.events[event - 1].period == game.events[start].period;
       --event) {
    if (isStop(game.events[event - 1]))
      return otherLists(game, event - 1);
    if (game.events[event - 1].isUnderstood && !game.events[event - 1].isDeleted)
      break;
  }
  return insertionBefore(game, start);
}

// The first stop of the period from which not five were on court; else before its last.
LiveRepair ofTime(const Game& game, std::size_t lastStop, std::size_t team) {
  constexpr std::size_t kFive = 5;
  for (std::size_t event = 0; event < lastStop; ++event) {
    const GameEvent& stop = game.events[event];
    if (stop.period == game.events[lastStop].period && isStop(stop) &&
        playersOfList(stop.onCourt(team), game.roster[team]).size() != kFive)
      return otherLists(game, event);
  }
  return insertionBefore(game, lastStop);
}

} // namespace

std::vector<LiveRepair> repairsOf(const LiveFinding& finding, const Game& game) {
  const auto team = static_cast<std::size_t>(finding.team);
  switch (finding.kind) {
  case LiveFinding::Kind::NotOnCourt: {
    LiveRepair substitution = insertionBefore(game, finding.event);
    substitution.team = finding.team;
    substitution.player = game.roster[team].entryOf(finding.jersey);
    if (substitution.player > 0)
      substitution.text = kComesIn;
    return {substitution, change(game, finding.event, kChangePlayer)};
  }
  case LiveFinding::Kind::NotFive: return {beforeStart(game, finding.event)};
  case LiveFinding::Kind::OtherTime: return {ofTime(game, finding.event, team)};
  case LiveFinding::Kind::FouledOutBefore:
    return {change(game, finding.event, kChangePlayer), deletion(game, finding.event)};
  case LiveFinding::Kind::AssistWithoutBasket:
    return {change(game, finding.event, kEdit), deletion(game, finding.event)};
  case LiveFinding::Kind::Twice: return {otherLists(game, finding.event)};
  }
  return {};
}

std::string wordsOf(const LiveRepair& repair, const Game& game, const Texts& texts) {
  const RosterPlayer* player = game.roster[static_cast<std::size_t>(repair.team)].player(repair.player);
  const std::string who =
      player == nullptr ? std::string() : EventWords(game, texts).player({repair.team, player->jersey});
  return texts.withPlaceholder(repair.text, who);
}

} // namespace hooptab
