#include "season/ColumnFilter.h"

#include "season/FoldedText.h"

#include <algorithm>
#include <charconv>

namespace hooptab {

namespace {

// "12", "-3.5", "3,5", "12:30", "50%".
std::optional<double> numberOf(std::string text) {
  std::ranges::replace(text, ',', '.');
  if (text.ends_with('%'))
    text.pop_back();
  const auto read = [](std::string_view part) -> std::optional<double> {
    double number = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
    return error == std::errc() && end == part.data() + part.size() ? std::optional(number) : std::nullopt;
  };
  const std::size_t colon = text.find(':');
  if (colon == std::string::npos)
    return read(text);
  const auto minutes = read(std::string_view(text).substr(0, colon));
  const auto seconds = read(std::string_view(text).substr(colon + 1));
  constexpr int kSeconds = 60;
  return minutes && seconds ? std::optional(*minutes * kSeconds + *seconds) : std::nullopt;
}

std::string trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos
             ? std::string()
             : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

} // namespace

ColumnFilter::ColumnFilter(std::string_view typed) {
  const std::string text = trimmed(typed);
  const std::size_t length = text.starts_with(">=") || text.starts_with("<=")                          ? 2
                             : text.starts_with('>') || text.starts_with('<') || text.starts_with('=') ? 1
                                                                                                       : 0;
  m_sign = text.substr(0, length);
  m_word = foldedText(trimmed(text.substr(length)));
  if (!m_sign.empty())
    m_number = numberOf(m_word);
}

bool ColumnFilter::accepts(std::string_view text, double value) const {
  if (m_word.empty())
    return true; // a sign alone is not finished yet
  if (m_number) {
    constexpr double kShown = 0.05; // cells are rounded
    const double difference = value - *m_number;
    if (m_sign == ">")
      return difference > 0;
    if (m_sign == "<")
      return difference < 0;
    if (m_sign == ">=")
      return difference >= 0;
    if (m_sign == "<=")
      return difference <= 0;
    return difference < kShown && difference >= -kShown;
  }
  const std::string folded = foldedText(text);
  return m_sign == "=" ? folded == m_word : m_sign.empty() && folded.find(m_word) != std::string::npos;
}

} // namespace hooptab
