#include "exchange/ImportList.h"

#include "storage/Placeholders.h"

#include <filesystem>

namespace hooptab {

ImportState stateOf(const ImportedGame& game) {
  if (game.isWritten)
    return ImportState::Imported;
  switch (game.problem.text) {
  case Text::None: return ImportState::New;
  case Text::GameIsThereAlready: return ImportState::SameThere;
  case Text::OtherFileThere: return ImportState::OtherThere;
  case Text::FitsTwoWays: return ImportState::TwoWays;
  case Text::GameToReplaceIsOpen:
  case Text::GameNotWritten: return ImportState::NotWritten;
  default: return ImportState::Unreadable;
  }
}

bool isReadable(ImportState state) {
  return state != ImportState::TwoWays && state != ImportState::Unreadable;
}

bool canBeImported(ImportState state, bool replacesExisting) {
  if (state == ImportState::SameThere || state == ImportState::OtherThere)
    return replacesExisting;
  return state == ImportState::New || state == ImportState::NotWritten;
}

bool isInFolder(ImportState state) {
  return state == ImportState::Imported || state == ImportState::SameThere;
}

std::string stateWords(const ImportedGame& game, const Texts& texts) {
  const auto withReason = [&](Text text) { return texts.withPlaceholder(text, problemWords(game, texts)); };
  switch (stateOf(game)) {
  case ImportState::New: return std::string(texts.text(Text::StateNew));
  case ImportState::Imported: return std::string(texts.text(Text::StateImported));
  case ImportState::SameThere: return std::string(texts.text(Text::StateSameThere));
  case ImportState::OtherThere: return std::string(texts.text(Text::StateOtherThere));
  case ImportState::TwoWays: return std::string(texts.text(Text::StateTwoWays));
  case ImportState::NotWritten: return withReason(Text::StateNotWritten);
  case ImportState::Unreadable: break;
  }
  return withReason(Text::StateUnreadable);
}

std::string numbersWords(const ImportedGame& game, const Texts& texts) {
  if (!isReadable(stateOf(game)))
    return {};
  if (game.compared == 0)
    return std::string(texts.text(Text::NothingToCompare));
  const std::string compared = std::to_string(game.compared);
  return game.differences.empty() ? texts.withPlaceholder(Text::ComparedAgree, compared)
                                  : withPlaceholders(texts.text(Text::ComparedDiffer), compared,
                                                     std::to_string(game.differences.size()));
}

std::string scoreWords(const ImportedGame& game) {
  return isReadable(stateOf(game))
             ? std::to_string(game.points[Side::Visitor]) + " - " + std::to_string(game.points[Side::Home])
             : std::string();
}

std::string fileNames(const ImportedGame& game) {
  std::string names;
  for (const std::string& file : game.group.files)
    names += (names.empty() ? "" : ", ") + std::filesystem::path(file).filename().string();
  return names;
}

std::string teamWords(const ImportedGame& game, Side team) {
  const auto place = team;
  return game.names[place].empty() ? game.abbreviations[place] : game.names[place];
}

std::string shortTeam(const ImportedGame& game, Side team) {
  const auto place = team;
  return game.abbreviations[place].empty() ? game.names[place] : game.abbreviations[place];
}

std::vector<std::string> linesAbout(const ImportedGame& game, const Texts& texts) {
  const ImportState state = stateOf(game);
  std::vector<std::string> lines;
  if (game.problem)
    lines.push_back(problemWords(game, texts));
  else if (!game.path.empty())
    lines.push_back(
        texts.withPlaceholder(game.isWritten ? Text::ImportedAs : Text::WillBeWritten, game.path));
  if (isReadable(state) && !game.isFinished)
    lines.emplace_back(texts.text(Text::NotFinishedInFile));
  for (const auto& [kind, count] : game.unknown)
    lines.push_back(texts.withPlaceholder(Text::PassedOver, std::to_string(count) + " × " + kind));
  for (const ExchangeNote& note : game.notes)
    lines.push_back(inWords(note, texts));
  return lines;
}

} // namespace hooptab
