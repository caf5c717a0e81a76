#include "storage/DelimitedText.h"

#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <functional>

namespace hooptab {

namespace {

constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kBlanks = "\t\r\n"; // control characters that a cell may hold

char separatorOf(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \r\n");
  if (first == std::string_view::npos)
    return ',';
  text.remove_prefix(first);
  // A quote opens only where a field can begin, or as the second of a doubled one: in 6'2" it is a letter.
  constexpr std::string_view kBeforeQuote = ",;\t\"";
  bool hasTab = false;
  bool hasSemicolon = false;
  bool isQuoted = false;
  char before = ','; // the last letter that is not a blank
  for (const char letter : text) {
    if (letter == '"')
      isQuoted = !isQuoted && kBeforeQuote.find(before) != std::string_view::npos;
    else if (!isQuoted && kLineEnds.find(letter) != std::string_view::npos)
      break;
    hasTab = hasTab || (!isQuoted && letter == '\t');
    hasSemicolon = hasSemicolon || (!isQuoted && letter == ';');
    if (letter != ' ')
      before = letter;
  }
  return hasTab ? '\t' : hasSemicolon ? ';' : ',';
}

std::string cleaned(std::string field) {
  constexpr unsigned char kFirstPrintable = 0x20;
  constexpr char kDelete = 0x7F;
  std::ranges::replace_if(
      field,
      [](char letter) { return static_cast<unsigned char>(letter) < kFirstPrintable || letter == kDelete; },
      ' ');
  return std::string(Module1::trimmed(field));
}

// "-5", "+12", "-0.5", "+3.2%"; behind the point or comma decimals.
bool isSignedNumber(std::string_view text) {
  text.remove_prefix(1);
  if (text.ends_with('%'))
    text.remove_suffix(1);
  const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
  const auto others = std::ranges::count_if(text, std::not_fn(isDigit));
  const bool hasPoint = others == 1 && text.find_first_of(".,") != std::string_view::npos;
  return (others == 0 || hasPoint) && std::ranges::any_of(text, isDigit);
}

// Spreadsheets run what begins with one of these, blanks before it passed over. What stands behind
// apostrophes of its own counts too: one more in front then tells the two apart.
bool needsApostrophe(std::string_view cell) {
  const std::size_t apostrophes = std::min(cell.find_first_not_of('\''), cell.size());
  cell.remove_prefix(apostrophes);
  // Read back, every blank is a space, and one that begins a cell is dropped.
  const std::string_view blanks = apostrophes > 0 ? " \t\r\n" : "\t\r\n";
  if (cell.empty() || blanks.find(cell.front()) != std::string_view::npos)
    return !cell.empty();
  cell = Module1::trimmed(cell);
  if (cell.empty() || std::string_view("=+-@").find(cell.front()) == std::string_view::npos)
    return false;
  const bool hasSign = cell.front() == '+' || cell.front() == '-';
  return !(hasSign && isSignedNumber(cell));
}

// "2.3", "-0.5", "45.2%".
bool isDecimal(std::string_view text) {
  const bool hasSign = text.starts_with('-') || text.starts_with('+');
  const std::size_t point = text.find('.');
  return !text.empty() && text.find(',') == std::string_view::npos && point != std::string_view::npos &&
         point > (hasSign ? 1U : 0U) && isSignedNumber(hasSign ? text : " " + std::string(text));
}

std::string safeCell(std::string_view text) {
  std::string cell;
  while (!text.empty()) {
    const CodePoint next = takeCodePoint(text);
    if (!isControl(next.value) || kBlanks.find(next.bytes) != std::string_view::npos)
      cell += next.bytes;
  }
  return needsApostrophe(cell) ? "'" + cell : cell;
}

class Reader {
 public:
  explicit Reader(std::string_view text) : m_text(text), m_separator(separatorOf(text)) {}

  std::vector<DelimitedRow> rows() {
    std::vector<DelimitedRow> rows;
    while (m_at < m_text.size()) {
      DelimitedRow row = nextRow();
      if (row.hasOpenQuote ||
          std::ranges::any_of(row.fields, [](const std::string& field) { return !field.empty(); }))
        rows.push_back(std::move(row));
    }
    return rows;
  }

 private:
  DelimitedRow nextRow() {
    DelimitedRow row;
    row.line = m_line;
    do
      row.fields.push_back(nextField(row.hasOpenQuote));
    while (take(m_separator));
    take('\r');
    take('\n');
    ++m_line;
    return row;
  }

  std::string nextField(bool& hasOpenQuote) {
    while (m_at < m_text.size() && m_text[m_at] == ' ')
      ++m_at;
    std::string field;
    if (m_at < m_text.size() && m_text[m_at] == '"')
      field = quoted(hasOpenQuote);
    const std::size_t end = std::min(m_text.find_first_of(m_ends, m_at), m_text.size());
    field.append(m_text.substr(m_at, end - m_at));
    m_at = end;
    return cleaned(std::move(field));
  }

  std::string quoted(bool& hasOpenQuote) {
    std::string field;
    int lines = 0;
    for (std::size_t at = m_at + 1; at < m_text.size(); ++at) {
      if (m_text[at] == '"' && at + 1 < m_text.size() && m_text[at + 1] == '"') {
        ++at;
      } else if (m_text[at] == '"') {
        if (!endsField(at + 1))
          break;
        m_at = at + 1;
        m_line += lines;
        return field;
      }
      const bool isLineFeedOfPair = m_text[at] == '\n' && m_text[at - 1] == '\r';
      if (!isLineFeedOfPair && kLineEnds.find(m_text[at]) != std::string_view::npos)
        ++lines;
      if (!isLineFeedOfPair)
        field.push_back(m_text[at]);
    }
    hasOpenQuote = true; // the quote is taken for a letter, and reading goes on at the next line
    return {};
  }

  bool endsField(std::size_t at) const {
    const std::size_t next = std::min(m_text.find_first_not_of(' ', at), m_text.size());
    return next == m_text.size() || m_ends.find(m_text[next]) != std::string::npos;
  }

  bool take(char letter) {
    if (m_at >= m_text.size() || m_text[m_at] != letter)
      return false;
    ++m_at;
    return true;
  }

  std::string_view m_text;
  char m_separator;
  const std::string m_ends{m_separator, '\r', '\n'};
  std::size_t m_at = 0;
  int m_line = 1;
};

} // namespace

std::vector<DelimitedRow> parseDelimited(std::string_view text) {
  if (text.starts_with(kByteOrderMark))
    text.remove_prefix(kByteOrderMark.size());
  return Reader(text).rows();
}

std::string csvRow(const std::vector<std::string>& cells, CsvReader reader) {
  const bool isFrench = reader == CsvReader::French;
  const std::string_view quoted = isFrench ? ";\t\"\r\n" : ",;\t\"\r\n";
  std::string row;
  for (const std::string& each : cells) {
    if (&each != &cells.front())
      row.push_back(isFrench ? ';' : ',');
    std::string cell = safeCell(each);
    if (isFrench && isDecimal(cell))
      std::ranges::replace(cell, '.', ',');
    if (cell.find_first_of(quoted) == std::string::npos) {
      row.append(cell);
      continue;
    }
    row.push_back('"');
    for (const char letter : cell)
      row.append(letter == '"' ? 2 : 1, letter);
    row.push_back('"');
  }
  return row + "\r\n";
}

std::string_view heldByCell(std::string_view cell) {
  return cell.starts_with('\'') && needsApostrophe(cell) ? cell.substr(1) : cell;
}

} // namespace hooptab
