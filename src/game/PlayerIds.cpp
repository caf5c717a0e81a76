#include "game/PlayerIds.h"

#include "storage/cinifile.h"
#include "storage/codepage.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

constexpr std::string_view kLicence = "LIC";
constexpr std::string_view kForeignId = "ID";

using Fields = std::vector<std::pair<std::string_view, std::string_view>>;

// "LIC=QC-1024,ID=77", in its order. A field of another form has no key.
Fields fieldsOf(std::string_view line) {
  Fields fields;
  while (!line.empty()) {
    const std::string_view field = line.substr(0, line.find(','));
    const std::size_t equals = field.find('=');
    if (equals == std::string_view::npos)
      fields.emplace_back(std::string_view(), field);
    else
      fields.emplace_back(field.substr(0, equals), field.substr(equals + 1));
    line.remove_prefix(std::min(field.size() + 1, line.size()));
  }
  return fields;
}

std::string valueOf(const Fields& fields, std::string_view key) {
  const auto found = std::ranges::find(fields, key, &Fields::value_type::first);
  return found == fields.end() ? std::string() : std::string(found->second);
}

void add(std::string& line, std::string_view key, std::string_view value) {
  line.append(line.empty() ? "" : ",");
  if (!key.empty())
    line.append(key).append("=");
  line.append(value);
}

} // namespace

std::string playerIdSection(Side team) {
  return "JOUEURS" + std::to_string(numberOf(team));
}

PlayerIds readPlayerIds(const ProfileText& text, Side team) {
  PlayerIds ids;
  for (const ProfileText::Line& line : text.section(playerIdSection(team))) {
    if (line.kind != ProfileText::Line::Kind::KeyValue || line.name.empty())
      continue;
    const std::string value = codepage::toUtf8(line.value.substr(0, cinifile::kLongestValue));
    const Fields fields = fieldsOf(value);
    ids.try_emplace(codepage::toUtf8(line.name),
                    PlayerId{valueOf(fields, kLicence), valueOf(fields, kForeignId)});
  }
  return ids;
}

bool planPlayerId(const ProfileText& text, Side team, std::string_view jersey, const PlayerId& id,
                  ProfileBatch& batch) {
  if (id.licence.find(',') != std::string::npos || id.foreignId.find(',') != std::string::npos)
    return false;
  const std::string section = playerIdSection(team);
  const std::string before =
      codepage::toUtf8(text.value(section, codepage::fromUtf8(jersey)).value_or(std::string_view()));
  std::string line;
  for (const auto& [key, value] : {std::pair(kLicence, &id.licence), {kForeignId, &id.foreignId}}) {
    if (!value->empty())
      add(line, key, *value);
  }
  for (const auto& [key, value] : fieldsOf(before)) {
    if (key != kLicence && key != kForeignId)
      add(line, key, value);
  }
  if (codepage::fromUtf8(line).size() > cinifile::kLongestValue)
    return false;
  batch.set(section, std::string(jersey), line);
  return true;
}

} // namespace hooptab
