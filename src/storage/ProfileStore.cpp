#include "storage/ProfileStore.h"

#include "storage/BatchText.h"

#include <algorithm>
#include <cerrno>

namespace hooptab {
namespace {

// The clocks of some file systems (USB sticks) count in steps of two seconds: a file changed less long ago
// may change once more and look the same.
constexpr std::int64_t kCoarsestClockNanoseconds = 2'000'000'000;

// A scan of a season reads each file once; what is used again and again are a handful.
constexpr std::size_t kMostCopies = 64;

// Whether the file is still in the state that was read.
WriteResult stands(FileSystem& files, const std::string& path, const ProfileReading& reading) {
  FileStamp now;
  if (!files.stamp(path, now) && errno != ENOENT && errno != ENOTDIR)
    return StorageError::ofCall(StorageError::Call::Stamp, path);
  return now == reading.stamp ? WriteResult() : StorageError{StorageError::Call::ChangedMeanwhile, 0, path};
}

} // namespace

ProfileReading ProfileStore::read(const std::string& path) {
  const auto known = m_copies.find(path);
  FileStamp stamp;
  if (known != m_copies.end() && known->second.isSettled && m_files.stamp(path, stamp) &&
      stamp == known->second.stamp) {
    known->second.lastUse = ++m_uses;
    return {ReadOutcome::Read, known->second.text, stamp};
  }

  const std::int64_t now = m_files.nowNanoseconds();
  std::string bytes;
  ProfileReading reading;
  stamp = {};
  reading.outcome = readWholeFile(m_files, path, bytes, stamp, &reading.error);
  if (reading.outcome != ReadOutcome::Read) {
    if (known != m_copies.end())
      m_copies.erase(known);
    return reading;
  }
  Copy& copy = copyOf(path);
  if (!copy.text.hasBytes(bytes))
    copy.text = ProfileText(std::move(bytes));
  copy.stamp = stamp;
  copy.isSettled = now - stamp.modifiedNanoseconds >= kCoarsestClockNanoseconds;
  reading.text = copy.text;
  reading.stamp = stamp;
  return reading;
}

ProfileWrite ProfileStore::write(const std::string& path, const ProfileBatch& batch) {
  const ProfileReading before = read(path);
  return before.isKnown() ? put(path, before, withBatch(before.text, batch), Since::JustNow)
                          : ProfileWrite(before.error);
}

ProfileWrite ProfileStore::write(const std::string& path, const ProfileBatch& batch,
                                 const ProfileReading& expected) {
  if (!expected.isKnown())
    return expected.error;
  return put(path, expected, withBatch(expected.text, batch), Since::MayBeLong);
}

ProfileWrite ProfileStore::replace(const std::string& path, const ProfileText& base,
                                   const ProfileBatch& batch) {
  // What stands in the way may be anything, even too large to be read.
  return put(path, read(path), withBatch(base, batch), Since::JustNow);
}

// Writes the file unless `before`, which is what it holds, is that already.
ProfileWrite ProfileStore::put(const std::string& path, const ProfileReading& before, ProfileText after,
                               Since read) {
  const std::string bytes = after.bytes();
  if (before.isKnown() && before.text.hasBytes(bytes) && !m_undurable.contains(path)) {
    const WriteResult result = read == Since::JustNow ? WriteResult() : stands(m_files, path, before);
    return result.isOnDisk() ? ProfileWrite(before) : ProfileWrite(result.error());
  }
  if (bytes.size() > static_cast<std::size_t>(kLargestProfileFile)) // could never be read again
    return StorageError{StorageError::Call::TooLarge, 0, path};
  FileStamp stamp;
  const WriteResult result =
      replaceWholeFile(m_files, path, bytes, stamp, before.isKnown() ? &before.stamp : nullptr);
  if (!result.isOnDisk()) {
    if (stamp != FileStamp{})
      m_undurable.insert(path);
    return result.error();
  }
  m_undurable.erase(path);
  Copy& copy = copyOf(path);
  copy.text = std::move(after);
  copy.stamp = stamp;
  copy.isSettled = false;
  return ProfileReading{ReadOutcome::Read, copy.text, stamp};
}

// The copy kept of a file, a new one in place of the least recently used where there is none.
ProfileStore::Copy& ProfileStore::copyOf(const std::string& path) {
  if (m_copies.size() >= kMostCopies && !m_copies.contains(path))
    m_copies.erase(
        std::ranges::min_element(m_copies, {}, [](const auto& entry) { return entry.second.lastUse; }));
  Copy& copy = m_copies[path];
  copy.lastUse = ++m_uses;
  return copy;
}

} // namespace hooptab
