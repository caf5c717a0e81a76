#include "cli/Output.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace hooptab {

Output::Output() {
  std::signal(SIGPIPE, SIG_IGN);
}

void Output::write(std::string_view text) {
  while (!text.empty() && !m_isClosed) {
    const ssize_t written = ::write(STDOUT_FILENO, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      m_isClosed = true;
      m_error = errno == EPIPE ? 0 : errno;
    }
  }
}

std::string gameProblemWords(GameFileProblem problem, const Texts& texts) {
  switch (problem) {
  case GameFileProblem::Absent: return std::string(texts.text(Text::NoSuchFile));
  case GameFileProblem::TooLarge: return std::string(texts.text(Text::TooLargeToBeAGame));
  case GameFileProblem::InvalidFormat: return texts.withPlaceholder(Text::NoGame, texts.text(Text::NotAGame));
  default: return std::string(texts.text(Text::CannotBeReadGiveAFile));
  }
}

} // namespace hooptab
