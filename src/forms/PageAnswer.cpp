#include "forms/PageAnswer.h"

#include <cstring>

namespace hooptab {

namespace {

constexpr std::uint32_t kCountMark = 0x47505448; // "HTPG"
constexpr std::uint32_t kPageMark = 0x58505448;  // "HTPX"

// The reasons that stand before BrokeOff are for the process to give; the others tell of its end.
bool isItsToGive(std::uint32_t reason) {
  using Reason = PageRefusal::Reason;
  return reason < static_cast<std::uint32_t>(Reason::BrokeOff) &&
         reason != static_cast<std::uint32_t>(Reason::Cancelled);
}

template <class Record>
Record recordAt(const std::uint8_t* bytes) {
  Record record;
  std::memcpy(record.data(), bytes, sizeof record);
  return record;
}

} // namespace

PageAnswer::CountRecord PageAnswer::countRecord(int pagesInFile) {
  return {kCountMark, static_cast<std::uint32_t>(pagesInFile)};
}

PageAnswer::PageRecord PageAnswer::pageRecord(const ScannedPage& page) {
  return {kPageMark, static_cast<std::uint32_t>(page.refusal.reason),
          static_cast<std::uint32_t>(page.refusal.number), static_cast<std::uint32_t>(page.picture.width),
          static_cast<std::uint32_t>(page.picture.height)};
}

std::span<std::uint8_t> PageAnswer::room() {
  if (m_hasHead)
    return std::span(m_page.picture.pixels).subspan(m_taken);
  const std::size_t end = m_taken < kCountSize ? kCountSize : kHeadSize;
  return std::span(m_head).subspan(m_taken, end - m_taken);
}

bool PageAnswer::take(std::size_t bytes) {
  m_taken += bytes;
  if (m_hasHead)
    return true;
  if (m_taken == kCountSize)
    return takeCount();
  return m_taken < kHeadSize || takePage();
}

bool PageAnswer::takeCount() {
  const auto [mark, count] = recordAt<CountRecord>(m_head.data());
  if (mark != kCountMark || count > ScannedPage::kMostPages)
    return false;
  m_page.pagesInFile = static_cast<int>(count);
  return true;
}

bool PageAnswer::takePage() {
  const auto [mark, reason, number, width, height] = recordAt<PageRecord>(m_head.data() + kCountSize);
  const std::uint64_t pixels = std::uint64_t{width} * height;
  const bool isRefused = reason != 0;
  if (mark != kPageMark || !isItsToGive(reason) || isRefused != (pixels == 0) ||
      pixels > ScannedPage::kMostPixels || number > ScannedPage::kMostPages)
    return false;
  m_page.refusal = {static_cast<PageRefusal::Reason>(reason), static_cast<int>(number)};
  if (!isRefused) {
    m_page.picture.width = static_cast<int>(width);
    m_page.picture.height = static_cast<int>(height);
    m_page.picture.pixels.resize(pixels);
  }
  m_hasHead = true;
  m_taken = 0;
  return true;
}

} // namespace hooptab
