// What the colour settings window edits: four colours and the labels of the user's two statistics. Decides
// whether they can be applied and what is stored of them; shows nothing.
#pragma once

#include "settings/Settings.h"

#include <cstddef>
#include <string>

namespace hooptab {

struct CourtColourChoice {
  static constexpr std::size_t kLongestLabel = 20; // bytes of the code page

  ChosenColours colours;
  std::string label[2]; // without prefix, as typed
  friend bool operator==(const CourtColourChoice&, const CourtColourChoice&) = default;

  [[nodiscard]] static CourtColourChoice of(const Settings& settings);
  // "U1-" or "U2-".
  [[nodiscard]] static std::string prefix(std::size_t which);
  // What stands against applying.
  enum class Problem { None, SameColours }; // of two points, box and three points
  [[nodiscard]] Problem problem() const;
  // Commas of the labels become blanks, letters what the file can hold. Whether all is on disk; see Settings.
  bool save(Settings& settings) const;

 private:
  [[nodiscard]] std::string storedLabel(std::size_t which) const;
};

} // namespace hooptab
