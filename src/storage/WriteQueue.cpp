#include "storage/WriteQueue.h"

#include <utility>

namespace hooptab {

bool WriteQueue::write(Write write) {
  m_waiting.push_back(std::move(write));
  return retry();
}

bool WriteQueue::retry() {
  while (!m_waiting.empty() && m_waiting.front()())
    m_waiting.pop_front();
  return m_waiting.empty();
}

} // namespace hooptab
