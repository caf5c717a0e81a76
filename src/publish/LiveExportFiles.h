// The files that other programs read of a running game, written anew whenever it has changed: as a game of
// another system, or as what a stream shows over its picture. Each file is replaced as a whole, and only
// where its content is another. Owns all that it works with, for it works on a thread of its own.
#pragma once

#include "foreign/ForeignGame.h"
#include "recording/RunningGame.h"
#include "settings/Texts.h"
#include "storage/ProfileStore.h"

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace hooptab {

struct LiveExportTarget {
  std::string folder;
  std::optional<GameFormat> format; // none: the files of an overlay
};

class LiveExportFiles {
 public:
  // The number of the system's last error, 0 while all is written; asked from any thread.
  using LastError = std::shared_ptr<std::atomic<int>>;

  LiveExportFiles(LiveExportTarget target, Language language);
  [[nodiscard]] LastError lastError() const { return m_lastError; }
  // Whether all is on disk; what is not is tried again with the next call. Of the first game alone that it is
  // given: over the files of another one nobody was asked.
  [[nodiscard]] bool write(const RunningGame& game);

 private:
  struct File {
    std::string name;
    std::string content;
  };
  [[nodiscard]] std::vector<File> filesOf(const RunningGame& game);

  LiveExportTarget m_target;
  Texts m_texts;
  FileSystem m_files;
  ProfileStore m_store{m_files};
  std::string m_game;                           // its file
  std::map<std::string, std::string> m_written; // by name
  LastError m_lastError = std::make_shared<std::atomic<int>>(0);
};

} // namespace hooptab
