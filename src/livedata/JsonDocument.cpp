#include "livedata/JsonDocument.h"

#include "foreign/ExchangeNote.h"
#include "storage/Module1.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace hooptab {

namespace {

const Json& nothing() {
  static const Json kNothing;
  return kNothing;
}

} // namespace

Json parseJson(std::string_view bytes) {
  const std::string text = asUtf8(bytes);
  const Json::parser_callback_t limit = [](int depth, Json::parse_event_t, Json&) {
    if (depth > kDeepest)
      throw UnreadableGame({Text::JsonTooDeep, std::to_string(kDeepest)});
    return true;
  };
  try {
    return Json::parse(text, limit);
  } catch (const Json::parse_error& error) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(error.byte, text.size()));
    const auto line = std::count(text.begin(), end, '\n') + 1;
    throw UnreadableGame({error.byte > text.size() ? Text::JsonCutOff : Text::NoJson, std::to_string(line)});
  } catch (const Json::exception&) { // a number that none holds
    throw UnreadableGame({Text::NoJson, "1"});
  }
}

std::string jsonText(const OrderedJson& document) {
  return document.dump(1, ' ', false, OrderedJson::error_handler_t::replace) + '\n';
}

const Json& member(const Json& object, std::string_view name) {
  if (!object.is_object())
    return nothing();
  const auto found = object.find(name);
  return found == object.end() ? nothing() : *found;
}

std::string textOf(const Json& value) {
  if (value.is_string())
    return std::string(Module1::trimmed(value.get_ref<const std::string&>()));
  return value.is_number() ? value.dump() : std::string();
}
std::string textOf(const Json& object, std::string_view name) {
  return textOf(member(object, name));
}

std::optional<int> numberOf(const Json& value) {
  constexpr double kLargest = std::numeric_limits<int>::max();
  if (value.is_number()) {
    const double number = value.get<double>();
    if (!std::isfinite(number) || std::abs(number) > kLargest)
      return std::nullopt;
    return static_cast<int>(number);
  }
  if (!value.is_string())
    return std::nullopt;
  const std::string_view text = Module1::trimmed(value.get_ref<const std::string&>());
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}
int numberOf(const Json& object, std::string_view name, int otherwise) {
  return numberOf(member(object, name)).value_or(otherwise);
}

std::optional<double> decimalOf(const Json& object, std::string_view name) {
  const Json& value = member(object, name);
  if (value.is_number())
    return value.get<double>();
  if (!value.is_string())
    return std::nullopt;
  const std::string_view text = Module1::trimmed(value.get_ref<const std::string&>());
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number)
             ? std::optional(number)
             : std::nullopt;
}

bool flagOf(const Json& object, std::string_view name) {
  const Json& value = member(object, name);
  if (value.is_boolean())
    return value.get<bool>();
  const std::string text = textOf(value);
  return text == "Y" || text == "y" || Module1::flag(text);
}

const Json& listOf(const Json& object, std::string_view name) {
  static const Json kEmpty = Json::array();
  const Json& list = member(object, name);
  return list.is_array() ? list : kEmpty;
}

} // namespace hooptab
