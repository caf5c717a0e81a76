// What the scorecard shows of its game: all of it, or a stretch that is counted like a game of its own and
// stays chosen while the file is read anew. Says in words which stretch it is. Draws nothing.
#pragma once

#include "game/CountedGame.h"
#include "insight/GameInsight.h"
#include "insight/Stretch.h"
#include "settings/Texts.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace hooptab {

class ShownGame {
 public:
  // The same game read anew, or another; a stretch that is chosen stays so.
  void show(std::shared_ptr<const CountedGame> whole);
  // Nothing: the whole game.
  void choose(const std::optional<Stretch>& stretch);

  // All of these once there is a game.
  bool hasGame() const { return m_whole != nullptr; }
  const std::shared_ptr<const CountedGame>& whole() const { return m_whole; }
  const std::shared_ptr<const CountedGame>& shown() const { return m_shown; }
  const GameInsight& insight() const { return m_insight; } // of what is shown
  unsigned starters(Side team) const { return m_starters[team]; }
  const std::optional<Stretch>& stretch() const { return m_stretch; }
  // Where an event of the whole game stands in what is shown, by its place there; nothing outside of it.
  [[nodiscard]] std::optional<std::size_t> shownPlace(std::size_t event) const;

 private:
  void count();

  std::shared_ptr<const CountedGame> m_whole;
  std::shared_ptr<const CountedGame> m_shown;
  GameInsight m_insight;
  PerSide<std::uint16_t> m_starters = {};
  std::optional<Stretch> m_stretch;
};

// The game's events between, counted like a game.
[[nodiscard]] std::shared_ptr<const CountedGame> countStretch(const Game& game, const Stretch& stretch);
// "Period 3", "Period 3, 09:20 to 05:00", "Period 2, 03:10 to Period 3, 05:00".
[[nodiscard]] std::string stretchWords(const Game& game, const Stretch& stretch, const Texts& texts);
// "HERON 11–5 OTTER".
[[nodiscard]] std::string scoreWords(const CountedGame& counted);

} // namespace hooptab
