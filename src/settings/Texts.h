// The string table: every caption and message by number, English from 1001, French 4000 higher. Holds the
// language in use; a number without text gives the empty text. The tables themselves are
// src/resources/texts_en.txt and texts_fr.txt.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

enum class Language : std::uint8_t { English, French };

class Texts {
 public:
  static constexpr int kFrenchOffset = 4000;

  Texts(); // parses the tables the program carries
  // For tests: tables of one's own, in the files' form.
  Texts(std::string_view english, std::string_view french);

  Language language() const { return m_language; }
  void setLanguage(Language language) { m_language = language; }
  int offset() const { return m_language == Language::French ? kFrenchOffset : 0; }

  // `number` is the English one (1001 and up). UTF-8; the view holds as long as the table.
  [[nodiscard]] std::string_view text(int number) const { return text(number, m_language); }
  [[nodiscard]] std::string_view text(int number, Language language) const;
  [[nodiscard]] std::string withPlaceholder(int number, std::string_view replacement) const; // for "XXX"

  // Diagnostic display: while it is on, captions are shown with their number in front.
  void showNumbers(bool show) { m_showsNumbers = show; }
  [[nodiscard]] std::string caption(int number) const;

  [[nodiscard]] std::vector<int> numbers() const; // of the English table, ascending

  // The language of a stored offset: 4000 and the older 1000 are French, all else English.
  [[nodiscard]] static Language languageOfOffset(int offset);

 private:
  void load(std::string_view table, Language language);

  static constexpr std::size_t kSize = 3000;
  std::vector<std::string> m_texts[2]; // index number - 1001
  Language m_language = Language::English;
  bool m_showsNumbers = false;
};

} // namespace hooptab
