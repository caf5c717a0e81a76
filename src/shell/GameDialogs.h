// Asking for a game file, and saying why one cannot be opened.
#pragma once

#include "game/GameFile.h"
#include "settings/Text.h"

#include <QString>

class QWidget;

namespace hooptab {

struct Workshop;

// Begins in the folder of the game that was opened last; empty when cancelled.
[[nodiscard]] QString askForGame(const Workshop& workshop, QWidget* window, Text title);
[[nodiscard]] QString refusal(const Workshop& workshop, GameFileProblem problem, const QString& path);
void refuse(const Workshop& workshop, QWidget* window, GameFileProblem problem, const QString& path);

} // namespace hooptab
