#include "storage/ProfileText.h"

#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <unordered_map>
#include <unordered_set>

namespace hooptab {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

constexpr std::array<bool, 256> makeBlankTable() {
  std::array<bool, 256> table = {};
  for (const char blank : {' ', '\t', '\v', '\f', '\r', '\n', '\x1A'})
    table[static_cast<unsigned char>(blank)] = true;
  return table;
}
constexpr auto kIsBlank = makeBlankTable();

bool isBlank(char character) {
  return kIsBlank[static_cast<unsigned char>(character)];
}

std::string_view trimmed(const char* begin, const char* end) {
  while (begin != end && isBlank(*begin))
    ++begin;
  while (end != begin && isBlank(end[-1]))
    --end;
  return {begin, static_cast<std::size_t>(end - begin)};
}

// A NUL ends a name or a value.
std::string_view trimmedText(const char* begin, const char* end, bool mayHoldNul) {
  if (mayHoldNul)
    end = std::find(begin, end, '\0');
  return trimmed(begin, end);
}

const char* findByte(const char* begin, const char* end, char byte) {
  const void* const found =
      begin == end ? nullptr : std::memchr(begin, byte, static_cast<std::size_t>(end - begin));
  return found ? static_cast<const char*>(found) : end;
}

// Cuts text into lines at CR, LF and CR LF. Each of the two is searched over the text once, so that a file
// with one kind of line end, or with a line of megabytes, takes no more than linear time.
class LineCutter {
 public:
  LineCutter(const char* begin, const char* end)
      : m_end(end), m_lineFeed(findByte(begin, end, '\n')), m_return(findByte(begin, end, '\r')) {}

  struct Cut {
    const char* contentEnd;
    const char* next;
  };
  Cut cut(const char* begin) {
    if (m_lineFeed < begin)
      m_lineFeed = findByte(begin, m_end, '\n');
    if (m_return < begin)
      m_return = findByte(begin, m_end, '\r');
    const char* const contentEnd = std::min(m_lineFeed, m_return);
    if (contentEnd == m_end)
      return {m_end, m_end};
    const bool isPair = m_return + 1 == m_lineFeed && m_lineFeed != m_end;
    return {contentEnd, contentEnd + (isPair ? 2 : 1)};
  }

 private:
  const char* m_end;
  const char* m_lineFeed; // the next of each at or behind the line's begin, or the end
  const char* m_return;
};

bool isKeyLine(const ProfileText::Line& line) {
  return line.kind == ProfileText::Line::Kind::KeyValue || line.kind == ProfileText::Line::Kind::NameOnly;
}

// Gives a last line without line end the one it lacks, so that something can follow.
void endLine(std::string& bytes) {
  if (!bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r')
    bytes += kLineEnd;
}

void appendKeyLine(std::string& bytes, std::string_view name, std::string_view value) {
  bytes.append(name).append("=").append(value).append(kLineEnd);
}

void appendHeader(std::string& bytes, std::string_view section) {
  bytes.append("[").append(section).append("]").append(kLineEnd);
}

} // namespace

ProfileText::ProfileText() : m_bytes(std::make_shared<const std::string>()) {}

ProfileText::ProfileText(std::string bytes) : m_bytes(std::make_shared<const std::string>(std::move(bytes))) {
  parse();
}

void ProfileText::parse() {
  const char* const start = m_bytes->data();
  const char* const end = start + m_bytes->size();
  const bool holdsNul = m_bytes->find('\0') != std::string::npos;
  const auto offset = [start](const char* place) { return static_cast<std::uint32_t>(place - start); };

  // A game's lines are some 20 bytes long. A large file is not known to hold that many lines.
  constexpr std::size_t kTypicalLine = 16;
  constexpr std::size_t kMostReserved = 1U << 16U;
  m_lines.reserve(std::min(m_bytes->size() / kTypicalLine + 1, kMostReserved));
  m_sections.reserve(16);

  LineCutter lines(start, end);
  for (const char* begin = start; begin != end;) {
    const auto [contentEnd, next] = lines.cut(begin);
    const char* first = begin;
    while (first != contentEnd && isBlank(*first))
      ++first;
    if (first != contentEnd && *first == '[') {
      if (!m_sections.empty())
        m_sections.back().lastLine = static_cast<std::uint32_t>(m_lines.size());
      const char* const bracket = std::find(first + 1, contentEnd, ']');
      m_sections.push_back({.name = trimmedText(first + 1, bracket, holdsNul),
                            .headerBegin = offset(begin),
                            .headerEnd = offset(next),
                            .firstLine = static_cast<std::uint32_t>(m_lines.size()),
                            .lastLine = 0});
    } else if (!m_sections.empty()) { // lines before the first header belong to no section
      const bool isEmpty = first == contentEnd;
      const bool joinsBlank =
          isEmpty && m_lines.size() > m_sections.back().firstLine && m_lines.back().kind == Line::Kind::Blank;
      // Filled in place: this is the inner loop of reading a file, and building a line elsewhere and copying
      // it took longer than all the rest.
      Line& line = joinsBlank ? m_lines.back() : m_lines.emplace_back();
      if (!joinsBlank)
        line.begin = offset(begin);
      line.end = offset(next);
      if (isEmpty) {
        line.kind = Line::Kind::Blank;
      } else if (*first == ';') {
        line.kind = Line::Kind::Comment;
      } else {
        const char* const equals = std::find(first, contentEnd, '=');
        line.name = trimmedText(first, equals, holdsNul);
        line.kind = Line::Kind::NameOnly;
        if (equals != contentEnd) {
          line.value = trimmedText(equals + 1, contentEnd, holdsNul);
          line.kind = Line::Kind::KeyValue;
        }
      }
    }
    begin = next;
  }
  if (!m_sections.empty())
    m_sections.back().lastLine = static_cast<std::uint32_t>(m_lines.size());
}

const ProfileText::Section* ProfileText::find(std::string_view section) const {
  const auto found = std::ranges::find_if(m_sections, [section](const Section& candidate) {
    return codepage::equalNames(candidate.name, section);
  });
  return found == m_sections.end() ? nullptr : &*found;
}

ProfileText::SectionView ProfileText::lines(const Section& section) const {
  return {m_lines.data() + section.firstLine, m_lines.data() + section.lastLine};
}

const ProfileText::Line* ProfileText::findKey(const Section& section, std::string_view key) const {
  for (const Line& line : lines(section))
    if (line.name.size() == key.size() && isKeyLine(line) && codepage::equalNames(line.name, key))
      return &line;
  return nullptr;
}

bool ProfileText::hasSection(std::string_view section) const {
  return find(section) != nullptr;
}

ProfileText::SectionView ProfileText::section(std::string_view section) const {
  const Section* const found = find(section);
  return found ? lines(*found) : SectionView{};
}

std::vector<std::string_view> ProfileText::sectionNames() const {
  std::vector<std::string_view> names;
  std::unordered_set<std::string> seen;
  for (const Section& section : m_sections) {
    std::string folded(section.name);
    for (char& character : folded)
      character = static_cast<char>(codepage::foldCase(static_cast<unsigned char>(character)));
    if (seen.insert(std::move(folded)).second)
      names.push_back(section.name);
  }
  return names;
}

std::optional<std::string_view> ProfileText::value(std::string_view section, std::string_view key) const {
  const Section* const place = find(section);
  const Line* const line = place ? findKey(*place, key) : nullptr;
  if (!line || line->kind == Line::Kind::NameOnly)
    return std::nullopt;
  return line->value;
}

std::string ProfileText::keyList(std::string_view section) const {
  std::string list;
  for (const Line& line : this->section(section))
    if (line.kind == Line::Kind::KeyValue)
      list.append(line.name).push_back('\0');
  return list;
}

ProfileText ProfileText::withValue(std::string_view section, std::string_view key,
                                   std::string_view value) const {
  const std::string_view old = *m_bytes;
  std::string bytes;
  bytes.reserve(old.size() + section.size() + key.size() + value.size() + 16);

  const Section* const place = find(section);
  if (!place) {
    bytes = old;
    endLine(bytes);
    appendHeader(bytes, section);
    appendKeyLine(bytes, key, value);
  } else if (const Line* const line = findKey(*place, key)) {
    if (line->kind == Line::Kind::KeyValue && line->value == value)
      return *this;
    bytes = old.substr(0, line->begin);
    appendKeyLine(bytes, line->name, value);
    bytes += old.substr(line->end);
  } else {
    const SectionView view = lines(*place);
    const Line* last = view.last;
    while (last != view.first && !isKeyLine(last[-1]))
      --last;
    const std::uint32_t end = last == view.first ? place->headerEnd : last[-1].end;
    bytes = old.substr(0, end);
    endLine(bytes);
    appendKeyLine(bytes, key, value);
    bytes += old.substr(end);
  }
  return bytes == old ? *this : ProfileText(std::move(bytes));
}

ProfileText ProfileText::withoutSection(std::string_view section) const {
  const Section* const place = find(section);
  if (!place)
    return *this;
  const std::string_view old = *m_bytes;
  std::string bytes(old.substr(0, place->headerBegin));
  std::uint32_t end = place->headerEnd;
  for (const Line& line : lines(*place)) {
    if (line.kind == Line::Kind::Comment)
      bytes += old.substr(line.begin, line.end - line.begin);
    end = line.end;
  }
  bytes += old.substr(end);
  return ProfileText(std::move(bytes));
}

ProfileText ProfileText::withSectionLines(std::string_view section, const KeyValues& newLines) const {
  const std::string_view old = *m_bytes;
  std::string bytes;
  const Section* const place = find(section);
  if (!place) {
    bytes = old;
    endLine(bytes);
    appendHeader(bytes, section);
    for (const auto& [name, value] : newLines)
      appendKeyLine(bytes, name, value);
    return ProfileText(std::move(bytes));
  }

  const SectionView view = lines(*place);
  const auto append = [&](const Line& line) {
    endLine(bytes);
    bytes += old.substr(line.begin, line.end - line.begin);
  };
  const Line* behindKeys = view.last;
  while (behindKeys != view.first && !isKeyLine(behindKeys[-1]))
    --behindKeys;

  bytes = old.substr(0, place->headerEnd);
  std::unordered_map<std::string_view, const Line*> known;
  for (const Line* line = view.first; line != behindKeys; ++line) {
    if (line->kind == Line::Kind::KeyValue)
      known.emplace(line->name, line);
    else if (!isKeyLine(*line))
      append(*line);
  }
  for (const auto& [name, value] : newLines) {
    const auto found = known.find(name);
    if (found != known.end() && found->second->value == value) {
      append(*found->second); // an unchanged line stays byte for byte
    } else {
      endLine(bytes);
      appendKeyLine(bytes, name, value);
    }
  }
  for (const Line* line = behindKeys; line != view.last; ++line)
    append(*line);
  const std::uint32_t end = view.first == view.last ? place->headerEnd : view.last[-1].end;
  if (end < old.size()) {
    endLine(bytes);
    bytes += old.substr(end);
  }
  return bytes == old ? *this : ProfileText(std::move(bytes));
}

} // namespace hooptab
