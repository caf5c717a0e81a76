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

void FileGuard::begin(std::string path) {
  m_path = std::move(path);
  m_store.Path(m_path);
  m_left = m_store.known();
  m_keptAs.clear();
}

FileGuard::Found FileGuard::look() {
  m_store.Path(m_path);
  const ProfileText& text = m_store.profile();
  if (m_store.readOutcome() != ReadOutcome::Read)
    return lookAtWhatCannotBeRead();
  if (text.isSameAs(m_left))
    return Found::AsLeft;
  // The beginning of what was left is no version that anybody made.
  const bool isCutOff = m_left.bytes().starts_with(text.bytes());
  return m_isOne(text) && !isCutOff ? Found::Changed : Found::Unusable;
}

FileGuard::Found FileGuard::lookAtWhatCannotBeRead() const {
  FileStamp stamp;
  if (m_store.readOutcome() == ReadOutcome::TooLarge)
    return Found::Unusable;
  if (m_store.files().stamp(m_path, stamp))
    return stamp.isRegular ? Found::OutOfReach : Found::Unusable;
  const bool isGone = errno == ENOENT;
  return isGone && m_store.files().stamp(folderOf(m_path), stamp) ? Found::Gone : Found::OutOfReach;
}

const ProfileText& FileGuard::found() {
  m_store.Path(m_path);
  return m_store.known();
}

bool FileGuard::write(const ProfileBatch& batch) {
  m_store.Path(m_path);
  if (!m_store.writeBehindReading(batch))
    return false;
  m_left = m_store.known();
  return true;
}

bool FileGuard::rewrite(const ProfileBatch& batch, Theirs theirs) {
  m_store.Path(m_path);
  if ((theirs == Theirs::Kept && !keepWhatStandsInTheWay()) || !m_store.replace(m_left, batch))
    return false;
  m_left = m_store.known();
  return true;
}

// The rest of a file that was cut off says nothing that is not ours.
bool FileGuard::keepWhatStandsInTheWay() {
  const ProfileText& text = m_store.profile();
  std::string target; // a link that leads nowhere has none
  if ((m_store.readOutcome() == ReadOutcome::Absent && m_store.files().resolve(m_path, target)) ||
      (m_store.readOutcome() == ReadOutcome::Read && m_left.bytes().starts_with(text.bytes())))
    return true;
  const std::string kept = freeNameBeside(m_store.files(), m_path);
  if (kept.empty() || m_store.files().rename(m_path, kept) != 0)
    return false;
  m_keptAs = kept;
  return true;
}

bool FileGuard::keepFound() {
  m_store.Path(m_path);
  const std::string bytes = m_store.known().bytes();
  const std::string kept = freeNameBeside(m_store.files(), m_path);
  FileStamp stamp;
  if (kept.empty() || !replaceWholeFile(m_store.files(), kept, bytes, stamp))
    return false;
  m_keptAs = kept;
  return true;
}

bool FileGuard::writeCopy(const std::string& path, const ProfileBatch& batch) {
  m_store.Path(path);
  return m_store.replace(m_left, batch);
}

} // namespace hooptab
