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

} // namespace hooptab
