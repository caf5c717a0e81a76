// Writes to one file that its disk does not take at once: they are kept in order and tried again until they
// are on disk, so that nothing overtakes an older write. One queue per file, so that an unwritable file holds
// up no other. When to try again, and what the user is told, is the window's affair.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>

namespace hooptab {

class WriteQueue {
 public:
  // Returns whether its data are on disk; called again later when not.
  using Write = std::function<bool()>;

  // Tries at once when nothing older waits. Returns whether everything is on disk.
  bool write(Write write);
  // Tries what waits, oldest first, up to the first failure. Returns whether everything is on disk.
  bool retry();

  bool isEmpty() const { return m_waiting.empty(); }
  std::size_t size() const { return m_waiting.size(); }

 private:
  std::deque<Write> m_waiting;
};

} // namespace hooptab
