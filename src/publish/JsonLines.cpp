#include "publish/JsonLines.h"

#include <nlohmann/json.hpp>

namespace hooptab {

std::string oneLine(const FeedJson& json) {
  return json.dump(-1, ' ', false, FeedJson::error_handler_t::replace);
}

std::string inOneLine(std::string_view json) {
  return oneLine(FeedJson::parse(json));
}

} // namespace hooptab
