// The program's own icons by name ("vwopen"), drawn in the palette's colours and rendered only when a pixmap
// is needed.
#pragma once

#include <QIcon>
#include <QString>

namespace hooptab {

// Files are :/icons/NAME.svg; #000000 in them becomes the text colour, #d9822b the accent. Follows a change
// of theme.
[[nodiscard]] QIcon icon(const QString& name);

} // namespace hooptab
