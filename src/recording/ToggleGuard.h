// Keeps a finger that presses twice, or a key whose repeats pass for presses, from turning the clock twice.
// Knows no clock of its own.
#pragma once

#include <cstdint>
#include <optional>

namespace hooptab {

class ToggleGuard {
 public:
  static constexpr std::int64_t kAfterToggle = 150; // milliseconds; sooner nobody means to toggle once more
  static constexpr std::int64_t kRepeat = 60;       // nobody presses as fast as this

  // At that time, in milliseconds of any clock that never goes back. A press that is refused refuses the next
  // one only where they follow each other faster than by hand: whoever has started the clock by mistake can
  // stop it at once.
  bool mayToggle(std::int64_t now) {
    const bool isTooSoon =
        (m_toggled && now - *m_toggled < kAfterToggle) || (m_pressed && now - *m_pressed < kRepeat);
    m_pressed = now;
    if (!isTooSoon)
      m_toggled = now;
    return !isTooSoon;
  }

 private:
  std::optional<std::int64_t> m_toggled;
  std::optional<std::int64_t> m_pressed;
};

} // namespace hooptab
