// JSON as files of other systems have it, read with limits: UTF-8 with or without a byte order mark, and
// UTF-16; no deeper than kDeepest; numbers may stand as texts and texts as numbers. What is missing or of
// another kind gives the value for "not said": a reader decides what it cannot do without.
#pragma once

#include "foreign/Encoding.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

using Json = nlohmann::json;
// Keeps the order of members, for writing.
using OrderedJson = nlohmann::ordered_json;

// Throws UnreadableGame for what is no JSON, saying where.
[[nodiscard]] Json parseJson(std::string_view bytes);
// As bytes of a file: UTF-8; wrong bytes of a text are replaced.
[[nodiscard]] std::string jsonText(const OrderedJson& document);

// The member of an object; null for another kind of value, and where there is none.
[[nodiscard]] const Json& member(const Json& object, std::string_view name);
// Without blanks around it. A number as its digits; empty for anything else.
[[nodiscard]] std::string textOf(const Json& value);
[[nodiscard]] std::string textOf(const Json& object, std::string_view name);
// A whole number, or the text of one ("12", "-3"); a fraction is cut. Nothing for anything else.
[[nodiscard]] std::optional<int> numberOf(const Json& value);
[[nodiscard]] int numberOf(const Json& object, std::string_view name, int otherwise);
[[nodiscard]] std::optional<double> decimalOf(const Json& object, std::string_view name);
// true, a number that is not 0, "1", "true", "Y" in any letter case.
[[nodiscard]] bool flagOf(const Json& object, std::string_view name);
// The array of that name; an empty one where there is none.
[[nodiscard]] const Json& listOf(const Json& object, std::string_view name);

} // namespace hooptab
