#include "publish/FolderWatch.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>

namespace hooptab {

FolderWatch::FolderWatch(const std::vector<std::string>& paths)
    : m_watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  constexpr unsigned kChanges = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE;
  for (const std::string& path : paths) {
    std::error_code error;
    std::string folder = path;
    if (!std::filesystem::is_directory(path, error))
      folder = path.find('/') == std::string::npos ? "." : path.substr(0, path.rfind('/') + 1);
    const int number = m_watch < 0 ? -1 : inotify_add_watch(m_watch, folder.c_str(), kChanges);
    // Files of the current folder are known without it.
    if (number >= 0)
      m_folders[number] = folder == "." && path != "." ? "" : folder.ends_with('/') ? folder : folder + '/';
  }
}

FolderWatch::~FolderWatch() {
  if (m_watch >= 0)
    close(m_watch);
}

std::vector<std::string> FolderWatch::wait(std::chrono::milliseconds longest) {
  pollfd waiting = {m_watch, POLLIN, 0};
  if (poll(&waiting, 1, static_cast<int>(longest.count())) <= 0)
    return {};
  std::vector<std::string> changed;
  alignas(inotify_event) std::array<char, 16384> bytes = {};
  for (ssize_t size = read(m_watch, bytes.data(), bytes.size()); size > 0;
       size = read(m_watch, bytes.data(), bytes.size())) {
    for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
      inotify_event event = {};
      std::memcpy(&event, bytes.data() + at, sizeof event);
      if (event.len > 0) {
        std::string path = m_folders[event.wd] + (bytes.data() + at + sizeof event);
        if (std::ranges::find(changed, path) == changed.end())
          changed.push_back(std::move(path));
      }
      at += sizeof event + event.len;
    }
  }
  return changed;
}

} // namespace hooptab
