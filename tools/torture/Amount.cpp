#include "Amount.h"

#include <algorithm>
#include <limits>
#include <random>

namespace hooptab {

namespace {

constexpr unsigned kSeeds = 100'000; // short enough to be typed again

} // namespace

Amount::Amount(std::span<char*> words, int rounds)
    : m_rounds(rounds), m_seed(words.size() > 1 ? static_cast<unsigned>(std::stoul(words[1]))
                                                : std::random_device()() % kSeeds) {
  if (words.empty())
    return;
  const std::string amount = words[0];
  m_rounds = std::stoi(amount);
  if (!amount.ends_with('s'))
    return;
  m_end = std::chrono::steady_clock::now() + std::chrono::seconds(m_rounds);
  m_rounds = std::numeric_limits<int>::max();
}

std::span<char*> wordsBehind(int count, int argc, char** argv) {
  return {argv + std::min(count, argc), argv + argc};
}

} // namespace hooptab
