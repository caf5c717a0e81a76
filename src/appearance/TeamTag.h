// A team's abbreviation on its colour, as it stands in lists.
#pragma once

#include <QColor>
#include <QString>

class QPainter;
class QRect;

namespace hooptab {

// Wide enough for all abbreviations of seven letters but the very widest, which are cut.
[[nodiscard]] int teamTagWidth();
[[nodiscard]] int teamTagHeight();
// `ground` is what the tag stands on: a colour that is lost on it gets an outline.
void drawTeamTag(QPainter& painter, const QRect& rect, const QString& abbreviation, const QColor& colour,
                 const QColor& ground);

} // namespace hooptab
