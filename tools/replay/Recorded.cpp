#include "tools/replay/Recorded.h"

#include "game/Side.h"

namespace hooptab {

void Recorded::read() {
  Game game;
  if (GameFile(m_store, m_path).read(game) != GameFileProblem::None)
    throw ReplayFailure("the game cannot be read: " + m_path);
  m_game = std::move(game);
}

OnCourt Recorded::onCourt() const {
  const Rosters rosters{m_game.roster[Side::Visitor], m_game.roster[Side::Home]};
  OnCourt lists = {};
  for (const GameEvent& event : m_game.events) {
    if (const auto own = onCourtOf(event, rosters))
      lists = *own;
  }
  return lists;
}

} // namespace hooptab
