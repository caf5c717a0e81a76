#include "catalogue/SummaryCache.h"

#include "catalogue/SummaryBytes.h"
#include "catalogue/SummaryFields.h"
#include "storage/AtomicFile.h"

#include <algorithm>
#include <filesystem>
#include <functional>

namespace hooptab {

namespace {

// At the head of the file; another form of what follows is another text.
constexpr std::string_view kForm = "HOOPTAB summaries 1\n";
constexpr std::int64_t kLargest = 256 * 1024 * 1024;
// The coarsest clock of a file system ticks so often: two writings within may look like one.
constexpr std::int64_t kSettledNanoseconds = 2'000'000'000;
constexpr std::size_t kFewChanges = 8;
constexpr std::size_t kShareOfChanges = 64;

std::uint64_t hashOf(std::string_view bytes) {
  return std::hash<std::string_view>()(bytes);
}

template <class Archive, class Stamp>
void visitStamp(Archive& archive, Stamp& stamp) {
  archive.number(stamp.device);
  archive.number(stamp.inode);
  archive.number(stamp.size);
  archive.number(stamp.modifiedNanoseconds);
}

// The rest of a stamp says nothing of what the file holds.
bool isSameContent(const FileStamp& one, const FileStamp& other) {
  return one.device == other.device && one.inode == other.inode && one.size == other.size &&
         one.modifiedNanoseconds == other.modifiedNanoseconds;
}

template <class Archive, class Lists>
void visitNames(Archive& archive, Lists& names) {
  archive.list(names.teams, [&](auto& team) {
    archive.text(team.abbreviation);
    archive.text(team.category);
    archive.text(team.name);
  });
  archive.list(names.players, [&](auto& player) {
    archive.number(player.team);
    archive.text(player.jersey);
    archive.text(player.name);
  });
  archive.list(names.lines, [&](auto& line) {
    archive.number(line.team);
    archive.list(line.jerseys, [&](auto& jersey) { archive.text(jersey); });
  });
}

bool isWhole(const NameTable::Lists& names) {
  const auto hasTeam = [&](const auto& named) { return named.team < names.teams.size(); };
  return std::ranges::all_of(names.players, hasTeam) && std::ranges::all_of(names.lines, hasTeam);
}

// The program that runs, by its file: nothing else tells one that counts alike from one that does not.
// Nothing where the system does not say: then nothing is kept.
std::optional<FileStamp> thisProgram(FileSystem& files) {
  FileStamp stamp;
  return files.stamp("/proc/self/exe", stamp) ? std::optional(stamp) : std::nullopt;
}

// 0 for a game.
std::uint8_t numberOf(const std::optional<SkipReason>& skipped) {
  return skipped ? static_cast<std::uint8_t>(static_cast<unsigned>(*skipped) + 1) : 0;
}

class GameReader : public ByteReader {
 public:
  GameReader(std::string_view bytes, const NameTable::Lists& names) : ByteReader(bytes), m_names(names) {}

  void team(SeasonId& id) { named(id, m_names.teams.size(), false); }
  void player(SeasonId& id) { named(id, m_names.players.size(), true); }
  void line(SeasonId& id) { named(id, m_names.lines.size(), true); }

 private:
  void named(SeasonId& id, std::size_t count, bool mayBeNobody) {
    number(id);
    require(id < count || (mayBeNobody && id == kNobody));
  }

  const NameTable::Lists& m_names;
};

// Gives the names of several readers numbers of their own in one list, each name once.
class JoinedNames {
 public:
  explicit JoinedNames(const std::vector<const NameTable::Lists*>& readers) {
    for (const NameTable::Lists* names : readers)
      m_readers.push_back({names, std::vector<SeasonId>(names->teams.size(), kNobody),
                           std::vector<SeasonId>(names->players.size(), kNobody),
                           std::vector<SeasonId>(names->lines.size(), kNobody)});
  }
  const NameTable::Lists& lists() const { return m_lists; }

  SeasonId team(std::size_t reader, SeasonId id) {
    SeasonId& known = m_readers[reader].teams[id];
    if (known == kNobody) {
      const NameTable::Team& team = m_readers[reader].names->teams[id];
      known = numberOf(m_lists.teams, team, {"T", team.abbreviation, team.category, team.name});
    }
    return known;
  }
  SeasonId player(std::size_t reader, SeasonId id) {
    if (id == kNobody)
      return id;
    SeasonId& known = m_readers[reader].players[id];
    if (known == kNobody) {
      NameTable::Player player = m_readers[reader].names->players[id];
      player.team = team(reader, player.team);
      known =
          numberOf(m_lists.players, player, {"P" + std::to_string(player.team), player.jersey, player.name});
    }
    return known;
  }
  SeasonId line(std::size_t reader, SeasonId id) {
    if (id == kNobody)
      return id;
    SeasonId& known = m_readers[reader].lines[id];
    if (known == kNobody) {
      NameTable::Line line = m_readers[reader].names->lines[id];
      line.team = team(reader, line.team);
      std::vector<std::string> key = line.jerseys;
      key.push_back("L" + std::to_string(line.team));
      known = numberOf(m_lists.lines, line, key);
    }
    return known;
  }

 private:
  // Of a reader's names, their numbers in the one list; kNobody while none was asked for.
  struct Reader {
    const NameTable::Lists* names;
    std::vector<SeasonId> teams, players, lines;
  };
  // The keys of teams, players and lines differ in their form.
  template <class Named>
  SeasonId numberOf(std::vector<Named>& list, const Named& named, const std::vector<std::string>& key) {
    std::string joined;
    for (const std::string& part : key)
      joined += part + "\n";
    const auto [place, isNew] = m_numbers.emplace(joined, static_cast<SeasonId>(list.size()));
    if (isNew)
      list.push_back(named);
    return place->second;
  }

  std::vector<Reader> m_readers;
  NameTable::Lists m_lists;
  std::unordered_map<std::string, SeasonId> m_numbers;
};

class GameWriter : public ByteWriter {
 public:
  GameWriter(JoinedNames& names, std::size_t reader) : m_names(names), m_reader(reader) {}

  void team(SeasonId id) { number(m_names.team(m_reader, id)); }
  void player(SeasonId id) { number(m_names.player(m_reader, id)); }
  void line(SeasonId id) { number(m_names.line(m_reader, id)); }

 private:
  JoinedNames& m_names;
  std::size_t m_reader;
};

} // namespace

SummaryCache::SummaryCache(FileSystem& files, const ScanRequest& request)
    : m_files(files), m_folder(request.cacheFolder) {
  if (m_folder.empty())
    return;
  const std::string scanned = request.folder + (request.withSubfolders ? "\n+" : "\n");
  m_path = m_folder + "/season-" + std::to_string(hashOf(scanned)) + ".summaries";
  m_began = files.nowNanoseconds();
  FileStamp stamp;
  if (readWholeFile(files, m_path, m_bytes, stamp, nullptr, kLargest) != ReadOutcome::Read || !read()) {
    m_kept.clear();
    m_names = {};
  }
}

// Form, hash of the list, the list, summaries. The list: program, names, and of each file its path, stamp,
// and hash and size of its summary.
bool SummaryCache::read() {
  std::string_view bytes = m_bytes;
  if (!bytes.starts_with(kForm))
    return false;
  ByteReader file(bytes.substr(kForm.size()));
  std::uint64_t hash = 0;
  file.number(hash);
  const std::string_view list = file.view();
  if (hash != hashOf(list))
    return false;
  ByteReader reader(list);
  FileStamp program;
  visitStamp(reader, program);
  const std::optional<FileStamp> running = thisProgram(m_files);
  if (!running || !isSameContent(program, *running))
    return false;
  visitNames(reader, m_names);
  std::uint32_t count = 0;
  reader.number(count);
  m_kept.reserve(std::min<std::size_t>(count, list.size()));
  for (std::uint32_t i = 0; i < count && !reader.isBroken(); ++i) {
    const std::string_view path = reader.view();
    Kept kept;
    std::size_t size = 0;
    visitStamp(reader, kept.stamp);
    reader.number(kept.hash);
    reader.number(size);
    kept.bytes = file.view(size);
    m_kept.emplace(path, kept);
  }
  return !reader.isBroken() && reader.isAtEnd() && !file.isBroken() && file.isAtEnd() && isWhole(m_names);
}

bool SummaryCache::find(const std::string& path, FileSummary& summary) const {
  const auto found = m_kept.find(path);
  FileStamp stamp;
  if (found == m_kept.end() || !m_files.stamp(path, stamp) || !isSameContent(stamp, found->second.stamp))
    return false;
  const Kept& known = found->second;
  if (hashOf(known.bytes) != known.hash)
    return false;
  GameReader reader(known.bytes, m_names);
  std::uint8_t skipped = 0;
  reader.number(skipped);
  if (skipped == 0)
    visitGame(reader, summary.game);
  else
    summary.skipped = static_cast<SkipReason>(skipped - 1);
  if (reader.isBroken() || !reader.isAtEnd()) {
    summary = {};
    return false;
  }
  summary.game.path = path;
  summary.stamp = stamp;
  summary.isFromCache = true;
  return true;
}

bool SummaryCache::isWorthKeeping(const FileSummary& summary) const {
  return summary.isFromCache ||
         (summary.stamp && m_began - summary.stamp->modifiedNanoseconds >= kSettledNanoseconds);
}

void SummaryCache::keep(const std::vector<std::string>& paths, const std::vector<FileSummary>& summaries,
                        const std::vector<const NameTable::Lists*>& names) const {
  if (m_path.empty())
    return;
  const auto known = static_cast<std::size_t>(std::ranges::count_if(summaries, &FileSummary::isFromCache));
  const auto kept = static_cast<std::size_t>(
      std::ranges::count_if(summaries, [this](const FileSummary& each) { return isWorthKeeping(each); }));
  const std::size_t changes = (kept - known) + (m_kept.size() - known);
  if (changes <= kFewChanges + m_kept.size() / kShareOfChanges)
    return;

  JoinedNames joined(names);
  std::string games;
  ByteWriter index;
  index.number(static_cast<std::uint32_t>(kept));
  for (std::size_t i = 0; i < summaries.size(); ++i) {
    const FileSummary& summary = summaries[i];
    if (!isWorthKeeping(summary))
      continue;
    GameWriter game(joined, summary.reader);
    game.number(numberOf(summary.skipped));
    if (!summary.skipped)
      visitGame(game, summary.game);
    index.text(paths[i]);
    visitStamp(index, *summary.stamp);
    index.number(hashOf(game.bytes()));
    index.number(game.bytes().size());
    games += game.bytes();
  }
  ByteWriter head;
  const std::optional<FileStamp> program = thisProgram(m_files);
  if (!program)
    return;
  visitStamp(head, *program);
  visitNames(head, joined.lists());
  const std::string list = head.bytes() + index.bytes();
  ByteWriter file;
  file.number(hashOf(list));
  file.text(list);
  const std::string all = std::string(kForm) + file.bytes() + games;
  if (std::int64_t(all.size()) <= kLargest) // more could not be read again
    write(all);
}

// Names of players are in it: others have no business there.
void SummaryCache::write(std::string_view bytes) const {
  std::error_code failed;
  std::filesystem::create_directories(m_folder, failed);
  if (!failed)
    std::filesystem::permissions(m_folder, std::filesystem::perms::owner_all, failed);
  FileStamp written;
  (void)replaceWholeFile(m_files, m_path, bytes, written); // what is not kept is read again
}

} // namespace hooptab
