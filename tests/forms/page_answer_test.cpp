// What comes from the process that decodes pages: whole answers piece by piece, and everything else.
#include "forms/PageAnswer.h"

#include "forms/TiffPages.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <sstream>

namespace hooptab {
namespace {

using Words = std::vector<std::uint32_t>;
using Reason = PageRefusal::Reason;

std::string bytesOf(const Words& words) {
  return {reinterpret_cast<const char*>(words.data()), words.size() * sizeof(std::uint32_t)};
}

// Hands bytes on in pieces; how many were taken before the answer was whole, or no answer.
struct Taken {
  PageAnswer answer;
  std::size_t bytes = 0;
  bool isBroken = false;
  Taken(const std::string& from, std::size_t piece) {
    while (bytes < from.size() && !answer.isWhole() && !isBroken) {
      const auto room = answer.room();
      const std::size_t count = std::min({piece, room.size(), from.size() - bytes});
      if (count == 0)
        break;
      std::memcpy(room.data(), from.data() + bytes, count);
      bytes += count;
      isBroken = !answer.take(count);
    }
  }
};

TEST(PageAnswer, IsTakenInWhateverPiecesItComes) {
  ScannedPage page;
  page.picture = {3, 2, {1, 2, 3, 4, 5, 6}};
  const auto count = PageAnswer::countRecord(7);
  const auto head = PageAnswer::pageRecord(page);
  Words words(count.begin(), count.end());
  words.insert(words.end(), head.begin(), head.end());
  const std::string bytes = bytesOf(words) + std::string("\1\2\3\4\5\6", 6);
  for (const std::size_t piece : {std::size_t{1}, std::size_t{5}, std::size_t{1000}}) {
    Taken taken(bytes + "more", piece);
    ASSERT_TRUE(taken.answer.isWhole());
    EXPECT_EQ(taken.bytes, bytes.size());
    EXPECT_EQ(taken.answer.page().pagesInFile, 7);
    EXPECT_EQ(taken.answer.page().picture.width, 3);
    EXPECT_EQ(taken.answer.page().picture.pixels, page.picture.pixels);
  }
  for (std::size_t cut = 0; cut < bytes.size(); ++cut) {
    Taken taken(bytes.substr(0, cut), 4);
    EXPECT_FALSE(taken.answer.isWhole() || taken.isBroken) << cut;
    EXPECT_EQ(taken.answer.page().pagesInFile, cut < sizeof count ? 0 : 7) << cut;
  }
}

TEST(PageAnswer, IsNotBelievedWhenItCannotBe) {
  const std::uint32_t count = PageAnswer::countRecord(1)[0];
  const std::uint32_t page = PageAnswer::pageRecord({})[0];
  const auto number = [](Reason reason) { return static_cast<std::uint32_t>(reason); };
  const auto damaged = number(Reason::Damaged);
  const std::tuple<const char*, Words, bool> cases[] = {
      {"a refusal", {count, 1, page, damaged, 0, 0, 0}, true},
      {"no answer at all", {0x20656854, 0x7463697a}, false},
      {"too many pages", {count, ScannedPage::kMostPages + 1}, false},
      {"a count below 0", {count, 0xFFFFFFFF}, false},
      {"another mark", {count, 1, count, 0, 0, 2, 2}, false},
      {"a reason that is none", {count, 1, page, 99, 0, 0, 0}, false},
      {"a reason that is not its own", {count, 1, page, number(Reason::CannotStart), 0, 0, 0}, false},
      {"a stop that nobody asked for", {count, 1, page, number(Reason::Cancelled), 0, 0, 0}, false},
      {"a refusal with a picture", {count, 1, page, damaged, 0, 2, 2}, false},
      {"a picture without dots", {count, 1, page, 0, 0, 100, 0}, false},
      {"more dots than there may be", {count, 1, page, 0, 0, 0x10000, 0x10000}, false},
      {"a size that wraps", {count, 1, page, 0, 0, 0xFFFFFFFF, 0xFFFFFFFF}, false},
      {"a number beyond all", {count, 1, page, damaged, 0x80000000, 0, 0}, false}};
  for (const auto& [what, words, isWhole] : cases) {
    const Taken taken(bytesOf(words), 64);
    EXPECT_EQ(taken.answer.isWhole(), isWhole) << what;
    EXPECT_EQ(taken.isBroken, !isWhole) << what;
  }
}

// Directories with one empty entry at the places given; each leads to the next of them.
std::string tiff(bool isBigEndian, bool isBig, const std::vector<std::uint64_t>& places) {
  std::string bytes(400, '\0');
  const auto put = [&](std::size_t at, std::uint64_t value, std::size_t size) {
    for (std::size_t index = 0; index < size; ++index)
      bytes[at + (isBigEndian ? size - 1 - index : index)] = static_cast<char>(value >> (8 * index));
  };
  bytes[0] = bytes[1] = isBigEndian ? 'M' : 'I';
  put(2, isBig ? 43 : 42, 2);
  std::uint64_t link = isBig ? 8 : 4;
  for (const std::uint64_t place : places) {
    put(link, place, isBig ? 8 : 4);
    if (place >= bytes.size())
      break;
    put(place, 1, isBig ? 8 : 2);
    link = place + (isBig ? 8 + 20 : 2 + 12);
  }
  return bytes;
}

TEST(TiffPages, AreCountedAlongTheirLinks) {
  const std::uint64_t beyond = 0xFFFFFFF0;
  const std::tuple<const char*, std::string, int> cases[] = {
      {"none", tiff(false, false, {}), 0},
      {"three", tiff(false, false, {20, 100, 60}), 3},
      {"the other order", tiff(true, false, {20, 100, 60}), 3},
      {"places of 64 bits", tiff(false, true, {20, 100, 60}), 3},
      {"both", tiff(true, true, {20, 100, 60}), 3},
      {"back to the second", tiff(false, false, {20, 100, 60, 100}), 3},
      {"itself", tiff(false, false, {20, 20}), 1},
      {"out of the file", tiff(false, false, {20, beyond}), 1},
      {"far out of it", tiff(false, true, {20, 0xFFFFFFFFFFFFFFFF}), 1},
      {"more than asked", tiff(false, false, {20, 40, 60, 80, 100, 120, 140, 160}), 6},
      {"to nothing", tiff(false, false, {20, 100}).replace(100, 1, 1, '\0'), 1},
      {"cut off", "II\x2a", 0},
      {"nothing", "", 0}};
  for (const auto& [what, bytes, pages] : cases) {
    std::istringstream file(bytes);
    EXPECT_EQ(countTiffPages(file, 5), pages) << what;
  }
}

} // namespace
} // namespace hooptab
