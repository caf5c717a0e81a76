// Abbreviations of basketball as everyone there uses them, for labels that the program is free to choose. In
// the columns of the box score FGM and F3M are fixed, and FG means two-pointers there: tool tips say so.
#pragma once

namespace hooptab {

inline constexpr const char* kTwoPointers = "2P";
inline constexpr const char* kThreePointers = "3P";

} // namespace hooptab
