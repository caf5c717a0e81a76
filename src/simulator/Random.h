// A small generator of numbers that gives the same sequence from the same seed with every compiler and on
// every platform, which the standard library's distributions do not promise. Whole numbers only.
// Two draws never stand in one expression whose parts a compiler may evaluate in either order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace hooptab {

class Random {
 public:
  explicit Random(std::uint64_t seed) : m_state(seed) {}

  // Steele, Lea and Flood's SplitMix64, upper half.
  std::uint32_t next() {
    m_state += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return static_cast<std::uint32_t>((mixed ^ (mixed >> 31)) >> 32);
  }
  // 0 to limit - 1; limit above 0.
  int below(int limit) {
    return static_cast<int>((std::uint64_t{next()} * static_cast<std::uint64_t>(limit)) >> 32);
  }
  int between(int least, int most) { return least + below(most - least + 1); }
  // So many times in a thousand.
  bool chance(int perMille) { return below(1000) < perMille; }
  // An index, each as likely as its weight; the sum of the weights is above 0.
  std::size_t weighted(std::span<const int> weights) {
    int sum = 0;
    for (const int weight : weights)
      sum += weight;
    int drawn = below(sum);
    std::size_t index = 0;
    while (drawn >= weights[index])
      drawn -= weights[index++];
    return index;
  }

 private:
  std::uint64_t m_state;
};

} // namespace hooptab
