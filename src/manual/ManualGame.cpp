#include "manual/ManualGame.h"

namespace hooptab {

GameFileProblem ManualGame::open(const std::string& path, Access access) {
  GameFile file(m_store, path);
  Game game;
  if (const GameFileProblem problem = file.read(game); problem != GameFileProblem::None)
    return problem;
  EventLines lines;
  if (const GameFileProblem problem = file.readLines(lines); problem != GameFileProblem::None)
    return problem;
  m_path = path;
  m_access = access;
  m_details = std::move(game.details);
  for (std::size_t team = 0; team < 2; ++team)
    m_rosters[team] = std::move(game.roster[team]);
  totals.load(m_rosters[0], m_rosters[1], lines);
  m_saved = totals;
  m_writes = {};
  return GameFileProblem::None;
}

bool ManualGame::save() {
  if (isForReading())
    return false;
  m_saved = totals;
  if (!m_writes.isEmpty()) // the write that waits takes what was saved last
    return m_writes.retry();
  return m_writes.write([this] {
    return GameFile(m_store, m_path).writeLines(ManualTotals::kPeriod, m_saved.lines()) ==
           GameFileProblem::None;
  });
}

} // namespace hooptab
