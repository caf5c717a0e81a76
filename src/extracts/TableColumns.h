// The columns of the tables for people who work on with the data, and what stands in them for one row:
// docs/formats/tables.md describes each. Names and words are the same in every language, for programs to rely
// on.
#pragma once

#include "extracts/ExtractSource.h"
#include "insight/GameWalk.h"
#include "game/Side.h"
#include "game/Statistics.h"

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace hooptab::tables {

// What the rows of one game have in common.
struct GameRow {
  const ExtractSource& source;
  const GameWalk& walk;
  std::string key;
  ElapsedTime elapsed;
  std::map<std::size_t, std::size_t> blocks; // by the place of the shot

  [[nodiscard]] const Game& game() const { return source.game(); }
  [[nodiscard]] bool isLive() const { return game().details.inputType == 0; }
  [[nodiscard]] bool hasTime() const { return isLive() && game().details.minutesPerPeriod > 0; }
};

struct PlayerRow {
  const GameRow& game;
  enum class Kind { Player, Others, Team } kind;
  Side team;
  const RosterPlayer* player; // null for others and team
  bool isCounted;             // false behind the fifteenth, whose counts are among those of the others
  BoxNumbers numbers;
  PlayerExtras extras;
  bool isStarter;
  bool wasOnCourt;
  int plusMinus;
};
struct EventRow {
  const GameRow& game;
  const WalkedEvent& walked;
  const GameEvent& event;
};
struct StintRow {
  const GameRow& game;
  const Stint& stint;
};
struct ShotRow {
  EventRow of;
  std::optional<std::size_t> assist; // places in the list
  std::optional<std::size_t> block;
};

template <class Row>
struct Column {
  std::string_view name;
  std::string (*cell)(const Row& row);
};
[[nodiscard]] std::span<const Column<GameRow>> gameColumns();
[[nodiscard]] std::span<const Column<PlayerRow>> playerColumns();
[[nodiscard]] std::span<const Column<EventRow>> eventColumns();
[[nodiscard]] std::span<const Column<StintRow>> stintColumns();
[[nodiscard]] std::span<const Column<ShotRow>> shotColumns();

} // namespace hooptab::tables
