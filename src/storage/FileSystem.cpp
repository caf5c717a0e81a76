#include "storage/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/xattr.h>
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
          .owner = status.st_uid,
          .group = status.st_gid,
          .names = status.st_nlink,
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

void FileSystem::keepOwner(int descriptor, const FileStamp& old) {
  if (::fchown(descriptor, old.owner, old.group) == 0)
    return;
  constexpr auto kAsItIs = static_cast<uid_t>(-1);
  [[maybe_unused]] const int ignored = ::fchown(descriptor, kAsItIs, old.group);
}

void FileSystem::keepAttributes(int descriptor, const std::string& from) {
  const ssize_t size = ::listxattr(from.c_str(), nullptr, 0);
  if (size <= 0)
    return;
  std::string names(static_cast<std::size_t>(size), '\0');
  const ssize_t listed = ::listxattr(from.c_str(), names.data(), names.size());
  names.resize(static_cast<std::size_t>(std::max<ssize_t>(listed, 0)));
  for (const char* name = names.c_str(); name < names.data() + names.size(); name += std::strlen(name) + 1) {
    constexpr std::size_t kLargestAttribute = 65536; // that a Linux file can have
    std::string value(kLargestAttribute, '\0');
    const ssize_t length = ::getxattr(from.c_str(), name, value.data(), value.size());
    if (length >= 0)
      (void)::fsetxattr(descriptor, name, value.data(), static_cast<std::size_t>(length), 0);
  }
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
