// What the files of a folder came to when they were read last, kept in a file of the user's cache folder, so
// that the next scan reads only those that changed since. A file is taken for unchanged where path, identity,
// size and time are the same, and it was not written only just before it was read. What was kept is believed
// only whole, and only by the very program that wrote it: a newer one may count differently. It is safe to
// delete, and whoever cannot read or write it goes without.
#pragma once

#include "catalogue/GameCatalogue.h"
#include "catalogue/NameTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace hooptab {

// What became of one file.
struct FileSummary {
  ListedGame game;
  std::optional<SkipReason> skipped;
  std::optional<FileStamp> stamp; // in which state it was read; nothing: it was not
  std::size_t reader = 0;         // whose numbers the game carries
  bool isFromCache = false;
};

class SummaryCache {
 public:
  // Reads what is kept of the folder; nothing where no cache folder is given.
  SummaryCache(FileSystem& files, const ScanRequest& request);

  // Fills in all but `reader` where the file stands as it was kept. May be asked by several threads.
  [[nodiscard]] bool find(const std::string& path, FileSummary& summary) const;
  // Whose numbers the games carry that were found.
  const NameTable::Lists& names() const { return m_names; }

  // Keeps what a scan has found, unless it is nearly what is kept already: reading few files anew costs less
  // than writing all. `names` has the names of each reader.
  void keep(const std::vector<std::string>& paths, const std::vector<FileSummary>& summaries,
            const std::vector<const NameTable::Lists*>& names) const;

 private:
  struct Kept {
    FileStamp stamp;
    std::uint64_t hash = 0; // of the bytes, which are looked at only when they are asked for
    std::string_view bytes; // in m_bytes
  };
  bool read();
  [[nodiscard]] bool isWorthKeeping(const FileSummary& summary) const;
  void write(std::string_view bytes) const;

  FileSystem& m_files;
  std::string m_folder, m_path; // empty: nothing is kept
  std::int64_t m_began = 0;     // nanoseconds
  std::string m_bytes;
  NameTable::Lists m_names;
  std::unordered_map<std::string_view, Kept> m_kept; // by path
};

} // namespace hooptab
