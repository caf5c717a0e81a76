#include "storage/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace hooptab {
namespace {

// An open file that is closed on every way out. Where the outcome of close matters, close() is called.
class Descriptor {
 public:
  Descriptor(FileSystem& files, const std::string& path, int flags, unsigned mode = 0) : m_files(files) {
    do
      m_value = files.open(path, flags | O_CLOEXEC, mode);
    while (m_value < 0 && errno == EINTR);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (isOpen())
      m_files.close(m_value);
  }

  bool isOpen() const { return m_value >= 0; }
  int get() const { return m_value; }
  // The descriptor is gone afterwards whatever the outcome; an interrupted close has closed.
  bool close() {
    const int value = m_value;
    m_value = -1;
    return m_files.close(value) == 0 || errno == EINTR;
  }

 private:
  FileSystem& m_files;
  int m_value = -1;
};

bool writeAll(FileSystem& files, int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = files.write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR)
      continue;
    if (written <= 0)
      return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool syncFile(FileSystem& files, int descriptor) {
  int result;
  do
    result = files.sync(descriptor);
  while (result != 0 && errno == EINTR);
  return result == 0;
}

// Some network file systems know no fsync of a folder and say EINVAL: there is nothing more that could be
// done.
bool syncFolder(FileSystem& files, int descriptor) {
  return syncFile(files, descriptor) || errno == EINVAL;
}

struct Place {
  std::string folder;
  std::string temporary;
};

// A fixed name, so that what a killed process left is found and replaced by the next write. It ends in no
// extension that a scan for games takes. A name too long for the suffix is shortened, never within a UTF-8
// sequence.
Place placeOf(const std::string& target) {
  constexpr std::size_t kLongestName = 230;
  const std::size_t slash = target.rfind('/');
  std::string name = slash == std::string::npos ? target : target.substr(slash + 1);
  if (name.size() > kLongestName) {
    std::size_t length = kLongestName;
    while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80)
      --length;
    name.resize(length);
  }
  const std::string prefix = slash == std::string::npos ? "" : target.substr(0, slash + 1);
  return {prefix.empty() ? "." : prefix, prefix + "." + name + ".hooptab-new"};
}

// Writes `bytes` durably to the temporary file, which must not exist. `old` is the file that it will replace,
// if any, and stands at `target`.
bool writeTemporary(FileSystem& files, const std::string& path, std::string_view bytes, const FileStamp* old,
                    const std::string& target, FileStamp& stamp) {
  Descriptor file(files, path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, old ? 0600 : 0666);
  if (!file.isOpen())
    return false;
  if (old != nullptr) { // before the mode, which a change of owner cuts
    files.keepOwner(file.get(), *old);
    files.keepAttributes(file.get(), target);
  }
  const bool isWritten = writeAll(files, file.get(), bytes) &&
                         (!old || files.setMode(file.get(), old->mode) == 0) && syncFile(files, file.get()) &&
                         files.stamp(file.get(), stamp);
  return file.close() && isWritten;
}

// Another process that writes the same file could have put its own temporary file, half written, under our
// name.
bool isStillOurs(FileSystem& files, const std::string& path, const FileStamp& written) {
  FileStamp standing;
  return files.stamp(path, standing) && standing.device == written.device && standing.inode == written.inode;
}

// Writing takes its time, most of all on a stick: what others have done to the file meanwhile is not covered.
bool isAsItWas(FileSystem& files, const std::string& target, const FileStamp* old) {
  FileStamp now;
  const bool isThere = files.stamp(target, now);
  return old != nullptr ? isThere && now == *old : !isThere && errno == ENOENT;
}

} // namespace

ReadOutcome readWholeFile(FileSystem& files, const std::string& path, std::string& bytes, FileStamp& stamp) {
  bytes.clear();
  // Without O_NONBLOCK a pipe would hold the program until somebody writes to it.
  Descriptor file(files, path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (!file.isOpen())
    return errno == ENOENT || errno == ENOTDIR ? ReadOutcome::Absent : ReadOutcome::Failed;
  // The stamp is taken before the bytes: a change made meanwhile shows as a different stamp later.
  if (!files.stamp(file.get(), stamp) || !stamp.isRegular)
    return ReadOutcome::Failed;
  if (stamp.size > kLargestProfileFile)
    return ReadOutcome::TooLarge;

  std::size_t length = 0;
  bytes.resize(static_cast<std::size_t>(stamp.size) + 1); // one more, so that the end is seen without growing
  while (true) {
    const ssize_t count = files.read(file.get(), bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR)
      continue;
    if (count < 0) {
      bytes.clear();
      return ReadOutcome::Failed;
    }
    if (count == 0)
      break;
    length += static_cast<std::size_t>(count);
    if (length > static_cast<std::size_t>(kLargestProfileFile)) {
      bytes.clear();
      return ReadOutcome::TooLarge;
    }
    if (length == bytes.size())
      bytes.resize(bytes.size() * 2);
  }
  bytes.resize(length);
  return ReadOutcome::Read;
}

bool replaceWholeFile(FileSystem& files, const std::string& path, std::string_view bytes, FileStamp& stamp,
                      const FileStamp* read) {
  std::string target;
  if (!files.resolve(path, target))
    return false;

  FileStamp old;
  const bool exists = files.stamp(target, old);
  if (!exists && errno != ENOENT)
    return false;
  if (read != nullptr && old != *read)
    return false;
  if (exists) {
    constexpr std::uint32_t kAnyWriteBit = 0222;
    if (!old.isRegular || (old.mode & kAnyWriteBit) == 0)
      return false;
    // Replacing asks rights of the folder alone; whoever may not write the file itself must not replace it
    // either.
    if (!Descriptor(files, target, O_WRONLY | O_NONBLOCK | O_NOCTTY).isOpen())
      return false;
  }

  const Place place = placeOf(target);
  Descriptor folder(files, place.folder, O_RDONLY | O_DIRECTORY);
  if (!folder.isOpen())
    return false;

  files.remove(place.temporary);
  FileStamp written;
  const bool isReplaced =
      writeTemporary(files, place.temporary, bytes, exists ? &old : nullptr, target, written) &&
      isStillOurs(files, place.temporary, written) && isAsItWas(files, target, exists ? &old : nullptr) &&
      files.rename(place.temporary, target) == 0;
  if (!isReplaced) {
    files.remove(place.temporary);
    return false;
  }
  stamp = written;
  return syncFolder(files, folder.get());
}

std::string freeNameBeside(FileSystem& files, const std::string& path) {
  FileStamp taken;
  std::string target;
  for (int number = 1;; ++number) {
    std::string name = path + '.' + std::to_string(number);
    if (files.stamp(name, taken))
      continue;
    if (errno != ENOENT)
      return {};
    if (files.resolve(name, target)) // a link that leads nowhere has the name, too
      return name;
  }
}

} // namespace hooptab
