// How well one colour is read on another, and colours that are shifted until they are. Contrasts are those of
// WCAG 2: 1 to 21, from the relative luminance of both.
#pragma once

#include <QColor>

namespace hooptab {

inline constexpr double kReadable = 4.5;   // text
inline constexpr double kRecognisable = 3; // large text, lines, borders of what can be pressed

[[nodiscard]] double contrast(const QColor& one, const QColor& other);
// Black or white, whichever reads better on that background: never below 4.58.
[[nodiscard]] QColor textOn(const QColor& background);
// `share` (0 to 1) of `colour` over `ground`.
[[nodiscard]] QColor mix(const QColor& colour, const QColor& ground, double share);
// The colour as a line or as text on a ground: towards black or white in steps of 5 % until the contrast
// needed is there.
[[nodiscard]] QColor lineOn(const QColor& colour, const QColor& ground, double need);
// What parts a fill from its ground, where it does not part by itself: a shade of its own on the side away
// from the ground; else the colour itself.
[[nodiscard]] QColor outlineOf(const QColor& fill, const QColor& ground);

} // namespace hooptab
