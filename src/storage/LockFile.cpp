#include "storage/LockFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <condition_variable>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

class Descriptor {
 public:
  explicit Descriptor(int value) : m_value(value) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (m_value >= 0)
      ::close(m_value);
  }
  bool isOpen() const { return m_value >= 0; }
  int get() const { return m_value; }
  int release() { return std::exchange(m_value, -1); }

 private:
  int m_value;
};

std::string readSome(int descriptor) {
  constexpr std::size_t kLongestText = 4096; // a lock has some hundred bytes
  std::string text(kLongestText, '\0');
  const ssize_t length = ::read(descriptor, text.data(), text.size());
  text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return text;
}

std::string firstLineOf(const char* path) {
  const Descriptor file(::open(path, O_RDONLY | O_CLOEXEC));
  std::string text = file.isOpen() ? readSome(file.get()) : std::string();
  return text.substr(0, text.find('\n'));
}

std::string thisComputer() {
  std::array<char, 256> name = {};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::string computerId() {
  const std::string id = firstLineOf("/etc/machine-id");
  return id.empty() ? firstLineOf("/var/lib/dbus/machine-id") : id;
}

std::string startId() {
  return firstLineOf("/proc/sys/kernel/random/boot_id");
}

// Of a running process; empty when there is none, or it is not told.
std::string programOf(long process) {
  std::array<char, 4096> target = {};
  const std::string link = "/proc/" + std::to_string(process) + "/exe";
  const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
  if (length <= 0)
    return {};
  std::string name(target.data(), static_cast<std::size_t>(length));
  name.erase(0, name.rfind('/') + 1);
  constexpr std::string_view kDeleted = " (deleted)"; // a program that was installed anew while it runs
  if (name.ends_with(kDeleted))
    name.resize(name.size() - kDeleted.size());
  return name;
}

// No two locks have the same, not even those of one process.
std::string ownText() {
  const long process = ::getpid();
  std::random_device random;
  return std::to_string(process) + '\n' + programOf(process) + '\n' + thisComputer() + '\n' + computerId() +
         '\n' + startId() + '\n' + std::to_string(random()) + std::to_string(random()) + '\n';
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  lines.resize(std::max<std::size_t>(lines.size(), 5));
  return lines;
}

// On this computer, and the same program; false also for one that ran before the last start.
bool isRunning(const LockFile::Owner& owner, const std::string& text) {
  const std::string start = linesOf(text)[4];
  if (!start.empty() && start != startId())
    return false;
  if (::kill(static_cast<pid_t>(owner.process), 0) != 0 && errno == ESRCH)
    return false;
  const std::string program = programOf(owner.process);
  return program.empty() || program == owner.program;
}

bool isSameFile(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

} // namespace

struct LockFile::Hold {
  Hold(int file, std::string written) : descriptor(file), text(std::move(written)) {}

  const Descriptor descriptor;
  const std::string text;
  std::mutex mutex;
  std::condition_variable changed;
  bool isReleased = false;

  void release() {
    {
      const std::lock_guard lock(mutex);
      isReleased = true;
    }
    changed.notify_all();
  }

  // The file that was made, whatever stands under its name by now.
  static void renew(const std::shared_ptr<Hold>& hold, std::chrono::milliseconds every) {
    std::unique_lock lock(hold->mutex);
    while (!hold->changed.wait_for(lock, every, [&] { return hold->isReleased; })) {
      lock.unlock();
      (void)::futimens(hold->descriptor.get(), nullptr);
      lock.lock();
    }
  }
};

LockFile::LockFile(std::string path, std::chrono::milliseconds renewal)
    : m_path(std::move(path)), m_renewal(renewal) {}

LockFile::~LockFile() {
  release();
}

LockFile::Outcome LockFile::acquire() {
  if (isHeld())
    return Outcome::Held;
  const Outcome outcome = make();
  return outcome == Outcome::HeldElsewhere && removeIfOwnerIsGone() ? make() : outcome;
}

LockFile::Outcome LockFile::make() {
  Descriptor file(::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666));
  if (!file.isOpen())
    return errno == EEXIST ? Outcome::HeldElsewhere : Outcome::CannotBeMade;
  (void)::flock(file.get(), LOCK_EX | LOCK_NB); // older versions ask for it; some file systems have none
  const std::string text = ownText();
  if (::write(file.get(), text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    ::unlink(m_path.c_str());
    return Outcome::CannotBeMade;
  }
  (void)::fsync(file.get());
  m_hold = std::make_shared<Hold>(file.release(), text);
  std::thread(&Hold::renew, m_hold, m_renewal).detach();
  return Outcome::Held;
}

// Two that find it at once: whoever has locked the old file itself removes it, and the other one leaves.
bool LockFile::removeIfOwnerIsGone() const {
  const Descriptor file(::open(m_path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
  if (!file.isOpen())
    return errno == ENOENT;
  if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
    return false;
  const Sight seen = look();
  const Owner owner = ownerOf(seen);
  struct stat own = {};
  if (!seen.isThere || ::fstat(file.get(), &own) != 0 || own.st_ino != seen.inode ||
      own.st_dev != seen.device)
    return !seen.isThere;
  return owner.isKnown && owner.isOfThisComputer && !isRunning(owner, seen.text) &&
         ::unlink(m_path.c_str()) == 0;
}

LockFile::Outcome LockFile::takeOver(const Sight& watched) {
  if (isHeld())
    return Outcome::Held;
  if (look() != watched)
    return Outcome::HeldElsewhere;
  if (watched.isThere && ::unlink(m_path.c_str()) != 0 && errno != ENOENT)
    return Outcome::CannotBeMade;
  return make();
}

bool LockFile::isStillOurs() {
  if (!isHeld())
    return false;
  struct stat own = {};
  struct stat standing = {};
  if (::fstat(m_hold->descriptor.get(), &own) != 0)
    return true;
  if (::lstat(m_path.c_str(), &standing) == 0)
    return isSameFile(own, standing) ||
           look().text == m_hold->text; // numbers of files are not steady everywhere
  if (errno != ENOENT)
    return true;
  const std::shared_ptr<Hold> deleted = m_hold;
  const Outcome outcome = make();
  if (outcome == Outcome::Held)
    deleted->release();
  return outcome != Outcome::HeldElsewhere;
}

LockFile::Sight LockFile::look() const {
  Sight sight;
  struct stat status = {};
  if (::lstat(m_path.c_str(), &status) != 0)
    return sight;
  sight.isThere = true;
  sight.device = status.st_dev;
  sight.inode = status.st_ino;
  sight.renewedNanoseconds = std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
  const Descriptor file(::open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
  if (file.isOpen() && S_ISREG(status.st_mode))
    sight.text = readSome(file.get());
  return sight;
}

LockFile::Owner LockFile::ownerOf(const Sight& sight) {
  const std::vector<std::string> lines = linesOf(sight.text);
  Owner owner;
  owner.renewedSeconds = sight.renewedNanoseconds / 1'000'000'000;
  const std::string& process = lines[0];
  const auto [end, error] = std::from_chars(process.data(), process.data() + process.size(), owner.process);
  owner.isKnown = error == std::errc() && end == process.data() + process.size() && owner.process > 0 &&
                  !lines[1].empty();
  if (!owner.isKnown)
    return owner;
  owner.program = lines[1];
  owner.computer = lines[2];
  const std::string id = computerId();
  owner.isOfThisComputer =
      owner.computer == thisComputer() && (lines[3].empty() || id.empty() || lines[3] == id);
  return owner;
}

void LockFile::release() {
  if (!isHeld())
    return;
  struct stat own = {};
  struct stat standing = {};
  if (::fstat(m_hold->descriptor.get(), &own) == 0 && ::lstat(m_path.c_str(), &standing) == 0 &&
      (isSameFile(own, standing) || look().text == m_hold->text))
    ::unlink(m_path.c_str());
  m_hold->release();
  m_hold.reset();
}

} // namespace hooptab
