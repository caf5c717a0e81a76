// Takes the game of one group of files into a folder of ours, as a file of its own; or only looks what it
// would be. An existing file is replaced only where that is asked for, and never one that somebody has open.
#pragma once

#include "exchange/NameJoins.h"
#include "exchange/PlayerNames.h"
#include "exchange/Reconciliation.h"
#include "exchange/SourceFiles.h"
#include "foreign/ForeignGame.h"
#include "storage/ProfileStore.h"

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace hooptab {

struct ImportRequest {
  std::string folder;
  std::string date = {}; // yyyy-mm-dd, of a game whose files say none; empty: it has none
  bool replacesExisting = false;
  const NameJoins* joins = nullptr; // names to write in the place of the files' own
  PlayerNames* names = nullptr;     // is told those of the files
  // What was written in this run, and is no longer replaced: two games that would go to one file.
  const std::set<std::string>* written = nullptr;
};

struct ImportedGame {
  SourceGroup group;
  ExchangeNote problem = {}; // nothing was written
  StorageError error = {};   // why, where the disk gave or took something not
  std::string path = {};     // of the game, also where it was only looked at; empty with most problems
  bool isWritten = false;
  std::string date = {};
  PerSide<std::string> names = {};
  PerSide<std::string> abbreviations = {};
  PerSide<int> points = {};
  bool isFinished = false;
  std::map<std::string, int> unknown = {};
  int compared = 0; // official numbers
  std::vector<Difference> differences = {};
  std::vector<ExchangeNote> notes = {};
};

// In words: the disk's reason, where that is the problem.
[[nodiscard]] std::string problemWords(const ImportedGame& game, const Texts& texts);

// Reads and counts, and writes nothing: `path` is where it would go, and `problem` says what stands in the
// way.
[[nodiscard]] ImportedGame lookAtGame(ProfileStore& store, const SourceGroup& group,
                                      const ImportRequest& request);
[[nodiscard]] ImportedGame importGame(ProfileStore& store, const SourceGroup& group,
                                      const ImportRequest& request);

} // namespace hooptab
