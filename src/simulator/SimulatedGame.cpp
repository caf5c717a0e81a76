#include "simulator/SimulatedGame.h"

#include "settings/ChoiceTexts.h"

namespace hooptab {

std::string SimulatedGame::fileName() const {
  static const Texts texts;
  std::string name =
      details.date + " " + std::string(texts.text(textBehind(kFirstGameTypeText, details.type)));
  for (const Side team : kSides)
    name += " " + details.abbreviation[team] + "-" + details.category[team];
  return name + ".GAM";
}

ProfileBatch SimulatedGame::batch() const {
  ProfileBatch atCreation;
  writeNewDetails(details, atCreation);
  std::vector<std::pair<std::string, std::string>> lines;
  for (const ProfileBatch::Operation& operation : atCreation.operations()) {
    const auto& value = std::get<ProfileBatch::SetValue>(operation);
    lines.emplace_back(value.key, value.value);
  }
  lines.emplace_back("EVENUM", std::to_string(details.nextEventNumber));
  if (details.keepsBonus)
    lines.emplace_back("KEEPBONUS", "1");
  lines.emplace_back("TERMINE", details.isFinished ? "1" : "0");

  ProfileBatch batch;
  batch.setSectionLines(std::string(kDetailsSection), std::move(lines));
  for (const Side team : kSides) {
    std::vector<std::pair<std::string, std::string>> players;
    for (const RosterPlayer& player : roster[team])
      players.emplace_back(player.jersey, std::to_string(player.position) + "," + player.name);
    batch.setSectionLines(rosterSection(team), std::move(players));
  }
  for (std::size_t period = 0; period < periods.size(); ++period)
    batch.setSectionLines("PERIODE" + std::to_string(period + 1), periods[period]);
  return batch;
}

Game SimulatedGame::inMemory() const {
  Game game;
  game.path = fileName();
  game.details = details;
  for (const Side team : kSides) {
    for (const RosterPlayer& player : roster[team])
      game.roster[team].add(player);
  }
  for (std::size_t period = 0; period < periods.size(); ++period) {
    for (const auto& [key, line] : periods[period])
      game.events.appendOwned(static_cast<std::uint8_t>(period + 1), key, line);
  }
  return game;
}

} // namespace hooptab
