#include "storage/FileSystem.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace hooptab {
namespace {

std::int64_t nanoseconds(const timespec& time) {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

FileStamp stampOf(const struct stat& status) {
  return {.device = status.st_dev,
          .inode = status.st_ino,
          .size = status.st_size,
          .modifiedNanoseconds = nanoseconds(status.st_mtim),
          .mode = status.st_mode & 07777U,
          .isRegular = S_ISREG(status.st_mode)};
}

} // namespace

int FileSystem::open(const std::string& path, int flags, unsigned mode) {
  return ::open(path.c_str(), flags, mode);
}

ssize_t FileSystem::read(int descriptor, char* buffer, std::size_t size) {
  return ::read(descriptor, buffer, size);
}

ssize_t FileSystem::write(int descriptor, const char* bytes, std::size_t size) {
  return ::write(descriptor, bytes, size);
}

int FileSystem::sync(int descriptor) {
  return ::fsync(descriptor);
}

int FileSystem::setMode(int descriptor, unsigned mode) {
  return ::fchmod(descriptor, mode);
}

int FileSystem::close(int descriptor) {
  return ::close(descriptor);
}

int FileSystem::rename(const std::string& from, const std::string& to) {
  return ::rename(from.c_str(), to.c_str());
}

int FileSystem::remove(const std::string& path) {
  return ::unlink(path.c_str());
}

bool FileSystem::stamp(const std::string& path, FileStamp& result) {
  struct stat status = {};
  if (::stat(path.c_str(), &status) != 0)
    return false;
  result = stampOf(status);
  return true;
}

bool FileSystem::stamp(int descriptor, FileStamp& result) {
  struct stat status = {};
  if (::fstat(descriptor, &status) != 0)
    return false;
  result = stampOf(status);
  return true;
}

bool FileSystem::resolve(const std::string& path, std::string& target) {
  const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.c_str(), nullptr), std::free);
  if (real) {
    target = real.get();
    return true;
  }
  struct stat status = {};
  if (errno != ENOENT || ::lstat(path.c_str(), &status) == 0 || errno != ENOENT)
    return false;
  target = path;
  return true;
}

std::int64_t FileSystem::nowNanoseconds() {
  timespec now = {};
  ::clock_gettime(CLOCK_REALTIME, &now);
  return nanoseconds(now);
}

} // namespace hooptab
