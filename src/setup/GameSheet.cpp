#include "setup/GameSheet.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::size_t kMostDigits = 3;

std::string trimmed(std::string_view text) {
  return std::string(Module1::trimmed(text));
}

// A target as the file has it: "021" is 21, and 0 is none.
std::string numberText(std::string_view typed) {
  const int number = Module1::leadingNumber(typed);
  return number > 0 ? std::to_string(number) : std::string();
}

std::string levelText(const std::optional<RecordingLevel>& level) {
  return level ? std::string(levelKey(*level)) : std::string();
}

bool isSameJersey(std::string_view jersey, std::string_view other) {
  return jersey == other || Roster::areOneNumber(jersey, other);
}

GameSheet::KeysAndValues valuesOf(const GameSheet& sheet) {
  return {{"COMPETITION", trimmed(sheet.competition)},
          {"RONDE", trimmed(sheet.round)},
          {"ARBITRES", trimmed(sheet.referees)},
          {"ASSISTANCE", trimmed(sheet.attendance)},
          {"ENTRAINEUR0", trimmed(sheet.coach[Side::Visitor])},
          {"ENTRAINEUR1", trimmed(sheet.coach[Side::Home])},
          {"CAPITAINE0", sheet.captain[Side::Visitor]},
          {"CAPITAINE1", sheet.captain[Side::Home]},
          {"SCORECIBLE", numberText(sheet.targetScore)},
          {"REGLES", sheet.ruleSet},
          {"NIVEAU", levelText(sheet.level)}};
}

} // namespace

GameSheet GameSheet::of(const GameDetails& details) {
  GameSheet sheet{.competition = details.competition,
                  .round = details.round,
                  .referees = details.referees,
                  .attendance = details.attendance,
                  .coach = {details.coach[Side::Visitor], details.coach[Side::Home]},
                  .captain = {details.captain[Side::Visitor], details.captain[Side::Home]},
                  .targetScore = numberText(std::to_string(details.targetScore)),
                  .ruleSet = details.ruleSet,
                  .level = details.level};
  return sheet;
}

GameSheet::KeysAndValues GameSheet::changedFrom(const GameSheet& before) const {
  KeysAndValues values = valuesOf(*this);
  const KeysAndValues old = valuesOf(before);
  std::erase_if(values, [&old](const auto& value) { return std::ranges::find(old, value) != old.end(); });
  return values;
}

bool GameSheet::isTargetScore(std::string_view typed) {
  return typed.size() <= kMostDigits && typed.find_first_not_of("0123456789") == std::string_view::npos;
}

std::vector<CaptainChoice> captainChoices(const std::vector<RosterPlayer>& players,
                                          std::string_view captain) {
  std::vector<CaptainChoice> choices = {{}};
  bool isAmongThem = captain.empty();
  for (const RosterPlayer& player : players) {
    choices.push_back({player.jersey, trimmed(player.jersey + ' ' + player.name)});
    isAmongThem = isAmongThem || isSameJersey(player.jersey, captain);
  }
  if (!isAmongThem)
    choices.push_back({std::string(captain), std::string(captain)});
  return choices;
}

std::size_t positionOf(std::string_view captain, const std::vector<CaptainChoice>& choices) {
  // Where two players write one number in two ways, the text decides.
  auto found = std::ranges::find(choices, captain, &CaptainChoice::jersey);
  if (found == choices.end())
    found = std::ranges::find_if(
        choices, [&](const CaptainChoice& choice) { return isSameJersey(choice.jersey, captain); });
  return found == choices.end() ? 0 : static_cast<std::size_t>(found - choices.begin());
}

} // namespace hooptab
