// One value of a profile file at a time, by sticky Path, Section and Key, over the store. Cheap: whoever
// wants key by key makes one of its own, so that nobody else moves its place. Whole files, and what belongs
// together, go through the store itself. Text is UTF-8 here and Windows-1252 in the file.
#pragma once

#include "storage/ProfileStore.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace hooptab {

class cinifile {
 public:
  // A value comes back cut to this many bytes of the code page; a key list to the other.
  static constexpr std::size_t kLongestValue = 254;
  static constexpr std::size_t kLongestKeyList = 9999;

  explicit cinifile(ProfileStore& store) : m_store(store) {}

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

 private:
  void write(const ProfileBatch& batch);
  [[nodiscard]] std::string defaultText() const;

  ProfileStore& m_store;
  std::string m_path, m_section, m_key, m_default;
  std::int32_t m_lastReturnCode = 0;
};

} // namespace hooptab
