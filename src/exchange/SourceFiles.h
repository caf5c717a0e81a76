// Files of other systems, found and recognised by what is in them, and those that belong to one game brought
// together: a name says nothing. Reads the game of such a group; writes nothing.
#pragma once

#include "foreign/ExchangeNote.h"
#include "foreign/ForeignGame.h"
#include "foreign/SourcePart.h"
#include "storage/FileSystem.h"
#include "storage/TaskWatch.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// What is longer is no game.
inline constexpr std::int64_t kLargestSourceFile = 64 * 1024 * 1024;

// The files of one game, the play-by-play first; or one file of which no game can be made.
struct SourceGroup {
  std::vector<std::string> files = {};
  std::optional<GameFormat> format = {};
  std::vector<SourceRole> roles = {}; // of the files, in their order
  ExchangeNote problem = {};
  // Files of one role that all fit, so that somebody has to say which is the game's.
  struct Choice {
    SourceRole role = SourceRole::Box;
    std::vector<std::string> files = {};
  };
  std::vector<Choice> choices = {};
};

// With one of the files of the first choice, or none of them where `file` is empty; the group as it is where
// it has no such file to choose.
[[nodiscard]] SourceGroup withChosen(SourceGroup group, const std::string& file);

// Paths as given, a folder's files in its place in order of name (not those of its folders), each file once.
[[nodiscard]] std::vector<std::string> filesOf(const std::vector<std::string>& paths);

// In the order in which the first file of each was given. With `wanted` files of every other format are a
// problem. Cancelled, the groups of what was looked at so far.
[[nodiscard]] std::vector<SourceGroup> recogniseFiles(FileSystem& files,
                                                      const std::vector<std::string>& paths,
                                                      std::optional<GameFormat> wanted,
                                                      const TaskWatch& watch);

// Throws UnreadableGame.
[[nodiscard]] ForeignGame readGroup(FileSystem& files, const SourceGroup& group);

} // namespace hooptab
