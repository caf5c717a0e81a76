// Whoever works with a running game on a thread of its own: an export, a page, a league's server. Gets the
// game as a value; while it is at work, what comes meanwhile is passed over for what comes last. However long
// it takes, and whatever it throws, the recorder does not wait for it.
#pragma once

#include "recording/RunningGame.h"

#include <functional>
#include <memory>

namespace hooptab {

class GameFollower {
 public:
  // Whether it succeeded: where not, or where it throws, it is asked again two seconds later, with what has
  // come last by then. It may outlive whoever made it, so it owns what it works with (a FileSystem of its
  // own, no texts whose language is switched, no store of the window's thread).
  using Work = std::function<bool(const RunningGame& game)>;

  explicit GameFollower(Work work);
  // Lets it finish what it is at and what waits, but for a second at most; from then on it works for nobody.
  ~GameFollower();
  GameFollower(const GameFollower&) = delete;
  GameFollower& operator=(const GameFollower&) = delete;

  void take(std::shared_ptr<const RunningGame> game);

 private:
  struct Desk;
  std::shared_ptr<Desk> m_desk;
};

} // namespace hooptab
