#include "feed/JsonWriter.h"

#include "storage/Utf8.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace hooptab {

void JsonWriter::name(std::string_view name) {
  separate();
  quoted(name);
  m_text += ": ";
  m_followsName = true;
}

void JsonWriter::value(std::string_view text) {
  separate();
  quoted(text);
}

void JsonWriter::value(int number) {
  separate();
  m_text += std::to_string(number);
}

void JsonWriter::value(std::int64_t number) {
  separate();
  m_text += std::to_string(number);
}

void JsonWriter::value(double number) {
  separate();
  constexpr double kThousand = 1000;
  std::array<char, 32> digits = {};
  const double rounded = std::round(number * kThousand) / kThousand;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded).ptr;
  m_text.append(digits.data(), end);
}

void JsonWriter::begin(char bracket) {
  separate();
  m_text += bracket;
  ++m_depth;
  m_isFirst = true;
}

void JsonWriter::end(char bracket) {
  --m_depth;
  if (!m_isFirst && m_lines == 0)
    newLine();
  m_text += bracket;
  m_isFirst = false;
}

void JsonWriter::separate() {
  if (m_followsName) {
    m_followsName = false;
    m_isFirst = false;
    return;
  }
  if (!m_isFirst)
    m_text += m_lines > 0 ? ", " : ",";
  if (m_lines == 0 && m_depth > 0)
    newLine();
  m_isFirst = false;
}

void JsonWriter::newLine() {
  m_text += '\n';
  m_text.append(static_cast<std::size_t>(m_depth), ' ');
}

void JsonWriter::quoted(std::string_view text) {
  m_text += '"';
  while (!text.empty()) {
    const CodePoint next = takeCodePoint(text);
    if (!next.isValid) {
      m_text += "\xEF\xBF\xBD";
    } else if (next.value == '"' || next.value == '\\') {
      m_text += '\\';
      m_text += next.bytes;
    } else if (isControl(next.value)) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", next.value);
      m_text += escape;
    } else {
      m_text += next.bytes;
    }
  }
  m_text += '"';
}

} // namespace hooptab
