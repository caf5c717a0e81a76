// The string table: every caption and message, in English and French. Holds the language in use; a text that
// a table lacks is empty. The tables themselves are src/resources/texts_en.txt and texts_fr.txt; their names
// are the values of Text, their numbers go from 1001 in English, and above that by the offset of the
// language.
#pragma once

#include "settings/Language.h"
#include "settings/Text.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// The text that stands `count` numbers behind `first`, for the rows of choices that the table keeps together.
[[nodiscard]] constexpr Text textBehind(Text first, int count) {
  return static_cast<Text>(static_cast<int>(first) + count);
}

class Texts {
 public:
  Texts(); // parses the tables the program carries
  // For tests: tables of one's own, in the files' form.
  Texts(std::string_view english, std::string_view french);

  Language language() const { return m_language; }
  void setLanguage(Language language) { m_language = language; }
  int offset() const { return factsOf(m_language).offset; }

  // UTF-8; the view holds as long as the table.
  [[nodiscard]] std::string_view text(Text which) const { return text(which, m_language); }
  [[nodiscard]] std::string_view text(Text text, Language language) const;
  [[nodiscard]] std::string withPlaceholder(Text text, std::string_view replacement) const; // for "XXX"

  // Diagnostic display: while it is on, captions are shown with their number in front.
  void showNumbers(bool show) { m_showsNumbers = show; }
  [[nodiscard]] std::string caption(Text text) const;

  [[nodiscard]] std::vector<int> numbers() const; // of the English table, ascending

  // The language of a stored offset: 4000 and the older 1000 are French, all else English.
  [[nodiscard]] static Language languageOfOffset(int offset);

 private:
  void load(std::string_view table, Language language);

  static constexpr std::size_t kSize = 3000;
  std::array<std::vector<std::string>, kLanguages.size()> m_texts; // index number - 1001
  Language m_language = Language::English;
  bool m_showsNumbers = false;
};

} // namespace hooptab
