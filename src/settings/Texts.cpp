#include "settings/Texts.h"

#include "resources/tables.h"
#include "storage/Module1.h"

#include <algorithm>
#include <charconv>

namespace hooptab {

namespace {

constexpr int kFirstNumber = 1001;

struct Entry {
  int number = 0;
  std::string_view text;
};

// `1001 Name "text"`: the text ends at the last quote, so that quotes inside need no escaping. Anything else
// is no entry.
bool readEntry(std::string_view line, Entry& entry) {
  const auto digits = std::from_chars(line.data(), line.data() + line.size(), entry.number);
  if (digits.ec != std::errc{})
    return false;
  line.remove_prefix(static_cast<std::size_t>(digits.ptr - line.data()));
  const std::size_t first = line.find('"');
  const std::size_t last = line.rfind('"');
  if (first == last)
    return false;
  entry.text = line.substr(first + 1, last - first - 1);
  return true;
}

} // namespace

Texts::Texts() : Texts(englishTable(), frenchTable()) {}

Texts::Texts(std::string_view english, std::string_view french) {
  load(english, Language::English);
  load(french, Language::French);
}

void Texts::load(std::string_view table, Language language) {
  std::vector<std::string>& texts = m_texts[indexOf(language)];
  texts.resize(kSize);
  const int firstNumber = kFirstNumber + factsOf(language).offset;
  while (!table.empty()) {
    const std::string_view line = table.substr(0, table.find('\n'));
    table.remove_prefix(std::min(line.size() + 1, table.size()));
    Entry entry;
    if (!readEntry(line, entry) || entry.number < firstNumber)
      continue;
    const auto index = static_cast<std::size_t>(entry.number - firstNumber);
    if (index < kSize)
      texts[index] = entry.text;
  }
}

std::string_view Texts::text(Text text, Language language) const {
  const std::vector<std::string>& texts = m_texts[indexOf(language)];
  const int number = static_cast<int>(text);
  if (number < kFirstNumber || static_cast<std::size_t>(number - kFirstNumber) >= kSize)
    return {};
  return texts[static_cast<std::size_t>(number - kFirstNumber)];
}

std::string Texts::withPlaceholder(Text text, std::string_view replacement) const {
  return Module1::withPlaceholder(this->text(text), replacement);
}

std::string Texts::caption(Text text) const {
  std::string result;
  if (m_showsNumbers)
    result = std::to_string(static_cast<int>(text) + offset()) + ' ';
  return result.append(this->text(text));
}

std::vector<int> Texts::numbers() const {
  std::vector<int> result;
  const std::vector<std::string>& english = m_texts[indexOf(Language::English)];
  for (std::size_t index = 0; index < kSize; ++index)
    if (!english[index].empty())
      result.push_back(kFirstNumber + static_cast<int>(index));
  return result;
}

Language Texts::languageOfOffset(int offset) {
  constexpr int kOlderFrenchOffset = 1000;
  const auto found = std::ranges::find(kLanguages, offset, &LanguageFacts::offset);
  return found != kLanguages.end()      ? found->language
         : offset == kOlderFrenchOffset ? Language::French
                                        : Language::English;
}

} // namespace hooptab
