// Lists of choices whose names are ten texts in a row of the string table: positions and game types. What is
// stored is the index, 0 to 9; an index whose text is "---" is not offered.
#pragma once

#include "settings/Texts.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

inline constexpr int kChoiceCount = 10;
inline constexpr Text kFirstGameTypeText = Text::Practice;
inline constexpr Text kFirstPositionText = Text::PositionCentre;
inline constexpr int kNoPosition = 9;
inline constexpr int kOtherGameType = 9;
inline constexpr const char* kPositionWithoutName = "na"; // in every language

// Ascending.
[[nodiscard]] std::vector<int> offeredChoices(Text firstText, const Texts& texts);
// The name of an index in the language in use; empty for one that is not offered or out of range.
[[nodiscard]] std::string_view choiceName(Text firstText, int index, const Texts& texts);
// The next one offered, from 9 back to 0. Out of range counts as 9.
[[nodiscard]] int nextChoice(Text firstText, int index, const Texts& texts);

// The type that a game counts as: one without a name is "other".
[[nodiscard]] constexpr int gameTypeOf(int stored) {
  constexpr int kNamed = 6; // 0 to 5
  return stored >= 0 && stored < kNamed ? stored : kOtherGameType;
}
[[nodiscard]] std::string_view gameTypeText(int stored, const Texts& texts);
[[nodiscard]] std::string positionText(int position, const Texts& texts);

} // namespace hooptab
