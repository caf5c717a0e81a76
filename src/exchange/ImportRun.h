// Many games at once: finds and looks at those of many files, and takes the chosen ones in, one after the
// other. For a thread of its own: reads and writes through a store that it makes itself, and stops between
// two games when it is no longer wanted.
#pragma once

#include "exchange/GameImport.h"
#include "storage/TaskWatch.h"

#include <map>
#include <string>
#include <vector>

namespace hooptab {

// Which file was chosen for a play-by-play to which several fit: by its path, one after the other; empty for
// none of them.
using FileChoices = std::map<std::string, std::vector<std::string>>;

struct LookedAt {
  std::vector<ImportedGame> games;
  NameJoins joins; // of the folder
  std::vector<NameProposal> names;
  bool isWhole = true; // false: cancelled; what was looked at by then
};
// Files and folders, as they were given.
[[nodiscard]] LookedAt lookAtFiles(FileSystem& files, const std::vector<std::string>& paths,
                                   const FileChoices& choices, const ImportRequest& request,
                                   const TaskWatch& watch);
// Games that were recognised before, as after a change of the folder.
[[nodiscard]] LookedAt lookAtGroups(FileSystem& files, const std::vector<SourceGroup>& groups,
                                    const ImportRequest& request, const TaskWatch& watch);

// In the order of the groups; cancelled, those that were taken in or refused by then. Two games that would
// go to one file are never both written: the second is told.
[[nodiscard]] std::vector<ImportedGame> importGroups(FileSystem& files,
                                                     const std::vector<SourceGroup>& groups,
                                                     const ImportRequest& request, const TaskWatch& watch);

} // namespace hooptab
