// Something to be told about a file of another system: a text of the program, and what stands in its places.
#pragma once

#include "settings/Texts.h"

#include <exception>
#include <string>

namespace hooptab {

struct ExchangeNote {
  Text text = Text::None; // with XXX and YYY
  std::string x = {};
  std::string y = {};
  explicit operator bool() const { return text != Text::None; }
  friend bool operator==(const ExchangeNote&, const ExchangeNote&) = default;
};
[[nodiscard]] std::string inWords(const ExchangeNote& note, const Texts& texts);

// Thrown by a reader that cannot make a game of a file; whoever asked for the import tells it and goes on
// with the next file.
class UnreadableGame : public std::exception {
 public:
  explicit UnreadableGame(ExchangeNote why) : m_why(std::move(why)) {}
  [[nodiscard]] const ExchangeNote& why() const { return m_why; }
  const char* what() const noexcept override { return "this file cannot be read as a game"; }

 private:
  ExchangeNote m_why;
};

} // namespace hooptab
