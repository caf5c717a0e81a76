// What this program left in one profile file, against what it finds there: a file can be changed, deleted,
// renamed or replaced by anything while it is open here. Tells the two apart, keeps a foreign version that
// gives way, and writes the whole file again from what was left. What is to be done about a file that others
// changed, line by line, is its owner's affair.
#pragma once

#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"
#include "storage/cinifile.h"

#include <functional>
#include <string>

namespace hooptab {

class FileGuard {
 public:
  // Whether a text is one of the kind that is guarded.
  using IsOne = bool (*)(const ProfileText& text);

  FileGuard(cinifile& store, IsOne isOne) : m_store(store), m_isOne(isOne) {}

  // Watches over `path` from now on, as the store has just read or written it.
  void begin(std::string path);
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
  // What is there; after Changed, until the next call on the store.
  const ProfileText& found();

  // Each returns whether the disk has taken it; what is left is what it holds then.
  // Into the file as it is, for AsLeft and Changed.
  bool write(const ProfileBatch& batch);
  // The whole file, as it was left, with this; for Gone and Unusable. What stands in the way is kept, but for
  // a file of which nothing would be missing.
  enum class Theirs { Kept, NotMissed };
  bool rewrite(const ProfileBatch& batch, Theirs theirs = Theirs::Kept);
  // Keeps a copy of what is there, for Changed.
  bool keepFound();
  // The whole file, as it was left, with this, in another place; this one is watched as before.
  bool writeCopy(const std::string& path, const ProfileBatch& batch);

  // The path under which a foreign version was kept last, until it is asked for; empty when there is none.
  [[nodiscard]] std::string takeKeptAs() { return std::exchange(m_keptAs, {}); }

 private:
  [[nodiscard]] Found lookAtWhatCannotBeRead() const;
  bool keepWhatStandsInTheWay();

  cinifile& m_store;
  IsOne m_isOne;
  std::string m_path;
  ProfileText m_left;
  std::string m_keptAs;
};

} // namespace hooptab
