// Finds the program folder: the one that holds CONFIG.INI, the remembered windows and, at first, the games.
// Knows where to look, and makes the user's own folder on a first start; what stands in the folder is the
// business of others.
#pragma once

#include "settings/Texts.h"

#include <optional>
#include <string>

namespace hooptab {

// Where the folder may be named or stand. Empty texts count as absent.
struct ProgramFolderSources {
  std::optional<std::string> commandLine; // --folder
  std::string environment;                // HOOPTAB_FOLDER
  std::string executableFolder;           // counts only where it holds a CONFIG.INI: a portable install
  std::string dataHome;                   // XDG_DATA_HOME; a relative one is ignored, as its rules ask for
  std::string home;                       // HOME

  // With what the environment holds.
  static ProgramFolderSources ofEnvironment(std::optional<std::string> commandLine,
                                            std::string executableFolder);
};

enum class ProgramFolderProblem {
  None,
  Absent,     // the folder that was named does not exist: a typing error, or a drive that is not there
  NotAFolder, // something else stands there
  CannotMake, // the user's own folder could not be made
  CannotRead, // no right to look into it
  NoHome,     // nothing names a place
};

struct ProgramFolder {
  ProgramFolderProblem problem = ProgramFolderProblem::None;
  std::string path; // absolute, without symbolic links: one folder has one name
};

// A folder that is named has to exist; only the user's own one is made. One that can be read but not written
// is good enough to look at games.
[[nodiscard]] ProgramFolder findProgramFolder(const ProgramFolderSources& sources);

// One line for the user; empty without a problem.
[[nodiscard]] std::string message(const ProgramFolder& folder, const Texts& texts);

} // namespace hooptab
