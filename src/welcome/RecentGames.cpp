#include "welcome/RecentGames.h"

#include "checks/GameCheck.h"
#include "game/Tally.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace hooptab {

namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;

bool lacksItsEnd(const Finding& finding) {
  switch (finding.kind) {
  case FindingKind::TooFewPeriods:
  case FindingKind::NumbersAtEndMissing:
  case FindingKind::GameWithoutStop: return true;
  default: return false;
  }
}

// `state` is large, and kept for the next game.
RecentGame readOne(ProfileStore& store, const std::string& path, GameState& state) {
  RecentGame result;
  result.path = path;
  Game game;
  GameFile file(store, path);
  result.problem = file.read(game);
  if (result.problem != GameFileProblem::None)
    return result;
  (void)Tally::run(state, game.events, game.roster[Side::Visitor],
                   game.roster[Side::Home]); // a count at its limit is told elsewhere
  const GameDetails& details = game.details;
  result.date = details.date;
  for (const Side team : kSides)
    result.teams[team] = {details.abbreviation[team], details.teamColour[team], state.points(team)};
  result.isFinished = details.isFinished;
  result.mayBeCut = details.isFinished && std::ranges::any_of(checkGame(game, file.text(), {}), lacksItsEnd);
  result.hasPeriods = details.inputType == 0;
  result.hasTime = result.hasPeriods && details.minutesPerPeriod > 0;
  result.period = state.period;
  result.regularPeriods = details.periods;
  result.clockSeconds = state.clockSeconds;
  result.events = static_cast<std::size_t>(
      std::ranges::count(game.events, false, [](const GameEvent& event) { return event.isDeleted; }));
  if (FileStamp stamp; store.files().stamp(path, stamp))
    result.changed = stamp.modifiedNanoseconds / kNanoseconds;
  return result;
}

} // namespace

RecentGames readRecentGames(FileSystem& files, const std::vector<std::string>& paths,
                            const TaskWatch& watch) {
  RecentGames result;
  ProfileStore store(files);
  const auto state = std::make_unique<GameState>();
  for (const std::string& path : paths) {
    if (watch.isCancelled() || result.others.size() == RecentGames::kMostOthers)
      break;
    RecentGame game = readOne(store, path, *state);
    if (game.problem == GameFileProblem::Absent)
      continue;
    if (game.problem == GameFileProblem::None && !game.isFinished && !result.unfinished)
      result.unfinished = std::move(game);
    else
      result.others.push_back(std::move(game));
  }
  return result;
}

} // namespace hooptab
