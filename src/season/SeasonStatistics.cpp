#include "season/SeasonStatistics.h"

#include <algorithm>
#include <limits>
#include <set>
#include <tuple>

namespace hooptab {

namespace {

constexpr std::size_t kNoGame = std::numeric_limits<std::size_t>::max();

void addTo(BoxNumbers& sum, const GameRow& row) {
  sum.counters += row.counters;
  sum.seconds += row.seconds;
}

std::int16_t sumOf(int one, int other) {
  return static_cast<std::int16_t>(std::min<int>(one + other, std::numeric_limits<std::int16_t>::max()));
}

// A line has none.
std::optional<PlayerExtras> extrasOf(const GameRow& player) {
  return player.extras;
}
std::optional<PlayerExtras> extrasOf(const LineRow&) {
  return std::nullopt;
}

// What a line saw of a game, as part of the sums of whoever was in it.
void addTo(CourtShare& sum, const LineRow& line) {
  sum.seconds += line.seconds;
  sum.counters[kOwnSide] += line.counters;
  sum.counters[otherSide(kOwnSide)] += line.opponents;
  sum.possessions[kOwnSide] += line.possessions[line.side];
  sum.possessions[otherSide(kOwnSide)] += line.possessions[otherSide(line.side)];
}

// Calls for each line that was seen from the row at a place: of a player those he was in, of a line itself.
template <class Call>
void forLinesOf(const ListedGame& game, const std::vector<GameRow>&, std::size_t player, const Call& call) {
  for (const LineRow& line : game.lines) {
    if (line.has(player))
      call(line);
  }
}
template <class Call>
void forLinesOf(const ListedGame&, const std::vector<LineRow>& lines, std::size_t line, const Call& call) {
  call(lines[line]);
}

// Unequal for any two rows, so that the order is one.
auto rankKey(const SeasonRow& row) {
  return std::tuple(-row.numbers.points(), -row.numbers.rating(), row.nameOrder, std::string_view(row.name),
                    row.id);
}

} // namespace

void addExtras(std::optional<PlayerExtras>& sum, const std::optional<PlayerExtras>& added) {
  if (!added)
    return;
  const PlayerExtras before = sum.value_or(PlayerExtras());
  sum = PlayerExtras{sumOf(before.foulsDrawn, added->foulsDrawn),
                     sumOf(before.blocksAgainst, added->blocksAgainst)};
}

CourtShare wholeOfGame(const ListedGame& game, Side side) {
  CourtShare whole;
  if (!game.isFromEvents())
    return whole;
  for (const GameRow& row : game.players)
    whole.counters[row.side == side ? kOwnSide : otherSide(kOwnSide)] += row.counters;
  whole.possessions[kOwnSide] = game.possessions[side];
  whole.possessions[otherSide(kOwnSide)] = game.possessions[otherSide(side)];
  whole.seconds = game.seconds;
  return whole;
}

SeasonStatistics::SeasonStatistics(const GameCatalogue& catalogue, std::vector<std::size_t> games,
                                   const Shown& shown, const TaskWatch& watch)
    : m_catalogue(&catalogue), m_games(std::move(games)) {
  const std::optional<SeasonId> team = catalogue.teamOf(shown.team);
  if (!shown.team.empty() && !team)
    return; // nobody's rows
  joinLabels();
  constexpr std::size_t kSums = 3; // of teams, players and lines
  watch.progress(0, kSums * m_games.size());
  sumTeams(team, watch);
  m_players = sumRows(&ListedGame::players, catalogue.players().size(), team, watch);
  m_lines = sumRows(&ListedGame::lines, catalogue.lines().size(), team, watch);
  if (watch.isCancelled())
    return;
  for (SeasonRow& row : m_players) {
    const SeasonPlayer& player = catalogue.players()[row.id];
    row.team = player.team;
    row.number = player.number;
    row.name = player.name;
    row.nameOrder = player.nameOrder;
  }
  if (shown.position)
    std::erase_if(m_players, [&](const SeasonRow& row) { return row.positions.back() != *shown.position; });
  std::vector<int> linesOfTeam(catalogue.teams().size());
  for (SeasonRow& row : m_lines) {
    const SeasonLine& line = catalogue.lines()[row.id];
    row.team = line.team;
    row.number = std::to_string(++linesOfTeam[line.team]);
    row.name = line.name;
    row.players = line.players;
  }
  std::vector<int> gamesOfTeam(catalogue.teams().size());
  for (const SeasonTeamRow& each : m_teams)
    gamesOfTeam[each.team] = each.games;
  for (std::vector<SeasonRow>* rows : {&m_players, &m_lines}) {
    for (SeasonRow& row : *rows)
      row.teamGames = gamesOfTeam[row.team];
    std::ranges::sort(*rows, std::less(), rankKey);
    int rank = 0;
    for (SeasonRow& row : *rows)
      row.rank = ++rank;
  }
}

void SeasonStatistics::joinLabels() {
  std::array<std::set<std::string>, 2> met;
  for (const std::size_t index : m_games) {
    for (std::size_t which = 0; which < met.size(); ++which) {
      const std::string& label = m_catalogue->games()[index].label[which];
      if (!label.empty() && met[which].insert(label).second)
        m_labels[which] += (m_labels[which].empty() ? "" : " / ") + label;
    }
  }
}

void SeasonStatistics::sumTeams(std::optional<SeasonId> shownTeam, const TaskWatch& watch) {
  std::vector<SeasonTeamRow> sums(m_catalogue->teams().size());
  std::vector<std::size_t> lastGame(sums.size(), kNoGame);
  for (const std::size_t index : m_games) {
    if (watch.isCancelled())
      return;
    watch.advance();
    const ListedGame& game = m_catalogue->games()[index];
    for (const Side side : kSides) {
      SeasonTeamRow& sum = sums[game.team[side]];
      sum.games += lastGame[game.team[side]] == index ? 0 : 1; // a team that plays itself plays one game
      lastGame[game.team[side]] = index;
      sum.pointsFor += game.points[side];
      sum.pointsAgainst += game.points[otherSide(side)];
      const std::optional<Side> winner = game.winner();
      sum.ownRebounds += game.teamRows[side].offensiveRebounds;
      sum.ownTurnovers += game.teamRows[side].turnovers;
      sum.counted += wholeOfGame(game, side);
      ++(!winner ? sum.ties : *winner == side ? sum.wins : sum.losses);
    }
    for (const GameRow& row : game.players) {
      addTo(sums[game.team[row.side]].numbers, row);
      addTo(sums[game.team[otherSide(row.side)]].opponents, row);
    }
  }
  for (std::size_t i = 0; i < sums.size(); ++i) {
    sums[i].team = static_cast<SeasonId>(i);
    if (sums[i].games > 0 && (!shownTeam || *shownTeam == i))
      m_teams.push_back(std::move(sums[i]));
  }
}

// In order of first appearance; names are the caller's.
template <class Row>
std::vector<SeasonRow> SeasonStatistics::sumRows(std::vector<Row> ListedGame::*rows, std::size_t ids,
                                                 std::optional<SeasonId> shownTeam,
                                                 const TaskWatch& watch) const {
  constexpr std::size_t kNoRow = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> place(ids, kNoRow);
  std::vector<std::size_t> lastGame;
  std::vector<SeasonRow> sums;
  for (const std::size_t index : m_games) {
    if (watch.isCancelled())
      break;
    watch.advance();
    const ListedGame& game = m_catalogue->games()[index];
    for (std::size_t i = 0; i < (game.*rows).size(); ++i) {
      const Row& row = (game.*rows)[i];
      if (row.id == kNobody || (shownTeam && game.team[row.side] != *shownTeam))
        continue;
      if (place[row.id] == kNoRow) {
        place[row.id] = sums.size();
        sums.emplace_back().id = row.id;
        lastGame.push_back(kNoGame);
      }
      const std::size_t at = place[row.id];
      SeasonRow& sum = sums[at];
      addTo(sum.numbers, row);
      addExtras(sum.extras, extrasOf(row));
      forLinesOf(game, game.*rows, i, [&sum](const LineRow& line) { addTo(sum.onCourt, line); });
      if (lastGame[at] != index) // 5 and 05 of one name are one player, also in one game
        ++sum.games;
      lastGame[at] = index;
      if (sum.positions.empty() || sum.positions.back() != row.position)
        sum.positions.push_back(row.position);
    }
  }
  return sums;
}

std::vector<GameResult> SeasonStatistics::resultsOfPlayer(SeasonId player, const TaskWatch& watch) const {
  return resultsOf(&ListedGame::players, player, watch);
}

std::vector<GameResult> SeasonStatistics::resultsOfLine(SeasonId line, const TaskWatch& watch) const {
  return resultsOf(&ListedGame::lines, line, watch);
}

template <class Row>
std::vector<GameResult> SeasonStatistics::resultsOf(std::vector<Row> ListedGame::*rows, SeasonId id,
                                                    const TaskWatch& watch) const {
  std::vector<GameResult> results;
  for (const std::size_t index : m_games) {
    if (watch.isCancelled())
      break;
    const ListedGame& game = m_catalogue->games()[index];
    for (std::size_t i = 0; i < (game.*rows).size(); ++i) {
      const Row& row = (game.*rows)[i];
      if (row.id != id)
        continue;
      if (results.empty() || results.back().game != index)
        results.push_back({index, row.side, {}, {}, {}});
      GameResult& result = results.back();
      addTo(result.numbers, row);
      addExtras(result.extras, extrasOf(row));
      forLinesOf(game, game.*rows, i, [&result](const LineRow& line) { addTo(result.onCourt, line); });
    }
  }
  return results;
}

} // namespace hooptab
