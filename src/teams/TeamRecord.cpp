#include "teams/TeamRecord.h"

#include "storage/Module1.h"
#include "storage/cinifile.h"
#include "storage/codepage.h"

#include <algorithm>
#include <initializer_list>

namespace hooptab {

namespace {

std::string fieldOf(std::string_view value, std::size_t n) {
  return std::string(Module1::field(value, n));
}

void add(std::string& record, std::string_view text) {
  record.append(withoutCommas(std::string(text))).push_back(',');
}

} // namespace

std::string withoutCommas(std::string text) {
  std::ranges::replace(text, ',', ' ');
  return text;
}

TeamRecord parseTeam(std::string_view value) {
  TeamRecord team;
  team.abbreviation = fieldOf(value, 1);
  team.category = fieldOf(value, 2);
  team.name = fieldOf(value, 3);
  team.minutesPerPeriod = fieldOf(value, 6);
  team.periods = fieldOf(value, 7);
  team.bonus = fieldOf(value, 8);
  team.personalFoulLimit = fieldOf(value, 9);
  team.technicalFoulLimit = fieldOf(value, 10);
  constexpr int kWhite = 0xFFFFFF;
  team.storedColour =
      static_cast<std::uint32_t>(std::clamp(Module1::leadingNumber(Module1::field(value, 11)), 0, kWhite));
  team.isMain = Module1::leadingNumber(Module1::field(value, 12)) != 0;
  return team;
}

PlayerRecord parsePlayer(std::string_view value) {
  return {Module1::leadingNumber(Module1::field(value, 1)),
          fieldOf(value, 2),
          fieldOf(value, 3),
          fieldOf(value, 4),
          fieldOf(value, 5),
          fieldOf(value, 6)};
}

std::string teamValue(const TeamRecord& team, const std::string (&labels)[2]) {
  std::string record;
  for (const std::string& text :
       {team.abbreviation, team.category, team.name, labels[0], labels[1], team.minutesPerPeriod,
        team.periods, team.bonus, team.personalFoulLimit, team.technicalFoulLimit})
    add(record, text);
  return record + std::to_string(team.colour()) + (team.isMain ? ",1" : ",0");
}

std::string playerValue(const PlayerRecord& player) {
  std::string record = std::to_string(player.position) + ',';
  for (const std::string& text : {player.name, player.height, player.weight, player.age, player.grade})
    add(record, text);
  return record;
}

bool isJersey(std::string_view number) {
  constexpr std::size_t kMostDigits = 3;
  return number.size() <= kMostDigits && Module1::wholeNumber(number) >= 0;
}

bool fitsInValue(std::string_view value) {
  return codepage::fromUtf8(value).size() <= cinifile::kLongestValue;
}

} // namespace hooptab
