// The profile-file store: the only way in which settings and games reach the disk. Callers set Path, Section
// and Key and then read or assign Value; every write is on disk (fsync included) before it returns. Keeps a
// parsed copy per file, which is never older than the file. Text is UTF-8 here and Windows-1252 in the file.
// Lives on the main thread; no locking.
#pragma once

#include "storage/AtomicFile.h"
#include "storage/FileSystem.h"
#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace hooptab {

class cinifile {
 public:
  // A value comes back cut to this many bytes of the code page; a key list to the other.
  static constexpr std::size_t kLongestValue = 254;
  static constexpr std::size_t kLongestKeyList = 9999;

  explicit cinifile(FileSystem& files);
  FileSystem& files() const { return m_files; }

  // Sticky: each keeps its text until a caller changes it.
  const std::string& Path() const { return m_path; }
  void Path(std::string path) { m_path = std::move(path); }
  const std::string& Section() const { return m_section; }
  void Section(std::string section) { m_section = std::move(section); }
  const std::string& Key() const { return m_key; }
  void Key(std::string key) { m_key = std::move(key); }
  const std::string& Default() const { return m_default; }
  void Default(std::string text) { m_default = std::move(text); }

  // The value of Key in Section of Path, or Default where file, section or key is absent.
  [[nodiscard]] std::string Value();
  // Writes Key=text; NULs are removed and each line break becomes one blank.
  void Value(std::string_view text);
  // Writes "0" as the value: the key stays in the file.
  void DeleteValue();
  void DeleteSection();
  // The names of all keys of Section, each followed by one NUL; Default where there are none.
  [[nodiscard]] std::string INISection();
  // Deletes the section; the text is ignored.
  void INISection(std::string_view ignored);
  // Non-zero when the last write-type operation is on disk, 0 when it failed or none was made.
  std::int32_t LastReturnCode() const { return m_lastReturnCode; }

  // Applies all operations to Path as one replacement, or none of them. Sets LastReturnCode and returns
  // whether it is non-zero.
  bool write(const ProfileBatch& batch);
  // The same for operations that were decided upon what profile() has just returned: the file is not read
  // once more between reading and writing, and a file that others changed in between is left as it is.
  bool writeBehindReading(const ProfileBatch& batch);

  // Makes the file `base` with all operations applied to it, whatever stands there now; a folder or another
  // thing that is no file stays, and is a failure. Sets LastReturnCode and returns whether it is non-zero.
  bool replace(const ProfileText& base, const ProfileBatch& batch);

  // The file as it is now, for readers that go through many keys (events, rosters). Empty where Path cannot
  // be read; `readOutcome` says why. The reference holds until the next call on this store.
  const ProfileText& profile();
  ReadOutcome readOutcome() const { return m_readOutcome; }
  // Path as it was last read or written, without a look at the file; empty when that failed.
  const ProfileText& known() const;

 private:
  struct Copy {
    ProfileText text;
    FileStamp stamp;
    bool isSettled = false; // false: changed so shortly before that an equal stamp proves nothing
    std::uint64_t lastUse = 0;
  };
  Copy& copyOfPath();
  [[nodiscard]] FileStamp knownStamp() const;
  bool put(const ProfileText& before, ProfileText after);
  [[nodiscard]] std::string defaultText() const;

  FileSystem& m_files;
  std::string m_path, m_section, m_key, m_default;
  std::int32_t m_lastReturnCode = 0;
  ReadOutcome m_readOutcome = ReadOutcome::Absent;
  std::map<std::string, Copy, std::less<>> m_copies;
  std::uint64_t m_uses = 0;
  std::set<std::string, std::less<>> m_undurable; // replaced, but the fsync of the folder failed
  const ProfileText m_nothing;
};

} // namespace hooptab
