// The shared text procedures: comma fields, lenient numbers, clock text, on-court lists, and numbers as they
// are shown. One place each, so that every window and file reads and writes the same forms.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab::Module1 {

// Field n (from 1) of a text split on a separator; empty where there are fewer.
[[nodiscard]] std::string_view field(std::string_view text, std::size_t n, char separator = ',');
[[nodiscard]] std::string_view trimmed(std::string_view text);

// The leading whole number of a text (blanks before it ignored, sign allowed), else 0. Clamped to the range
// of int.
[[nodiscard]] int leadingNumber(std::string_view text);
// The number of a text that is nothing but one to nine digits, else -1. Inline: every key, jersey and place
// of a season goes through it.
[[nodiscard]] constexpr int wholeNumber(std::string_view text) {
  if (text.empty() || text.size() > 9)
    return -1;
  int number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9')
      return -1;
    number = number * 10 + (digit - '0');
  }
  return number;
}
// "True" in any letter case, or a number that is not 0.
[[nodiscard]] bool flag(std::string_view text);

// "mm:ss" of 0 or more seconds: minutes and seconds two digits each, minutes more from 100 on ("101:05").
// Negative times, which only a clock that was set back makes, show as "00:00".
[[nodiscard]] std::string clockText(int seconds);
// Exactly two digits, ":", two digits below 60; nothing else is a clock.
[[nodiscard]] constexpr std::optional<int> clockSeconds(std::string_view text) {
  if (text.size() != 5 || text[2] != ':')
    return std::nullopt;
  const int minutes = wholeNumber(text.substr(0, 2));
  const int seconds = wholeNumber(text.substr(3));
  return minutes < 0 || seconds < 0 || seconds > 59 ? std::nullopt : std::optional(minutes * 60 + seconds);
}

// How lists order jerseys: by number, "0" before "00".
[[nodiscard]] bool jerseyBefore(std::string_view left, std::string_view right);
// "IN" and, for each jersey, "-" and the number of at least two digits, ascending; "IN-" for nobody. Ex.:
// IN-04-05-10-12-15. At most five numbers are sorted; a list of one is written with two digits too. Jerseys
// are texts as a list writes them.
[[nodiscard]] std::string onCourtList(std::vector<std::string> jerseys);
// An on-court list is "IN" or "IN-", nobody, or "IN-" and jerseys with "-" between. Nothing else is one.
[[nodiscard]] bool isOnCourtList(std::string_view text);

// The jerseys of an on-court list, taken apart where it stands: a list is met at every stop of every game of
// a season.
class JerseysOfList {
 public:
  class Iterator {
   public:
    Iterator(std::string_view rest, int left) : m_rest(rest), m_left(left) { measure(); }
    std::string_view operator*() const { return m_rest.substr(0, m_length); }
    Iterator& operator++() {
      m_rest.remove_prefix(std::min(m_length + 1, m_rest.size()));
      --m_left;
      measure();
      return *this;
    }
    bool operator==(std::default_sentinel_t) const { return m_rest.empty() || m_left == 0; }

   private:
    // A jersey is so short that no search is worth its call.
    void measure() {
      for (m_length = 0; m_length < m_rest.size() && m_rest[m_length] != '-'; ++m_length) {
      }
    }

    std::string_view m_rest;
    int m_left;
    std::size_t m_length = 0; // of the first of the rest
  };
  // Nobody for a text that is no list.
  explicit JerseysOfList(std::string_view list, int most = std::numeric_limits<int>::max());
  Iterator begin() const { return {m_jerseys, m_most}; }
  static std::default_sentinel_t end() { return {}; }

 private:
  std::string_view m_jerseys; // with "-" between
  int m_most;
};
// Those of a list who count: the first five.
[[nodiscard]] JerseysOfList countedJerseys(std::string_view list);

// made / attempted as "0.0%": one decimal, half away from zero, computed from the integers; "0.0%" without
// attempts.
[[nodiscard]] std::string percentText(int made, int attempted);
// numerator / denominator as a whole number, half away from zero. Denominator above 0.
[[nodiscard]] std::int64_t roundedQuotient(std::int64_t numerator, std::int64_t denominator);
// numerator / denominator with that many decimals, half away from zero, computed from the integers.
// Denominator above 0.
[[nodiscard]] std::string quotientText(std::int64_t numerator, std::int64_t denominator, int decimals);

// A text as part of a file's name: control characters and / \ : * ? " < > | become "-", all else stays.
[[nodiscard]] std::string asFileName(std::string text);

// All "XXX" of a text replaced.
[[nodiscard]] std::string withPlaceholder(std::string_view text, std::string_view replacement,
                                          std::string_view placeholder = "XXX");

} // namespace hooptab::Module1
