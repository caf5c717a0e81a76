// Why a file was not read or written: which call of the operating system failed, with its errno, or what
// about the file itself stands in the way. Knows no words for it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace hooptab {

struct StorageError {
  enum class Call : std::uint8_t {
    None,
    Open,
    Read,
    Write,
    Sync,
    SetMode,
    Close,
    Rename,
    Stamp,
    Resolve,
    // No call's failure; `number` is 0.
    NotAFile,         // a folder, a device, a pipe
    WriteProtected,   // a file without any write permission bit
    TooLarge,         // larger than what is ever read
    ChangedMeanwhile, // by others, since it was read
  };
  Call call = Call::None;
  int number = 0; // errno, as it was directly behind the call
  // Of the file or the folder; for the temporary file that of the file that it is to replace.
  std::string path;

  // With errno as it is now: nothing may come between the call and this.
  [[nodiscard]] static StorageError ofCall(Call call, const std::string& path);

  friend bool operator==(const StorageError&, const StorageError&) = default;
};

// What has come of writing a file.
class [[nodiscard]] WriteResult {
 public:
  WriteResult() = default; // on disk
  WriteResult(StorageError error) : m_error(std::move(error)) {}

  bool isOnDisk() const { return m_error.call == StorageError::Call::None; }
  const StorageError& error() const { return m_error; } // none where it is on disk

 private:
  StorageError m_error;
};

} // namespace hooptab
