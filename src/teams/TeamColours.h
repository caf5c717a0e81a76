// A table in a team's colour: the text on it, its grid and its selection stay readable on any colour.
#pragma once

#include <QColor>

class QAbstractItemView;

namespace hooptab {

void showTeamColour(QAbstractItemView& view, const QColor& colour);

} // namespace hooptab
