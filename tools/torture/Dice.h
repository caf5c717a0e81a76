// Chance that comes out the same for the same seed.
#pragma once

#include <chrono>
#include <random>

namespace hooptab {

class Dice {
 public:
  explicit Dice(unsigned seed) : m_random(seed) {}

  int between(int least, int most) { return std::uniform_int_distribution(least, most)(m_random); }
  bool chance(int percent) { return between(1, 100) <= percent; }
  std::chrono::milliseconds milliseconds(int least, int most) {
    return std::chrono::milliseconds(between(least, most));
  }
  // Of one or more.
  template <typename Values>
  const auto& oneOf(const Values& values) {
    return values[static_cast<std::size_t>(between(0, static_cast<int>(values.size()) - 1))];
  }

 private:
  std::mt19937 m_random;
};

} // namespace hooptab
