#include "Slip.h"

#include <numeric>

namespace hooptab {

namespace {

constexpr std::array<std::string_view, kSlips> kNames = {
    "no slip",    "wrong digits",    "Enter by habit",  "double press",        "two free throws",
    "held Space", "late Space",      "beside the mark", "half a substitution", "double undo",
    "held key",   "click on opening"};

} // namespace

std::string_view nameOf(Slip slip) {
  return kNames[static_cast<std::size_t>(slip)];
}

int SlipCounts::sum(const ByKind& counts) {
  return std::accumulate(counts.begin(), counts.end(), 0);
}

std::string SlipCounts::words(const ByKind& counts) {
  std::string words;
  for (std::size_t kind = 0; kind < kSlips; ++kind) {
    if (counts[kind] > 0)
      words.append(words.empty() ? " (" : ", ")
          .append(kNames[kind])
          .append(" " + std::to_string(counts[kind]));
  }
  return std::to_string(sum(counts)) + words + (words.empty() ? "" : ")");
}

} // namespace hooptab
