// Plays one plausible game between two sample teams and records it as a statistician at the scorer's table
// would: possessions and shots, fouls and free throws, rebounds, substitutions, stops of the clock, slips of
// the hand that are deleted again, overtime while the score is tied. The same seed gives the same game. Date,
// place and notes are left to whoever asks for it.
#pragma once

#include "game/Side.h"
#include "simulator/Random.h"
#include "simulator/ShotPlaces.h"
#include "simulator/SimulatedGame.h"
#include "simulator/SimulatedSide.h"

#include <array>
#include <cstdint>
#include <optional>

namespace hooptab {

class GameSimulator {
 public:
  static constexpr int kPeriods = 4;
  static constexpr int kMinutesPerPeriod = 10;
  static constexpr int kOvertimeMinutes = 5;

  GameSimulator(const SampleTeam& visitors, const SampleTeam& home, std::uint64_t seed);

  // The game stops for good at the first possession of that period that begins at or below that clock.
  struct Interruption {
    int period = 0;
    int clockSeconds = 0;
  };
  // Once for each simulator.
  [[nodiscard]] SimulatedGame play(std::optional<Interruption> interruption = std::nullopt);

 private:
  enum class Next { SameTeam, OtherTeam };
  struct Shot {
    EventCode code;
    std::optional<court::Place> place;
    int percentage; // of a thousand
  };

  // The flow of the game; each part returns which team has the ball.
  void playPeriod();
  void playPossession();
  [[nodiscard]] Next playAction();
  [[nodiscard]] Next turnOver();
  [[nodiscard]] Next defensiveFoul();
  [[nodiscard]] Next offensiveFoul();
  [[nodiscard]] Next attempt(std::size_t shooter, const Shot& shot);
  [[nodiscard]] Next afterMade(std::size_t shooter, const Shot& shot);
  [[nodiscard]] Next rebound();
  [[nodiscard]] Next shootFreeThrows(std::size_t shooter, int count);
  [[nodiscard]] Shot chooseShot(std::size_t shooter);
  [[nodiscard]] Shot chooseThree();
  [[nodiscard]] int possessionSeconds();

  // The scorer's table.
  void advance(int seconds);
  void whistle(); // stops the clock
  void restart();
  void deadBall(std::optional<std::size_t> kept = std::nullopt); // what happens while it stands
  void technicalFoul();
  void changePlayersWhileTheClockRuns();
  bool personalFoul(Side team, std::size_t player); // whether the team is in bonus
  void shot(std::size_t player, const Shot& shot, bool made);
  void action(EventCode code, Side team, std::size_t player);
  void countUserStatistic();
  void record(const std::string& text);
  void recordLists();
  void put(std::string line);

  [[nodiscard]] SimulatedSide& offense() { return m_sides[m_offense]; }
  [[nodiscard]] SimulatedSide& defense() { return m_sides[otherSide(m_offense)]; }
  [[nodiscard]] bool isLate() const { return m_period >= kPeriods; }
  [[nodiscard]] bool isDecisive() const;

  Random m_random;
  PerSide<SimulatedSide> m_sides;
  SimulatedGame m_game;
  int m_period = 0;
  int m_clock = 0;
  bool m_clockRuns = false;
  Side m_offense = Side::Visitor;
  Side m_firstWithBall = Side::Visitor;
  PerSide<int> m_points = {};
  PerSide<int> m_teamFouls = {};                   // of this period, or of those that count with it
  std::optional<std::size_t> m_offensiveRebounder; // of this possession, while he may put the ball back
  bool m_countsUserStatistics = false;
  std::optional<Interruption> m_interruption;
  bool m_isInterrupted = false;
};

} // namespace hooptab
