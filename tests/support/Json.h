// A reader of JSON just large enough for the official boxes and for what hooptab-cli prints. Throws
// std::runtime_error on anything that is not valid JSON, so that reading is a check in itself.
#pragma once

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace hooptab {

class Json {
 public:
  using Array = std::vector<Json>;
  using Object = std::map<std::string, Json, std::less<>>;

  static Json parse(std::string_view text) {
    Reader reader{text};
    Json value = reader.value();
    reader.skipBlanks();
    if (!reader.rest.empty())
      throw std::runtime_error("text after the JSON value");
    return value;
  }
  static Json ofFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
      throw std::runtime_error("cannot read " + path);
    return parse(std::string{std::istreambuf_iterator<char>(file), {}});
  }

  bool isNull() const { return std::holds_alternative<std::nullptr_t>(m_value); }
  bool boolean() const { return std::get<bool>(m_value); }
  double number() const { return std::get<double>(m_value); }
  int integer() const { return static_cast<int>(number()); }
  const std::string& text() const { return std::get<std::string>(m_value); }
  const Array& array() const { return std::get<Array>(m_value); }
  const Object& object() const { return std::get<Object>(m_value); }
  bool has(std::string_view name) const { return object().contains(name); }
  const Json& operator[](std::string_view name) const {
    const auto found = object().find(name);
    if (found == object().end())
      throw std::runtime_error("no member " + std::string(name));
    return found->second;
  }
  const Json& operator[](std::size_t index) const { return array().at(index); }

 private:
  struct Reader {
    std::string_view rest;

    void skipBlanks() {
      while (!rest.empty() && (rest[0] == ' ' || rest[0] == '\n' || rest[0] == '\r' || rest[0] == '\t'))
        rest.remove_prefix(1);
    }
    bool take(char letter) {
      skipBlanks();
      if (rest.empty() || rest[0] != letter)
        return false;
      rest.remove_prefix(1);
      return true;
    }
    void need(char letter) {
      if (!take(letter))
        throw std::runtime_error(std::string("JSON: expected ") + letter);
    }
    bool takeWord(std::string_view word) {
      if (!rest.starts_with(word))
        return false;
      rest.remove_prefix(word.size());
      return true;
    }
    std::string string() {
      need('"');
      std::string text;
      while (!rest.empty() && rest[0] != '"') {
        if (static_cast<unsigned char>(rest[0]) < 0x20)
          throw std::runtime_error("JSON: control character in a string");
        char letter = rest[0];
        rest.remove_prefix(1);
        if (letter == '\\') {
          if (rest.empty())
            break;
          letter = rest[0];
          rest.remove_prefix(1);
          if (letter == 'u') {
            const auto code = std::strtoul(std::string(rest.substr(0, 4)).c_str(), nullptr, 16);
            rest.remove_prefix(std::min<std::size_t>(4, rest.size()));
            text += code < 0x80 ? static_cast<char>(code) : '?';
            continue;
          }
          const std::string_view from = "bfnrt";
          if (const auto at = from.find(letter); at != std::string_view::npos)
            letter = "\b\f\n\r\t"[at];
        }
        text += letter;
      }
      need('"');
      return text;
    }
    Json value() {
      skipBlanks();
      Json result;
      if (take('{')) {
        Object members;
        if (!take('}')) {
          do {
            skipBlanks();
            std::string name = string();
            need(':');
            members.emplace(std::move(name), value());
          } while (take(','));
          need('}');
        }
        result.m_value = std::move(members);
      } else if (take('[')) {
        Array items;
        if (!take(']')) {
          do
            items.push_back(value());
          while (take(','));
          need(']');
        }
        result.m_value = std::move(items);
      } else if (!rest.empty() && rest[0] == '"') {
        result.m_value = string();
      } else if (takeWord("null")) {
        result.m_value = nullptr;
      } else if (takeWord("true")) {
        result.m_value = true;
      } else if (takeWord("false")) {
        result.m_value = false;
      } else {
        std::size_t length = 0;
        while (length < rest.size() &&
               (std::isdigit(static_cast<unsigned char>(rest[length])) != 0 ||
                std::string_view("+-.eE").find(rest[length]) != std::string_view::npos))
          ++length;
        if (length == 0)
          throw std::runtime_error("JSON: no value");
        result.m_value = std::strtod(std::string(rest.substr(0, length)).c_str(), nullptr);
        rest.remove_prefix(length);
      }
      return result;
    }
  };

  std::variant<std::nullptr_t, bool, double, std::string, Array, Object> m_value = nullptr;
};

} // namespace hooptab
