// Whether whoever holds a lock still lives, by watching it: a lock that is renewed, or made anew, is a living
// one's; one that stands still for as long as no living one would leave it may be taken over. Is told what is
// seen and when, and keeps no time of its own.
#pragma once

#include "storage/LockFile.h"

namespace hooptab {

class LockWatch {
 public:
  enum class State {
    Watching,    // not long enough yet
    Renewed,     // somebody lives, since the last look that said so
    StandsStill, // for the first time since it was renewed
    Free,        // it has gone
  };
  explicit LockWatch(std::chrono::milliseconds patience = LockFile::kWatch) : m_patience(patience) {}

  // `now` on a clock that never jumps.
  State look(const LockFile::Sight& sight, std::chrono::milliseconds now) {
    if (sight != m_sight || !m_isBegun) {
      const bool isRenewed = m_isBegun && sight.isThere;
      m_isBegun = true;
      m_sight = sight;
      m_since = now;
      m_isSaid = false;
      if (isRenewed)
        return State::Renewed;
    }
    if (!sight.isThere)
      return State::Free;
    if (m_isSaid || now - m_since < m_patience)
      return State::Watching;
    m_isSaid = true;
    return State::StandsStill;
  }
  const LockFile::Sight& sight() const { return m_sight; } // the last one

 private:
  std::chrono::milliseconds m_patience;
  LockFile::Sight m_sight;
  std::chrono::milliseconds m_since{0};
  bool m_isBegun = false;
  bool m_isSaid = false;
};

} // namespace hooptab
