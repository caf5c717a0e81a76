#include "storage/BatchText.h"

#include "storage/codepage.h"

namespace hooptab {
namespace {

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

// A section or key name as it is written.
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

std::string_view withoutSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos)
    return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

ProfileText withBatch(ProfileText text, const ProfileBatch& batch) {
  for (const ProfileBatch::Operation& operation : batch.operations())
    text = std::visit(Applier{text}, operation);
  return text;
}

} // namespace hooptab
