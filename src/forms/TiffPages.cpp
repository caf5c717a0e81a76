#include "forms/TiffPages.h"

#include <cstdint>
#include <limits>
#include <set>

namespace hooptab {

namespace {

class Directories {
 public:
  explicit Directories(std::istream& file) : m_file(file) {
    m_isBigEndian = number(0, 1) == 'M';
    m_isBig = number(2, 2) == kBigVersion;
  }

  // Where they stand; 0 after the last one.
  std::uint64_t first() { return m_isBig ? number(8, 8) : number(4, 4); }
  std::uint64_t next(std::uint64_t directory) {
    const std::uint64_t entrySize = m_isBig ? 20 : 12;
    return number(directory + countSize() + entries(directory) * entrySize, m_isBig ? 8 : 4);
  }
  // 0 where there is no directory: each has some.
  std::uint64_t entries(std::uint64_t directory) {
    const std::uint64_t count = number(directory, countSize());
    return count < kFarthest / 20 ? count : 0;
  }

 private:
  static constexpr std::uint64_t kBigVersion = 43;
  static constexpr std::uint64_t kFarthest = std::numeric_limits<std::int64_t>::max() / 4;

  unsigned countSize() const { return m_isBig ? 8 : 2; }
  // 0 outside of the file.
  std::uint64_t number(std::uint64_t place, unsigned bytes) {
    char read[8] = {};
    if (place > kFarthest || !m_file.seekg(static_cast<std::streamoff>(place)) || !m_file.read(read, bytes)) {
      m_file.clear();
      return 0;
    }
    std::uint64_t value = 0;
    for (unsigned index = 0; index < bytes; ++index)
      value = value << 8 | static_cast<unsigned char>(read[m_isBigEndian ? index : bytes - 1 - index]);
    return value;
  }

  std::istream& m_file;
  bool m_isBigEndian = false;
  bool m_isBig = false; // places of 64 bits
};

} // namespace

int countTiffPages(std::istream& file, int most) {
  Directories directories(file);
  std::set<std::uint64_t> seen;
  for (std::uint64_t place = directories.first(); place != 0 && static_cast<int>(seen.size()) <= most;
       place = directories.next(place)) {
    if (directories.entries(place) == 0 || !seen.insert(place).second)
      break;
  }
  return static_cast<int>(seen.size());
}

} // namespace hooptab
