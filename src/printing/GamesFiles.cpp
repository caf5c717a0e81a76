#include "printing/GamesFiles.h"

#include <optional>
#include <utility>

namespace hooptab {

std::size_t stepsOf(const GamesOrder& order) {
  const std::size_t files = (order.pdf.empty() ? 0U : 1U) + (order.workbook.empty() ? 0U : 1U);
  return order.games.size() * (1 + files); // each is read, and written to each
}

GamesOutcome writeGames(FileSystem& files, const GamesOrder& order, const Texts& texts,
                        const TaskWatch& watch) {
  watch.progress(0, stepsOf(order));
  GamePages games = gamePages(files, order.games, texts, watch);
  GamesOutcome outcome;
  outcome.passedOver = std::move(games.passedOver);
  outcome.hasGames = !games.pages.empty();
  if (!outcome.hasGames || watch.isCancelled())
    return outcome;
  if (!order.title.empty()) {
    for (Report& page : games.pages)
      page.title = order.title;
  }
  std::vector<std::pair<std::string, std::string>> contents;
  if (!order.pdf.empty())
    contents.emplace_back(order.pdf, pagesPdf(games.pages, games.pages.front().title, {order.paper}, watch));
  if (!order.workbook.empty()) {
    std::optional<std::string> bytes = pagesXlsx(games.summary, games.pages, games.names, watch);
    if (!bytes)
      return outcome;
    contents.emplace_back(order.workbook, std::move(*bytes));
  }
  if (!watch.commit())
    return outcome;
  outcome.isMade = true;
  for (auto& [path, bytes] : contents) {
    const std::size_t size = bytes.size();
    outcome.failed = writeFiles(files, path, {{{}, std::move(bytes)}});
    if (!outcome.failed.empty()) {
      outcome.problem = writeProblem(path, size);
      break;
    }
    outcome.written.push_back(path);
  }
  return outcome;
}

} // namespace hooptab
