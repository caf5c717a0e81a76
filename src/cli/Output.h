// The standard output: whole texts, written at once. A reader that goes away (a pipe into "head") is no error
// and asks for no more; any other failure is remembered.
#pragma once

#include "game/GameFile.h"
#include "settings/Texts.h"

#include <string>
#include <string_view>

namespace hooptab {

class Output {
 public:
  Output(); // from now on a closed pipe no longer ends the program
  void write(std::string_view text);
  // 0, or the error number of the write that failed.
  int error() const { return m_error; }

 private:
  bool m_isClosed = false;
  int m_error = 0;
};

// Why a file is no game, with what to do.
[[nodiscard]] std::string gameProblemWords(GameFileProblem problem, const Texts& texts);

} // namespace hooptab
