// Picture files of a scanned form, in every kind that is read, with damage as disks, wires and bad programs
// do it, and some that nobody means well with. Picture so-and-so of a seed is always the same.
#pragma once

#include "simulator/Random.h"

#include <QByteArray>
#include <QImage>

#include <vector>

namespace hooptab {

struct DamagedPicture {
  QByteArray bytes;
  const char* ending = ""; // of a name for its file
};

class DamagedPictures {
 public:
  // Of pages as a scanner would give them; not empty.
  explicit DamagedPictures(const std::vector<QImage>& pages);

  [[nodiscard]] DamagedPicture make(std::uint64_t seed, int number) const;

 private:
  std::vector<DamagedPicture> m_sound;
};

} // namespace hooptab
