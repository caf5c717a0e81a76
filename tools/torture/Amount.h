// How long a torturer goes on, and with which chances: the words "[AMOUNT] [SEED]" at the end of its command
// line. AMOUNT is a count of rounds, or a time as "60s".
#pragma once

#include <chrono>
#include <span>
#include <string>

namespace hooptab {

class Amount {
 public:
  // Without words the given rounds, and any seed. An exception when a word is no number.
  Amount(std::span<char*> words, int rounds);

  // Whether the next round is to be played, after so many.
  [[nodiscard]] bool goesOn(int done) const { return done < m_rounds && hasTime(); }
  [[nodiscard]] bool hasTime() const { return std::chrono::steady_clock::now() < m_end; }
  [[nodiscard]] unsigned seed() const { return m_seed; }

 private:
  int m_rounds;
  unsigned m_seed;
  std::chrono::steady_clock::time_point m_end = std::chrono::steady_clock::time_point::max();
};

// The words of a command line behind the first `count`, the program's own name included.
[[nodiscard]] std::span<char*> wordsBehind(int count, int argc, char** argv);

} // namespace hooptab
