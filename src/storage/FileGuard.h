// What this program left in one profile file, against what it finds there: a file can be changed, deleted,
// renamed or replaced by anything while it is open here. Tells the two apart, keeps a foreign version that
// gives way, and writes the whole file again from what was left. What is to be done about a file that others
// changed, line by line, is its owner's affair.
#pragma once

#include "storage/ProfileStore.h"

#include <string>
#include <utility>

namespace hooptab {

class FileGuard {
 public:
  // Whether a text is one of the kind that is guarded.
  using IsOne = bool (*)(const ProfileText& text);

  FileGuard(ProfileStore& store, IsOne isOne) : m_store(store), m_isOne(isOne) {}

  // Watches over `path` from now on, which was just read or written so.
  void begin(std::string path, ProfileText left);
  const std::string& path() const { return m_path; }
  bool isWatching() const { return !m_path.empty(); }
  // As this program left it.
  const ProfileText& left() const { return m_left; }

  enum class Found {
    AsLeft,
    Changed,    // by others, and still a file of its kind: found()
    Gone,       // deleted or renamed, in a folder that is there
    Unusable,   // a file of another kind, cut off, too large, or no file
    OutOfReach, // the disk's own no: no right, no folder, a failure
  };
  [[nodiscard]] Found look();
  // What was there when it was looked at or written last, and why it could not be read.
  const ProfileText& found() const { return m_found.text; }
  const StorageError& obstacle() const { return m_found.error; }

  // What is left is what the disk has taken.
  // Into the file as it was found, for AsLeft and Changed.
  WriteResult write(const ProfileBatch& batch);
  // The whole file, as it was left, with this; for Gone and Unusable. What stands in the way is kept, but for
  // a file of which nothing would be missing.
  enum class Theirs { Kept, NotMissed };
  WriteResult rewrite(const ProfileBatch& batch, Theirs theirs = Theirs::Kept);
  // Keeps a copy of what is there, for Changed.
  WriteResult keepFound();
  // The whole file, as it was left, with this, in another place; this one is watched as before.
  WriteResult writeCopy(const std::string& path, const ProfileBatch& batch);

  // The path under which a foreign version was kept last, until it is asked for; empty when there is none.
  [[nodiscard]] std::string takeKeptAs() { return std::exchange(m_keptAs, {}); }

 private:
  [[nodiscard]] Found lookAtWhatCannotBeRead() const;
  WriteResult keepWhatStandsInTheWay();
  WriteResult take(const ProfileWrite& write);

  ProfileStore& m_store;
  IsOne m_isOne;
  std::string m_path;
  ProfileText m_left;
  ProfileReading m_found;
  std::string m_keptAs;
};

} // namespace hooptab
