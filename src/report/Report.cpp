#include "report/Report.h"

#include <utility>

namespace hooptab {

ReportCell textCell(std::string text) {
  return {std::move(text), ReportCell::Kind::Text, 0};
}

ReportCell numberCell(int number) {
  return {std::to_string(number), ReportCell::Kind::Number, static_cast<double>(number)};
}

} // namespace hooptab
