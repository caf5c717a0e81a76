// XML as files of other systems have it, read with limits: in any encoding that JSON is read in, no deeper
// than kDeepest. Entities that a file declares are never expanded, and are told. Attributes are asked for as
// members of JSON are: what is missing or of another kind gives the value for "not said".
#pragma once

#include "foreign/ExchangeNote.h"

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class XmlDocument {
 public:
  // Throws UnreadableGame for what is no XML, saying where.
  explicit XmlDocument(std::string_view bytes);

  [[nodiscard]] pugi::xml_node root() const { return m_tree.document_element(); }
  // What the user should know of the file as such.
  [[nodiscard]] const std::vector<ExchangeNote>& notes() const { return m_notes; }

 private:
  pugi::xml_document m_tree;
  std::vector<ExchangeNote> m_notes;
};

// As bytes of a file: UTF-8 with its declaration.
[[nodiscard]] std::string xmlText(const pugi::xml_document& document);

// Behind the element's other attributes; what no text may hold becomes "?".
void setAttribute(pugi::xml_node element, const char* name, std::string_view value);
void setAttribute(pugi::xml_node element, const char* name, int value);

// Valid UTF-8, without control characters and blanks around it; empty where there is no such attribute.
[[nodiscard]] std::string textOf(const pugi::xml_node& element, const char* name);
// A whole number; a fraction is cut. Nothing for anything else.
[[nodiscard]] std::optional<int> numberOf(const pugi::xml_node& element, const char* name);
[[nodiscard]] int numberOf(const pugi::xml_node& element, const char* name, int otherwise);
[[nodiscard]] std::optional<double> decimalOf(const pugi::xml_node& element, const char* name);
// "Y", "1" or "true" in any letter case.
[[nodiscard]] bool flagOf(const pugi::xml_node& element, const char* name);

} // namespace hooptab
