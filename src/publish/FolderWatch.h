// Tells which files of some folders have changed, as soon as they have.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace hooptab {

class FolderWatch {
 public:
  // The folders themselves, and the folders of files. What cannot be watched is passed over: isWatching().
  explicit FolderWatch(const std::vector<std::string>& paths);
  ~FolderWatch();
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  [[nodiscard]] bool isWatching() const { return !m_folders.empty(); }
  // Waits so long at most, or until something has changed or a signal came: the paths of what has.
  [[nodiscard]] std::vector<std::string> wait(std::chrono::milliseconds longest);

 private:
  int m_watch; // of the system's
  std::map<int, std::string> m_folders;
};

} // namespace hooptab
