// What the panel of one place on court shows: the player, his counts and his shots, taken from the game's
// counters. Words, colours on screen and layout are the widget's.
#pragma once

#include "appearance/CourtGeometry.h"
#include "storage/GameState.h"

#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

class LiveGame;

struct LivePanel {
  enum class FoulMark : std::uint8_t { None, OneLeft, Reached }; // against a limit; None where there is none

  struct ShotMark {
    court::Place place; // in left-hand orientation
    bool isMade = false;
    friend bool operator==(const ShotMark&, const ShotMark&) = default;
  };

  int team = 0;
  int player = 0; // entry; 0: an empty panel, where nothing below holds
  std::string jersey;
  std::string name;
  Counters counters;
  FoulMark personalFouls = FoulMark::None;
  FoulMark technicalFouls = FoulMark::None;
  std::string timeOnCourt;
  std::vector<ShotMark> shots; // field goals with a place, in the order of the game

  [[nodiscard]] static LivePanel of(const LiveGame& game, int slot);
  // The part that changes while the clock runs; empty for an empty panel.
  [[nodiscard]] static std::string timeOf(const LiveGame& game, int slot);

  [[nodiscard]] int made() const; // of all kinds of shot
  [[nodiscard]] int attempts() const;

  friend bool operator==(const LivePanel&, const LivePanel&) = default;
};

} // namespace hooptab
