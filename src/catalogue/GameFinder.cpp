#include "catalogue/GameFinder.h"

#include "game/GameFile.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

namespace hooptab {

namespace {

namespace fs = std::filesystem;

class Finder {
 public:
  Finder(FileSystem& files, const ScanRequest& request, const TaskWatch& watch)
      : m_files(files), m_request(request), m_watch(watch) {}

  FoundGames find() && {
    if (const std::error_code error = list(m_request.folder)) {
      m_found.outcome = error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory
                            ? ScanOutcome::FolderMissing
                            : ScanOutcome::FolderUnreadable;
      return std::move(m_found);
    }
    while (!m_folders.empty() && !m_watch.isCancelled()) {
      const std::string folder = std::move(m_folders.back());
      m_folders.pop_back();
      if (list(folder))
        m_found.unreadablePaths.push_back(folder);
    }
    if (m_watch.isCancelled())
      m_found.outcome = ScanOutcome::Cancelled;
    std::ranges::sort(m_found.paths);
    return std::move(m_found);
  }

 private:
  std::error_code list(const std::string& folder) {
    FileStamp stamp;
    if (m_request.withSubfolders && m_files.stamp(folder, stamp) &&
        !m_entered.emplace(stamp.device, stamp.inode).second)
      return {};
    std::error_code error;
    std::vector<std::string> subfolders;
    fs::directory_iterator entry(folder, error);
    for (const fs::directory_iterator end; !error && entry != end && !m_watch.isCancelled();
         entry.increment(error)) {
      std::error_code vanished; // an entry that cannot be asked is neither
      if (isGameName(entry->path().native()) && entry->is_regular_file(vanished)) {
        m_found.paths.push_back(entry->path().string());
        m_watch.progress(0, m_found.paths.size());
      } else if (m_request.withSubfolders && entry->is_directory(vanished)) {
        subfolders.push_back(entry->path().string());
      }
    }
    // Taken from the end: the first by name is entered first, whatever order the disk has.
    std::ranges::sort(subfolders, std::greater());
    m_folders.insert(m_folders.end(), subfolders.begin(), subfolders.end());
    return error;
  }

  FileSystem& m_files;
  const ScanRequest& m_request;
  const TaskWatch& m_watch;
  FoundGames m_found;
  std::vector<std::string> m_folders; // still to be entered
  std::set<std::pair<std::uint64_t, std::uint64_t>> m_entered;
};

} // namespace

FoundGames findGames(FileSystem& files, const ScanRequest& request, const TaskWatch& watch) {
  return Finder(files, request, watch).find();
}

} // namespace hooptab
