// The counters of one game: players, lines, team fouls and points by period, lead tracker. Filled by Tally,
// event by event or all at once; owned by whoever shows the game.
#pragma once

#include "game/EventKind.h"
#include "game/Side.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

// Counts are 16 bits wide; Tally checks every sum.
struct Counters {
  std::array<std::int16_t, kCounterCount> counts = {};

  std::int16_t operator[](Counter counter) const { return counts[static_cast<std::size_t>(counter)]; }
  std::int16_t& operator[](Counter counter) { return counts[static_cast<std::size_t>(counter)]; }
  [[nodiscard]] bool hasAny() const;
  friend bool operator==(const Counters&, const Counters&) = default;
};

struct PlayerEntry {
  Counters counters;
  std::int32_t seconds = 0; // signed sum: a clock set back cancels out; clamp at 0 where shown
};

struct LineEntry {
  Counters counters;
  std::int32_t seconds = 0;
  std::string
      list; // IN-04-05-10-12-15, as on-court lists write it; empty for an unused entry and for entry 0
};

struct PeriodEntry {
  std::int16_t fouls = 0;
  std::int16_t points = 0;
  std::int16_t benchTechnicals = 0; // of coach and bench; not among the fouls
};

// What counts for a player beside the columns of a box score.
struct PlayerExtras {
  std::int16_t foulsDrawn = 0;
  std::int16_t blocksAgainst = 0; // his shots that were blocked
  friend bool operator==(const PlayerExtras&, const PlayerExtras&) = default;
};

// What counts for a team and none of its players.
struct TeamRow {
  std::int16_t offensiveRebounds = 0;
  std::int16_t defensiveRebounds = 0;
  std::int16_t turnovers = 0;
  std::int16_t benchTechnicals = 0; // of coach and bench
  std::int16_t timeOuts = 0;        // taken
  friend bool operator==(const TeamRow&, const TeamRow&) = default;
};

// A field goal with its place, or of a kind that should have one, for the shot chart.
struct Shot {
  Side team = Side::Visitor;
  std::uint8_t player = 0; // entry
  std::uint8_t line = 0;   // entry of the team's line on court
  bool isThree = false;
  bool isMade = false;
  bool hasPlace = false;
  float x = 0, y = 0;
  std::uint32_t eventIndex = 0; // place in the event list
};

enum class LeadState : std::uint8_t { Team0, Team1, Tied };

struct LeadTracker {
  LeadState state = LeadState::Tied;
  std::array<std::int32_t, 3> seconds = {}; // signed sums, as above
  std::array<std::int32_t, 3> times = {};   // how often each state was entered
  int previousClock = 0;
  bool isStarted = false;
};

struct GameState {
  static constexpr std::size_t kPlayerEntries = 16; // 0 is "others"
  static constexpr std::size_t kLineEntries = 101;  // 0 is "nobody" and "other lines"
  static constexpr std::size_t kPeriodRows = 9;     // 1..7, 8 for period 8 and later; 0 is unused

  PerSide<std::array<PlayerEntry, kPlayerEntries>> players;
  PerSide<std::array<LineEntry, kLineEntries>> lines;
  PerSide<std::array<PeriodEntry, kPeriodRows>> periods = {};
  PerSide<int> usedLines = {}; // entries 1..usedLines are in use
  // Who belongs to each line in use, as bits: bit n for player entry n; bit 0 for somebody who is in no
  // roster, then the line's list tells who.
  PerSide<std::array<std::uint16_t, kLineEntries>> lineMembers = {};
  PerSide<std::uint16_t> wereOnCourt = {}; // bit n: player entry n was on court at some time
  LeadTracker lead;
  PerSide<std::array<PlayerExtras, kPlayerEntries>> extras = {};
  PerSide<TeamRow> teamRows = {};
  std::vector<Shot> shots;
  int period = 1;
  int clockSeconds = 0; // of the last event

  // Who is on court now: player entries (0 for a jersey that is in no roster) and the line's entry.
  PerSide<std::array<std::uint8_t, 5>> onCourt = {};
  PerSide<std::uint8_t> onCourtCount = {};
  PerSide<std::uint8_t> currentLine = {};
  PerSide<int> lineStartClock = {};

  [[nodiscard]] static std::size_t periodRow(int period) {
    return period > 8 ? 8U : static_cast<std::size_t>(period);
  }
  [[nodiscard]] int points(Side team) const;
};

// Points of a made-shot count: 1, 2 or 3 a shot.
[[nodiscard]] int pointsOf(const Counters& counters);

} // namespace hooptab
