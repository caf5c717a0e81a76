// The few calls of the operating system through which profile files reach the disk, behind one small
// interface so that tests can make each of them fail in turn. Knows nothing of profile files; AtomicFile puts
// the calls in order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/types.h>

namespace hooptab {

// What tells one state of a file from another: identity, size and time of the last change in nanoseconds.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t modifiedNanoseconds = 0;
  std::uint32_t mode = 0; // permission bits only
  std::uint32_t owner = 0;
  std::uint32_t group = 0;
  std::uint64_t names = 0; // hard links to it
  bool isRegular = false;

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// Every call returns as the system's own does: negative (or false) on failure, with errno saying why.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  virtual int open(const std::string& path, int flags, unsigned mode);
  virtual ssize_t read(int descriptor, char* buffer, std::size_t size);
  virtual ssize_t write(int descriptor, const char* bytes, std::size_t size);
  virtual int sync(int descriptor);
  virtual int setMode(int descriptor, unsigned mode);
  // Gives the file the owner and the group of `old`, as far as the system lets: often the group alone.
  virtual void keepOwner(int descriptor, const FileStamp& old);
  // Gives the file the extended attributes (access lists, labels) of the file at `from`, those that it takes.
  virtual void keepAttributes(int descriptor, const std::string& from);
  virtual int close(int descriptor);
  virtual int rename(const std::string& from, const std::string& to);
  virtual int remove(const std::string& path);
  virtual bool stamp(const std::string& path, FileStamp& result); // follows symbolic links
  virtual bool stamp(int descriptor, FileStamp& result);
  // Where the bytes of `path` stand, symbolic links resolved; `path` itself where nothing stands yet. A link
  // that leads nowhere fails, for what it points to may only be out of reach (a drive that was taken out).
  virtual bool resolve(const std::string& path, std::string& target);
  virtual std::int64_t nowNanoseconds(); // wall clock, for comparing with time stamps
};

} // namespace hooptab
