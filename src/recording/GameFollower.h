// Whoever works with a running game on a thread of its own: an export, a page, a league's server. Gets the
// game as it stands, as a value; while it is at work, what comes meanwhile is passed over for what comes
// last. However long it takes, and whatever it throws, nobody waits for it.
#pragma once

#include "game/CountedGame.h"

#include <functional>
#include <memory>

namespace hooptab {

class GameFollower {
 public:
  using Work = std::function<void(const std::shared_ptr<const CountedGame>& game)>;

  explicit GameFollower(Work work);
  // Lets it finish what it is at, but for a second at most; from then on it works for nobody.
  ~GameFollower();
  GameFollower(const GameFollower&) = delete;
  GameFollower& operator=(const GameFollower&) = delete;

  void take(std::shared_ptr<const CountedGame> game);
  // How often the work has thrown.
  [[nodiscard]] int failures() const;

 private:
  struct Desk;
  std::shared_ptr<Desk> m_desk;
};

} // namespace hooptab
