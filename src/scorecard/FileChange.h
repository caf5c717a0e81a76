// Tells whether a file may have changed since it was last read, without opening it, so that a refresh on a
// timer costs nothing while nobody writes. What changed shortly before it was read counts as changed: clocks
// of file systems can be coarse.
#pragma once

#include "storage/FileSystem.h"

#include <optional>
#include <string>

namespace hooptab {

class FileChange {
 public:
  // The file system must outlive it.
  FileChange(FileSystem& files, std::string path) : m_files(files), m_path(std::move(path)) {}

  // To be called before the file is read: a change while it is read is then seen by the next question.
  void remember();
  [[nodiscard]] bool mayHaveChanged() const;

 private:
  FileSystem& m_files;
  std::string m_path;
  std::optional<FileStamp> m_stamp; // nothing: absent or never read
  bool m_isSettled = false;
};

} // namespace hooptab
