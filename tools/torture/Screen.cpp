#include "Screen.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr const char* kStart = "cmdSTART";
constexpr std::array kControls = {"lblSAID", "lblREASON", "lblPENDING", kStart};

} // namespace

// START tells something where it counts down; other captions have no digit.
std::string Screen::told(std::size_t voice) {
  const std::string control = kControls[voice];
  if (!m_program.isShown(control))
    return {};
  std::string text = m_program.text(control);
  const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
  return control == kStart && std::ranges::none_of(text, isDigit) ? std::string() : text;
}

bool Screen::isQuiet() {
  for (std::size_t voice = 0; voice < kVoices; ++voice) {
    if (kControls[voice] != kStart && !told(voice).empty())
      return false;
  }
  return true;
}

void Screen::forget() {
  m_said.clear();
  for (std::size_t voice = 0; voice < kVoices; ++voice)
    m_before[voice] = told(voice);
}

void Screen::look() {
  for (std::size_t voice = 0; voice < kVoices; ++voice) {
    if (const std::string text = told(voice); !text.empty() && text != m_before[voice])
      m_said = std::string(kControls[voice]) + ": " + text;
  }
}

} // namespace hooptab
