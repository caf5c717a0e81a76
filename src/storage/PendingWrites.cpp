#include "storage/PendingWrites.h"

#include <utility>

namespace hooptab {

bool PendingWrites::write(ProfileBatch batch, Write write, std::int64_t now) {
  m_waiting.push_back({std::move(batch), std::move(write)});
  return retry(now);
}

bool PendingWrites::retry(std::int64_t now) {
  while (!m_waiting.empty()) {
    const Waiting& oldest = m_waiting.front();
    if (const WriteResult result = oldest.write(oldest.batch); !result.isOnDisk()) {
      refuse(result.error(), now);
      return false;
    }
    m_waiting.pop_front();
  }
  clear();
  return true;
}

void PendingWrites::add() {
  m_waiting.emplace_back();
}

void PendingWrites::clear() {
  m_waiting.clear();
  m_why = {};
  m_isRefused = false;
}

void PendingWrites::refuse(const StorageError& why, std::int64_t now) {
  if (isEmpty())
    return;
  if (!std::exchange(m_isRefused, true))
    m_since = now;
  m_why = why;
}

std::int64_t PendingWrites::untilRetry(std::int64_t now) const {
  const std::int64_t passed = (now - m_since) % kRetryInterval;
  return passed < 0 ? -passed : kRetryInterval - passed;
}

} // namespace hooptab
