// Writes JSON as one text, indented by its depth; commas and quotes come by themselves. Text that is not
// valid UTF-8 is written with U+FFFD in place of each wrong byte.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

class JsonWriter {
 public:
  void beginObject() { begin('{'); }
  void endObject() { end('}'); }
  void beginArray() { begin('['); }
  void endArray() { end(']'); }
  // The name of the value that follows, inside an object.
  void name(std::string_view name);
  void value(std::string_view text);
  void value(int number);
  void value(std::int64_t number);
  void value(double number);         // to three decimals
  template <std::same_as<bool> Bool> // a text must not be taken for one
  void value(Bool truth) {
    separate();
    m_text += truth ? "true" : "false";
  }
  void null() {
    separate();
    m_text += "null";
  }
  // A named value.
  template <class Value>
  void member(std::string_view memberName, const Value& memberValue) {
    name(memberName);
    value(memberValue);
  }
  // What follows until endLine() stands on one line. Called inside the object or array that is to be one,
  // ended after it.
  void beginLine() { ++m_lines; }
  void endLine() { --m_lines; }

  // The whole, with a line end.
  [[nodiscard]] std::string text() const { return m_text + '\n'; }

 private:
  void begin(char bracket);
  void end(char bracket);
  void separate();
  void newLine();
  void quoted(std::string_view text);

  std::string m_text;
  int m_depth = 0;
  int m_lines = 0;
  bool m_isFirst = true; // of its object or array
  bool m_followsName = false;
};

} // namespace hooptab
