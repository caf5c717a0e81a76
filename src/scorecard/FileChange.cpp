#include "scorecard/FileChange.h"

namespace hooptab {

namespace {

constexpr std::int64_t kSettledNanoseconds = 2'000'000'000;

} // namespace

void FileChange::remember() {
  FileStamp stamp;
  m_stamp = m_files.stamp(m_path, stamp) ? std::optional(stamp) : std::nullopt;
  m_isSettled = m_stamp && m_files.nowNanoseconds() - m_stamp->modifiedNanoseconds >= kSettledNanoseconds;
}

bool FileChange::mayHaveChanged() const {
  FileStamp stamp;
  return !m_isSettled || !m_files.stamp(m_path, stamp) || stamp != *m_stamp;
}

} // namespace hooptab
