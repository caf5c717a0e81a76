#include "checks/FileCheck.h"

#include "game/WallClock.h"
#include "storage/Module1.h"
#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>

namespace hooptab {

namespace {

constexpr std::string_view kPeriod = "PERIODE";

// Upper case, without blanks.
std::string plain(std::string_view name) {
  std::string text;
  for (const char letter : name) {
    if (letter != ' ')
      text += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  }
  return text;
}

// Whether the one becomes the other by changing, adding or leaving out one letter at most.
bool isOneLetterOff(std::string_view left, std::string_view right) {
  if (left.size() > right.size())
    std::swap(left, right);
  if (right.size() - left.size() > 1)
    return false;
  const auto differing = std::ranges::mismatch(left, right);
  const auto rest = std::string_view(differing.in1, left.end());
  const auto other = std::string_view(differing.in2, right.end());
  const std::string_view behind = other.substr(std::min<std::size_t>(1, other.size()));
  return rest == behind || rest.substr(std::min<std::size_t>(1, rest.size())) == behind;
}

// The section that a name of none of ours was probably meant to be.
std::optional<std::string> meant(std::string_view section) {
  const std::string name = plain(section);
  if (name.empty())
    return std::nullopt;
  const std::size_t digits = name.find_last_not_of("0123456789") + 1; // 0 for nothing but digits
  const std::size_t zeros = std::min(name.find_first_not_of('0', digits), name.size());
  if (digits == 0) // "01"
    return zeros + 1 >= name.size() && (zeros == name.size() || name.back() == '1')
               ? std::optional<std::string>(zeros == name.size() ? "0" : "1")
               : std::nullopt;
  if (zeros < name.size() && isOneLetterOff(name.substr(0, digits), kPeriod))
    return std::string(kPeriod) + name.substr(zeros);
  for (const std::string_view ours : {kDetailsSection, kAcceptedSection, kWallClockSection}) {
    if (isOneLetterOff(name, ours))
      return std::string(ours);
  }
  return std::nullopt;
}

bool isOurs(std::string_view section) {
  const auto isSame = [section](std::string_view ours) { return codepage::equalNames(section, ours); };
  return periodOfSection(section) ||
         std::ranges::any_of(std::array{kDetailsSection, kAcceptedSection, kWallClockSection}, isSame) ||
         isSame(rosterSection(Side::Visitor)) || isSame(rosterSection(Side::Home));
}

class FileCheck {
 public:
  FileCheck(const Game& game, const ProfileText& text, std::vector<Finding>& findings)
      : m_game(game), m_text(text), m_findings(findings) {}

  void run() {
    checkHeaders();
    for (const ProfileText::NamedSection& section : m_text.sections()) {
      if (isOurs(section.name))
        checkLines(section);
    }
    checkNextNumber();
  }

 private:
  void checkHeaders();
  void checkLines(const ProfileText::NamedSection& section);
  void checkRepeated(const ProfileText::NamedSection& section);
  void checkNextNumber();
  [[nodiscard]] std::size_t eventOf(int period, std::string_view key) const;
  void name(Finding finding) { m_findings.push_back(std::move(finding)); }

  const Game& m_game;
  const ProfileText& m_text;
  std::vector<Finding>& m_findings;
  int m_highest = 0; // number of an event
};

void FileCheck::checkHeaders() {
  std::unordered_set<std::string> seen;
  for (const std::string_view header : m_text.headers()) {
    if (!isOurs(header)) {
      if (const std::optional<std::string> ours = meant(header))
        name({.kind = FindingKind::NearlyOurs, .subject = codepage::toUtf8(header), .found = *ours});
    } else if (!seen.insert(plain(header)).second) {
      name({.kind = FindingKind::SectionTwice, .subject = codepage::toUtf8(header)});
    }
  }
}

void FileCheck::checkLines(const ProfileText::NamedSection& section) {
  const bool isPeriod = periodOfSection(section.name).has_value();
  int last = 0;
  bool mayRepeat = !isPeriod;
  for (const ProfileText::Line& line : section.lines) {
    if (line.kind == ProfileText::Line::Kind::NameOnly)
      name({.kind = FindingKind::NoEqualsSign,
            .subject = codepage::toUtf8(line.name),
            .found = codepage::toUtf8(section.name)});
    if (!isPeriod || line.kind != ProfileText::Line::Kind::KeyValue)
      continue;
    const int number = Module1::leadingNumber(line.name);
    m_highest = std::max(m_highest, number);
    mayRepeat = mayRepeat || number <= last; // numbers that grow repeat nothing
    last = number;
  }
  if (mayRepeat)
    checkRepeated(section);
}

// The second of two lines of one name is not read.
void FileCheck::checkRepeated(const ProfileText::NamedSection& section) {
  const std::optional<int> period = periodOfSection(section.name);
  const bool isRoster =
      section.name == rosterSection(Side::Visitor) || section.name == rosterSection(Side::Home);
  if (!period && !isRoster)
    return;
  std::unordered_set<std::string> seen;
  for (const ProfileText::Line& line : section.lines) {
    if (line.kind != ProfileText::Line::Kind::KeyValue || seen.insert(plain(line.name)).second)
      continue;
    if (isRoster)
      name({.kind = FindingKind::JerseyTwice,
            .team = section.name == rosterSection(Side::Visitor) ? Side::Visitor : Side::Home,
            .subject = codepage::toUtf8(line.name)});
    else
      name({.kind = FindingKind::NumberTwice,
            .event = eventOf(*period, codepage::toUtf8(line.name)),
            .subject = codepage::toUtf8(line.name)});
  }
}

std::size_t FileCheck::eventOf(int period, std::string_view key) const {
  const auto found = std::ranges::find_if(m_game.events, [&](const GameEvent& event) {
    return event.period == period && codepage::equalNames(event.key, key);
  });
  return found == m_game.events.end() ? Finding::kNoEvent
                                      : static_cast<std::size_t>(found - m_game.events.begin());
}

void FileCheck::checkNextNumber() {
  const bool isRequired = m_game.details.inputType == 0 && m_highest > 1; // a new game has none yet
  if (!isRequired && !m_text.value(kDetailsSection, "EVENUM"))
    return;
  const int next = m_game.details.nextEventNumber;
  if (next != m_highest + 1)
    name({.kind = next <= m_highest ? FindingKind::NumberTaken : FindingKind::NumbersAtEndMissing,
          .subject = std::to_string(next),
          .found = std::to_string(m_highest)});
}

} // namespace

void checkFile(const Game& game, const ProfileText& text, std::vector<Finding>& findings) {
  FileCheck(game, text, findings).run();
}

} // namespace hooptab
