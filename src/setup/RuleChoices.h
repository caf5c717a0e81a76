// The choices of rules and of a level, as lists show them: with none first, and by the names of the language
// in use. What an entry stands for is its data.
#pragma once

#include "game/GameDetails.h"
#include "settings/Texts.h"

#include <string_view>

class QComboBox;

namespace hooptab {

// The key of a set as data. A key that is none of them, which a later program may have written, is an entry
// of its own.
void fillRuleSets(QComboBox& choice, std::string_view chosen, const Texts& texts);
void fillLevels(QComboBox& choice, RecordingLevel chosen, const Texts& texts);

} // namespace hooptab
