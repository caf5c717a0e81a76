// What stands against a new game, in words: the one place where its problems become sentences.
#pragma once

#include "settings/Texts.h"
#include "setup/NewGame.h"

#include <string>

namespace hooptab {

// All are empty, or no text, where nothing is wrong.
[[nodiscard]] Text textOf(const NewGame::Objection& objection);
[[nodiscard]] std::string wordsOf(const NewGame::AddedPlayer& added, const Texts& texts);
[[nodiscard]] std::string wordsOf(const QuickRoster& roster, const Texts& texts);

} // namespace hooptab
