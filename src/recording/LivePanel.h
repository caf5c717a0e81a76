// What the panel of one place on court shows: the player, his counts and his shots, taken from the game's
// counters. Words, colours on screen and layout are the widget's.
#pragma once

#include "court/CourtGeometry.h"
#include "game/GameState.h"
#include "game/Side.h"
#include "recording/Slot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

class LiveGame;
class LiveMoment;

struct LivePanel {
  // Against a limit; None where there is none. In the order of its weight.
  enum class FoulMark : std::uint8_t {
    None,
    EarlyTwo, // personal fouls: two or more in the first period, until half-time
    OneLeft,  // before the limit
    Reached,
  };

  struct ShotMark {
    court::Place place; // in left-hand orientation
    bool isMade = false;
    friend bool operator==(const ShotMark&, const ShotMark&) = default;
  };

  Side team = Side::Visitor;
  int player = 0; // entry; 0: an empty panel, where nothing below holds
  std::string jersey;
  std::string name;
  Counters counters;
  FoulMark personalFouls = FoulMark::None;
  FoulMark technicalFouls = FoulMark::None;
  std::string timeOnCourt;
  std::vector<ShotMark> shots; // field goals with a place, in the order of the game

  [[nodiscard]] static LivePanel of(const LiveGame& game, Slot slot);
  // Of a player on court or on the bench, personal and technical fouls together: Reached where he has fouled
  // out by either, else what his personal fouls say.
  [[nodiscard]] static FoulMark foulTrouble(const LiveMoment& game, Side team, int player);
  // The part that changes while the clock runs; empty for an empty panel.
  [[nodiscard]] static std::string timeOf(const LiveGame& game, Slot slot);

  [[nodiscard]] int made() const; // of all kinds of shot
  [[nodiscard]] int attempts() const;

  friend bool operator==(const LivePanel&, const LivePanel&) = default;
};

} // namespace hooptab
