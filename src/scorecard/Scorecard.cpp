#include "scorecard/Scorecard.h"

#include "checks/GameCheck.h"

namespace hooptab {

Scorecard::Scorecard(ProfileStore& store, std::string path) : m_store(store), m_path(std::move(path)) {}

GameFileProblem Scorecard::load() {
  const auto read = std::make_shared<CountedGame>();
  Game& game = read->game;
  GameFile file(m_store, m_path);
  if (const GameFileProblem problem = file.read(game); problem != GameFileProblem::None)
    return problem;
  m_outOfRange = Tally::run(read->state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]);
  m_findings = checkGame(game, file.text(), m_outOfRange);
  m_counted = read;
  return GameFileProblem::None;
}

std::string gameTitle(const CountedGame& counted) {
  const auto& names = counted.game.details.abbreviation;
  return names[Side::Visitor] + " " + std::to_string(counted.state.points(Side::Visitor)) + " - " +
         std::to_string(counted.state.points(Side::Home)) + " " + names[Side::Home];
}

} // namespace hooptab
