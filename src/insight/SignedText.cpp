#include "insight/SignedText.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace hooptab {

std::string signedText(int number) {
  return (number > 0 ? "+" : number < 0 ? "−" : "") + std::to_string(std::abs(number));
}

std::string signedText(double number, int decimals) {
  std::array<char, 64> digits = {};
  std::snprintf(digits.data(), digits.size(), "%.*f", decimals, std::abs(number));
  const std::string text = digits.data();
  if (text.find_first_not_of("0.") == std::string::npos)
    return text;
  return (number < 0 ? "−" : "+") + text;
}

std::string withWideMinus(std::string number) {
  if (number.starts_with('-'))
    number.replace(0, 1, "−");
  return number;
}

} // namespace hooptab
