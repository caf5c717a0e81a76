#include "recording/LastFive.h"

#include "game/PlayerLookup.h"
#include "recording/OnCourt.h"
#include "storage/AtomicFile.h"
#include "storage/codepage.h"

#include <algorithm>
#include <bit>
#include <filesystem>
#include <tuple>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

namespace fs = std::filesystem;

struct OtherGame {
  std::string date;
  std::string name; // of the file
  Side side = Side::Visitor;
  ProfileText text;
};

// The other games of the folder, those that were changed last first.
std::vector<std::string> otherGames(FileSystem& files, const std::string& path) {
  FileStamp own;
  (void)files.stamp(path, own);
  std::vector<std::pair<std::int64_t, std::string>> found;
  std::error_code error;
  const fs::path folder = fs::path(path).parent_path();
  fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    FileStamp stamp;
    if (isGameName(entry->path().native()) && files.stamp(entry->path().string(), stamp) && stamp.isRegular &&
        std::tie(stamp.device, stamp.inode) != std::tie(own.device, own.inode))
      found.emplace_back(stamp.modifiedNanoseconds, entry->path().string());
  }
  std::ranges::sort(found, std::greater());
  found.resize(std::min(found.size(), LastFive::kMostFiles));
  std::vector<std::string> paths;
  std::ranges::transform(found, std::back_inserter(paths), &std::pair<std::int64_t, std::string>::second);
  return paths;
}

// Which side that team was in the game; nothing where it was none.
std::optional<Side> sideIn(const ProfileText& text, const GameDetails& details, Side team) {
  for (const Side side : kSides) {
    const std::string prefix = "EQUIPE" + std::to_string(numberOf(side));
    const auto says = [&](const char* key, const std::string& wanted) {
      return text.value(kDetailsSection, prefix + key).value_or("") == codepage::fromUtf8(wanted);
    };
    if (says("ABB", details.abbreviation[team]) && says("CAT", details.category[team]))
      return side;
  }
  return std::nullopt;
}

// Of the first stop that has five of that side; nobody without one.
std::vector<ListedPlayer> firstFive(const Game& game, Side side) {
  for (const GameEvent& event : game.events) {
    if (!event.isUnderstood || event.isDeleted || event.code != EventCode::ARRET)
      continue;
    std::vector<ListedPlayer> listed = playersOnCourt(event.onCourt(side), game.roster[side]);
    if (listed.size() == kMostOnCourt)
      return listed;
  }
  return {};
}

unsigned entriesOf(const std::vector<ListedPlayer>& listed, const Roster& roster) {
  unsigned entries = 0;
  for (int entry = 1; entry <= Roster::kLargestEntry && roster.player(entry) != nullptr; ++entry) {
    const std::string& jersey = roster.player(entry)->jersey;
    const bool isListed = std::ranges::any_of(listed, [&](const ListedPlayer& other) {
      return other.jersey == jersey || Roster::areOneNumber(other.jersey, jersey);
    });
    entries |= isListed ? 1U << entry : 0U;
  }
  return entries;
}

} // namespace

std::optional<LastFive> LastFive::of(FileSystem& files, const Game& game, Side team) {
  const Roster& roster = game.roster[team];
  if (isTeamItself(roster))
    return std::nullopt;
  std::vector<OtherGame> others;
  for (const std::string& path : otherGames(files, game.path)) {
    std::string bytes;
    FileStamp stamp;
    if (readWholeFile(files, path, bytes, stamp) != ReadOutcome::Read)
      continue;
    ProfileText text(std::move(bytes));
    if (const auto found = isGame(text) ? sideIn(text, game.details, team) : std::nullopt)
      others.push_back({std::string(text.value(kDetailsSection, "DATE").value_or("")),
                        fs::path(path).filename().string(), *found, std::move(text)});
  }
  std::ranges::sort(others, [](const OtherGame& left, const OtherGame& right) {
    return std::tie(left.date, left.name) > std::tie(right.date, right.name);
  });
  for (const OtherGame& other : others) {
    Game last;
    readGame(other.text, last);
    const std::vector<ListedPlayer> listed = firstFive(last, other.side);
    if (listed.empty())
      continue;
    const unsigned players = entriesOf(listed, roster);
    if (std::popcount(players) != kMostOnCourt)
      return std::nullopt;
    return LastFive{players, jerseysOnCourt(roster.listOf(players), roster), last.details.date,
                    last.details.abbreviation[otherSide(other.side)]};
  }
  return std::nullopt;
}

} // namespace hooptab
