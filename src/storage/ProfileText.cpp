#include "storage/ProfileText.h"

#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>
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

// The first CR or LF, or the end: eight bytes at a time, since two searches a line, one for each, took longer
// than all that is done with the line.
const char* endOfLine(const char* begin, const char* end) {
  constexpr std::uint64_t kOnes = 0x0101010101010101U;
  constexpr std::uint64_t kHighs = 0x8080808080808080U;
  const auto hasZero = [](std::uint64_t word) { return ((word - kOnes) & ~word & kHighs) != 0; };
  for (std::uint64_t word = 0; end - begin >= std::ptrdiff_t{sizeof word}; begin += sizeof word) {
    std::memcpy(&word, begin, sizeof word);
    if (hasZero(word ^ (kOnes * '\n')) || hasZero(word ^ (kOnes * '\r')))
      break;
  }
  while (begin != end && *begin != '\n' && *begin != '\r')
    ++begin;
  return begin;
}

// A line ends at CR, LF or CR LF.
struct LineCut {
  const char* contentEnd;
  const char* next;
};
LineCut cutLine(const char* begin, const char* end) {
  const char* const contentEnd = endOfLine(begin, end);
  if (contentEnd == end)
    return {end, end};
  const bool isPair = *contentEnd == '\r' && contentEnd + 1 != end && contentEnd[1] == '\n';
  return {contentEnd, contentEnd + (isPair ? 2 : 1)};
}

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

// Where a new key goes: before the comments and blank lines at the end.
const ProfileText::Line* behindLastKey(const ProfileText::SectionView& section) {
  const ProfileText::Line* behind = section.last;
  while (behind != section.first && !isKeyLine(behind[-1]))
    --behind;
  return behind;
}

} // namespace

struct ProfileText::Section {
  std::string_view name = {};
  std::uint32_t begin = 0; // first byte of its header
  std::uint32_t headerEnd = 0;
  std::uint32_t end = 0;
  std::uint32_t firstLine = 0; // index into the lines
  std::uint32_t lastLine = 0;  // one past
};

// Bytes that were parsed together: a file as it was read, or a section as it was changed since. The first
// section stands for what comes before the first header and has neither name nor lines.
struct ProfileText::Parsed {
  explicit Parsed(std::string text) : bytes(std::move(text)) { parse(); }

  const std::string bytes;
  std::vector<Line> lines;
  std::vector<Section> sections;

 private:
  void parse();
  void endSection(std::size_t end) {
    sections.back().end = static_cast<std::uint32_t>(end);
    sections.back().lastLine = static_cast<std::uint32_t>(lines.size());
  }
};

const ProfileText::Section& ProfileText::Piece::operator*() const {
  return parsed->sections[section];
}

ProfileText::SectionView ProfileText::Piece::view() const {
  const Section& own = **this;
  const Line* const lines = parsed->lines.data();
  return {lines + own.firstLine, lines + own.lastLine,
          std::string_view(parsed->bytes).substr(own.begin, own.end - own.begin)};
}

std::string_view ProfileText::Piece::bytesOf(const Line& line) const {
  return std::string_view(parsed->bytes).substr(line.begin, line.end - line.begin);
}

ProfileText::ProfileText() {
  static const ProfileText empty{std::string()};
  m_shared = empty.m_shared;
}

ProfileText::ProfileText(std::string bytes) {
  const auto parsed = std::make_shared<const Parsed>(std::move(bytes));
  std::vector<Piece> pieces;
  pieces.reserve(parsed->sections.size());
  for (std::uint32_t section = 0; section < parsed->sections.size(); ++section)
    pieces.push_back({parsed, section});
  m_shared = std::make_shared<const std::vector<Piece>>(std::move(pieces));
}

void ProfileText::Parsed::parse() {
  const char* const start = bytes.data();
  const char* const end = start + bytes.size();
  const bool holdsNul = bytes.find('\0') != std::string::npos;
  const auto offset = [start](const char* place) { return static_cast<std::uint32_t>(place - start); };

  // A game's lines are some 20 bytes long. A large file is not known to hold that many lines.
  constexpr std::size_t kTypicalLine = 16;
  constexpr std::size_t kMostReserved = 1U << 16U;
  lines.reserve(std::min(bytes.size() / kTypicalLine + 1, kMostReserved));
  sections.reserve(16);

  sections.emplace_back();
  for (const char* begin = start; begin != end;) {
    const auto [contentEnd, next] = cutLine(begin, end);
    const char* first = begin;
    while (first != contentEnd && isBlank(*first))
      ++first;
    if (first != contentEnd && *first == '[') {
      endSection(offset(begin));
      const char* const bracket = std::find(first + 1, contentEnd, ']');
      sections.push_back({.name = trimmedText(first + 1, bracket, holdsNul),
                          .begin = offset(begin),
                          .headerEnd = offset(next),
                          .end = 0,
                          .firstLine = static_cast<std::uint32_t>(lines.size()),
                          .lastLine = 0});
    } else if (sections.size() > 1) { // lines before the first header belong to no section
      const bool isEmpty = first == contentEnd;
      const bool joinsBlank =
          isEmpty && lines.size() > sections.back().firstLine && lines.back().kind == Line::Kind::Blank;
      // Filled in place: this is the inner loop of reading a file, and building a line elsewhere and copying
      // it took longer than all the rest.
      Line& line = joinsBlank ? lines.back() : lines.emplace_back();
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
  endSection(bytes.size());
}

// 0 is what comes before the first header.
std::size_t ProfileText::find(std::string_view section) const {
  for (std::size_t place = 1; place < pieces().size(); ++place)
    if (codepage::equalNames((*pieces()[place]).name, section))
      return place;
  return 0;
}

const ProfileText::Line* ProfileText::findKey(const SectionView& section, std::string_view key) {
  for (const Line& line : section)
    if (line.name.size() == key.size() && isKeyLine(line) && codepage::equalNames(line.name, key))
      return &line;
  return nullptr;
}

std::string ProfileText::bytes() const {
  std::size_t size = 0;
  for (const Piece& piece : pieces())
    size += piece.view().bytes.size();
  std::string all;
  all.reserve(size);
  for (const Piece& piece : pieces())
    all += piece.view().bytes;
  return all;
}

bool ProfileText::hasBytes(std::string_view bytes) const {
  for (const Piece& piece : pieces()) {
    const std::string_view own = piece.view().bytes;
    if (!bytes.starts_with(own))
      return false;
    bytes.remove_prefix(own.size());
  }
  return bytes.empty();
}

bool ProfileText::isSameAs(const ProfileText& other) const {
  const auto isShared = [](const Piece& left, const Piece& right) {
    return left.parsed == right.parsed && left.section == right.section;
  };
  return m_shared == other.m_shared || std::ranges::equal(pieces(), other.pieces(), isShared) ||
         hasBytes(other.bytes());
}

bool ProfileText::hasSection(std::string_view section) const {
  return find(section) > 0;
}

ProfileText::SectionView ProfileText::section(std::string_view section) const {
  const std::size_t place = find(section);
  return place > 0 ? pieces()[place].view() : SectionView{};
}

std::shared_ptr<const std::string> ProfileText::sharedBytes(std::string_view section) const {
  const std::size_t place = find(section);
  if (place == 0)
    return nullptr;
  const auto& parsed = pieces()[place].parsed;
  return {parsed, &parsed->bytes};
}

std::vector<std::string_view> ProfileText::sectionNames() const {
  std::vector<std::string_view> names;
  for (const NamedSection& section : sections())
    names.push_back(section.name);
  return names;
}

std::vector<std::string_view> ProfileText::headers() const {
  std::vector<std::string_view> headers;
  for (std::size_t place = 1; place < pieces().size(); ++place)
    headers.push_back((*pieces()[place]).name);
  return headers;
}

std::vector<ProfileText::NamedSection> ProfileText::sections() const {
  std::vector<NamedSection> sections;
  std::unordered_set<std::string> seen;
  for (std::size_t place = 1; place < pieces().size(); ++place) {
    const Piece& piece = pieces()[place];
    const std::string_view name = (*piece).name;
    std::string folded(name);
    for (char& character : folded)
      character = static_cast<char>(codepage::foldCase(static_cast<unsigned char>(character)));
    if (seen.insert(std::move(folded)).second)
      sections.push_back({name, piece.view(), {piece.parsed, &piece.parsed->bytes}});
  }
  return sections;
}

std::optional<std::string_view> ProfileText::value(std::string_view section, std::string_view key) const {
  const Line* const line = findKey(this->section(section), key);
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

// The text with these bytes in the place of so many pieces.
ProfileText ProfileText::withPieces(std::size_t first, std::size_t count, std::string bytes) const {
  const auto parsed = std::make_shared<const Parsed>(std::move(bytes));
  std::vector<Piece> together;
  together.reserve(pieces().size() + parsed->sections.size());
  const auto place = pieces().begin() + static_cast<std::ptrdiff_t>(first);
  together.assign(pieces().begin(), place);
  for (std::uint32_t section = first > 0 ? 1 : 0; section < parsed->sections.size(); ++section)
    together.push_back({parsed, section}); // behind other pieces the bytes begin with a header
  together.insert(together.end(), place + static_cast<std::ptrdiff_t>(count), pieces().end());
  ProfileText text;
  text.m_shared = std::make_shared<const std::vector<Piece>>(std::move(together));
  return text;
}

ProfileText ProfileText::withNewSection(std::string_view section, const KeyValues& lines) const {
  std::string bytes(pieces().back().view().bytes);
  endLine(bytes);
  bytes.append("[").append(section).append("]").append(kLineEnd);
  for (const auto& [name, value] : lines)
    appendKeyLine(bytes, name, value);
  return withPieces(pieces().size() - 1, 1, std::move(bytes));
}

ProfileText ProfileText::withValue(std::string_view section, std::string_view key,
                                   std::string_view value) const {
  const std::size_t place = find(section);
  if (place == 0)
    return withNewSection(section, {{std::string(key), std::string(value)}});

  const SectionView lines = pieces()[place].view();
  const std::uint32_t begin = (*pieces()[place]).begin;
  std::uint32_t from = (*pieces()[place]).headerEnd; // what gives way to the line
  std::uint32_t to = from;
  std::string_view name = key;
  if (const Line* const line = findKey(lines, key)) {
    if (line->kind == Line::Kind::KeyValue && line->value == value)
      return *this;
    name = line->name;
    from = line->begin;
    to = line->end;
  } else {
    const Line* const behindKeys = behindLastKey(lines);
    if (behindKeys != lines.first)
      from = to = behindKeys[-1].end;
  }
  std::string bytes;
  bytes.reserve(lines.bytes.size() + name.size() + value.size() + 2 * kLineEnd.size() + 1);
  bytes = lines.bytes.substr(0, from - begin);
  endLine(bytes);
  appendKeyLine(bytes, name, value);
  bytes += lines.bytes.substr(to - begin);
  return bytes == lines.bytes ? *this : withPieces(place, 1, std::move(bytes));
}

ProfileText ProfileText::withoutSection(std::string_view section) const {
  const std::size_t place = find(section);
  if (place == 0)
    return *this;
  std::string bytes(pieces()[place - 1].view().bytes);
  for (const Line& line : pieces()[place].view())
    if (line.kind == Line::Kind::Comment)
      bytes += pieces()[place].bytesOf(line);
  return withPieces(place - 1, 2, std::move(bytes));
}

ProfileText ProfileText::withSectionLines(std::string_view section, const KeyValues& newLines) const {
  const std::size_t place = find(section);
  if (place == 0)
    return withNewSection(section, newLines);

  const Piece& piece = pieces()[place];
  const SectionView view = piece.view();
  const Line* const behindKeys = behindLastKey(view);
  std::string bytes(view.bytes.substr(0, (*piece).headerEnd - (*piece).begin));
  const auto append = [&](const Line& line) {
    endLine(bytes);
    bytes += piece.bytesOf(line);
  };
  std::unordered_set<std::string_view> written; // what a line without "=" would hide
  for (const auto& [name, value] : newLines)
    written.insert(name);
  std::unordered_map<std::string_view, const Line*> known;
  for (const Line* line = view.first; line != behindKeys; ++line) {
    if (line->kind == Line::Kind::KeyValue)
      known.emplace(line->name, line);
    else if (line->kind != Line::Kind::NameOnly || !written.contains(line->name))
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
  return bytes == view.bytes ? *this : withPieces(place, 1, std::move(bytes));
}

} // namespace hooptab
