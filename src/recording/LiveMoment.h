// A look at a running game as it stands, the recorder's own or a value of it: what figures and words about
// one need to know. Holds nothing, and costs nothing to make.
#pragma once

#include "recording/LiveGame.h"
#include "recording/RunningGame.h"

namespace hooptab {

class LiveMoment {
 public:
  // The game must outlive it. From either without a word: whoever asks for figures has one or the other.
  LiveMoment(const LiveGame& game) // NOLINT(google-explicit-constructor)
      : m_game(game.game()), m_state(game.state()), m_phase(game.phase()), m_period(game.period()),
        m_clockSeconds(game.clockSeconds()), m_isStopLost(game.isStopLost()) {}
  LiveMoment(const RunningGame& game) // NOLINT(google-explicit-constructor)
      : m_game(game.counted.game), m_state(game.counted.state), m_phase(game.phase), m_period(game.period),
        m_clockSeconds(game.clockSeconds), m_isStopLost(game.isStopLost) {}

  [[nodiscard]] const Game& game() const { return m_game; }
  [[nodiscard]] const GameState& state() const { return m_state; }
  [[nodiscard]] LiveGame::Phase phase() const { return m_phase; }
  [[nodiscard]] int period() const { return m_period; }
  [[nodiscard]] bool hasTime() const { return m_game.details.minutesPerPeriod > 0; }
  [[nodiscard]] int clockSeconds() const { return m_clockSeconds; }
  [[nodiscard]] bool isStopLost() const { return m_isStopLost; }

 private:
  const Game& m_game;
  const GameState& m_state;
  LiveGame::Phase m_phase;
  int m_period;
  int m_clockSeconds;
  bool m_isStopLost;
};

} // namespace hooptab
