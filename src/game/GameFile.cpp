#include "game/GameFile.h"

#include "game/PlayerIds.h"
#include "game/WallClock.h"
#include "storage/Module1.h"
#include "storage/cinifile.h"
#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <set>

namespace hooptab {

namespace {

constexpr std::string_view kPeriodPrefix = "PERIODE";
constexpr PerSide<std::string_view> kRosterSections = {"0", "1"};
constexpr int kHighestPeriodRead = 999'999'999; // whatever longer number a section has

} // namespace

std::string periodSection(int period) {
  return std::string(kPeriodPrefix) + std::to_string(period);
}

std::string rosterSection(Side team) {
  return std::string(kRosterSections[team]);
}

std::string playerValue(const RosterPlayer& player) {
  return std::to_string(player.position) + "," + player.name;
}

namespace {

// What every reader gets of a value.
std::string_view readable(std::string_view value) {
  return value.substr(0, cinifile::kLongestValue);
}
// Eight bytes at a time: a season's text goes through it.
bool isAscii(std::string_view text) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  std::uint64_t all = 0;
  std::size_t place = 0;
  for (std::uint64_t word = 0; place + sizeof word <= text.size(); place += sizeof word) {
    std::memcpy(&word, text.data() + place, sizeof word);
    all |= word;
  }
  for (; place < text.size(); ++place)
    all |= static_cast<unsigned char>(text[place]);
  return (all & kHighBits) == 0;
}

// Which lines of a section are its keys: the first of each name. Numbers that grow, as recording writes them,
// need no look-up; only from the first one that does not, names are remembered.
class FirstKeys {
 public:
  explicit FirstKeys(ProfileText::SectionView lines) : m_lines(lines) {}

  bool isFirst(const ProfileText::Line& line) {
    if (line.name.empty())
      return false;
    m_number = std::max(Module1::wholeNumber(line.name), 0);
    if (!m_remembers && m_number > m_highest && line.name.front() != '0') {
      m_highest = m_number;
      return true;
    }
    if (!m_remembers)
      rememberAllBefore(line);
    return m_names.insert(folded(line.name)).second;
  }
  int number() const { return m_number; } // of the line asked about last; 0 when its name is no number

 private:
  static std::string folded(std::string_view name) {
    std::string text(name);
    std::ranges::transform(text, text.begin(), [](char letter) {
      return static_cast<char>(codepage::foldCase(static_cast<unsigned char>(letter)));
    });
    return text;
  }
  void rememberAllBefore(const ProfileText::Line& line) {
    m_remembers = true;
    for (const ProfileText::Line* before = m_lines.begin(); before != &line; ++before)
      m_names.insert(folded(before->name));
  }

  ProfileText::SectionView m_lines;
  int m_number = 0;
  int m_highest = 0;
  bool m_remembers = false;
  std::set<std::string> m_names;
};

void readRoster(const ProfileText& text, std::string_view section, Roster& roster) {
  const ProfileText::SectionView lines = text.section(section);
  FirstKeys keys(lines);
  for (const ProfileText::Line& line : lines) {
    if (!keys.isFirst(line) || line.kind != ProfileText::Line::Kind::KeyValue)
      continue;
    const std::string_view value = readable(line.value);
    const std::string_view position = Module1::field(value, 1);
    // The name is all that follows: a comma in it was written by hand and belongs to it.
    const std::string_view name = value.substr(std::min(position.size() + 1, value.size()));
    roster.add({codepage::toUtf8(line.name), Module1::leadingNumber(position), codepage::toUtf8(name)});
  }
}

struct PeriodSection {
  int period = 0;
  ProfileText::NamedSection section;
};

// The sections of periods, ascending. Those behind the last period that a game can have are read, too.
std::vector<PeriodSection> periodsOf(const ProfileText& text) {
  std::vector<PeriodSection> periods;
  for (ProfileText::NamedSection& section : text.sections()) {
    if (const std::optional<int> period = periodOfSection(section.name))
      periods.push_back({*period, std::move(section)});
  }
  // Numbers without zeros in front, however long: the shorter is the smaller.
  std::ranges::sort(periods, {}, [](const PeriodSection& period) {
    const std::string_view digits = period.section.name.substr(kPeriodPrefix.size());
    return std::pair(digits.size(), digits);
  });
  return periods;
}

void readEvents(const ProfileText& text, EventList& events) {
  for (const auto& [period, section] : periodsOf(text)) {
    EventList::Filling filling(events, period, section.bytes,
                               static_cast<std::size_t>(section.lines.end() - section.lines.begin()));
    const bool allAscii = isAscii(section.lines.bytes);
    FirstKeys keys(section.lines);
    for (const ProfileText::Line& line : section.lines) {
      if (!keys.isFirst(line) || line.kind != ProfileText::Line::Kind::KeyValue)
        continue;
      const std::string_view value = readable(line.value);
      if (allAscii || (isAscii(line.value) && isAscii(line.name)))
        filling.append(line.name, keys.number(), value, line.value.size() - value.size());
      else
        filling.appendOwned(codepage::toUtf8(line.name), codepage::toUtf8(line.value));
    }
  }
}

int highestNumber(const ProfileText& text) {
  int highest = 0;
  for (const PeriodSection& period : periodsOf(text)) {
    for (const ProfileText::Line& line : period.section.lines)
      highest = std::max(highest, Module1::leadingNumber(line.name));
  }
  return highest;
}

PeriodLines storedLines(const ProfileText::SectionView& section) {
  PeriodLines lines;
  FirstKeys keys(section);
  for (const ProfileText::Line& line : section) {
    if (keys.isFirst(line) && line.kind == ProfileText::Line::Kind::KeyValue)
      lines.emplace_back(line.name, line.value);
  }
  return lines;
}

std::string withoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

std::string eventLine(int clockSeconds, const std::string& eventText) {
  return Module1::clockText(clockSeconds) + withoutBlanks(eventText);
}

} // namespace

void readGame(const ProfileText& text, Game& game) {
  hooptab::readDetails(text, game.details);
  for (const Side team : kSides)
    readRoster(text, kRosterSections[team], game.roster[team]);
  readEvents(text, game.events);
  game.accepted = readAccepted(text);
}

AcceptedFindings readAccepted(const ProfileText& text) {
  AcceptedFindings accepted;
  for (const ProfileText::Line& line : text.section(kAcceptedSection)) {
    const int event = Module1::wholeNumber(line.name);
    if (line.kind != ProfileText::Line::Kind::KeyValue || event <= 0 || accepted.contains(event))
      continue;
    std::vector<int>& findings = accepted[event]; // none, where it was taken back
    for (std::string_view rest = readable(line.value); !rest.empty();) {
      const std::size_t end = std::min(rest.find(','), rest.size());
      if (const int finding = Module1::wholeNumber(rest.substr(0, end)); finding > 0)
        findings.push_back(finding);
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }
  return accepted;
}

EventLines storedEventLines(const ProfileText& text) {
  EventLines lines;
  for (const auto& [period, section] : periodsOf(text)) {
    for (PeriodLines::value_type& line : storedLines(section.lines))
      lines[period].push_back(std::move(line));
  }
  return lines;
}

int nextNumberOf(const ProfileText& text) {
  return highestNumber(text) + 1;
}

bool isGame(const ProfileText& text) {
  return text.value(kDetailsSection, "VERSION") == GameFile::kVersion;
}

std::optional<int> periodOfSection(std::string_view section) {
  if (section.size() <= kPeriodPrefix.size() ||
      !codepage::equalNames(section.substr(0, kPeriodPrefix.size()), kPeriodPrefix))
    return std::nullopt;
  const std::string_view digits = section.substr(kPeriodPrefix.size());
  if (digits.front() == '0' || digits.find_first_not_of("0123456789") != std::string_view::npos)
    return std::nullopt;
  const int number = Module1::wholeNumber(digits);
  return number < 0 ? kHighestPeriodRead : number;
}

bool isGameName(std::string_view name) {
  constexpr std::string_view kExtension = ".gam";
  return name.size() >= kExtension.size() &&
         std::ranges::equal(name.substr(name.size() - kExtension.size()), kExtension,
                            [](char left, char right) { return (left | 0x20) == (right | 0x20); });
}

GameFile::GameFile(ProfileStore& store, std::string path) : m_store(store), m_path(std::move(path)) {}

GameFileProblem GameFile::open() {
  m_read = m_store.read(m_path);
  switch (m_read.outcome) {
  case ReadOutcome::Absent: return GameFileProblem::Absent;
  case ReadOutcome::TooLarge: return GameFileProblem::TooLarge;
  case ReadOutcome::Failed: return GameFileProblem::Unreadable;
  case ReadOutcome::Read: break;
  }
  return isGame(text()) ? GameFileProblem::None : GameFileProblem::InvalidFormat;
}

// Every batch is decided upon what the file holds, which has been read just before.
GameFileProblem GameFile::write(const ProfileBatch& batch) {
  const ProfileWrite written = m_store.write(m_path, batch, m_read);
  if (!written.isOnDisk())
    return GameFileProblem::WriteFailed;
  m_read = written.left();
  return GameFileProblem::None;
}

GameFileProblem GameFile::validate() {
  return open();
}

GameFileProblem GameFile::read(Game& game) {
  if (const GameFileProblem problem = open(); problem != GameFileProblem::None)
    return problem;
  Game fresh;
  fresh.path = m_path;
  readGame(text(), fresh);
  game = std::move(fresh);
  return GameFileProblem::None;
}

GameFileProblem GameFile::readDetails(GameDetails& details) {
  if (const GameFileProblem problem = open(); problem != GameFileProblem::None)
    return problem;
  details = {};
  hooptab::readDetails(text(), details);
  return GameFileProblem::None;
}

namespace {

// A name that stands twice, too: of its sections only the first is seen, and deleting it would bring the next
// one to light.
void deleteWholly(std::string_view section, ProfileText text, ProfileBatch& batch) {
  for (; text.hasSection(section); text = text.withoutSection(section))
    batch.deleteSection(std::string(section));
}

} // namespace

GameFileProblem GameFile::create(const GameDetails& details, const std::vector<RosterPlayer>& visitors,
                                 const std::vector<RosterPlayer>& home) {
  ProfileBatch batch;
  m_read = m_store.read(m_path);
  for (const PeriodSection& period : periodsOf(text()))
    deleteWholly(period.section.name, text(), batch);
  // With all that was written for the game that stood here.
  for (const std::string_view section : {kRosterSections[Side::Visitor], kRosterSections[Side::Home],
                                         kDetailsSection, kAcceptedSection, kWallClockSection})
    deleteWholly(section, text(), batch);
  for (const Side team : kSides)
    deleteWholly(playerIdSection(team), text(), batch);

  GameDetails written = details;
  written.version = kVersion;
  if (written.id.empty())
    written.id = newGameId();
  writeNewDetails(written, batch);

  const PerSide<const std::vector<RosterPlayer>*> rosters = {&visitors, &home};
  for (const Side team : kSides) {
    const std::string section(kRosterSections[team]);
    for (const RosterPlayer& player : *rosters[team])
      batch.set(section, player.jersey, playerValue(player));
    if (rosters[team]->empty()) // the team itself is the one player
      batch.set(section, "0", "9," + details.abbreviation[team]);
  }
  if (details.inputType == 0)
    batch.set(periodSection(1), "1", eventLine(details.minutesPerPeriod * 60, stopText("IN-", "IN-")));
  return write(batch);
}

int GameFile::nextNumber() {
  return open() == GameFileProblem::None ? nextNumberOf(text()) : 0;
}

GameFileProblem GameFile::append(int period, int clockSeconds, int firstNumber,
                                 const std::vector<std::string>& eventTexts) {
  if (const GameFileProblem problem = validate(); problem != GameFileProblem::None)
    return problem;
  ProfileBatch batch;
  int number = firstNumber;
  for (const std::string& eventText : eventTexts)
    batch.set(periodSection(period), std::to_string(number++), eventLine(clockSeconds, eventText));
  batch.set(std::string(kDetailsSection), "EVENUM", std::to_string(number));
  return write(batch);
}

GameFileProblem GameFile::change(const std::vector<EventChange>& steps) {
  if (const GameFileProblem problem = open(); problem != GameFileProblem::None)
    return problem;
  ProfileBatch batch;
  return plan(steps, text(), batch) ? write(batch) : GameFileProblem::UnknownEvent;
}

namespace {

auto placeOf(PeriodLines& lines, std::string_view key) {
  return std::ranges::find(lines, key, &PeriodLines::value_type::first);
}

bool applyChange(const EventChange& change, PeriodLines& period) {
  const auto event = placeOf(period, change.key);
  const bool isThere = event != period.end();
  if (isThere == (change.kind == EventChange::Kind::Add))
    return false;
  if (!change.before.empty() && placeOf(period, change.before) == period.end())
    return false;
  if (change.kind == EventChange::Kind::Replace) {
    event->second = change.line;
    return true;
  }
  std::pair<std::string, std::string> placed(change.key, change.line);
  if (isThere) {
    if (change.before == change.key)
      return true;
    placed = std::move(*event);
    period.erase(event);
  }
  period.insert(change.before.empty() ? period.end() : placeOf(period, change.before), std::move(placed));
  return true;
}

} // namespace

bool GameFile::plan(const std::vector<EventChange>& steps, const ProfileText& text, ProfileBatch& batch) {
  EventLines lines; // in bytes of the file, so that what is not changed stays as it is
  std::set<int> reordered;
  int lowest = 0; // of the new events, as is
  int highest = 0;
  for (const EventChange& step : steps) {
    if (!lines.contains(step.period))
      lines[step.period] = storedLines(text.section(periodSection(step.period)));
    const bool isAtEnd = step.kind == EventChange::Kind::Add && step.before.empty();
    if (!isAtEnd && step.kind != EventChange::Kind::Replace)
      reordered.insert(step.period);
    if (step.kind == EventChange::Kind::Add) {
      const int number = Module1::leadingNumber(step.key);
      lowest = highest == 0 ? number : std::min(lowest, number);
      highest = std::max(highest, number);
    }
    EventChange stored = step;
    stored.line = codepage::fromUtf8(step.line);
    stored.key = codepage::fromUtf8(step.key);
    stored.before = codepage::fromUtf8(step.before);
    if (!applyChange(stored, lines[step.period]))
      return false;
  }

  for (const int period : reordered)
    batch.setStoredSectionLines(periodSection(period), lines[period]);
  for (const EventChange& step : steps) {
    if (!reordered.contains(step.period))
      batch.set(periodSection(step.period), step.key, step.line);
  }
  // New events take the number that EVENUM promises, and those behind it; only where they do not, what others
  // there are is looked at.
  if (highest > 0 && Module1::leadingNumber(text.value(kDetailsSection, "EVENUM").value_or("")) != lowest)
    highest = std::max(highestNumber(text), highest);
  if (highest > 0)
    batch.set(std::string(kDetailsSection), "EVENUM", std::to_string(highest + 1));
  return true;
}

void GameFile::planLines(int period, const std::vector<std::string>& lines, ProfileBatch& batch) {
  PeriodLines numbered;
  numbered.reserve(lines.size());
  for (const std::string& line : lines)
    numbered.emplace_back(std::to_string(numbered.size() + 1), line);
  batch.setSectionLines(periodSection(period), std::move(numbered));
  batch.set(std::string(kDetailsSection), "TERMINE", lines.empty() ? "0" : "1");
}

GameFileProblem GameFile::setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues) {
  if (const GameFileProblem problem = validate(); problem != GameFileProblem::None)
    return problem;
  ProfileBatch batch;
  for (const auto& [key, value] : keysAndValues)
    batch.set(std::string(kDetailsSection), key, value);
  return write(batch);
}

GameFileProblem GameFile::setDeleted(const std::vector<EventKey>& events, bool deleted) {
  if (const GameFileProblem problem = open(); problem != GameFileProblem::None)
    return problem;
  ProfileBatch batch;
  for (const EventKey& event : events) {
    const std::string section = periodSection(event.period);
    const auto stored = text().value(section, codepage::fromUtf8(event.key));
    if (!stored)
      return GameFileProblem::UnknownEvent;
    std::string line = codepage::toUtf8(*stored); // whole, however long
    if (line.starts_with('E') == deleted)
      continue;
    batch.set(section, event.key, deleted ? "E" + line : line.substr(1));
  }
  return batch.isEmpty() ? GameFileProblem::None : write(batch);
}

} // namespace hooptab
