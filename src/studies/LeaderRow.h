// Draws a leader as a row: place, name, team and value.
#pragma once

#include "season/Leaders.h"

#include <QColor>
#include <QRect>

class QPainter;

namespace hooptab {

// A team's tag at the left of an area, whose room it takes off.
void drawTagLeft(QPainter& painter, QRect& area, const SeasonTeam& team, const QColor& ground);

enum class LeaderWeight { Plain, Foremost };
// The value has that room at the right.
void drawLeader(QPainter& painter, QRect area, const Leader& leader, const SeasonTeam& team, int valueRoom,
                LeaderWeight weight, const QColor& ground);

} // namespace hooptab
