#include "bbgame/XmlDocument.h"

#include "foreign/Encoding.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace hooptab {

namespace {

std::string lineAt(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, std::min(offset, text.size()));
  return std::to_string(std::ranges::count(before, '\n') + 1);
}

// Four bytes for each letter: nobody but the parser reads that.
bool isUtf32(std::string_view bytes) {
  using namespace std::string_view_literals;
  return std::ranges::any_of(
      std::initializer_list<std::string_view>{"\xFF\xFE\0\0"sv, "\0\0\xFE\xFF"sv, "<\0\0\0"sv, "\0\0\0<"sv},
      [&](std::string_view start) { return bytes.starts_with(start); });
}

// Without recursion: how deep a file goes is the file's choice.
bool isDeeperThan(int deepest, const pugi::xml_document& document) {
  int depth = 0;
  for (pugi::xml_node node = document;;) {
    if (const pugi::xml_node child = node.first_child()) {
      node = child;
      if (++depth > deepest)
        return true;
      continue;
    }
    while (depth > 0 && !node.next_sibling()) {
      node = node.parent();
      --depth;
    }
    if (depth == 0)
      return false;
    node = node.next_sibling();
  }
}

} // namespace

XmlDocument::XmlDocument(std::string_view bytes) {
  const bool isWide = isUtf32(bytes);
  const std::string text = isWide ? std::string(bytes) : asUtf8(bytes);
  const pugi::xml_parse_result result =
      m_tree.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_doctype,
                         isWide ? pugi::encoding_auto : pugi::encoding_utf8);
  if (!result) {
    const auto offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0));
    const bool isCutOff = text.find('<') != std::string::npos && offset + 1 >= text.size();
    throw UnreadableGame({isCutOff ? Text::JsonCutOff : Text::NoXml, lineAt(text, offset)});
  }
  for (pugi::xml_node node = root().next_sibling(); node; node = node.next_sibling()) {
    if (node.type() == pugi::node_element) // two games in one file are no XML
      throw UnreadableGame(
          {Text::NoXml,
           lineAt(text, static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0)))});
  }
  if (isDeeperThan(kDeepest, m_tree))
    throw UnreadableGame({Text::JsonTooDeep, std::to_string(kDeepest)});
  for (const pugi::xml_node& node : m_tree.children()) {
    if (node.type() == pugi::node_doctype &&
        std::string_view(node.value()).find("<!ENTITY") != std::string_view::npos)
      m_notes.push_back({Text::XmlEntities, lineAt(text, text.find("<!ENTITY"))});
  }
}

std::string xmlText(const pugi::xml_document& document) {
  struct Writer : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override {
      text.append(static_cast<const char*>(data), size);
    }
  } writer;
  document.save(writer, "  ", pugi::format_default, pugi::encoding_utf8);
  return std::move(writer.text);
}

void setAttribute(pugi::xml_node element, const char* name, std::string_view value) {
  element.append_attribute(name).set_value(printable(value).c_str());
}
void setAttribute(pugi::xml_node element, const char* name, int value) {
  element.append_attribute(name).set_value(value);
}

std::string textOf(const pugi::xml_node& element, const char* name) {
  return printable(Module1::trimmed(element.attribute(name).value()));
}

std::optional<int> numberOf(const pugi::xml_node& element, const char* name) {
  constexpr double kLargest = std::numeric_limits<int>::max();
  const std::optional<double> number = decimalOf(element, name);
  return number && std::abs(*number) <= kLargest ? std::optional(static_cast<int>(*number)) : std::nullopt;
}
int numberOf(const pugi::xml_node& element, const char* name, int otherwise) {
  return numberOf(element, name).value_or(otherwise);
}

std::optional<double> decimalOf(const pugi::xml_node& element, const char* name) {
  std::string_view text = Module1::trimmed(element.attribute(name).value());
  if (text.starts_with('+'))
    text.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number)
             ? std::optional(number)
             : std::nullopt;
}

bool flagOf(const pugi::xml_node& element, const char* name) {
  const std::string text = textOf(element, name);
  return text == "Y" || text == "y" || Module1::flag(text);
}

} // namespace hooptab
