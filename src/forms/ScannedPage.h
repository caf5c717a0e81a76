// A page of a picture file as shades of grey, or why it is of no use, and the words for that. What is on the
// page is for the reader of forms.
#pragma once

#include "forms/GrayPicture.h"
#include "settings/Texts.h"

#include <cstdint>
#include <string>

namespace hooptab {

struct PageRefusal {
  enum class Reason : std::uint32_t {
    None,
    Cancelled,
    CannotOpen,
    NotAPicture, // of a kind that is read
    Damaged,
    Locked, // a PDF file that asks for a password
    TooCoarse,
    TooLarge,
    TooManyPages, // in one file; number: the most
    BrokeOff,     // the process that decoded it came to an end, or answered nonsense
    TookTooLong,  // number: seconds
    CannotStart,  // number: why the system started no process, as errno
    NoMemory,     // in this process, for what the other one sent
  };
  Reason reason = Reason::None;
  int number = 0;
};
// One line: what is wrong, and what to do. Empty for None and Cancelled.
[[nodiscard]] std::string explained(const PageRefusal& refusal, const Texts& texts);

struct ScannedPage {
  static constexpr int kMostPages = 1000; // of a file
  // Handed to the reader of forms; a sheet of A4 or Legal paper that was made coarser has no more.
  static constexpr std::size_t kMostPixels = 48'000'000;

  PageRefusal refusal;
  GrayPicture picture; // empty when the page is refused
  int pagesInFile = 0; // 0: not known
};

} // namespace hooptab
