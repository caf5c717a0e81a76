#include "forms/PageDecoder.h"

#include "forms/DecoderLimits.h"
#include "forms/PageAnswer.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {

namespace {

using Reason = PageRefusal::Reason;
using Clock = std::chrono::steady_clock;

constexpr int kGlanceMilliseconds = 20; // from one look at the watch to the next

class Pipe {
 public:
  Pipe() { m_isOpen = ::pipe2(m_ends, O_CLOEXEC) == 0; }
  ~Pipe() {
    if (m_isOpen) {
      ::close(m_ends[0]);
      closeWriting();
    }
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  bool isOpen() const { return m_isOpen; }
  int reading() const { return m_ends[0]; }
  int writing() const { return m_ends[1]; }
  void closeWriting() {
    if (m_ends[1] >= 0)
      ::close(m_ends[1]);
    m_ends[1] = -1;
  }

 private:
  int m_ends[2] = {-1, -1};
  bool m_isOpen = false;
};

class Process {
 public:
  ~Process() { (void)end(); }
  Process() = default;
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  // Of all that is open here it gets its standard output and ours for complaints. Gives errno.
  int start(const std::string& program, const std::string& path, int page, int output) {
    posix_spawn_file_actions_t actions;
    if (const int error = ::posix_spawn_file_actions_init(&actions); error != 0)
      return error;
    int error = ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (error == 0)
      error = ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    if (error == 0)
      error = ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    std::string words[] = {"hooptab", kDecodePageOption, path, std::to_string(page)};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
    if (error == 0)
      error = ::posix_spawn(&m_id, program.c_str(), &actions, nullptr, arguments, environ);
    if (error != 0)
      m_id = -1;
    ::posix_spawn_file_actions_destroy(&actions);
    return error;
  }
  // Gives how it ended, as wait() does: by itself, if it was about to.
  int end() {
    int status = 0;
    if (m_id < 0)
      return status;
    ::kill(m_id, SIGKILL);
    while (::waitpid(m_id, &status, 0) < 0 && errno == EINTR) {
    }
    m_id = -1;
    return status;
  }

 private:
  pid_t m_id = -1;
};

enum class Coming { Answer, Nothing, Nonsense, TooLate, Cancelled };

Coming receive(PageAnswer& answer, int source, std::chrono::seconds patience, const TaskWatch& watch) {
  const Clock::time_point end = Clock::now() + patience;
  while (!answer.isWhole()) {
    if (watch.isCancelled())
      return Coming::Cancelled;
    if (Clock::now() > end)
      return Coming::TooLate;
    pollfd watched{source, POLLIN, 0};
    if (::poll(&watched, 1, kGlanceMilliseconds) <= 0)
      continue;
    const std::span<std::uint8_t> room = answer.room();
    const ssize_t count = ::read(source, room.data(), room.size());
    if (count == 0)
      return Coming::Nothing;
    if (count > 0 && !answer.take(static_cast<std::size_t>(count)))
      return Coming::Nonsense;
  }
  return Coming::Answer;
}

// A process that came to its end without an answer was given up by the system when it had used its time.
PageRefusal refusalFor(int status) {
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU)
    return {Reason::TookTooLong, DecoderLimits{}.processorSeconds};
  return {Reason::BrokeOff};
}

ScannedPage refused(const PageRefusal& refusal, int pagesInFile = 0) {
  ScannedPage page;
  page.refusal = refusal;
  page.pagesInFile = pagesInFile;
  return page;
}

} // namespace

ScannedPage PageDecoder::decode(const std::string& path, int page, const TaskWatch& watch) const {
  Pipe pipe;
  if (!pipe.isOpen())
    return refused({Reason::CannotStart, errno});
  Process process;
  if (const int error = process.start(program, path, page, pipe.writing()); error != 0)
    return refused({Reason::CannotStart, error});
  pipe.closeWriting();
  PageAnswer answer;
  try {
    switch (receive(answer, pipe.reading(), patience, watch)) {
    case Coming::Answer: return std::move(answer.page());
    case Coming::Nothing: return refused(refusalFor(process.end()), answer.page().pagesInFile);
    case Coming::Nonsense: return refused({Reason::BrokeOff}, answer.page().pagesInFile);
    case Coming::TooLate:
      return refused({Reason::TookTooLong, static_cast<int>(patience.count())}, answer.page().pagesInFile);
    case Coming::Cancelled: return refused({Reason::Cancelled});
    }
  } catch (const std::bad_alloc&) { // here, not there
  }
  return refused({Reason::NoMemory}, answer.page().pagesInFile);
}

} // namespace hooptab
