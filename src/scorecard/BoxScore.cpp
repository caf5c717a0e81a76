#include "scorecard/BoxScore.h"

#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cstdio>

namespace hooptab {

namespace {

// What a column shows of a row: a text of the row, or a number computed from its counters.
enum class Cell : std::uint8_t {
  Number,
  Name,
  Time,
  TimeSort,
  Position,
  Rating,
  Made,
  Attempted,
  Percent, // of all kinds
  Points,  // of all kinds
  Count,
  KindPercent,
  KindPoints,
};

struct Content {
  Cell cell;
  Counter counter = Counter::FGM; // Count: which; KindPercent and KindPoints: the kind's made counter
};

constexpr int kNarrow = 1058;
constexpr int kPercentWidth = 1499;
constexpr int kPointsWidth = 1147;

constexpr BoxColumn count(int index, std::string_view name) {
  return {index, name, Text::None, kNarrow, false, false, name};
}
constexpr BoxColumn pair(int index, std::string_view name) {
  return {index, name, Text::None, kNarrow, false, true, name};
}
constexpr BoxColumn percent(int index, std::string_view name) {
  return {index, name, Text::None, kPercentWidth, false, false, name};
}
constexpr BoxColumn points(int index, std::string_view name) {
  return {index, "PTS", Text::None, kPointsWidth, false, false, name};
}

constexpr std::array<BoxColumn, kBoxColumnCount> kColumns = {{
    {1, "No", Text::None, kNarrow, true, false, "No"},
    {2, "Nom", Text::PlayerName, 3528, true, false, "Name"},
    {3, "Temps", Text::Time, 1587, false, false, "Time"},
    count(4, "PF"),
    pair(5, "M"),
    pair(6, "A"),
    percent(7, "%"),
    points(8, "PTS"),
    pair(9, "FGM"),
    pair(10, "FGA"),
    percent(11, "FG%"),
    points(12, "FGPTS"),
    pair(13, "F3M"),
    pair(14, "F3A"),
    percent(15, "F3%"),
    points(16, "F3PTS"),
    pair(17, "LLM"),
    pair(18, "LLA"),
    percent(19, "LL%"),
    points(20, "LLPTS"),
    pair(21, "FTM"),
    pair(22, "FTA"),
    percent(23, "FT%"),
    points(24, "FTPTS"),
    count(25, "Ast"),
    count(26, "BS"),
    count(27, "ST"),
    count(28, "TO"),
    count(29, "OR"),
    count(30, "DR"),
    count(31, "S1"),
    count(32, "S2"),
    {33, "TempsInv", Text::None, 0, false, false, "seconds"},
    {34, "Eff", Text::Rating, 1235, false, false, "rating"},
    pair(35, "LRM"),
    pair(36, "LRA"),
    percent(37, "LR%"),
    points(38, "LRPTS"),
    pair(39, "PBM"),
    pair(40, "PBA"),
    percent(41, "PB%"),
    points(42, "PBPTS"),
    {43, "Pos", Text::None, 1764, false, false, "Pos"},
    pair(44, "DKM"),
    pair(45, "DKA"),
    percent(46, "DK%"),
    points(47, "DKPTS"),
    count(48, "TF"),
}};

constexpr std::array<Content, kBoxColumnCount> kContents = {{
    {Cell::Number},
    {Cell::Name},
    {Cell::Time},
    {Cell::Count, Counter::PF},
    {Cell::Made},
    {Cell::Attempted},
    {Cell::Percent},
    {Cell::Points},
    {Cell::Count, Counter::FGM},
    {Cell::Count, Counter::FGA},
    {Cell::KindPercent, Counter::FGM},
    {Cell::KindPoints, Counter::FGM},
    {Cell::Count, Counter::F3M},
    {Cell::Count, Counter::F3A},
    {Cell::KindPercent, Counter::F3M},
    {Cell::KindPoints, Counter::F3M},
    {Cell::Count, Counter::LLM},
    {Cell::Count, Counter::LLA},
    {Cell::KindPercent, Counter::LLM},
    {Cell::KindPoints, Counter::LLM},
    {Cell::Count, Counter::FTM},
    {Cell::Count, Counter::FTA},
    {Cell::KindPercent, Counter::FTM},
    {Cell::KindPoints, Counter::FTM},
    {Cell::Count, Counter::Ast},
    {Cell::Count, Counter::BS},
    {Cell::Count, Counter::ST},
    {Cell::Count, Counter::TO},
    {Cell::Count, Counter::OR},
    {Cell::Count, Counter::DR},
    {Cell::Count, Counter::S1},
    {Cell::Count, Counter::S2},
    {Cell::TimeSort},
    {Cell::Rating},
    {Cell::Count, Counter::LRM},
    {Cell::Count, Counter::LRA},
    {Cell::KindPercent, Counter::LRM},
    {Cell::KindPoints, Counter::LRM},
    {Cell::Count, Counter::PBM},
    {Cell::Count, Counter::PBA},
    {Cell::KindPercent, Counter::PBM},
    {Cell::KindPoints, Counter::PBM},
    {Cell::Position},
    {Cell::Count, Counter::DKM},
    {Cell::Count, Counter::DKA},
    {Cell::KindPercent, Counter::DKM},
    {Cell::KindPoints, Counter::DKM},
    {Cell::Count, Counter::TF},
}};

const EventKind& kindOfMade(Counter made) {
  return *std::ranges::find_if(kEventKinds,
                               [&](const EventKind& kind) { return kind.isShot && kind.counter == made; });
}

struct Ratio {
  int made;
  int attempted;
};

Ratio ratioOf(const BoxNumbers& numbers, const Content& content) {
  if (content.cell == Cell::Percent)
    return {numbers.made(), numbers.attempted()};
  return {numbers.counters[content.counter], numbers.counters[kindOfMade(content.counter).attempts]};
}

int numberOf(const BoxNumbers& numbers, const Content& content) {
  switch (content.cell) {
  case Cell::Time:
  case Cell::TimeSort: return numbers.seconds;
  case Cell::Rating: return numbers.rating();
  case Cell::Made: return numbers.made();
  case Cell::Attempted: return numbers.attempted();
  case Cell::Points: return numbers.points();
  case Cell::Count: return numbers.counters[content.counter];
  case Cell::KindPoints: return numbers.counters[content.counter] * kindOfMade(content.counter).points;
  default: return 0;
  }
}

const Content& contentOf(int column) {
  return kContents[static_cast<std::size_t>(column - 1)];
}

template <class Number>
int sumOfShots(ShotKinds kinds, Number number) {
  int sum = 0;
  for (std::size_t i = 0; i < kEventKinds.size(); ++i) {
    if ((kinds & (1U << i)) != 0)
      sum += number(kEventKinds[i]);
  }
  return sum;
}

// "4-5-10-12-15": the jerseys of an on-court list as the roster writes them.
std::string lineName(std::string_view list, const Roster& roster) {
  std::string name;
  for (const std::string_view jersey : Module1::countedJerseys(list)) {
    if (!name.empty())
      name += '-';
    const RosterPlayer* player = roster.player(roster.entryOfListed(jersey));
    name += player != nullptr ? std::string_view(player->jersey) : jersey;
  }
  return name;
}

// Collects rows, and in the total every entry, whether it has a row or not.
class Rows {
 public:
  template <class Entry>
  void add(BoxRow row, const Entry& entry, bool isShown) {
    row.numbers.counters += entry.counters;
    row.numbers.seconds = std::max(entry.seconds, 0);
    m_total.counters += entry.counters;
    m_total.seconds += row.numbers.seconds;
    if (isShown)
      m_rows.push_back(std::move(row));
  }
  std::vector<BoxRow> withTotal(const Texts& texts) && {
    m_rows.push_back(
        {BoxRowKind::Total, -1, {}, std::string(texts.text(Text::Total)), kPositionWithoutName, m_total});
    return std::move(m_rows);
  }

 private:
  std::vector<BoxRow> m_rows;
  BoxNumbers m_total;
};

} // namespace

double jerseySortValue(std::string_view jersey) {
  constexpr double kBehindNumbers = 1e10;
  constexpr double kBehindAll = 1e15;
  if (jersey.empty())
    return kBehindAll;
  if (const int number = Module1::wholeNumber(jersey); number >= 0)
    return number + static_cast<double>(jersey.size()) / 16; // at most nine digits, so below the next number
  double letters = 0;
  for (std::size_t i = 0; i < 4; ++i)
    letters = letters * 256 + (i < jersey.size() ? static_cast<unsigned char>(jersey[i]) : 0);
  return kBehindNumbers + letters;
}

BoxCounters& BoxCounters::operator+=(const Counters& added) {
  for (std::size_t i = 0; i < kCounterCount; ++i)
    counts[i] += added.counts[i];
  return *this;
}

int BoxNumbers::made(ShotKinds kinds) const {
  return sumOfShots(kinds, [this](const EventKind& kind) { return counters[kind.counter]; });
}
int BoxNumbers::attempted(ShotKinds kinds) const {
  return sumOfShots(kinds, [this](const EventKind& kind) { return counters[kind.attempts]; });
}
int BoxNumbers::points(ShotKinds kinds) const {
  return sumOfShots(kinds, [this](const EventKind& kind) { return counters[kind.counter] * kind.points; });
}
int BoxNumbers::rebounds() const {
  return counters[Counter::OR] + counters[Counter::DR];
}

int BoxNumbers::rating() const {
  const int good =
      points() + rebounds() + counters[Counter::Ast] + counters[Counter::ST] + counters[Counter::BS];
  return good - ((attempted() - made()) + counters[Counter::TO]);
}

std::vector<BoxRow> boxRows(const Game& game, const GameState& state, int team, BoxView view,
                            const Texts& texts) {
  const auto side = static_cast<std::size_t>(team);
  const Roster& roster = game.roster[side];
  const auto& players = state.players[side];
  const auto& lines = state.lines[side];
  Rows rows;
  if (view == BoxView::Players) {
    for (int i = 1; i <= Roster::kLargestEntry; ++i) {
      if (const RosterPlayer* player = roster.player(i))
        rows.add(
            {BoxRowKind::Player, i, player->jersey, player->name, positionText(player->position, texts), {}},
            players[static_cast<std::size_t>(i)], true);
    }
    rows.add(
        {BoxRowKind::OtherPlayers, 0, {}, std::string(texts.text(Text::Others)), kPositionWithoutName, {}},
        players[0], players[0].counters.hasAny());
  } else {
    for (int i = 1; i <= state.usedLines[side]; ++i) {
      const LineEntry& line = lines[static_cast<std::size_t>(i)];
      rows.add(
          {BoxRowKind::Line, i, std::to_string(i), lineName(line.list, roster), kPositionWithoutName, {}},
          line, line.seconds > 0 || line.counters.hasAny());
    }
    rows.add(
        {BoxRowKind::OtherLines, 0, {}, std::string(texts.text(Text::OtherLines)), kPositionWithoutName, {}},
        lines[0], lines[0].counters.hasAny());
  }
  return std::move(rows).withTotal(texts);
}

std::string_view boxRowKey(const BoxRow& row) {
  switch (row.kind) {
  case BoxRowKind::Player: return row.number;
  case BoxRowKind::Line: return row.name;
  default: return {};
  }
}

std::span<const BoxColumn, kBoxColumnCount> boxColumns() {
  return kColumns;
}

const std::array<int, kBoxColumnCount>& boxDisplayOrder() {
  // The columns are moved one after another, each to its place among those that stand there by then.
  static const auto kOrder = [] {
    constexpr std::pair<int, int> kMoves[] = {
        {43, 3},  {48, 6},  {34, 7},  {21, 20}, {22, 21}, {23, 22}, {24, 23}, {35, 28}, {36, 29}, {37, 30},
        {38, 31}, {39, 32}, {40, 33}, {41, 34}, {42, 35}, {44, 36}, {45, 37}, {46, 38}, {47, 39}};
    std::vector<int> columns;
    for (int column = 1; column <= kBoxColumnCount; ++column)
      columns.push_back(column);
    for (const auto& [column, position] : kMoves) {
      columns.erase(std::ranges::find(columns, column));
      columns.insert(columns.begin() + position - 1, column);
    }
    std::array<int, kBoxColumnCount> result = {};
    std::ranges::copy(columns, result.begin());
    return result;
  }();
  return kOrder;
}

std::string boxCell(const BoxRow& row, int column) {
  const Content& content = contentOf(column);
  switch (content.cell) {
  case Cell::Number: return row.number;
  case Cell::Name: return row.name;
  case Cell::Position: return row.position;
  case Cell::Time: return Module1::clockText(row.numbers.seconds);
  case Cell::TimeSort: {
    char text[16];
    std::snprintf(text, sizeof text, "%06d", row.numbers.seconds);
    return text;
  }
  case Cell::Percent:
  case Cell::KindPercent: {
    const Ratio ratio = ratioOf(row.numbers, content);
    return Module1::percentText(ratio.made, ratio.attempted);
  }
  default: return std::to_string(numberOf(row.numbers, content));
  }
}

double boxSortValue(const BoxRow& row, int column) {
  const Content& content = contentOf(column);
  switch (content.cell) {
  case Cell::Number: return jerseySortValue(row.number);
  case Cell::Percent:
  case Cell::KindPercent: {
    const Ratio ratio = ratioOf(row.numbers, content);
    return ratio.attempted > 0 ? static_cast<double>(ratio.made) / ratio.attempted
                               : -1; // no attempt comes below 0 %
  }
  default: return numberOf(row.numbers, content);
  }
}

bool boxColumnIsText(int column) {
  const Cell cell = contentOf(column).cell;
  return cell == Cell::Name || cell == Cell::Position;
}

} // namespace hooptab
