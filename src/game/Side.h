// The two teams of a game, and what there is one of for each. How a team is called, and the half of the court
// that it plays on, are other things.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace hooptab {

enum class Side : std::uint8_t { Visitor, Home };
inline constexpr std::array kSides = {Side::Visitor, Side::Home};

[[nodiscard]] constexpr Side otherSide(Side side) {
  return side == Side::Visitor ? Side::Home : Side::Visitor;
}
// As files write it: 0 and 1; nothing for any other number.
[[nodiscard]] constexpr int numberOf(Side side) {
  return static_cast<int>(side);
}
[[nodiscard]] constexpr std::optional<Side> sideOf(int number) {
  return number == 0 || number == 1 ? std::optional(static_cast<Side>(number)) : std::nullopt;
}

// A value for each side, the visitors' first.
template <class T>
struct PerSide {
  T values[2];

  constexpr T& operator[](Side side) { return values[static_cast<std::size_t>(side)]; }
  constexpr const T& operator[](Side side) const { return values[static_cast<std::size_t>(side)]; }
  constexpr T* begin() { return values; }
  constexpr T* end() { return values + 2; }
  constexpr const T* begin() const { return values; }
  constexpr const T* end() const { return values + 2; }
  friend bool operator==(const PerSide&, const PerSide&) = default;
};

} // namespace hooptab
