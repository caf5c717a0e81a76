// What the live window tells of its own accord about what it did not do, or not yet: read as a user reads it.
#pragma once

#include "tools/replay/Program.h"

#include <array>
#include <string>

namespace hooptab {

class Screen {
 public:
  explicit Screen(Program& program) : m_program(program) {}

  // Whether nothing is told at the moment; START, which counts down by itself, aside.
  [[nodiscard]] bool isQuiet();
  // What is told now is of before.
  void forget();
  void look();
  // What was told since, at any look; empty when nothing was.
  [[nodiscard]] const std::string& said() const { return m_said; }

 private:
  static constexpr std::size_t kVoices = 4;
  [[nodiscard]] std::string told(std::size_t voice);

  Program& m_program;
  std::array<std::string, kVoices> m_before;
  std::string m_said;
};

} // namespace hooptab
