#include "exchange/OwnCount.h"

#include "game/Tally.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr ShotKinds kTwos = kAllShotKinds & ~shotKinds({EventCode::GF3, EventCode::GFT});
constexpr ShotKinds kThrees = shotKinds({EventCode::GF3});
constexpr ShotKinds kThrows = shotKinds({EventCode::GFT});

template <Counter kCounter>
int count(const OwnNumbers& own) {
  return own.box.counters[kCounter];
}
template <ShotKinds kKinds>
int made(const OwnNumbers& own) {
  return own.box.made(kKinds);
}
template <ShotKinds kKinds>
int attempted(const OwnNumbers& own) {
  return own.box.attempted(kKinds);
}

constexpr std::array kOfPlayers = std::to_array<NamedNumber>({
    {"seconds", [](const OwnNumbers& own) { return static_cast<int>(own.box.seconds); }},
    {"FGM", made<kTwos>},
    {"FGA", attempted<kTwos>},
    {"F3M", made<kThrees>},
    {"F3A", attempted<kThrees>},
    {"FTM", made<kThrows>},
    {"FTA", attempted<kThrows>},
    {"PTS", [](const OwnNumbers& own) { return own.box.points(); }},
    {"Ast", count<Counter::Ast>},
    {"BS", count<Counter::BS>},
    {"ST", count<Counter::ST>},
    {"TO", count<Counter::TO>},
    {"OR", count<Counter::OR>},
    {"DR", count<Counter::DR>},
    {"PF", count<Counter::PF>},
    {"TF", count<Counter::TF>},
    {"FD", [](const OwnNumbers& own) { return own.foulsDrawn; }},
    {"BA", [](const OwnNumbers& own) { return own.blocksAgainst; }},
    {"rating", [](const OwnNumbers& own) { return own.box.rating(); }},
    {"plusMinus", [](const OwnNumbers& own) { return own.plusMinus; }},
});

constexpr std::array kOfRows = std::to_array<NamedRowNumber>({
    {"teamRow.OR", [](const TeamRow& row) { return int{row.offensiveRebounds}; }},
    {"teamRow.DR", [](const TeamRow& row) { return int{row.defensiveRebounds}; }},
    {"teamRow.TO", [](const TeamRow& row) { return int{row.turnovers}; }},
    {"teamRow.CF", [](const TeamRow& row) { return int{row.benchTechnicals}; }},
    {"timeouts", [](const TeamRow& row) { return int{row.timeOuts}; }},
});

} // namespace

std::span<const NamedNumber> numbersOfPlayers() {
  return kOfPlayers;
}

std::span<const NamedRowNumber> numbersOfTeamRows() {
  return kOfRows;
}

OwnCount::OwnCount(const Game& game) {
  Tally tally(m_state, game.roster[Side::Visitor], game.roster[Side::Home]);
  std::size_t index = 0;
  for (const GameEvent& event : game.events) {
    tally.apply(event, index++);
    if (event.isShot() && event.isMade && !event.isDeleted && event.eventKind != nullptr)
      share(*event.player.team, event.eventKind->points);
  }
}

void OwnCount::share(Side scorer, int points) {
  for (const Side team : kSides) {
    const int worth = team == scorer ? points : -points;
    for (std::size_t i = 0; i < m_state.onCourtCount[team]; ++i)
      m_plusMinus[team][m_state.onCourt[team][i]] += worth;
  }
}

OwnNumbers OwnCount::of(Side team, std::size_t entry) const {
  const PlayerEntry& player = m_state.players[team][entry];
  OwnNumbers own;
  own.box.counters += player.counters;
  own.box.seconds = std::max(player.seconds, 0);
  own.foulsDrawn = m_state.extras[team][entry].foulsDrawn;
  own.blocksAgainst = m_state.extras[team][entry].blocksAgainst;
  own.plusMinus = m_plusMinus[team][entry];
  return own;
}

OwnNumbers OwnCount::ofTeam(Side team) const {
  OwnNumbers all;
  for (std::size_t entry = 0; entry < GameState::kPlayerEntries; ++entry) {
    const OwnNumbers one = of(team, entry);
    all.box.counters += m_state.players[team][entry].counters;
    all.box.seconds += one.box.seconds;
    all.foulsDrawn += one.foulsDrawn;
    all.blocksAgainst += one.blocksAgainst;
  }
  return all;
}

} // namespace hooptab
