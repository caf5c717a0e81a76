// How what a check has found can be mended: which dialogs fit, at which event, and who is to come in. Decides
// for the menu that offers them; mends nothing itself.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"
#include "game/Side.h"
#include "recording/Substitution.h"
#include "settings/Texts.h"

#include <string>
#include <vector>

namespace hooptab {

struct LiveRepair {
  enum class Kind { Substitution, Change, Deletion };
  Kind kind = Kind::Change;
  Text text = Text::None; // its words; XXX is the player who comes in
  EventPlace event = {};  // to change or delete
  PastSubstitution past = {};
  Side team = Side::Visitor;
  int player = 0; // entry of who comes in; 0: the user chooses
};

// The likeliest first; none for what no dialog mends.
[[nodiscard]] std::vector<LiveRepair> repairsOf(const Finding& finding, const Game& game);
[[nodiscard]] std::string wordsOf(const LiveRepair& repair, const Game& game, const Texts& texts);

} // namespace hooptab
