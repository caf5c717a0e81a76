#include "shell/ProgramFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace hooptab {

namespace {

namespace fs = std::filesystem;

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

ProgramFolder usable(const fs::path& path) {
  std::error_code error;
  const fs::path whole = fs::canonical(path, error);
  if (error == std::errc::permission_denied)
    return {ProgramFolderProblem::CannotRead, path.string()};
  if (error)
    return {ProgramFolderProblem::Absent, path.string()};
  if (!fs::is_directory(whole, error))
    return {ProgramFolderProblem::NotAFolder, path.string()};
  if (::access(whole.c_str(), R_OK | X_OK) != 0)
    return {ProgramFolderProblem::CannotRead, path.string()};
  return {ProgramFolderProblem::None, whole.string()};
}

ProgramFolder made(const fs::path& path) {
  std::error_code error;
  fs::create_directories(path, error);
  std::error_code unseen; // of a folder in one that may not be entered
  if (error && !fs::exists(path, unseen))
    return {ProgramFolderProblem::CannotMake, path.string()};
  return usable(path);
}

bool isPortableInstall(const std::string& executableFolder) {
  std::error_code ignored;
  return !executableFolder.empty() && fs::is_regular_file(fs::path(executableFolder) / "CONFIG.INI", ignored);
}

} // namespace

ProgramFolderSources ProgramFolderSources::ofEnvironment(std::optional<std::string> commandLine,
                                                         std::string executableFolder) {
  return {std::move(commandLine), variable("HOOPTAB_FOLDER"), std::move(executableFolder),
          variable("XDG_DATA_HOME"), variable("HOME")};
}

ProgramFolder findProgramFolder(const ProgramFolderSources& sources) {
  if (sources.commandLine)
    return usable(*sources.commandLine);
  if (!sources.environment.empty())
    return usable(sources.environment);
  if (isPortableInstall(sources.executableFolder))
    return usable(sources.executableFolder);
  if (fs::path(sources.dataHome).is_absolute())
    return made(fs::path(sources.dataHome) / "hooptab");
  if (!sources.home.empty())
    return made(fs::path(sources.home) / ".local" / "share" / "hooptab");
  return {ProgramFolderProblem::NoHome, {}};
}

std::string message(const ProgramFolder& folder, const Texts& texts) {
  switch (folder.problem) {
  case ProgramFolderProblem::None: return {};
  case ProgramFolderProblem::Absent: return texts.withPlaceholder(Text::ProgramFolderMissing, folder.path);
  case ProgramFolderProblem::NotAFolder:
    return texts.withPlaceholder(Text::ProgramFolderNoFolder, folder.path);
  case ProgramFolderProblem::CannotMake:
    return texts.withPlaceholder(Text::ProgramFolderNotMade, folder.path);
  case ProgramFolderProblem::CannotRead:
    return texts.withPlaceholder(Text::ProgramFolderUnreadable, folder.path);
  case ProgramFolderProblem::NoHome: break;
  }
  return std::string(texts.text(Text::ProgramFolderNoPlace));
}

} // namespace hooptab
