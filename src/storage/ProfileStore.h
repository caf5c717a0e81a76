// The store of profile files: the only way in which settings and games reach the disk. Asked by path, answers
// with values, and knows no place in between; every write is on disk (fsync included) before it returns.
// Keeps a parsed copy per file, which is never older than the file. What a file's keys mean, and what is done
// about a write that fails, is its callers' affair. Lives on one thread; no locking.
#pragma once

#include "storage/AtomicFile.h"
#include "storage/FileSystem.h"
#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"
#include "storage/StorageError.h"

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace hooptab {

// A file as it was read. Stays as it is, whatever becomes of the file.
struct ProfileReading {
  ReadOutcome outcome = ReadOutcome::Absent;
  ProfileText text = {};   // empty unless it was read
  FileStamp stamp = {};    // none for a file that is not there
  StorageError error = {}; // why it was not read

  // Whether it is known what the file holds; what is not known must not be replaced by little.
  bool isKnown() const { return outcome == ReadOutcome::Read || outcome == ReadOutcome::Absent; }
};

// What has come of a write, and what the file holds behind one that is on disk.
class [[nodiscard]] ProfileWrite : public WriteResult {
 public:
  ProfileWrite(StorageError error) : WriteResult(std::move(error)) {}
  ProfileWrite(ProfileReading left) : m_left(std::move(left)) {}
  const ProfileReading& left() const { return m_left; }

 private:
  ProfileReading m_left;
};

class ProfileStore {
 public:
  explicit ProfileStore(FileSystem& files) : m_files(files) {}
  ProfileStore(const ProfileStore&) = delete;
  ProfileStore& operator=(const ProfileStore&) = delete;
  FileSystem& files() const { return m_files; }

  [[nodiscard]] ProfileReading read(const std::string& path);

  // Both apply all operations to the file as one replacement, or none of them. The first to the file as it
  // is; the second to `expected`, upon which they were decided: a file that others changed since it was read
  // so is left as it is.
  ProfileWrite write(const std::string& path, const ProfileBatch& batch);
  ProfileWrite write(const std::string& path, const ProfileBatch& batch, const ProfileReading& expected);
  // Makes the file `base` with all operations applied to it, whatever stands there now; a folder or another
  // thing that is no file stays, and is a failure.
  ProfileWrite replace(const std::string& path, const ProfileText& base, const ProfileBatch& batch);

 private:
  struct Copy {
    ProfileText text;
    FileStamp stamp;
    bool isSettled = false; // false: changed so shortly before that an equal stamp proves nothing
    std::uint64_t lastUse = 0;
  };
  Copy& copyOf(const std::string& path);
  enum class Since { JustNow, MayBeLong };
  ProfileWrite put(const std::string& path, const ProfileReading& before, ProfileText after, Since read);

  FileSystem& m_files;
  std::map<std::string, Copy, std::less<>> m_copies;
  std::uint64_t m_uses = 0;
  std::set<std::string, std::less<>> m_undurable; // replaced, but the fsync of the folder failed
};

} // namespace hooptab
