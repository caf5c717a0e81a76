#include "storage/cinifile.h"

#include "storage/BatchText.h"
#include "storage/codepage.h"

#include <algorithm>

namespace hooptab {
namespace {

// The clocks of some file systems (USB sticks) count in steps of two seconds: a file changed less long ago
// may change once more and look the same.
constexpr std::int64_t kCoarsestClockNanoseconds = 2'000'000'000;

// A scan of a season reads each file once; what is used again and again are a handful.
constexpr std::size_t kMostCopies = 64;

// A list that leaves no room for two closing NULs in the buffer is cut to this.
constexpr std::size_t kCutKeyList = cinifile::kLongestKeyList - 2;

// Bytes of the code page that can be a name or a value of one line.
std::string oneLine(std::string bytes) {
  std::erase(bytes, '\0');
  std::size_t length = 0;
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    const bool isCrLf = bytes[index] == '\r' && index + 1 < bytes.size() && bytes[index + 1] == '\n';
    bytes[length++] = bytes[index] == '\r' || bytes[index] == '\n' ? ' ' : bytes[index];
    if (isCrLf)
      ++index;
  }
  bytes.resize(length);
  return bytes;
}

std::string_view withoutSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos)
    return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// A section or key name as it is looked up, and as it is written.
std::string searchedName(std::string_view name) {
  return codepage::fromUtf8(withoutSpaces(name));
}
std::string writtenName(std::string_view name) {
  return std::string(withoutSpaces(oneLine(codepage::fromUtf8(name))));
}

struct Applier {
  const ProfileText& text;

  ProfileText operator()(const ProfileBatch::SetValue& set) const {
    return text.withValue(writtenName(set.section), writtenName(set.key),
                          oneLine(codepage::fromUtf8(set.value)));
  }
  ProfileText operator()(const ProfileBatch::DeleteSection& deletion) const {
    return text.withoutSection(writtenName(deletion.section));
  }
  ProfileText operator()(const ProfileBatch::SetSectionLines& set) const {
    ProfileText::KeyValues lines;
    lines.reserve(set.lines.size());
    for (const auto& [name, value] : set.lines) {
      if (set.alreadyStored)
        lines.emplace_back(withoutSpaces(oneLine(name)), oneLine(value));
      else
        lines.emplace_back(writtenName(name), oneLine(codepage::fromUtf8(value)));
    }
    return text.withSectionLines(writtenName(set.section), lines);
  }
};

} // namespace

ProfileText withBatch(ProfileText text, const ProfileBatch& batch) {
  for (const ProfileBatch::Operation& operation : batch.operations())
    text = std::visit(Applier{text}, operation);
  return text;
}

cinifile::cinifile(FileSystem& files) : m_files(files) {}

std::string cinifile::Value() {
  const auto value = profile().value(searchedName(m_section), searchedName(m_key));
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
  std::string list = profile().keyList(searchedName(m_section));
  if (list.empty())
    return defaultText();
  if (list.size() > kCutKeyList)
    list.resize(kCutKeyList);
  return codepage::toUtf8(list);
}

void cinifile::INISection(std::string_view) {
  DeleteSection();
}

bool cinifile::write(const ProfileBatch& batch) {
  profile();
  return writeBehindReading(batch);
}

bool cinifile::writeBehindReading(const ProfileBatch& batch) {
  m_lastReturnCode = 0;
  // What cannot be read must not be replaced by the little that is written now.
  if (m_readOutcome != ReadOutcome::Read && m_readOutcome != ReadOutcome::Absent)
    return false;

  const ProfileText& before = known();
  return put(before, withBatch(before, batch));
}

bool cinifile::replace(const ProfileText& base, const ProfileBatch& batch) {
  m_lastReturnCode = 0;
  const ProfileText before = profile(); // what stands in the way may be anything, even too large to be read
  return put(before, withBatch(base, batch));
}

// Writes the file unless `before`, which is what it holds, is that already.
bool cinifile::put(const ProfileText& before, ProfileText after) {
  const std::string bytes = after.bytes();
  const bool isOnDisk = before.hasBytes(bytes) && !m_undurable.contains(m_path);
  if (!isOnDisk) {
    if (bytes.size() > static_cast<std::size_t>(kLargestProfileFile))
      return false; // could never be read again
    FileStamp stamp;
    const FileStamp read = knownStamp();
    const bool isRead = m_readOutcome == ReadOutcome::Read || m_readOutcome == ReadOutcome::Absent;
    if (!replaceWholeFile(m_files, m_path, bytes, stamp, isRead ? &read : nullptr)) {
      if (stamp != FileStamp{})
        m_undurable.insert(m_path);
      return false;
    }
    m_undurable.erase(m_path);
    Copy& copy = copyOfPath();
    copy.text = std::move(after);
    copy.stamp = stamp;
    copy.isSettled = false;
  }
  m_lastReturnCode = 1;
  return true;
}

const ProfileText& cinifile::known() const {
  const auto known = m_copies.find(m_path);
  return known != m_copies.end() ? known->second.text : m_nothing;
}

// The state in which Path was last read or written; that of no file where it was not there.
FileStamp cinifile::knownStamp() const {
  const auto known = m_copies.find(m_path);
  return known != m_copies.end() ? known->second.stamp : FileStamp{};
}

const ProfileText& cinifile::profile() {
  const auto known = m_copies.find(m_path);
  FileStamp stamp;
  if (known != m_copies.end() && known->second.isSettled && m_files.stamp(m_path, stamp) &&
      stamp == known->second.stamp) {
    known->second.lastUse = ++m_uses;
    m_readOutcome = ReadOutcome::Read;
    return known->second.text;
  }

  const std::int64_t now = m_files.nowNanoseconds();
  std::string bytes;
  m_readOutcome = readWholeFile(m_files, m_path, bytes, stamp);
  if (m_readOutcome != ReadOutcome::Read) {
    if (known != m_copies.end())
      m_copies.erase(known);
    return m_nothing;
  }
  Copy& copy = copyOfPath();
  if (!copy.text.hasBytes(bytes))
    copy.text = ProfileText(std::move(bytes));
  copy.stamp = stamp;
  copy.isSettled = now - stamp.modifiedNanoseconds >= kCoarsestClockNanoseconds;
  return copy.text;
}

// The copy kept for Path, a new one in place of the least recently used where there is none.
cinifile::Copy& cinifile::copyOfPath() {
  if (m_copies.size() >= kMostCopies && !m_copies.contains(m_path))
    m_copies.erase(
        std::ranges::min_element(m_copies, {}, [](const auto& entry) { return entry.second.lastUse; }));
  Copy& copy = m_copies[m_path];
  copy.lastUse = ++m_uses;
  return copy;
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
