// What a game of ours can be exported as, for the window that asks: each kind makes its files from the game
// alone. The list of this room are the formats of other systems; whoever opens the window may add kinds.
#pragma once

#include "exchange/GameExport.h"
#include "game/CountedGame.h"
#include "storage/ProfileText.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace hooptab {

// A game with the text of its file, which holds ids and wall clocks.
struct GameToExport {
  std::shared_ptr<const CountedGame> counted;
  ProfileText text;
  bool isRunning = false; // it is being recorded here, so that its files can be kept up to date
  [[nodiscard]] const std::string& path() const { return counted->game.path; }
};

struct ExportKind {
  std::string key;       // by which the choice is remembered
  std::string name;      // as it is shown
  bool canFollow = true; // a running game
  // `stem` is what the names begin with.
  std::function<std::vector<ExportedFile>(const GameToExport& game, const std::string& stem)> files;
};

[[nodiscard]] std::vector<ExportKind> gameFormatKinds();

} // namespace hooptab
