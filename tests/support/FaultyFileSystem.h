// A file system whose calls can be made to fail in turn: the n-th call, or that one and all after it. Also
// one that is merely awkward: short reads and writes, interrupted calls. Lets another hand in between two
// calls. Counts what it is asked for.
#pragma once

#include "storage/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <functional>

namespace hooptab {

class FaultyFileSystem : public FileSystem {
 public:
  int failAt = -1;          // number of the call that fails, from 0; negative for none
  bool staysBroken = false; // every later call fails, too
  int error = EIO;
  bool interrupts = false; // every second open, read, write and sync is interrupted before it does anything
  std::size_t mostBytes = SIZE_MAX; // per read and write
  int disturbedAt = -1;             // number of the call before which `disturbance` happens
  std::function<void()> disturbance;
  bool syncs = true; // where a test has very many writes, and nothing looks at what a power cut would leave

  int calls = 0;
  int reads = 0;
  int renames = 0;
  bool hasFailed = false;
  void reset() { *this = {}; }

  int open(const std::string& path, int flags, unsigned mode) override {
    return fails() || isInterrupted() ? -1 : FileSystem::open(path, flags, mode);
  }
  ssize_t read(int descriptor, char* buffer, std::size_t size) override {
    ++reads;
    return fails() || isInterrupted() ? -1 : FileSystem::read(descriptor, buffer, std::min(size, mostBytes));
  }
  // A write that fails for want of room has often taken a part first.
  ssize_t write(int descriptor, const char* bytes, std::size_t size) override {
    if (fails()) {
      if (FileSystem::write(descriptor, bytes, size / 2) < 0)
        return -1;
      errno = error;
      return -1;
    }
    return isInterrupted() ? -1 : FileSystem::write(descriptor, bytes, std::min(size, mostBytes));
  }
  int sync(int descriptor) override {
    if (!syncs)
      return 0;
    return fails() || isInterrupted() ? -1 : FileSystem::sync(descriptor);
  }
  int setMode(int descriptor, unsigned mode) override {
    return fails() ? -1 : FileSystem::setMode(descriptor, mode);
  }
  // Closes in any case, as the system does.
  int close(int descriptor) override {
    const bool failed = fails();
    const int result = FileSystem::close(descriptor);
    errno = failed ? error : errno;
    return failed ? -1 : result;
  }
  int rename(const std::string& from, const std::string& to) override {
    ++renames;
    return fails() ? -1 : FileSystem::rename(from, to);
  }
  int remove(const std::string& path) override { return fails() ? -1 : FileSystem::remove(path); }
  bool stamp(const std::string& path, FileStamp& result) override {
    return !fails() && FileSystem::stamp(path, result);
  }
  bool stamp(int descriptor, FileStamp& result) override {
    return !fails() && FileSystem::stamp(descriptor, result);
  }
  bool resolve(const std::string& path, std::string& target) override {
    return !fails() && FileSystem::resolve(path, target);
  }

 private:
  bool fails() {
    const int call = calls++;
    if (call == disturbedAt)
      disturbance();
    if (failAt < 0 || call < failAt || (call > failAt && !staysBroken))
      return false;
    hasFailed = true;
    errno = error;
    return true;
  }
  bool isInterrupted() {
    if (!interrupts || (m_turn = !m_turn) == false)
      return false;
    errno = EINTR;
    return true;
  }
  bool m_turn = false;
};

} // namespace hooptab
