#include "formula/FormulaCheck.h"

#include <algorithm>
#include <array>
#include <limits>

namespace hooptab {

namespace {

constexpr FormulaFunction kFunctions[] = {
    {"abs", 1, 1},
    {"sqrt", 1, 1},
    {"min", 1, std::numeric_limits<std::size_t>::max()},
    {"max", 1, std::numeric_limits<std::size_t>::max()},
};

// Of ASCII alone, whatever the locale says.
bool isDigit(char letter) {
  return letter >= '0' && letter <= '9';
}
bool isLetter(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}
char small(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}
char capital(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::size_t charactersOf(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

class Check {
 public:
  explicit Check(std::string_view formula) { m_checked.text = formula; }

  CheckedFormula run() && {
    if (charactersOf(text()) > kLongestFormula)
      complain(FormulaFault::TooLong, 0);
    while (m_at < text().size() && !m_checked.problem)
      takeNext();
    if (!m_checked.problem && !m_open.empty())
      complain(FormulaFault::Bracket, m_open.back().at);
    return std::move(m_checked);
  }

 private:
  // A bracket that is not closed yet; `function` null: of no function.
  struct Bracket {
    std::size_t at;
    const FormulaFunction* function;
    std::size_t functionAt;
    std::string name; // as it was typed
    std::size_t values;
    bool isEmpty;
  };

  std::string& text() { return m_checked.text; }
  void complain(FormulaFault fault, std::size_t at, std::string name = {}) {
    m_checked.problem = {fault, at + 1, std::move(name)};
  }

  void takeNext() {
    const char next = text()[m_at];
    if (next == ' ') {
      ++m_at;
      return;
    }
    if (next == ')')
      return close();
    if (!m_open.empty())
      m_open.back().isEmpty = false;
    if (isLetter(next))
      takeName();
    else if (isDigit(next) || next == '.')
      takeNumber();
    else if (next == '(')
      open(nullptr, m_at, {});
    else if (next == ',')
      takeComma();
    else
      takeOperator(next);
  }

  void takeName() {
    const std::size_t begin = m_at;
    while (m_at < text().size() && (isLetter(text()[m_at]) || isDigit(text()[m_at])))
      ++m_at;
    const std::string typed = text().substr(begin, m_at - begin);
    std::string letters = typed;
    std::ranges::transform(typed, letters.begin(), small);
    const std::size_t behind = text().find_first_not_of(' ', m_at);
    const auto function = std::ranges::find(kFunctions, letters, &FormulaFunction::name);
    if (function != std::end(kFunctions) && behind < text().size() && text()[behind] == '(') {
      text().replace(begin, letters.size(), letters);
      m_at = behind;
      return open(function, begin, typed);
    }
    std::ranges::transform(typed, letters.begin(), capital);
    const auto names = ratingNames();
    const auto named = std::ranges::find(names, letters, &RatingName::name);
    if (named == names.end())
      return complain(FormulaFault::UnknownName, begin, typed);
    text().replace(begin, letters.size(), letters);
    if (std::ranges::find(m_checked.names, &*named) == m_checked.names.end())
      m_checked.names.push_back(&*named);
  }

  void takeNumber() {
    const std::size_t begin = m_at;
    bool hasPoint = false;
    while (m_at < text().size() && (isDigit(text()[m_at]) || (text()[m_at] == '.' && !hasPoint)))
      hasPoint = text()[m_at++] == '.' || hasPoint;
    if (!isDigit(text()[m_at - 1])) // "1." and "."
      complain(FormulaFault::Broken, begin);
  }

  void takeOperator(char first) {
    constexpr std::string_view kOfOne = "+-*/^";
    const bool isBeforeEquals = m_at + 1 < text().size() && text()[m_at + 1] == '=';
    constexpr std::string_view kBeforeEquals = "<>=!";
    if (kBeforeEquals.find(first) != std::string_view::npos && isBeforeEquals)
      m_at += 2;
    else if (kOfOne.find(first) != std::string_view::npos || first == '<' || first == '>')
      ++m_at;
    else
      complain(FormulaFault::Broken, m_at);
  }

  void open(const FormulaFunction* function, std::size_t functionAt, std::string name) {
    m_open.push_back({m_at++, function, functionAt, std::move(name), 1, true});
  }

  void takeComma() {
    if (m_open.empty() || m_open.back().function == nullptr)
      return complain(FormulaFault::Broken, m_at);
    ++m_open.back().values;
    ++m_at;
  }

  void close() {
    if (m_open.empty())
      return complain(FormulaFault::Bracket, m_at);
    const Bracket closed = std::move(m_open.back());
    m_open.pop_back();
    const std::size_t values = closed.isEmpty ? 0 : closed.values;
    if (closed.function != nullptr && (values < closed.function->fewest || values > closed.function->most))
      return complain(FormulaFault::Arguments, closed.functionAt, closed.name);
    ++m_at;
  }

  CheckedFormula m_checked;
  std::size_t m_at = 0;
  std::vector<Bracket> m_open;
};

} // namespace

std::span<const FormulaFunction> formulaFunctions() {
  return kFunctions;
}

CheckedFormula checkFormula(std::string_view formula) {
  return Check(formula).run();
}

} // namespace hooptab
