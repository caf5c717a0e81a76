// Finds what the program ships beside its executable: sample games, help pages, the user guide. They stand in
// the executable's own folder (a portable install), or in ../share/hooptab seen from it (an installed
// program, and the build tree).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class SharedFiles {
 public:
  explicit SharedFiles(std::string executableFolder);

  // Where a file or folder is looked for, in this order.
  [[nodiscard]] std::vector<std::string> candidates(std::string_view name) const;
  // The first candidate that exists.
  [[nodiscard]] std::optional<std::string> find(std::string_view name) const;
  // Copies a shipped file into a folder that has none of that name. Returns whether the folder holds it
  // afterwards.
  bool provide(std::string_view name, const std::string& folder) const;

 private:
  std::string m_executableFolder;
};

} // namespace hooptab
