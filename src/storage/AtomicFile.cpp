#include "storage/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace hooptab {
namespace {

using Call = StorageError::Call;

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

// A write that takes nothing, and says no error, would do so forever.
bool writeAll(FileSystem& files, int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = files.write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR)
      continue;
    if (written == 0)
      errno = ENOSPC;
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
WriteResult writeTemporary(FileSystem& files, const std::string& path, std::string_view bytes,
                           const FileStamp* old, const std::string& target, FileStamp& stamp) {
  Descriptor file(files, path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, old ? 0600 : 0666);
  if (!file.isOpen())
    return StorageError::ofCall(Call::Open, target);
  if (old != nullptr) { // before the mode, which a change of owner cuts
    files.keepOwner(file.get(), *old);
    files.keepAttributes(file.get(), target);
  }
  if (!writeAll(files, file.get(), bytes))
    return StorageError::ofCall(Call::Write, target);
  if (old != nullptr && files.setMode(file.get(), old->mode) != 0)
    return StorageError::ofCall(Call::SetMode, target);
  if (!syncFile(files, file.get()))
    return StorageError::ofCall(Call::Sync, target);
  if (!files.stamp(file.get(), stamp))
    return StorageError::ofCall(Call::Stamp, target);
  return file.close() ? WriteResult() : StorageError::ofCall(Call::Close, target);
}

// Another process that writes the same file could have put its own temporary file, half written, under our
// name.
WriteResult isStillOurs(FileSystem& files, const std::string& path, const FileStamp& written,
                        const std::string& target) {
  FileStamp standing;
  if (!files.stamp(path, standing))
    return StorageError::ofCall(Call::Stamp, target);
  if (standing.device != written.device || standing.inode != written.inode)
    return StorageError{Call::ChangedMeanwhile, 0, target};
  return {};
}

// Writing takes its time, most of all on a stick: what others have done to the file meanwhile is not covered.
WriteResult isAsItWas(FileSystem& files, const std::string& target, const FileStamp* old) {
  FileStamp now;
  const bool isThere = files.stamp(target, now);
  if (!isThere && errno != ENOENT)
    return StorageError::ofCall(Call::Stamp, target);
  if (isThere ? old == nullptr || now != *old : old != nullptr)
    return StorageError{Call::ChangedMeanwhile, 0, target};
  return {};
}

// The whole way of the new bytes to their place, but for the folder's own fsync.
WriteResult putInPlace(FileSystem& files, const Place& place, const std::string& target,
                       std::string_view bytes, const FileStamp* old, FileStamp& written) {
  if (WriteResult result = writeTemporary(files, place.temporary, bytes, old, target, written);
      !result.isOnDisk())
    return result;
  if (WriteResult result = isStillOurs(files, place.temporary, written, target); !result.isOnDisk())
    return result;
  if (WriteResult result = isAsItWas(files, target, old); !result.isOnDisk())
    return result;
  return files.rename(place.temporary, target) == 0 ? WriteResult()
                                                    : StorageError::ofCall(Call::Rename, target);
}

// Whether the file that stands there may be replaced. Replacing asks rights of the folder alone; whoever may
// not write the file itself must not replace it either.
WriteResult mayBeReplaced(FileSystem& files, const std::string& target, const FileStamp& old) {
  constexpr std::uint32_t kAnyWriteBit = 0222;
  if (!old.isRegular)
    return StorageError{Call::NotAFile, 0, target};
  if ((old.mode & kAnyWriteBit) == 0)
    return StorageError{Call::WriteProtected, 0, target};
  if (!Descriptor(files, target, O_WRONLY | O_NONBLOCK | O_NOCTTY).isOpen())
    return StorageError::ofCall(Call::Open, target);
  return {};
}

// Into `bytes`, from a file that is open; whatever it holds where that is not the outcome.
ReadOutcome readAll(FileSystem& files, int descriptor, std::int64_t size, std::int64_t largest,
                    std::string& bytes) {
  std::size_t length = 0;
  bytes.resize(static_cast<std::size_t>(size) + 1); // one more, so that the end is seen without growing
  while (true) {
    const ssize_t count = files.read(descriptor, bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR)
      continue;
    if (count < 0)
      return ReadOutcome::Failed;
    if (count == 0)
      break;
    length += static_cast<std::size_t>(count);
    if (length > static_cast<std::size_t>(largest))
      return ReadOutcome::TooLarge;
    if (length == bytes.size())
      bytes.resize(bytes.size() * 2);
  }
  bytes.resize(length);
  return ReadOutcome::Read;
}

ReadOutcome readOpened(FileSystem& files, const std::string& path, std::string& bytes, FileStamp& stamp,
                       std::int64_t largest, StorageError& error) {
  // Without O_NONBLOCK a pipe would hold the program until somebody writes to it.
  Descriptor file(files, path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (!file.isOpen()) {
    error = StorageError::ofCall(Call::Open, path);
    return error.number == ENOENT || error.number == ENOTDIR ? ReadOutcome::Absent : ReadOutcome::Failed;
  }
  // The stamp is taken before the bytes: a change made meanwhile shows as a different stamp later.
  if (!files.stamp(file.get(), stamp)) {
    error = StorageError::ofCall(Call::Stamp, path);
    return ReadOutcome::Failed;
  }
  if (!stamp.isRegular) {
    error = {Call::NotAFile, 0, path};
    return ReadOutcome::Failed;
  }
  const ReadOutcome outcome =
      stamp.size > largest ? ReadOutcome::TooLarge : readAll(files, file.get(), stamp.size, largest, bytes);
  if (outcome == ReadOutcome::Failed)
    error = StorageError::ofCall(Call::Read, path);
  else if (outcome == ReadOutcome::TooLarge)
    error = {Call::TooLarge, 0, path};
  return outcome;
}

} // namespace

ReadOutcome readWholeFile(FileSystem& files, const std::string& path, std::string& bytes, FileStamp& stamp,
                          StorageError* error, std::int64_t largest) {
  bytes.clear();
  StorageError why;
  const ReadOutcome outcome = readOpened(files, path, bytes, stamp, largest, why);
  if (outcome != ReadOutcome::Read)
    bytes.clear();
  if (error != nullptr)
    *error = std::move(why);
  return outcome;
}

WriteResult replaceWholeFile(FileSystem& files, const std::string& path, std::string_view bytes,
                             FileStamp& stamp, const FileStamp* read) {
  std::string target;
  if (!files.resolve(path, target))
    return StorageError::ofCall(Call::Resolve, path);

  FileStamp old;
  const bool exists = files.stamp(target, old);
  if (!exists && errno != ENOENT)
    return StorageError::ofCall(Call::Stamp, target);
  if (read != nullptr && old != *read)
    return StorageError{Call::ChangedMeanwhile, 0, target};
  if (exists) {
    if (WriteResult result = mayBeReplaced(files, target, old); !result.isOnDisk())
      return result;
  }

  const Place place = placeOf(target);
  Descriptor folder(files, place.folder, O_RDONLY | O_DIRECTORY);
  if (!folder.isOpen())
    return StorageError::ofCall(Call::Open, place.folder);

  files.remove(place.temporary);
  FileStamp written;
  if (WriteResult result = putInPlace(files, place, target, bytes, exists ? &old : nullptr, written);
      !result.isOnDisk()) {
    files.remove(place.temporary);
    return result;
  }
  stamp = written;
  return syncFolder(files, folder.get()) ? WriteResult() : StorageError::ofCall(Call::Sync, place.folder);
}

std::string freeNameBeside(FileSystem& files, const std::string& path, StorageError* error) {
  FileStamp taken;
  std::string target;
  for (int number = 1;; ++number) {
    std::string name = path + '.' + std::to_string(number);
    if (files.stamp(name, taken))
      continue;
    if (errno != ENOENT) {
      if (error != nullptr)
        *error = StorageError::ofCall(Call::Stamp, name);
      return {};
    }
    if (files.resolve(name, target)) // a link that leads nowhere has the name, too
      return name;
  }
}

} // namespace hooptab
