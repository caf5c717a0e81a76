#include "catalogue/GameCatalogue.h"

#include "catalogue/CatalogueMerger.h"
#include "catalogue/GameFinder.h"
#include "catalogue/SummaryCache.h"
#include "catalogue/SummaryReader.h"
#include "checks/FindingWords.h"
#include "storage/codepage.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <numeric>
#include <system_error>
#include <thread>
#include <tuple>

namespace hooptab {

namespace {

// Reads the files that are not known already, on several threads, each with a reader of its own. Which thread
// takes which file is left to chance; what is made of the results is not.
class ParallelReading {
 public:
  ParallelReading(FileSystem& files, unsigned threads, const std::vector<std::string>& paths,
                  const SummaryCache& cache, const TaskWatch& watch)
      : m_paths(paths), m_cache(cache), m_watch(watch), m_results(paths.size()),
        m_readers(threads, SummaryReader(files)) {}

  void run() {
    std::vector<std::thread> helpers;
    for (std::size_t i = 1; i < m_readers.size(); ++i) {
      try {
        helpers.emplace_back(&ParallelReading::work, this, i);
      } catch (const std::system_error&) {
        break; // the system has no more threads; those there are do the work
      }
    }
    work(0);
    for (std::thread& helper : helpers)
      helper.join();
  }
  std::vector<FileSummary>& results() { return m_results; }
  // Those of each reader, and at last the cache's.
  std::vector<const NameTable::Lists*> names() const {
    std::vector<const NameTable::Lists*> names;
    for (const SummaryReader& reader : m_readers)
      names.push_back(&reader.names());
    names.push_back(&m_cache.names());
    return names;
  }

 private:
  void work(std::size_t reader) {
    SummaryReader& own = m_readers[reader];
    for (std::size_t next = m_next++; next < m_paths.size() && !m_watch.isCancelled(); next = m_next++) {
      FileSummary& result = m_results[next];
      try {
        if (m_cache.find(m_paths[next], result)) {
          result.reader = m_readers.size();
        } else {
          result.reader = reader;
          result.skipped = own.read(m_paths[next], result.game);
          result.stamp = own.stamp();
        }
      } catch (const std::exception&) { // no memory for one monstrous file
        result.skipped = SkipReason::Unreadable;
      }
      m_watch.advance();
    }
  }

  const std::vector<std::string>& m_paths;
  const SummaryCache& m_cache;
  const TaskWatch& m_watch;
  std::vector<FileSummary> m_results;
  std::vector<SummaryReader> m_readers;
  std::atomic<std::size_t> m_next = 0;
};

std::string_view fileName(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

// Places of the files that hold listed games, in the season's order.
std::vector<std::size_t> seasonOrder(const std::vector<FileSummary>& files) {
  std::vector<std::tuple<int, std::string_view, std::string_view, std::size_t>> games;
  for (std::size_t i = 0; i < files.size(); ++i) {
    const ListedGame& game = files[i].game;
    if (!files[i].skipped)
      games.emplace_back(game.day.value_or(std::numeric_limits<int>::max()), fileName(game.path), game.path,
                         i);
  }
  std::ranges::sort(games);
  std::vector<std::size_t> order;
  for (const auto& game : games)
    order.push_back(std::get<std::size_t>(game));
  return order;
}

} // namespace

Text skipReasonText(SkipReason reason) {
  switch (reason) {
  case SkipReason::NotFinished: return Text::NotFinished;
  case SkipReason::OtherVersion: return Text::NoHooptabGame;
  case SkipReason::Unreadable: return Text::CannotBeRead;
  case SkipReason::TooLarge: return Text::TooLarge;
  case SkipReason::Vanished: return Text::RemovedMeanwhile;
  }
  return Text::None;
}

ScanOutcome GameCatalogue::scan(const ScanRequest& request, const TaskWatch& watch) {
  FoundGames found = findGames(m_files, request, watch);
  if (found.outcome != ScanOutcome::Done)
    return found.outcome;

  constexpr unsigned kMostThreads = 16;
  const SummaryCache cache(m_files, request);
  ParallelReading reading(m_files, std::clamp(request.threads, 1U, kMostThreads), found.paths, cache, watch);
  reading.run();
  std::vector<FileSummary>& files = reading.results();
  if (!watch.isCancelled())
    cache.keep(found.paths, files, reading.names());
  const std::vector<std::size_t> order = seasonOrder(files);
  CatalogueMerger merger(reading.names(), order.size());
  for (const std::size_t i : order) {
    if (watch.isCancelled())
      break;
    merger.add(std::move(files[i].game), files[i].reader);
  }
  if (watch.isCancelled())
    return ScanOutcome::Cancelled;

  Content content = std::move(merger).finish();
  content.folder = request.folder;
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (files[i].skipped)
      content.skipped.push_back({found.paths[i], *files[i].skipped});
  }
  for (std::string& path : found.unreadablePaths)
    content.skipped.push_back({std::move(path), SkipReason::Unreadable});
  std::ranges::sort(content.skipped, std::less(), &SkippedFile::path);
  m_content = std::move(content);
  return ScanOutcome::Done;
}

std::string seasonTeamKey(std::string_view abbreviation, std::string_view category) {
  return std::string(abbreviation).append("-").append(category);
}

std::optional<SeasonId> GameCatalogue::teamOf(std::string_view key) const {
  auto found = std::ranges::find(m_content.teams, key, &SeasonTeam::key);
  if (found == m_content.teams.end()) {
    const std::string stored = codepage::fromUtf8(key);
    found = std::ranges::find_if(m_content.teams, [&](const SeasonTeam& team) {
      return codepage::equalNames(codepage::fromUtf8(team.key), stored);
    });
  }
  if (found == m_content.teams.end())
    return std::nullopt;
  return static_cast<SeasonId>(found - m_content.teams.begin());
}

std::string GameCatalogue::whyWrong(const ListedGame& game, const Texts& texts) const {
  Game names; // rosters are not kept: a player is his number
  for (const Side side : kSides)
    names.details.abbreviation[side] = teams()[game.team[side]].abbreviation;
  std::string text;
  for (const Finding& finding : game.wrong)
    text += (text.empty() ? "" : "; ") + wordsOf(finding, names, texts);
  if (game.wrongCount > game.wrong.size())
    text +=
        "; " + texts.withPlaceholder(Text::MoreFindings, std::to_string(game.wrongCount - game.wrong.size()));
  return text;
}

std::size_t GameCatalogue::wrongGames() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(games(), [](const ListedGame& game) { return game.wrongCount > 0; }));
}

std::size_t GameCatalogue::copies() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(m_content.games, [](const ListedGame& game) { return game.copyOf.has_value(); }));
}

std::vector<std::size_t> GameCatalogue::select(const GameCriteria& criteria) const {
  const std::optional<SeasonId> team = teamOf(criteria.team);
  const auto accepts = [&](const ListedGame& game) {
    if (!criteria.team.empty()) {
      const bool isAway = game.team[Side::Visitor] == team;
      const bool isHome = game.team[Side::Home] == team;
      const bool isWanted = criteria.where == GameCriteria::Where::Away   ? isAway
                            : criteria.where == GameCriteria::Where::Home ? isHome
                                                                          : isAway || isHome;
      if (!isWanted)
        return false;
    }
    if (criteria.fromDay || criteria.toDay) {
      if (!game.day || (criteria.fromDay && *game.day < *criteria.fromDay) ||
          (criteria.toDay && *game.day > *criteria.toDay))
        return false;
    }
    return (!criteria.leavesOutWrong || game.wrongCount == 0) &&
           (!criteria.type || game.type == *criteria.type) &&
           (!criteria.input || game.input == *criteria.input);
  };
  // The game, whichever of its files it was; its fullest file before all others.
  std::vector<bool> isCounted(m_content.games.size());
  std::vector<std::size_t> selected;
  for (std::size_t i = 0; i < m_content.games.size(); ++i) {
    const ListedGame& game = m_content.games[i];
    const std::size_t fullest = game.copyOf.value_or(i);
    const bool isTold = isCounted[fullest] || (game.copyOf && accepts(m_content.games[fullest]));
    if (!accepts(game) || (criteria.countsCopiesOnce && isTold))
      continue;
    isCounted[fullest] = true;
    selected.push_back(i);
  }
  return selected;
}

} // namespace hooptab
