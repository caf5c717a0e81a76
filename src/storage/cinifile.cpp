#include "storage/cinifile.h"

#include "storage/BatchText.h"
#include "storage/codepage.h"

#include <algorithm>

namespace hooptab {
namespace {

// A list that leaves no room for two closing NULs in the buffer is cut to this.
constexpr std::size_t kCutKeyList = cinifile::kLongestKeyList - 2;

// A section or key name as it is looked up.
std::string searchedName(std::string_view name) {
  return codepage::fromUtf8(withoutSpaces(name));
}

} // namespace

std::string cinifile::Value() {
  const ProfileReading reading = m_store.read(m_path);
  const auto value = reading.text.value(searchedName(m_section), searchedName(m_key));
  return value ? codepage::toUtf8(value->substr(0, kLongestValue)) : defaultText();
}

void cinifile::Value(std::string_view text) {
  ProfileBatch batch;
  batch.set(m_section, m_key, std::string(text));
  write(batch);
}

void cinifile::DeleteValue() {
  Value("0");
}

void cinifile::DeleteSection() {
  ProfileBatch batch;
  batch.deleteSection(m_section);
  write(batch);
}

std::string cinifile::INISection() {
  std::string list = m_store.read(m_path).text.keyList(searchedName(m_section));
  if (list.empty())
    return defaultText();
  if (list.size() > kCutKeyList)
    list.resize(kCutKeyList);
  return codepage::toUtf8(list);
}

void cinifile::INISection(std::string_view) {
  DeleteSection();
}

void cinifile::write(const ProfileBatch& batch) {
  m_lastReturnCode = m_store.write(m_path, batch).isOnDisk() ? 1 : 0;
}

// As the text of a value comes back: without blanks behind it and cut.
std::string cinifile::defaultText() const {
  if (m_default.empty())
    return {};
  std::string text = codepage::fromUtf8(m_default);
  text.resize(text.find_last_not_of(' ') + 1);
  text.resize(std::min(text.size(), kLongestValue));
  return codepage::toUtf8(text);
}

} // namespace hooptab
