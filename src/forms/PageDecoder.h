// Lets a process of its own decode a page of a picture file: what a damaged picture does to its decoder
// (crash, endless loop, all of the memory) ends that process, and the window and its game stay. The process
// is this same program, started as "hooptab --decode-page FILE PAGE"; DecoderProcess.h has its side.
#pragma once

#include "forms/ScannedPage.h"
#include "storage/TaskWatch.h"

#include <chrono>
#include <string>

namespace hooptab {

inline constexpr const char* kDecodePageOption = "--decode-page";

struct PageDecoder {
  std::string program = "/proc/self/exe"; // as it runs, even when its file was replaced since
  // For a disk that does not answer: a picture that keeps its decoder busy is given up much sooner.
  std::chrono::seconds patience{60};

  // Page from 0. Waits for the answer, in any thread; once it is cancelled, the process is ended at once.
  // Afterwards there is none.
  [[nodiscard]] ScannedPage decode(const std::string& path, int page, const TaskWatch& watch = {}) const;
};

} // namespace hooptab
