#include "exchange/SourceFiles.h"

#include "bbgame/BbGameReader.h"
#include "bbgame/XmlDocument.h"
#include "livedata/EuroLeagueReader.h"
#include "livedata/JsonDocument.h"
#include "livedata/LiveStatsReader.h"
#include "livedata/NbaLiveReader.h"
#include "storage/AtomicFile.h"
#include "storage/Module1.h"
#include "storage/StorageError.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <map>
#include <set>

namespace hooptab {

namespace {

std::string bytesOf(FileSystem& files, const std::string& path) {
  std::string bytes;
  FileStamp stamp;
  switch (readWholeFile(files, path, bytes, stamp, nullptr, kLargestSourceFile)) {
  case ReadOutcome::Read: return bytes;
  case ReadOutcome::Absent: throw UnreadableGame({Text::NoSuchFile});
  case ReadOutcome::TooLarge: throw UnreadableGame({Text::SourceTooLarge});
  case ReadOutcome::Failed: break;
  }
  throw UnreadableGame({Text::CannotBeReadGiveAFile});
}

// Markup begins with "<", in every encoding that is read, once marks, zeros and blanks are passed over.
bool isMarkup(std::string_view bytes) {
  using namespace std::string_view_literals;
  const std::size_t first = bytes.find_first_not_of("\xEF\xBB\xBF\xFF\xFE\0 \t\r\n"sv);
  return first != std::string_view::npos && bytes[first] == '<';
}

std::optional<SourcePart> partOf(std::string_view bytes) {
  if (isMarkup(bytes))
    return recogniseBbGame(XmlDocument(bytes));
  const Json document = parseJson(bytes);
  for (const auto recognise : {recogniseLiveStats, recogniseEuroLeague, recogniseNbaLive}) {
    if (std::optional<SourcePart> part = recognise(document))
      return part;
  }
  return std::nullopt;
}

struct Source {
  std::string path;
  SourcePart part;
  std::size_t place = 0; // among all that were given
  bool isTaken = false;
};

// The id of a game, or its two teams in whatever order: of shots nobody can tell whose home it was, and where
// one team alone has shot they name that one.
std::set<std::string_view> namesIn(std::string_view game) {
  std::set<std::string_view> names;
  for (const std::size_t place : {1U, 2U}) {
    if (const std::string_view name = Module1::field(game, place, '/'); !name.empty())
      names.insert(name);
  }
  return names;
}

// Whether two files can be of one game. Of a team's many games the same players were listed in some: then the
// files of each name no player whom the other does not list.
bool fit(const Source& playByPlay, const Source& other) {
  const SourcePart& rows = playByPlay.part;
  const SourcePart& part = other.part;
  const std::set<std::string_view> all = namesIn(rows.game);
  const std::set<std::string_view> some = namesIn(part.game);
  if (rows.format != part.format || some.empty() ||
      !(part.role == SourceRole::Points ? std::ranges::includes(all, some) : all == some))
    return false;
  if (rows.players.empty() || part.players.empty())
    return true;
  return part.role == SourceRole::Box ? std::ranges::includes(part.players, rows.players)
                                      : std::ranges::includes(rows.players, part.players);
}

SourceGroup groupOf(const Source& source) {
  return {{source.path}, source.part.format, {source.part.role}, {}, {}};
}

ExchangeNote problemOf(const std::vector<SourceGroup::Choice>& choices) {
  if (choices.empty())
    return {};
  const std::vector<std::string>& files = choices.front().files;
  return {Text::FitsTwoWays, files[0], files[1]};
}

class Joining {
 public:
  Joining(FileSystem& files, std::vector<Source> sources) : m_files(files), m_sources(std::move(sources)) {
    for (Source& source : m_sources) {
      for (const std::string_view name : namesIn(source.part.game))
        m_named[{source.part.format, name}].push_back(&source);
    }
  }

  // With the place of the first file of each.
  std::vector<std::pair<std::size_t, SourceGroup>> groups() {
    std::vector<std::pair<std::size_t, SourceGroup>> groups;
    for (Source& source : m_sources) {
      if (source.part.role == SourceRole::Whole)
        groups.emplace_back(source.place, groupOf(source));
      else if (source.part.role == SourceRole::PlayByPlay)
        groups.push_back(groupAround(source));
    }
    for (const Source& source : m_sources) {
      if (source.isTaken || (source.part.role != SourceRole::Box && source.part.role != SourceRole::Points))
        continue;
      groups.emplace_back(source.place, groupOf(source));
      groups.back().second.problem = {source.part.role == SourceRole::Box ? Text::BoxAlone
                                                                          : Text::PointsAlone};
    }
    return groups;
  }

 private:
  std::pair<std::size_t, SourceGroup> groupAround(Source& playByPlay) {
    std::size_t place = playByPlay.place;
    SourceGroup group = groupOf(playByPlay);
    for (const SourceRole role : {SourceRole::Box, SourceRole::Points}) {
      const std::vector<Source*> fitting = thoseFitting(playByPlay, role);
      if (fitting.size() > 1)
        group.choices.push_back({role, {}});
      for (Source* other : fitting) {
        other->isTaken = true;
        if (fitting.size() > 1) {
          group.choices.back().files.push_back(other->path);
          continue;
        }
        place = std::min(place, other->place);
        group.files.push_back(other->path);
        group.roles.push_back(role);
      }
    }
    group.problem = problemOf(group.choices);
    return {place, std::move(group)};
  }
  // All that share the game's id or one of its teams, each once: of a folder of years few others can fit.
  [[nodiscard]] std::set<Source*> near(const Source& source) const {
    std::set<Source*> all;
    for (const std::string_view name : namesIn(source.part.game)) {
      const std::vector<Source*>& named = m_named.at({source.part.format, name});
      all.insert(named.begin(), named.end());
    }
    return all;
  }
  // Where a file fits several play-by-plays, or one of these several files, the points decide.
  std::vector<Source*> thoseFitting(const Source& playByPlay, SourceRole role) {
    std::vector<Source*> fitting;
    for (Source* other : near(playByPlay)) { // in the order of the list, in which they stand in memory
      if (other->part.role == role && fit(playByPlay, *other))
        fitting.push_back(other);
    }
    const bool isShared = std::ranges::any_of(fitting, [&](const Source* other) {
      return std::ranges::any_of(near(*other), [&](const Source* each) {
        return each != &playByPlay && each->part.role == SourceRole::PlayByPlay && fit(*each, *other);
      });
    });
    if (isShared || fitting.size() > 1)
      std::erase_if(fitting, [&](const Source* other) { return !hasItsScore(playByPlay, *other); });
    return fitting;
  }
  // Whether the score to which the plays come is that of the box, and the shots are those of the plays.
  bool hasItsScore(const Source& playByPlay, const Source& other) {
    SourceGroup both = groupOf(playByPlay);
    both.files.push_back(other.path);
    both.roles.push_back(other.part.role);
    try {
      const ForeignGame game = readGroup(m_files, both);
      if (other.part.role == SourceRole::Points)
        return std::ranges::find(game.notes, Text::EuroLeagueLostShots, &ExchangeNote::text) ==
               game.notes.end();
      PerSide<int> points = {};
      for (const ForeignEvent& event : game.events) {
        const EventKind* kind =
            event.kind == ForeignKind::Event && event.isMade ? kindOf(event.code) : nullptr;
        if (kind != nullptr && event.doer.team)
          points[*event.doer.team] += kind->points;
      }
      return std::ranges::all_of(kSides, [&](Side team) {
        const auto official = game.teams[team].official.find("points");
        return official != game.teams[team].official.end() && official->second.value == points[team];
      });
    } catch (const UnreadableGame&) {
      return false;
    }
  }

  FileSystem& m_files;
  std::vector<Source> m_sources;
  std::map<std::pair<GameFormat, std::string_view>, std::vector<Source*>> m_named; // by id or team
};

} // namespace

SourceGroup withChosen(SourceGroup group, const std::string& file) {
  if (group.choices.empty())
    return group;
  const SourceGroup::Choice& choice = group.choices.front();
  if (!file.empty()) {
    if (std::ranges::find(choice.files, file) == choice.files.end())
      return group;
    group.files.push_back(file);
    group.roles.push_back(choice.role);
  }
  group.choices.erase(group.choices.begin());
  group.problem = problemOf(group.choices);
  return group;
}

std::vector<std::string> filesOf(const std::vector<std::string>& paths) {
  namespace fs = std::filesystem;
  std::vector<std::string> all;
  std::set<std::string> met;
  const auto add = [&](const fs::path& path) {
    std::error_code unknown;
    const fs::path canonical = fs::weakly_canonical(path, unknown);
    if (met.insert(unknown ? path.string() : canonical.string()).second)
      all.push_back(path.string());
  };
  for (const std::string& path : paths) {
    std::error_code none;
    if (!fs::is_directory(path, none)) {
      add(path);
      continue;
    }
    std::vector<fs::path> inside;
    for (fs::directory_iterator entry(path, none), end; !none && entry != end; entry.increment(none)) {
      std::error_code unknown;
      std::string extension = entry->path().extension().string();
      std::ranges::transform(extension, extension.begin(),
                             [](unsigned char letter) { return std::tolower(letter); });
      if (entry->is_regular_file(unknown) && (extension == ".json" || extension == ".xml"))
        inside.push_back(entry->path());
    }
    std::ranges::sort(inside);
    std::ranges::for_each(inside, add);
  }
  return all;
}

std::vector<SourceGroup> recogniseFiles(FileSystem& files, const std::vector<std::string>& paths,
                                        std::optional<GameFormat> wanted, const TaskWatch& watch) {
  std::vector<std::pair<std::size_t, SourceGroup>> groups;
  std::vector<Source> sources;
  for (std::size_t i = 0; i < paths.size() && !watch.isCancelled(); ++i) {
    ExchangeNote problem;
    try {
      const std::optional<SourcePart> part = partOf(bytesOf(files, paths[i]));
      if (!part)
        problem = {Text::NoKnownFormat};
      else if (wanted && part->format != *wanted)
        problem = {Text::OtherFormat, std::string(formatKey(part->format)), std::string(formatKey(*wanted))};
      else
        sources.push_back({paths[i], *part, i});
    } catch (const UnreadableGame& unreadable) {
      problem = unreadable.why();
    }
    if (problem)
      groups.push_back({i, {{paths[i]}, std::nullopt, {}, problem, {}}});
    watch.progress(i + 1, paths.size());
  }
  for (auto& group : Joining(files, std::move(sources)).groups())
    groups.push_back(std::move(group));
  std::ranges::stable_sort(groups, {}, [](const auto& group) { return group.first; });
  std::vector<SourceGroup> ordered;
  for (auto& group : groups)
    ordered.push_back(std::move(group.second));
  return ordered;
}

namespace {

// The file of that part; null where the group has none.
std::optional<Json> documentOf(FileSystem& files, const SourceGroup& group, SourceRole role) {
  const auto found = std::ranges::find(group.roles, role);
  if (found == group.roles.end())
    return std::nullopt;
  return parseJson(bytesOf(files, group.files[static_cast<std::size_t>(found - group.roles.begin())]));
}

const Json* pointerTo(const std::optional<Json>& document) {
  return document ? &*document : nullptr;
}

} // namespace

ForeignGame readGroup(FileSystem& files, const SourceGroup& group) {
  if (group.problem || !group.format)
    throw UnreadableGame(group.problem);
  if (*group.format == GameFormat::BbGame)
    return readBbGame(XmlDocument(bytesOf(files, group.files.front())));
  if (*group.format == GameFormat::LiveStats)
    return readLiveStats(parseJson(bytesOf(files, group.files.front())));
  const std::optional<Json> playByPlay = documentOf(files, group, SourceRole::PlayByPlay);
  const std::optional<Json> box = documentOf(files, group, SourceRole::Box);
  const std::optional<Json> points = documentOf(files, group, SourceRole::Points);
  ForeignGame game = *group.format == GameFormat::EuroLeague
                         ? readEuroLeague(*playByPlay, pointerTo(box), pointerTo(points))
                         : readNbaLive(*playByPlay, pointerTo(box));
  if (!box)
    game.notes.push_back({Text::PlayByPlayAlone});
  return game;
}

} // namespace hooptab
