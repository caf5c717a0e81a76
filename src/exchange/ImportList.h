// What is to be said of the games that were found for an import: how each stands, in words, and what may be
// done with it. Reads and writes nothing.
#pragma once

#include "exchange/GameImport.h"
#include "settings/Texts.h"

#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

enum class ImportState : std::uint8_t {
  New,
  Imported,
  SameThere,
  OtherThere,
  TwoWays, // somebody has to choose a file
  NotWritten,
  Unreadable,
};
[[nodiscard]] ImportState stateOf(const ImportedGame& game);
// Whether the game could be read, so that something can be done with it.
[[nodiscard]] bool isReadable(ImportState state);
[[nodiscard]] bool canBeImported(ImportState state, bool replacesExisting);
[[nodiscard]] bool isInFolder(ImportState state); // this game, and no other

[[nodiscard]] std::string stateWords(const ImportedGame& game, const Texts& texts);
// Of the official numbers; empty for what could not be read.
[[nodiscard]] std::string numbersWords(const ImportedGame& game, const Texts& texts);
[[nodiscard]] std::string scoreWords(const ImportedGame& game);           // "78 - 81", visitors first
[[nodiscard]] std::string fileNames(const ImportedGame& game);            // without their folders
[[nodiscard]] std::string teamWords(const ImportedGame& game, Side team); // the name, or the abbreviation
[[nodiscard]] std::string shortTeam(const ImportedGame& game, Side team); // the other way round
// All that there is to know, a line each: what stands in the way, where the game goes, what was not taken.
[[nodiscard]] std::vector<std::string> linesAbout(const ImportedGame& game, const Texts& texts);

} // namespace hooptab
