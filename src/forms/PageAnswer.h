// What the process that decodes a page writes to its standard output, and how it is taken in. Numbers have 32
// bits in this machine's order, since both ends are the same program:
//
//   "HTPG" count               the pages of the file, as soon as they are known; 0 when they are not
//   "HTPX" reason number width height      the page, and behind it width * height shades
//
// The other end may have been led astray by a damaged picture: nothing of it is believed unseen.
#pragma once

#include "forms/ScannedPage.h"

#include <array>
#include <cstdint>
#include <span>

namespace hooptab {

class PageAnswer {
 public:
  using CountRecord = std::array<std::uint32_t, 2>;
  using PageRecord = std::array<std::uint32_t, 5>;
  [[nodiscard]] static CountRecord countRecord(int pagesInFile);
  [[nodiscard]] static PageRecord pageRecord(const ScannedPage& page); // its shades follow

  // Where the bytes that come next belong; empty when the answer is whole.
  [[nodiscard]] std::span<std::uint8_t> room();
  // So many bytes more stand there. False: this is no answer, and no more can be taken.
  [[nodiscard]] bool take(std::size_t bytes);

  [[nodiscard]] bool isWhole() const { return m_hasHead && m_taken == m_page.picture.pixels.size(); }
  [[nodiscard]] ScannedPage& page() { return m_page; } // the number of pages also before it is whole

 private:
  [[nodiscard]] bool takeCount();
  [[nodiscard]] bool takePage();

  static constexpr std::size_t kCountSize = sizeof(CountRecord);
  static constexpr std::size_t kHeadSize = kCountSize + sizeof(PageRecord);

  std::array<std::uint8_t, kHeadSize> m_head{};
  bool m_hasHead = false;
  std::size_t m_taken = 0; // of the head, then of the shades
  ScannedPage m_page;
};

} // namespace hooptab
