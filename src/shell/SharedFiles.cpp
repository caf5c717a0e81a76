#include "shell/SharedFiles.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace hooptab {

namespace fs = std::filesystem;

SharedFiles::SharedFiles(std::string executableFolder) : m_executableFolder(std::move(executableFolder)) {}

std::vector<std::string> SharedFiles::candidates(std::string_view name) const {
  const fs::path folder(m_executableFolder);
  return {(folder / name).lexically_normal().string(),
          (folder / ".." / "share" / "hooptab" / name).lexically_normal().string()};
}

std::optional<std::string> SharedFiles::find(std::string_view name) const {
  for (std::string& candidate : candidates(name)) {
    std::error_code ignored;
    if (fs::exists(candidate, ignored))
      return std::move(candidate);
  }
  return std::nullopt;
}

bool SharedFiles::provide(std::string_view name, const std::string& folder) const {
  const fs::path target = fs::path(folder) / name;
  std::error_code error;
  if (fs::exists(target, error))
    return true;
  const std::optional<std::string> shipped = find(name);
  return shipped && fs::copy_file(*shipped, target, error);
}

} // namespace hooptab
