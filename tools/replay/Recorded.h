// The game as its file has it on disk at the moment: whatever the replay waits for, it waits until it is
// there.
#pragma once

#include "game/GameFile.h"
#include "recording/OnCourt.h"
#include "tools/replay/Program.h"

#include <string>

namespace hooptab {

class Recorded {
 public:
  explicit Recorded(std::string path) : m_path(std::move(path)) {}

  const std::string& path() const { return m_path; }
  const Game& game() const { return m_game; } // as last read
  void read();
  [[nodiscard]] OnCourt onCourt() const;

  // `holds` is asked of the game on disk.
  template <typename Condition>
  void waitUntil(const std::string& what, Condition holds) {
    hooptab::waitUntil(what + " is on disk", [&] {
      read();
      return holds(m_game);
    });
  }

 private:
  FileSystem m_files;
  ProfileStore m_store{m_files};
  std::string m_path;
  Game m_game;
};

} // namespace hooptab
