#include "scorecard/Scorecard.h"

#include "checks/GameCheck.h"

namespace hooptab {

Scorecard::Scorecard(cinifile& store, std::string path) : m_store(store), m_path(std::move(path)) {}

GameFileProblem Scorecard::load() {
  if (const GameFileProblem problem = GameFile(m_store, m_path).read(m_game);
      problem != GameFileProblem::None)
    return problem;
  m_outOfRange = Tally::run(m_state, m_game.events, m_game.roster[0], m_game.roster[1]);
  m_findings = checkGame(m_game, m_store.profile(), m_outOfRange);
  m_hasGame = true;
  return GameFileProblem::None;
}

std::string Scorecard::title() const {
  const auto& names = m_game.details.abbreviation;
  return names[0] + " " + std::to_string(m_state.points(0)) + " - " + std::to_string(m_state.points(1)) +
         " " + names[1];
}

} // namespace hooptab
