#include "storage/FileGuard.h"

#include "storage/AtomicFile.h"

#include <cerrno>

namespace hooptab {

namespace {

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

} // namespace

void FileGuard::begin(std::string path, ProfileText left) {
  m_path = std::move(path);
  m_left = std::move(left);
  m_found = {};
  m_keptAs.clear();
}

FileGuard::Found FileGuard::look() {
  m_found = m_store.read(m_path);
  if (m_found.outcome != ReadOutcome::Read)
    return lookAtWhatCannotBeRead();
  const ProfileText& text = m_found.text;
  if (text.isSameAs(m_left))
    return Found::AsLeft;
  // The beginning of what was left is no version that anybody made.
  const bool isCutOff = m_left.bytes().starts_with(text.bytes());
  return m_isOne(text) && !isCutOff ? Found::Changed : Found::Unusable;
}

FileGuard::Found FileGuard::lookAtWhatCannotBeRead() const {
  FileStamp stamp;
  if (m_found.outcome == ReadOutcome::TooLarge)
    return Found::Unusable;
  if (m_store.files().stamp(m_path, stamp))
    return stamp.isRegular ? Found::OutOfReach : Found::Unusable;
  const bool isGone = errno == ENOENT;
  return isGone && m_store.files().stamp(folderOf(m_path), stamp) ? Found::Gone : Found::OutOfReach;
}

WriteResult FileGuard::write(const ProfileBatch& batch) {
  return take(m_store.write(m_path, batch, m_found));
}

WriteResult FileGuard::rewrite(const ProfileBatch& batch, Theirs theirs) {
  if (theirs == Theirs::Kept) {
    if (WriteResult kept = keepWhatStandsInTheWay(); !kept.isOnDisk())
      return kept;
  }
  return take(m_store.replace(m_path, m_left, batch));
}

WriteResult FileGuard::take(const ProfileWrite& write) {
  if (write.isOnDisk()) {
    m_found = write.left();
    m_left = m_found.text;
  }
  return write;
}

// The rest of a file that was cut off says nothing that is not ours.
WriteResult FileGuard::keepWhatStandsInTheWay() {
  const ProfileReading standing = m_store.read(m_path);
  std::string target; // a link that leads nowhere has none
  if ((standing.outcome == ReadOutcome::Absent && m_store.files().resolve(m_path, target)) ||
      (standing.outcome == ReadOutcome::Read && m_left.bytes().starts_with(standing.text.bytes())))
    return {};
  StorageError error;
  const std::string kept = freeNameBeside(m_store.files(), m_path, &error);
  if (kept.empty())
    return error;
  if (m_store.files().rename(m_path, kept) != 0)
    return StorageError::ofCall(StorageError::Call::Rename, m_path);
  m_keptAs = kept;
  return {};
}

WriteResult FileGuard::keepFound() {
  const std::string bytes = m_found.text.bytes();
  StorageError error;
  const std::string kept = freeNameBeside(m_store.files(), m_path, &error);
  if (kept.empty())
    return error;
  FileStamp stamp;
  WriteResult written = replaceWholeFile(m_store.files(), kept, bytes, stamp);
  if (written.isOnDisk())
    m_keptAs = kept;
  return written;
}

WriteResult FileGuard::writeCopy(const std::string& path, const ProfileBatch& batch) {
  return m_store.replace(path, m_left, batch);
}

} // namespace hooptab
