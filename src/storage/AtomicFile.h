// Reads a whole file, and replaces a whole file so that another process, or the next start after a crash,
// finds the old bytes or the new ones and never a mixture: temporary file in the same folder, fsync, rename,
// fsync of the folder.
#pragma once

#include "storage/FileSystem.h"
#include "storage/StorageError.h"

#include <string>
#include <string_view>

namespace hooptab {

enum class ReadOutcome { Read, Absent, TooLarge, Failed };

// Files larger than this are no profile files of ours; they are refused unread.
inline constexpr std::int64_t kLargestProfileFile = 16 * 1024 * 1024;

// Fills `bytes` and `stamp` (the state that was read). `bytes` is empty unless the outcome is Read; else
// `error`, where one is given, says why. What is longer than `largest` is TooLarge.
[[nodiscard]] ReadOutcome readWholeFile(FileSystem& files, const std::string& path, std::string& bytes,
                                        FileStamp& stamp, StorageError* error = nullptr,
                                        std::int64_t largest = kLargestProfileFile);

// On disk when the new bytes are durably in place; then `stamp` is the state written. On failure the old file
// stands as it was and `stamp` is left alone; or, when only the folder's own fsync failed, the new file
// stands and `stamp` is its state. No temporary file is left. Fails for a file without any write permission
// bit, even for a user whom the system would let write. Keeps mode bits and a symbolic link's target, and
// owner, group and extended attributes where the system lets. Fails, too, where the file changed while the
// new one was written; with `read` (FileStamp{} for a file that was not there) also where it changed since it
// was in that state, so that bytes which were decided upon what it held cover nothing that nobody has read.
WriteResult replaceWholeFile(FileSystem& files, const std::string& path, std::string_view bytes,
                             FileStamp& stamp, const FileStamp* read = nullptr);

// A name for another version of a file, beside it: its own and ".1", ".2", ..., the first that nothing has.
// Empty when the folder cannot be looked into; `error`, where one is given, says why.
[[nodiscard]] std::string freeNameBeside(FileSystem& files, const std::string& path,
                                         StorageError* error = nullptr);

} // namespace hooptab
