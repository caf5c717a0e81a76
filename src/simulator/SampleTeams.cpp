#include "simulator/SampleTeams.h"

#include "settings/Settings.h"
#include "storage/Module1.h"

namespace hooptab {

namespace {

void readTeam(std::string_view record, SampleTeam& team) {
  using Module1::field;
  using Module1::leadingNumber;
  team.abbreviation = field(record, 1);
  team.category = field(record, 2);
  team.name = field(record, 3);
  team.bonus = leadingNumber(field(record, 8));
  team.personalFoulLimit = leadingNumber(field(record, 9));
  team.technicalFoulLimit = leadingNumber(field(record, 10));
  team.colour = static_cast<std::uint32_t>(leadingNumber(field(record, 11)));
}

} // namespace

std::array<SampleTeam, kSampleTeamCount> sampleTeams() {
  std::array<SampleTeam, kSampleTeamCount> teams;
  const auto teamOf = [&teams](std::string_view id) -> SampleTeam* {
    const int number = Module1::wholeNumber(id);
    if (number < 1 || number > static_cast<int>(teams.size()))
      return nullptr;
    SampleTeam& team = teams[static_cast<std::size_t>(number) - 1];
    team.id = number;
    return &team;
  };
  const ProfileBatch content = firstRunContent(Texts(), "");
  for (const ProfileBatch::Operation& operation : content.operations()) {
    const auto* const value = std::get_if<ProfileBatch::SetValue>(&operation);
    if (value == nullptr)
      continue;
    if (value->section == "TEAM") {
      if (SampleTeam* const team = teamOf(value->key))
        readTeam(value->value, *team);
    } else if (SampleTeam* const team = teamOf(value->section)) {
      team->players.push_back({value->key, Module1::leadingNumber(Module1::field(value->value, 1)),
                               std::string(Module1::field(value->value, 2))});
    }
  }
  return teams;
}

} // namespace hooptab
