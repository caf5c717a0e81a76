#include "tools/replay/Program.h"

#include <csignal>
#include <poll.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {

Program::Program(const std::vector<std::string>& commandLine) {
  int input[2];
  int output[2];
  if (::pipe(input) != 0 || ::pipe(output) != 0)
    throw ReplayFailure("no pipes");
  m_process = ::fork();
  if (m_process == 0) {
    ::dup2(input[0], STDIN_FILENO);
    ::dup2(output[1], STDOUT_FILENO);
    for (const int end : {input[0], input[1], output[0], output[1]})
      ::close(end);
    std::vector<char*> words;
    for (const std::string& word : commandLine)
      words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    ::execv(words[0], words.data());
    ::_exit(127);
  }
  ::close(input[0]);
  ::close(output[1]);
  m_toProgram = input[1];
  m_fromProgram = output[0];
}

Program::~Program() {
  ::close(m_toProgram);
  ::close(m_fromProgram);
  if (m_process > 0) {
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
  }
}

int Program::waitForEnd() {
  int status = -1;
  waitUntil(
      "the program ends", [&] { return ::waitpid(m_process, &status, WNOHANG) == m_process; }, 30);
  m_process = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string Program::ask(const std::string& line) {
  constexpr int kPatience = 20'000; // milliseconds
  const std::string bytes = line + '\n';
  if (::write(m_toProgram, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
    throw ReplayFailure("the program listens no more");
  for (;;) {
    if (const std::size_t end = m_heard.find('\n'); end != std::string::npos) {
      std::string answer = m_heard.substr(0, end);
      m_heard.erase(0, end + 1);
      if (answer.starts_with("error"))
        throw ReplayFailure(line + ": " + answer);
      return answer;
    }
    pollfd waiting = {m_fromProgram, POLLIN, 0};
    char buffer[512];
    const ssize_t count =
        ::poll(&waiting, 1, kPatience) > 0 ? ::read(m_fromProgram, buffer, sizeof buffer) : 0;
    if (count <= 0)
      throw ReplayFailure("the program does not answer: " + line);
    m_heard.append(buffer, static_cast<std::size_t>(count));
  }
}

Program::Place Program::where(const std::string& control) {
  Place place;
  std::istringstream words(ask("where " + control));
  std::string shown;
  std::string enabled;
  std::string active;
  if (!(words >> place.x >> place.y >> place.width >> place.height >> shown >> enabled >> active))
    return {};
  place.isShown = shown == "shown";
  place.isEnabled = enabled == "enabled";
  place.isActive = active == "active";
  return place;
}

std::string Program::text(const std::string& control) {
  return ask("text " + control);
}

// In a label of their own, or behind the words of the question; with "_" behind while there are any.
std::string Program::typedIn(const std::string& form) {
  const bool hasOwn = isShown(form + "lblTYPED");
  const std::string shown = text(form + (hasOwn ? "lblTYPED" : "lblQUESTION"));
  if (!shown.ends_with('_'))
    return {};
  const std::size_t before = shown.find_last_of(' ');
  const std::size_t first = before == std::string::npos ? 0 : before + 1;
  return shown.substr(first, shown.size() - 1 - first);
}

void Program::setTime(std::int64_t seconds) {
  (void)ask("time " + std::to_string(seconds));
}

void Program::waitUntilShown(const std::string& control) {
  waitUntil(control + " is shown", [&] { return isShown(control); });
}

void Program::waitUntilActive(const std::string& control) {
  waitUntil(control + " has the keys", [&] {
    const Place place = where(control);
    return place.isShown && place.isActive;
  });
}

void Program::waitUntilGone(const std::string& control) {
  waitUntil(control + " is gone", [&] { return !isShown(control); });
}

} // namespace hooptab
