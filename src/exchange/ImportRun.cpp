#include "exchange/ImportRun.h"

#include <set>

namespace hooptab {

LookedAt lookAtGroups(FileSystem& files, const std::vector<SourceGroup>& groups, const ImportRequest& request,
                      const TaskWatch& watch) {
  ProfileStore store(files);
  LookedAt looked;
  PlayerNames names;
  looked.joins = NameJoins::of(store, request.folder);
  ImportRequest look = request;
  look.replacesExisting = false; // what is there is to be seen
  look.joins = &looked.joins;
  look.names = &names;
  for (std::size_t i = 0; i < groups.size() && !watch.isCancelled(); ++i) {
    watch.progress(i, groups.size());
    looked.games.push_back(lookAtGame(store, groups[i], look));
  }
  looked.isWhole = !watch.isCancelled();
  looked.names = names.proposals();
  std::erase_if(looked.names, [&](const NameProposal& proposal) {
    return looked.joins.written(proposal.team, proposal.name) == proposal.written;
  });
  return looked;
}

LookedAt lookAtFiles(FileSystem& files, const std::vector<std::string>& paths, const FileChoices& choices,
                     const ImportRequest& request, const TaskWatch& watch) {
  std::vector<SourceGroup> groups = recogniseFiles(files, filesOf(paths), std::nullopt, watch);
  for (SourceGroup& group : groups) {
    const auto chosen = choices.find(group.files.front());
    if (chosen == choices.end())
      continue;
    for (const std::string& file : chosen->second)
      group = withChosen(std::move(group), file);
  }
  return lookAtGroups(files, groups, request, watch);
}

std::vector<ImportedGame> importGroups(FileSystem& files, const std::vector<SourceGroup>& groups,
                                       const ImportRequest& request, const TaskWatch& watch) {
  ProfileStore store(files);
  const NameJoins joins = NameJoins::of(store, request.folder);
  ImportRequest one = request;
  one.joins = &joins;
  std::set<std::string> written;
  one.written = &written;
  std::vector<ImportedGame> games;
  for (std::size_t i = 0; i < groups.size() && !watch.isCancelled(); ++i) {
    watch.progress(i, groups.size());
    games.push_back(importGame(store, groups[i], one));
    if (games.back().isWritten)
      written.insert(games.back().path);
  }
  return games;
}

} // namespace hooptab
