#include "catalogue/SummaryReader.h"

#include "checks/GameCheck.h"
#include "court/CourtGeometry.h"
#include "game/RuleSets.h"
#include "game/Tally.h"
#include "settings/ChoiceTexts.h"
#include "settings/Settings.h"
#include "storage/AtomicFile.h"
#include "storage/CalendarDay.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace hooptab {

namespace {

constexpr int kPracticeType = 0; // the first that has a name

std::uint8_t wholePlace(float place, double limit) {
  return static_cast<std::uint8_t>(std::clamp(static_cast<double>(place), 0.0, limit));
}

// Two games of a day between the same teams do not begin with so many equal events.
constexpr std::size_t kEventsOfBeginning = 16;

// Of the events as they stand in the file, deleted ones included: two files with equal ones are one game, and
// so are two that begin alike. Eight bytes at a time, for all text of a season goes through it.
struct Fingerprints {
  std::uint64_t whole = 0;
  std::uint64_t beginning = 0; // of the first events; 0 where there are fewer
};
Fingerprints fingerprintsOf(const EventList& events) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
  std::uint64_t print = 0;
  std::uint64_t beginning = 0;
  std::size_t count = 0;
  const auto mix = [&print](std::uint64_t word) {
    print = (print ^ word) * kFactor;
    print ^= print >> 29U;
  };
  for (const GameEvent& event : events) {
    std::string_view rest = event.line;
    mix((static_cast<std::uint64_t>(event.period) << 32U) + rest.size());
    for (; !rest.empty(); rest.remove_prefix(std::min(rest.size(), sizeof(std::uint64_t)))) {
      std::uint64_t word = 0;
      std::memcpy(&word, rest.data(), std::min(rest.size(), sizeof word));
      mix(word);
    }
    if (++count == kEventsOfBeginning)
      beginning = print;
  }
  return {print, beginning};
}

// The counts of a game are as wide as the tally keeps them.
std::int16_t narrowed(int count) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(
      std::clamp(count, static_cast<int>(Limits::min()), static_cast<int>(Limits::max())));
}
Counters narrowed(const BoxCounters& counters) {
  Counters result;
  std::ranges::transform(counters.counts, result.counts.begin(),
                         [](std::int32_t count) { return narrowed(count); });
  return result;
}
PerSide<std::int16_t> narrowed(const PerSide<int>& counts) {
  return {narrowed(counts[Side::Visitor]), narrowed(counts[Side::Home])};
}

// Empty for a label that stands for none: "---".
std::string labelOf(const std::string& stored) {
  std::string label = Settings::shownLabel(stored);
  return label.find_first_not_of("- ") == std::string::npos ? std::string() : label;
}

InputKind inputOf(const GameDetails& details) {
  switch (details.inputType) {
  case 0: return details.minutesPerPeriod > 0 ? InputKind::Live : InputKind::LiveWithoutTime;
  case 1: return InputKind::Manual;
  default: return InputKind::Other;
  }
}

} // namespace

std::optional<SkipReason> SummaryReader::read(const std::string& path, ListedGame& game) {
  std::string bytes;
  FileStamp stamp;
  m_stamp.reset();
  switch (readWholeFile(m_files, path, bytes, stamp)) {
  case ReadOutcome::Absent: return SkipReason::Vanished;
  case ReadOutcome::TooLarge: return SkipReason::TooLarge;
  case ReadOutcome::Failed: return SkipReason::Unreadable;
  case ReadOutcome::Read: break;
  }
  m_stamp = stamp;
  const ProfileText text(std::move(bytes));
  if (text.value(kDetailsSection, "VERSION") != GameFile::kVersion)
    return SkipReason::OtherVersion;
  if (text.value(kDetailsSection, "TERMINE") != "1")
    return SkipReason::NotFinished;

  Game source;
  readGame(text, source);
  game.path = path;
  const auto outOfRange = summarise(source, game);
  game.isPractice = game.type == kPracticeType && !text.value(kDetailsSection, "TYPE").value_or("").empty();
  check(source, text, outOfRange, game);
  return std::nullopt;
}

void SummaryReader::check(const Game& source, const ProfileText& text,
                          const std::optional<CountOutOfRange>& outOfRange, ListedGame& game) {
  constexpr std::size_t kTold = 3;
  std::vector<Finding> findings = checkGame(source, text, outOfRange);
  std::erase_if(findings, [](const Finding& finding) { return !finding.isWrong(); });
  game.wrongCount = findings.size();
  if (findings.size() > kTold)
    findings.resize(kTold);
  game.wrong = std::move(findings);
}

std::optional<CountOutOfRange> SummaryReader::summarise(const Game& source, ListedGame& game) {
  const GameDetails& details = source.details;
  const auto outOfRange =
      Tally::run(m_state, source.events, source.roster[Side::Visitor], source.roster[Side::Home]);
  if (outOfRange)
    game.outOfRange = details.abbreviation[outOfRange->team] + " " + outOfRange->what;
  game.date = details.date;
  game.day = calendarDay(details.date);
  game.place = details.place;
  game.type = gameTypeOf(details.type);
  game.ruleSet = ruleSetOf(details.ruleSet) != nullptr ? details.ruleSet : std::string();
  game.input = inputOf(details);
  for (std::size_t which = 0; which < game.label.size(); ++which)
    game.label[which] = labelOf(details.statisticLabel[which]);
  const Fingerprints prints = fingerprintsOf(source.events);
  game.fingerprint = prints.whole;
  game.eventCount = source.events.size();
  // Games that were entered by hand may begin alike by chance.
  game.beginning = game.input == InputKind::Live && prints.beginning != 0 ? prints.beginning : prints.whole;
  for (std::size_t i = 0; i < game.leadSeconds.size(); ++i)
    game.leadSeconds[i] = std::max(m_state.lead.seconds[i], 0);
  const auto usedLines =
      static_cast<std::size_t>(m_state.usedLines[Side::Visitor] + m_state.usedLines[Side::Home]);
  game.players.reserve(2 * GameState::kPlayerEntries);
  game.lines.reserve(usedLines);
  for (const Side side : kSides) {
    game.team[side] = m_names.team(details, side);
    game.teamNumber[side] = details.teamId[side];
    game.teamColour[side] = details.teamColour[side];
    game.points[side] = m_state.points(side);
    addPlayers(source.roster[side], side, game);
  }
  const GameInsight insight = insightOf(source);
  game.overtimes =
      game.isFromEvents() && details.periods > 0 ? std::max(m_state.period - details.periods, 0) : 0;
  game.teamRows = m_state.teamRows;
  game.possessions = insight.whole.possessions;
  game.seconds = std::max(insight.whole.seconds, 0);
  game.origins = insight.origins;
  for (const Side side : kSides) {
    game.starters |= rowsOf(side, unsigned{insight.starters[side]} & unsigned{m_state.wereOnCourt[side]});
    addLines(source.roster[side], side, insight, game);
  }
  addPeriods(details.periods, game);
  addShots(game);
  return outOfRange;
}

void SummaryReader::addPeriods(int periods, ListedGame& game) const {
  constexpr int kMost = GameState::kPeriodRows - 2; // the last row is of all behind
  const int last = std::min({periods, kMost, m_state.period});
  for (int period = 1; game.isFromEvents() && period <= last; ++period) {
    const std::size_t row = GameState::periodRow(period);
    game.periodPoints.push_back(
        {m_state.periods[Side::Visitor][row].points, m_state.periods[Side::Home][row].points});
  }
}

void SummaryReader::addPlayers(const Roster& roster, Side side, ListedGame& game) {
  for (std::size_t entry = 0; entry < GameState::kPlayerEntries; ++entry) {
    const RosterPlayer* player = roster.player(static_cast<int>(entry));
    const PlayerEntry& counted = m_state.players[side][entry];
    m_codes[side][entry] = player != nullptr ? m_names.jerseyCode(player->jersey) : 0;
    const bool wasOnCourt = player != nullptr && (m_state.wereOnCourt[side] & (1U << entry)) != 0;
    if (!wasOnCourt && !counted.counters.hasAny())
      continue;
    m_rows[side][entry] = static_cast<std::uint8_t>(game.players.size());
    GameRow& row = game.players.emplace_back();
    row.seconds = std::max(counted.seconds, 0);
    row.counters = counted.counters;
    row.side = side;
    row.extras = m_state.extras[side][entry];
    if (player != nullptr) {
      row.id = m_names.player(game.team[side], player->jersey, player->name);
      const bool isKnown = player->position >= 0 && player->position < kChoiceCount;
      row.position = static_cast<std::uint8_t>(isKnown ? player->position : kChoiceCount);
    }
  }
}

void SummaryReader::addLines(const Roster& roster, Side side, const GameInsight& insight, ListedGame& game) {
  m_ofLines.assign(GameState::kLineEntries, {});
  for (const Matchup& matchup : insight.matchups)
    m_ofLines[static_cast<std::size_t>(matchup.line[side])] += matchup.share;
  const auto used = static_cast<std::size_t>(m_state.usedLines[side]);
  for (std::size_t i = 1; i <= used; ++i) {
    const LineEntry& line = m_state.lines[side][i];
    const CourtShare& share = m_ofLines[i];
    const bool isTold = line.seconds > 0 || line.counters.hasAny();
    if (!isTold && share.isEmpty())
      continue;
    LineRow& row = game.lines.emplace_back();
    if (isTold)
      row.id = m_names.line(lineKey(roster, side, i, game.team[side]));
    row.seconds = std::max(line.seconds, 0);
    row.counters = line.counters;
    row.side = side;
    row.opponents = narrowed(share.counters[otherSide(side)]);
    row.possessions = narrowed(share.possessions);
    row.members = rowsOf(side, m_state.lineMembers[side][i]);
  }
  if (used + 1 == GameState::kLineEntries)
    addUntoldLines(side, insight, game);
}

// A game has a hundred lines of a team; of those behind, each player keeps his own share.
void SummaryReader::addUntoldLines(Side side, const GameInsight& insight, ListedGame& game) const {
  for (std::size_t entry = 1; entry < GameState::kPlayerEntries; ++entry) {
    CourtShare rest = insight.players[side][entry];
    for (std::size_t i = 1; i < GameState::kLineEntries; ++i) {
      if ((m_state.lineMembers[side][i] & (1U << entry)) != 0)
        rest -= m_ofLines[i];
    }
    if (rest.isEmpty())
      continue;
    LineRow& row = game.lines.emplace_back();
    row.seconds = std::max(rest.seconds, 0);
    row.counters = narrowed(rest.counters[side]);
    row.side = side;
    row.opponents = narrowed(rest.counters[otherSide(side)]);
    row.possessions = narrowed(rest.possessions);
    row.members = rowsOf(side, 1U << entry);
  }
}

std::uint32_t SummaryReader::rowsOf(Side side, unsigned members) const {
  std::uint32_t rows = 0;
  for (std::size_t entry = 1; entry < GameState::kPlayerEntries; ++entry) {
    if ((members & (1U << entry)) != 0)
      rows |= 1U << m_rows[side][entry];
  }
  return rows;
}

NameTable::LineKey SummaryReader::lineKey(const Roster& roster, Side side, std::size_t line, SeasonId team) {
  NameTable::LineKey key;
  key.team = team;
  // At its place in ascending order, once.
  const auto add = [&key](NameTable::JerseyCode code) {
    std::uint32_t place = 0;
    while (place < key.count && key.jerseys[place] < code)
      ++place;
    if (key.count == key.jerseys.size() || (place < key.count && key.jerseys[place] == code))
      return;
    for (std::uint32_t i = key.count++; i > place; --i)
      key.jerseys[i] = key.jerseys[i - 1];
    key.jerseys[place] = code;
  };
  const unsigned members = m_state.lineMembers[side][line];
  if ((members & 1U) != 0) { // somebody is in no roster: the list tells who
    for (const std::string_view jersey : Module1::countedJerseys(m_state.lines[side][line].list)) {
      const int entry = roster.entryOfListed(jersey);
      const int number = Module1::wholeNumber(jersey);
      add(entry > 0     ? m_codes[side][static_cast<std::size_t>(entry)]
          : number >= 0 ? m_names.jerseyCode(std::to_string(number)) // a list adds zeros in front
                        : m_names.jerseyCode(jersey));
    }
  } else {
    for (std::size_t entry = 1; entry < GameState::kPlayerEntries; ++entry) {
      if ((members & (1U << entry)) != 0)
        add(m_codes[side][entry]);
    }
  }
  return key;
}

void SummaryReader::addShots(ListedGame& game) const {
  game.shots.reserve(m_state.shots.size());
  for (const Shot& shot : m_state.shots)
    game.shots.push_back({wholePlace(shot.x, court::kLength), wholePlace(shot.y, court::kWidth),
                          m_rows[shot.team][shot.player], shot.isThree, shot.isMade, shot.hasPlace});
}

} // namespace hooptab
