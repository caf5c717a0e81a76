// What a clumsy hand does beside what it means, and how often it did.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

enum class Slip : std::uint8_t {
  None,
  WrongDigits,      // a number of nobody who is asked for, and Enter
  EnterByHabit,     // behind a number that was taken already
  DoublePress,      // of a shot that is one
  TwoFreeThrows,    // in quick succession, and meant as two: no slip of the hand, but it looks like one
  HeldSpace,        // for one start or stop
  LateSpace,        // for a stop, when the clock has run out by itself
  BesideTheMark,    // a click on what is no button, before the right one
  HalfSubstitution, // out, and some seconds later in
  DoubleUndo,       // one too many, and the way back
  HeldKey,          // a digit or Enter in the question
  ClickOnOpening,   // on the question, in the moment it opens
};
inline constexpr std::size_t kSlips = 12;

[[nodiscard]] std::string_view nameOf(Slip slip);

struct SlipCounts {
  using ByKind = std::array<int, kSlips>;
  ByKind made = {};
  ByKind silent = {}; // differences that nothing on the screen told
  ByKind said = {};

  [[nodiscard]] static int sum(const ByKind& counts);
  // "12 (double press 7, late Space 5)".
  [[nodiscard]] static std::string words(const ByKind& counts);
};

} // namespace hooptab
