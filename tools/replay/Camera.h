// Pictures of the whole screen at chosen moments, for people to look at; none where no folder is given.
#pragma once

#include <set>
#include <string>

namespace hooptab {

class Camera {
 public:
  explicit Camera(std::string folder) : m_folder(std::move(folder)) {}
  // Once for each name.
  void take(const std::string& name);

 private:
  std::string m_folder;
  std::set<std::string> m_taken;
};

} // namespace hooptab
