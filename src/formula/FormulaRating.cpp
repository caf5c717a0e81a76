#include "formula/FormulaRating.h"

#include "formula/FormulaCheck.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <muParser.h>
#include <mutex>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

double absolute(double value) {
  return std::abs(value);
}
double root(double value) {
  return std::sqrt(value);
}
double smallest(const double* values, int count) {
  return *std::min_element(values, values + count);
}
double largest(const double* values, int count) {
  return *std::max_element(values, values + count);
}

// The library's calculator with places for the names of one formula. It keeps what it calculates with, so
// one thread at a time asks it.
class Calculator {
 public:
  explicit Calculator(const CheckedFormula& formula) : m_names(formula.names), m_values(m_names.size()) {
    // What it brings along goes: constants, functions by other names, and ones with random results.
    m_parser.ResetLocale(); // to a decimal point
    m_parser.ClearConst();
    m_parser.ClearFun();
    m_parser.DefineFun("abs", absolute);
    m_parser.DefineFun("sqrt", root);
    m_parser.DefineFun("min", smallest);
    m_parser.DefineFun("max", largest);
    for (std::size_t i = 0; i < m_names.size(); ++i)
      m_parser.DefineVar(std::string(m_names[i]->name), &m_values[i]);
    m_parser.SetExpr(formula.text);
    (void)m_parser.Eval(); // which reads it, and throws where it makes no sense
  }
  Calculator(const Calculator&) = delete; // the places of the values are known to the parser
  Calculator& operator=(const Calculator&) = delete;

  std::optional<double> rate(const RatedNumbers& numbers) {
    const std::scoped_lock lock(m_mutex);
    for (std::size_t i = 0; i < m_names.size(); ++i) {
      const std::optional<double> value = m_names[i]->value(numbers);
      if (!value)
        return std::nullopt;
      m_values[i] = *value;
    }
    try {
      const double rating = m_parser.Eval();
      return std::isfinite(rating) ? std::optional(rating) : std::nullopt;
    } catch (const mu::ParserError&) { // as the library does for a division by 0, where it was built to
      return std::nullopt;
    }
  }

 private:
  std::mutex m_mutex;
  std::vector<const RatingName*> m_names;
  std::vector<double> m_values;
  mu::Parser m_parser;
};

FormulaProblem problemOf(const mu::ParserError& error, std::size_t length) {
  const int position = error.GetPos();
  const bool isInside = position >= 0 && static_cast<std::size_t>(position) < length;
  return {FormulaFault::Broken, (isInside ? static_cast<std::size_t>(position) : length) + 1};
}

} // namespace

FormulaReading readFormula(std::string_view formula) {
  CheckedFormula checked = checkFormula(formula);
  if (checked.problem)
    return {nullptr, std::move(checked.problem)};
  if (checked.isEmpty())
    return {};
  // The library keeps what it knows of decimal points for all its calculators together.
  static std::mutex making;
  const std::scoped_lock lock(making);
  try {
    auto calculator = std::make_shared<Calculator>(checked);
    return {[calculator](const RatedNumbers& numbers) { return calculator->rate(numbers); }};
  } catch (const mu::ParserError& error) {
    return {nullptr, problemOf(error, checked.text.size())};
  }
}

} // namespace hooptab
